// The parsers and validators once more, written down step by step as the frame is described and without a
// thought for speed: each parser on its own, each word put back literally. The fast ones are compared with
// these.
#pragma once

#include <string>

namespace tw::test {

// What a parser or validator did: 'y' accepted, 'n' refused, 'd' raised "Division by zero", 'o' raised
// "Overflow".
struct Outcome {
    char kind = 'n';
    double value = 0;
    std::string message;

    bool operator==(const Outcome&) const = default;
};

std::string PlainGetToken(std::string& text);
// name is that of the parser or validator in the program.
Outcome PlainParse(const std::string& name, const std::string& text);
Outcome PlainValidate(const std::string& name, const std::string& text);

}  // namespace tw::test
