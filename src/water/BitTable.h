// A table of bits that says which places of a matrix may be nonzero, so that the others need not be visited.
#pragma once

#include <algorithm>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace tw {

// kFixedWords is the number of words in a row if it is known at compile time, which avoids the loops over
// them; otherwise 0.
template <int kFixedWords = 0>
class BitTable {
  public:
    using Word = std::uint64_t;
    static constexpr int kWordBits = 64;

    static constexpr int WordsFor(int bits) { return (bits + kWordBits - 1) / kWordBits; }

    // Clears all bits. REQUIRES: no argument is negative; bits fit into the fixed words.
    BitTable(int rows, int bits)
        : words_(WordsFor(bits)), table_(static_cast<std::size_t>(rows) * Words(), Word{0}) {}

    // Returns the number of words in a row. Row returns them, lowest bits first.
    int Words() const { return kFixedWords > 0 ? kFixedWords : words_; }
    Word* Row(int row) { return table_.data() + static_cast<std::ptrdiff_t>(row) * Words(); }
    const Word* Row(int row) const { return table_.data() + static_cast<std::ptrdiff_t>(row) * Words(); }

    void Set(int row, int bit) { Row(row)[WordOf(bit)] |= Word{1} << ShiftOf(bit); }
    void Clear(int row, int bit) { Row(row)[WordOf(bit)] &= ~(Word{1} << ShiftOf(bit)); }
    void ClearRow(int row) { std::fill_n(Row(row), Words(), Word{0}); }
    bool Empty(int row) const {
        return std::all_of(Row(row), Row(row) + Words(), [](Word word) { return word == 0; });
    }
    // Sets the bits of a row that are set in words.
    void Unite(int row, const Word* words) {
        for (int word = 0; word < Words(); ++word) Row(row)[word] |= words[word];
    }
    // Clears the bits of a row that are clear in words.
    void Intersect(int row, const Word* words) {
        for (int word = 0; word < Words(); ++word) Row(row)[word] &= words[word];
    }
    // Clears the bits of a row up to the given one, which is included.
    void ClearUpTo(int row, int bit) {
        std::fill_n(Row(row), WordOf(bit), Word{0});
        Row(row)[WordOf(bit)] &= (~Word{0} << ShiftOf(bit)) << 1;
    }

    // Calls visit(bit) for every bit set in a row, from the lowest up.
    template <class Visit>
    void ForEach(int row, Visit visit) const {
        for (int word = 0; word < Words(); ++word)
            for (Word bits = Row(row)[word]; bits != 0; bits &= bits - 1)
                visit(word * kWordBits + std::countr_zero(bits));
    }
    // Calls visit(bit) for every bit set in a row, from the highest down.
    template <class Visit>
    void ForEachDownwards(int row, Visit visit) const {
        for (int word = Words() - 1; word >= 0; --word) {
            for (Word bits = Row(row)[word]; bits != 0;) {
                const int highest = kWordBits - 1 - std::countl_zero(bits);
                bits ^= Word{1} << highest;
                visit(word * kWordBits + highest);
            }
        }
    }

  private:
    static int WordOf(int bit) { return static_cast<int>(static_cast<unsigned>(bit) / kWordBits); }
    static int ShiftOf(int bit) { return static_cast<int>(static_cast<unsigned>(bit) % kWordBits); }

    int words_;
    std::vector<Word> table_;
};

}  // namespace tw
