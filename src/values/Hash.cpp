#include "values/Hash.h"

namespace tw {

std::string HashText(std::string_view text) {
    constexpr std::size_t kDigits = 16;
    std::uint64_t hash = Hash64(text);
    std::string digits(kDigits, '0');
    for (auto digit = digits.rbegin(); digit != digits.rend(); ++digit, hash >>= 4U)
        *digit = "0123456789abcdef"[hash & 15U];
    return digits;
}

}  // namespace tw
