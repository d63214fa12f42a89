// What a statement takes in place of its "?".
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

// The value of a field that holds none.
struct Null {
    bool operator==(const Null&) const = default;
};

// Nothing, a boolean, a number, or a text, whatever stands in it. It is written as its literal in the SQL
// text would be: a number without decimals goes as a whole one.
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
    // Null for nothing.
    template <typename Value>
    SqlValue(const std::optional<Value>& value) : SqlValue(value ? SqlValue(*value) : SqlValue(Null())) {}

    bool operator==(const SqlValue&) const = default;

    // The literal of the value: NULL, TRUE, 1.5, 'O''Hara'.
    std::string Literal() const;

    using Stored = std::variant<Null, bool, std::int64_t, double, std::string>;
    const Stored& Get() const { return value_; }

  private:
    Stored value_;
};

using SqlValues = std::vector<SqlValue>;

// Returns the statement with the literals of the values in place of its "?", in their order: what it says,
// for people to read.
std::string WithLiterals(std::string_view sql, const SqlValues& values);

// text with every "'" doubled, for a literal between single quotes.
std::string DoubleQuotes(std::string_view text);
// "'" + DoubleQuotes(text) + "'".
std::string SqlText(std::string_view text);
// Writes SqlText(text) to the end of out.
void AppendSqlText(std::string& out, std::string_view text);

}  // namespace tw
