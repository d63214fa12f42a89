#include "exchange/FileKind.h"

#include <gtest/gtest.h>
#include <string>

namespace tw {

void PrintTo(FileKind kind, std::ostream* out) {
    *out << static_cast<int>(kind);
}

namespace {

// Returns ASCII text as UTF-16 behind its byte order mark.
std::string Utf16(std::string_view text, bool bigEndian) {
    std::string bytes = bigEndian ? "\xFE\xFF" : "\xFF\xFE";
    for (const char c : text) {
        if (bigEndian) bytes += '\0';
        bytes += c;
        if (!bigEndian) bytes += '\0';
    }
    return bytes;
}

TEST(FileKind, BeerXmlHasARecordOrRecordSetAsATag) {
    for (const char* text :
         {"<RECIPES>", "<?xml version=\"1.0\"?>\n<recipes>", "A stray line\n<RECIPES>", "<HOP >",
          "<recipe id=\"1\">", "<RECIPES/>", "<!-- made by hand -->\n<Yeasts>", "<data><export><HOPS>",
          "<STYLE>\n <NAME>Stout</NAME>", "<styles>", "<MASHS><MASH>", "\xEF\xBB\xBF<HOPS>",
          "<!DOCTYPE RECIPES SYSTEM \"recipes.dtd\"><RECIPES>", "<NOTES>\x01</NOTES><RECIPES><RECIPE>",
          "<RECIPES><RECIPE><NOTES><html><body></NOTES>"})
        EXPECT_EQ(KindOf(text), FileKind::BeerXml) << text;
    EXPECT_EQ(KindOf(Utf16("<RECIPES>", false)), FileKind::BeerXml);
    EXPECT_EQ(KindOf(Utf16("<RECIPES>", true)), FileKind::BeerXml);
}

TEST(FileKind, TheTagStandsInTheFirst4096Characters) {
    // Characters of two bytes count once.
    std::string before;
    for (int i = 0; i < 4096 - 6; ++i) before += "\xC3\xA9";
    EXPECT_EQ(KindOf(before + "<HOPS>"), FileKind::BeerXml);
    EXPECT_EQ(KindOf(before + " <HOPS>"), FileKind::Other);
}

TEST(FileKind, WebPagesAndDrawingsAreNoBeerXml) {
    for (const char* text :
         {"<!DOCTYPE html>\n<html><head><style>", "<html><STYLE>body{}</STYLE>", "<HTML><BODY><MASH>",
          "<style>p { }</style><p>Beer</p>", "<?xml version=\"1.0\"?><svg><style>a{}</style></svg>",
          "<!doctype HTML><recipe>", "<!-- <HOPS> -->", "</HOPS>", "<HOPSX>", "< HOPS>", "HOPS", "<HOPS",
          "<gpx><name>Tour</name></gpx>"})
        EXPECT_EQ(KindOf(text), FileKind::Other) << text;
}

TEST(FileKind, TheDraftOfTheSecondVersionIsKnown) {
    EXPECT_EQ(KindOf("<BEER_XML><RECIPES><RECIPE>"), FileKind::BeerXml);
    EXPECT_EQ(KindOf("<?xml version=\"1.0\"?><beer_xml version=\"2.0\"><recipes><recipe>"),
              FileKind::BeerXml2Draft);
}

TEST(FileKind, BeerJsonHasItsKey) {
    for (const char* text :
         {"{\"beerjson\": {}}", " \r\n{\n \"beerjson\" : {", "\xEF\xBB\xBF{\"beerjson\":{}}",
          "// a comment\n{\"beerjson\":{}}", "/* a comment */ {\"beerjson\":{}}",
          "{\"made\": \"beerjson\", \"beerjson\": {}}"})
        EXPECT_EQ(KindOf(text), FileKind::BeerJson) << text;
    EXPECT_EQ(KindOf(Utf16("{\"beerjson\":{}}", false)), FileKind::BeerJson);
}

TEST(FileKind, OtherJsonIsNoBeerJson) {
    for (const char* text : {"{\"recipes\": []}", "{\"format\": \"beerjson\"}", "[\"beerjson\"]", "{}",
                             "{\"text\": \"<RECIPES>\"}", "\"beerjson\": {}"})
        EXPECT_EQ(KindOf(text), FileKind::Other) << text;
}

TEST(FileKind, AnythingElseIsUnknown) {
    for (const std::string& bytes :
         {std::string(), std::string("NAME\tStout\r\n"), std::string("SQLite format 3\0 <HOPS>", 24),
          std::string("PK\3\4\0\0\0\0\0\0<HOPS>", 16), std::string("\xFF\xFE", 2),
          std::string("\xFF\xFE<", 3), std::string(100, '\0')})
        EXPECT_EQ(KindOf(bytes), FileKind::Other) << bytes;
}

}  // namespace
}  // namespace tw
