#include "document/ui/RecipeWindow.h"

#include <QApplication>
#include <QScrollArea>
#include <QScrollBar>
#include <QShortcut>
#include <QTabBar>
#include <QTabWidget>
#include <QVBoxLayout>
#include <utility>

#include "document/TabRules.h"
#include "document/ui/DocumentPages.h"
#include "document/ui/FieldBox.h"
#include "document/ui/FigureStrip.h"
#include "document/ui/GridPanel.h"
#include "document/ui/GridWidget.h"
#include "document/ui/NotesBox.h"
#include "document/ui/PageBuilder.h"
#include "platform/qt/Appearance.h"
#include "platform/qt/QtText.h"
#include "record/FieldRules.h"

namespace tw {

RecipeWindow::RecipeWindow(RecipeDocument& document, Platform& platform, DocumentFrame& frame,
                           QWidget* parent)
    : QWidget(parent), binding_(document, platform, frame), tabs_(new QTabWidget(this)) {
    setObjectName(QLatin1String(RecipeDocument::kFormName));
    setAccessibleName(tr("Recipe"));
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(tabs_, 1);
    tabs_->setObjectName(QStringLiteral("SSTab1"));
    tabs_->setAccessibleName(tr("Parts of the recipe"));
    tabs_->setDocumentMode(true);
    tabs_->tabBar()->setAccessibleName(tabs_->accessibleName());
    tabs_->tabBar()->setElideMode(Qt::ElideNone);
    for (int i = 0; i < kTabs; ++i) {
        auto* page = new QScrollArea(tabs_);
        page->setFrameShape(QFrame::NoFrame);
        page->setWidgetResizable(true);
        page->setFocusPolicy(Qt::NoFocus);
        page->verticalScrollBar()->setObjectName(QStringLiteral("VScroll1"));
        pages_[static_cast<std::size_t>(i)] = page;
        tabs_->addTab(page, tr(RuleOf(static_cast<Tab>(i)).caption));
    }
    BuildTab(0);
    ShowStrip();
    setFocusProxy(FirstField());
    document.SetView(this);
    connect(tabs_, &QTabWidget::currentChanged, this, &RecipeWindow::TabChosen);
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) { FocusMoved(now); });
    AddTabKeys();
}

// The shortcuts work wherever the focus is in the recipe, and nowhere else.
void RecipeWindow::AddTabKeys() {
    const auto add = [this](const QKeySequence& key, std::function<void()> run) {
        auto* shortcut = new QShortcut(key, this);
        shortcut->setContext(Qt::WidgetWithChildrenShortcut);
        connect(shortcut, &QShortcut::activated, this, std::move(run));
    };
    add(Qt::CTRL | Qt::Key_PageDown, [this] { StepTab(1); });
    add(Qt::CTRL | Qt::Key_PageUp, [this] { StepTab(-1); });
    for (int i = 0; i < kTabs; ++i) {
        const QKeySequence key(Qt::ALT | static_cast<Qt::Key>(Qt::Key_1 + i));
        add(key, [this, i] { ShowTab(static_cast<Tab>(i)); });
        tabs_->setTabToolTip(i, key.toString(QKeySequence::NativeText));
    }
}

void RecipeWindow::StepTab(int step) {
    const int to = tabs_->currentIndex() + step;
    if (to >= 0 && to < kTabs) ShowTab(static_cast<Tab>(to));
}

RecipeWindow::~RecipeWindow() {
    Detach();
    // The controls refer to the binding, so they must be destroyed first.
    delete tabs_;
    delete strip_;
}

void RecipeWindow::Detach() {
    if (!binding_.Document()) return;
    binding_.Document()->SetView(nullptr);
    binding_.Detach();
}

void RecipeWindow::ShowStrip() {
    const bool wanted = binding_.Frame().ShowsFigures() && binding_.Document();
    if (wanted == (strip_ != nullptr)) return;
    if (!wanted) {
        // This function may run within the strip's own menu.
        strip_->setParent(nullptr);
        std::exchange(strip_, nullptr)->deleteLater();
        return;
    }
    PageBuilder builder(binding_, *this);
    strip_ = new FigureStrip(builder, *this);
    layout()->addWidget(strip_);
    connect(strip_, &FigureStrip::Wanted, this, &RecipeWindow::GoToFigure);
    connect(strip_, &FigureStrip::HidingWanted, this, [this] { binding_.Frame().HideFigures(); });
    YieldKeys();
}

// The label of the finished gravity has a key on the first tab, which is that of the strip on all others.
void RecipeWindow::YieldKeys() {
    if (strip_) strip_->YieldKey(shown_ == 0 ? 'G' : '\0');
}

void RecipeWindow::GoToFigure(FieldId figure) {
    ShowTab(Tab::General);
    if (shown_ != static_cast<int>(Tab::General)) return;
    ControlWanted(std::string(RuleOf(figure).name));
}

void RecipeWindow::BuildTab(int index) {
    QScrollArea& area = *pages_[static_cast<std::size_t>(index)];
    if (area.widget() || !binding_.Document()) return;
    auto* page = new QWidget;
    page->setObjectName(QStringLiteral("ContainerBox(%1)").arg(index));
    PageBuilder builder(binding_, *page);
    BuildPage(static_cast<Tab>(index), builder);
    area.setWidget(page);
}

void RecipeWindow::ShowTab(Tab tab) {
    if (binding_.Flush()) tabs_->setCurrentIndex(static_cast<int>(tab));
}

void RecipeWindow::TabChosen(int index) {
    if (index == shown_) return;
    if (!binding_.Flush()) {
        tabs_->setCurrentIndex(shown_);
        return;
    }
    shown_ = index;
    YieldKeys();
    BuildTab(index);
    binding_.Run([index](RecipeDocument& document) { document.Focus().SetTab(static_cast<Tab>(index)); });
    QWidget* first = FirstField();
    setFocusProxy(first);
    if (first) first->setFocus(Qt::TabFocusReason);
}

void RecipeWindow::TabWanted(Tab tab) {
    shown_ = static_cast<int>(tab);
    YieldKeys();
    BuildTab(shown_);
    tabs_->setCurrentIndex(shown_);
    setFocusProxy(FirstField());
}

void RecipeWindow::ControlWanted(const std::string& name) {
    const QWidget* page = pages_[static_cast<std::size_t>(shown_)]->widget();
    auto* control = page ? page->findChild<QWidget*>(ToQt(name)) : nullptr;
    if (control && !control->hasFocus()) control->setFocus(Qt::OtherFocusReason);
}

void RecipeWindow::HoldRedraw(bool hold) {
    if (hold && !binding_.IsHeld()) setUpdatesEnabled(false);
    binding_.HoldRedraw(hold);
    if (!binding_.IsHeld()) setUpdatesEnabled(true);
}

void RecipeWindow::FocusMoved(QWidget* now) {
    RecipeDocument* document = binding_.Document();
    // The edit commands keep their target while a menu or a dialog has the focus.
    if (!document || !now || !isAncestorOf(now)) return;
    binding_.FocusIsIn(*now);
    for (QWidget* control = now; control != this; control = control->parentWidget()) {
        const auto* panel = qobject_cast<GridPanel*>(control);
        if (panel && panel->View().TheGrid()) return document->Focus().FocusOn(*panel->View().TheGrid());
        if (const auto* field = qobject_cast<FieldBox*>(control))
            return document->Focus().FocusOn(field->Box());
        if (const auto* notes = qobject_cast<NotesBox*>(control))
            return document->Focus().FocusOn(notes->Box());
    }
    document->Focus().FocusElsewhere();
}

QWidget* RecipeWindow::FirstField() const {
    const QString name = ToQt(FirstControlOf(static_cast<Tab>(shown_)));
    return pages_[static_cast<std::size_t>(shown_)]->findChild<QWidget*>(name);
}

bool RecipeWindow::IsEditing(const QWidget& control) const {
    const QWidget* page = pages_[static_cast<std::size_t>(shown_)]->widget();
    return page && page->isAncestorOf(&control);
}

void RecipeWindow::FocusRow() {
    RecipeDocument* document = binding_.Document();
    Grid* grid = document ? document->Focus().GridOfTab(static_cast<Tab>(shown_)) : nullptr;
    GridWidget* view = grid ? binding_.ViewOf(*grid) : nullptr;
    if (!view || !view->Widget().isVisible()) return;
    view->Widget().setFocus();
    binding_.Run([grid](RecipeDocument& d) { d.Focus().SetCurrentCell(*grid, grid->CurrentRow(), 0); });
}

void RecipeWindow::GridColorsChanged() {
    binding_.ForEachGrid([](GridWidget& view) { view.ShowColors(); });
}

QSize RecipeWindow::sizeHint() const {
    // Wide enough for all tabs, and large enough to show the first page without scrolling.
    const QWidget* general = pages_[0]->widget();
    const QSize page = general ? general->sizeHint() : QSize();
    const int tabs = tabs_->tabBar()->sizeHint().width();
    const int strip = strip_ ? strip_->sizeHint().height() : 0;
    return {qMax(page.width(), tabs) + Unit(*this),
            page.height() + tabs_->tabBar()->sizeHint().height() + strip};
}

}  // namespace tw
