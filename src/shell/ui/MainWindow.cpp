#include "shell/ui/MainWindow.h"

#include <QAccessible>
#include <QApplication>
#include <QClipboard>
#include <QCloseEvent>
#include <QDir>
#include <QMenu>
#include <QStatusBar>
#include <QToolBar>

#include "document/ui/RecipeWindow.h"
#include "platform/ErrorBox.h"
#include "platform/ScopeGuard.h"
#include "platform/qt/Appearance.h"
#include "platform/qt/ElidedLabel.h"
#include "platform/qt/FileDrop.h"
#include "platform/qt/QtText.h"
#include "platform/qt/StoredColor.h"
#include "shell/ui/CommandMenus.h"
#include "shell/ui/DocumentArea.h"
#include "shell/ui/Icons.h"
#include "shell/ui/MainGeometry.h"
#include "shell/ui/SplashWindow.h"
#include "values/Text.h"

namespace tw {
namespace {

constexpr QSize kLeastUnits(84, 44);
constexpr int kStateNormal = 0;
// How long an edit may exist in its window alone before it is kept.
constexpr int kKeepMilliseconds = 3000;
constexpr int kNewsMilliseconds = 10000;

}  // namespace

MainWindow::MainWindow(Shell& shell, Platform& platform)
    : shell_(shell),
      platform_(platform),
      area_(new DocumentArea(this)),
      autoSaveTimer_(new QTimer(this)),
      keepTimer_(new QTimer(this)),
      commandsTimer_(new QTimer(this)),
      notice_(new ElidedLabel(this)) {
    setObjectName(QLatin1String(kFormName));
    setWindowTitle(QStringLiteral("Tunwright"));
    setWindowIcon(ProgramIcon());
    SpeakTitle();
    menus_ = new CommandMenus(
        shell.Bar(), *this, [this](CommandId command) { RunCommand(command); },
        [this](CommandId command) { PressButton(command); });
    setCentralWidget(area_);
    statusBar()->setObjectName(QStringLiteral("sbStatusBar"));
    statusBar()->setAccessibleName(tr("Status"));
    notice_->setObjectName(QStringLiteral("lblNotice"));
    // A command's status tip is shown in front of the notice, temporarily.
    statusBar()->addWidget(notice_, 1);
    autoSaveTimer_->setObjectName(QStringLiteral("tmrAutoSave"));
    autoSaveTimer_->setInterval(kAutoSaveTickMilliseconds);
    connect(autoSaveTimer_, &QTimer::timeout, this,
            [this] { RunShowingErrors(platform_.messages, [this] { shell_.TickAutoSave(); }); });
    keepTimer_->setObjectName(QStringLiteral("tmrKeepUnsaved"));
    keepTimer_->setInterval(kKeepMilliseconds);
    keepTimer_->setSingleShot(true);
    connect(keepTimer_, &QTimer::timeout, this, [this] { shell_.Unsaved().Keep(); });
    new FileDrop(*this, [this](const QStringList& files) {
        std::vector<std::string> paths;
        for (const QString& file : files) paths.push_back(FromQt(file));
        if (shell_.DB()) shell_.Opened()->files.ImportFromPaths(paths);
    });
    commandsTimer_->setObjectName(QStringLiteral("tmrProcessDDE"));
    commandsTimer_->setInterval(kDDETickMilliseconds);
    connect(commandsTimer_, &QTimer::timeout, this, &MainWindow::TickDDE);
    shell_.SetView(this);
    shell_.LoadWindowSettings();
    shell_.SettingsNow().ShowIcons();
    shell_.SettingsNow().ShowButtonStyle();
    setMinimumSize(kLeastUnits * Unit(*this));
    ApplyGeometry(*this, shell_.CurrentSettings(), shell_.Store());

    connect(area_, &QMdiArea::subWindowActivated, this, [this](QMdiSubWindow* window) {
        auto* frame = qobject_cast<DocumentSubWindow*>(window);
        if (changing_ || !frame || !frame->Document().Document()) return;
        RecipeDocument& document = *frame->Document().Document();
        if (shell_.Documents().Active() != &document)
            RunShowingErrors(platform_.messages, [&] { shell_.Documents().Activate(document); });
    });
    connect(menus_->Menu(TopMenu::Window), &QMenu::aboutToShow, this, &MainWindow::FillWindowMenu);
    connect(QApplication::clipboard(), &QClipboard::dataChanged, this,
            [this] { shell_.States().ReapplyPaste(); });
}

MainWindow::~MainWindow() {
    shell_.SetView(nullptr);
    // The recipe windows refer to documents of the shell, so they are destroyed before those.
    delete area_;
    delete menus_;
}

bool MainWindow::StartUp(const std::string& databasePath, const std::string& file) {
    SplashWindow splash(this);
    splash.show();
    QApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    if (shell_.Instance().InitDDE(file) != StartTest::OnlyInstance) {
        hide();
        return false;
    }
    // The program must not keep the folder in which it was started in use.
    QDir::setCurrent(QCoreApplication::applicationDirPath());
    const bool opened = shell_.PerformSplashScreenInit(databasePath);
    splash.hide();
    if (!opened) return false;
    ShowWelcome();
    shell_.States().ReapplyPaste();
    RunShowingErrors(platform_.messages, [this] { shell_.Unsaved().Offer(); });
    if (!IsBlank(file)) shell_.Opened()->files.ImportFromPath(Trim(file));
    shell_.Instance().SetTicking(true);
    return true;
}

void MainWindow::ShowWelcome() {
    area_->SetWelcome(shell_.Bar().Item(CommandId::FileOpen).enabled
                          ? tr("No recipe is open. Ctrl+N starts a new one, Ctrl+O opens one.")
                          : tr("No recipe is here yet. Ctrl+N starts your first one."));
}

RecipeWindow* MainWindow::ActiveWindow() const {
    const RecipeDocument* document = shell_.Documents().Active();
    DocumentSubWindow* window = document ? WindowOf(*document) : nullptr;
    return window ? &window->Document() : nullptr;
}

DocumentSubWindow* MainWindow::WindowOf(const RecipeDocument& document) const {
    for (QMdiSubWindow* window : area_->subWindowList()) {
        auto* frame = qobject_cast<DocumentSubWindow*>(window);
        if (frame && frame->Document().Document() == &document) return frame;
    }
    return nullptr;
}

void MainWindow::DocumentOpened(RecipeDocument& document) {
    auto* window = new DocumentSubWindow(new RecipeWindow(document, platform_, *this), area_);
    ShowCaption(*window);
    {
        const ScopedValue changing(changing_, true);
        area_->addSubWindow(window);
    }
    RecipeDocument* opened = &document;
    connect(window, &DocumentSubWindow::CloseRequested, this, [this, window, opened] {
        if (!window->Document().Document() || !window->Document().Flush()) return;
        RunShowingErrors(platform_.messages, [&] { shell_.Opened()->saver.Close(*opened); });
    });
    connect(window, &QMdiSubWindow::windowStateChanged, this,
            [this](Qt::WindowStates before, Qt::WindowStates now) {
                // Minimised is not remembered as the state of the next window.
                if (changing_ || now.testFlag(Qt::WindowMinimized)) return;
                // Becoming active changes a state, too, and Qt tells that after it has maximised the window.
                if (!((before ^ now) & (Qt::WindowMaximized | Qt::WindowMinimized))) return;
                shell_.CurrentSettings().childState =
                    now.testFlag(Qt::WindowMaximized) ? kStateMaximized : kStateNormal;
            });
    PlaceSubWindow(*window);
}

void MainWindow::PlaceSubWindow(DocumentSubWindow& window) {
    const ScopedValue changing(changing_, true);
    if (shell_.CurrentSettings().childState == kStateMaximized) {
        window.showMaximized();
    } else {
        // Each window is a step further in, with its whole frame visible.
        area_->PlaceAt(window, static_cast<int>(area_->subWindowList().size()) - 1);
        window.show();
    }
}

// The window in front has the remembered state, however it was left.
void MainWindow::ShowInState(DocumentSubWindow& window) {
    const bool maximized = shell_.CurrentSettings().childState == kStateMaximized;
    if (!window.isMinimized() && window.isMaximized() == maximized) return;
    const ScopedValue changing(changing_, true);
    maximized ? window.showMaximized() : window.showNormal();
}

void MainWindow::DocumentClosing(RecipeDocument& document) {
    DocumentSubWindow* window = WindowOf(document);
    if (!window) return;
    window->Document().Detach();
    {
        const ScopedValue changing(changing_, true);
        area_->removeSubWindow(window);
    }
    window->hide();
    // This function may run within the window's own close button.
    window->deleteLater();
}

void MainWindow::DocumentActivated(RecipeDocument* document) {
    SpeakTitle();
    if (!document) {
        ShowWelcome();
        return;
    }
    DocumentSubWindow* window = WindowOf(*document);
    if (!window) return;
    if (area_->activeSubWindow() != window) area_->setActiveSubWindow(window);
    ShowInState(*window);
    // Qt first gives the focus to the frame or to the tabs.
    const QWidget* focus = QApplication::focusWidget();
    if (!focus || !window->Document().IsEditing(*focus)) window->Document().setFocus();
}

void MainWindow::DocumentRenamed(const RecipeDocument& document) {
    if (DocumentSubWindow* window = WindowOf(document)) ShowCaption(*window);
    if (&document == shell_.Documents().Active()) SpeakTitle();
}

void MainWindow::ShowCaption(DocumentSubWindow& window) {
    const RecipeDocument& document = *window.Document().Document();
    window.ShowCaption(ToQt(document.Caption()), document.Changed());
}

void MainWindow::SpeakTitle() {
    const RecipeDocument* document = shell_.Documents().Active();
    const DocumentSubWindow* window = document ? WindowOf(*document) : nullptr;
    const QString program = QStringLiteral("Tunwright");
    setAccessibleName(window ? tr("%1 - %2").arg(program, window->SpokenCaption()) : program);
}

void MainWindow::AutoSaveSwitched(bool on) {
    on ? autoSaveTimer_->start() : autoSaveTimer_->stop();
}

// Edits do not restart the timer, so that steady typing is kept too.
void MainWindow::UnsavedWorkWaits() {
    if (!keepTimer_->isActive()) keepTimer_->start();
}

void MainWindow::NoticeChanged(const std::string& notice) {
    notice_->SetFullText(ToQt(notice));
    QAccessibleEvent told(notice_, QAccessible::Alert);
    if (!notice.empty()) QAccessible::updateAccessibility(&told);
}

void MainWindow::SayBriefly(const std::string& text) {
    statusBar()->showMessage(ToQt(text), kNewsMilliseconds);
}

bool MainWindow::IsMinimized(const RecipeDocument& document) const {
    const DocumentSubWindow* window = WindowOf(document);
    return window && window->isMinimized();
}

bool MainWindow::IsDialogOpen() const {
    const QWidget* const active = QApplication::activeWindow();
    return QApplication::activeModalWidget() != nullptr || QApplication::activePopupWidget() != nullptr ||
           (active != nullptr && active != this);
}

void MainWindow::BringToFront() {
    setWindowState(windowState() & ~Qt::WindowMinimized);
    show();
    raise();
    QWidget* const dialog = QApplication::activeModalWidget();
    QWidget* const front = dialog != nullptr ? dialog : this;
    front->raise();
    front->activateWindow();
    // On a desktop that does not let programs take the focus, this highlights the task bar button.
    QApplication::alert(front);
}

void MainWindow::OutsideCommandsWait() {
    if (!commandsTimer_->isActive()) commandsTimer_->start();
}

void MainWindow::TickDDE() {
    RunShowingErrors(platform_.messages, [this] { shell_.Instance().TickDDE(); });
    if (shell_.Instance().DDECommandCount() == 0) commandsTimer_->stop();
}

void MainWindow::CloseMainWindow() {
    exitGranted_ = true;
    close();
}

void MainWindow::ArrangeDocuments(Arrangement arrangement) {
    if (arrangement == Arrangement::Cascade)
        area_->Cascade();
    else if (arrangement == Arrangement::TileHorizontal)
        area_->TileHorizontally();
    else
        area_->TileVertically();
}

void MainWindow::ToolbarIconsChanged() {
    menus_->SetIconStyle(shell_.CurrentSettings().iconStyle);
}

void MainWindow::ToolbarButtonStyleChanged() {
    menus_->SetFlat(shell_.CurrentSettings().buttonStyle != 0);
}

void MainWindow::GridColorsChanged(const RecipeDocument& document) {
    if (DocumentSubWindow* window = WindowOf(document)) window->Document().GridColorsChanged();
}

void MainWindow::FigureStripSwitched() {
    for (QMdiSubWindow* window : area_->subWindowList())
        if (auto* frame = qobject_cast<DocumentSubWindow*>(window)) frame->Document().ShowStrip();
}

bool MainWindow::FlushBefore(CommandId command) {
    RecipeWindow* window = ActiveWindow();
    if (!window || !RowOf(command).commitsEntry) return true;
    return window->Flush();
}

bool MainWindow::RunCommand(CommandId command) {
    const MenuItem& item = shell_.Bar().Item(command);
    if (!item.enabled || !item.visible) return false;
    // A refused entry has shown its message; the key or click is consumed.
    if (!FlushBefore(command)) return true;
    bool ran = false;
    RunShowingErrors(platform_.messages, [&] { ran = shell_.RunCommand(command); });
    FocusAfter(command);
    return ran;
}

void MainWindow::PressButton(CommandId command) {
    const ToolButton* button = shell_.Bar().ButtonOf(command);
    if (!button || !button->enabled || !FlushBefore(command)) return;
    RunShowingErrors(platform_.messages, [&] { shell_.PressButton(command); });
    FocusAfter(command);
}

// After a new row has been inserted, it gets the focus for typing.
void MainWindow::FocusAfter(CommandId command) {
    RecipeWindow* window = ActiveWindow();
    if (window && command == CommandId::EditInsert) window->FocusRow();
}

void MainWindow::ShowEditMenu(const QPoint& globalPosition, QAction* first) {
    QMenu& menu = *menus_->Menu(TopMenu::Edit);
    if (first) {
        menu.insertAction(menu.actions().value(0), first);
        // Later, since a chosen item is triggered after the menu has closed.
        connect(&menu, &QMenu::aboutToHide, first, &QObject::deleteLater);
    }
    menu.popup(globalPosition);
}

GridColors MainWindow::Colors() const {
    const Settings& settings = shell_.CurrentSettings();
    return {{ColorOf(settings.gridReadOnlyBg), ColorOf(settings.gridReadOnlyFg)},
            {ColorOf(settings.gridTotalBg), ColorOf(settings.gridTotalFg)}};
}

TypingUnits MainWindow::Units() const {
    return shell_.SettingsNow().Units();
}

bool MainWindow::ShowsFigures() const {
    return shell_.CurrentSettings().figureStrip;
}

void MainWindow::HideFigures() {
    shell_.SettingsNow().SetFigureStrip(false);
}

void MainWindow::FillWindowMenu() {
    QMenu& menu = *menus_->Menu(TopMenu::Window);
    for (QAction* action : menu.actions())
        if (action->property("openRecipe").toBool()) delete action;
    int number = 0;
    for (QMdiSubWindow* frame : area_->subWindowList(QMdiArea::CreationOrder)) {
        auto* window = qobject_cast<DocumentSubWindow*>(frame);
        if (!window) continue;
        if (number == 0) menu.addSeparator()->setProperty("openRecipe", true);
        ++number;
        QString title = window->MarkedCaption();
        title.replace(QLatin1Char('&'), QStringLiteral("&&"));
        QAction* action =
            menu.addAction(number < 10 ? QStringLiteral("&%1 %2").arg(number).arg(title) : title);
        action->setProperty("openRecipe", true);
        action->setCheckable(true);
        action->setChecked(window == area_->activeSubWindow());
        connect(action, &QAction::triggered, window, [this, window] { area_->setActiveSubWindow(window); });
    }
}

void MainWindow::closeEvent(QCloseEvent* event) {
    event->ignore();
    if (!exitGranted_) {
        if (!FlushBefore(CommandId::FileExit)) return;
        RunShowingErrors(platform_.messages, [this] { exitGranted_ = shell_.RequestExit(); });
        if (!exitGranted_) return;
    }
    if (!isMinimized()) KeepGeometry(*this, shell_.CurrentSettings(), shell_.Store());
    shell_.Unload(!isMinimized());
    event->accept();
}

void MainWindow::changeEvent(QEvent* event) {
    QMainWindow::changeEvent(event);
    if (event->type() == QEvent::ActivationChange && isActiveWindow() && shell_.DB())
        shell_.States().ReapplyPaste();
}

}  // namespace tw
