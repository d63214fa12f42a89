#include "store/SqlDialect.h"

#include <array>
#include <charconv>
#include <cstddef>
#include <optional>
#include <sqlite3.h>
#include <vector>

#include "platform/Error.h"

namespace tw {
namespace {

[[noreturn]] void Refuse(const std::string& description) {
    throw Error("Database", description, SQLITE_ERROR);
}

enum class CharClass : unsigned char { Other, Blank, Digit, Letter };

constexpr std::array<CharClass, 256> MakeClasses() {
    std::array<CharClass, 256> classes{};
    for (const unsigned char c : {' ', '\t', '\n', '\f', '\r'}) classes[c] = CharClass::Blank;
    for (std::size_t c = '0'; c <= '9'; ++c) classes[c] = CharClass::Digit;
    for (std::size_t c = 'a'; c <= 'z'; ++c) classes[c] = classes[c - 'a' + 'A'] = CharClass::Letter;
    for (std::size_t c = 0x80; c <= 0xff; ++c) classes[c] = CharClass::Letter;
    classes['_'] = CharClass::Letter;
    return classes;
}
constexpr std::array<CharClass, 256> kClasses = MakeClasses();

CharClass ClassOf(char c) {
    return kClasses[static_cast<unsigned char>(c)];
}
bool IsWordChar(char c) {
    return ClassOf(c) >= CharClass::Digit;
}

// True if word equals keyword, ignoring case. REQUIRES: keyword consists of capital letters.
bool IsKeyword(std::string_view word, std::string_view keyword) {
    if (word.size() != keyword.size()) return false;
    for (std::size_t i = 0; i < word.size(); ++i)
        if ((static_cast<unsigned char>(word[i]) & 0xdf) != static_cast<unsigned char>(keyword[i]))
            return false;
    return true;
}

bool IsTextFunction(std::string_view word) {
    for (const std::string_view name : {"UCASE", "LCASE", "TRIM", "LTRIM", "RTRIM"})
        if (IsKeyword(word, name)) return true;
    return false;
}

// Reads the statement once. Unchanged text between copied_ and at_ is copied in one piece when something must
// be rewritten, so a statement without changes is copied once as a whole.
class Translator {
  public:
    Translator(std::string_view sql, std::size_t values) : sql_(sql), valuesLeft_(values) {}

    DialectStatement Run() {
        while (at_ < sql_.size()) TakeToken();
        if (!kind_) Refuse("The SQL text holds no statement.");
        if (valuesLeft_ > 0) Refuse("The SQL text has no place for a value.");
        Flush();
        return {*kind_, std::move(out_), std::move(numbers_), std::move(values_)};
    }

  private:
    void TakeToken() {
        const char c = sql_[at_];
        switch (ClassOf(c)) {
            case CharClass::Blank:
                ++at_;
                return;
            case CharClass::Letter:
                TakeWord();
                break;
            case CharClass::Digit:
                TakeNumber();
                awaitsCollation_ = false;
                break;
            case CharClass::Other:
                TakeOther(c);
                awaitsCollation_ = false;
                break;
        }
        previous_ = c;
    }

    std::string_view SkipWord() {
        const std::size_t start = at_;
        while (at_ < sql_.size() && IsWordChar(sql_[at_])) ++at_;
        return sql_.substr(start, at_ - start);
    }

    std::size_t SkipDigits() {
        const std::size_t start = at_;
        while (at_ < sql_.size() && ClassOf(sql_[at_]) == CharClass::Digit) ++at_;
        return at_ - start;
    }

    // With up to three decimals, SQLite divides by a power of ten in extended precision and cannot miss the
    // nearest double. Numbers with more digits become parameters.
    void TakeNumber() {
        constexpr std::size_t kSafeDecimals = 3;
        constexpr std::size_t kSafeDigits = 18;
        const std::size_t start = at_;
        std::size_t digits = SkipDigits();
        std::size_t decimals = 0;
        if (at_ < sql_.size() && sql_[at_] == '.') {
            ++at_;
            decimals = SkipDigits();
            digits += decimals;
        }
        const bool more = at_ < sql_.size() && IsWordChar(sql_[at_]);
        if (more) SkipWord();
        if (more || previous_ == '.' || (decimals <= kSafeDecimals && digits <= kSafeDigits)) return;
        double number = 0;
        if (std::from_chars(sql_.data() + start, sql_.data() + at_, number).ec != std::errc()) return;
        FlushUpTo(start);
        out_.push_back('?');
        copied_ = at_;
        numbers_.push_back(number);
    }

    void TakeWord() {
        const std::size_t start = at_;
        const std::string_view word = SkipWord();
        if (!kind_) {
            TakeKind(word);
            return;
        }
        awaitsCollation_ = false;
        if (previous_ != '.') {
            if (IsKeyword(word, "CASE")) ++caseDepth_;
            if (IsKeyword(word, "END") && caseDepth_ > 0) --caseDepth_;
            // No statement of the program uses WITH, and a recursive one might never end.
            if (IsKeyword(word, "WITH")) Refuse("WITH is not supported.");
            awaitsCollation_ = word.size() <= 5 && IsTextFunction(word);
        }
        if (IsKeyword(word, "WHEN") && (caseDepth_ == 0 || previous_ == '.')) {
            FlushUpTo(start);
            out_.append("[").append(word).append("]");
            copied_ = at_;
        }
    }

    void TakeKind(std::string_view word) {
        if (previous_ != '\0') Refuse("A statement begins with SELECT, INSERT, UPDATE or DELETE.");
        if (IsKeyword(word, "SELECT"))
            kind_ = StatementKind::Select;
        else if (IsKeyword(word, "INSERT"))
            kind_ = StatementKind::Insert;
        else if (IsKeyword(word, "UPDATE"))
            kind_ = StatementKind::Update;
        else if (IsKeyword(word, "DELETE"))
            kind_ = StatementKind::Delete;
        else
            Refuse("A statement begins with SELECT, INSERT, UPDATE or DELETE, not with '" +
                   std::string(word) + "'.");
    }

    void TakeOther(char c) {
        switch (c) {
            case '\'':
            case '"':
                TakeLiteral(c);
                return;
            case '[':
                SkipName(']');
                return;
            case '`':
                SkipName('`');
                return;
            case '(':
                ++parenDepth_;
                if (awaitsCollation_) collations_.push_back(parenDepth_);
                break;
            case ')':
                TakeClosing();
                return;
            case '-':
                if (Next() == '-') Refuse("A statement holds no comments (--).");
                break;
            case '/':
                if (Next() == '*') Refuse("A statement holds no comments (/*).");
                break;
            case ';':
                TakeEnd();
                return;
            case '?':
                if (valuesLeft_ > 0) {
                    --valuesLeft_;
                    values_.push_back(static_cast<int>(numbers_.size() + values_.size() + 1));
                    break;
                }
                [[fallthrough]];
            case ':':
            case '@':
            case '$':
            case '\0':
                Refuse("A character stands in the SQL text that has no meaning there.");
            default:
                break;
        }
        ++at_;
    }

    char Next() const { return at_ + 1 < sql_.size() ? sql_[at_ + 1] : '\0'; }

    // The result of a text function is compared like a text column, ignoring case; SQLite would compare
    // it case-sensitively.
    void TakeClosing() {
        ++at_;
        if (!collations_.empty() && collations_.back() == parenDepth_) {
            collations_.pop_back();
            Flush();
            out_.append(" COLLATE TWTEXT");
        }
        --parenDepth_;
    }

    void TakeEnd() {
        if (sql_.find_first_not_of("; \t\n\f\r", at_) != std::string_view::npos)
            Refuse("Characters found after the end of the SQL statement.");
        Flush();
        copied_ = at_ = sql_.size();
    }

    void SkipName(char closing) {
        const std::size_t end = sql_.find(closing, at_ + 1);
        if (end == std::string_view::npos) Refuse("A name in brackets is not finished.");
        if (sql_.substr(at_, end - at_).find('\0') != std::string_view::npos)
            Refuse("A name in brackets holds a character that has no meaning there.");
        at_ = end + 1;
    }

    void TakeLiteral(char quote) {
        const std::size_t start = at_;
        bool plain = quote == '\'';
        for (++at_;; ++at_) {
            if (at_ == sql_.size()) Refuse("A text in the SQL statement is not finished.");
            if (sql_[at_] == '\0') plain = false;
            if (sql_[at_] != quote) continue;
            if (Next() != quote) break;
            ++at_;
        }
        ++at_;
        if (plain && !(copied_ == start && !out_.empty() && out_.back() == '\'')) return;
        FlushUpTo(start);
        AppendLiteral(sql_.substr(start + 1, at_ - start - 2), quote);
        copied_ = at_;
    }

    // Writes a literal in single quotes, separated from a word or literal directly before it. SQLite stops
    // reading at a NUL, so a text with NULs is written as an expression.
    void AppendLiteral(std::string_view inside, char quote) {
        if (!out_.empty() && (out_.back() == '\'' || IsWordChar(out_.back()))) out_.push_back(' ');
        const bool hasNul = inside.find('\0') != std::string_view::npos;
        if (hasNul) out_.push_back('(');
        out_.push_back('\'');
        for (std::size_t i = 0; i < inside.size(); ++i) {
            const char c = inside[i];
            if (c == quote) ++i;  // skips the second character of a doubled quote
            if (c == '\'')
                out_.append("''");
            else if (c == '\0')
                out_.append("'||char(0)||'");
            else
                out_.push_back(c);
        }
        out_.push_back('\'');
        if (hasNul) out_.push_back(')');
    }

    void FlushUpTo(std::size_t end) {
        out_.append(sql_.substr(copied_, end - copied_));
        copied_ = end;
    }
    void Flush() { FlushUpTo(at_); }

    std::string_view sql_;
    std::string out_;
    std::vector<double> numbers_;
    std::vector<int> values_;
    std::size_t valuesLeft_;
    std::size_t at_ = 0;
    std::size_t copied_ = 0;
    std::optional<StatementKind> kind_;
    char previous_ = '\0';  // the first character of the previous token
    int caseDepth_ = 0;
    int parenDepth_ = 0;
    bool awaitsCollation_ = false;  // just after the name of a text function
    std::vector<int> collations_;   // the depths of the parentheses that a collation must follow
};

}  // namespace

DialectStatement TranslateSql(std::string_view sql, std::size_t values) {
    return Translator(sql, values).Run();
}

}  // namespace tw
