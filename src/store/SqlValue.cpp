#include "store/SqlValue.h"

#include "values/NumberText.h"
#include "values/Text.h"

namespace tw {
namespace {

struct LiteralWriter {
    std::string operator()(Null) const { return "NULL"; }
    std::string operator()(bool value) const { return value ? "TRUE" : "FALSE"; }
    std::string operator()(std::int64_t value) const { return std::to_string(value); }
    std::string operator()(double value) const { return NumberText(value); }
    std::string operator()(const std::string& value) const { return SqlText(value); }
};

}  // namespace

std::string SqlValue::Literal() const {
    return std::visit(LiteralWriter(), value_);
}

std::string WithLiterals(std::string_view sql, const SqlValues& values) {
    std::string text;
    auto value = values.begin();
    char quote = '\0';  // the character that ends the literal or quoted name being read; NUL outside of one
    for (const char c : sql) {
        if (quote == '\0' && c == '?' && value != values.end()) {
            text += (value++)->Literal();
            continue;
        }
        text += c;
        if (quote != '\0')
            quote = c == quote ? '\0' : quote;
        else if (c == '\'' || c == '"' || c == '`')
            quote = c;
        else if (c == '[')
            quote = ']';
    }
    return text;
}

std::string DoubleQuotes(std::string_view text) {
    return ReplaceAll(text, "'", "''");
}

std::string SqlText(std::string_view text) {
    std::string quoted;
    AppendSqlText(quoted, text);
    return quoted;
}

void AppendSqlText(std::string& out, std::string_view text) {
    out.push_back('\'');
    for (;;) {
        const std::size_t quote = text.find('\'');
        if (quote == std::string_view::npos) break;
        out.append(text.substr(0, quote + 1)).push_back('\'');
        text.remove_prefix(quote + 1);
    }
    out.append(text).push_back('\'');
}

}  // namespace tw
