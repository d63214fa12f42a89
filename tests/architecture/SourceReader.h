// Reads C++ sources for the checks of the architecture: separates code from comments, and finds the functions
// that a class declares.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace tw::test {

// Returns the contents of a file. Raises std::runtime_error if it cannot be read.
std::string ReadSource(const std::filesystem::path& file);

// Returns the source with comments replaced by blanks. Line breaks are kept, so that line numbers stay the
// same.
std::string WithoutComments(std::string_view source);

// Returns the source with comments, quoted texts and preprocessor lines replaced by blanks.
std::string CodeOf(std::string_view source);

// Returns the line of a position in a text, counted from 1.
int LineAt(std::string_view text, std::size_t place);

// A class, struct or union and the number of functions that its body declares, without those of nested
// classes. Constructors, destructors and operators count; friends, aliases and data members do not.
struct DeclaredClass {
    std::string name;  // with the names of the classes around it: "Shell::ActionRow"
    int line = 0;      // of its keyword
    int functions = 0;
};
std::vector<DeclaredClass> ClassesOf(std::string_view source);

}  // namespace tw::test
