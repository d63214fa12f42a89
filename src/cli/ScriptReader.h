// Reads the lines of scripts: their words and texts, and the one-line form in which texts are printed.
// Reading is strict: malformed input raises ScriptError, so that no line is executed only in part.
#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace tw {

// A line that cannot be executed; the script stops at it. Not a std::exception, because the program catches
// those, shows them in a message box and continues.
class ScriptError {
  public:
    explicit ScriptError(std::string reason) : reason_(std::move(reason)) {}
    const std::string& Reason() const { return reason_; }

  private:
    std::string reason_;
};

// Returns text on one line: backslash, line feed, carriage return and tab become \\ \n \r \t.
std::string EscapeText(std::string_view text);

// Reads the words of one line from left to right. Words are separated by blanks. A word or text that begins
// with a double quote ends at the next double quote and may contain the escapes \" \\ \n \r \t. After the
// closing quote, only a blank or the end of the line may follow. Every function that reads a word raises
// ScriptError if no word is left, naming the missing one (`what`), or if a quoted word is malformed.
class Arguments {
  public:
    // line must outlive the object.
    explicit Arguments(std::string_view line);

    bool AtEnd() const { return rest_.empty(); }
    // Returns the next word, quoted or bare.
    std::string Word(std::string_view what);
    // If the next word is word, unquoted, removes it and returns true.
    bool TakeWord(std::string_view word);
    // Returns the rest of the line as a name, which may contain blanks or be quoted. Raises ScriptError if it
    // is empty.
    std::string LastName(std::string_view what);
    // Returns the rest of the line, or the text that it quotes; empty if nothing is left.
    std::string Text();
    // Reads a number: an optional "-", digits, at most one ".". Raises ScriptError for any other word and for
    // a number out of the range of a double.
    double Number(std::string_view what);
    // Reads a whole number from least to most, both included. Raises ScriptError for any other word.
    int Integer(std::string_view what, int least, int most);
    // Returns true for the word yes and false for the word no, as given ("yes" and "no", or "on" and "off").
    bool Choice(std::string_view what, std::string_view yes, std::string_view no);
    // Raises ScriptError if anything is left on the line.
    void End() const;

  private:
    void SkipBlanks();
    std::string Quoted();

    std::string_view rest_;
};

// The answer to a modal dialog, "control=value; ...; BUTTON". A value that begins with a double quote is a
// quoted text and may contain ";".
struct DialogAnswer {
    std::vector<std::pair<std::string, std::string>> entries;  // control and value, in order
    std::string button;
};
// Raises ScriptError if there is no button, if something follows it, or if a quoted value is malformed.
DialogAnswer ReadDialogAnswer(std::string_view text);

}  // namespace tw
