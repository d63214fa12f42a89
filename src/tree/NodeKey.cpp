#include "tree/NodeKey.h"

#include <algorithm>
#include <charconv>
#include <functional>

namespace tw {
namespace {

bool IsCapital(char c) {
    return c >= 'A' && c <= 'Z';
}

// Reads a whole number in canonical form, without a plus sign or leading zeros, and removes it from digits.
bool ReadId(std::string_view& digits, std::int64_t& id) {
    const char* const end = digits.data() + digits.size();
    const auto [behind, failure] = std::from_chars(digits.data(), end, id);
    if (failure != std::errc()) return false;
    const auto length = static_cast<std::size_t>(behind - digits.data());
    if (std::to_string(id) != digits.substr(0, length)) return false;
    digits.remove_prefix(length);
    return true;
}

}  // namespace

NodeKey::NodeKey(std::string_view text) {
    constexpr std::size_t kIdAt = 2;
    if (text.size() > kIdAt && IsCapital(text[0]) && text[1] == ':') {
        std::string_view rest = text.substr(kIdAt);
        std::int64_t id = 0;
        const bool isNumber = ReadId(rest, id);
        const bool hasCopy = rest.size() == 2 && rest[0] == ':' && rest[1] >= '0' && rest[1] <= '9';
        if (isNumber && (rest.empty() || hasCopy)) {
            kind_ = text[0];
            if (hasCopy) copy_ = static_cast<std::int8_t>(rest[1] - '0');
            id_ = id;
            return;
        }
    }
    text_ = SharedText(text);
}

NodeKey::NodeKey(char kind, std::int64_t id) noexcept : id_(id), kind_(kind) {}

NodeKey::NodeKey(char kind, std::int64_t id, int copy) noexcept
    : id_(id), kind_(kind), copy_(static_cast<std::int8_t>(copy)) {}

std::string NodeKey::Text() const {
    if (kind_ == kIsText) return std::string(text_.View());
    constexpr std::size_t kLongest = 32;
    char text[kLongest] = {kind_, ':'};
    char* end = std::to_chars(text + 2, text + kLongest, id_).ptr;
    if (copy_ != kNoCopy) {
        *end++ = ':';
        *end++ = static_cast<char>('0' + copy_);
    }
    return {text, end};
}

bool NodeKey::operator==(const NodeKey& other) const noexcept {
    if (kind_ != other.kind_ || copy_ != other.copy_) return false;
    return kind_ == kIsText ? text_.View() == other.text_.View() : id_ == other.id_;
}

std::string RecipeKey(std::int64_t id, int copy) {
    return NodeKey('R', id, copy).Text();
}
std::string StyleKey(std::int64_t id, int copy) {
    return NodeKey('S', id, copy).Text();
}
std::string RecipeFolderKey(std::int64_t id) {
    return NodeKey('F', id).Text();
}
std::string StyleFolderKey(std::int64_t id) {
    return NodeKey('G', id).Text();
}
std::string RecipeFolderKey(std::string_view id) {
    return "F:" + std::string(id);
}
std::string StyleFolderKey(std::string_view id) {
    return "G:" + std::string(id);
}

std::int64_t IdOfKey(std::string_view key) {
    const std::size_t start = std::min(key.find(':'), key.size() - 1) + 1;
    const std::string_view field = key.substr(start, key.find(':', start) - start);
    std::int64_t id = kNoId;
    const auto [end, failure] = std::from_chars(field.data(), field.data() + field.size(), id);
    return failure == std::errc() && end == field.data() + field.size() ? id : kNoId;
}

std::uint64_t NodeKey::HashOfObject() const noexcept {
    // Multiplying by 2^64 divided by the golden ratio distributes consecutive numbers evenly.
    constexpr std::uint64_t kGolden = 0x9e3779b97f4a7c15U;
    if (kind_ == kIsText) return std::hash<std::string_view>()(text_.View()) * kGolden;
    constexpr unsigned kKindShift = 56;
    const auto kind = static_cast<std::uint64_t>(static_cast<unsigned char>(kind_));
    return (static_cast<std::uint64_t>(id_) + (kind << kKindShift)) * kGolden;
}

}  // namespace tw
