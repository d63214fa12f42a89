// The shortest decimal digits of a double, and the operations that text needs on them: shifting the decimal
// point, rounding, writing in fixed notation. Rounding works on the digits that the brewer reads: 1.2345 to
// three places is 1.235, although the double itself is slightly smaller.
#pragma once

#include <string>

namespace tw {

class DecimalDigits {
  public:
    // Holds the fewest digits that read back as value, which may be in any unit. REQUIRES: value is finite.
    explicit DecimalDigits(double value);

    // Multiplies the number by 10^places, exactly.
    void ShiftPoint(int places) {
        if (count_ > 0) point_ += places;
    }
    // Rounds to that many places after the decimal mark, half away from zero. Returns false if there was
    // nothing to cut. REQUIRES: places is not negative.
    bool RoundTo(int places);

    bool IsZero() const { return count_ == 0; }
    // True for a number below zero; false once it is rounded to zero.
    bool IsNegative() const { return negative_ && count_ > 0; }
    // Returns the number of significant digits, at most 17.
    int Count() const { return count_; }

    // Appends the magnitude to out in fixed notation, with at least minWhole digits before the decimal mark
    // and minPlaces after it, and otherwise no more digits than needed. The mark is left out if no digit
    // follows it.
    void AppendMagnitude(std::string& out, int minWhole, int minPlaces) const;

  private:
    // The number is 0.d1 d2 d3 ... * 10^point_. Neither the first nor the last digit is a zero; zero has no
    // digits and point_ 0.
    static constexpr int kMostDigits = 17;
    char digits_[kMostDigits + 1];
    int count_ = 0;
    int point_ = 0;
    bool negative_ = false;

    void DropTrailingZeros();
};

}  // namespace tw
