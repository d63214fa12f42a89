#include "architecture/Declarations.h"

#include <algorithm>
#include <cctype>
#include <regex>
#include <sstream>

#include "architecture/SourceReader.h"

namespace tw::test {
namespace {

bool IsSpace(char c) {
    return std::isspace(static_cast<unsigned char>(c)) != 0;
}
bool IsWordChar(char c) {
    return std::isalnum(static_cast<unsigned char>(c)) != 0 || c == '_';
}

// Returns the words of a text, each behind one blank.
std::string OnOneLine(std::string_view text) {
    std::istringstream words{std::string(text)};
    std::string line;
    for (std::string word; words >> word;) line += (line.empty() ? "" : " ") + word;
    return line;
}

std::vector<std::string> LinesOf(std::string_view text) {
    std::istringstream stream{std::string(text)};
    std::vector<std::string> lines;
    for (std::string line; std::getline(stream, line);) lines.push_back(line);
    return lines;
}

// The lines of a header, numbered from 1 as an editor does.
class CommentedLines {
  public:
    explicit CommentedLines(std::string_view header)
        : lines_(LinesOf(header)), bare_(LinesOf(WithoutComments(header))) {}

    bool IsBlank(int line) const { return std::ranges::all_of(At(lines_, line), IsSpace); }
    bool IsComment(int line) const { return !IsBlank(line) && std::ranges::all_of(At(bare_, line), IsSpace); }
    // Returns the comment of a line, without its slashes.
    std::string CommentAt(int line) const {
        const std::string& text = At(lines_, line);
        const std::string& bare = At(bare_, line);
        for (std::size_t i = 0; i + 1 < text.size(); ++i)
            if (text[i] == '/' && bare[i] == ' ') return " " + text.substr(i + 2);
        return "";
    }
    // Returns the lines of comment that end at last, which is one of them.
    std::string BlockEndingAt(int last) const {
        int first = last;
        while (IsComment(first - 1)) --first;
        std::string block;
        for (int line = first; line <= last; ++line) block += CommentAt(line);
        return block;
    }
    // Returns the nearest comment above line, in the lines that no blank line and no brace separates from it.
    std::string GroupComment(int line) const {
        for (int above = line - 1; above > 0 && !IsBlank(above); --above) {
            if (IsComment(above)) return BlockEndingAt(above);
            const std::string code = OnOneLine(At(bare_, above));
            if (code.starts_with('}') || code.starts_with('#') || code.ends_with('{') || code.ends_with(':'))
                break;
        }
        return "";
    }

  private:
    static const std::string& At(const std::vector<std::string>& lines, int line) {
        static const std::string kNone;
        return line < 1 || line > static_cast<int>(lines.size()) ? kNone
                                                                 : lines[static_cast<std::size_t>(line - 1)];
    }

    std::vector<std::string> lines_;
    std::vector<std::string> bare_;  // without comments
};

// One pass over the code of a header.
class DeclarationFinder {
  public:
    explicit DeclarationFinder(std::string_view header) : code_(CodeOf(header)), lines_(header) {}

    std::vector<PublicDeclaration> Find() {
        while (at_ < code_.size()) ReadScope({});
        return found_;
    }

  private:
    struct Scope {
        bool isPublic = true;
        std::string classComment;
        std::string section;  // the last comment with a blank line behind it
    };

    bool StartsWord(std::string_view word) const {
        return code_.compare(at_, word.size(), word) == 0 &&
               (at_ + word.size() >= code_.size() || !IsWordChar(code_[at_ + word.size()]));
    }
    // Returns the place behind the bracket that closes the one at place.
    std::size_t Behind(std::size_t place, char open, char close) const {
        int depth = 0;
        for (; place < code_.size(); ++place) {
            if (code_[place] == open) ++depth;
            if (code_[place] == close && --depth == 0) return place + 1;
        }
        return code_.size();
    }
    // Goes to the next code and keeps the section comment passed on the way.
    void SkipBlanks(Scope& scope) {
        const int from = LineAt(code_, at_);
        while (at_ < code_.size() && IsSpace(code_[at_])) ++at_;
        const int to = LineAt(code_, at_);
        for (int line = from; line < to; ++line)
            if (lines_.IsComment(line) && lines_.IsBlank(line + 1))
                scope.section = lines_.BlockEndingAt(line);
    }
    // Reads declarations up to the brace that closes the scope, and that brace.
    void ReadScope(Scope scope) {
        for (;;) {
            SkipBlanks(scope);
            if (at_ >= code_.size()) return;
            if (code_[at_] == '}') {
                ++at_;
                return;
            }
            if (!SkipPrefix(scope)) ReadDeclaration(scope);
        }
    }
    // Passes over a macro, a label such as "public slots:", a template's head, a stray ";".
    bool SkipPrefix(Scope& scope) {
        static const std::regex kLabel(R"(^(public|protected|private|signals)(\s+slots)?\s*:(?!:))");
        std::smatch label;
        const auto rest = code_.cbegin() + static_cast<std::ptrdiff_t>(at_);
        if (std::regex_search(rest, code_.cend(), label, kLabel, std::regex_constants::match_continuous)) {
            scope.isPublic = label[1] == "public" || label[1] == "signals";
            at_ += static_cast<std::size_t>(label.length());
        } else if (StartsWord("Q_OBJECT")) {
            at_ += std::string_view("Q_OBJECT").size();
        } else if (StartsWord("template")) {
            at_ = Behind(at_, '<', '>');
        } else if (code_[at_] == ';') {
            ++at_;
        } else {
            return false;
        }
        return true;
    }
    void ReadDeclaration(const Scope& scope) {
        const std::size_t begin = at_;
        std::size_t headEnd = std::string::npos;  // before the initialiser or the body
        bool function = false;
        while (at_ < code_.size() && code_[at_] != ';' && code_[at_] != '}') {
            const char c = code_[at_];
            if (c == '(') {
                function = function || headEnd == std::string::npos;
                at_ = Behind(at_, '(', ')');
                continue;
            }
            if (c == '{') {
                if (headEnd == std::string::npos && EnterBraces(scope, begin)) return;
                headEnd = std::min(headEnd, at_);
                const bool body = function && !IsWordChar(code_[at_ - 1]);
                at_ = Behind(at_, '{', '}');
                if (body) return Add(scope, begin, headEnd, at_ - 1);
                continue;
            }
            if (EndsHead(c, function, begin)) headEnd = std::min(headEnd, at_);
            ++at_;
        }
        Add(scope, begin, std::min(headEnd, at_), at_);
        if (at_ < code_.size() && code_[at_] == ';') ++at_;
    }
    // True for the "=" before an initialiser and the ":" before a constructor's initialisers.
    bool EndsHead(char c, bool function, std::size_t begin) const {
        const std::string_view head = std::string_view(code_).substr(begin, at_ - begin);
        const bool operatorName = !function && head.find("operator") != std::string_view::npos;
        if (c == '=') return !operatorName && !head.starts_with("using");
        return c == ':' && function && code_[at_ + 1] != ':' && code_[at_ - 1] != ':';
    }
    // Reads the scope or the list that the brace opens; false for a function's body and an initialiser.
    bool EnterBraces(const Scope& scope, std::size_t begin) {
        static const std::regex kNamespace(R"(^(inline )?namespace\b)");
        static const std::regex kClass(R"(^(class|struct|union)\b[^()=]*$)");
        const std::string head = OnOneLine(std::string_view(code_).substr(begin, at_ - begin));
        if (std::regex_search(head, kNamespace)) {
            ++at_;
            ReadScope({});
        } else if (head.starts_with("enum")) {
            at_ = code_.find(';', Behind(at_, '{', '}'));
        } else if (std::regex_search(head, kClass)) {
            ++at_;
            ReadScope({scope.isPublic && !head.starts_with("class"),
                       scope.classComment + lines_.GroupComment(LineAt(code_, begin)), ""});
            at_ = code_.find(';', at_);
        } else {
            return false;
        }
        at_ = std::min(at_, code_.size());
        return true;
    }
    void Add(const Scope& scope, std::size_t begin, std::size_t headEnd, std::size_t end) {
        const std::string text = OnOneLine(std::string_view(code_).substr(begin, headEnd - begin));
        if (!scope.isPublic || text.starts_with("friend") || text.starts_with("enum")) return;
        const int first = LineAt(code_, begin);
        const int last = LineAt(code_, end);
        std::string comment = lines_.GroupComment(first);
        for (int line = first; line <= LineAt(code_, headEnd); ++line) comment += lines_.CommentAt(line);
        if (last > LineAt(code_, headEnd)) comment += lines_.CommentAt(last);
        found_.push_back({first, text, OnOneLine(comment + scope.section), OnOneLine(scope.classComment)});
    }

    std::string code_;  // comments, literals and directives are blank
    CommentedLines lines_;
    std::size_t at_ = 0;
    std::vector<PublicDeclaration> found_;
};

}  // namespace

std::vector<PublicDeclaration> PublicDeclarationsOf(std::string_view header) {
    return DeclarationFinder(header).Find();
}

}  // namespace tw::test
