// Makes random edits by keyboard and mouse in the real windows, and random undo and redo steps between them.
// At each point of its history the recipe must be what it was there, and the windows must show it.
#include <optional>
#include <random>

#include "GuiTest.h"
#include "document/RecipeSnapshot.h"

namespace tw::test {
namespace {

constexpr int kSteps = 250;

// A grid and its tab. In sortable grids, rows can also be inserted and deleted.
struct GridPlace {
    Tab tab;
    const char* name;
};
constexpr GridPlace kGrids[] = {
    {Tab::Grains, "gridGrain"},         {Tab::Extracts, "gridExtract"},  {Tab::Hops, "gridHops"},
    {Tab::Water, "gridWater"},          {Tab::Water, "gridTreatment"},   {Tab::Carbonation, "gridPriming"},
    {Tab::Carbonation, "gridPressure"}, {Tab::Adjuncts, "gridAdjuncts"}, {Tab::Log, "gridLog"},
};
// Entries that every text box accepts. Cancelling a refused entry is a step of the history, and undoing that
// step would bring the entry back for good.
constexpr const char* kFieldEntries[] = {"1.01", "1.02", "1.2"};
constexpr const char* kEntries[] = {"8 lb", "2", "60", "Pale Malt", "Foo", "1 oz", "12%", "30 IBU", "x"};

// Returns the rows of a grid as text: each cell with its stored number.
std::string Lines(const RecipeSnapshot::Rows& grid) {
    std::string lines;
    for (const auto& row : grid.rows) {
        for (const Cell& cell : row)
            lines += cell.text + "|" + cell.value.Text() + (cell.check == CheckState::Checked ? "x\t" : "\t");
        lines += "\n";
    }
    return lines;
}

class UndoWindows : public GuiTest, public testing::WithParamInterface<unsigned> {
  protected:
    void SetUp() override {
        GuiTest::SetUp();
        random_.seed(GetParam());
        NewRecipe();
        Remember();
    }

    int Below(int end) { return static_cast<int>(random_() % static_cast<unsigned>(end)); }
    template <class List>
    const auto& Any(const List& list) {
        return list[static_cast<std::size_t>(Below(static_cast<int>(std::size(list))))];
    }
    RecipeDocument& Document() { return *shell.Documents().Active(); }
    std::size_t Position() { return Document().History().StackPosition(); }

    // Returns the state of a recipe at a point of its history: all that is shown, and the stored numbers. The
    // rows "Treatment Needed" and "Treatment Totals" are blank until they are first calculated.
    RecipeSnapshot State() {
        RecipeSnapshot state = Document().Storage().TakeSnapshot();
        for (RecipeSnapshot::Rows& rows : state.grids) {
            if (rows.grid != "gridWater") continue;
            for (int row : {WaterRow::Needed, WaterRow::Totals})
                for (Cell& cell : rows.rows[static_cast<std::size_t>(row - Grid::FixedRows())])
                    if (cell.text == "0") cell = {};
            rows.rows.resize(WaterRow::Totals - Grid::FixedRows());
        }
        for (RecipeSnapshot::Field& field : state.fields)
            if (field.text.empty()) field.value = 0;
        return state;
    }
    void Remember() {
        points_.resize(Position());
        points_.emplace_back(State());
    }

    GridView& GoTo(const GridPlace& place) {
        window.ActiveWindow()->ShowTab(place.tab);
        auto& view = Find<GridView>(place.name);
        if (view.isVisible()) view.setFocus();
        return view;
    }
    void EditCell() {
        GridView& view = GoTo(Any(kGrids));
        if (!view.isVisible() || view.Model().rowCount() == 0) return;
        view.setCurrentIndex(
            view.Model().index(Below(view.Model().rowCount()), Below(view.Model().columnCount())));
        if (Below(3) == 0) {
            Key(Qt::Key_Space);
        } else {
            Type(Any(kEntries));
            Key(Qt::Key_Return);
        }
        // A refused entry keeps its editor open.
        for (int i = 0; i < 3 && Focus() != FromQt(view.objectName()); ++i) Key(Qt::Key_Escape);
    }
    void EditRows() {
        GridView& view = GoTo(Any(kGrids));
        if (!view.isVisible()) return;
        const int kind = Below(4);
        if (kind < 2) {
            Key(Qt::Key_Plus, Qt::ControlModifier);
        } else if (kind == 2) {
            Key(Qt::Key_Minus, Qt::ControlModifier);
        } else if (view.horizontalHeader()->sectionsClickable()) {
            const int col = Below(view.Model().columnCount());
            QTest::mouseClick(view.horizontalHeader()->viewport(), Qt::LeftButton, {},
                              QPoint(view.horizontalHeader()->sectionViewportPosition(col) + 10, 5));
        }
    }
    void EditBlock() {
        GridView& view = GoTo(Any(kGrids));
        if (!view.isVisible() || view.Model().rowCount() == 0) return;
        view.setCurrentIndex(view.Model().index(0, 0));
        for (int i = Below(5); i > 0; --i) Key(Below(2) == 0 ? Qt::Key_Down : Qt::Key_Right);
        for (int i = Below(4); i > 0; --i)
            Key(Below(2) == 0 ? Qt::Key_Down : Qt::Key_Right, Qt::ShiftModifier);
        constexpr Qt::Key kKeys[] = {Qt::Key_C, Qt::Key_X, Qt::Key_V, Qt::Key_V};
        Below(5) == 0 ? Key(Qt::Key_Delete) : Key(Any(kKeys), Qt::ControlModifier);
    }
    void EditField() {
        window.ActiveWindow()->ShowTab(Tab::General);
        constexpr const char* kFields[] = {"txtName", "txtNumBatches", "txtBoilVol", "txtTotalVol", "txtFG"};
        auto& field = Find<QLineEdit>(Any(kFields));
        field.setFocus();
        field.selectAll();
        Type(Any(kFieldEntries));
        if (Below(3) == 0) Key(Qt::Key_X, Qt::ControlModifier);
        Key(Qt::Key_Return);
        Key(Qt::Key_Escape);
    }
    void Choose() {
        if (Below(2) == 0) {
            window.ActiveWindow()->ShowTab(Tab::General);
            Find<QComboBox>("cmbStyle").setFocus();
            Type(Below(2) == 0 ? "Stout\r" : "(None)\r");
            return;
        }
        window.ActiveWindow()->ShowTab(Tab::Hops);
        constexpr const char* kOptions[] = {"optTinseth", "optRager", "optGaretz"};
        Find<QRadioButton>(Any(kOptions)).click();
    }

    void Edit() {
        const std::size_t from = Position(), top = Document().History().StackTop();
        const int kind = Below(10);
        if (kind < 4)
            EditCell();
        else if (kind < 6)
            EditRows();
        else if (kind < 8)
            EditBlock();
        else if (kind < 9)
            EditField();
        else
            Choose();
        ASSERT_TRUE(window.ActiveWindow()->Flush());
        // Only an edit that recorded something has discarded the steps that could be redone.
        if (Position() == from && Document().History().StackTop() == top && Document().History().CanRedo())
            return;
        points_.resize(std::min(points_.size(), from + 1));
        // Typing may have been merged with the previous edit before a cut made the next one.
        if (kind == 8) points_[from].reset();
        Remember();
    }

    void Step(bool back) {
        const std::size_t before = Position();
        ASSERT_TRUE(window.RunCommand(back ? CommandId::EditUndo : CommandId::EditRedo));
        ASSERT_EQ(Position(), back ? before - 1 : before + 1);
        Compare();
    }
    void Compare();

    // The state at each position of the history; none in the middle of an edit that recorded several steps.
    std::vector<std::optional<RecipeSnapshot>> points_;

  private:
    std::mt19937 random_;
};

void UndoWindows::Compare() {
    if (!points_[Position()]) return;
    const RecipeSnapshot now = State();
    const RecipeSnapshot& then = *points_[Position()];
    EXPECT_EQ(now.options, then.options);
    EXPECT_EQ(now.styleId, then.styleId);
    for (std::size_t i = 0; i < then.fields.size(); ++i) {
        EXPECT_EQ(now.fields[i].text, then.fields[i].text) << then.fields[i].name;
        EXPECT_DOUBLE_EQ(now.fields[i].value, then.fields[i].value) << then.fields[i].name;
    }
    for (std::size_t i = 0; i < then.grids.size(); ++i)
        EXPECT_EQ(Lines(now.grids[i]), Lines(then.grids[i])) << then.grids[i].grid;
    for (const Grid* grid : Document().Record().Grids()) {
        const auto* view = window.ActiveWindow()->findChild<GridView*>(ToQt(grid->Name()));
        if (!view) continue;
        ASSERT_EQ(view->Model().rowCount(), grid->DataRows()) << grid->Name();
        for (int row = 0; row < grid->DataRows(); ++row)
            for (int col = 0; col < grid->Cols(); ++col)
                EXPECT_EQ(FromQt(view->Model().index(row, col).data().toString()),
                          grid->Shown(row + Grid::FixedRows(), col));
    }
}

TEST_P(UndoWindows, EveryPointOfTheHistoryComesBack) {
    for (int step = 1; step <= kSteps && !HasFailure(); ++step) {
        SCOPED_TRACE("step " + std::to_string(step));
        Edit();
        if (step % 5 != 0) continue;
        for (int i = Below(8); i > 0 && Document().History().CanUndo() && !HasFailure(); --i) Step(true);
        for (int i = Below(4); i > 0 && Document().History().CanRedo() && !HasFailure(); --i) Step(false);
    }
    while (Document().History().CanUndo() && !HasFailure()) Step(true);
    while (Document().History().CanRedo() && !HasFailure()) Step(false);
}

INSTANTIATE_TEST_SUITE_P(Seeds, UndoWindows, testing::Values(1U, 2U, 3U));

}  // namespace
}  // namespace tw::test
