#include "tree/WordIndex.h"

#include <algorithm>
#include <bit>
#include <cstring>
#include <numeric>
#include <utility>

#include "values/NameMatch.h"

namespace tw {
namespace {

constexpr std::uint32_t kBits = 64;

std::size_t SetSize(std::uint32_t texts) {
    return (std::size_t{texts} + kBits - 1) / kBits;
}

void AppendPacked(std::vector<unsigned char>& packed, std::uint32_t number) {
    constexpr std::uint32_t kMore = 0x80;
    for (; number >= kMore; number >>= 7) packed.push_back(static_cast<unsigned char>(number | kMore));
    packed.push_back(static_cast<unsigned char>(number));
}

// Sorts the numbers and removes duplicates. scratch contains one bit per possible number, all clear before
// and after. It is used only for many numbers, because all its bits must be visited.
void Order(std::vector<std::uint32_t>& numbers, BitSet& scratch) {
    constexpr std::size_t kFew = 256;
    if (numbers.size() < kFew || numbers.size() < scratch.size() / 4) {
        std::sort(numbers.begin(), numbers.end());
        numbers.erase(std::unique(numbers.begin(), numbers.end()), numbers.end());
        return;
    }
    for (const std::uint32_t number : numbers)
        scratch[number / kBits] |= std::uint64_t{1} << (number % kBits);
    numbers.clear();
    for (std::size_t i = 0; i < scratch.size(); ++i)
        for (std::uint64_t rest = std::exchange(scratch[i], 0); rest != 0; rest &= rest - 1)
            numbers.push_back(static_cast<std::uint32_t>(i * kBits) +
                              static_cast<std::uint32_t>(std::countr_zero(rest)));
}

}  // namespace

std::vector<std::uint32_t> WordIndex::Builder::NumbersOf(std::string_view text) {
    std::vector<std::uint32_t> numbers;
    for (std::string& word : MatchWords(text)) {
        const auto [found, isNew] =
            numbers_.try_emplace(std::move(word), static_cast<std::uint32_t>(texts_.size()));
        if (isNew) texts_.emplace_back();
        numbers.push_back(found->second);
    }
    return numbers;
}

void WordIndex::Builder::Add(const std::vector<std::uint32_t>& words, std::uint32_t text) {
    for (const std::uint32_t word : words)
        if (texts_[word].empty() || texts_[word].back() != text) texts_[word].push_back(text);
}

WordIndex WordIndex::Builder::Build(std::uint32_t texts) {
    std::vector<const std::string*> words(texts_.size());
    for (const auto& [word, number] : numbers_) words[number] = &word;
    BitSet scratch(SetSize(texts));
    for (std::vector<std::uint32_t>& numbers : texts_) Order(numbers, scratch);
    std::vector<std::uint32_t> order(texts_.size());
    std::iota(order.begin(), order.end(), 0U);
    std::stable_sort(order.begin(), order.end(),
                     [&](std::uint32_t a, std::uint32_t b) { return texts_[a].size() > texts_[b].size(); });
    WordIndex index;
    index.texts_ = texts;
    index.entries_.reserve(order.size() + 1);
    for (const std::uint32_t number : order) {
        if (texts_[number].empty()) break;
        index.AppendWord(*words[number], texts_[number]);
    }
    index.entries_.push_back({index.words_.size(), index.packed_.size()});
    index.words_.shrink_to_fit();
    index.packed_.shrink_to_fit();
    *this = Builder();
    return index;
}

// For frequent words, a bit set is smaller than packed numbers, which take at least a byte each, and is
// faster to combine.
bool WordIndex::IsFrequent(std::size_t count) const {
    constexpr std::size_t kBitsOfByte = 8;
    return count * kBitsOfByte >= texts_;
}

void WordIndex::AppendWord(std::string_view word, std::vector<std::uint32_t>& texts) {
    entries_.push_back({words_.size(), packed_.size()});
    words_.append(word).push_back('\n');
    if (IsFrequent(texts.size())) {
        ++frequentWords_;
        const std::size_t begin = frequent_.size();
        frequent_.resize(begin + SetSize(texts_));
        for (const std::uint32_t text : texts)
            frequent_[begin + text / kBits] |= std::uint64_t{1} << (text % kBits);
    } else {
        std::uint32_t last = 0;
        for (const std::uint32_t text : texts) AppendPacked(packed_, text - std::exchange(last, text));
    }
    texts = {};
}

std::size_t WordIndex::EntryAt(std::size_t place, std::size_t from) const {
    // The words found are either close together or few, so the search is exponential from the previous one.
    std::size_t step = 1;
    while (from + step < entries_.size() && entries_[from + step].word <= place) {
        from += step;
        step *= 2;
    }
    const auto begin = entries_.begin() + static_cast<std::ptrdiff_t>(from);
    const auto end = entries_.begin() + static_cast<std::ptrdiff_t>(std::min(from + step, entries_.size()));
    const auto behind = std::upper_bound(begin, end, place,
                                         [](std::size_t at, const Entry& entry) { return at < entry.word; });
    return static_cast<std::size_t>(behind - entries_.begin()) - 1;
}

std::uint32_t WordIndex::Collect(std::size_t entry, BitSet& found) const {
    std::uint32_t added = 0;
    if (entry < frequentWords_) {
        const std::uint64_t* const set = frequent_.data() + entry * found.size();
        for (std::size_t i = 0; i < found.size(); ++i) {
            added += static_cast<std::uint32_t>(std::popcount(set[i] & ~found[i]));
            found[i] |= set[i];
        }
        return added;
    }
    const unsigned char* at = packed_.data() + entries_[entry].numbers;
    const unsigned char* const end = packed_.data() + entries_[entry + 1].numbers;
    for (std::uint32_t text = 0; at < end;) {
        std::uint32_t distance = *at & 0x7FU;
        for (unsigned shift = 7; (*at++ & 0x80U) != 0; shift += 7) distance |= (*at & 0x7FU) << shift;
        text += distance;
        const std::uint64_t bit = std::uint64_t{1} << (text % kBits);
        added += (found[text / kBits] & bit) == 0 ? 1 : 0;
        found[text / kBits] |= bit;
    }
    return added;
}

BitSet WordIndex::Find(std::string_view part) const {
    const bool isNumber = part.front() >= '0' && part.front() <= '9';
    const std::string wanted = (isNumber ? "\n" : "") + std::string(part);
    BitSet found(SetSize(texts_));
    std::uint32_t missing = texts_;
    std::size_t entry = 0;
    for (std::size_t place = 0; missing > 0 && place < words_.size();) {
        const void* const hit =
            memmem(words_.data() + place, words_.size() - place, wanted.data(), wanted.size());
        if (hit == nullptr) break;
        const auto at = static_cast<std::size_t>(static_cast<const char*>(hit) - words_.data());
        entry = EntryAt(isNumber ? at + 1 : at, entry);
        missing -= Collect(entry, found);
        // Includes the line break before the next word.
        place = entries_[entry + 1].word - 1;
    }
    return found;
}

}  // namespace tw
