#include "catalogue/ui/EditorDialog.h"

#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "catalogue/ui/ObjectNavigatorView.h"
#include "document/ui/ColorSwatch.h"
#include "document/ui/FancyLabel.h"
#include "document/ui/PageBuilder.h"
#include "platform/ScopeGuard.h"
#include "platform/qt/Appearance.h"
#include "platform/qt/DecimalComma.h"
#include "platform/qt/FocusMoves.h"
#include "platform/qt/QtText.h"
#include "platform/qt/ScrollingContents.h"
#include "tree/ListFormats.h"
#include "tree/ui/FolderChooserView.h"
#include "tree/ui/TreePane.h"
#include "values/NumberText.h"

namespace tw {
namespace {

constexpr int kNameDigits = 34;
constexpr int kListDigits = 20;
constexpr int kCellDigits = 9;
constexpr int kDescriptionLines = 6;
constexpr int kFolderUnits = 28;

// Describes what a cell accepts, for its tool tip.
const char* HintOf(CellCheck check) {
    switch (check) {
        case CellCheck::Gravity:
            return QT_TRANSLATE_NOOP("EditorDialog", "A gravity such as 1.050 or 12 P");
        case CellCheck::Share:
        case CellCheck::Percent:
            return QT_TRANSLATE_NOOP("EditorDialog", "A percentage such as 5.5");
        case CellCheck::Temperature:
            return QT_TRANSLATE_NOOP("EditorDialog",
                                     "A temperature such as 68 or 20 C; it is kept in degrees Fahrenheit");
        case CellCheck::Bitterness:
            return QT_TRANSLATE_NOOP("EditorDialog", "A bitterness in IBU, such as 30");
        case CellCheck::Carbonation:
            return QT_TRANSLATE_NOOP("EditorDialog", "Volumes of CO2, such as 2.5");
        case CellCheck::Number:
            break;
    }
    return QT_TRANSLATE_NOOP("EditorDialog", "A plain number");
}

// Converts line ends: stored text may have "\r\n", but the widget uses "\n" only.
QString Lines(std::string_view text) {
    return ToQt(text).replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
}

}  // namespace

EditorDialog::EditorDialog(CatalogueEditor& model, QWidget* parent) : QDialog(parent), model_(model) {
    setObjectName(ToQt(model.FormName()));
    setWindowTitle(ToQt(model.Form().title));
    // The access keys of the buttons and of the folder chooser.
    taken_ = model.Folders() != nullptr ? QStringLiteral("ASNR") : QStringLiteral("A");
    auto* contents = new QWidget(this);
    contents->setAccessibleName(windowTitle());
    auto* column = new QVBoxLayout(contents);
    SetSpacing(*column, *this, false);
    AddHead(*column);
    auto* middle = new QHBoxLayout;
    middle->setSpacing(Unit(*this) * kGroupUnits);
    auto* ranges = new QVBoxLayout;
    ranges->setSpacing(Unit(*this) * kGapUnits);
    AddRanges(*ranges);
    middle->addLayout(ranges, model.Folders() != nullptr ? 0 : 1);
    if (model.Folders() != nullptr) AddFolders(*middle);
    column->addSpacing(Unit(*this));
    column->addLayout(middle);
    AddDescription(*column);
    auto* frame = new QVBoxLayout(this);
    SetSpacing(*frame, *this, true);
    frame->addWidget(new ScrollingContents(contents, this), 1);
    AddButtons(*frame);
    ShowModel();
    LookReadOnly();
    auto* name = findChild<QLineEdit*>(QStringLiteral("Text1"));
    name->setFocus();
    name->selectAll();
}

QString EditorDialog::Caption(std::string_view text) {
    QString caption = ToQt(text) + QLatin1Char(':');
    // Tries the first letters of words, then any letter.
    for (const bool anywhere : {false, true})
        for (qsizetype i = 0; i < caption.size(); ++i) {
            const QChar letter = caption[i].toUpper();
            const bool begins = i == 0 || caption[i - 1] == QLatin1Char(' ');
            if (!letter.isLetter() || taken_.contains(letter) || (!anywhere && !begins)) continue;
            taken_.append(letter);
            return caption.insert(i, QLatin1Char('&'));
        }
    return caption;
}

void EditorDialog::AddRow(QGridLayout& rows, std::string_view caption, QWidget* control) {
    control->setAccessibleName(ToQt(caption));
    if (auto* list = qobject_cast<QComboBox*>(control); list != nullptr && list->isEditable())
        list->lineEdit()->setAccessibleName(ToQt(caption));
    auto* label = new QLabel(Caption(caption), this);
    label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    label->setBuddy(control);
    const int row = rows.rowCount();
    rows.addWidget(label, row, 0);
    rows.addWidget(control, row, 1);
}

QLineEdit* EditorDialog::Box(const char* name, int digits) {
    auto* box = new QLineEdit(this);
    box->setObjectName(QLatin1String(name));
    box->setMinimumWidth(DigitsWidth(*box, digits));
    box->setReadOnly(model_.ReadOnly());
    connect(box, &QLineEdit::textEdited, this, [this, name](const QString& text) { Enter(name, text); });
    return box;
}

QComboBox* EditorDialog::ListBox(const char* name) {
    auto* box = new QComboBox(this);
    box->setObjectName(QLatin1String(name));
    const EditorList& list = model_.List(name);
    box->setMinimumWidth(DigitsWidth(*box, kListDigits));
    box->setMaxVisibleItems(20);
    if (list.freeText) {
        box->setEditable(true);
        box->setInsertPolicy(QComboBox::NoInsert);
        // No completion: what is typed may be a new entry that begins like an existing one.
        box->setCompleter(nullptr);
        connect(box, &QComboBox::editTextChanged, this,
                [this, name](const QString& text) { Enter(name, text); });
    } else {
        connect(box, &QComboBox::activated, this, [this, box, name] { Enter(name, box->currentText()); });
    }
    return box;
}

void EditorDialog::AddHead(QBoxLayout& column) {
    const EditorForm& form = model_.Form();
    auto* rows = new QGridLayout;
    rows->setSpacing(Unit(*this) * kGapUnits);
    rows->setHorizontalSpacing(Unit(*this) * 2 * kGapUnits);
    rows->setColumnStretch(1, 1);
    AddRow(*rows, form.name, Box("Text1", kNameDigits));
    if (!form.text2.empty()) AddRow(*rows, form.text2, Box("Text2", kNameDigits));
    // A read-only list is shown as a plain text box.
    const auto list = [this](const char* name) {
        return model_.ReadOnly() ? static_cast<QWidget*>(Box(name, kListDigits)) : ListBox(name);
    };
    if (!form.combo1.empty()) AddRow(*rows, form.combo1, list("Combo1"));
    if (!form.combo2.empty()) AddRow(*rows, form.combo2, list("Combo2"));
    column.addLayout(rows);
}

QLineEdit* EditorDialog::CellBox(int row, int col) {
    const RangeRow& range = model_.Form().rows[static_cast<std::size_t>(row)];
    auto* cell = new QLineEdit(this);
    cell->setObjectName(QStringLiteral("gridInfo(%1,%2)").arg(row).arg(col));
    QString name = ToQt(range.caption);
    if (model_.Cells().Cols() > 1) name += col == 0 ? tr(", low") : tr(", high");
    cell->setAccessibleName(name);
    cell->setToolTip(tr(HintOf(range.check)));
    cell->setAlignment(Qt::AlignRight);
    cell->setFixedWidth(DigitsWidth(*cell, kCellDigits) + 2 * Unit(*cell));
    cell->setReadOnly(model_.ReadOnly());
    cell->installEventFilter(this);
    connect(cell, &QLineEdit::textEdited, this, [this, cell, row, col] {
        model_.TypeCell(row, col, FromQt(TypedQuantity(*cell)));
        ShowState();
    });
    cells_.push_back(cell);
    return cell;
}

QLineEdit* EditorDialog::CellAt(int row, int col) const {
    const int index = row * model_.Cells().Cols() + col;
    return cells_[static_cast<std::size_t>(index)];
}

QString EditorDialog::ShownIn(int row, int col) const {
    const std::string& text = model_.Cells().Text(row, col);
    const std::optional<double> value = model_.Cells().Value(row, col);
    if (model_.Form().rows[static_cast<std::size_t>(row)].check != CellCheck::Gravity || !value ||
        text != NumberText(*value))
        return ToQt(text);
    std::string shown = FormatNumber(*value, kGravityPattern);
    return ToQt(ReadNumber(shown) == *value ? shown : text);
}

void EditorDialog::AddRanges(QBoxLayout& column) {
    const EditorForm& form = model_.Form();
    column.addWidget(new FancyLabel(ToQt(form.ranges), this));
    auto* grid = new QGridLayout;
    grid->setSpacing(Unit(*this) * kGapUnits);
    for (int col = 0; model_.Cells().Cols() > 1 && col < model_.Cells().Cols(); ++col) {
        auto* heading = new QLabel(col == 0 ? tr("Low") : tr("High"), this);
        heading->setFont(BoldFont(font()));
        heading->setAlignment(Qt::AlignRight);
        grid->addWidget(heading, 0, col + 1);
    }
    for (int row = 0; row < model_.Cells().Rows(); ++row) {
        const RangeRow& range = form.rows[static_cast<std::size_t>(row)];
        auto* label = new QLabel(Caption(range.caption), this);
        label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        grid->addWidget(label, row + 1, 0);
        for (int col = 0; col < model_.Cells().Cols(); ++col)
            grid->addWidget(CellBox(row, col), row + 1, col + 1);
        label->setBuddy(CellAt(row, 0));
        if (!range.unit.empty()) {
            auto* unit = new QLabel(ToQt(range.unit), this);
            unit->setForegroundRole(QPalette::PlaceholderText);
            grid->addWidget(unit, row + 1, model_.Cells().Cols() + 1);
        }
        if (range.color == RangeRow::Color::None) continue;
        swatch_ = new ColorSwatch(this);
        swatch_->setAccessibleName(tr("The middle of the color range"));
        swatch_->setToolTip(swatch_->accessibleName());
        QSizePolicy policy = swatch_->sizePolicy();
        policy.setRetainSizeWhenHidden(true);
        swatch_->setSizePolicy(policy);
        grid->addWidget(swatch_, row + 1, model_.Cells().Cols() + 1);
    }
    grid->setColumnStretch(model_.Cells().Cols() + 2, 1);
    column.addLayout(grid);
    hint_ = new QLabel(this);
    hint_->setObjectName(QStringLiteral("lblHint"));
    hint_->setWordWrap(true);
    // Space is reserved, so that nothing moves when the hint appears.
    hint_->setMinimumHeight(hint_->fontMetrics().lineSpacing());
    column.addWidget(hint_);
    column.addStretch(1);
}

void EditorDialog::AddFolders(QBoxLayout& row) {
    folders_ = new FolderChooserView(*model_.Folders(), this);
    folders_->setObjectName(QStringLiteral("FolderChooser1"));
    folders_->setMinimumWidth(Unit(*this) * kFolderUnits);
    auto* tree = folders_->findChild<TreePane*>();
    tree->setMinimumHeight(Unit(*this) * 12);
    connect(tree, &TreePane::ChosenChanged, this, [this, shown = model_.Folders()->FolderID()]() mutable {
        // A folder that was only renamed or moved is still the same one.
        if (shown == model_.Folders()->FolderID()) return;
        shown = model_.Folders()->FolderID();
        model_.FolderChanged();
        ShowState();
    });
    row.addWidget(folders_, 1);
}

void EditorDialog::AddDescription(QBoxLayout& column) {
    const QString caption = Caption(model_.Form().description);
    auto* label = new QLabel(caption, this);
    description_ = new QPlainTextEdit(this);
    description_->setObjectName(QStringLiteral("txtDesc"));
    description_->setAccessibleName(PlainCaption(caption));
    description_->setTabChangesFocus(true);
    description_->setReadOnly(model_.ReadOnly());
    description_->setMinimumHeight(description_->fontMetrics().lineSpacing() * kDescriptionLines);
    label->setBuddy(description_);
    connect(description_, &QPlainTextEdit::textChanged, this, [this] {
        Enter("txtDesc", description_->toPlainText().replace(QLatin1Char('\n'), QStringLiteral("\r\n")));
    });
    column.addWidget(label);
    column.addWidget(description_, 1);
}

void EditorDialog::AddButtons(QBoxLayout& column) {
    auto* row = new QHBoxLayout;
    row->setSpacing(Unit(*this) * kGapUnits);
    steps_ = new ObjectNavigatorView(model_.Navigator(), this);
    steps_->setVisible(model_.Navigator() != nullptr);
    connect(steps_, &ObjectNavigatorView::StepPressed, this, &EditorDialog::Press);
    row->addWidget(steps_);
    row->addStretch();
    const auto add = [&](const char* name, const QString& caption) {
        auto* button = new QPushButton(caption, this);
        button->setObjectName(QLatin1String(name));
        button->setAutoDefault(false);
        // A click leaves the focus in the cell, so that Cancel does not check the cell's text.
        button->setFocusPolicy(Qt::TabFocus);
        connect(button, &QPushButton::clicked, this, [this, name] { Press(name); });
        row->addWidget(button);
        return button;
    };
    QPushButton* ok = add("cmdOK", tr("OK"));
    QPushButton* cancel = add("cmdCancel", model_.ReadOnly() ? tr("Close") : tr("Cancel"));
    apply_ = add("cmdApply", tr("&Apply"));
    apply_->setToolTip(tr("Stores the entry and stays"));
    ok->setVisible(!model_.ReadOnly());
    apply_->setVisible(!model_.ReadOnly());
    (model_.ReadOnly() ? cancel : ok)->setDefault(true);
    column.addLayout(row);
}

void EditorDialog::LookReadOnly() {
    if (!model_.ReadOnly()) return;
    const QColor ground = palette().color(QPalette::Window);
    const auto look = [&](QWidget& box) {
        QPalette colors = box.palette();
        colors.setColor(QPalette::Base, ground);
        box.setPalette(colors);
    };
    for (QLineEdit* const box : findChildren<QLineEdit*>()) look(*box);
    look(*description_);
}

void EditorDialog::changeEvent(QEvent* event) {
    QDialog::changeEvent(event);
    if (event->type() == QEvent::PaletteChange && description_ != nullptr) LookReadOnly();
}

void EditorDialog::ShowTexts() {
    const ScopedValue showing(showing_, true);
    setWindowTitle(ToQt(model_.Form().title));
    for (const char* name : {"Text1", "Text2"})
        if (auto* box = findChild<QLineEdit*>(QLatin1String(name))) box->setText(ToQt(model_.Text(name)));
    for (const char* name : {"Combo1", "Combo2"}) {
        if (auto* box = findChild<QComboBox*>(QLatin1String(name))) ShowList(*box, model_.List(name));
        if (auto* box = findChild<QLineEdit*>(QLatin1String(name)))
            box->setText(ToQt(model_.List(name).text));
    }
    for (int row = 0; row < model_.Cells().Rows(); ++row)
        for (int col = 0; col < model_.Cells().Cols(); ++col) CellAt(row, col)->setText(ShownIn(row, col));
    if (description_->toPlainText() != Lines(model_.Text("txtDesc")))
        description_->setPlainText(Lines(model_.Text("txtDesc")));
    if (folders_ != nullptr) folders_->ShowState();
}

void EditorDialog::ShowModel() {
    ShowTexts();
    ShowState();
}

void EditorDialog::ShowList(QComboBox& box, const EditorList& list) {
    box.clear();
    for (const std::string& entry : list.entries) box.addItem(ToQt(entry));
    const QString text = ToQt(list.text);
    if (list.freeText) {
        // The list opens at the entry that equals the text.
        box.setCurrentIndex(box.findText(text));
        box.setEditText(text);
        return;
    }
    // A text that came with the row is shown even if it is not in the list.
    if (!list.text.empty() && box.findText(text) < 0) box.addItem(text);
    box.setCurrentIndex(box.findText(text));
}

void EditorDialog::ShowState() {
    apply_->setEnabled(model_.ApplyEnabled());
    steps_->ShowState();
    hint_->setText(ToQt(model_.Cells().RangeHint()));
    if (swatch_ == nullptr) return;
    const std::optional<double> hcu = model_.Cells().ColorHcu();
    swatch_->setVisible(hcu.has_value());
    if (hcu) swatch_->SetColor(colors_.HCUToColor(*hcu));
}

void EditorDialog::Enter(const char* control, const QString& text) {
    if (showing_) return;
    model_.SetControl(control, FromQt(text));
    ShowState();
}

void EditorDialog::Press(const char* button) {
    {
        const ScopedValue refusing(refusing_, true);
        model_.Press(button);
    }
    if (!model_.IsOpen()) {
        QDialog::done(model_.Cancelled() ? Rejected : Accepted);
        return;
    }
    ShowModel();
    // An editable list contains a QLineEdit without a name, which an empty name would find.
    if (model_.RefusedControl().empty()) return;
    if (auto* box = findChild<QLineEdit*>(ToQt(model_.RefusedControl()))) GoBackTo(*box);
}

void EditorDialog::GoBackTo(QLineEdit& cell) {
    refusing_ = true;
    QMetaObject::invokeMethod(
        this,
        [this, &cell] {
            cell.setFocus();
            cell.selectAll();
            refusing_ = false;
        },
        Qt::QueuedConnection);
}

bool EditorDialog::LeaveCell(int row, int col) {
    // The message of a refusal takes the focus, too; that must not count as leaving the cell.
    const ScopedValue refusing(refusing_, true);
    return model_.LeaveCell(row, col);
}

bool EditorDialog::eventFilter(QObject* object, QEvent* event) {
    if (event->type() != QEvent::FocusOut || refusing_ || !model_.IsOpen() ||
        !IsMove(*static_cast<QFocusEvent*>(event)))
        return QDialog::eventFilter(object, event);
    for (int row = 0; row < model_.Cells().Rows(); ++row)
        for (int col = 0; col < model_.Cells().Cols(); ++col) {
            QLineEdit* const cell = CellAt(row, col);
            if (cell != object) continue;
            const bool accepted = LeaveCell(row, col);
            cell->setText(ShownIn(row, col));
            ShowState();
            if (!accepted) GoBackTo(*cell);
        }
    return QDialog::eventFilter(object, event);
}

void EditorDialog::reject() {
    model_.CloseBox();
    QDialog::reject();
}

}  // namespace tw
