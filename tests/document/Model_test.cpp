// Makes thousands of random valid and invalid edits in a document and in the plain calculation; after each
// one the two must agree in every text, number, check mark, button and command. Halfway the recipe is
// saved and opened again.
#include <random>

#include "DocumentTest.h"
#include "PlainComparison.h"

namespace tw::test {
namespace {

using Outcome = PlainRecipe::Outcome;

const std::vector<std::string> kVolumes{"",
                                        "5",
                                        "5 gal",
                                        "6.5 gal.",
                                        "19 l",
                                        "2 1/2 gal",
                                        "40 pt",
                                        "768 tsp",
                                        "0",
                                        "-1",
                                        "five",
                                        "1/0",
                                        "12 qt",
                                        "0.25",
                                        "5 gal extra",
                                        std::string("0.") + std::string(310, '0') + "1",
                                        std::string("0.") + std::string(300, '0') + "1",
                                        std::string(400, '9'),
                                        "  "};
const std::vector<std::string> kPercents{"",    "40", "40%", "72.5", "100", "0",
                                         "101", "-1", "1/2", "lots", "1/0", "  "};
const std::vector<std::string> kGravities{
    "", "1.010", "1.012 SG", "3 P", "1.05", "0", "-1", "heavy", "1/0", "1", std::string(200, '9'), "  "};
const std::vector<std::string> kTemperatures{"",    "68",   "20 C",  "38 F", "0", "212",
                                             "213", "warm", "293 K", "1/0",  "  "};
const std::vector<std::string> kMultipliers{
    "", "1", "1.0", "0.8", "0", "-1", "x", "1 .", std::string(300, '9'), "  "};
const std::vector<std::string> kPounds{
    "",    "8",     "8 lb", "2 lb 3 oz",           "500 g", "1.2 kg", "0", "-1", "heavy",
    "1/0", "1 1/2", "4 oz", std::string(308, '9'), "  "};
const std::vector<std::string> kNumbers{
    "", "36", "36.5", "0", "2", "75", "250", "-1", "x", "1/2", ".5", "300", std::string(200, '9'), "  "};
const std::vector<std::string> kHopAmounts{
    "",       "1",      "1 oz", "28 g", "4 AAU", "12 AAUs", "20 IBU", "31 BUs",   "-1 oz",
    "-4 AAU", "-2 IBU", "much", "1/0",  "0",     "0 AAU",   "1/2 oz", "1.25 lbs", std::string(300, '9'),
    "  "};
const std::vector<std::string> kTimes{"",       "60", "1:30",   "1 HR", "89.5", "90", "0",
                                      "15 min", "-5", "7 days", "5 S",  "1/0",  "  "};
const std::vector<std::string> kForms{"", "Pellet", "plug", "LEAF", "Cone", "  "};
const std::vector<std::string> kPressures{"",   "11",  "11 psi", "1 atm", "0",   "48",
                                          "50", "400", "-1",     "hard",  "1/0", "  "};
const std::vector<std::string> kGrams{
    "", "5", "5 grams", "1 oz", "0", "-1", "1/0", "pinch", std::string(308, '9'), "  "};
const std::vector<std::string> kOunces{
    "", "4", "4 oz", "113 g", "0", "-1", "1/0", "cup", std::string(307, '9'), "  "};
const std::vector<std::string> kPpm{"",  "0", "7", "100", "98.5", "250.25", "-1", "x", std::string(308, '9'),
                                    "  "};
const std::vector<std::string> kFree{"",    "x",    "It's \"good\"", "007",   "1.050",
                                     "ä ß", "NULL", "a\r\nb",        "%_;--", "  "};

class ModelTest : public DocumentTest, public testing::WithParamInterface<unsigned> {
  protected:
    ModelTest() : random_(GetParam()) { New(); }

    int Below(int limit) { return std::uniform_int_distribution<int>(0, limit - 1)(random_); }
    const std::string& Any(const std::vector<std::string>& texts) {
        return texts[static_cast<std::size_t>(Below(static_cast<int>(texts.size())))];
    }
    // Returns valid entries twice as often as invalid ones, so that there are figures.
    const std::string& Likely(const std::vector<std::string>& texts) {
        return Below(3)
                   ? texts[static_cast<std::size_t>(Below(std::min<int>(6, static_cast<int>(texts.size()))))]
                   : Any(texts);
    }
    template <class Edit>
    Outcome OutcomeOf(Edit edit) {
        try {
            return edit() ? Outcome::Done : Outcome::Refused;
        } catch (const Error&) {
            return Outcome::Raised;
        }
    }

    void EditField();
    void EditCell();
    void EditText(Grid& grid, int row, int col, const std::string& text);
    void EditOther();
    void EditRows();
    void SaveAndOpen();
    void Compare(const std::string& what);

    PlainCatalogue catalogue_ = MakePlainCatalogue();
    PlainRecipe plain_{catalogue_, 0, true};
    std::mt19937 random_;
    std::string last_;
};

void ModelTest::EditField() {
    static const std::vector<std::pair<const char*, const std::vector<std::string>*>> kFields{
        {"txtBoilVol", &kVolumes},   {"txtTotalVol", &kVolumes},          {"txtDilutions", &kVolumes},
        {"txtFinalVol", &kVolumes},  {"txtExtract", &kPercents},          {"txtFG", &kGravities},
        {"txtTemp", &kTemperatures}, {"txtHopExtraction", &kMultipliers}, {"txtNotes", &kFree},
        {"txtNumBatches", &kFree}};
    const auto& [name, texts] = kFields[static_cast<std::size_t>(Below(static_cast<int>(kFields.size())))];
    const std::string& text = Likely(*texts);
    last_ = std::string(name) + " <- " + text;
    TextBox& box = *R().FindTextBox(name);
    const Outcome wanted = plain_.Commit(name, text);
    const Outcome got =
        OutcomeOf([&] { return Set(box, text, Below(2) == 0 ? Asking::Quietly : Asking::Aloud); });
    ASSERT_EQ(got, wanted) << last_;
    if (got == Outcome::Refused) document->Fields().RestoreField(box);
}

void ModelTest::EditText(Grid& grid, int row, int col, const std::string& text) {
    last_ = grid.Name() + " " + std::to_string(row) + "," + std::to_string(col) + " <- " + text;
    const Outcome wanted = plain_.Edit(grid.Name(), row - 1, col, text);
    const Outcome got = OutcomeOf([&] {
        return document->Cells().EditCell(grid, row, col, text,
                                          Below(2) == 0 ? Asking::Quietly : Asking::Aloud);
    });
    ASSERT_EQ(got, wanted) << last_;
}

void ModelTest::EditCell() {
    RecipeRecord& r = R();
    static const std::vector<std::string> kGrainNames{"Pale Malt", "O'Brien's", "Half Known",
                                                      "Syrup",     "Nothing",   ""};
    static const std::vector<std::string> kHopNames{"Saaz", "Zeus", "Wild", "Nothing", ""};
    static const std::vector<std::string> kSugarNames{"Corn Sugar", "Honey", "Riddle", "Nothing", ""};
    static const std::vector<std::string> kWaterNames{"Burton", "Soft", "Nothing", ""};
    static const std::vector<std::string> kSaltNames{"Gypsum", "Chalk", "Nothing", ""};
    static const std::vector<std::string> kActions{"Pitched Yeast", " pitched yeast ", "Racked", ""};
    static const std::vector<std::string> kLogNotes{
        "Ale", "Ale - Wyeast 1056", "Cook's - 1", "Stray", "Nobody", "", "Ale  - dry"};
    using Texts = const std::vector<std::string>*;
    const std::vector<std::pair<Grid*, std::vector<Texts>>> columns{
        {&r.gridGrain, {&kGrainNames, &kPounds, &kNumbers, nullptr, &kNumbers, nullptr}},
        {&r.gridExtract, {&kGrainNames, &kPounds, &kNumbers, nullptr, &kNumbers, nullptr}},
        {&r.gridHops, {&kHopNames, &kPercents, &kForms, nullptr, &kHopAmounts, nullptr, &kTimes, nullptr}},
        {&r.gridPriming, {&kSugarNames, &kPercents, &kOunces, nullptr}},
        {&r.gridPressure, {&kPressures, nullptr}},
        {&r.gridTreatment, {&kSaltNames, &kGrams}},
        {&r.gridWater, {nullptr, &kWaterNames, &kPpm, &kPpm, &kPpm, &kPpm, &kPpm, &kPpm}},
        {&r.gridLog, {&kFree, &kActions, &kLogNotes}},
        {&r.gridAdjuncts, {&kFree, &kFree, &kFree, &kFree}}};
    const auto& [grid, texts] = columns[static_cast<std::size_t>(Below(static_cast<int>(columns.size())))];
    const int lines = grid == &r.gridWater ? 2 : grid->DataRows();
    if (lines == 0) return;
    const int row = 1 + Below(lines);
    const int col = Below(static_cast<int>(texts.size()));
    if (const Texts& pool = texts[static_cast<std::size_t>(col)]) EditText(*grid, row, col, Likely(*pool));
}

void ModelTest::EditOther() {
    const int which = Below(4);
    if (which == 0) {
        const int row = 1 + Below(R().gridHops.DataRows());
        const int col = Below(2) ? HopCol::Sock : HopCol::DryHopped;
        const bool on = Below(2) == 0;
        last_ = "check " + std::to_string(row) + "," + std::to_string(col);
        const Outcome wanted = plain_.Check(row - 1, col, on);
        ASSERT_EQ(OutcomeOf([&] { return document->Cells().SetChecked(R().gridHops, row, col, on); }), wanted)
            << last_;
    } else if (which == 1) {
        const int index = Below(3);
        const char* const names[] = {"optTinseth", "optRager", "optGaretz"};
        last_ = names[index];
        const Outcome wanted = plain_.ChooseMethod(index);
        ASSERT_EQ(OutcomeOf([&] { return document->Options().Choose(names[index]); }), wanted) << last_;
    } else if (which == 2) {
        const int index = Below(2);
        last_ = index ? "optKeg" : "optBottle";
        const Outcome wanted = plain_.ChoosePackaging(index);
        ASSERT_EQ(OutcomeOf([&] { return document->Options().Choose(last_); }), wanted) << last_;
    } else {
        const int index = Below(5);
        last_ = "style " + std::to_string(index);
        document->Style().Select(index);
        plain_.ChooseStyle(
            static_cast<int>(R().cmbStyle.Entries()[static_cast<std::size_t>(index)].itemData));
    }
}

void ModelTest::EditRows() {
    Grid* const grids[] = {&R().gridGrain,     &R().gridExtract,  &R().gridHops, &R().gridPriming,
                           &R().gridTreatment, &R().gridAdjuncts, &R().gridLog};
    Grid& grid = *grids[Below(7)];
    if (Below(5) < 3 && grid.DataRows() < 5) {
        const int row = Below(grid.DataRows() + 1);
        last_ = "insert " + grid.Name() + " " + std::to_string(row);
        host.appendRows = row == grid.DataRows();
        document->Focus().SetCurrentCell(grid, host.appendRows ? 1 : 1 + row, 0);
        document->Lines().InsertRowForGrid(grid);
        plain_.InsertRow(grid.Name(), row);
    } else if (grid.DataRows() > grid.LeastDataRows()) {
        const int row = Below(grid.DataRows());
        last_ = "delete " + grid.Name() + " " + std::to_string(row);
        document->Focus().SetCurrentCell(grid, 1 + row, 0);
        const Outcome wanted = plain_.DeleteRow(grid.Name(), row);
        ASSERT_EQ(OutcomeOf([&] {
                      document->Lines().DeleteRowForGrid(grid);
                      return true;
                  }),
                  wanted)
            << last_;
    }
}

void ModelTest::SaveAndOpen() {
    last_ = "save and open";
    const std::string name = "Model's " + std::to_string(Below(3));
    document->Fields().SetText(R().txtName, name);
    document->Fields().CommitField(R().txtName);
    plain_.Commit("txtName", name);
    ASSERT_TRUE(document->Storage().Save(SaveAs::No, Asking::Quietly));
    plain_.changed = false;
    Compare("saved");
    platform.messages.log.clear();
    Open(name);
    EXPECT_EQ(Boxes(), Log{});
    plain_.Reopen();
}

void ModelTest::Compare(const std::string& what) {
    ASSERT_EQ(FirstDifference(*document, host, plain_), "") << what;
}

TEST_P(ModelTest, AgreesWithThePlainCalculationAfterEveryEdit) {
    for (int step = 0; step < 1500; ++step) {
        const int kind = Below(20);
        if (kind < 6)
            EditField();
        else if (kind < 16)
            EditCell();
        else if (kind < 18)
            EditOther();
        else
            EditRows();
        if (step % 50 == 49) SaveAndOpen();
        if (HasFatalFailure()) return;
        Compare("step " + std::to_string(step) + " (" + last_ + ")");
        if (HasFatalFailure()) return;
        host.log.clear();
        platform.messages.log.clear();
    }
}

// Starts from a complete recipe, since a random one may never calculate everything.
TEST_P(ModelTest, AgreesOnAFullRecipe) {
    struct Entry {
        const char* box;
        const char* text;
    };
    for (const Entry& entry :
         {Entry{"txtExtract", "70%"}, Entry{"txtBoilVol", "6.5"}, Entry{"txtTotalVol", "5.25 gal"},
          Entry{"txtTemp", "68"}, Entry{"txtFG", "1.012"}}) {
        Set(*R().FindTextBox(entry.box), entry.text);
        plain_.Commit(entry.box, entry.text);
    }
    RecipeRecord& r = R();
    EditText(r.gridGrain, 1, 0, "Pale Malt");
    EditText(r.gridGrain, 1, 1, "9.75");
    EditText(r.gridExtract, 1, 0, "Syrup");
    EditText(r.gridExtract, 1, 1, "1 lb 5 oz");
    EditText(r.gridHops, 1, 0, "Zeus");
    EditText(r.gridHops, 1, 4, "3/4 oz");
    EditText(r.gridHops, 1, 6, "60");
    EditText(r.gridPriming, 1, 0, "Corn Sugar");
    EditText(r.gridPriming, 1, 2, "4 oz");
    Compare("full");
    for (int step = 0; step < 500 && !HasFatalFailure(); ++step) {
        if (step % 20 == 19) {
            SaveAndOpen();
            Compare("opened");
        } else if (Below(2)) {
            const std::string volume = std::to_string(3 + Below(10)) + ".5 gal";
            const char* const box = Below(2) ? "txtTotalVol" : "txtBoilVol";
            last_ = std::string(box) + volume;
            Set(*R().FindTextBox(box), volume);
            plain_.Commit(box, volume);
        } else if (Below(2)) {
            EditOther();
        } else {
            EditText(R().gridGrain, 1, 1, std::to_string(Below(20)) + ".25");
        }
        Compare("full " + std::to_string(step) + " (" + last_ + ")");
    }
}

INSTANTIATE_TEST_SUITE_P(Seeds, ModelTest, testing::Range(1u, 9u));

}  // namespace
}  // namespace tw::test
