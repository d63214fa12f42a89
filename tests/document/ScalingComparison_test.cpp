// Scales random recipes at random and compares them with the plain calculation to the last digit,
// including every stop and error.
#include <map>
#include <random>

#include "DocumentState.h"
#include "DocumentTest.h"
#include "PlainComparison.h"
#include "document/ScalingModel.h"

namespace tw::test {
namespace {

using Outcome = PlainRecipe::Outcome;
using Texts = std::vector<std::string>;

class RandomScaling : public DocumentTest, public testing::WithParamInterface<unsigned> {
  protected:
    RandomScaling() : random_(GetParam()) {
        New();
        host.askBefore = false;
    }

    int Below(int limit) { return std::uniform_int_distribution<int>(0, limit - 1)(random_); }
    double Between(double least, double most) {
        return std::uniform_real_distribution<double>(least, most)(random_);
    }
    std::string Any(const Texts& texts) {
        return texts[static_cast<std::size_t>(Below(static_cast<int>(texts.size())))];
    }
    void Field(const char* name, const Texts& texts) {
        const std::string text = Any(texts);
        const Outcome outcome = plain_.Commit(name, text);
        try {
            TextBox& box = *R().FindTextBox(name);
            const bool done = Set(box, text, Asking::Quietly);
            ASSERT_EQ(done, outcome == Outcome::Done);
            if (!done) document->Fields().RestoreField(box);
        } catch (const Error&) {
            ASSERT_EQ(outcome, Outcome::Raised) << name << text;
        }
    }
    void Cells(Grid& grid, const std::vector<std::pair<int, Texts>>& columns) {
        for (int row = 1; row < grid.EndOfData(); ++row)
            for (const auto& [col, texts] : columns) Edit(grid, row, col, Any(texts));
    }
    void Edit(Grid& grid, int row, int col, const std::string& text) {
        const Outcome outcome = plain_.Edit(grid.Name(), row - 1, col, text);
        try {
            ASSERT_EQ(document->Cells().EditCell(grid, row, col, text, Asking::Quietly),
                      outcome == Outcome::Done);
        } catch (const Error&) {
            ASSERT_EQ(outcome, Outcome::Raised);
        }
    }
    void AddRows() {
        for (Grid* grid :
             {&R().gridGrain, &R().gridExtract, &R().gridHops, &R().gridTreatment, &R().gridPriming}) {
            if (grid->DataRows() > 3) continue;
            document->Focus().SetCurrentCell(*grid, 1, 0);
            document->Lines().InsertRowForGrid(*grid);
            plain_.InsertRow(grid->Name(), 0);
        }
    }
    void MakeRecipe();
    Outcome ScalePlainly(int what, double value, bool first, bool second, bool third);
    void ScaleDocument(int what, double value, bool first, bool second, bool third);
    void ScaleOnce();

    PlainCatalogue catalogue_ = MakePlainCatalogue();
    PlainRecipe plain_{catalogue_, 0, true};
    std::mt19937 random_;
    std::map<std::pair<int, Outcome>, int> seen_;
};

void RandomScaling::MakeRecipe() {
    const Texts volumes{"5", "5 gal", "6.5", "19 l", "2 1/2 gal", "0.25", ""};
    for (const char* name : {"txtTotalVol", "txtBoilVol", "txtFinalVol"}) Field(name, volumes);
    Field("txtTotalVol", {"5", "12 qt", "7.3", "0.01", ""});
    Field("txtExtract", {"40", "72.5%", ""});
    Field("txtTemp", {"68", "38 F", "50", ""});
    Field("txtFG", {"1.012", ""});
    const Texts pounds{"8", "2 lb 3 oz", "0", "500 g", "0.01", "", "1" + std::string(307, '0')};
    for (Grid* grid : {&R().gridGrain, &R().gridExtract})
        Cells(*grid,
              {{GrainCol::Amount, pounds}, {GrainCol::Ppg, {"36", "0", ""}}, {GrainCol::Color, {"2", ""}}});
    Cells(R().gridHops, {{HopCol::AlphaAcid, {"5", "14.2", ""}},
                         {HopCol::Amount, {"1", "28 g", "4 AAU", "20 IBU", "0.004", "0 IBU", ""}},
                         {HopCol::Time, {"60", "0", "15", ""}}});
    Cells(R().gridTreatment, {{TreatmentCol::Name, {"Gypsum", "Chalk", "x"}},
                              {TreatmentCol::Amount, {"5", "1 oz", "0.0004", ""}}});
    Cells(R().gridPriming, {{PrimingCol::Fermentable, {"100", "62.5", "0", ""}},
                            {PrimingCol::Amount, {"4", "113 g", "0", ""}}});
    Edit(R().gridPressure, 1, PressureCol::Pressure, Any({"11", "1 atm", "0", ""}));
    const int packaging = Below(2);
    plain_.ChoosePackaging(packaging);
    document->Options().Choose(packaging ? "optKeg" : "optBottle");
}

Outcome RandomScaling::ScalePlainly(int what, double value, bool first, bool second, bool third) {
    switch (what) {
        case 0:
            return plain_.Resize(value, "size " + std::to_string(value), first, second, third);
        case 1:
            return plain_.ChangeOG(value, first);
        case 2:
            return plain_.ChangeIBU(value);
        default:
            return plain_.ChangeCO2(value);
    }
}

void RandomScaling::ScaleDocument(int what, double value, bool first, bool second, bool third) {
    host.askBefore = what == 0 && !third;
    platform.dialogs.scripts.clear();
    platform.dialogs.scripts.emplace_back([](DialogModel& dialog) { dialog.Press("cmdYes"); });
    // The question about the carbonation.
    platform.messages.answers = {Answer::No};
    if (what == 0)
        document->Scaling().ScaleRecipe(value, "size " + std::to_string(value), first, second);
    else if (what == 1)
        document->Scaling().ScaleOG(value, first);
    else if (what == 2)
        document->Scaling().ScaleIBU(value);
    else
        document->Scaling().ScaleCO2(value, Below(2) == 0 ? Asking::Quietly : Asking::Aloud);
}

void RandomScaling::ScaleOnce() {
    const int what = Below(4);
    // The commands are disabled while there is nothing to scale from.
    if (!CurrentFigure(*document, static_cast<Scaling>(what))) return;
    const double values[] = {Between(0.5, 30), Between(1, 1.12), Between(0, 90), Between(0.2, 4)};
    const double extremes[] = {1e308, what == 1 ? 1.00001 : 1e-5, what == 1 ? 1.5 : 0.003};
    const double value = Below(8) == 0 ? extremes[Below(3)] : values[what];
    const bool first = Below(2) == 0, second = Below(2) == 0, third = Below(3) > 0;
    const DocumentState before = StateOf(*document, host);
    const bool hadHistory = document->History().CanUndo();
    const Outcome wanted = ScalePlainly(what, value, first, second, third);
    ++seen_[{what, wanted}];
    const std::string name = std::to_string(what) + " to " + std::to_string(value);
    bool raised = false;
    try {
        ScaleDocument(what, value, first, second, third);
    } catch (const Error&) {
        raised = true;
        ASSERT_EQ(Differences(before.all, StateOf(*document, host).all), "") << name;
    }
    ASSERT_EQ(raised, wanted == Outcome::Raised) << name;
    ASSERT_EQ(document->History().CanUndo(), hadHistory && wanted != Outcome::Done) << name;
    ASSERT_EQ(FirstDifference(*document, host, plain_), "") << name;
}

TEST_P(RandomScaling, AgreesWithThePlainCalculation) {
    for (int round = 0; round < 250 && !HasFatalFailure(); ++round) {
        AddRows();
        MakeRecipe();
        ASSERT_EQ(FirstDifference(*document, host, plain_), "") << "recipe " << round;
        for (int i = Below(4); i >= 0 && !HasFatalFailure(); --i) ScaleOnce();
    }
    for (int what = 0; what < 4; ++what) {
        const std::string name = "scaling " + std::to_string(what);
        EXPECT_GT((seen_[{what, Outcome::Done}]), 20) << name;
        // A resize stops only if hops round to zero, which is rare.
        if (what > 0) {
            EXPECT_GT((seen_[{what, Outcome::Refused}]), 5) << name;
        }
        EXPECT_GT((seen_[{what, Outcome::Raised}]), 0) << name;
    }
}

INSTANTIATE_TEST_SUITE_P(Seeds, RandomScaling, testing::Range(1u, 7u));

}  // namespace
}  // namespace tw::test
