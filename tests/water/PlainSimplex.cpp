#include "PlainSimplex.h"

#include <algorithm>
#include <cmath>

#include "platform/Error.h"

namespace tw {
namespace {

double Add(double a, double b) {
    return Finite(a + b);
}
double Subtract(double a, double b) {
    return Finite(a - b);
}
double Multiply(double a, double b) {
    return Finite(a * b);
}

class PlainSimplex {
  public:
    PlainSimplex(const LinearProgram& program, LPAnswer& answer) : program_(program), answer_(answer) {
        n_ = program.vars;
        m_ = static_cast<int>(program.rows.size());
        matrix_.assign(m_, std::vector<double>(3 * m_ + n_, 0.0));
        costs_.assign(2 * m_ + n_, 0.0);
        savedCosts_ = costs_;
        nonBasis_.assign(2 * m_ + n_, 0);
        colKinds_.assign(2 * m_ + n_, 0);
        basis_.assign(m_, 0);
        basicValues_.assign(m_, 0.0);
        for (int i = 0; i < m_; ++i)
            for (int j = 0; j < n_; ++j) matrix_[i][j] = program.rows[i].coefficients[j];
        for (int j = 0; j < n_; ++j) costs_[j] = program.objective[j];
        minimising_ = program.minimise;
    }

    void Solve(int maxIterations) {
        answer_.x.assign(n_, 0.0);
        SetupBasis();
        while (true) {
            const int outcome = Iterate();
            if (answer_.iterations > maxIterations) break;
            if (outcome == 3) return Finish(LPStatus::NoSolution);
            if (outcome == 1 && phaseOne_) {
                if (ObjectiveValue() != 0.0) return Finish(LPStatus::NoSolution);
                GetRidOfArtificials();
            } else if (outcome == 1) {
                GetSolution();
                return Finish(LPStatus::Solved);
            }
        }
        GetSolution();
        Finish(LPStatus::IterationLimit);
    }

  private:
    void Finish(LPStatus status) { answer_.status = status; }

    void SetupBasis() {
        savedMinimising_ = minimising_;
        if (!minimising_)
            for (int j = 0; j < n_; ++j) costs_[j] = -costs_[j];
        for (int j = 0; j < n_; ++j) nonBasis_[j] = j;
        int col = n_;
        int nonBasicCount = n_;
        std::vector<int> slackOf(m_, -1);
        for (int i = 0; i < m_; ++i) {
            if (program_.rows[i].type == LPRow::Equal) continue;
            matrix_[i][col] = program_.rows[i].type == LPRow::AtMost ? 1 : -1;
            colKinds_[col] = 1;
            slackOf[i] = col++;
        }
        for (int i = 0; i < m_; ++i) {
            const double b = program_.rows[i].rightSide;
            const LPRow type = program_.rows[i].type;
            if (type == LPRow::AtMost && b >= 0) {
                basis_[i] = slackOf[i];
                basicValues_[i] = b;
                continue;
            }
            if (type == LPRow::AtLeast && b <= 0) {
                basis_[i] = slackOf[i];
                basicValues_[i] = -b;
                continue;
            }
            matrix_[i][col] = b < 0 ? -1 : 1;
            basicValues_[i] = b < 0 ? -b : b;
            colKinds_[col] = 2;
            phaseOne_ = true;
            basis_[i] = col++;
            if (type != LPRow::Equal) nonBasis_[nonBasicCount++] = slackOf[i];
        }
        numCols_ = col;
        numNonBasic_ = col - m_;
        if (!phaseOne_) return;
        savedCosts_ = costs_;
        for (int j = 0; j < numCols_; ++j) costs_[j] = colKinds_[j] == 2 ? 1 : 0;
        minimising_ = true;
    }

    double ObjectiveValue() const {
        double sum = 0;
        for (int i = 0; i < m_; ++i) sum = Add(sum, Multiply(costs_[basis_[i]], basicValues_[i]));
        return minimising_ ? sum : -sum;
    }

    int Iterate() {
        ++answer_.iterations;
        Matrix transpose(m_, std::vector<double>(m_));
        std::vector<double> basisCosts(m_);
        for (int i = 0; i < m_; ++i) {
            basisCosts[i] = costs_[basis_[i]];
            for (int j = 0; j < m_; ++j) transpose[i][j] = matrix_[j][basis_[i]];
        }
        const std::vector<double> multipliers = SolveSystemPlainly(transpose, basisCosts);
        std::vector<double> reducedCosts;
        for (int j = 0; j < numNonBasic_; ++j) {
            double product = 0;
            for (int i = 0; i < m_; ++i)
                product = Add(product, Multiply(multipliers[i], matrix_[i][nonBasis_[j]]));
            reducedCosts.push_back(Subtract(costs_[nonBasis_[j]], product));
        }
        if (std::none_of(reducedCosts.begin(), reducedCosts.end(), [](double r) { return r < 0.0; })) {
            answer_.objective = ObjectiveValue();
            return 1;
        }
        int entering = 0;
        double best = 100000.0;
        for (int j = 0; j < numNonBasic_; ++j) {
            if (reducedCosts[j] < 0.0 && reducedCosts[j] < best) {
                entering = j;
                best = reducedCosts[j];
            }
        }
        Matrix columns(m_, std::vector<double>(m_));
        std::vector<double> column(m_);
        for (int i = 0; i < m_; ++i) {
            for (int j = 0; j < m_; ++j) columns[i][j] = matrix_[i][basis_[j]];
            column[i] = matrix_[i][nonBasis_[entering]];
        }
        return Pivot(entering, SolveSystemPlainly(columns, column)) ? 0 : 3;
    }

    bool Pivot(int entering, const std::vector<double>& direction) {
        int leaving = -1;
        double theta = 0;
        for (int i = 0; i < m_; ++i) {
            if (!(direction[i] > 0.0)) continue;
            const double ratio = Divide(basicValues_[i], direction[i]);
            if (leaving >= 0 && !(ratio < theta)) continue;
            leaving = i;
            theta = ratio;
        }
        if (leaving < 0) return false;
        for (int i = 0; i < m_; ++i)
            basicValues_[i] = Subtract(basicValues_[i], Multiply(direction[i], theta));
        basicValues_[leaving] = theta;
        std::swap(basis_[leaving], nonBasis_[entering]);
        return true;
    }

    void GetRidOfArtificials() {
        std::vector<int> colState(numCols_, 0);
        std::vector<double> colValue(numCols_, 0.0);
        for (int j = 0; j < numNonBasic_; ++j) colState[nonBasis_[j]] = 2;
        for (int i = 0; i < m_; ++i) {
            colState[basis_[i]] = 1;
            colValue[basis_[i]] = basicValues_[i];
        }
        int basics = 0;
        int nonBasics = 0;
        int artificials = 0;
        int left = 0;
        const auto list = [&](int col) {
            if (colState[col] == 1) {
                basis_[basics] = col;
                basicValues_[basics++] = colValue[col];
            } else {
                nonBasis_[nonBasics++] = col;
            }
        };
        for (int col = 0; col < numCols_; ++col) {
            if (colKinds_[col] == 2)
                ++artificials;
            else
                list(col);
        }
        for (int col = 0; col < numCols_; ++col) {
            if (colKinds_[col] != 2) continue;
            if (colState[col] == 1) ++left;
            list(col);
        }
        if (left >= 1) {
            answer_.completedBasis = true;
            Matrix live(m_);
            for (int i = 0; i < m_; ++i) live[i].assign(matrix_[i].begin(), matrix_[i].begin() + numCols_);
            const std::vector<int> kept(basis_.begin(), basis_.begin() + (m_ - left));
            const std::vector<int> order = AugmentPlainly(live, kept);
            std::fill(colState.begin(), colState.end(), 2);
            for (int i = 0; i < m_; ++i) {
                colState[order[i]] = 1;
                if (colKinds_[order[i]] == 2) answer_.artificialStays = true;
            }
            basics = nonBasics = 0;
            for (int col = 0; col < numCols_; ++col) list(col);
        }
        phaseOne_ = false;
        costs_ = savedCosts_;
        minimising_ = savedMinimising_;
        numNonBasic_ -= artificials;
        numCols_ -= artificials;
    }

    void GetSolution() {
        for (int i = 0; i < m_; ++i)
            if (basis_[i] < n_) answer_.x[basis_[i]] = basicValues_[i];
    }

    const LinearProgram& program_;
    LPAnswer& answer_;
    int n_ = 0;
    int m_ = 0;
    int numCols_ = 0;
    int numNonBasic_ = 0;
    Matrix matrix_;
    std::vector<double> costs_, savedCosts_, basicValues_;
    std::vector<int> basis_, nonBasis_, colKinds_;
    bool minimising_ = true;
    bool savedMinimising_ = true;
    bool phaseOne_ = false;
};

void ReflectPlainly(Matrix& w, int h) {
    const int m = static_cast<int>(w.size());
    const int columns = static_cast<int>(w[0].size());
    double squares = 0;
    std::vector<double> u(m, 0.0);
    for (int i = h; i < m; ++i) {
        u[i] = w[i][h];
        squares = Add(squares, Multiply(u[i], u[i]));
    }
    const double s = std::sqrt(squares);
    if (u[h] < 0.0) {
        w[h][h] = s;
        u[h] = Subtract(u[h], s);
    } else {
        w[h][h] = -s;
        u[h] = Add(u[h], s);
    }
    for (int i = h + 1; i < m; ++i) w[i][h] = 0;
    double length = 0;
    for (int i = h; i < m; ++i) length = Add(length, Multiply(u[i], u[i]));
    const double beta = Divide(2, length);
    for (int c = h + 1; c < columns; ++c) {
        double sum = 0;
        for (int i = h; i < m; ++i) sum = Add(sum, Multiply(w[i][c], u[i]));
        const double t = Multiply(beta, sum);
        for (int i = h; i < m; ++i) w[i][c] = Subtract(w[i][c], Multiply(t, u[i]));
    }
}

}  // namespace

std::vector<int> AugmentPlainly(Matrix columnsByRow, std::vector<int> basis) {
    const int m = static_cast<int>(columnsByRow.size());
    const int columns = static_cast<int>(columnsByRow[0].size());
    const int given = static_cast<int>(basis.size());
    std::vector<int> order(columns);
    int front = 0;
    int back = columns - 1;
    for (int j = 0; j < columns; ++j) {
        const bool inBasis = std::find(basis.begin(), basis.end(), j) != basis.end();
        order[inBasis ? front++ : back--] = j;
    }
    Matrix w(m, std::vector<double>(columns));
    for (int i = 0; i < m; ++i)
        for (int j = 0; j < columns; ++j) w[i][j] = columnsByRow[i][order[j]];
    for (int h = 0; h < given; ++h) ReflectPlainly(w, h);
    for (int h = given; h < m; ++h) {
        int best = h;
        for (int c = h + 1; c < columns; ++c)
            if (std::fabs(w[h][c]) > std::fabs(w[h][best])) best = c;
        std::swap(order[h], order[best]);
        for (int i = 0; i < m; ++i) std::swap(w[i][h], w[i][best]);
        if (h < m - 1) ReflectPlainly(w, h);
    }
    return order;
}

std::vector<double> SolveSystemPlainly(Matrix a, std::vector<double> b) {
    const int m = static_cast<int>(b.size());
    for (int k = 0; k <= m - 2; ++k) {
        int p = k;
        for (int r = k + 1; r < m; ++r)
            if (std::fabs(a[r][k]) > std::fabs(a[p][k])) p = r;
        if (p != k) {
            std::swap(b[p], b[k]);
            std::swap(a[p], a[k]);
        }
        if (a[k][k] == 0.0) continue;
        for (int r = k + 1; r < m; ++r) {
            const double f = Divide(a[r][k], a[k][k]);
            b[r] = Subtract(b[r], Multiply(f, b[k]));
            for (int c = k; c < m; ++c) a[r][c] = Subtract(a[r][c], Multiply(f, a[k][c]));
        }
    }
    std::vector<double> x(m);
    for (int i = m - 1; i >= 0; --i) {
        x[i] = b[i];
        for (int c = m - 1; c >= i + 1; --c) x[i] = Subtract(x[i], Multiply(a[i][c], x[c]));
        if (a[i][i] != 0.0) x[i] = Divide(x[i], a[i][i]);
    }
    return x;
}

LPAnswer SolvePlainly(const LinearProgram& program, int maxIterations) {
    LPAnswer answer;
    try {
        PlainSimplex(program, answer).Solve(maxIterations);
    } catch (const Error& error) {
        answer.kind = error.Number() == kDivisionByZeroNumber ? LPAnswer::Kind::DivisionByZero
                                                              : LPAnswer::Kind::Overflow;
    }
    return answer;
}

}  // namespace tw
