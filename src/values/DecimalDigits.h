// The shortest decimal digits of a double and what text work does with them: shifting the decimal point,
// rounding, writing in fixed notation. Rounding here is rounding of the number as the brewer reads it: 1.2345
// to three places is 1.235, although the double behind it lies a little below.
#pragma once

#include <string>

namespace tw {

class DecimalDigits {
  public:
    // The fewest digits that read back as value, which may be in any unit. REQUIRES: value is finite.
    explicit DecimalDigits(double value);

    // Multiplies the number by 10^places, exactly.
    void ShiftPoint(int places) {
        if (count_ > 0) point_ += places;
    }
    // Rounds to that many places behind the decimal mark, half away from zero. REQUIRES: places is not
    // negative. Returns false when there was nothing to cut.
    bool RoundTo(int places);

    bool IsZero() const { return count_ == 0; }
    // True for numbers below zero; false once rounded to zero.
    bool IsNegative() const { return negative_ && count_ > 0; }
    // The number of significant digits, at most 17.
    int Count() const { return count_; }

    // Writes the magnitude in fixed notation with at least minWhole digits before the decimal mark and
    // minPlaces behind it, and no more than are needed otherwise. Without any digit behind it the mark is
    // left out.
    void AppendMagnitude(std::string& out, int minWhole, int minPlaces) const;

  private:
    // The number is 0.d1 d2 d3 ... * 10^point_. Neither the first nor the last digit is a zero;
    // zero has no digits and point_ 0.
    static constexpr int kMostDigits = 17;
    char digits_[kMostDigits + 1];
    int count_ = 0;
    int point_ = 0;
    bool negative_ = false;

    void DropTrailingZeros();
};

}  // namespace tw
