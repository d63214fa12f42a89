#include "exchange/XmlVocabulary.h"

#include <algorithm>
#include <array>
#include <unordered_map>

#include "exchange/AsciiCase.h"
#include "exchange/BeerXmlTags.h"

namespace tw {
namespace {

constexpr std::size_t kLongestTag = 32;
constexpr std::uint32_t kRootBit = std::uint32_t{1} << (2 * kXmlRecords);

std::uint32_t BitOf(XmlRecord record) {
    return std::uint32_t{1} << static_cast<unsigned>(record);
}

std::uint32_t BitOfSet(XmlRecord record) {
    return BitOf(record) << kXmlRecords;
}

using Vocabulary = std::unordered_map<std::string_view, KnownTag>;

void Include(Vocabulary& vocabulary, std::string_view name, TagKind kind, std::uint32_t self) {
    if (vocabulary.contains(name)) return;
    std::uint32_t parents = MayStandIn(name, {}) ? kRootBit : 0;
    for (const XmlRecordRule& rule : XmlRecordRules()) {
        if (MayStandIn(name, rule.tag)) parents |= BitOf(rule.record);
        if (MayStandIn(name, rule.setTag)) parents |= BitOfSet(rule.record);
    }
    vocabulary.insert({name, {name, kind, static_cast<std::uint8_t>(vocabulary.size()), self, parents}});
}

Vocabulary MakeVocabulary() {
    Vocabulary vocabulary;
    for (const XmlRecordRule& rule : XmlRecordRules()) {
        Include(vocabulary, rule.tag, TagKind::Record, BitOf(rule.record));
        Include(vocabulary, rule.setTag, TagKind::Set, BitOfSet(rule.record));
    }
    for (const XmlRecordRule& rule : XmlRecordRules())
        for (const XmlField& field : rule.fields) Include(vocabulary, field.tag, TagKind::Leaf, 0);
    return vocabulary;
}

}  // namespace

const KnownTag* FindTag(std::string_view name) {
    static const Vocabulary vocabulary = MakeVocabulary();
    if (name.size() > kLongestTag) return nullptr;
    std::array<char, kLongestTag> upper{};
    std::ranges::transform(name, upper.begin(), [](char c) { return UpperAscii(c); });
    const auto found = vocabulary.find({upper.data(), name.size()});
    return found == vocabulary.end() ? nullptr : &found->second;
}

bool MayBeRoot(const KnownTag& tag) {
    return (tag.parents & kRootBit) != 0;
}

std::string_view SetOf(const KnownTag& tag) {
    return RecordOfTag(tag.name)->setTag;
}

bool HasSmallLetter(std::string_view name) {
    return std::ranges::any_of(name, [](char c) { return c >= 'a' && c <= 'z'; });
}

bool Resembles(std::string_view name, std::string_view meant) {
    constexpr std::size_t kLettersOfASlip = 3;
    const std::size_t allowed = std::max<std::size_t>(1, meant.size() / kLettersOfASlip);
    const std::size_t longer = std::max(name.size(), meant.size());
    if (longer > kLongestTag || longer - std::min(name.size(), meant.size()) > allowed) return false;
    // The distances of all beginnings of name from one beginning of meant; then of the next, and the next.
    using Row = std::array<std::size_t, kLongestTag + 1>;
    Row beforeLast{};
    Row last{};
    Row row{};
    for (std::size_t k = 0; k <= name.size(); ++k) row[k] = k;
    for (std::size_t i = 1; i <= meant.size(); ++i) {
        beforeLast = last;
        last = row;
        row[0] = i;
        for (std::size_t k = 1; k <= name.size(); ++k) {
            const auto same = [&](std::size_t m, std::size_t n) {
                return UpperAscii(meant[m - 1]) == UpperAscii(name[n - 1]);
            };
            row[k] = std::min({last[k] + 1, row[k - 1] + 1, last[k - 1] + (same(i, k) ? 0 : 1)});
            if (i > 1 && k > 1 && same(i, k - 1) && same(i - 1, k))
                row[k] = std::min(row[k], beforeLast[k - 2] + 1);
        }
    }
    return row[name.size()] <= allowed;
}

}  // namespace tw
