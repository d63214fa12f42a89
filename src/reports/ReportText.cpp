#include "reports/ReportText.h"

#include <cstdint>
#include <cstdio>
#include <iterator>

#include "values/Utf8.h"

namespace tw {
namespace {

constexpr std::uint32_t kReplacement = 0xFFFD;
constexpr std::uint32_t kFirstBeyondAscii = 0x80;

// The code points of the bytes 0x80 to 0x9F of code page 1252; 0 if the byte is unused. From 0xA0 on, byte
// and code point are equal.
constexpr std::uint32_t kPage1252[] = {0x20AC, 0,      0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                       0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0,      0x017D, 0,
                                       0,      0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                       0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0,      0x017E, 0x0178};

// Removes the first code point from text and returns it. Returns kReplacement for a byte that is not
// valid UTF-8.
std::uint32_t TakeCodePoint(std::string_view& text) {
    const CodePoint front = FrontCodePoint(text);
    text.remove_prefix(front.bytes);
    return front.value == kNoCodePoint ? kReplacement : static_cast<std::uint32_t>(front.value);
}

// Returns the byte of code page 1252; 0 if the page lacks the code point.
unsigned ByteOf(std::uint32_t codePoint) {
    if (codePoint >= 0xA0 && codePoint <= 0xFF) return codePoint;
    for (unsigned i = 0; i < std::size(kPage1252); ++i)
        if (kPage1252[i] == codePoint) return kFirstBeyondAscii + i;
    return 0;
}

// Appends one unit of UTF-16, which rich text writes as a signed 16-bit number, and its fallback byte; "?" if
// byte is 0.
void AppendUnit(std::string& out, std::uint32_t unit, unsigned byte) {
    out.append("\\u").append(std::to_string(static_cast<std::int16_t>(unit)));
    char fallback[sizeof "\\'xx"] = "?";
    if (byte != 0) std::snprintf(fallback, sizeof fallback, "\\'%02x", byte & 0xFF);
    out.append(fallback);
}

void AppendBeyondAscii(std::string& out, std::uint32_t codePoint) {
    constexpr std::uint32_t kPlane = 0x10000;
    if (codePoint < kPlane) return AppendUnit(out, codePoint, ByteOf(codePoint));
    AppendUnit(out, 0xD800 + ((codePoint - kPlane) >> 10), 0);
    AppendUnit(out, 0xDC00 + ((codePoint - kPlane) & 0x3FF), 0);
}

}  // namespace

std::string HtmlText(std::string_view text) {
    std::string out;
    out.reserve(text.size());
    while (!text.empty()) {
        const std::uint32_t codePoint = TakeCodePoint(text);
        if (codePoint == '&')
            out += "&amp;";
        else if (codePoint == '"')
            out += "&quot;";
        else if (codePoint == '<')
            out += "&lt;";
        else if (codePoint == '>')
            out += "&gt;";
        else if (codePoint < kFirstBeyondAscii)
            out += static_cast<char>(codePoint);
        else
            out.append("&#").append(std::to_string(codePoint)).append(";");
    }
    return out;
}

std::string RichText(std::string_view text) {
    std::string out;
    out.reserve(text.size());
    while (!text.empty()) {
        const std::uint32_t codePoint = TakeCodePoint(text);
        if (codePoint >= kFirstBeyondAscii) {
            AppendBeyondAscii(out, codePoint);
            continue;
        }
        if (codePoint == '\\' || codePoint == '{' || codePoint == '}') out += '\\';
        out += static_cast<char>(codePoint);
    }
    return out;
}

Rgb ReportColor(int color) {
    const auto value = static_cast<std::uint32_t>(color);
    return {static_cast<std::uint8_t>(value), static_cast<std::uint8_t>(value >> 8),
            static_cast<std::uint8_t>(value >> 16)};
}

std::string HtmlColor(int color) {
    const Rgb rgb = ReportColor(color);
    char text[sizeof "\"#RRGGBB\""];
    std::snprintf(text, sizeof text, "\"#%02X%02X%02X\"", unsigned{rgb.red}, unsigned{rgb.green},
                  unsigned{rgb.blue});
    return text;
}

std::string RichTextColor(int color) {
    const Rgb rgb = ReportColor(color);
    return "\\red" + std::to_string(rgb.red) + "\\green" + std::to_string(rgb.green) + "\\blue" +
           std::to_string(rgb.blue) + ";";
}

}  // namespace tw
