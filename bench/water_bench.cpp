// Solves the two linear programs of a water treatment for 2,000 sets of salts, and compares the times with
// GLPK in the same run if it is installed. "x_glpk" is the ratio of the times, including the creation of the
// solvers' objects, for the cases that both solvers end alike; "x_glpk_all" is that ratio for all cases.
// "longest_us" is the longest time of a case in microseconds, each case at its fastest.
//
// "no_answer", "refused", "poorer" and "faults" count the cases in which the solver with its fixed steps
// reaches the limit of iterations, finds no solution although there is one, finds a worse one, or leaves
// the range of a double.
#include <algorithm>
#include <array>
#include <benchmark/benchmark.h>
#include <chrono>
#include <cmath>
#include <cstdint>
#include <limits>
#include <vector>

#ifdef TW_HAVE_GLPK
#include <glpk.h>
#endif

#include "platform/Error.h"
#include "water/LPsimplex.h"

namespace {

using namespace tw;
using Clock = std::chrono::steady_clock;

constexpr int kCases = 2000;
constexpr int kIons = 6;
constexpr int kMaxIterations = 1000;
constexpr int kFault = 3;  // in addition to the statuses of the solver
using Salt = std::array<double, kIons>;

// The ppm of calcium, carbonate, chloride, magnesium, sodium and sulfate that one gram of a salt adds to one
// gallon (US), from the molar masses.
constexpr Salt kShelf[] = {
    {61.5, 0, 0, 0, 0, 147.4}, {72, 0, 127.4, 0, 0, 0},    {95.4, 0, 168.8, 0, 0, 0},
    {0, 0, 0, 26.1, 0, 103},   {0, 0, 92.1, 31.6, 0, 0},   {0, 0, 160.3, 0, 103.9, 0},
    {0, 191.9, 0, 0, 72.3, 0}, {105.8, 322.1, 0, 0, 0, 0}, {142.9, 0, 0, 0, 0, 0},
    {0, 0, 0, 0, 85.5, 178.7}, {0, 149.6, 0, 0, 114.6, 0}, {0, 188, 0, 76.2, 0, 0},
    {0, 0, 125.6, 0, 0, 0},    {0, 0, 0, 0, 0, 228.3},     {0, 0, 25.7, 0, 0, 0},
};

// A random generator with the same sequence in every run and on every machine.
class Dice {
  public:
    double Next() {
        state_ = state_ * 6364136223846793005U + 1442695040888963407U;
        return static_cast<double>(state_ >> 11) / 9007199254740992.0;
    }
    int Below(int limit) { return static_cast<int>(Next() * limit); }

  private:
    std::uint64_t state_ = 7;
};

double Tenths(double value) {
    return std::round(value * 10) / 10;
}

// Returns a salt of the shelf, an invented one, or a more diluted brand of one that is already present.
Salt AnySalt(Dice& dice, const std::vector<Salt>& present) {
    const int kind = dice.Below(4);
    if (kind < 2) return kShelf[dice.Below(std::size(kShelf))];
    Salt salt{};
    if (kind == 2 && !present.empty()) {
        const double strength = dice.Below(4) == 0 ? 1 : 0.3 + 0.7 * dice.Next();
        const Salt& like = present[dice.Below(static_cast<int>(present.size()))];
        std::transform(like.begin(), like.end(), salt.begin(),
                       [&](double v) { return Tenths(v * strength); });
        return salt;
    }
    for (int ions = 1 + dice.Below(3); ions > 0; --ions)
        salt[dice.Below(kIons)] = Tenths(5 + 195 * dice.Next());
    return salt;
}

struct Program {
    bool minimise = true;
    std::vector<double> objective;
    std::vector<std::vector<double>> rows;
    std::vector<LPRow> types;
    std::vector<double> rightSides;

    void Add(std::vector<double> row, LPRow type, double rightSide) {
        rows.push_back(std::move(row));
        types.push_back(type);
        rightSides.push_back(rightSide);
    }
};

// Returns the program that minimises the shortfall of the first five ions, with a row for each dose; if
// capped, the one that maximises the doses without exceeding any need.
Program Treatment(const std::vector<Salt>& salts, const Salt& needed, bool capped) {
    const int first = capped ? 0 : kIons;
    const int vars = first + static_cast<int>(salts.size());
    Program program;
    program.minimise = !capped;
    program.objective.assign(vars, capped ? 1.0 : 0.0);
    if (!capped) std::fill_n(program.objective.begin(), kIons - 1, 1.0);
    for (int ion = 0; ion < kIons; ++ion) {
        std::vector<double> row(vars, 0.0);
        if (!capped) row[ion] = 1;
        for (int salt = first; salt < vars; ++salt) row[salt] = salts[salt - first][ion];
        program.Add(row, capped ? LPRow::AtMost : LPRow::Equal, needed[ion]);
    }
    for (int salt = first; salt < vars && !capped; ++salt) {
        std::vector<double> row(vars, 0.0);
        row[salt] = 1;
        program.Add(row, LPRow::AtLeast, 0);
    }
    return program;
}

std::vector<Program> Programs(bool capped) {
    Dice dice;
    std::vector<Program> programs;
    for (int i = 0; i < kCases; ++i) {
        std::vector<Salt> salts;
        for (int count = 4 + dice.Below(37); count > 0; --count) salts.push_back(AnySalt(dice, salts));
        Salt needed{};
        for (double& need : needed) need = dice.Below(5) == 0 ? 0 : std::round(30000 * dice.Next()) / 100;
        programs.push_back(Treatment(salts, needed, capped));
    }
    return programs;
}

struct Answer {
    int status = 0;
    double objective = 0;
    double microseconds = 0;
};

Answer SolveOwn(const Program& program, std::vector<double>& x) {
    Answer answer;
    const Clock::time_point begin = Clock::now();
    {
        LPsimplex simplex;
        simplex.Initialize(static_cast<int>(program.objective.size()), static_cast<int>(program.rows.size()));
        simplex.SpecifyObjective(program.objective, program.minimise);
        for (std::size_t i = 0; i < program.rows.size(); ++i)
            simplex.AddConstraint(program.rows[i], program.rightSides[i], program.types[i]);
        try {
            answer.status = static_cast<int>(simplex.Solve(kMaxIterations));
        } catch (const Error&) {
            answer.status = kFault;
        }
        x = simplex.Solution();
    }
    answer.microseconds = std::chrono::duration<double, std::micro>(Clock::now() - begin).count();
    for (std::size_t j = 0; j < x.size(); ++j) answer.objective += program.objective[j] * x[j];
    return answer;
}

#ifdef TW_HAVE_GLPK
Answer SolvePeer(const Program& program, std::vector<double>& x) {
    static std::vector<int> indices;
    static std::vector<double> values;
    Answer answer;
    const int vars = static_cast<int>(program.objective.size());
    x.resize(vars);
    const Clock::time_point begin = Clock::now();
    glp_prob* const problem = glp_create_prob();
    glp_set_obj_dir(problem, program.minimise ? GLP_MIN : GLP_MAX);
    glp_add_cols(problem, vars);
    for (int j = 0; j < vars; ++j) {
        glp_set_col_bnds(problem, j + 1, GLP_LO, 0, 0);
        glp_set_obj_coef(problem, j + 1, program.objective[j]);
    }
    for (std::size_t i = 0; i < program.rows.size(); ++i) {
        const int row = glp_add_rows(problem, 1);
        const int bound = program.types[i] == LPRow::AtMost    ? GLP_UP
                          : program.types[i] == LPRow::AtLeast ? GLP_LO
                                                               : GLP_FX;
        glp_set_row_bnds(problem, row, bound, program.rightSides[i], program.rightSides[i]);
        indices.assign(1, 0);
        values.assign(1, 0.0);
        for (int j = 0; j < vars; ++j) {
            if (program.rows[i][j] == 0.0) continue;
            indices.push_back(j + 1);
            values.push_back(program.rows[i][j]);
        }
        glp_set_mat_row(problem, row, static_cast<int>(indices.size()) - 1, indices.data(), values.data());
    }
    glp_smcp settings;
    glp_init_smcp(&settings);
    settings.msg_lev = GLP_MSG_OFF;
    const bool done = glp_simplex(problem, &settings) == 0;
    answer.status = done && glp_get_status(problem) == GLP_OPT ? 0 : 1;
    for (int j = 0; j < vars; ++j) x[j] = glp_get_col_prim(problem, j + 1);
    answer.objective = glp_get_obj_val(problem);
    glp_delete_prob(problem);
    answer.microseconds = std::chrono::duration<double, std::micro>(Clock::now() - begin).count();
    return answer;
}
#endif

#ifdef TW_HAVE_GLPK
double Median(std::vector<double>& values) {
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

// The ratio of each round for all cases, and for the cases that both solvers end alike.
struct Comparison {
    std::vector<double> all;
    std::vector<double> alike;
    int noAnswer = 0;
    int refused = 0;
    int poorer = 0;
    int faults = 0;

    void Add(const std::vector<Answer>& own, const std::vector<Answer>& peer) {
        double sums[4] = {0, 0, 0, 0};
        noAnswer = refused = poorer = faults = 0;
        for (std::size_t i = 0; i < own.size(); ++i) {
            const double apart = std::fabs(own[i].objective - peer[i].objective);
            const bool same = own[i].status == 0 && apart <= 1e-7 * (1 + std::fabs(peer[i].objective));
            const bool bothNone = own[i].status == 1 && peer[i].status == 1;
            sums[0] += own[i].microseconds;
            sums[1] += peer[i].microseconds;
            sums[2] += same || bothNone ? own[i].microseconds : 0;
            sums[3] += same || bothNone ? peer[i].microseconds : 0;
            noAnswer += own[i].status == 2 ? 1 : 0;
            refused += own[i].status == 1 && !bothNone ? 1 : 0;
            poorer += own[i].status == 0 && !same ? 1 : 0;
            faults += own[i].status == kFault ? 1 : 0;
        }
        all.push_back(sums[0] / sums[1]);
        alike.push_back(sums[2] / sums[3]);
    }
};
#endif

void SolveAll(benchmark::State& state, bool capped) {
    const std::vector<Program> programs = Programs(capped);
    std::vector<double> x;
    std::vector<Answer> own(kCases);
    std::vector<double> fastest(kCases, std::numeric_limits<double>::max());
#ifdef TW_HAVE_GLPK
    std::vector<Answer> peer(kCases);
    Comparison comparison;
#endif
    for ([[maybe_unused]] const auto _ : state) {
        double seconds = 0;
        for (int i = 0; i < kCases; ++i) {
            own[i] = SolveOwn(programs[i], x);
            seconds += own[i].microseconds / 1e6;
            fastest[i] = std::min(fastest[i], own[i].microseconds);
        }
        state.SetIterationTime(seconds);
#ifdef TW_HAVE_GLPK
        for (int i = 0; i < kCases; ++i) peer[i] = SolvePeer(programs[i], x);
        comparison.Add(own, peer);
#endif
    }
    state.counters["longest_us"] = *std::max_element(fastest.begin(), fastest.end());
    state.counters["per_solve"] =
        benchmark::Counter(static_cast<double>(state.iterations() * kCases),
                           benchmark::Counter::kIsRate | benchmark::Counter::kInvert);
#ifdef TW_HAVE_GLPK
    state.counters["x_glpk"] = Median(comparison.alike);
    state.counters["x_glpk_all"] = Median(comparison.all);
    state.counters["no_answer"] = comparison.noAnswer;
    state.counters["refused"] = comparison.refused;
    state.counters["poorer"] = comparison.poorer;
    state.counters["faults"] = comparison.faults;
#endif
}

void TreatmentWithDeviations(benchmark::State& state) {
    SolveAll(state, false);
}
BENCHMARK(TreatmentWithDeviations)->UseManualTime()->Unit(benchmark::kMillisecond);

void TreatmentCapped(benchmark::State& state) {
    SolveAll(state, true);
}
BENCHMARK(TreatmentCapped)->UseManualTime()->Unit(benchmark::kMillisecond);

}  // namespace
