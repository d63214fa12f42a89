// Finds the numbered texts that contain a word. Each different word is stored once, with the packed numbers
// of its texts, so a search reads only the different words, however long the texts are.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace tw {

// A set of numbers from 0, with one bit per number.
using BitSet = std::vector<std::uint64_t>;

class WordIndex {
  public:
    // Collects the words of the texts.
    class Builder {
      public:
        // Returns the numbers that identify the words of text (MatchWords) in this builder, for Add.
        std::vector<std::uint32_t> NumbersOf(std::string_view text);
        // Records that the text of that number contains those words.
        void Add(const std::vector<std::uint32_t>& words, std::uint32_t text);
        // Returns the index of the texts with numbers below texts, and empties the builder.
        WordIndex Build(std::uint32_t texts);

      private:
        struct Hash {
            using is_transparent = void;
            std::size_t operator()(std::string_view text) const {
                return std::hash<std::string_view>()(text);
            }
        };
        std::unordered_map<std::string, std::uint32_t, Hash, std::equal_to<>> numbers_;
        std::vector<std::vector<std::uint32_t>> texts_;  // the texts of each word, unsorted, with duplicates
    };

    // Returns the texts in which a word contains part, or begins with it if part is a number: 05 is not meant
    // by 1.050. REQUIRES: part is a word (MatchWords).
    BitSet Find(std::string_view part) const;

  private:
    struct Entry {
        std::size_t word;     // its position in words_
        std::size_t numbers;  // position of its texts in packed_; unused for a frequent word
    };
    void AppendWord(std::string_view word, std::vector<std::uint32_t>& texts);
    bool IsFrequent(std::size_t count) const;
    // Returns the entry of the word at that position, searching from the entry from on.
    std::size_t EntryAt(std::size_t place, std::size_t from) const;
    // Adds the texts of the word to found. Returns how many were not in it before.
    std::uint32_t Collect(std::size_t entry, BitSet& found) const;

    std::uint32_t texts_ = 0;
    std::string words_ = "\n";  // a line break before and after each, the most frequent first
    std::vector<Entry> entries_;
    std::size_t frequentWords_ = 0;
    std::vector<std::uint64_t> frequent_;  // a bit set for each of the frequent words, concatenated
    std::vector<unsigned char> packed_;    // differences between consecutive numbers, seven bits per byte
};

}  // namespace tw
