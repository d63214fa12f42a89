// The schema by which the tests check written BeerXML.
#include "exchange/XmlWriting.h"

namespace tw::test {
namespace {

using testing::HasSubstr;

TEST(XmlSchema, TellsWhatIsWrong) {
    const auto errorsOf = [](std::string from, const std::string& to) {
        std::string text = "<RECIPES>" + std::string(kValid) + "</RECIPES>";
        text.replace(text.find(from), from.size(), to);
        return XmlSchemaErrors(text);
    };
    EXPECT_EQ(errorsOf("<MISCS/>", "<MISCS/><UNKNOWN a='1'/>"), "");
    EXPECT_THAT(errorsOf("<MISCS/>", ""), HasSubstr("MISCS"));
    EXPECT_THAT(errorsOf("<USE>Boil</USE>", "<USE>boil</USE>"), HasSubstr("boil"));
    EXPECT_THAT(errorsOf("<ALPHA>4.50<", "<ALPHA>4.50 %<"), HasSubstr("ALPHA"));
    EXPECT_THAT(errorsOf("<ALPHA>4.50<", "<ALPHA>1e1<"), HasSubstr("ALPHA"));
    EXPECT_THAT(errorsOf("<ALPHA>4.50<", "<ALPHA>-1<"), HasSubstr("ALPHA"));
    EXPECT_THAT(errorsOf("<HSI>35</HSI>", "<HSI/>"), HasSubstr("HSI"));
    EXPECT_THAT(errorsOf("<EFFICIENCY>70</EFFICIENCY>", ""), HasSubstr("EFFICIENCY"));
    EXPECT_THAT(errorsOf("<INFUSE_AMOUNT>10</INFUSE_AMOUNT>", ""), HasSubstr("INFUSE_AMOUNT"));
    EXPECT_THAT(errorsOf("<BREWER>Ann</BREWER>", "<BREWER>Ann</BREWER><BREWER>Bob</BREWER>"),
                HasSubstr("BREWER"));
    EXPECT_THAT(errorsOf("</RECIPE>", ""), HasSubstr("well-formed"));
}

}  // namespace
}  // namespace tw::test
