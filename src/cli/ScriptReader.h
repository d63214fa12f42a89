// The text of a script: its lines, the words and texts on them, and the one-line form in which texts are
// printed. The reading is strict: what is malformed raises, so that no line is carried out by half.
#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace tw {

// A line that cannot be carried out as a command. The script ends there. No std::exception: what traps those
// inside the program shows them in a box and goes on.
class ScriptError {
  public:
    explicit ScriptError(std::string reason) : reason_(std::move(reason)) {}
    const std::string& Reason() const { return reason_; }

  private:
    std::string reason_;
};

// text on one line: backslash, line feed, carriage return and tab as \\ \n \r \t.
std::string EscapeText(std::string_view text);

// The words of one line from left to right. Words are separated by blanks; a word or text that begins with a
// double quote ends at the next one and has the escapes \" \\ \n \r \t. What stands behind a closing quote
// must be a blank or the line's end. Every function that takes a word raises ScriptError when none is left,
// naming what is missing, and when a quoted one is malformed.
class Arguments {
  public:
    // Holds the view: line must live as long.
    explicit Arguments(std::string_view line);

    bool AtEnd() const { return rest_.empty(); }
    // The next word, quoted or bare.
    std::string Word(std::string_view what);
    // Takes the next word off the line if it is that one, unquoted.
    bool TakeWord(std::string_view word);
    // The rest of the line as a name, which may hold blanks, or the text that it quotes. Raises ScriptError
    // for none.
    std::string LastName(std::string_view what);
    // The rest of the line as it stands, or the text that it quotes; empty when nothing is left.
    std::string Text();
    // A word that is a number: an optional "-", digits, at most one ".". Raises also for one beyond a double.
    double Number(std::string_view what);
    // A word that is a whole number from least to most, both allowed.
    int Integer(std::string_view what, int least, int most);
    // "yes" gives true, "no" false; "on" and "off" with those words given.
    bool Choice(std::string_view what, std::string_view yes, std::string_view no);
    // Raises when anything is left on the line.
    void End() const;

  private:
    void SkipBlanks();
    std::string Quoted();

    std::string_view rest_;
};

// The answer to a modal dialog, "control=value; ...; BUTTON". A value that begins with a double quote is read
// as a quoted text and may then hold a ";".
struct DialogAnswer {
    std::vector<std::pair<std::string, std::string>> entries;  // control and value, in their order
    std::string button;
};
// Raises ScriptError when there is no button, or something behind it, or a malformed quoted value.
DialogAnswer ReadDialogAnswer(std::string_view text);

}  // namespace tw
