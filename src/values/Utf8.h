// UTF-8 texts by their code points. A byte that is not valid UTF-8 counts as a code point of its own; nothing
// here fails.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace tw {

// The value of a byte that is not valid UTF-8.
inline constexpr std::int32_t kNoCodePoint = -1;

// One code point of a text and the number of bytes that it occupies there.
struct CodePoint {
    std::int32_t value = kNoCodePoint;
    std::size_t bytes = 1;
};

constexpr bool IsAscii(char c) {
    return static_cast<unsigned char>(c) < 0x80;
}
// True if every byte of text is ASCII, as in an empty text.
constexpr bool IsAscii(std::string_view text) {
    unsigned char all = 0;
    for (const char c : text) all = static_cast<unsigned char>(all | static_cast<unsigned char>(c));
    return all < 0x80;
}
// True for a byte that does not begin a code point of valid UTF-8.
constexpr bool IsContinuationByte(char c) {
    return (static_cast<unsigned char>(c) & 0xC0) == 0x80;
}

// Returns the code point at the front of text. REQUIRES: text is not empty.
CodePoint FrontCodePoint(std::string_view text);
// Appends a code point to out. REQUIRES: FrontCodePoint has returned it, and it is not kNoCodePoint.
void AppendCodePoint(std::string& out, std::int32_t codePoint);
// Returns the number of code points.
std::size_t CodePointCount(std::string_view text);
// Returns the byte offset at which a code point begins, identified by its index from 0; the end of the text
// if there are not that many.
std::size_t CodePointOffset(std::string_view text, std::size_t number);
// True for a control, format, private or unassigned code point and for every separator but the plain blank
// (U+0020): none of them is seen as itself.
bool IsInvisible(std::int32_t codePoint);

}  // namespace tw
