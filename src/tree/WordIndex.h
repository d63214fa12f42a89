// Which numbered texts hold a word: each different word stands once, with the numbers of its texts packed
// behind it. So a search reads the different words alone, however long the texts are.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace tw {

// A set of numbers from 0, a bit for each.
using BitSet = std::vector<std::uint64_t>;

// The words of text in upper case, as they stand between blanks, tabs and line breaks; each as often as it
// stands there.
std::vector<std::string> WordsOf(std::string_view text);

class WordIndex {
  public:
    // Collects the words of the texts.
    class Builder {
      public:
        // The numbers that the words of text have here, for Add.
        std::vector<std::uint32_t> NumbersOf(std::string_view text);
        // Counts those words as words of the text of that number.
        void Add(const std::vector<std::uint32_t>& words, std::uint32_t text);
        // The index over the texts numbered below texts. The builder is empty then.
        WordIndex Build(std::uint32_t texts);

      private:
        struct Hash {
            using is_transparent = void;
            std::size_t operator()(std::string_view text) const {
                return std::hash<std::string_view>()(text);
            }
        };
        std::unordered_map<std::string, std::uint32_t, Hash, std::equal_to<>> numbers_;
        std::vector<std::vector<std::uint32_t>> texts_;  // of each word, in any order, also twice
    };

    // The texts in which one word or more holds part. REQUIRES: part is in upper case and holds no blank.
    BitSet Find(std::string_view part) const;

  private:
    struct Entry {
        std::size_t word;     // where it begins in words_
        std::size_t numbers;  // where its texts begin in packed_; without a meaning for a frequent word
    };
    void AppendWord(std::string_view word, std::vector<std::uint32_t>& texts);
    bool IsFrequent(std::size_t count) const;
    // The entry of the word at that place, which is not before the one of that number.
    std::size_t EntryAt(std::size_t place, std::size_t from) const;
    // Puts the texts of the word into found; how many had not been there.
    std::uint32_t Collect(std::size_t entry, BitSet& found) const;

    std::uint32_t texts_ = 0;
    std::string words_;  // the most frequent first, a line each
    std::vector<Entry> entries_;
    std::size_t frequentWords_ = 0;
    std::vector<std::uint64_t> frequent_;  // a set for each of the first words, one behind the other
    std::vector<unsigned char> packed_;    // the distances from one number to the next, seven bits a byte
};

}  // namespace tw
