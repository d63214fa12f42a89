// Reads C++ sources as far as the checks of the layout need it: what is code, and which functions a class
// declares.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace tw::test {

// The bytes of a file. Raises std::runtime_error when it cannot be read.
std::string ReadSource(const std::filesystem::path& file);

// The source with blanks in place of its comments. Line breaks stay, so that places keep their lines.
std::string WithoutComments(std::string_view source);

// The source with blanks in place of comments, of what stands between quotes, and of preprocessor lines.
std::string CodeOf(std::string_view source);

// The line of a place in a text, counted from 1.
int LineAt(std::string_view text, std::size_t place);

// A class, struct or union of a header and how many functions its body declares, those of nested classes
// apart. Constructors, destructors and operators count; friends, aliases and data members do not.
struct DeclaredClass {
    std::string name;  // with the names of the classes around it: "Shell::ActionRow"
    int line = 0;      // of its keyword
    int functions = 0;
};
std::vector<DeclaredClass> ClassesOf(std::string_view source);

}  // namespace tw::test
