// Solves any small linear program: a size, then a byte for each coefficient, row type and right side, which
// yields zeros, equal rows, ties and numbers at both ends of the range of a double. The solver stops at its
// limit of iterations, raises nothing but an arithmetic error, and returns finite values. A second object
// returns exactly the same values.
#include <bit>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <vector>

#include "platform/Error.h"
#include "water/LPsimplex.h"

namespace {

using namespace tw;

constexpr int kMostVariables = 12;
constexpr int kMostRows = 14;

void Require(bool holds) {
    if (!holds) std::abort();
}

class Bytes {
  public:
    Bytes(const std::uint8_t* data, std::size_t size) : data_(data), end_(data + size) {}

    int Next() { return data_ == end_ ? 0 : *data_++; }
    double Number() {
        constexpr double kScales[] = {1, 1, 0.1, 0.01, 1e-6, 1e150, 1e-200, 1e305};
        const int byte = Next();
        const double number = (byte % 16) - 4;
        return byte < 128 ? number : number * kScales[byte / 16 - 8];
    }

  private:
    const std::uint8_t* data_;
    const std::uint8_t* end_;
};

struct Outcome {
    int status = -1;  // -1 for an arithmetic error
    std::vector<double> x = {};
};

Outcome Solve(Bytes bytes) {
    const int vars = bytes.Next() % (kMostVariables + 1);
    const int rowsByte = bytes.Next();
    // Sometimes there are more rows than a machine word has bits.
    const int rows = rowsByte < 250 ? rowsByte % (kMostRows + 1) : rowsByte - 250 + 62;
    const int limit = rows <= kMostRows ? bytes.Next() : bytes.Next() % 4;
    const bool minimise = bytes.Next() % 2 == 0;
    LPsimplex simplex;
    simplex.Initialize(vars, rows);
    std::vector<double> numbers(vars);
    const auto read = [&] {
        for (double& number : numbers) number = bytes.Number();
    };
    read();
    simplex.SpecifyObjective(numbers, minimise);
    for (int row = 0; row < rows; ++row) {
        const auto type = static_cast<LPRow>(bytes.Next() % 3);
        const double rightSide = bytes.Number();
        read();
        simplex.AddConstraint(numbers, rightSide, type);
    }
    Outcome outcome;
    try {
        outcome.status = static_cast<int>(simplex.Solve(limit));
        Require(simplex.Iterations() <= limit + 1);
        Require((outcome.status == 2) == (simplex.Iterations() == limit + 1));
    } catch (const Error& error) {
        Require(error.Number() == kDivisionByZeroNumber || error.Number() == kOverflowNumber);
    }
    outcome.x = simplex.Solution();
    Require(outcome.x.size() == static_cast<std::size_t>(vars));
    for (const double value : outcome.x) {
        Require(std::isfinite(value));
        Require(value != 0.0 || !std::signbit(value));
        Require(outcome.status == 0 || outcome.status == 2 || value == 0.0);
    }
    return outcome;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const Outcome one = Solve(Bytes(data, size));
    const Outcome other = Solve(Bytes(data, size));
    Require(one.status == other.status);
    for (std::size_t i = 0; i < one.x.size(); ++i)
        Require(std::bit_cast<std::uint64_t>(one.x[i]) == std::bit_cast<std::uint64_t>(other.x[i]));
    return 0;
}
