#include "exchange/TextEncoding.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdint>
#include <cstring>
#include <iconv.h>
#include <optional>

#include "exchange/AsciiCase.h"
#include "values/Utf8.h"

namespace tw {
namespace {

constexpr std::string_view kUtf8Mark = "\xEF\xBB\xBF";
constexpr std::string_view kLittleMark = "\xFF\xFE";
constexpr std::string_view kBigMark = "\xFE\xFF";
constexpr std::int32_t kReplacement = 0xFFFD;

enum class Family : std::uint8_t { Utf8, Utf16, Western, Page, WidePage };

// What a file may call an encoding. The names of pages are those of iconv; no other name ever reaches it.
struct NamedEncoding {
    std::string_view name;  // in upper case without punctuation
    Family family;
    const char* page;  // how a reader knows it
};

constexpr NamedEncoding kNamed[] = {
    {"UTF8", Family::Utf8, "UTF-8"},
    {"ASCII", Family::Utf8, "ASCII"},
    {"USASCII", Family::Utf8, "ASCII"},
    {"UTF16", Family::Utf16, "UTF-16"},
    {"UTF16LE", Family::Utf16, "UTF-16"},
    {"UTF16BE", Family::Utf16, "UTF-16"},
    {"UCS2", Family::Utf16, "UTF-16"},
    {"UNICODE", Family::Utf16, "UTF-16"},
    {"ISO88591", Family::Western, "ISO-8859-1"},
    {"LATIN1", Family::Western, "ISO-8859-1"},
    {"WINDOWS1252", Family::Western, "Windows-1252"},
    {"CP1252", Family::Western, "Windows-1252"},
    {"ISO88592", Family::Page, "ISO-8859-2"},
    {"LATIN2", Family::Page, "ISO-8859-2"},
    {"ISO88593", Family::Page, "ISO-8859-3"},
    {"LATIN3", Family::Page, "ISO-8859-3"},
    {"ISO88594", Family::Page, "ISO-8859-4"},
    {"LATIN4", Family::Page, "ISO-8859-4"},
    {"ISO88595", Family::Page, "ISO-8859-5"},
    {"ISO88596", Family::Page, "ISO-8859-6"},
    {"ISO88597", Family::Page, "ISO-8859-7"},
    {"ISO88598", Family::Page, "ISO-8859-8"},
    {"ISO88599", Family::Page, "ISO-8859-9"},
    {"LATIN5", Family::Page, "ISO-8859-9"},
    {"ISO885910", Family::Page, "ISO-8859-10"},
    {"ISO885911", Family::Page, "ISO-8859-11"},
    {"ISO885913", Family::Page, "ISO-8859-13"},
    {"ISO885914", Family::Page, "ISO-8859-14"},
    {"ISO885915", Family::Page, "ISO-8859-15"},
    {"LATIN9", Family::Page, "ISO-8859-15"},
    {"ISO885916", Family::Page, "ISO-8859-16"},
    {"WINDOWS1250", Family::Page, "CP1250"},
    {"CP1250", Family::Page, "CP1250"},
    {"WINDOWS1251", Family::Page, "CP1251"},
    {"CP1251", Family::Page, "CP1251"},
    {"WINDOWS1253", Family::Page, "CP1253"},
    {"CP1253", Family::Page, "CP1253"},
    {"WINDOWS1254", Family::Page, "CP1254"},
    {"CP1254", Family::Page, "CP1254"},
    {"WINDOWS1255", Family::Page, "CP1255"},
    {"CP1255", Family::Page, "CP1255"},
    {"WINDOWS1256", Family::Page, "CP1256"},
    {"CP1256", Family::Page, "CP1256"},
    {"WINDOWS1257", Family::Page, "CP1257"},
    {"CP1257", Family::Page, "CP1257"},
    {"WINDOWS1258", Family::Page, "CP1258"},
    {"CP1258", Family::Page, "CP1258"},
    {"KOI8R", Family::Page, "KOI8-R"},
    {"KOI8U", Family::Page, "KOI8-U"},
    {"CP437", Family::Page, "CP437"},
    {"IBM437", Family::Page, "CP437"},
    {"CP850", Family::Page, "CP850"},
    {"IBM850", Family::Page, "CP850"},
    {"MACINTOSH", Family::Page, "MACINTOSH"},
    {"MACROMAN", Family::Page, "MACINTOSH"},
    {"XMACROMAN", Family::Page, "MACINTOSH"},
    {"SHIFTJIS", Family::WidePage, "CP932"},
    {"SJIS", Family::WidePage, "CP932"},
    {"XSJIS", Family::WidePage, "CP932"},
    {"MSKANJI", Family::WidePage, "CP932"},
    {"WINDOWS31J", Family::WidePage, "CP932"},
    {"CP932", Family::WidePage, "CP932"},
    {"GBK", Family::WidePage, "GBK"},
    {"GB2312", Family::WidePage, "GBK"},
    {"CP936", Family::WidePage, "GBK"},
    {"GB18030", Family::WidePage, "GB18030"},
    {"BIG5", Family::WidePage, "BIG5"},
    {"CP950", Family::WidePage, "BIG5"},
    {"EUCJP", Family::WidePage, "EUC-JP"},
    {"EUCKR", Family::WidePage, "EUC-KR"},
    {"KSC56011987", Family::WidePage, "EUC-KR"},
};

const NamedEncoding* FindEncoding(std::string_view declared) {
    std::string name;
    for (const char c : UpperAscii(declared))
        if ((c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9')) name += c;
    const auto* const found = std::ranges::find(kNamed, name, &NamedEncoding::name);
    return found == std::end(kNamed) ? nullptr : found;
}

// Returns the name in the header of an XML file, before which other text may stand; empty if there is none.
std::string DeclaredName(std::string_view text) {
    constexpr std::size_t kSearched = 4096;
    constexpr std::size_t kLongestHeader = 512;
    constexpr std::size_t kLongestName = 64;
    constexpr std::string_view kBlank = " \t\r\n";
    const std::size_t begin = text.substr(0, kSearched).find("<?xml");
    if (begin == std::string_view::npos) return {};
    std::string_view header = text.substr(begin, kLongestHeader);
    header = header.substr(0, header.find('>'));
    constexpr std::string_view kKey = "encoding";
    const std::size_t key = header.find(kKey);
    if (key == std::string_view::npos) return {};
    const std::size_t equals = header.find_first_not_of(kBlank, key + kKey.size());
    if (equals == std::string_view::npos || header[equals] != '=') return {};
    const std::size_t quote = header.find_first_not_of(kBlank, equals + 1);
    if (quote == std::string_view::npos || (header[quote] != '"' && header[quote] != '\'')) return {};
    const std::size_t end = header.find(header[quote], quote + 1);
    if (end == std::string_view::npos || end - quote > kLongestName) return {};
    return std::string(header.substr(quote + 1, end - quote - 1));
}

// Returns the offset of the first byte from begin on that is not ASCII; the size if there is none.
std::size_t AsciiEnd(std::string_view bytes, std::size_t begin) {
    constexpr std::uint64_t kHighBits = 0x8080808080808080;
    std::uint64_t block = 0;
    for (; begin + sizeof block <= bytes.size(); begin += sizeof block) {
        std::memcpy(&block, bytes.data() + begin, sizeof block);
        if ((block & kHighBits) != 0) break;
    }
    while (begin < bytes.size() && IsAscii(bytes[begin])) ++begin;
    return begin;
}

struct Sequences {
    std::size_t whole = 0;   // code points of several bytes
    std::size_t broken = 0;  // bytes that are not UTF-8
};

Sequences CountSequences(std::string_view bytes) {
    Sequences count;
    for (std::size_t i = 0; i < bytes.size();) {
        if (IsAscii(bytes[i])) {
            i = AsciiEnd(bytes, i);
            continue;
        }
        const CodePoint front = FrontCodePoint(bytes.substr(i));
        ++(front.value == kNoCodePoint ? count.broken : count.whole);
        i += front.bytes;
    }
    return count;
}

// Returns how many bytes at the end are the beginning of a code point that the end cuts off.
std::size_t CutOff(std::string_view bytes) {
    constexpr std::size_t kMost = 3;
    for (std::size_t length = 1; length <= std::min(kMost, bytes.size()); ++length) {
        const auto lead = static_cast<unsigned char>(bytes[bytes.size() - length]);
        if (IsContinuationByte(static_cast<char>(lead))) continue;
        const std::size_t needed = lead >= 0xF0 ? 4 : lead >= 0xE0 ? 3 : lead >= 0xC2 ? 2 : 1;
        return lead < 0xF5 && needed > length ? length : 0;
    }
    return 0;
}

constexpr std::uint16_t kFirst1252[] = {0x20AC, 0xFFFD, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                        0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0xFFFD, 0x017D, 0xFFFD,
                                        0xFFFD, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                        0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0xFFFD, 0x017E, 0x0178};

// Returns the bytes from 0x80 on in UTF-8.
std::array<std::string, 128> Make1252() {
    std::array<std::string, 128> letters;
    for (std::size_t i = 0; i < letters.size(); ++i)
        AppendCodePoint(letters[i],
                        i < std::size(kFirst1252) ? kFirst1252[i] : static_cast<std::int32_t>(0x80 + i));
    return letters;
}

// Reads the bytes that are not UTF-8 as Windows-1252, or all of them beyond ASCII.
std::string From1252(std::string_view bytes, bool keepUtf8) {
    static const std::array<std::string, 128> letters = Make1252();
    std::string out;
    out.reserve(bytes.size() + bytes.size() / 8);
    for (std::size_t i = 0; i < bytes.size();) {
        if (IsAscii(bytes[i])) {
            const std::size_t end = AsciiEnd(bytes, i);
            out.append(bytes.substr(i, end - i));
            i = end;
            continue;
        }
        const CodePoint front = keepUtf8 ? FrontCodePoint(bytes.substr(i)) : CodePoint();
        if (front.value != kNoCodePoint) {
            out.append(bytes.substr(i, front.bytes));
            i += front.bytes;
        } else {
            out += letters[static_cast<unsigned char>(bytes[i++]) - 0x80];
        }
    }
    return out;
}

// Returns nothing if the bytes do not hold to the page, or if this computer does not know it.
std::optional<std::string> FromPage(std::string_view bytes, const char* page) {
    const iconv_t converter = iconv_open("UTF-8", page);
    if (converter == reinterpret_cast<iconv_t>(-1)) return std::nullopt;
    std::string input(bytes);
    std::string out;
    out.reserve(input.size() + input.size() / 8);
    std::array<char, 16384> buffer{};
    char* from = input.data();
    std::size_t left = input.size();
    bool holds = true;
    while (holds && left > 0) {
        char* to = buffer.data();
        std::size_t room = buffer.size();
        const bool failed = iconv(converter, &from, &left, &to, &room) == static_cast<std::size_t>(-1);
        holds = !failed || errno == E2BIG || (errno == EINVAL && left < 4);
        out.append(buffer.data(), buffer.size() - room);
        if (failed && errno == EINVAL) break;  // a character that the end of the file cuts off
    }
    iconv_close(converter);
    if (!holds) return std::nullopt;
    return out;
}

std::string FromUtf16(std::string_view bytes, bool bigEndian) {
    const auto unit = [&](std::size_t i) {
        const auto first = static_cast<unsigned char>(bytes[i]);
        const auto second = static_cast<unsigned char>(bytes[i + 1]);
        return static_cast<std::int32_t>(bigEndian ? first << 8 | second : second << 8 | first);
    };
    std::string out;
    out.reserve(bytes.size() / 2 + bytes.size() / 8);
    for (std::size_t i = 0; i + 1 < bytes.size(); i += 2) {
        std::int32_t value = unit(i);
        const bool high = value >= 0xD800 && value < 0xDC00;
        if (high && i + 3 >= bytes.size()) break;
        if (high && unit(i + 2) >= 0xDC00 && unit(i + 2) < 0xE000) {
            value = 0x10000 + ((value - 0xD800) << 10) + (unit(i + 2) - 0xDC00);
            i += 2;
        } else if (value >= 0xD800 && value < 0xE000) {
            value = kReplacement;
        }
        AppendCodePoint(out, value);
    }
    return out;
}

// Recognizes UTF-16 without a mark by the zero bytes around the first tag. Returns true for big endian.
std::optional<bool> UnmarkedUtf16(std::string_view bytes) {
    constexpr std::size_t kSearched = 8192;
    const std::size_t at = bytes.substr(0, kSearched).find('<');
    if (at == std::string_view::npos || at + 3 >= bytes.size()) return std::nullopt;
    if (at % 2 == 0 && bytes[at + 1] == 0 && bytes[at + 2] != 0 && bytes[at + 3] == 0) return false;
    if (at % 2 == 1 && bytes[at - 1] == 0 && bytes[at + 1] == 0 && bytes[at + 2] != 0) return true;
    return std::nullopt;
}

// Writes the remark about a declared name that did not help.
void Contradict(DecodedText& decoded) {
    if (decoded.declared.empty())
        decoded.remark =
            "The file does not say what its encoding is. It was read as " + decoded.encoding + ".";
    else if (FindEncoding(decoded.declared) == nullptr)
        decoded.remark = "The file calls its encoding \"" + decoded.declared +
                         "\", which means nothing here. It was read as " + decoded.encoding + ".";
    else
        decoded.remark = "The file says that its encoding is " + decoded.declared +
                         ", but its bytes are not. It was read as " + decoded.encoding + ".";
}

DecodedText DecodeUtf16(std::string_view bytes, bool bigEndian, bool marked) {
    DecodedText decoded{FromUtf16(bytes, bigEndian), "UTF-16", {}, {}};
    decoded.declared = DeclaredName(decoded.text);
    const NamedEncoding* named = FindEncoding(decoded.declared);
    const bool agrees =
        decoded.declared.empty() ? marked : named != nullptr && named->family == Family::Utf16;
    if (!agrees) Contradict(decoded);
    return decoded;
}

// REQUIRES: the bytes are UTF-8.
void TakeUtf8(DecodedText& decoded, std::string_view bytes, bool isAscii) {
    decoded.text = bytes;
    decoded.encoding = "UTF-8";
    if (decoded.declared.empty()) return;
    const NamedEncoding* named = FindEncoding(decoded.declared);
    const bool agrees = named != nullptr && named->family != Family::Utf16 &&
                        (isAscii || std::string_view(named->page) == "UTF-8");
    if (!agrees) Contradict(decoded);
}

void TakeMixed(DecodedText& decoded, std::string_view bytes, std::size_t broken) {
    decoded.text = From1252(bytes, true);
    decoded.encoding = "UTF-8";
    decoded.remark = "The file is UTF-8 except for " + std::to_string(broken) +
                     (broken == 1 ? " byte, which was" : " bytes, which were") + " read as Windows-1252.";
}

// True if the declared encoding has been used.
bool TakeDeclared(DecodedText& decoded, std::string_view bytes) {
    const NamedEncoding* named = FindEncoding(decoded.declared);
    if (named == nullptr || (named->family != Family::Page && named->family != Family::WidePage))
        return false;
    std::optional<std::string> text = FromPage(bytes, named->page);
    if (!text) return false;
    decoded.text = std::move(*text);
    decoded.encoding = named->page;
    return true;
}

void Take1252(DecodedText& decoded, std::string_view bytes) {
    decoded.text = From1252(bytes, false);
    decoded.encoding = "Windows-1252";
    const NamedEncoding* named = FindEncoding(decoded.declared);
    const bool latin1 = named != nullptr && std::string_view(named->page) == "ISO-8859-1";
    // The bytes from 0x80 to 0x9F are no characters in ISO-8859-1, and five of them none in Windows-1252.
    const bool holds = std::ranges::none_of(bytes, [&](char c) {
        const auto value = static_cast<unsigned char>(c);
        return value >= 0x80 && value < 0xA0 && (latin1 || kFirst1252[value - 0x80] == kReplacement);
    });
    if (named == nullptr || named->family != Family::Western || !holds) Contradict(decoded);
}

}  // namespace

DecodedText Decode(std::string_view bytes) {
    if (bytes.starts_with(kLittleMark)) return DecodeUtf16(bytes.substr(2), false, true);
    if (bytes.starts_with(kBigMark)) return DecodeUtf16(bytes.substr(2), true, true);
    if (const std::optional<bool> bigEndian = UnmarkedUtf16(bytes))
        return DecodeUtf16(bytes, *bigEndian, false);
    const bool marked = bytes.starts_with(kUtf8Mark);
    if (marked) bytes.remove_prefix(kUtf8Mark.size());
    DecodedText decoded;
    decoded.declared = DeclaredName(bytes);
    const NamedEncoding* named = FindEncoding(decoded.declared);
    const std::string_view uncut = bytes.substr(0, bytes.size() - CutOff(bytes));
    const Sequences count = CountSequences(uncut);
    if (count.broken == 0) {
        TakeUtf8(decoded, uncut, count.whole == 0);
        return decoded;
    }
    // Two bytes of an Asian page often look like a code point of UTF-8, hardly ever those of another.
    const bool wide = named != nullptr && named->family == Family::WidePage;
    if (wide && !marked && TakeDeclared(decoded, bytes)) return decoded;
    if (marked || count.whole > count.broken)
        TakeMixed(decoded, uncut, count.broken);
    else if (!TakeDeclared(decoded, bytes))
        Take1252(decoded, bytes);
    return decoded;
}

}  // namespace tw
