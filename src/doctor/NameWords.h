// The words of an ingredient's name, in the spelling and order in which names of different programs can be
// compared.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tw {

struct NameWords {
    std::vector<std::string> all;        // sorted, each in one spelling
    std::vector<std::string> core;       // those that tell neither origin nor supplier nor the obvious
    std::vector<std::string> origins;    // sorted, each country or region in one spelling: "us"
    std::vector<std::string> suppliers;  // sorted, in one spelling: "weyermann"
    std::string joined;                  // all words in their order as written, folded, without blanks
};

NameWords WordsOfName(std::string_view name);

// Returns how many letters must be inserted, deleted, replaced or swapped with their neighbour to make one
// text of the other; most + 1 if it is more than most.
std::size_t EditDistance(std::string_view a, std::string_view b, std::size_t most);

}  // namespace tw
