// Sends random keys, clicks and commands to the real windows. Nothing may crash or hang, and the windows must
// show what the recipes contain. TUNWRIGHT_MONKEY_EVENTS and TUNWRIGHT_MONKEY_SEED set the number of events
// and the seed of the random generator.
#include <random>

#include "GuiTest.h"
#include "document/BriefCell.h"
#include "platform/qt/QtMessages.h"
#include "shell/ui/DocumentArea.h"

namespace tw::test {
namespace {

constexpr int kUsualEvents = 1500;
constexpr unsigned kUsualSeed = 20240309;
constexpr int kEventsPerCheck = 50;
constexpr std::size_t kMostDocuments = 4;

using Random = std::mt19937;

int Below(Random& random, int end) {
    return static_cast<int>(random() % static_cast<unsigned>(end));
}

template <class List>
const auto& Any(Random& random, const List& list) {
    return list[static_cast<std::size_t>(Below(random, static_cast<int>(std::size(list))))];
}

// Shows the program's real message boxes, with their event loops, and closes them by any of their buttons.
class HastyMessages final : public MessagePort {
  public:
    explicit HastyMessages(Random& random) : random_(random) {}
    void ShowMessage(std::string_view title, std::string_view text) override {
        PressSoon();
        boxes_.ShowMessage(title, text);
    }
    Answer Ask(std::string_view title, std::string_view text, Question kind) override {
        PressSoon();
        return boxes_.Ask(title, text, kind);
    }
    void Beep() override {}

  private:
    void PressSoon() {
        QTimer::singleShot(0, [this] {
            auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            ASSERT_NE(box, nullptr);
            Any(random_, box->buttons())->click();
        });
    }
    Random& random_;
    QtMessages boxes_;
};

class Monkey : public testing::Test {
  protected:
    void SetUp() override {
        window_.resize(1000, 700);
        window_.show();
        QApplication::setActiveWindow(&window_);
        ASSERT_TRUE(window_.StartUp(":memory:"));
        for (const char* sql :
             {"INSERT INTO STYLES (NAME, OG_LO, OG_HI, IBU_LO) VALUES ('Stout', 1.02, 1.03, 25)",
              "INSERT INTO STYLES (NAME, CO2_HI) VALUES ('Pale Ale', 2.5)",
              "INSERT INTO GRAINS (NAME, PPG_LO, PPG_HI, COLOR_LO, COLOR_HI, GRAIN) VALUES "
              "('Pale Malt', 36, 36, 2, 2, TRUE)",
              "INSERT INTO HOPS (NAME, AA_LO, AA_HI) VALUES ('Cascade', 5, 6)"})
            shell_.DB()->Execute(sql);
    }

    void Act() {
        if (shell_.Documents().All().empty()) window_.RunCommand(CommandId::FileNew);
        if (shell_.Documents().All().size() > kMostDocuments) window_.RunCommand(CommandId::FileClose);
        ComeBack();
        const int kind = Below(random_, 100);
        if (kind < 45)
            Word();
        else if (kind < 65)
            Press(Any(random_, kKeys), Below(random_, 8) == 0 ? Qt::ShiftModifier : Qt::NoModifier);
        else if (kind < 75)
            Press(Any(random_, kControlKeys), Qt::ControlModifier);
        else if (kind < 94)
            Click();
        else if (kind < 98)
            Command();
        else
            Resize();
        QApplication::processEvents();
    }

    void Check();

    int Number(const char* name, int usual) {
        bool ok = false;
        const int number = qEnvironmentVariableIntValue(name, &ok);
        return ok ? number : usual;
    }

  private:
    static constexpr Qt::Key kKeys[] = {
        Qt::Key_Escape, Qt::Key_Escape, Qt::Key_Tab,       Qt::Key_Tab,    Qt::Key_Backtab,
        Qt::Key_Return, Qt::Key_Return, Qt::Key_Escape,    Qt::Key_F2,     Qt::Key_Up,
        Qt::Key_Down,   Qt::Key_Left,   Qt::Key_Right,     Qt::Key_Home,   Qt::Key_End,
        Qt::Key_Delete, Qt::Key_Space,  Qt::Key_Backspace, Qt::Key_PageUp, Qt::Key_PageDown,
        Qt::Key_Menu,   Qt::Key_Insert, Qt::Key_Minus,     Qt::Key_F4,     Qt::Key_Alt};
    static constexpr Qt::Key kControlKeys[] = {
        Qt::Key_PageDown, Qt::Key_PageDown, Qt::Key_PageUp, Qt::Key_Plus, Qt::Key_Plus, Qt::Key_Minus,
        Qt::Key_S,        Qt::Key_N,        Qt::Key_Z,      Qt::Key_Y,    Qt::Key_A,    Qt::Key_C,
        Qt::Key_X,        Qt::Key_V,        Qt::Key_Insert, Qt::Key_I,    Qt::Key_End,  Qt::Key_F4};
    static constexpr const char* kWords[] = {
        "5 gal", "8 lb", "1 oz", "60", "1.010",  "68 F", "much",  "pale",          "-1",           "0", "12%",
        "ale",   "x",    "'\"&", "2",  "30 IBU", "1e9",  "stout", "9999999999999", "pitched yeast"};

    // Acts as a desktop: after a message box or popup has closed, the window behind it becomes active
    // again. Popups close soon.
    void ComeBack() {
        QWidget* popup = QApplication::activePopupWidget();
        if (popup && Below(random_, 4) == 0) popup->close();
        if (!QApplication::activePopupWidget() && !window_.isActiveWindow())
            QApplication::setActiveWindow(&window_);
    }
    static QWidget* Target() {
        if (QWidget* popup = QApplication::activePopupWidget()) return popup;
        QWidget* focus = QApplication::focusWidget();
        return focus ? focus : QApplication::activeWindow();
    }
    static void Press(Qt::Key key, Qt::KeyboardModifiers modifiers) {
        if (QWidget* target = Target()) QTest::keyClick(target, key, modifiers);
    }
    void Word() {
        for (const char* c = Any(random_, kWords); *c; ++c)
            if (QWidget* target = Target()) QTest::keyClick(target, *c);
    }
    void Click() {
        QWidget* popup = QApplication::activePopupWidget();
        QWidget& top = popup ? *popup : window_;
        const QPoint place(Below(random_, top.width()), Below(random_, top.height()));
        QWidget* hit = top.childAt(place);
        QWidget& target = hit ? *hit : top;
        const auto button = Below(random_, 8) == 0 ? Qt::RightButton : Qt::LeftButton;
        const QPoint inside = target.mapFrom(&top, place);
        QTest::mouseClick(&target, button, {}, inside);
        const QPointer<QWidget> there(&target);
        if (Below(random_, 6) == 0 && hit && there) QTest::mouseDClick(there, Qt::LeftButton, {}, inside);
    }
    void Command() {
        const MenuItem& item = Any(random_, shell_.Bar().Items());
        const bool tooMany = item.name == "mnuFileNew" && shell_.Documents().All().size() >= kMostDocuments;
        if (item.name != "mnuFileExit" && !tooMany) window_.RunCommand(item.id);
    }
    void Resize() {
        window_.showNormal();
        window_.resize(100 + Below(random_, 1500), 100 + Below(random_, 1000));
    }
    void CheckDocument(const RecipeWindow& view, RecipeDocument& document);
    void CheckGrid(const GridView& view, const Grid& grid);

    RecordingPlatform outside_;

  protected:
    Random random_;

  private:
    HastyMessages messages_{random_};
    Platform platform_{messages_, outside_.dialogs, outside_.settings, outside_.clock, outside_.clipboard};

  protected:
    Shell shell_{{platform_}};
    MainWindow window_{shell_, platform_};
};

void Monkey::CheckGrid(const GridView& view, const Grid& grid) {
    ASSERT_EQ(view.Model().rowCount(), grid.DataRows()) << grid.Name();
    if (grid.IsDataRow(grid.CurrentRow()) && view.currentIndex().isValid()) {
        // Qt's current cell is the moving end of the block, the record's current cell is its first one.
        const GridRange block = grid.Selection();
        const int row = view.currentIndex().row() + Grid::FixedRows(), col = view.currentIndex().column();
        EXPECT_TRUE(row >= block.row1 && row <= block.row2 && col >= block.col1 && col <= block.col2)
            << grid.Name() << " " << row << " " << col;
        // A single cell has a frame and need not be selected as well.
        const auto cells = block.Cols() * (std::min(block.row2, grid.EndOfData() - 1) - block.row1 + 1);
        if (cells > 1) {
            EXPECT_EQ(view.selectionModel()->selectedIndexes().size(), cells) << grid.Name();
        }
    }
    for (int row = 0; row < grid.DataRows(); ++row)
        for (int col = 0; col < grid.Cols(); ++col)
            EXPECT_EQ(FromQt(view.Model().index(row, col).data().toString()),
                      BriefCell(grid, row + Grid::FixedRows(), col));
}

void Monkey::CheckDocument(const RecipeWindow& view, RecipeDocument& document) {
    const RecipeRecord& record = document.Record();
    EXPECT_EQ(FromQt(view.parentWidget()->windowTitle()), document.Caption() + "[*]");
    EXPECT_EQ(view.parentWidget()->isWindowModified(), document.Changed());
    for (const TextBox* box : record.TextBoxes()) {
        if (const auto* line = view.findChild<QLineEdit*>(ToQt(box->Name()))) {
            EXPECT_EQ(FromQt(line->text()), box->Text()) << box->Name();
        }
        if (const auto* notes = view.findChild<QPlainTextEdit*>(ToQt(box->Name()))) {
            QString text = ToQt(box->Text());
            EXPECT_EQ(notes->toPlainText(), text.replace(QStringLiteral("\r\n"), QStringLiteral("\n")));
        }
    }
    for (const Label* label : record.Labels())
        if (const auto* shown = view.findChild<QLabel*>(ToQt(label->Name()))) {
            EXPECT_EQ(FromQt(shown->text()), label->Text()) << label->Name();
        }
    for (const OptionGroup* group : {&record.grpIBUMethod, &record.grpPkgMethod})
        for (const std::string& option : group->Options())
            if (const auto* shown = view.findChild<QRadioButton*>(ToQt(option))) {
                EXPECT_EQ(shown->isChecked(), group->Value() == option) << option;
            }
    if (const auto* style = view.findChild<QComboBox*>(QStringLiteral("cmbStyle")); !style->hasFocus()) {
        EXPECT_EQ(FromQt(style->currentText()), record.cmbStyle.Text());
    }
    for (const Grid* grid : record.Grids())
        if (const auto* shown = view.findChild<GridView*>(ToQt(grid->Name()))) CheckGrid(*shown, *grid);
}

void Monkey::Check() {
    const auto* area = window_.findChild<DocumentArea*>();
    std::size_t open = 0;
    for (const QMdiSubWindow* frame : area->subWindowList()) {
        const auto* view = qobject_cast<RecipeWindow*>(frame->widget());
        ASSERT_NE(view, nullptr);
        ASSERT_NE(view->Document(), nullptr);
        ++open;
        CheckDocument(*view, *view->Document());
    }
    EXPECT_EQ(open, shell_.Documents().All().size());
    for (const MenuItem& item : shell_.Bar().Items()) {
        const auto* action = window_.findChild<QAction*>(ToQt(item.name));
        if (!item.IsSeparator()) {
            EXPECT_EQ(action->isEnabled(), item.enabled && item.visible) << item.name;
        }
    }
    for (const ToolButton& button : shell_.Bar().Buttons()) {
        const auto* action =
            window_.findChild<QAction*>(QStringLiteral("tbToolBar(%1)").arg(ToQt(button.key)));
        EXPECT_EQ(action->isEnabled(), button.enabled) << button.key;
    }
    // Qt regards no recipe's window as active while the main window is not active.
    if (shell_.Documents().Active() && window_.isActiveWindow()) {
        ASSERT_NE(area->activeSubWindow(), nullptr);
        EXPECT_EQ(window_.ActiveWindow(), area->activeSubWindow()->widget());
    }
}

TEST_F(Monkey, LeavesTheWindowsAndTheRecipesInStep) {
    const int events = Number("TUNWRIGHT_MONKEY_EVENTS", kUsualEvents);
    const int seed = Number("TUNWRIGHT_MONKEY_SEED", static_cast<int>(kUsualSeed));
    random_.seed(static_cast<unsigned>(seed));
    for (int i = 1; i <= events && !HasFailure(); ++i) {
        SCOPED_TRACE("event " + std::to_string(i) + " of seed " + std::to_string(seed));
        Act();
        if (i % kEventsPerCheck == 0) Check();
    }
    Check();
}

}  // namespace
}  // namespace tw::test
