// The public declarations of a header, each with the comments that speak of it.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tw::test {

// A function, a data member, a constant or an alias, at namespace scope or in the public part of a class.
struct PublicDeclaration {
    int line = 0;      // where it begins, counted from 1
    std::string text;  // on one line, without body, initialiser, template head and comments
    // The comments above it (or above the lines right above it), behind it, and the last comment of its scope
    // that a blank line separates from what follows. On one line, without slashes.
    std::string comment;
    std::string classComment;  // the comments of the classes around it
};

// Returns them in the order of the header. Enumerations, friends and bodies are passed over.
std::vector<PublicDeclaration> PublicDeclarationsOf(std::string_view header);

}  // namespace tw::test
