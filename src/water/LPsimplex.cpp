#include "water/LPsimplex.h"

#include <algorithm>
#include <utility>

#include "platform/Error.h"
#include "water/AugmentBasis.h"
#include "water/CheckedNumber.h"

namespace tw {
namespace {

// A shorter run is not checked for cycles.
constexpr std::int64_t kFirstMilestone = 16;

void RequireSubscript(bool inRange) {
    constexpr int kSubscriptOutOfRange = 9;
    if (!inRange) throw Error("LPsimplex", "Subscript out of range", kSubscriptOutOfRange);
}

}  // namespace

void LPsimplex::Initialize(int numVars, int numConstraints) {
    RequireSubscript(numVars >= 0 && numConstraints >= 0);
    numVars_ = numVars;
    numConstraints_ = numConstraints;
    rowEnds_.reserve(numConstraints);
    rhs_.assign(numConstraints, 0.0);
    rowTypes_.assign(numConstraints, LPRow::AtMost);
    costs_.reserve(static_cast<std::size_t>(numVars) + 2 * static_cast<std::size_t>(numConstraints));
    costs_.assign(numVars, 0.0);
}

void LPsimplex::SpecifyObjective(std::span<const double> coefficients, bool minimise) {
    RequireSubscript(std::ssize(coefficients) >= numVars_);
    for (int col = 0; col < numVars_; ++col) costs_[col] = CheckedNumber(coefficients[col]);
    minimising_ = minimise;
}

void LPsimplex::AddConstraint(std::span<const double> coefficients, double rightHandSide, LPRow type) {
    RequireSubscript(std::ssize(coefficients) >= numVars_ && nextRow_ < numConstraints_);
    // Every place is written, but counted only if it is not zero: that costs less than a branch.
    std::size_t count = given_.size();
    given_.resize(count + numVars_);
    for (int col = 0; col < numVars_; ++col) {
        given_[count] = {nextRow_, col, CheckedNumber(coefficients[col])};
        count += coefficients[col] != 0.0 ? 1 : 0;
    }
    given_.resize(count);
    rowEnds_.push_back(static_cast<int>(count));
    rhs_[nextRow_] = CheckedNumber(rightHandSide);
    rowTypes_[nextRow_] = type;
    ++nextRow_;
}

LPStatus LPsimplex::Solve(int maxIterations) {
    solution_.assign(numVars_, 0.0);
    iterations_ = 0;
    SetupBasis();
    while (true) {
        const Outcome outcome = Iterate();
        if (outcome == Outcome::Pivoted) SkipCycle(maxIterations);
        if (iterations_ > maxIterations) break;
        if (outcome == Outcome::Unbounded) return LPStatus::NoSolution;
        if (outcome == Outcome::Optimal && !phaseOne_) {
            GetSolution();
            return LPStatus::Solved;
        }
        if (outcome == Outcome::Optimal) {
            // Even a rounding error above zero means infeasible: there is no tolerance.
            if (objectiveValue_ != 0.0) return LPStatus::NoSolution;
            GetRidOfArtificials();
        }
    }
    GetSolution();
    return LPStatus::IterationLimit;
}

void LPsimplex::SetupBasis() {
    const int m = numConstraints_;
    savedMinimising_ = minimising_;
    if (!minimising_)
        for (double& cost : costs_) cost = -cost;
    matrix_ = ColumnMatrix(numVars_, given_);
    matrix_.Reserve(2 * m);
    basis_.assign(m, 0);
    basicValues_.assign(m, 0.0);
    nonBasis_.clear();
    nonBasis_.reserve(static_cast<std::size_t>(numVars_) + m);
    for (int col = 0; col < numVars_; ++col) nonBasis_.push_back(col);
    AddSlacks();
    phaseOne_ = matrix_.Columns() > firstArtificial_;
    costs_.resize(matrix_.Columns(), 0.0);
    if (phaseOne_) SetupPhaseOne();

    system_ = LinearSystem::Make(m);
    rightSide_.assign(m, 0.0);
    multipliers_.assign(m, 0.0);
    products_.assign(matrix_.Columns(), 0.0);
    direction_.assign(m, 0.0);
}

// A row with a right side of exactly zero starts on its slack or surplus; an equality always on an artificial
// variable.
void LPsimplex::AddSlacks() {
    for (int row = 0; row < numConstraints_; ++row)
        if (rowTypes_[row] != LPRow::Equal)
            matrix_.Append({{{row, rowTypes_[row] == LPRow::AtMost ? 1.0 : -1.0}}});
    firstArtificial_ = matrix_.Columns();
    int slack = numVars_;
    for (int row = 0; row < numConstraints_; ++row) {
        const double b = rhs_[row];
        const bool hasSlack = rowTypes_[row] != LPRow::Equal;
        const bool onSlack = hasSlack && (rowTypes_[row] == LPRow::AtMost ? b >= 0.0 : b <= 0.0);
        basicValues_[row] = b < 0.0 ? -b : b;
        if (onSlack) {
            basis_[row] = slack++;
            continue;
        }
        basis_[row] = matrix_.Columns();
        matrix_.Append({{{row, b < 0.0 ? -1.0 : 1.0}}});
        if (hasSlack) nonBasis_.push_back(slack++);
    }
}

void LPsimplex::SetupPhaseOne() {
    savedCosts_ = costs_;
    for (int col = 0; col < matrix_.Columns(); ++col) costs_[col] = IsArtificial(col) ? 1.0 : 0.0;
    minimising_ = true;
}

// Moves from phase one to phase two. An artificial column that AugmentBasis chooses again stays basic at no
// cost. As many columns are dropped from the end as there are artificial ones, so that a real column is
// dropped in its place and the answer may be poorer: kept, since a program must always have the same answer.
void LPsimplex::GetRidOfArtificials() {
    const int columns = matrix_.Columns();
    std::vector<char> basic(columns, 0);
    std::vector<double> valueOf(columns, 0.0);
    for (int i = 0; i < numConstraints_; ++i) {
        basic[basis_[i]] = 1;
        valueOf[basis_[i]] = basicValues_[i];
    }
    std::vector<int> kept;
    for (const int col : basis_)
        if (!IsArtificial(col)) kept.push_back(col);
    if (std::ssize(kept) < numConstraints_) {
        const std::vector<int> order = AugmentBasis(matrix_, numConstraints_, kept).value();
        std::fill(basic.begin(), basic.end(), 0);
        for (int i = 0; i < numConstraints_; ++i) basic[order[i]] = 1;
    }
    ListInColumnOrder(basic, valueOf);
    const int live = firstArtificial_ - numConstraints_;
    nonBasis_.resize(std::max(live, 0));
    phaseOne_ = false;
    costs_ = savedCosts_;
    minimising_ = savedMinimising_;
    milestone_ = {};
}

void LPsimplex::ListInColumnOrder(const std::vector<char>& basic, const std::vector<double>& valueOf) {
    basis_.clear();
    basicValues_.clear();
    nonBasis_.clear();
    for (int col = 0; col < matrix_.Columns(); ++col) {
        if (basic[col] == 0) {
            nonBasis_.push_back(col);
            continue;
        }
        basis_.push_back(col);
        basicValues_.push_back(valueOf[col]);
    }
}

double LPsimplex::ObjectiveValue() const {
    double sum = 0;
    for (int i = 0; i < numConstraints_; ++i) sum += costs_[basis_[i]] * basicValues_[i];
    return CheckedNumber(minimising_ ? sum : -sum);
}

LPsimplex::Outcome LPsimplex::Iterate() {
    ++iterations_;
    ComputeMultipliers();
    const int entering = ChooseEntering();
    if (entering < 0) {
        objectiveValue_ = ObjectiveValue();
        return Outcome::Optimal;
    }
    ComputeDirection(nonBasis_[entering]);
    if (IsUnbounded()) return Outcome::Unbounded;
    UpdateBasis(entering, ChooseLeaving());
    return Outcome::Pivoted;
}

// Solved anew from the matrix in every step, like the direction, so that no error of earlier steps remains.
void LPsimplex::ComputeMultipliers() {
    for (int i = 0; i < numConstraints_; ++i) rightSide_[i] = costs_[basis_[i]];
    system_->SolveTransposed(matrix_, basis_, rightSide_, multipliers_);
}

// Multiplies each column with the multipliers of the rows. Sums along the rows, so that a row whose
// multiplier is zero is skipped as a whole; each column still adds its terms from the top.
void LPsimplex::PriceColumns() {
    std::fill(products_.begin(), products_.begin() + numVars_, 0.0);
    int at = 0;
    for (int row = 0; row < nextRow_; at = rowEnds_[row++]) {
        const double multiplier = multipliers_[row];
        if (multiplier == 0.0) continue;
        for (int i = at; i < rowEnds_[row]; ++i) products_[given_[i].col] += multiplier * given_[i].value;
    }
    for (int col = numVars_; col < matrix_.Columns(); ++col) {
        const ColumnMatrix::Entry& only = matrix_.Column(col).front();
        products_[col] = multipliers_[only.row] * only.value;
    }
}

// Returns the position of the most negative reduced cost, the first of equals; -1 if none is negative.
int LPsimplex::ChooseEntering() {
    PriceColumns();
    int entering = -1;
    double best = 0;
    for (int j = 0; j < static_cast<int>(nonBasis_.size()); ++j) {
        const double reducedCost = CheckedNumber(costs_[nonBasis_[j]] - products_[nonBasis_[j]]);
        if (reducedCost < best) {
            best = reducedCost;
            entering = j;
        }
    }
    return entering;
}

void LPsimplex::ComputeDirection(int column) {
    std::fill(rightSide_.begin(), rightSide_.end(), 0.0);
    for (const ColumnMatrix::Entry& entry : matrix_.Column(column)) rightSide_[entry.row] = entry.value;
    system_->Solve(matrix_, basis_, rightSide_, direction_);
}

bool LPsimplex::IsUnbounded() const {
    return std::none_of(direction_.begin(), direction_.end(), [](double d) { return d > 0.0; });
}

// Returns the position with the smallest ratio, the first of equals. REQUIRES: not unbounded.
int LPsimplex::ChooseLeaving() {
    int leaving = -1;
    for (int i = 0; i < numConstraints_; ++i) {
        if (!(direction_[i] > 0.0)) continue;
        const double ratio = CheckedNumber(basicValues_[i] / direction_[i]);
        if (leaving < 0 || ratio < theta_) {
            theta_ = ratio;
            leaving = i;
        }
    }
    return leaving;
}

void LPsimplex::UpdateBasis(int entering, int leaving) {
    for (int i = 0; i < numConstraints_; ++i)
        basicValues_[i] = CheckedNumber(basicValues_[i] - direction_[i] * theta_);
    basicValues_[leaving] = theta_;
    std::swap(basis_[leaving], nonBasis_[entering]);
}

// Equal bases and values lead to equal steps. When they recur, the whole rounds that still fit below the
// limit are counted but not run.
void LPsimplex::SkipCycle(int maxIterations) {
    if (basis_ == milestone_.basis && nonBasis_ == milestone_.nonBasis &&
        basicValues_ == milestone_.basicValues) {
        const std::int64_t period = iterations_ - milestone_.iteration;
        const std::int64_t remaining = std::int64_t{maxIterations} + 1 - iterations_;
        if (remaining > 0) iterations_ += remaining / period * period;
    } else if (iterations_ >= std::max(kFirstMilestone, 2 * milestone_.iteration)) {
        milestone_ = {basis_, nonBasis_, basicValues_, iterations_};
    }
}

void LPsimplex::GetSolution() {
    for (int i = 0; i < numConstraints_; ++i)
        if (basis_[i] < numVars_) solution_[basis_[i]] = basicValues_[i] + 0.0;
}

}  // namespace tw
