// The rule that every number of a public declaration says its unit.
#pragma once

#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace tw::test {

inline constexpr std::string_view kUnitRule =
    "say the unit of every number: in its name, its type, or its comment";

// The names of types that are floating numbers or hold such.
using NumberTypes = std::set<std::string, std::less<>>;

// Returns float, double and qreal, and the aliases of them that a header declares publicly, such as an array
// of double. An alias of a function is none.
NumberTypes NumberTypesIn(std::string_view header);

// A number that says no unit.
struct NumberWithoutUnit {
    int line = 0;             // of its declaration, counted from 1
    std::string declaration;  // on one line
    std::string
        number;  // the name of the parameter, the member or the constant; "result" for what is returned
};

// Returns the numbers of the header's public declarations of which neither a name nor a comment says the
// unit. A name speaks for what it names, a function's for its result; a comment speaks for the
// other numbers of the declaration, and the comment of a class for its members where it says that they have
// no unit.
std::vector<NumberWithoutUnit> NumbersWithoutUnit(std::string_view header, const NumberTypes& types);

}  // namespace tw::test
