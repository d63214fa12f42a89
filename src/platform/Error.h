// The one exception type of the program. An error that no routine catches reaches the event loop, which shows
// it in a message box and continues; nothing that the brewer enters ever ends the process.
#pragma once

#include <stdexcept>
#include <string>

namespace tw {

// An error with its source, a description and a number.
class Error : public std::runtime_error {
  public:
    // what() is the description.
    Error(std::string source, const std::string& description, int number)
        : std::runtime_error(description), source_(std::move(source)), number_(number) {}

    const std::string& Source() const { return source_; }
    std::string Description() const { return what(); }
    int Number() const { return number_; }

    // Returns "{description} ({number})", the form of most error boxes.
    std::string WithNumber() const { return Description() + " (" + std::to_string(number_) + ")"; }
    // Returns "{source}\r\n{description} ({number})", the form of the error boxes of store operations.
    std::string WithSource() const { return source_ + "\r\n" + WithNumber(); }

  private:
    std::string source_;
    int number_;
};

inline constexpr int kOverflowNumber = 6;
inline constexpr int kDivisionByZeroNumber = 11;

// Raises the arithmetic error "Division by zero", number 11.
[[noreturn]] void RaiseDivisionByZero();
// Raises the arithmetic error "Overflow", number 6.
[[noreturn]] void RaiseOverflow();

// Returns numerator / denominator. Raises "Division by zero" if denominator is zero and "Overflow" if the
// result is not finite, so that no figure ever holds infinity or NaN.
double Divide(double numerator, double denominator);
// Returns value. Raises "Overflow" if it is infinite or NaN.
double Finite(double value);

}  // namespace tw
