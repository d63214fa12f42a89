#include "architecture/UnitRule.h"

#include <algorithm>
#include <cctype>

#include "architecture/Declarations.h"

namespace tw::test {
namespace {

enum class Says {
    Unit,         // in a name or a comment
    NameOnly,     // too common a word to count in a comment
    CommentOnly,  // too common a word to count in a name
    NoUnit        // in a comment, even in that of the class
};
struct UnitWord {
    std::string_view word;  // lower case; a comment may add an "s"
    Says says = Says::Unit;
};

// All words that say a unit, or that there is none.
constexpr UnitWord kUnitWords[] = {
    // Volumes and weights.
    {"gallon"},
    {"gallons"},
    {"quarts"},
    {"pints"},
    {"cups"},
    {"fluid ounces"},
    {"fl. oz"},
    {"tablespoons"},
    {"teaspoons"},
    {"liters"},
    {"litre"},
    {"milliliters"},
    {"millilitre"},
    {"pound"},
    {"pounds"},
    {"ounce"},
    {"ounces"},
    {"grams"},
    {"gram"},
    {"kilogram"},
    {"kilograms"},
    {"milligram"},
    // Gravity, color, bitterness, gas.
    {"sg"},
    {"specific gravity"},
    {"plato"},
    {"srm"},
    {"hcu"},
    {"homebrew color unit"},
    {"lovibond"},
    {"ibu"},
    {"aau"},
    {"ppm"},
    {"volumes", Says::NameOnly},
    {"volumes of co2", Says::CommentOnly},
    {"calories"},
    {"kcal"},
    // Temperature, pressure, time, place.
    {"fahrenheit"},
    {"°f", Says::CommentOnly},
    {"celsius"},
    {"°c", Says::CommentOnly},
    {"kelvin"},
    {"psi"},
    {"kilopascals"},
    {"kpa"},
    {"pascals"},
    {"pa", Says::NameOnly},
    {"atmosphere"},
    {"atm"},
    {"minute"},
    {"minutes"},
    {"hours"},
    {"seconds"},
    {"pixel"},
    {"pixels"},
    {"angle in degrees", Says::CommentOnly},
    // Parts of a whole.
    {"percent"},
    {"fraction", Says::NameOnly},
    {"fraction of", Says::CommentOnly},
    {"share", Says::NameOnly},
    {"ratio", Says::NameOnly},
    {"multiplier"},
    // Numbers of any kind.
    {"no unit", Says::NoUnit},
    {"without a unit", Says::NoUnit},
    {"in any unit", Says::NoUnit},
    {"the caller's units", Says::NoUnit},
};

bool IsLetterOrDigit(char c) {
    return std::isalnum(static_cast<unsigned char>(c)) != 0;
}
bool IsUpper(char c) {
    return std::isupper(static_cast<unsigned char>(c)) != 0;
}

std::string Lower(std::string_view text) {
    std::string lower(text);
    std::ranges::transform(lower, lower.begin(),
                           [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    return lower;
}

// Returns the parts of a name in lower case, a blank between them: "alpha acid ounces" for alphaAcidOunces,
// "hcu to srm" for HCUToSRM.
std::string PartsOf(std::string_view name) {
    std::string parts;
    for (std::size_t i = 0; i < name.size(); ++i) {
        const bool behindUpper = i > 0 && IsUpper(name[i - 1]);
        const bool beforeLower = i + 1 < name.size() && IsLetterOrDigit(name[i + 1]) && !IsUpper(name[i + 1]);
        if (i > 0 && IsUpper(name[i]) && (!behindUpper || beforeLower)) parts += ' ';
        parts += name[i] == '_' ? ' ' : name[i];
    }
    return Lower(parts);
}

// True if text holds word as a whole. In a comment an "s" may stand behind it.
bool HasWord(std::string_view text, std::string_view word, bool comment) {
    for (std::size_t at = text.find(word); at != std::string_view::npos; at = text.find(word, at + 1)) {
        std::size_t end = at + word.size();
        if (comment && end < text.size() && text[end] == 's') ++end;
        const bool begins = at == 0 || !IsLetterOrDigit(text[at - 1]);
        if (begins && (end == text.size() || !IsLetterOrDigit(text[end]))) return true;
    }
    return false;
}

bool NameSaysUnit(std::string_view name) {
    const std::string parts = PartsOf(name);
    return std::ranges::any_of(kUnitWords, [&](const UnitWord& unit) {
        return (unit.says == Says::Unit || unit.says == Says::NameOnly) && HasWord(parts, unit.word, false);
    });
}

// A unit that a name of the declaration says speaks for that name alone, even where the comment repeats it.
bool CommentSaysUnit(const PublicDeclaration& declaration) {
    const std::string comment = Lower(declaration.comment);
    const std::string classComment = Lower(declaration.classComment);
    const std::string names = PartsOf(declaration.text);
    return std::ranges::any_of(kUnitWords, [&](const UnitWord& unit) {
        if (unit.says == Says::NoUnit && HasWord(classComment, unit.word, true)) return true;
        return unit.says != Says::NameOnly && HasWord(comment, unit.word, true) &&
               !HasWord(names, unit.word, true);
    });
}

// The words and signs of a declaration.
std::vector<std::string_view> TokensOf(std::string_view text) {
    std::vector<std::string_view> tokens;
    for (std::size_t i = 0; i < text.size();) {
        std::size_t end = i + 1;
        const auto isWord = [&](std::size_t at) { return IsLetterOrDigit(text[at]) || text[at] == '_'; };
        if (isWord(i))
            while (end < text.size() && isWord(end)) ++end;
        if (text[i] != ' ') tokens.push_back(text.substr(i, end - i));
        i = end;
    }
    return tokens;
}
using Tokens = std::vector<std::string_view>;

bool IsWord(std::string_view token) {
    return IsLetterOrDigit(token.front()) || token.front() == '_';
}
bool HasNumber(const Tokens& tokens, const NumberTypes& types) {
    return std::ranges::any_of(tokens, [&](std::string_view token) { return types.contains(token); });
}

// Returns the parts of tokens between commas outside all brackets.
std::vector<Tokens> PartsBetweenCommas(const Tokens& tokens) {
    std::vector<Tokens> parts(1);
    int depth = 0;
    for (const std::string_view token : tokens) {
        if (token == "(" || token == "<" || token == "[" || token == "{") ++depth;
        if (token == ")" || token == ">" || token == "]" || token == "}") --depth;
        if (token == "," && depth == 0)
            parts.emplace_back();
        else
            parts.back().push_back(token);
    }
    return parts;
}

// Returns the name that a parameter or a member declares: its last word, before a default or an array's
// length. Empty for a type alone.
std::string_view DeclaredName(const Tokens& tokens, const NumberTypes& types) {
    const auto end = std::ranges::find_if(tokens, [](std::string_view t) { return t == "=" || t == "["; });
    for (auto at = end; at != tokens.begin();) {
        --at;
        if (*at == ">" || *at == "*" || *at == "&" || *at == ")") return {};
        if (IsWord(*at)) return types.contains(*at) ? std::string_view() : *at;
    }
    return {};
}

// A declaration taken apart: what is before the bracket of its parameters, and between that and its end.
struct Parts {
    Tokens head;
    std::vector<Tokens> parameters;
    bool isFunction = false;
};
Parts TakeApart(const std::string& declaration) {
    const Tokens tokens = TokensOf(declaration);
    int angles = 0;
    std::size_t open = 0;
    for (; open < tokens.size(); ++open) {
        if (tokens[open] == "<") ++angles;
        if (tokens[open] == ">") --angles;
        if (tokens[open] == "(" && angles == 0) break;
    }
    Parts parts;
    parts.head.assign(tokens.begin(), tokens.begin() + static_cast<std::ptrdiff_t>(open));
    parts.isFunction = open < tokens.size();
    if (!parts.isFunction) return parts;
    std::size_t close = open;
    for (int depth = 0; close < tokens.size(); ++close) {
        if (tokens[close] == "(") ++depth;
        if (tokens[close] == ")" && --depth == 0) break;
    }
    parts.parameters = PartsBetweenCommas({tokens.begin() + static_cast<std::ptrdiff_t>(open) + 1,
                                           tokens.begin() + static_cast<std::ptrdiff_t>(close)});
    return parts;
}

// Returns the names of the numbers whose names say no unit.
std::vector<std::string> NamesWithoutUnit(const std::string& declaration, const NumberTypes& types) {
    std::vector<std::string> found;
    const auto check = [&](std::string_view name, std::string_view shown) {
        if (!NameSaysUnit(name)) found.emplace_back(shown);
    };
    const Parts parts = TakeApart(declaration);
    if (declaration.starts_with("using ")) {
        if (HasNumber(TokensOf(declaration), types)) check(parts.head[1], parts.head[1]);
    } else if (parts.isFunction) {
        if (HasNumber(parts.head, types)) check(DeclaredName(parts.head, types), "result");
        for (const Tokens& parameter : parts.parameters)
            if (HasNumber(parameter, types)) {
                const std::string_view name = DeclaredName(parameter, types);
                check(name, name.empty() ? "parameter without a name" : name);
            }
    } else if (HasNumber(parts.head, types)) {
        for (const Tokens& declarator : PartsBetweenCommas(parts.head)) {
            const std::string_view name = DeclaredName(declarator, types);
            check(name, name);
        }
    }
    return found;
}

}  // namespace

NumberTypes NumberTypesIn(std::string_view header) {
    NumberTypes types{"double", "float", "qreal"};
    for (const PublicDeclaration& declaration : PublicDeclarationsOf(header)) {
        const Tokens tokens = TokensOf(declaration.text);
        if (tokens.size() > 3 && tokens[0] == "using" && tokens[2] == "=" && HasNumber(tokens, types) &&
            std::ranges::find(tokens, "(") == tokens.end())
            types.emplace(tokens[1]);
    }
    return types;
}

std::vector<NumberWithoutUnit> NumbersWithoutUnit(std::string_view header, const NumberTypes& types) {
    std::vector<NumberWithoutUnit> found;
    for (const PublicDeclaration& declaration : PublicDeclarationsOf(header)) {
        if (CommentSaysUnit(declaration)) continue;
        for (const std::string& number : NamesWithoutUnit(declaration.text, types))
            found.push_back({declaration.line, declaration.text, number});
    }
    return found;
}

}  // namespace tw::test
