#include "RandomEditor.h"

#include "document/ScalingModel.h"
#include "values/NumberText.h"
#include "values/Text.h"

namespace tw::test {
namespace {

using Texts = std::vector<std::string>;

const Texts kVolumes{"",  "5",  "5 gal", "6.5 gal.", "19 l",  "2 1/2 gal",
                     "0", "-1", "five",  "1/0",      "12 qt", "  "};
const Texts kPercents{"", "40", "40%", "72.5", "100", "0", "101", "lots", "1/0", " "};
const Texts kGravities{"", "1.010", "1.012 SG", "3 P", "1.05", "0", "heavy", "1/0", "1", " "};
const Texts kTemperatures{"", "68", "20 C", "38 F", "0", "212", "213", "warm", "1/0", "  "};
const Texts kMultipliers{"", "1", "1.0", "0.8", "0", "-1", "x", " ", std::string(300, '9')};
const Texts kPounds{"",      "8",   "8 lb", "2 lb 3 oz",          "500 g", "0", "-1",
                    "heavy", "1/0", "  ",   std::string(308, '9')};
const Texts kNumbers{"", "36", "36.5", "0", "2", "75", "-1", "x", " ", std::string(200, '9')};
const Texts kHopAmounts{"",       "1",     "1 oz", "28 g", "4 AAU", "12 AAUs", "20 IBU",
                        "31 BUs", "-1 oz", "much", "1/0",  "0 AAU", "1/2 oz",  "  "};
const Texts kTimes{"", "60", "1:30", "1 HR", "45", "0", "15 min", "-5", "7 days", "1/0", "  "};
const Texts kForms{"", "Pellet", "plug", "LEAF", "Cone", "  "};
const Texts kPressures{"", "11", "11 psi", "0", "48", "50", "400", "-1", "hard", "1/0", "  "};
const Texts kGrams{"", "5", "5 grams", "1 oz", "0", "-1", "1/0", "pinch", "  "};
const Texts kOunces{"", "4", "4 oz", "113 g", "0", "-1", "1/0", "cup", "  "};
const Texts kPpm{"", "0", "7", "100", "98.5", "-1", "x", std::string(308, '9'), "  "};
const Texts kFree{"", "x", "It's \"good\"", "007", "ä ß 麦芽", "a\r\nb", "%_;--", "Stout", "  "};
const Texts kGrainNames{"Pale Malt", "O'Brien's", "Half Known", "Syrup", "Nothing", ""};
const Texts kHopNames{"Saaz", "Zeus", "Wild", "Nothing", ""};
const Texts kSugarNames{"Corn Sugar", "Honey", "Riddle", "Nothing", ""};
const Texts kWaterNames{"Burton", "Soft", "Nothing", ""};
const Texts kSaltNames{"Gypsum", "Chalk", "Nothing", ""};
const Texts kActions{"Pitched Yeast", " pitched yeast ", "Racked", ""};
const Texts kLogNotes{"Ale", "Ale - Wyeast 1056", "Cook's - 1", "Stray", "Nobody", "", "Ale  - dry"};
const Texts kChecks{"Yes", "No", "", "1", "0", "x"};

// The entries for each column of each grid. Read-only columns have entries as well, for pasting over them.
const std::map<std::string, std::vector<const Texts*>, std::less<>> kColumns{
    {"gridGrain", {&kGrainNames, &kPounds, &kNumbers, &kFree, &kNumbers, &kFree}},
    {"gridExtract", {&kGrainNames, &kPounds, &kNumbers, &kFree, &kNumbers, &kFree}},
    {"gridHops", {&kHopNames, &kPercents, &kForms, &kChecks, &kHopAmounts, &kChecks, &kTimes, &kFree}},
    {"gridPriming", {&kSugarNames, &kPercents, &kOunces, &kFree}},
    {"gridPressure", {&kPressures, &kFree}},
    {"gridTreatment", {&kSaltNames, &kGrams, &kFree, &kFree, &kFree, &kFree, &kFree, &kFree}},
    {"gridWater", {&kFree, &kWaterNames, &kPpm, &kPpm, &kPpm, &kPpm, &kPpm, &kPpm}},
    {"gridLog", {&kFree, &kActions, &kLogNotes}},
    {"gridAdjuncts", {&kFree, &kFree, &kFree, &kFree}}};

const std::vector<std::pair<const char*, const Texts*>> kFields{
    {"txtBoilVol", &kVolumes},   {"txtTotalVol", &kVolumes}, {"txtDilutions", &kVolumes},
    {"txtFinalVol", &kVolumes},  {"txtExtract", &kPercents}, {"txtFG", &kGravities},
    {"txtTemp", &kTemperatures}, {"txtName", &kFree},        {"txtHopExtraction", &kMultipliers},
    {"txtNumBatches", &kFree},   {"txtNotes", &kFree},       {"txtOG", &kGravities}};

constexpr int kMostRows = 7;

}  // namespace

void RandomEditor::StartWith(unsigned seed, bool fullRecipe) {
    random_.seed(seed);
    if (fullRecipe) host.defaults = {"70%", "1.0", "Soft", "6.5 gal", "5.25 gal", 1, 0, 2, true};
    New();
    history_.Start(StateOf(*document, host));
}

void RandomEditor::Note(const std::string& what) {
    trace_.push_back(what);
    if (trace_.size() > 40) trace_.pop_front();
}

std::string RandomEditor::Trace() const {
    std::string text;
    for (const std::string& line : trace_) text += line + "\n";
    return text;
}

const std::string& RandomEditor::TextFor(const Grid& grid, int col) {
    return Any(*kColumns.find(grid.Name())->second[static_cast<std::size_t>(col)]);
}

// The expected history.

void RandomEditor::Recorded(PlainHistory::Step step) {
    history_.Add(std::move(step));
    Settle();
}

void RandomEditor::RecordedIfChanged(const DocumentState& before, PlainHistory::Step step) {
    if (before != StateOf(*document, host)) Recorded(std::move(step));
}

// Sets the state at the current point to that of the document.
void RandomEditor::Settle() {
    history_.SetPoint({StateOf(*document, host), PendingBox(*document) != nullptr});
}

void RandomEditor::CheckHistory() {
    const UndoStack& stack = document->History();
    ASSERT_EQ(stack.StackTop(), history_.Top()) << Trace();
    ASSERT_EQ(stack.StackPosition(), history_.Position()) << Trace();
    ASSERT_EQ(stack.CanUndo(), history_.CanUndo());
    ASSERT_EQ(stack.CanRedo(), history_.CanRedo());
    ASSERT_EQ(stack.UndoType(), history_.UndoType()) << Trace();
    ASSERT_EQ(stack.RedoType(), history_.RedoType()) << Trace();
    ASSERT_EQ(host.IsOn("EnableUndo"), history_.CanUndo()) << Trace();
    ASSERT_EQ(host.IsOn("EnableRedo"), history_.CanRedo()) << Trace();
    ASSERT_EQ(host.undoName, history_.UndoType()) << Trace();
    ASSERT_EQ(host.redoName, history_.RedoType()) << Trace();
    const Grid* const grid = document->Focus().GridOfTab(document->Focus().CurrentTab());
    ASSERT_EQ(host.IsOn("EnableInsert"), grid && document->Focus().CanInsertRow(*grid)) << Trace();
    ASSERT_EQ(host.IsOn("EnableDelete"), grid && document->Focus().CanDeleteRow(*grid)) << Trace();
    ASSERT_EQ(host.IsOn("EnableSave"), document->Changed()) << Trace();
}

void RandomEditor::CheckPoint(const std::string& what) {
    const DocumentState now = StateOf(*document, host);
    const PlainHistory::Point& wanted = history_.Now();
    ASSERT_EQ(Differences(wanted.state.entered, now.entered), "") << what << "\n" << Trace();
    if (!wanted.open)
        ASSERT_EQ(Differences(wanted.state.all, now.all), "") << what << "\n" << Trace();
    else if (!PendingBox(*document))
        Settle();
}

void RandomEditor::CheckSelection(const PlainHistory::Step& step) {
    if (step.grid.empty()) return;
    ASSERT_EQ(R().FindGrid(step.grid)->Selection(), step.selection) << step.grid << "\n" << Trace();
}

void RandomEditor::UndoOnce() {
    Note("undo");
    const bool expected = history_.CanUndo();
    ASSERT_EQ(document->Replay().Undo(), expected) << Trace();
    if (!expected) return;
    const PlainHistory::Step& step = history_.Undo();
    ASSERT_EQ(TabNow(), step.tab) << Trace();
    CheckPoint("undo of " + step.name);
    CheckSelection(step);
    CheckHistory();
}

void RandomEditor::RedoOnce() {
    Note("redo");
    const bool expected = history_.CanRedo();
    ASSERT_EQ(document->Replay().Redo(), expected) << Trace();
    if (!expected) return;
    const PlainHistory::Step& step = history_.Redo();
    ASSERT_EQ(TabNow(), step.tab) << Trace();
    CheckPoint("redo of " + step.name);
    CheckSelection(step);
    CheckHistory();
}

void RandomEditor::Walk() {
    const int steps = 1 + Below(12);
    const int back = 30 + Below(60);
    for (int i = 0; i < steps && !HasFatalFailure(); ++i) Chance(back) ? UndoOnce() : RedoOnce();
}

void RandomEditor::UndoAll() {
    while (history_.CanUndo() && !HasFatalFailure()) UndoOnce();
    ASSERT_FALSE(document->Replay().Undo());
}

void RandomEditor::RedoAll() {
    while (history_.CanRedo() && !HasFatalFailure()) RedoOnce();
    ASSERT_FALSE(document->Replay().Redo());
}

void RandomEditor::SaveAndStartAgain() {
    Note("save");
    if (!Leave([&] { document->Focus().FocusElsewhere(); })) return;
    ASSERT_TRUE(document->Storage().Save(SaveAs::No, Asking::Quietly));
    ASSERT_FALSE(document->Replay().Undo());
    ASSERT_FALSE(document->Replay().Redo());
    history_.Start(StateOf(*document, host));
}

// Leaving a box commits its entry. A refused entry is replaced by the committed text,
// which is a step "Abort".
bool RandomEditor::Leave(const std::function<void()>& enter) {
    TextBox* const pending = PendingBox(*document);
    const std::string typed = pending ? pending->Text() : "";
    const std::string committed = pending ? pending->Committed() : "";
    const int tab = TabNow();
    const bool fault = Faults(enter);
    EXPECT_EQ(PendingBox(*document), nullptr) << Trace();
    if (!pending) {
        EXPECT_FALSE(fault) << Trace();
        return !fault;
    }
    if (typed != pending->Text() && IsBlank(typed)) {
        // Text that consists only of blanks counts as empty.
        EXPECT_EQ(pending->Text() + pending->Committed(), "") << Trace();
        EXPECT_FALSE(fault) << Trace();
        if (!history_.Type(pending->Name(), typed, "", tab))
            Settle();
        else if (!history_.Now().open)
            CheckPoint("blanks left");
    } else if (pending->Text() == typed) {
        EXPECT_EQ(pending->Committed(), typed) << Trace();
        EXPECT_FALSE(fault) << Trace();
        Settle();
    } else {
        EXPECT_EQ(pending->Text(), committed) << Trace();
        Note("   back to " + committed);
        Recorded({"Abort", tab});
    }
    return !fault;
}

// Text boxes.

void RandomEditor::Key(TextBox& box, const std::string& text) {
    const std::string old = box.Text();
    document->Fields().SetText(box, text);
    if (box.Computed() || text == old) {
        ASSERT_EQ(box.Text(), old);
        return;
    }
    ASSERT_EQ(box.Text(), text);
    if (!history_.Type(box.Name(), old, text, TabNow())) return Settle();
    // The text is again what it was when the step began; once committed, everything is as it was then. The
    // exception is a gravity that came from a yeast, which was more precise than its text.
    if (history_.Now().open) return;
    document->Fields().CommitField(box, Asking::Quietly);
    if (&box == &R().txtFG) history_.SetPoint({history_.Now().state, true});
    CheckPoint("typed back");
}

void RandomEditor::TypeKeys(TextBox& box, const std::string& text) {
    if (Chance(50)) {
        Key(box, text);
        return;
    }
    // The old text is erased from the end, then the new one is typed letter by letter.
    while (!box.Empty() && !box.Computed() && box.Text().size() < 20) {
        const std::string now = box.Text();
        Key(box, now.substr(0, CodePointOffset(now, CodePointCount(now) - 1)));
        if (HasFatalFailure()) return;
    }
    for (std::size_t count = 1; count <= std::min<std::size_t>(CodePointCount(text), 20); ++count) {
        Key(box, text.substr(0, CodePointOffset(text, count)));
        if (HasFatalFailure()) return;
    }
}

void RandomEditor::Escape(TextBox& box) {
    const bool free = box.Name() == "txtName" || box.Name() == "txtNumBatches" || box.Name() == "txtNotes";
    const std::string old = box.Text(), committed = box.Committed();
    Note("   escape " + box.Name());
    document->Fields().RestoreField(box);
    if (box.Computed() || old == committed) return;
    ASSERT_EQ(box.Text(), committed);
    if (!free)
        Recorded({"Abort", TabNow()});
    else if (!history_.Type(box.Name(), old, committed, TabNow()))
        Settle();
    else
        CheckPoint("escaped to the beginning");
}

void RandomEditor::TypeInBox() {
    const auto& [name, texts] = kFields[static_cast<std::size_t>(Below(static_cast<int>(kFields.size())))];
    TextBox& box = *R().FindTextBox(name);
    const std::string& text = Any(*texts);
    Note(box.Name() + " <- " + text);
    if (!Leave([&] {
            // Focusing the same box does not commit its entry.
            document->Focus().FocusOn(box);
            if (PendingBox(*document) == &box)
                document->Fields().CommitField(box) || (document->Fields().RestoreField(box), true);
        }))
        return;
    TypeKeys(box, text);
    if (HasFatalFailure() || Chance(20)) return;
    if (Chance(15)) return Escape(box);
    Note("   left");
    Leave([&] {
        if (!document->Fields().CommitField(box)) document->Fields().RestoreField(box);
    });
}

void RandomEditor::CutOrPasteInBox() {
    const auto& [name, texts] = kFields[static_cast<std::size_t>(Below(static_cast<int>(kFields.size())))];
    TextBox& box = *R().FindTextBox(name);
    if (PendingBox(*document) != &box && !Leave([&] { document->Focus().FocusOn(box); })) return;
    document->Focus().FocusOn(box);
    const DocumentState before = StateOf(*document, host);
    if (Chance(30))
        document->Edit().SelectAll();
    else
        box.Select({Below(6), Below(6)});
    const int which = Below(3);
    platform.clipboard.text = Any(*texts);
    Note(box.Name() + (which == 0 ? " cut" : which == 1 ? " clear" : " paste " + *platform.clipboard.text));
    if (which == 0) document->Edit().Cut();
    if (which == 1) document->Edit().Clear();
    if (which == 2) document->Edit().Paste();
    RecordedIfChanged(before, {which == 0 ? "Cut" : which == 1 ? "Delete" : "Paste", TabNow()});
}

// Cells.

void RandomEditor::EditCell() {
    Grid& grid = AnyGrid();
    const int row = Below(grid.Rows()), col = Below(grid.Cols());
    const std::string& text = TextFor(grid, col);
    Note(grid.Name() + " " + std::to_string(row) + "," + std::to_string(col) + " <- " + text);
    if (!Enter(grid)) return;
    if (Chance(70)) document->Focus().SetCurrentCell(grid, row, col);
    const DocumentState before = StateOf(*document, host);
    const std::string old = grid.Text(row, col);
    bool done = false;
    const bool fault = Faults([&] {
        done = document->Cells().EditCell(grid, row, col, text, Chance(50) ? Asking::Quietly : Asking::Aloud);
    });
    if (fault || !done || grid.Text(row, col) == old)
        ASSERT_EQ(Differences(before.all, StateOf(*document, host).all), "") << Trace();
    else
        Recorded({"Typing", TabNow(), {}, {}, grid.Name(), grid.Selection()});
}

void RandomEditor::CheckCell() {
    Grid& hops = R().gridHops;
    const int row = Below(hops.Rows()), col = Chance(50) ? HopCol::Sock : HopCol::DryHopped;
    const bool checked = Chance(50);
    Note("check " + std::to_string(row) + "," + std::to_string(col));
    if (!Enter(hops)) return;
    const DocumentState before = StateOf(*document, host);
    const bool old = hops.Checked(row, col);
    const bool fault = Faults([&] { document->Cells().SetChecked(hops, row, col, checked); });
    if (fault || hops.Checked(row, col) == old)
        ASSERT_EQ(Differences(before.all, StateOf(*document, host).all), "") << Trace();
    else
        Recorded({"Typing", TabNow(), {}, {}, "gridHops", hops.Selection()});
}

void RandomEditor::ChooseOptionOrStyle() {
    static constexpr const char* kOptions[] = {"optTinseth", "optRager", "optGaretz", "optBottle", "optKeg"};
    static constexpr const char* kStyles[] = {"stout ",    "Lager",  "Odd Water",
                                              "Half Open", "(None)", "Nothing"};
    if (!Leave([&] { document->Focus().FocusElsewhere(); })) return;
    const std::int64_t style = document->StyleID();
    const std::string options = R().grpIBUMethod.Value() + R().grpPkgMethod.Value();
    const std::string option = kOptions[Below(5)], name = kStyles[Below(6)];
    const int which = Below(3);
    Note(which == 0 ? option : "style " + name);
    const bool fault = Faults([&] {
        if (which == 0) document->Options().Choose(option);
        if (which == 1) document->Style().ChangeStyle(name);
        if (which == 2) document->Style().Select(Below(5));
    });
    const bool changed =
        style != document->StyleID() || options != R().grpIBUMethod.Value() + R().grpPkgMethod.Value();
    ASSERT_FALSE(fault && changed) << Trace();
    if (changed) Recorded({"Selection", TabNow()});
}

// Rows.

void RandomEditor::ChangeRows() {
    Grid& grid = AnyGrid();
    if (!Enter(grid)) return;
    host.appendRows = Chance(40);
    document->Focus().SetCurrentCell(grid, Below(grid.Rows() + 1), Below(grid.Cols()));
    const std::string place = grid.Name() + " " + std::to_string(grid.CurrentRow());
    const int rows = grid.Rows();
    const int row = grid.CurrentRow();
    if (Chance(55) && grid.DataRows() < kMostRows) {
        Note("insert " + place + (host.appendRows ? " append" : ""));
        document->Lines().InsertRowForGrid(grid);
        ASSERT_EQ(grid.Rows(), rows + (grid.RowsCanChange() ? 1 : 0)) << Trace();
        if (grid.RowsCanChange()) Recorded({"Insert Row", TabNow()});
        return;
    }
    Note("delete " + place);
    const bool can = grid.RowsCanChange() && grid.IsDataRow(row) && grid.DataRows() > grid.LeastDataRows();
    const DocumentState before = StateOf(*document, host);
    const bool fault = Faults([&] { document->Lines().DeleteRowForGrid(grid); });
    if (fault || !can)
        ASSERT_EQ(Differences(before.all, StateOf(*document, host).all), "") << Trace();
    else
        Recorded({"Delete Row", TabNow()});
}

void RandomEditor::SortRows() {
    Grid& grid = AnyGrid();
    const int col = Below(grid.Cols());
    Note("sort " + grid.Name() + " " + std::to_string(col));
    if (!Enter(grid)) return;
    const DocumentState before = StateOf(*document, host);
    document->Lines().ClickHeader(grid, col);
    if (before == StateOf(*document, host)) return;
    ASSERT_TRUE(grid.RowsCanChange());
    Recorded({"Sort", TabNow(), {}, {}, grid.Name(), {1, col, 1, col}});
}

void RandomEditor::MoveAbout() {
    if (Chance(50)) {
        const int tab = Below(kTabs);
        Note("tab " + std::to_string(tab));
        Leave([&] { document->Focus().SetTab(static_cast<Tab>(tab)); });
        return;
    }
    Grid& grid = AnyGrid();
    Note("select in " + grid.Name());
    if (!Enter(grid)) return;
    document->Focus().SelectCells(
        grid, {Below(grid.Rows()), Below(grid.Cols()), Below(grid.Rows()), Below(grid.Cols())});
}

void RandomEditor::Scale() {
    static const char* const kNames[] = {"Resize Recipe", "Adjust Strength", "Adjust Bitterness",
                                         "Adjust Carbonation"};
    if (!Leave([&] { document->Focus().FocusElsewhere(); })) return;
    const int what = Below(4);
    // A command is disabled while the recipe has no such figure.
    if (!CurrentFigure(*document, static_cast<tw::Scaling>(what))) return;
    host.scaling.keepTypedUnits = Chance(60);
    const bool first = Chance(50), second = Chance(50), third = Chance(70);
    const double by = Chance(10) ? 1e300 : 0.2 + Below(40) / 10.0;
    Note(kNames[what] + (" by " + std::to_string(by)));
    const DocumentState before = StateOf(*document, host);
    RecipeScaling& scaling = document->Scaling();
    const bool fault = Faults([&] {
        if (what == 0) scaling.ScaleRecipe(5 * by, NumberText(5 * by) + " gal", first, second, third);
        if (what == 1) scaling.ScaleOG(1 + by / 40, first);
        if (what == 2) scaling.ScaleIBU(by * 20);
        if (what == 3) scaling.ScaleCO2(by + 0.5, Asking::Quietly);
    });
    if (fault)
        ASSERT_EQ(Differences(before.all, StateOf(*document, host).all), "") << Trace();
    else
        RecordedIfChanged(before, {kNames[what], TabNow()});
}

void RandomEditor::EditOnce() {
    const int kind = Below(100);
    if (host.scaling.undoable && Chance(10))
        Scale();
    else if (kind < 22)
        TypeInBox();
    else if (kind < 26)
        CutOrPasteInBox();
    else if (kind < 54)
        EditCell();
    else if (kind < 59)
        CheckCell();
    else if (kind < 66)
        ChooseOptionOrStyle();
    else if (kind < 77)
        ChangeRows();
    else if (kind < 81)
        SortRows();
    else if (kind < 84)
        ClearOrCutCells();
    else if (kind < 88)
        PasteCells();
    else if (kind < 93)
        PickFromCatalogue();
    else if (kind < 95)
        PickDate();
    else
        MoveAbout();
    if (!HasFatalFailure()) CheckHistory();
    host.log.clear();
    platform.messages.log.clear();
}

}  // namespace tw::test
