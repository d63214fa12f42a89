// Recipes on their way to another program: what goes back as it came, and what has changed.
#include "doctor/RecipeExporter.h"

#include "DoctorTest.h"
#include "doctor/ForeignImport.h"
#include "exchange/ForeignFileReader.h"
#include "store/CarriedData.h"
#include "store/RecipeRows.h"
#include "support/RecordingHost.h"

namespace tw::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr std::string_view kFile = R"(<?xml version="1.0" encoding="UTF-8"?>
<RECIPES><RECIPE><NAME>Visitor</NAME><VERSION>1</VERSION><TYPE>All Grain</TYPE><BREWER>Bo</BREWER>
<BATCH_SIZE>20</BATCH_SIZE><BOIL_SIZE>24</BOIL_SIZE><BOIL_TIME>60</BOIL_TIME><EFFICIENCY>72</EFFICIENCY>
<FERMENTABLES>
<FERMENTABLE><NAME>Garden Malt</NAME><VERSION>1</VERSION><TYPE>Grain</TYPE><AMOUNT>4.5</AMOUNT><YIELD>80</YIELD>
<COLOR>2.5</COLOR><ORIGIN>Home</ORIGIN></FERMENTABLE>
<FERMENTABLE><NAME>Beet Sugar</NAME><VERSION>1</VERSION><TYPE>Sugar</TYPE><AMOUNT>0.3</AMOUNT><YIELD>100</YIELD>
<COLOR>1</COLOR></FERMENTABLE>
</FERMENTABLES>
<HOPS>
<HOP><NAME>Garden Hop</NAME><VERSION>1</VERSION><ALPHA>7.5</ALPHA><AMOUNT>0.03</AMOUNT><USE>Boil</USE><TIME>60</TIME>
<FORM>Leaf</FORM></HOP>
<HOP><NAME>Garden Hop</NAME><VERSION>1</VERSION><ALPHA>7.5</ALPHA><AMOUNT>0.02</AMOUNT><USE>Aroma</USE><TIME>15</TIME>
<FORM>Leaf</FORM></HOP>
<HOP><NAME>Garden Hop</NAME><VERSION>1</VERSION><ALPHA>7.5</ALPHA><AMOUNT>0.04</AMOUNT><USE>Dry Hop</USE>
<TIME>4320</TIME><FORM>Leaf</FORM></HOP>
</HOPS>
<MISCS><MISC><NAME>Gypsum</NAME><VERSION>1</VERSION><TYPE>Water Agent</TYPE><USE>Mash</USE><TIME>0</TIME>
<AMOUNT>0.004</AMOUNT><AMOUNT_IS_WEIGHT>TRUE</AMOUNT_IS_WEIGHT></MISC></MISCS>
<YEASTS><YEAST><NAME>House Ale</NAME><VERSION>1</VERSION><TYPE>Ale</TYPE><FORM>Dry</FORM><AMOUNT>0.011</AMOUNT>
<AMOUNT_IS_WEIGHT>TRUE</AMOUNT_IS_WEIGHT></YEAST></YEASTS>
<WATERS/><OG>1.056</OG><NOTES>Line one.</NOTES></RECIPE></RECIPES>)";

class NoConflicts final : public CopyHost {
  public:
    bool Continue(const std::string&, int, int) override { return true; }
    ConflictAnswer ResolveConflict(const std::string&, const std::string&) override { return {}; }
    bool ContinueAfter(const std::string&) override { return false; }
};

class Exporting : public DoctorTest {
  protected:
    Exporting() {
        const ForeignFile file = *ReadForeignFile(kFile);
        NoConflicts host;
        Findings ignored;
        EXPECT_EQ(ForeignImport(doctor, catalogue, host).Run(file, "v.xml", {{0}, 0, {}}, ignored), 1);
    }

    // Opens the stored recipe, lets change work on it, and saves it.
    void Edit(const std::function<void(RecipeDocument&)>& change) {
        RecipeDocument document(editing, platform.platform, *database, colors, 0);
        editing.documents = {&document};
        document.Storage().Open("Visitor");
        change(document);
        ASSERT_TRUE(document.Storage().Save(SaveAs::No, Asking::Quietly));
        editing.documents.clear();
    }
    ExportedRecipe Prepare(ExchangeFormat format = ExchangeFormat::BeerXml) {
        return RecipeExporter(*database, platform.platform, colors, ImportUnits::AsInFile,
                              {"75%", "1", "", "6 gal", "5 gal"})
            .Prepare("Visitor", format, findings);
    }
    // Returns the origins as "0=" for an unchanged element 0, "1" for a changed one, "new" for none.
    static std::vector<std::string> Origins(const std::vector<LineOrigin>& origins) {
        std::vector<std::string> texts;
        for (const LineOrigin& origin : origins)
            texts.push_back(origin.element ? std::to_string(*origin.element) + (origin.unchanged ? "=" : "")
                                           : "new");
        return texts;
    }

    RecordingHost editing{*database, platform.clock};
    Findings findings;
};

TEST_F(Exporting, WhatNobodyHasTouchedGoesBackAsItCame) {
    const ExportedRecipe exported = Prepare();
    EXPECT_TRUE(exported.changed.empty());
    EXPECT_TRUE(exported.facts.waters.empty());
    EXPECT_THAT(Origins(exported.fermentables), ElementsAre("0=", "1="));
    EXPECT_THAT(Origins(exported.hops), ElementsAre("0=", "1=", "2="));
    EXPECT_THAT(Origins(exported.miscs), ElementsAre("0="));
    EXPECT_THAT(Origins(exported.yeasts), ElementsAre("0="));
    EXPECT_EQ(exported.facts.hops[1].use, ForeignUse::Aroma);
    EXPECT_EQ(exported.facts.hops[1].minutes, 15);
    EXPECT_EQ(exported.facts.brewer, "Bo");
    EXPECT_FALSE(exported.facts.fragment.empty());
    EXPECT_TRUE(findings.IsEmpty());
}

TEST_F(Exporting, OnlyTheRowThatWasEditedIsWrittenAnew) {
    Edit([](RecipeDocument& document) {
        document.Cells().EditCell(document.Record().gridHops, 2, HopCol::Amount, "1 oz");
    });
    const ExportedRecipe exported = Prepare();
    EXPECT_THAT(Origins(exported.hops), ElementsAre("0=", "1", "2="));
    EXPECT_DOUBLE_EQ(exported.facts.hops[1].amount->value, 0.028349523125);
    // It still stands after the boil.
    EXPECT_EQ(exported.facts.hops[1].use, ForeignUse::Aroma);
    EXPECT_EQ(exported.facts.hops[1].minutes, 15);
    // The figures of the other program no longer count.
    EXPECT_TRUE(exported.changed.contains(ExportedField::OriginalGravity));
    EXPECT_FALSE(exported.changed.contains(ExportedField::BatchSize));
}

TEST_F(Exporting, RowsThatAreGoneAndNewAreFound) {
    Edit([](RecipeDocument& document) {
        Grid& hops = document.Record().gridHops;
        hops.SetCurrent(1, 0);
        document.Lines().DeleteRowForGrid(hops);
        document.Lines().AppendRow(document.Record().gridGrain);
        Grid& grain = document.Record().gridGrain;
        const int row = grain.EndOfData() - 1;
        document.Cells().EditCell(grain, row, GrainCol::Name, "Brown Malt");
        document.Cells().EditCell(grain, row, GrainCol::Amount, "1 lb");
    });
    const ExportedRecipe exported = Prepare();
    EXPECT_THAT(Origins(exported.hops), ElementsAre("1=", "2="));
    EXPECT_THAT(Origins(exported.fermentables), ElementsAre("0=", "new", "1="));
    EXPECT_EQ(exported.facts.fermentables[1].name, "Brown Malt");
    EXPECT_DOUBLE_EQ(exported.facts.fermentables[1].amount->value, 0.45359237);
}

TEST_F(Exporting, FieldsThatWereEditedAreWrittenAnew) {
    Edit([](RecipeDocument& document) {
        RecipeRecord& r = document.Record();
        document.Fields().SetText(r.txtTotalVol, "5 gal");
        document.Fields().CommitField(r.txtTotalVol);
        document.Fields().SetText(r.txtNotes, "Another line.");
        document.Fields().CommitField(r.txtNotes);
    });
    const ExportedRecipe exported = Prepare();
    EXPECT_TRUE(exported.changed.contains(ExportedField::BatchSize));
    EXPECT_TRUE(exported.changed.contains(ExportedField::Notes));
    EXPECT_FALSE(exported.changed.contains(ExportedField::BoilSize));
    EXPECT_DOUBLE_EQ(exported.facts.batchSize->value, 18.92705892);
    EXPECT_EQ(exported.facts.notes, "Another line.");
}

TEST_F(Exporting, WhatNoFormatHasAPlaceForIsTold) {
    Edit([](RecipeDocument& document) {
        RecipeRecord& r = document.Record();
        for (const auto& [box, text] : {std::pair(&r.txtNumBatches, "2"), std::pair(&r.txtDilutions, "1 gal"),
                                        std::pair(&r.txtFinalVol, "6 gal")}) {
            document.Fields().SetText(*box, text);
            ASSERT_TRUE(document.Fields().CommitField(*box, Asking::Quietly));
        }
        document.Cells().EditCell(r.gridWater, WaterRow::Target, WaterCol::Profile, "Hill Spring");
    });
    Prepare();
    ASSERT_EQ(findings.All().size(), 1u);
    EXPECT_EQ(findings.All()[0].text,
              "Other programs have no place for: number of batches, target water, dilutions, final volume.");
    EXPECT_EQ(findings.All()[0].severity, Severity::NotCarried);
}

TEST_F(Exporting, TheOtherFormatGetsTheFactsButNotTheText) {
    const ExportedRecipe exported = Prepare(ExchangeFormat::BeerJson);
    EXPECT_TRUE(exported.facts.fragment.empty());
    EXPECT_EQ(exported.facts.hops[1].use, ForeignUse::Aroma);
    EXPECT_EQ(exported.facts.brewer, "Bo");
}

TEST_F(Exporting, ARecipeThatCarriesNothingIsWrittenFromItsRows) {
    CarriedData(*database).Drop(*RecipeId(*database, "Visitor"));
    const ExportedRecipe exported = Prepare();
    EXPECT_THAT(Origins(exported.fermentables), ElementsAre("new", "new"));
    EXPECT_EQ(exported.facts.type, ForeignRecipe::Type::AllGrain);
    EXPECT_EQ(exported.facts.fermentables[1].type, ForeignFermentable::Type::Sugar);
    EXPECT_NEAR(*exported.facts.fermentables[0].yield, 80, 0.01);
    EXPECT_EQ(exported.facts.hops[1].use, ForeignUse::Boil);
    EXPECT_EQ(exported.facts.hops[1].minutes, 0);
    EXPECT_EQ(exported.facts.hops[2].use, ForeignUse::Primary);
    EXPECT_EQ(exported.facts.hops[2].minutes, 4320);
    EXPECT_EQ(exported.facts.miscs[0].type, "Water Agent");
    EXPECT_DOUBLE_EQ(exported.facts.miscs[0].amount->value, 0.004);
    EXPECT_EQ(exported.facts.yeasts[0].name, "House Ale");
    EXPECT_NEAR(*exported.facts.stated.og, 1.056, 0.0005);
    EXPECT_EQ(exported.facts.efficiency, 72);
}

}  // namespace
}  // namespace tw::test
