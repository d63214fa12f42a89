#include "record/Entries.h"

#include <gtest/gtest.h>

#include "platform/Error.h"
#include "record/FieldRules.h"

namespace tw::test {
namespace {

class Entries : public testing::Test {
  protected:
    Entries() { r.gridHops.InsertRow(1); }
    RecipeRecord r;
};

TEST_F(Entries, AFieldTellsItsNumberInTheUnitOfItsRule) {
    EXPECT_EQ(*ReadEntry(r.txtTotalVol, "12 qt"), 3);
    EXPECT_EQ(*ReadEntry(r.txtHopExtraction, ""), 1);
    EXPECT_EQ(ReadEntry(r.txtHopExtraction, "-1").Why().text, "Please enter a positive decimal number");
    r.txtNotes.SetValue(7);
    EXPECT_EQ(*ReadEntry(r.txtNotes, "any words"), 7);
}

TEST_F(Entries, ARefusalSaysWhatWouldBeAccepted) {
    EXPECT_EQ(ReadEntry(r.gridHops, 1, HopCol::Amount, "much").Why().advice,
              "For example 1 oz, 28 g, 8 AAU, 20 IBU");
    for (const char* const amount : {"1 oz", "28 g", "8 AAU", "20 IBU"})
        EXPECT_TRUE(ReadEntry(r.gridHops, 1, HopCol::Amount, amount)) << amount;
    EXPECT_EQ(ReadEntry(r.gridGrain, 1, GrainCol::Ppg, "-1").Why().advice, "For example 36, 1.5");
    EXPECT_EQ(ReadEntry(r.txtHopExtraction, "x").Why().advice, "For example 1, 0.9");
}

TEST_F(Entries, ABlankCellHasNoNumber) {
    EXPECT_EQ(*ReadEntry(r.gridHops, 1, HopCol::Amount, "  "), CellValue{});
}

TEST_F(Entries, ATimeIsWordsWhileItsHopsAreDry) {
    EXPECT_EQ(*ReadEntry(r.gridHops, 1, HopCol::Time, "1 hr"), CellValue::Of(60));
    EXPECT_FALSE(ReadEntry(r.gridHops, 1, HopCol::Time, "3 days"));
    r.gridHops.SetChecked(1, HopCol::DryHopped, true);
    EXPECT_EQ(*ReadEntry(r.gridHops, 1, HopCol::Time, "3 days"), CellValue{});
}

TEST_F(Entries, AHopAmountIsOfThreeKinds) {
    using Kind = CellValue::Kind;
    EXPECT_EQ(*ReadEntry(r.gridHops, 1, HopCol::Amount, "1 lb"), (CellValue{Kind::Number, 16}));
    EXPECT_EQ(*ReadEntry(r.gridHops, 1, HopCol::Amount, "8 AAU"), (CellValue{Kind::AlphaAcidUnits, 8}));
    EXPECT_EQ(*ReadEntry(r.gridHops, 1, HopCol::Amount, "20 IBU"), (CellValue{Kind::BitternessUnits, 20}));
}

TEST_F(Entries, ADamagedTextTellsNoNumber) {
    EXPECT_THROW((void)ReadEntry(r.txtTotalVol, "1/0 gal"), Error);
    EXPECT_EQ(NumberTold(r.txtTotalVol, "1/0 gal"), std::nullopt);
    EXPECT_EQ(NumberTold(r.txtTotalVol, "much"), std::nullopt);
    EXPECT_EQ(NumberTold(r.gridHops, 1, HopCol::AlphaAcid, "1/0 %"), std::nullopt);
}

TEST_F(Entries, OwnNumbersAreThoseThatTheTextDoesNotTell) {
    r.txtFG.SetText("1.012");
    r.txtFG.SetCommitted("1.012");
    r.txtFG.SetValue(1.01234);
    r.txtTotalVol.SetText("5 gal");
    r.txtTotalVol.SetCommitted("5 gal");
    r.txtTotalVol.SetValue(5);
    r.gridHops.SetText(1, HopCol::Time, "60");
    r.gridHops.SetValue(1, HopCol::Time, CellValue::Of(61));
    r.gridHops.SetText(1, HopCol::Amount, "2 oz");
    r.gridHops.SetValue(1, HopCol::Amount, CellValue::Of(2));
    // No volume is 0, so this text tells no number.
    r.txtBoilVol.SetText("0 gal.");
    r.txtBoilVol.SetCommitted("0 gal.");
    r.txtBoilVol.SetValue(0);
    MarkOwnNumbers(r);
    EXPECT_TRUE(r.txtBoilVol.HasOwnNumber());
    EXPECT_TRUE(r.txtFG.HasOwnNumber());
    EXPECT_FALSE(r.txtTotalVol.HasOwnNumber());
    EXPECT_TRUE(r.gridHops.At(1, HopCol::Time).ownNumber);
    EXPECT_FALSE(r.gridHops.At(1, HopCol::Amount).ownNumber);
}

TEST_F(Entries, AFieldIsCalledByItsCaption) {
    EXPECT_EQ(PlainCaption(RuleOf(r.txtBoilVol)), "Boil Volume");
    EXPECT_EQ(PlainCaption(RuleOf(r.txtExtract)), "Extraction Rate");
    EXPECT_EQ(PlainCaption(RuleOf(r.txtTemp)), "Temperature");
}

}  // namespace
}  // namespace tw::test
