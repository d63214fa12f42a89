#include "values/Text.h"

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <utf8proc.h>

namespace tw {
namespace {

char UpperAscii(char c) {
    return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
}

char LowerAscii(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

// Returns how many of the first bytes are ASCII and equal in both texts, counted in steps of eight:
// neighbours in a sorted list begin alike. REQUIRES: both have size bytes.
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

// Returns text with each code point changed; a byte that is not valid UTF-8 stays.
template <char (*ChangeAscii)(char), utf8proc_int32_t (*Change)(utf8proc_int32_t)>
std::string Changed(std::string_view text) {
    std::string changed;
    changed.reserve(text.size() + 4);
    while (!text.empty()) {
        if (IsAscii(text.front())) {
            changed.push_back(ChangeAscii(text.front()));
            text.remove_prefix(1);
            continue;
        }
        const CodePoint front = FrontCodePoint(text);
        if (front.value == kNoCodePoint)
            changed.push_back(text.front());
        else
            AppendCodePoint(changed, Change(front.value));
        text.remove_prefix(front.bytes);
    }
    return changed;
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
    if (!IsAscii(text)) return Changed<UpperAscii, utf8proc_toupper>(text);
    std::string upper(text);
    for (char& c : upper) c = UpperAscii(c);
    return upper;
}

std::string Lower(std::string_view text) {
    return Changed<LowerAscii, utf8proc_tolower>(text);
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
