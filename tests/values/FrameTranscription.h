// A second version of the parsers and validators, written step by step without regard to speed: each parser
// is separate, and each word is put back literally. The fast versions are compared with these.
#pragma once

#include <string>

namespace tw::test {

// The result of a parser or validator: 'y' accepted, 'n' refused, 'd' raised "Division by zero",
// 'o' raised "Overflow".
struct Outcome {
    char kind = 'n';
    double value = 0;
    std::string message;

    bool operator==(const Outcome&) const = default;
};

std::string PlainGetToken(std::string& text);
// name is the name of the parser or validator in the program.
Outcome PlainParse(const std::string& name, const std::string& text);
Outcome PlainValidate(const std::string& name, const std::string& text);

}  // namespace tw::test
