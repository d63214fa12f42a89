// Translates the program's SQL to SQLite's. Statements are written as designed; no other file knows how the
// two differ.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace tw {

// The kinds of statements that the store runs.
enum class StatementKind { Select, Insert, Update, Delete };

struct DialectStatement {
    StatementKind kind;
    std::string sql;  // in SQLite's dialect
    // The numbers of the text that were replaced by parameters, in order: SQLite reads a long decimal number
    // inexactly, and a stored figure must be read back as the same double.
    std::vector<double> numbers;
    // For each "?" of the text, in order, its index among all parameters, from 1.
    std::vector<int> values;
};

// Translates one statement: double-quoted literals become single-quoted (even if the text equals a column's
// name), the column WHEN is quoted, and text functions compare ignoring case. Raises Error for anything but
// one SELECT, INSERT, UPDATE or DELETE, for an unfinished literal, and unless the text has as many "?" as
// there are values.
DialectStatement TranslateSql(std::string_view sql, std::size_t values = 0);

}  // namespace tw
