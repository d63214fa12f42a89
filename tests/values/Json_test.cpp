#include "values/Json.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>

namespace tw::test {
namespace {

using testing::HasSubstr;

std::string WhyNot(const std::string& text) {
    try {
        ParseJson(text);
    } catch (const Error& error) {
        return error.Description();
    }
    return "";
}

std::string Salvaged(const std::string& text) {
    return DumpJson(SalvageJson(text).value);
}

TEST(Json, ReadsEveryKindOfValue) {
    const Json value =
        ParseJson(R"({"a": null, "b": true, "c": -3, "d": 2.5e1, "e": "x\u00e9\n", "f": [1]})").value;
    EXPECT_TRUE(value.Find("a")->IsNull());
    EXPECT_TRUE(*value.Find("b")->AsBool());
    EXPECT_EQ(*value.Find("c")->AsInteger(), -3);
    EXPECT_EQ(value.Find("d")->AsInteger(), nullptr);
    EXPECT_EQ(value.Find("d")->AsNumber(), 25);
    EXPECT_EQ(*value.Find("e")->AsText(), "x\xC3\xA9\n");
    EXPECT_EQ(value.Find("f")->AsArray()->size(), 1U);
    EXPECT_EQ(value.Find("g"), nullptr);
    EXPECT_EQ(value.Find("f")->Find("a"), nullptr);
}

TEST(Json, KeepsTheOrderOfMembersAndTheFirstOfTwo) {
    const Json value = ParseJson(R"({"z": 1, "a": 2, "z": 3})").value;
    EXPECT_EQ(value.AsObject()->size(), 3U);
    EXPECT_EQ(*value.Find("z")->AsInteger(), 1);
    EXPECT_EQ(DumpJson(value), R"({"z":1,"a":2,"z":3})");
}

TEST(Json, DistinguishesIntegersFromOtherNumbers) {
    EXPECT_EQ(DumpJson(ParseJson("[1, 1.0, 1e2, -0.5]").value), "[1,1.0,100.0,-0.5]");
    EXPECT_FALSE(ParseJson("1").value == ParseJson("1.0").value);
    // One more than 64 bits hold with a sign.
    EXPECT_EQ(ParseJson("9223372036854775808").value.AsNumber(), 9223372036854775808.0);
    EXPECT_EQ(*ParseJson("9223372036854775807").value.AsInteger(), 9223372036854775807);
}

TEST(Json, WritesOneLineOrALineForEachMember) {
    Json value;
    value.Add("name", Json("A \"b\" \\ \x01 \xFF"));
    Json list;
    list.Append(Json(std::int64_t{1}));
    list.Append(Json());
    value.Add("list", list);
    value.Add("none", Json(Json::Object()));
    EXPECT_EQ(DumpJson(value),
              "{\"name\":\"A \\\"b\\\" \\\\ \\u0001 \xEF\xBF\xBD\",\"list\":[1,null],\"none\":{}}");
    EXPECT_EQ(DumpJson(list, JsonLayout::Indented), "[\n  1,\n  null\n]");
    EXPECT_EQ(DumpJson(ParseJson(R"({"a":{"b":2}})").value, JsonLayout::Indented),
              "{\n  \"a\": {\n    \"b\": 2\n  }\n}");
}

TEST(Json, AcceptsAndReportsCommentsAndSpareCommas) {
    const JsonReading reading = ParseJson("// first\n{\n \"a\": [1, 2, /* , ] */ ],\n}");
    EXPECT_EQ(DumpJson(reading.value), R"({"a":[1,2]})");
    EXPECT_EQ(reading.commentLine, 1);
    EXPECT_EQ(reading.spareCommaLine, 3);
    const JsonReading plain = ParseJson(R"({"a": "// no /* comment, ]"})");
    EXPECT_EQ(*plain.value.Find("a")->AsText(), "// no /* comment, ]");
    EXPECT_EQ(plain.commentLine, 0);
    EXPECT_EQ(plain.spareCommaLine, 0);
    EXPECT_EQ(ParseJson("{\"a\": \"\\\",]\"\n,\n}").spareCommaLine, 2);
}

TEST(Json, CountsTheLinesWithinTexts) {
    EXPECT_EQ(ParseJson("{\n\"a\": \"b\\\"\",\n\"c\": \"d\",\n}").spareCommaLine, 3);
}

TEST(Json, WritesTextsBetweenTheirMarks) {
    EXPECT_EQ(DumpJson(Json("plain \"quoted\" \\ back\nline\t\xC3\xA9\xFF end")),
              "\"plain \\\"quoted\\\" \\\\ back\\nline\\u0009\xC3\xA9\xEF\xBF\xBD end\"");
}

TEST(Json, AcceptsAByteOrderMark) {
    EXPECT_EQ(DumpJson(ParseJson("\xEF\xBB\xBF[1]").value), "[1]");
}

TEST(Json, SaysWhereATextIsWrong) {
    EXPECT_THAT(WhyNot("{\n  \"a\": 1,\n  \"b\" 2\n}"), HasSubstr("line 3"));
    EXPECT_THAT(WhyNot("[1, 2"), HasSubstr("ends too early (line 1"));
    EXPECT_NE(WhyNot(""), "");
    EXPECT_NE(WhyNot("[,]"), "");
    EXPECT_NE(WhyNot("[1,,]"), "");
    EXPECT_NE(WhyNot("{\"a\": 1} x"), "");
    EXPECT_NE(WhyNot("[1e400]"), "");
    EXPECT_NE(WhyNot("[NaN]"), "");
    EXPECT_NE(WhyNot("[\"\xFF\"]"), "");
}

TEST(Json, RefusesWhatIsTooDeepOrTooLarge) {
    const std::string deepest = std::string(kMostJsonDepth, '[') + std::string(kMostJsonDepth, ']');
    EXPECT_EQ(DumpJson(ParseJson(deepest).value), deepest);
    EXPECT_THAT(WhyNot("[" + deepest + "]"), HasSubstr("256 levels"));
    EXPECT_THAT(WhyNot(std::string(200'000, '[')), HasSubstr("256 levels"));
    EXPECT_THAT(WhyNot(std::string(kMostJsonBytes + 1, ' ')), HasSubstr("64 megabytes"));
}

TEST(Json, SalvagesWhatStandsBeforeTheEnd) {
    EXPECT_EQ(Salvaged(R"({"a": [1, {"b": "x"}, {"c": "y)"), R"({"a":[1,{"b":"x"},{}]})");
    EXPECT_EQ(Salvaged(R"({"a": 1, "b")"), R"({"a":1})");
    EXPECT_EQ(Salvaged("[1, 2, ? 3]"), "[1,2]");
    EXPECT_EQ(Salvaged("{} x"), "{}");
    EXPECT_EQ(Salvaged(R"({"a": 1, "b": 12)"), R"({"a":1})");
    EXPECT_EQ(Salvaged("[1, 2"), "[1]");
    EXPECT_EQ(Salvaged("[1, 2 "), "[1,2]");
    EXPECT_EQ(Salvaged("[1, 2// 3"), "[1,2]");
    EXPECT_EQ(Salvaged("[1, 2 \n\n\""), "[1,2]");
    EXPECT_EQ(Salvaged(R"([1, "a\"2)"), "[1]");
    EXPECT_EQ(Salvaged(R"({"a": 1, "b": "x, 1)"), R"({"a":1})");
    EXPECT_EQ(Salvaged("[1, \"2\""), R"([1,"2"])");
    EXPECT_NE(SalvageJson("[1").brokenOff, "");
    EXPECT_EQ(SalvageJson("[1]").brokenOff, "");
    EXPECT_THROW(SalvageJson("?"), Error);
    EXPECT_THROW(SalvageJson(std::string(300, '[')), Error);
}

}  // namespace
}  // namespace tw::test
