#include "values/Text.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>
#include <utf8proc.h>

namespace tw {
namespace {

bool IsAscii(char c) {
    return static_cast<unsigned char>(c) < 0x80;
}

bool IsAscii(std::string_view text) {
    unsigned char all = 0;
    for (const char c : text) all = static_cast<unsigned char>(all | static_cast<unsigned char>(c));
    return all < 0x80;
}

char UpperAscii(char c) {
    return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
}

// The length of the code point at the front of text; 1, and codePoint negative, for a byte that is no valid
// UTF-8. REQUIRES: text is not empty.
std::size_t FrontCodePoint(std::string_view text, utf8proc_int32_t& codePoint) {
    codePoint = -1;
    // No code point is longer than four bytes; the cut keeps the length within the library's signed type.
    const std::string_view front = text.substr(0, 4);
    const auto* const bytes = reinterpret_cast<const utf8proc_uint8_t*>(front.data());
    const utf8proc_ssize_t length =
        utf8proc_iterate(bytes, static_cast<utf8proc_ssize_t>(front.size()), &codePoint);
    if (length >= 1) return static_cast<std::size_t>(length);
    codePoint = -1;
    return 1;
}

// How many of the first bytes are ASCII and the same in both, in steps of eight: neighbours in a sorted list
// begin alike. REQUIRES: both have size bytes.
std::size_t EqualAscii(std::string_view a, std::string_view b, std::size_t size) {
    constexpr std::uint64_t kBeyondAscii = 0x8080808080808080U;
    std::size_t i = 0;
    for (; i + sizeof kBeyondAscii <= size; i += sizeof kBeyondAscii) {
        std::uint64_t left = 0;
        std::uint64_t right = 0;
        std::memcpy(&left, a.data() + i, sizeof left);
        std::memcpy(&right, b.data() + i, sizeof right);
        if (left != right || (left & kBeyondAscii) != 0) break;
    }
    return i;
}

void AppendUpper(std::string& out, utf8proc_int32_t codePoint) {
    std::array<utf8proc_uint8_t, 4> bytes{};
    const utf8proc_ssize_t length = utf8proc_encode_char(utf8proc_toupper(codePoint), bytes.data());
    out.append(reinterpret_cast<const char*>(bytes.data()), static_cast<std::size_t>(length));
}

}  // namespace

std::string_view Trim(std::string_view text) {
    while (!text.empty() && text.front() == ' ') text.remove_prefix(1);
    while (!text.empty() && text.back() == ' ') text.remove_suffix(1);
    return text;
}

bool IsBlank(std::string_view text) {
    return text.find_first_not_of(' ') == std::string_view::npos;
}

std::string Upper(std::string_view text) {
    if (IsAscii(text)) {
        std::string upper(text);
        for (char& c : upper) c = UpperAscii(c);
        return upper;
    }
    std::string upper;
    upper.reserve(text.size() + 4);
    while (!text.empty()) {
        if (IsAscii(text.front())) {
            upper.push_back(UpperAscii(text.front()));
            text.remove_prefix(1);
            continue;
        }
        utf8proc_int32_t codePoint = -1;
        const std::size_t length = FrontCodePoint(text, codePoint);
        if (codePoint >= 0)
            AppendUpper(upper, codePoint);
        else
            upper.push_back(text.front());
        text.remove_prefix(length);
    }
    return upper;
}

bool SameName(std::string_view a, std::string_view b) {
    return CompareNoCase(Trim(a), Trim(b)) == 0;
}

int CompareNoCase(std::string_view a, std::string_view b) {
    const std::size_t common = std::min(a.size(), b.size());
    for (std::size_t i = EqualAscii(a, b, common); i < common; ++i) {
        if (!IsAscii(a[i]) || !IsAscii(b[i])) return Upper(a.substr(i)).compare(Upper(b.substr(i)));
        const char upperA = UpperAscii(a[i]);
        const char upperB = UpperAscii(b[i]);
        if (upperA != upperB) return upperA < upperB ? -1 : 1;
    }
    if (a.size() == b.size()) return 0;
    return a.size() < b.size() ? -1 : 1;
}

std::size_t CodePointCount(std::string_view text) {
    if (IsAscii(text)) return text.size();
    std::size_t count = 0;
    while (!text.empty()) {
        utf8proc_int32_t codePoint = -1;
        text.remove_prefix(FrontCodePoint(text, codePoint));
        ++count;
    }
    return count;
}

std::size_t CodePointOffset(std::string_view text, std::size_t number) {
    if (IsAscii(text)) return std::min(number, text.size());
    std::size_t offset = 0;
    for (; number > 0 && offset < text.size(); --number) {
        utf8proc_int32_t codePoint = -1;
        offset += FrontCodePoint(text.substr(offset), codePoint);
    }
    return offset;
}

std::string ReplaceAll(std::string_view text, std::string_view from, std::string_view to) {
    std::string out;
    out.reserve(text.size());
    for (;;) {
        const std::size_t at = text.find(from);
        if (at == std::string_view::npos) break;
        out.append(text.substr(0, at)).append(to);
        text.remove_prefix(at + from.size());
    }
    out.append(text);
    return out;
}

}  // namespace tw
