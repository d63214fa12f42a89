#include "cli/ScriptReader.h"

#include "platform/Error.h"
#include "values/NumberText.h"
#include "values/Text.h"

namespace tw {
namespace {

char Unescaped(char letter) {
    switch (letter) {
        case '"':
        case '\\':
            return letter;
        case 'n':
            return '\n';
        case 'r':
            return '\r';
        case 't':
            return '\t';
        default:
            throw ScriptError("there is no escape \"\\" + EscapeText(std::string_view(&letter, 1)) + "\"");
    }
}

// Removes the quoted text from the front of rest and returns it. REQUIRES: rest begins with a double quote.
std::string CutQuoted(std::string_view& rest) {
    std::string text;
    for (std::size_t at = 1; at < rest.size(); ++at) {
        if (rest[at] == '"') {
            rest.remove_prefix(at + 1);
            return text;
        }
        if (rest[at] != '\\') {
            text.push_back(rest[at]);
            continue;
        }
        if (++at == rest.size()) break;
        text.push_back(Unescaped(rest[at]));
    }
    throw ScriptError("the closing double quote is missing");
}

std::string_view WithoutFrontBlanks(std::string_view text) {
    return text.substr(std::min(text.find_first_not_of(' '), text.size()));
}

// Removes one value of a dialog's answer and the ";" after it from rest, and returns the value.
std::string CutValue(std::string_view& rest) {
    rest = WithoutFrontBlanks(rest);
    if (!rest.starts_with('"')) {
        const std::size_t end = std::min(rest.find(';'), rest.size());
        std::string value(Trim(rest.substr(0, end)));
        rest.remove_prefix(std::min(end + 1, rest.size()));
        return value;
    }
    std::string value = CutQuoted(rest);
    rest = WithoutFrontBlanks(rest);
    if (!rest.empty() && rest.front() != ';') throw ScriptError("a ';' must follow a quoted value");
    rest.remove_prefix(std::min<std::size_t>(1, rest.size()));
    return value;
}

}  // namespace

std::string EscapeText(std::string_view text) {
    std::string line;
    line.reserve(text.size());
    for (const char c : text) {
        switch (c) {
            case '\\':
                line += "\\\\";
                break;
            case '\n':
                line += "\\n";
                break;
            case '\r':
                line += "\\r";
                break;
            case '\t':
                line += "\\t";
                break;
            default:
                line.push_back(c);
        }
    }
    return line;
}

Arguments::Arguments(std::string_view line) : rest_(Trim(line)) {}

void Arguments::SkipBlanks() {
    rest_ = WithoutFrontBlanks(rest_);
}

std::string Arguments::Quoted() {
    std::string text = CutQuoted(rest_);
    if (!rest_.empty() && rest_.front() != ' ')
        throw ScriptError("a blank must follow the closing double quote");
    SkipBlanks();
    return text;
}

std::string Arguments::Word(std::string_view what) {
    if (AtEnd()) throw ScriptError(std::string(what) + " is missing");
    if (rest_.front() == '"') return Quoted();
    const std::size_t end = std::min(rest_.find(' '), rest_.size());
    std::string word(rest_.substr(0, end));
    rest_.remove_prefix(end);
    SkipBlanks();
    return word;
}

bool Arguments::TakeWord(std::string_view word) {
    if (rest_.substr(0, rest_.find(' ')) != word) return false;
    rest_.remove_prefix(word.size());
    SkipBlanks();
    return true;
}

std::string Arguments::LastName(std::string_view what) {
    if (AtEnd()) throw ScriptError(std::string(what) + " is missing");
    return Text();
}

std::string Arguments::Text() {
    if (rest_.starts_with('"')) {
        std::string text = Quoted();
        End();
        return text;
    }
    std::string text(rest_);
    rest_ = {};
    return text;
}

double Arguments::Number(std::string_view what) {
    const std::string word = Word(what);
    try {
        if (const std::optional<double> number = ReadNumber(word)) return *number;
    } catch (const Error&) {
        throw ScriptError(std::string(what) + " is too large a number");
    }
    throw ScriptError(std::string(what) + " must be a number, not '" + word + "'");
}

int Arguments::Integer(std::string_view what, int least, int most) {
    const std::string word = Word(what);
    std::optional<double> number;
    try {
        if (word.find('.') == std::string::npos) number = ReadNumber(word);
    } catch (const Error&) {
        // Out of the range of the number type, so out of every range.
    }
    if (!number || *number < least || *number > most)
        throw ScriptError(std::string(what) + " must be a whole number from " + std::to_string(least) +
                          " to " + std::to_string(most) + ", not '" + word + "'");
    return static_cast<int>(*number);
}

bool Arguments::Choice(std::string_view what, std::string_view yes, std::string_view no) {
    const std::string word = Word(what);
    if (word != yes && word != no)
        throw ScriptError(std::string(what) + " must be " + std::string(yes) + " or " + std::string(no) +
                          ", not '" + word + "'");
    return word == yes;
}

void Arguments::End() const {
    if (!AtEnd()) throw ScriptError("nothing may follow here, but there is '" + std::string(rest_) + "'");
}

DialogAnswer ReadDialogAnswer(std::string_view text) {
    DialogAnswer answer;
    std::string_view rest = Trim(text);
    while (!rest.empty()) {
        const std::size_t end = std::min(rest.find_first_of("=;"), rest.size());
        std::string name(Trim(rest.substr(0, end)));
        if (end == rest.size() || rest[end] == ';') {
            if (end != rest.size())
                throw ScriptError("the button comes last in an answer, not '" + name + "'");
            answer.button = std::move(name);
            return answer;
        }
        rest.remove_prefix(end + 1);
        std::string value = CutValue(rest);
        answer.entries.emplace_back(std::move(name), std::move(value));
        rest = WithoutFrontBlanks(rest);
    }
    throw ScriptError("the answer to a dialog ends with a button");
}

}  // namespace tw
