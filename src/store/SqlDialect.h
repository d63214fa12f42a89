// The SQL of the windows in SQLite's words. The statements stay as designed; this is the only file that knows
// how the two differ.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace tw {

// The kinds of statement that the store runs.
enum class StatementKind { Select, Insert, Update, Delete };

struct DialectStatement {
    StatementKind kind;
    std::string sql;  // in SQLite's dialect
    // Numbers of the text that have become parameters, in their order: SQLite reads a long decimal number
    // only nearly right, and a stored figure must come back as the same double.
    std::vector<double> numbers;
    // Which of all parameters, counted from 1, the "?" of the text are, in their order.
    std::vector<int> values;
};

// Translates one statement: double-quoted literals become single-quoted ones (also where the text equals a
// column's name), the column WHEN is quoted, functions get their names. Raises an error for anything but one
// SELECT, INSERT, UPDATE or DELETE, for an unfinished literal, and unless the text holds as many "?" as there
// are values.
DialectStatement TranslateSql(std::string_view sql, std::size_t values = 0);

}  // namespace tw
