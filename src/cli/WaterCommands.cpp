// Commands on water.
#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

#include "cli/Command.h"
#include "shell/Settings.h"
#include "values/NumberText.h"
#include "values/Text.h"
#include "water/LPsimplex.h"

namespace tw {
namespace {

// The limits of one command, so that it does not run for minutes.
constexpr int kMostVariables = 200;
constexpr int kMostRows = 200;
constexpr int kMostIterations = 100'000;

// Removes the part of text before mark, and the mark, and returns the part trimmed; all of text if there is
// no mark.
std::string_view CutAt(std::string_view& text, char mark) {
    const std::size_t end = std::min(text.find(mark), text.size());
    const std::string_view part = Trim(text.substr(0, end));
    text.remove_prefix(std::min(end + 1, text.size()));
    return part;
}

double NumberOf(std::string_view text) {
    try {
        if (const std::optional<double> number = ReadNumber(text)) return *number;
    } catch (const Error&) {
        throw ScriptError("'" + std::string(text) + "' is too large a number");
    }
    throw ScriptError("'" + std::string(text) + "' is no number");
}

std::vector<double> NumbersOf(std::string_view text) {
    std::vector<double> numbers;
    for (bool more = true; more;) {
        if (std::ssize(numbers) == kMostVariables)
            throw ScriptError("there may be " + std::to_string(kMostVariables) + " variables at most");
        more = text.find(',') != std::string_view::npos;
        numbers.push_back(NumberOf(CutAt(text, ',')));
    }
    return numbers;
}

struct Row {
    std::vector<double> coefficients;
    LPRow type;
    double rightSide;
};

Row RowOf(std::string_view text, std::size_t variables) {
    const std::size_t sign = text.find_first_of("<>=");
    const std::string_view relation = sign == std::string_view::npos ? "" : text.substr(sign).substr(0, 2);
    const bool equal = relation.starts_with('=');
    if (!equal && relation != "<=" && relation != ">=")
        throw ScriptError("a row needs <=, >= or =, not '" + std::string(text) + "'");
    Row row{NumbersOf(Trim(text.substr(0, sign))),
            equal              ? LPRow::Equal
            : relation == "<=" ? LPRow::AtMost
                               : LPRow::AtLeast,
            NumberOf(Trim(text.substr(sign + (equal ? 1 : 2))))};
    if (row.coefficients.size() != variables)
        throw ScriptError("the row '" + std::string(text) + "' needs " + std::to_string(variables) +
                          " coefficients");
    return row;
}

void SolveProgram(Session& session, Arguments& arguments) {
    const bool minimise = arguments.Choice("the aim", "min", "max");
    const std::string line = arguments.LastName("the objective");
    std::string_view rest = line;
    bool more = rest.find(';') != std::string_view::npos;
    const std::vector<double> objective = NumbersOf(CutAt(rest, ';'));
    std::vector<Row> rows;
    int limit = Settings().lpMaxIter;
    while (more) {
        more = rest.find(';') != std::string_view::npos;
        const std::string_view part = CutAt(rest, ';');
        if (!more && part.starts_with("limit ")) {
            Arguments last(part.substr(6));
            limit = last.Integer("the limit", 0, kMostIterations);
            last.End();
            break;
        }
        rows.push_back(RowOf(part, objective.size()));
        if (std::ssize(rows) > kMostRows)
            throw ScriptError("there may be " + std::to_string(kMostRows) + " rows at most");
    }

    LPsimplex simplex;
    simplex.Initialize(static_cast<int>(objective.size()), static_cast<int>(rows.size()));
    simplex.SpecifyObjective(objective, minimise);
    for (const Row& row : rows) simplex.AddConstraint(row.coefficients, row.rightSide, row.type);
    const LPStatus status = simplex.Solve(limit);
    session.Out().Line("status " + std::to_string(static_cast<int>(status)));
    std::string values;
    for (const double value : simplex.Solution()) {
        if (!values.empty()) values.push_back(' ');
        AppendNumberText(values, value);
    }
    session.Out().Line(values);
}

constexpr Command kCommands[] = {
    {"lp", "min|max C1,C2,... ; A1,A2,... <=|>=|= B ; ... [; limit N]",
     "solves a linear program: its status, then its solution", SolveProgram},
};

}  // namespace

std::span<const Command> CommandsOnWater() {
    return kCommands;
}

}  // namespace tw
