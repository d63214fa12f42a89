// Random numbers that are the same in every run and on every machine.
#pragma once

#include <cstdint>

namespace tw {

class Dice {
  public:
    explicit Dice(std::uint64_t seed) : state_(seed) {}

    // Returns 0 to limit - 1.
    int Below(int limit) {
        state_ = state_ * 6364136223846793005U + 1442695040888963407U;
        return static_cast<int>((state_ >> 33) % static_cast<unsigned>(limit));
    }
    // Returns at least 0 and less than 1.
    double Fraction() { return Below(1 << 30) / static_cast<double>(1 << 30); }
    // Returns zeros, small whole numbers and tenths, so that there are ties, exact zeros and rounding errors.
    double Coefficient(int zerosOfTen) {
        if (Below(10) < zerosOfTen) return 0;
        return Below(2) == 0 ? Below(7) - 3 : (Below(199) - 99) / 10.0;
    }

  private:
    std::uint64_t state_;
};

}  // namespace tw
