#include "exchange/FragmentTree.h"

#include <gtest/gtest.h>

namespace tw::test {
namespace {

FragmentNode Read(std::string_view format, std::string content) {
    return ReadFragment({std::string(format), "old", "05/04/2026 09:30:05", std::move(content)});
}
FragmentNode Xml(std::string content) {
    return Read(kCarriedBeerXml, std::move(content));
}
FragmentNode JsonTree(std::string content) {
    return Read(kCarriedBeerJson, std::move(content));
}

// Returns a node and all below it, one a line, two blanks a level.
std::string Lines(const FragmentNode& node, int level = 0) {
    std::string lines =
        std::string(static_cast<std::size_t>(level) * 2, ' ') + node.name + "=" + node.value + "\n";
    for (const FragmentNode& child : node.children) lines += Lines(child, level + 1);
    return lines;
}

TEST(FragmentTree, HasANodeForEachTag) {
    EXPECT_EQ(
        Lines(
            Xml("<?xml version=\"1.0\"?>\n<RECIPE>\n <NAME> Mild </NAME>\n <HOPS>\n  <HOP><NAME>Fuggle</NAME>"
                "<AMOUNT>0.02</AMOUNT></HOP>\n </HOPS>\n <X_EMPTY/>\n</RECIPE>\n")),
        "RECIPE=Mild\n"
        "  NAME=Mild\n"
        "  HOPS=\n"
        "    HOP=Fuggle\n"
        "      NAME=Fuggle\n"
        "      AMOUNT=0.02\n"
        "  X_EMPTY=\n");
}

TEST(FragmentTree, ReadsEntitiesSectionsAttributesAndLowerCase) {
    EXPECT_EQ(
        Lines(Xml("<recipe id=\" 7 \"><name>A &amp; B &lt;1&gt; &#228;</name><notes><![CDATA[<b>]]> bold"
                  "\r\nline 2</notes><!-- none --></recipe>")),
        "recipe=A & B <1> \u00e4\n"
        "  id=7\n"
        "  name=A & B <1> \u00e4\n"
        "  notes=<b> bold\nline 2\n");
}

TEST(FragmentTree, HasANodeForEachMember) {
    EXPECT_EQ(Lines(JsonTree(R"({"name": "Mild", "batch_size": {"unit": "l", "value": 20},
                                 "efficiency": {"brewhouse": {"value": 72.5, "unit": "%"}},
                                 "hops": [{"name": "Fuggle", "amount": {"value": 1, "unit": "oz", "note": "x"}}, "none"],
                                 "vegan": true, "author": null})")),
              "recipe=Mild\n"
              "  name=Mild\n"
              "  batch_size=20 l\n"
              "  efficiency=\n"
              "    brewhouse=72.5 %\n"
              "  hops=\n"
              "    1=Fuggle\n"
              "      name=Fuggle\n"
              "      amount=\n"
              "        value=1\n"
              "        unit=oz\n"
              "        note=x\n"
              "    2=none\n"
              "  vegan=true\n"
              "  author=null\n");
}

// Whatever stands in the table, the brewer sees it.
TEST(FragmentTree, ShowsAnythingElseAsItStands) {
    for (const char* content : {"", "mild", "<RECIPE>", "<A></B>", "<A/><B/>", "{\"a\": 1}", "<!-- -->"})
        EXPECT_EQ(Lines(Xml(content)), "text=" + std::string(content) + "\n");
    for (const char* content : {"", "{", "{\"a\": 1} x", "<RECIPE/>"})
        EXPECT_EQ(Lines(JsonTree(content)), "text=" + std::string(content) + "\n");
    EXPECT_EQ(Lines(Read("yaml", " a: 1 ")), "text=a: 1\n");
}

TEST(FragmentTree, TakesAnyDepth) {
    const auto nested = [](int levels) {
        std::string text;
        for (int i = 0; i < levels; ++i) text += "<A>";
        for (int i = 0; i < levels; ++i) text += "</A>";
        return text;
    };
    EXPECT_EQ(Xml(nested(kMostFragmentLevels)).name, "A");
    EXPECT_EQ(Xml(nested(kMostFragmentLevels + 1)).name, "text");
    EXPECT_EQ(Xml(nested(200'000)).name, "text");
    EXPECT_EQ(JsonTree(std::string(200'000, '[')).name, "text");
}

}  // namespace
}  // namespace tw::test
