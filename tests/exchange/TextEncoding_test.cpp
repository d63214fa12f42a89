// The bytes of files as UTF-8, by mark, by declared name, by what they are.
#include "exchange/TextEncoding.h"

#include "values/Utf8.h"

namespace tw {
namespace {

using std::string_literals::operator""s;

std::string Utf16(std::string_view ascii, bool bigEndian) {
    std::string bytes;
    for (const char c : ascii) bytes += bigEndian ? std::string{'\0', c} : std::string{c, '\0'};
    return bytes;
}

struct Case {
    const char* what;
    std::string bytes;
    std::string text;
    std::string encoding;
    bool guessed;
};

std::vector<Case> Cases() {
    const std::string latin = "<?xml version=\"1.0\" encoding=\"ISO-8859-1\"?>";
    const std::string utf8 = "<?xml version=\"1.0\" encoding='UTF-8'?>";
    return {
        {"nothing", "", "", "UTF-8", false},
        {"ASCII", "<A>b</A>", "<A>b</A>", "UTF-8", false},
        {"UTF-8 without a header", "<A>h\xC3\xBC</A>", "<A>hü</A>", "UTF-8", false},
        {"UTF-8 with a mark", "\xEF\xBB\xBF<A>\xC3\xBC</A>", "<A>ü</A>", "UTF-8", false},
        {"UTF-8 with its name", utf8 + "<A>\xC3\xBC</A>", utf8 + "<A>ü</A>", "UTF-8", false},
        {"UTF-8 under another name", latin + "\xC3\xBC", latin + "ü", "UTF-8", true},
        {"ASCII under another name", latin + "a", latin + "a", "UTF-8", false},
        {"an unknown name", "<?xml encoding=\"System\"?>a", "<?xml encoding=\"System\"?>a", "UTF-8", true},
        {"UTF-16 as a name of ASCII", "<?xml encoding=\"UTF-16\"?>a", "<?xml encoding=\"UTF-16\"?>a", "UTF-8",
         true},
        {"Latin-1 with its name", latin + "\xFC", latin + "ü", "Windows-1252", false},
        {"Windows-1252 that calls itself Latin-1", latin + "\x93\xFC", latin + "“ü", "Windows-1252", true},
        {"Windows-1252 with its name", "<?xml encoding=\"windows-1252\"?>\x80",
         "<?xml encoding=\"windows-1252\"?>€", "Windows-1252", false},
        {"an undefined byte", "<?xml encoding=\"windows-1252\"?>\x81",
         "<?xml encoding=\"windows-1252\"?>\xEF\xBF\xBD", "Windows-1252", true},
        {"neither a name nor UTF-8", "<A>\xFC</A>", "<A>ü</A>", "Windows-1252", true},
        {"not the UTF-8 that it says", utf8 + "\xFC\xE9 ", utf8 + "üé ", "Windows-1252", true},
        {"UTF-8 but for one byte", utf8 + "\xC3\xBC\xC3\xA4\xFC ", utf8 + "üäü ", "UTF-8", true},
        // 0xD1 is the Cyrillic letter ya of KOI8-R, 0xC1 its a.
        {"KOI8-R", "<?xml encoding=\"koi8-r\"?>\xD1\xC1 ", "<?xml encoding=\"koi8-r\"?>яа ", "KOI8-R", false},
        {"a name after a stray line", "saved\n<?xml encoding=\"ISO-8859-2\"?>\xB3 ",
         "saved\n<?xml encoding=\"ISO-8859-2\"?>ł ", "ISO-8859-2", false},
        // 0x83 0x7A is the katakana ho of Shift JIS.
        {"Shift JIS", "<?xml encoding=\"Shift_JIS\"?>\x83\x7A", "<?xml encoding=\"Shift_JIS\"?>ホ", "CP932",
         false},
        {"bytes that break their page", "<?xml encoding=\"EUC-JP\"?>\xFF ", "<?xml encoding=\"EUC-JP\"?>ÿ ",
         "Windows-1252", true},
        {"a path for a name", "<?xml encoding=\"../../x\"?>\xFC ", "<?xml encoding=\"../../x\"?>ü ",
         "Windows-1252", true},
        {"UTF-16 with a mark", "\xFF\xFE" + Utf16("<A>x</A>", false), "<A>x</A>", "UTF-16", false},
        {"UTF-16 the other way around", "\xFE\xFF" + Utf16("<A>x</A>", true), "<A>x</A>", "UTF-16", false},
        {"UTF-16 without a mark", Utf16("<A>x</A>", false), "<A>x</A>", "UTF-16", true},
        {"UTF-16 without a mark, the other way around", Utf16("a<A>x</A>", true), "a<A>x</A>", "UTF-16",
         true},
        {"UTF-16 that says so", Utf16("<?xml encoding=\"utf-16\"?>", false), "<?xml encoding=\"utf-16\"?>",
         "UTF-16", false},
        {"UTF-16 that calls itself UTF-8", "\xFF\xFE" + Utf16("<?xml encoding=\"utf-8\"?>", false),
         "<?xml encoding=\"utf-8\"?>", "UTF-16", true},
        // U+1F37A is the surrogates D83C DF7A.
        {"a pair of surrogates", "\xFE\xFF\xD8\x3C\xDF\x7A"s, "\xF0\x9F\x8D\xBA", "UTF-16", false},
        {"half a pair", "\xFE\xFF\xDF\x7A\0a"s, "\xEF\xBF\xBD"s + "a", "UTF-16", false},
        {"an odd byte at the end", "\xFF\xFE"s + "a\0b"s, "a", "UTF-16", false},
        {"a cut character", "<A>\xC3\xBC\xC3", "<A>ü", "UTF-8", false},
    };
}

TEST(TextEncoding, Table) {
    for (const Case& each : Cases()) {
        const DecodedText decoded = Decode(each.bytes);
        EXPECT_EQ(decoded.text, each.text) << each.what;
        EXPECT_EQ(decoded.encoding, each.encoding) << each.what;
        EXPECT_EQ(!decoded.remark.empty(), each.guessed) << each.what << ": " << decoded.remark;
    }
}

TEST(TextEncoding, TheRemarkNamesWhatTheFileSaysAndWhatItIs) {
    EXPECT_EQ(Decode("<?xml encoding=\"System\"?>").remark,
              "The file calls its encoding \"System\", which means nothing here. It was read as UTF-8.");
    EXPECT_EQ(Decode("<?xml encoding=\"ISO-8859-1\"?>\xC3\xBC").remark,
              "The file says that its encoding is ISO-8859-1, but its bytes are not. It was read as UTF-8.");
    EXPECT_EQ(Decode("\xFC ").remark,
              "The file does not say what its encoding is. It was read as Windows-1252.");
    EXPECT_EQ(Decode("\xC3\xBC\xC3\xBC\xFC ").remark,
              "The file is UTF-8 except for 1 byte, which was read as Windows-1252.");
}

TEST(TextEncoding, EveryNameOfThePagesIsKnownToTheComputer) {
    for (const char* name :
         {"ISO-8859-2", "ISO-8859-5",   "iso8859-7", "ISO-8859-15", "ISO-8859-16", "windows-1250",
          "cp1251",     "Windows-1257", "KOI8-R",    "KOI8-U",      "IBM437",      "CP850",
          "macintosh",  "x-mac-roman",  "Shift_JIS", "GBK",         "gb2312",      "GB18030",
          "Big5",       "EUC-JP",       "EUC-KR"}) {
        // A character or two in each of these pages, but no UTF-8.
        const DecodedText decoded = Decode("<?xml encoding=\"" + std::string(name) + "\"?>\xB0\xE9@");
        EXPECT_EQ(decoded.remark, "") << name;
    }
}

// Any bytes give valid UTF-8.
TEST(TextEncoding, AlwaysValid) {
    std::string bytes;
    for (int i = 0; i < 256; ++i)
        for (int k = 0; k < 256; k += 7) {
            bytes = {static_cast<char>(i), static_cast<char>(k), static_cast<char>(i ^ k), 'a'};
            const std::string text = Decode(bytes).text;
            for (std::string_view rest = text; !rest.empty();) {
                const CodePoint front = FrontCodePoint(rest);
                ASSERT_NE(front.value, kNoCodePoint) << i << ' ' << k;
                rest.remove_prefix(front.bytes);
            }
        }
}

}  // namespace
}  // namespace tw
