#include "architecture/SourceReader.h"

#include <algorithm>
#include <cctype>
#include <fstream>
#include <sstream>
#include <stdexcept>

namespace tw::test {
namespace {

bool IsWordChar(char c) {
    return std::isalnum(static_cast<unsigned char>(c)) != 0 || c == '_';
}

// The place behind a comment that begins at place; place itself where none begins.
std::size_t BehindComment(std::string_view text, std::size_t place) {
    const std::string_view rest = text.substr(place);
    if (rest.starts_with("//")) return std::min(text.find('\n', place), text.size());
    if (!rest.starts_with("/*")) return place;
    const std::size_t end = text.find("*/", place + 2);
    return end == std::string_view::npos ? text.size() : end + 2;
}

// The place behind a raw literal whose R stands at place.
std::size_t BehindRawLiteral(std::string_view text, std::size_t place) {
    const std::size_t open = std::min(text.find('(', place), text.size() - 1);
    const std::string close = ")" + std::string(text.substr(place + 2, open - place - 2)) + "\"";
    const std::size_t end = text.find(close, open);
    return end == std::string_view::npos ? text.size() : end + close.size();
}

// The place behind a literal in quotes that begins at place; place itself where none begins. A quote behind a
// digit separates digits.
std::size_t BehindLiteral(std::string_view text, std::size_t place) {
    const bool atWord = place > 0 && IsWordChar(text[place - 1]);
    if (!atWord && text.substr(place).starts_with("R\"")) return BehindRawLiteral(text, place);
    const char quote = text[place];
    if (quote != '"' && (quote != '\'' || atWord)) return place;
    std::size_t end = place + 1;
    while (end < text.size() && text[end] != quote && text[end] != '\n') end += text[end] == '\\' ? 2 : 1;
    return std::min(end + 1, text.size());
}

void Blank(std::string& text, std::size_t begin, std::size_t end) {
    for (std::size_t i = begin; i < end; ++i)
        if (text[i] != '\n') text[i] = ' ';
}

// Passes over the text, blanking comments and, if asked to, what stands between quotes.
std::string Blanked(std::string_view source, bool literals) {
    std::string text(source);
    for (std::size_t i = 0; i < source.size();) {
        if (const std::size_t end = BehindComment(source, i); end > i) {
            Blank(text, i, end);
            i = end;
        } else if (const std::size_t behind = BehindLiteral(source, i); behind > i) {
            if (literals) Blank(text, i + 1, behind - 1);
            i = behind;
        } else {
            ++i;
        }
    }
    return text;
}

void BlankDirectives(std::string& text) {
    for (std::size_t begin = 0; begin < text.size();) {
        const std::size_t end = std::min(text.find('\n', begin), text.size());
        const std::size_t first = text.find_first_not_of(" \t", begin);
        std::size_t last = end;
        if (first < end && text[first] == '#') {
            while (last > begin && last < text.size() && text[last - 1] == '\\')
                last = std::min(text.find('\n', last + 1), text.size());
            Blank(text, begin, last);
        }
        begin = last + 1;
    }
}

struct Token {
    std::string_view text;
    std::size_t place;
};

std::vector<Token> TokensOf(std::string_view code) {
    std::vector<Token> tokens;
    for (std::size_t i = 0; i < code.size();) {
        if (std::isspace(static_cast<unsigned char>(code[i])) != 0) {
            ++i;
            continue;
        }
        std::size_t end = i + 1;
        if (IsWordChar(code[i]))
            while (end < code.size() && IsWordChar(code[end])) ++end;
        tokens.push_back({code.substr(i, end - i), i});
        i = end;
    }
    return tokens;
}

// One pass over the tokens of a header; what is no declaration is passed over.
class ClassFinder {
  public:
    explicit ClassFinder(std::string_view code) : code_(code), tokens_(TokensOf(code)) {}

    std::vector<DeclaredClass> Find() {
        while (next_ < tokens_.size()) {
            ReadScope(kNone);
            ++next_;  // a brace that closes nothing
        }
        return classes_;
    }

  private:
    static constexpr std::size_t kNone = static_cast<std::size_t>(-1);

    bool Is(std::size_t place, std::string_view text) const {
        return place < tokens_.size() && tokens_[place].text == text;
    }
    bool IsName(std::size_t place) const {
        return place < tokens_.size() && IsWordChar(tokens_[place].text.front());
    }
    // Behind the bracket that closes the one at place.
    std::size_t Behind(std::size_t place, std::string_view open, std::string_view close) const {
        int depth = 0;
        for (; place < tokens_.size(); ++place) {
            if (Is(place, open)) ++depth;
            if (Is(place, close) && --depth == 0) return place + 1;
        }
        return place;
    }
    // Reads declarations up to the brace that closes the scope.
    void ReadScope(std::size_t owner) {
        while (next_ < tokens_.size() && !Is(next_, "}")) ReadDeclaration(owner);
    }
    // The end of a template's head, attributes and labels such as "public:".
    bool SkipPrefix() {
        if (Is(next_, "template")) {
            next_ = Behind(next_ + 1, "<", ">");
        } else if (Is(next_, "[")) {
            next_ = Behind(next_, "[", "]");
        } else if ((Is(next_, "public") || Is(next_, "protected") || Is(next_, "private")) &&
                   !Is(next_ + 1, "(")) {
            while (next_ < tokens_.size() && !Is(next_, ":")) ++next_;  // "public slots:" too
            ++next_;
        } else if (Is(next_, ";")) {
            ++next_;
        } else {
            return false;
        }
        return true;
    }
    void ReadDeclaration(std::size_t owner) {
        if (SkipPrefix()) return;
        if (Is(next_, "namespace") || Is(next_, "extern")) {
            if (EnterBraces()) ReadScope(owner), ++next_;
        } else if (Is(next_, "class") || Is(next_, "struct") || Is(next_, "union")) {
            ReadClass(owner);
        } else if (Is(next_, "enum") || Is(next_, "using") || Is(next_, "typedef") || Is(next_, "friend") ||
                   Is(next_, "static_assert")) {
            SkipDeclaration();
        } else {
            ReadMember(owner);
        }
    }
    // Goes behind the next "{"; false, and behind the ";", when that comes first.
    bool EnterBraces() {
        while (next_ < tokens_.size() && !Is(next_, "{") && !Is(next_, ";")) ++next_;
        return Is(next_++, "{");
    }
    void SkipDeclaration() {
        while (next_ < tokens_.size() && !Is(next_, ";")) {
            if (!Is(next_, "{")) {
                ++next_;
                continue;
            }
            next_ = Behind(next_, "{", "}");
            // A friend's body ends its declaration.
            if (!Is(next_, ";") && !Is(next_, ",")) return;
        }
        ++next_;
    }
    // A definition opens a scope of its own; a mention ("struct A a();") is read on as a member.
    void ReadClass(std::size_t owner) {
        const std::size_t keyword = next_;
        std::size_t name = keyword + 1;
        while (Is(name, "[")) name = Behind(name, "[", "]");
        std::size_t brace = name;
        while (brace < tokens_.size() && !Is(brace, "{") && !Is(brace, ";") && !Is(brace, "(")) ++brace;
        if (!Is(brace, "{")) {
            ++next_;
            ReadMember(owner);
            return;
        }
        const std::string outer = owner == kNone ? "" : classes_[owner].name + "::";
        const std::string own = IsName(name) ? std::string(tokens_[name].text) : "(unnamed)";
        classes_.push_back({outer + own, LineAt(code_, tokens_[keyword].place), 0});
        next_ = brace + 1;
        ReadScope(classes_.size() - 1);
        SkipDeclaration();  // the brace and the objects behind it
    }
    // A function or a data member.
    void ReadMember(std::size_t owner) {
        bool function = false;
        int angles = 0;
        for (; next_ < tokens_.size() && !Is(next_, ";") && !Is(next_, "}"); ++next_) {
            if (Is(next_, "operator")) {
                function = true;
                SkipToParameters();
            }
            if (Is(next_, "<") && IsName(next_ - 1)) ++angles;
            if (Is(next_, ">") && angles > 0) --angles;
            if (angles > 0) continue;
            if (Is(next_, "=")) return Count(owner, function), SkipDeclaration();
            if (Is(next_, "(")) {
                function = function || (IsName(next_ - 1) && !Is(next_ + 1, "*"));
                next_ = Behind(next_, "(", ")") - 1;
            } else if (Is(next_, "{")) {
                const bool initialiser = !function || (initialisers_ && IsName(next_ - 1));
                next_ = Behind(next_, "{", "}") - 1;
                if (!initialiser) break;
            } else if (Is(next_, ":") && function && !Is(next_ + 1, ":") && !Is(next_ - 1, ":")) {
                initialisers_ = true;
            }
        }
        initialisers_ = false;
        Count(owner, function);
        if (!Is(next_, "}") || function) ++next_;
    }
    // From "operator" to the bracket before its parameters: "operator()" has one in its name.
    void SkipToParameters() {
        ++next_;
        if (Is(next_, "(")) next_ += 2;
        while (next_ < tokens_.size() && !Is(next_, "(")) ++next_;
    }
    void Count(std::size_t owner, bool function) {
        if (function && owner != kNone) ++classes_[owner].functions;
    }

    std::string_view code_;
    std::vector<Token> tokens_;
    std::size_t next_ = 0;
    bool initialisers_ = false;  // between the ":" of a constructor and its body
    std::vector<DeclaredClass> classes_;
};

}  // namespace

std::string ReadSource(const std::filesystem::path& file) {
    std::ifstream in(file, std::ios::binary);
    if (!in) throw std::runtime_error(file.string() + " cannot be read");
    std::ostringstream bytes;
    bytes << in.rdbuf();
    return bytes.str();
}

std::string WithoutComments(std::string_view source) {
    return Blanked(source, false);
}

std::string CodeOf(std::string_view source) {
    std::string code = Blanked(source, true);
    BlankDirectives(code);
    return code;
}

int LineAt(std::string_view text, std::size_t place) {
    return 1 + static_cast<int>(std::ranges::count(text.substr(0, place), '\n'));
}

std::vector<DeclaredClass> ClassesOf(std::string_view source) {
    const std::string code = CodeOf(source);
    return ClassFinder(code).Find();
}

}  // namespace tw::test
