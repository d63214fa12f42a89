// Tests of the water treatment of a document: its rows, its single step of the history, its messages. The
// salts of the catalogue are gypsum (61.5 ppm of calcium, 147.4 ppm of sulfate) and chalk (105.8 ppm of
// calcium, 158.4 ppm of carbonate), for one gram in a gallon.
#include "water/Treatment.h"

#include <random>

#include "DocumentState.h"
#include "DocumentTest.h"
#include "document/BriefCell.h"
#include "document/TreatmentSummary.h"
#include "values/NumberText.h"

namespace tw::test {
namespace {

class TreatmentOf : public DocumentTest {
  protected:
    TreatmentOf() {
        New();
        Set(R().txtTotalVol, "5 gal");
    }
    void Need(const Ions& ppm) {
        for (int ion = 0; ion < kIons; ++ion)
            Put(R().gridWater, WaterRow::Target, WaterCol::FirstIon + ion,
                NumberText(ppm[static_cast<std::size_t>(ion)]));
    }
    void AddSalt(const std::string& name, const Ions& ions) {
        std::string numbers;
        for (const double ion : ions) numbers += ", " + NumberText(ion);
        database->Execute("INSERT INTO SALTS (NAME, CA, CO3, CL, MG, NA, SO4) VALUES (" + SqlText(name) +
                          numbers + ")");
    }
    // Returns the name and amount of each row.
    Log Rows() {
        Log rows;
        const Grid& grid = R().gridTreatment;
        for (int row = 1; row < grid.Rows(); ++row)
            rows.push_back(grid.Text(row, TreatmentCol::Name) + " " + grid.Text(row, TreatmentCol::Amount));
        return rows;
    }
    DocumentState State() { return StateOf(*document, host); }
    void AddRow(std::string_view name, std::string_view amount) {
        Grid& grid = R().gridTreatment;
        document->Lines().InsertRowForGrid(grid);
        Put(grid, grid.CurrentRow(), TreatmentCol::Name, name);
        Put(grid, grid.CurrentRow(), TreatmentCol::Amount, amount);
    }
};

// One gram of gypsum in a gallon adds 61.5 ppm of calcium and 147.4 ppm of sulfate; half a gram of chalk adds
// 52.9 ppm and 79.2 ppm.
TEST_F(TreatmentOf, GivesEachSaltItsGramsForTheBatch) {
    Need({114.4, 79.2, 0, 0, 0, 147.4});
    document->Water().CalcTreatment();
    EXPECT_EQ(Rows(), (Log{"Gypsum 5 grams", "Chalk 2.5 grams"}));
    EXPECT_EQ(R().gridTreatment.Number(2, TreatmentCol::Amount), 2.5);
    EXPECT_EQ(R().gridTreatment.Number(2, TreatmentCol::FirstIon), 105.8);
    EXPECT_EQ(R().gridTreatment.Text(2, TreatmentCol::FirstIon), "52.9");
    EXPECT_EQ(R().gridWater.Text(WaterRow::Totals, WaterCol::FirstIon), "114.4");
    EXPECT_TRUE(R().gridWater.At(WaterRow::Totals, WaterCol::FirstIon).bold);
    EXPECT_TRUE(document->Changed());
    EXPECT_EQ(Boxes(), Log{});
}

// 100 / 147.4 * 5 = 3.39213...
TEST_F(TreatmentOf, RoundsGramsToThreePlaces) {
    Need({61.5, 0, 0, 0, 0, 100});
    document->Water().CalcTreatment();
    EXPECT_EQ(Rows(), Log{"Gypsum 3.392 grams"});
    EXPECT_EQ(R().gridTreatment.Number(1, TreatmentCol::Amount), 3.392);
}

TEST_F(TreatmentOf, TakesTheOldRowsAwayAndBringsThemBackInOneStep) {
    AddRow("Chalk", "9 g");
    AddRow("Nothing known", "");
    AddRow("Gypsum", "1 g");
    Need({61.5, 0, 0, 0, 0, 147.4});
    const DocumentState before = State();
    document->Water().CalcTreatment();
    const DocumentState after = State();
    EXPECT_EQ(Rows(), Log{"Gypsum 5 grams"});
    EXPECT_EQ(host.undoName, "Calculation");
    ASSERT_TRUE(document->Replay().Undo());
    EXPECT_EQ(Differences(before.all, State().all), "");
    EXPECT_EQ(host.redoName, "Calculation");
    ASSERT_TRUE(document->Replay().Redo());
    EXPECT_EQ(Differences(after.all, State().all), "");
}

TEST_F(TreatmentOf, IsNoStepWhereTheGridWasAndStaysEmpty) {
    const std::size_t steps = document->History().StackTop();
    ASSERT_NE(host.undoName, "Calculation");
    document->Water().CalcTreatment();
    EXPECT_EQ(Rows(), Log{});
    EXPECT_NE(host.undoName, "Calculation");
    EXPECT_EQ(document->History().StackTop(), steps);
}

TEST_F(TreatmentOf, NeedsATotalVolume) {
    Need({61.5, 0, 0, 0, 0, 147.4});
    AddRow("Chalk", "9 g");
    Set(R().txtTotalVol, "");
    EXPECT_FALSE(R().cmdCalcTreatment.Enabled());
    document->Water().CalcTreatment();
    EXPECT_EQ(Rows(), Log{"Chalk 9 g"});
    Set(R().txtTotalVol, "  ");
    EXPECT_FALSE(R().cmdCalcTreatment.Enabled());
    Set(R().txtTotalVol, "19 l");
    EXPECT_TRUE(R().cmdCalcTreatment.Enabled());
}

TEST_F(TreatmentOf, ALoadedRecipeHasItsButtonByItsVolume) {
    SaveAs("Five");
    Set(R().txtTotalVol, "");
    SaveAs("None");
    Open("Five");
    EXPECT_TRUE(R().cmdCalcTreatment.Enabled());
    Open("None");
    EXPECT_FALSE(R().cmdCalcTreatment.Enabled());
}

TEST_F(TreatmentOf, SaysThatThereAreNoSalts) {
    AddRow("Chalk", "9 g");
    database->Execute("DELETE FROM SALTS");
    const DocumentState before = State();
    const std::string undoName = host.undoName;
    document->Water().CalcTreatment();
    EXPECT_EQ(Boxes(),
              Log{"[Could not setup Linear Program] Not enough data to calculate water treatment.\r\n"
                  "Check Salts tab of Database Setup"});
    EXPECT_EQ(State(), before);
    EXPECT_EQ(host.undoName, undoName);
}

// A salt without ions has no maximum amount, and a rounding error keeps the other program from a solution.
TEST_F(TreatmentOf, SaysThatNoProgramHasASolution) {
    database->Execute("DELETE FROM SALTS");
    AddSalt("Odd", {27.6, 0, 10.4, 36.4, 29.4, 2.1});
    AddSalt("Nothing", {});
    AddRow("Chalk", "9 g");
    Need({0, 254.2, 0, 241.9, 0, 0});
    const DocumentState before = State();
    document->Water().CalcTreatment();
    EXPECT_EQ(Boxes(), Log{"[Could not solve Linear Program] Water Treatment Calculation failed"});
    EXPECT_EQ(State(), before);
    EXPECT_NE(host.undoName, "Calculation");
}

// The source contains more of the ion than the target.
TEST_F(TreatmentOf, ANegativeNeedCountsAsNone) {
    Put(R().gridWater, WaterRow::Source, WaterCol::FirstIon, "200");
    Need({61.5, 0, 0, 0, 0, 147.4});
    EXPECT_EQ(R().gridWater.Text(WaterRow::Needed, WaterCol::FirstIon), "-138.5");
    document->Water().CalcTreatment();
    EXPECT_EQ(Rows(), Log{});
}

TEST_F(TreatmentOf, LeavesOutWhatIsBelowAThousandthOfAGramForTheBatch) {
    database->Execute("DELETE FROM SALTS");
    AddSalt("Strong", {1000, 0, 0, 0, 0, 0});
    Need({0.18, 0, 0, 0, 0, 0});
    // 0.00018 g for each gallon: 0.0009 g in 5 gallons, 0.0018 g in 10 gallons.
    document->Water().CalcTreatment();
    EXPECT_EQ(Rows(), Log{});
    Set(R().txtTotalVol, "10 gal");
    document->Water().CalcTreatment();
    EXPECT_EQ(Rows(), Log{"Strong 0.002 grams"});
}

TEST_F(TreatmentOf, PutsRowsInTheOrderOfTheSaltsWhereverNewRowsGo) {
    Need({114.4, 79.2, 0, 0, 0, 147.4});
    host.appendRows = true;
    document->Water().CalcTreatment();
    EXPECT_EQ(Rows(), (Log{"Gypsum 5 grams", "Chalk 2.5 grams"}));
    document->Replay().Undo();
    EXPECT_EQ(Rows(), Log{});
    document->Replay().Redo();
    EXPECT_EQ(Rows(), (Log{"Gypsum 5 grams", "Chalk 2.5 grams"}));
    EXPECT_TRUE(host.appendRows);
}

TEST_F(TreatmentOf, KeepsToTheLimitOfTheSettings) {
    Need({114.4, 79.2, 0, 0, 0, 147.4});
    host.lpMaxIter = 0;
    document->Water().CalcTreatment();
    // Both programs stop after their first step: gypsum for 114.4 / 61.5 is more than sulfate allows, so 1
    // gram a gallon remains.
    EXPECT_EQ(Rows(), Log{"Gypsum 5 grams"});
    host.lpMaxIter = 1000;
    document->Water().CalcTreatment();
    EXPECT_EQ(Rows(), (Log{"Gypsum 5 grams", "Chalk 2.5 grams"}));
}

TEST_F(TreatmentOf, LightsDeleteOnItsTab) {
    document->Focus().SetTab(Tab::Water);
    Need({114.4, 79.2, 0, 0, 0, 147.4});
    EXPECT_FALSE(host.IsOn("EnableDelete"));
    document->Water().CalcTreatment();
    EXPECT_TRUE(host.IsOn("EnableDelete"));
    Need({});
    document->Water().CalcTreatment();
    EXPECT_FALSE(host.IsOn("EnableDelete"));
}

class FaultyTreatment : public TreatmentOf {
  protected:
    // Expects that the calculation raises this error and changes nothing, not even the
    // step that can be redone.
    void ExpectFault(int number) {
        AddRow("Chalk", "9 g");
        Put(R().gridTreatment, 1, TreatmentCol::Amount, "8 g");
        document->Replay().Undo();
        const DocumentState before = State();
        const std::string undoName = host.undoName;
        try {
            document->Water().CalcTreatment();
            FAIL() << "no fault";
        } catch (const Error& error) {
            EXPECT_EQ(error.Number(), number);
        }
        EXPECT_EQ(Differences(before.all, State().all), "");
        EXPECT_EQ(host.undoName, undoName);
        EXPECT_TRUE(document->Replay().Redo());
        EXPECT_EQ(Rows(), Log{"Chalk 8 g"});
    }
};

TEST_F(FaultyTreatment, OfTheSolverChangesNothing) {
    database->Execute("DELETE FROM SALTS");
    AddSalt("One", {1e300, 1e-300, 0, 0, 0, 0});
    AddSalt("Two", {1e-300, 1e300, 1e300, 0, 0, 0});
    Need({1e300, 1e300, 1, 0, 0, 0});
    ExpectFault(kOverflowNumber);
}

// The doses are finite, but the grams for a batch of this size are not.
TEST_F(FaultyTreatment, OfTheGramsChangesNothing) {
    database->Execute("DELETE FROM SALTS");
    AddSalt("Weak", {1e-300, 0, 0, 0, 0, 0});
    Need({1, 0, 0, 0, 0, 0});
    Set(R().txtTotalVol, "1" + std::string(20, '0'));
    ExpectFault(kOverflowNumber);
}

// The grams of the second salt, 1e306, are finite, but the ppm that they add overflow before the division by
// the volume: the row of the first salt is removed again.
TEST_F(FaultyTreatment, OfARowTakesTheOthersBack) {
    database->Execute("DELETE FROM SALTS");
    AddSalt("One", {0, 1, 0, 0, 0, 0});
    AddSalt("Two", {1000, 0, 0, 0, 0, 0});
    Need({1e305, 1, 0, 0, 0, 0});
    Set(R().txtTotalVol, "10000");
    ExpectFault(kOverflowNumber);
}

// Random salts and waters: the rows match the results of the linear programs, and undo and
// redo restore them exactly.
TEST_F(TreatmentOf, GoesBackAndForthOnRandomWaters) {
    std::mt19937 random(7);
    const auto below = [&](unsigned limit) { return static_cast<double>(random() % limit); };
    const auto ions = [&](unsigned limit) {
        Ions numbers{};
        for (double& number : numbers) number = random() % 3 > 0 ? below(limit * 10) / 10 : 0;
        return numbers;
    };
    int rowsSeen = 0;
    for (int round = 0; round < 300; ++round) {
        database->Execute("DELETE FROM SALTS");
        std::vector<Ions> salts;
        for (unsigned i = 0; i < 1 + round % 6u; ++i) {
            salts.push_back(ions(200));
            AddSalt("Salt " + std::to_string(i), salts.back());
        }
        Set(R().txtTotalVol, NumberText(1 + below(20)));
        Need(ions(300));
        Ions needed{};
        for (std::size_t ion = 0; ion < needed.size(); ++ion)
            needed[ion] = R().gridWater.Number(WaterRow::Needed, WaterCol::FirstIon + static_cast<int>(ion));
        const auto doses = FindDoses(needed, salts, host.lpMaxIter);
        const DocumentState before = State();
        document->Water().CalcTreatment();
        if (!doses) {
            EXPECT_EQ(Boxes().size(), 1u);
            EXPECT_EQ(State(), before);
            continue;
        }
        Log wanted;
        for (std::size_t i = 0; i < salts.size(); ++i) {
            const double grams = (*doses)[i] * R().txtTotalVol.Value();
            if (grams < 0.001) continue;
            const RoundedQuantity rounded = FormatQuantity(grams, 3);
            wanted.emplace_back("Salt " + std::to_string(i) + " " + rounded.text + " grams");
            EXPECT_EQ(R().gridTreatment.Number(static_cast<int>(wanted.size()), TreatmentCol::Amount),
                      rounded.value);
        }
        ASSERT_EQ(Rows(), wanted) << round;
        rowsSeen += static_cast<int>(wanted.size());
        const DocumentState after = State();
        if (after == before) continue;
        ASSERT_TRUE(document->Replay().Undo());
        ASSERT_EQ(Differences(before.all, State().all), "") << round;
        ASSERT_TRUE(document->Replay().Redo());
        ASSERT_EQ(Differences(after.all, State().all), "") << round;
    }
    EXPECT_GT(rowsSeen, 100);
}

class HeldView : public DocumentView {
  public:
    bool FlushEditors() override { return accepts; }
    void HoldRedraw(bool hold) override {
        if (hold && holds == 0) ++scopes;
        holds += hold ? 1 : -1;
    }
    bool accepts = true;
    int holds = 0, scopes = 0;
};

TEST_F(TreatmentOf, IsShownAtOnceWhenItIsDone) {
    HeldView view;
    document->SetView(&view);
    Need({114.4, 79.2, 0, 0, 0, 147.4});
    document->Water().CalcTreatment();
    EXPECT_EQ(view.scopes, 1);
    EXPECT_EQ(view.holds, 0);
    document->SetView(nullptr);
}

TEST_F(TreatmentOf, WaitsForAnEntryThatWasRefused) {
    HeldView view;
    view.accepts = false;
    document->SetView(&view);
    Need({114.4, 79.2, 0, 0, 0, 147.4});
    document->Water().CalcTreatment();
    EXPECT_EQ(Rows(), Log{});
    document->SetView(nullptr);
}

// What the salts reach, in one sentence.
class TreatmentSummaryOf : public TreatmentOf {
  protected:
    void Have(const Ions& ppm) {
        for (int ion = 0; ion < kIons; ++ion)
            Put(R().gridWater, WaterRow::Source, WaterCol::FirstIon + ion,
                NumberText(ppm[static_cast<std::size_t>(ion)]));
    }
    std::string Summary() { return TreatmentSummary(R()); }
};

TEST_F(TreatmentSummaryOf, IsNewsForTheHost) {
    Set(R().txtTotalVol, "20 L");
    Need({114.4, 79.2, 0, 0, 0, 147.4});
    host.log.clear();
    document->Water().CalcTreatment();
    EXPECT_EQ(host.log.back(), "news: Salts for 20 L. All ions within 3 %");
}

TEST_F(TreatmentSummaryOf, TellsWhatIsShortAndWhatIsOver) {
    // 5 g of gypsum in 5 gal: 61.5 ppm of calcium, 147.4 of sulfate.
    AddRow("Gypsum", "5 g");
    Have({0, 50, 0, 0, 12, 0});
    // Sulfate 147.4 of 160 is 7.875 % short, calcium 61.5 of 60 is 2.5 % over.
    Need({60, 50, 0, 0, 12, 160});
    EXPECT_EQ(Summary(), "Salts for 5 gal. All other ions within 3 %, sulfate 8 % short");
    // Sodium 12 of 10 is 20 % over.
    Need({60, 50, 0, 0, 10, 160});
    EXPECT_EQ(Summary(), "Salts for 5 gal. All other ions within 3 %, sodium 20 % over, sulfate 8 % short");
    // What nobody wants has no percentage.
    Need({60, 50, 0, 0, 0, 147});
    EXPECT_EQ(Summary(), "Salts for 5 gal. All other ions within 3 %, sodium 12 ppm over");
    Need({20, 20, 5, 5, 5, 20});
    // 41.5 of 20, 30 of 20, 5 of 5, 5 of 5, 7 of 5, 127.4 of 20
    EXPECT_EQ(
        Summary(),
        "Salts for 5 gal. Calcium 208 % over, carbonate 150 % over, chloride 100 % short, magnesium 100 % "
        "short, sodium 140 % over, sulfate 637 % over");
}

TEST_F(TreatmentSummaryOf, CountsWhatReportsRoundAwayAsReached) {
    Have({1.3, 0, 0, 0, 0, 96.6});
    // 0.3 ppm are 30 % of 1, 3.4 % are 3 %, and nothing of nothing is enough.
    Need({1, 0, 0, 0, 0, 100});
    EXPECT_EQ(Summary(), "No salts for 5 gal. All ions within 3 %");
    Need({1, 0, 0, 0, 0, 101});
    EXPECT_EQ(Summary(), "No salts for 5 gal. All other ions within 3 %, sulfate 4 % short");
}

TEST_F(TreatmentSummaryOf, WritesTheVolumeAsTyped) {
    Need({1, 0, 0, 0, 0, 0});
    Have({1, 0, 0, 0, 0, 0});
    Set(R().txtTotalVol, "5");
    EXPECT_EQ(Summary(), "No salts for 5 gal. All ions within 3 %");
    Set(R().txtTotalVol, " 5.25 gal.");
    EXPECT_EQ(Summary(), "No salts for 5.25 gal. All ions within 3 %");
    Need({0, 0, 0, 0, 0, 0});
    EXPECT_EQ(Summary(), "No salts for 5.25 gal. No target water is given");
}

// A window paints no digits that nobody can weigh; the cells keep them.
TEST_F(TreatmentOf, PaintsWhatAScaleShows) {
    AddRow("Gypsum", "3.417 grams");
    Grid& grid = R().gridTreatment;
    const auto brief = [&](std::string_view text) {
        Put(grid, 1, TreatmentCol::Amount, text);
        return BriefCell(grid, 1, TreatmentCol::Amount);
    };
    EXPECT_EQ(brief("3.417 grams"), "3.4 grams");
    EXPECT_EQ(brief("3.95 g"), "4 g");
    EXPECT_EQ(brief("3.4 g"), "3.4 g");
    EXPECT_EQ(brief("12"), "12");
    EXPECT_EQ(brief("0.05 grams"), "0.1 grams");
    EXPECT_EQ(brief("0.0468 grams"), "0.047 grams");
    EXPECT_EQ(brief("0.00468 grams"), "0.0047 grams");
    EXPECT_EQ(brief("0.123 oz"), "0.123 oz");
    EXPECT_EQ(brief("1/3 g"), "1/3 g");
    EXPECT_EQ(brief("2 1/3 g"), "2 1/3 g");
    EXPECT_EQ(brief(""), "");
    EXPECT_EQ(grid.Text(1, TreatmentCol::Name), BriefCell(grid, 1, TreatmentCol::Name));
}

TEST_F(TreatmentOf, PaintsIonsAsReportsDo) {
    // 3.417 g of gypsum in 5 gal: 42.03 ppm of calcium and 100.73 of sulfate.
    AddRow("Gypsum", "3.417 grams");
    Grid& water = R().gridWater;
    Put(water, WaterRow::Source, WaterCol::FirstIon, "10.44");
    Put(water, WaterRow::Target, WaterCol::FirstIon, "1.23");
    EXPECT_EQ(R().gridTreatment.Text(1, TreatmentCol::FirstIon), "42.03");
    EXPECT_EQ(BriefCell(R().gridTreatment, 1, TreatmentCol::FirstIon), "42");
    EXPECT_EQ(water.Text(WaterRow::Totals, WaterCol::FirstIon + 5), "100.73");
    EXPECT_EQ(BriefCell(water, WaterRow::Totals, WaterCol::FirstIon + 5), "101");
    // 1.23 - 10.44
    EXPECT_EQ(water.Text(WaterRow::Needed, WaterCol::FirstIon), "-9.21");
    EXPECT_EQ(BriefCell(water, WaterRow::Needed, WaterCol::FirstIon), "-9.2");
    EXPECT_EQ(BriefCell(water, WaterRow::Source, WaterCol::FirstIon), "10.44");
    EXPECT_EQ(BriefCell(water, 0, WaterCol::FirstIon), "Calcium (Ca)");
}

}  // namespace
}  // namespace tw::test
