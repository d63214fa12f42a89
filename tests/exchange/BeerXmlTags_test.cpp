// The table of tags: what each means and where it may stand.
#include "exchange/BeerXmlTags.h"

#include "exchange/Finding.h"

namespace tw {
namespace {

TEST(BeerXmlTags, RecordsAreIndexedByTheirKind) {
    for (std::size_t i = 0; i < kXmlRecords; ++i)
        EXPECT_EQ(RuleOf(static_cast<XmlRecord>(i)).record, static_cast<XmlRecord>(i));
}

TEST(BeerXmlTags, RecordsAndSetsAreFoundInAnyCase) {
    ASSERT_NE(RecordOfTag("hop"), nullptr);
    EXPECT_EQ(RecordOfTag("hop")->record, XmlRecord::Hop);
    ASSERT_NE(RecordOfSet("Mashs"), nullptr);
    EXPECT_EQ(RecordOfSet("Mashs")->record, XmlRecord::Mash);
    EXPECT_EQ(RecordOfTag("HOPS"), nullptr);
    EXPECT_EQ(RecordOfSet("HOP"), nullptr);
}

TEST(BeerXmlTags, AFieldBelongsToItsRecord) {
    ASSERT_NE(FieldOf(XmlRecord::Fermentable, "Yield"), nullptr);
    EXPECT_EQ(FieldOf(XmlRecord::Fermentable, "Yield")->holds, XmlHolds::Percent);
    EXPECT_EQ(FieldOf(XmlRecord::Fermentable, "ALPHA"), nullptr);
    EXPECT_EQ(FieldOf(XmlRecord::Hop, "USE")->words.size(), 5U);
}

TEST(BeerXmlTags, EveryRecordHasNameAndVersionFirst) {
    for (const XmlRecordRule& rule : XmlRecordRules()) {
        EXPECT_EQ(rule.fields.front().tag, "NAME");
        EXPECT_EQ(FieldOf(rule.record, "VERSION")->need, XmlNeed::Required) << rule.tag;
    }
}

TEST(BeerXmlTags, SingleRecordsStandInARecipeAndSetsAtTheTop) {
    EXPECT_TRUE(MayStandIn("STYLE", "RECIPE"));
    EXPECT_TRUE(MayStandIn("style", "styles"));
    EXPECT_TRUE(MayStandIn("HOPS", ""));
    EXPECT_TRUE(MayStandIn("RECIPE", ""));
    EXPECT_FALSE(MayStandIn("HOP", "RECIPE"));
    EXPECT_FALSE(MayStandIn("HOP", "HOP"));
    EXPECT_FALSE(MayStandIn("ALPHA", "FERMENTABLE"));
    EXPECT_FALSE(MayStandIn("WRAPPER", ""));
    EXPECT_FALSE(IsXmlTag("WRAPPER"));
}

TEST(Finding, EveryCodeHasItsWord) {
    EXPECT_EQ(WordOf(FindingCode::Encoding), "encoding");
    EXPECT_EQ(WordOf(FindingCode::ColourDiffers), "colour-differs");
    EXPECT_EQ(WordOf(FindingCode::NewEntry), "new-entry");
    EXPECT_EQ(WordOf(Severity::Refused), "refused");
}

TEST(Finding, OfEachCodeSoManyAreKept) {
    Findings findings;
    for (std::size_t i = 0; i < Findings::kKeptOfOneCode + 5; ++i)
        findings.Add({Severity::Repaired, FindingCode::BareAmpersand, "", "line 1", "text"});
    findings.Add({Severity::Repaired, FindingCode::Doctype, "", "line 1", "text"});
    EXPECT_EQ(findings.All().size(), Findings::kKeptOfOneCode + 1);
    EXPECT_EQ(findings.Dropped(FindingCode::BareAmpersand), 5U);
    EXPECT_EQ(findings.Dropped(FindingCode::Doctype), 0U);
}

}  // namespace
}  // namespace tw
