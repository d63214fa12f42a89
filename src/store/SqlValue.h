// The values that replace the "?" of a statement.
#pragma once

#include <concepts>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

namespace tw {

// The value NULL.
struct Null {
    bool operator==(const Null&) const = default;
};

// NULL, a boolean, a number, or any text. It is stored as if its literal were in the SQL text: a number
// without decimals is stored as an integer.
class SqlValue {
  public:
    SqlValue(Null value) : value_(value) {}
    SqlValue(bool value) : value_(value) {}
    SqlValue(std::integral auto value) : value_(static_cast<std::int64_t>(value)) {}
    // REQUIRES: value is finite.
    SqlValue(double value) : value_(value) {}
    SqlValue(std::string value) : value_(std::move(value)) {}
    SqlValue(std::string_view value) : value_(std::string(value)) {}
    SqlValue(const char* value) : value_(std::string(value)) {}
    // NULL for nullopt.
    template <typename Value>
    SqlValue(const std::optional<Value>& value) : SqlValue(value ? SqlValue(*value) : SqlValue(Null())) {}

    bool operator==(const SqlValue&) const = default;

    // Returns the value as an SQL literal: NULL, TRUE, 1.5, 'O''Hara'.
    std::string Literal() const;

    using Stored = std::variant<Null, bool, std::int64_t, double, std::string>;
    const Stored& Get() const { return value_; }

  private:
    Stored value_;
};

using SqlValues = std::vector<SqlValue>;

// Returns the statement with its "?" replaced by the literals of the values, in order. For display and logs.
std::string WithLiterals(std::string_view sql, const SqlValues& values);

// Returns text with every "'" doubled, for a literal in single quotes.
std::string DoubleQuotes(std::string_view text);
// Returns "'" + DoubleQuotes(text) + "'".
std::string SqlText(std::string_view text);
// Appends SqlText(text) to out.
void AppendSqlText(std::string& out, std::string_view text);

}  // namespace tw
