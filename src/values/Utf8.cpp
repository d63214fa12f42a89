#include "values/Utf8.h"

#include <algorithm>
#include <array>
#include <utf8proc.h>

namespace tw {
namespace {

constexpr std::size_t kLongest = 4;  // bytes of a code point

}  // namespace

CodePoint FrontCodePoint(std::string_view text) {
    if (IsAscii(text.front())) return {text.front(), 1};
    // The cut keeps the length within the library's signed type.
    const std::string_view front = text.substr(0, kLongest);
    utf8proc_int32_t codePoint = kNoCodePoint;
    const utf8proc_ssize_t length = utf8proc_iterate(reinterpret_cast<const utf8proc_uint8_t*>(front.data()),
                                                     static_cast<utf8proc_ssize_t>(front.size()), &codePoint);
    if (length < 1) return {};
    return {codePoint, static_cast<std::size_t>(length)};
}

void AppendCodePoint(std::string& out, std::int32_t codePoint) {
    std::array<utf8proc_uint8_t, kLongest> bytes{};
    const utf8proc_ssize_t length = utf8proc_encode_char(codePoint, bytes.data());
    out.append(reinterpret_cast<const char*>(bytes.data()), static_cast<std::size_t>(length));
}

std::size_t CodePointCount(std::string_view text) {
    if (IsAscii(text)) return text.size();
    std::size_t count = 0;
    for (; !text.empty(); ++count) text.remove_prefix(FrontCodePoint(text).bytes);
    return count;
}

std::size_t CodePointOffset(std::string_view text, std::size_t number) {
    if (IsAscii(text)) return std::min(number, text.size());
    std::size_t offset = 0;
    for (; number > 0 && offset < text.size(); --number) offset += FrontCodePoint(text.substr(offset)).bytes;
    return offset;
}

bool IsInvisible(std::int32_t codePoint) {
    if (codePoint == ' ') return false;
    switch (utf8proc_category(codePoint)) {
        case UTF8PROC_CATEGORY_CC:
        case UTF8PROC_CATEGORY_CF:
        case UTF8PROC_CATEGORY_CN:
        case UTF8PROC_CATEGORY_CO:
        case UTF8PROC_CATEGORY_ZS:
        case UTF8PROC_CATEGORY_ZL:
        case UTF8PROC_CATEGORY_ZP:
            return true;
        default:
            return false;
    }
}

}  // namespace tw
