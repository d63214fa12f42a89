// Commands that come from outside, as texts: "[IMPORT(/home/ann/Stout.TWR)]", or bare words such as
// "Activate".
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tw {

class DDECommand {
  public:
    void ClearParameters() { parameters_.clear(); }
    // The parameter of that index, counted from 0, trimmed and in upper case. Raises Error beyond the end.
    const std::string& Parameters(int index) const { return At(index).upper; }
    // The same as its sender wrote it, trimmed: file names differ by their case here. Raises Error beyond the
    // end.
    const std::string& ParameterAsSent(int index) const { return At(index).asSent; }
    const std::string& Verb() const { return verb_; }
    int ParameterCount() const { return static_cast<int>(parameters_.size()); }

    // Both trim the text and turn it into upper case.
    void SetVerb(std::string_view text);
    void AddParameter(std::string_view text);
    // A parameter that stays as it is.
    void AddPath(std::string_view path);

  private:
    struct Parameter {
        std::string upper, asSent;
    };
    const Parameter& At(int index) const;

    std::string verb_;
    std::vector<Parameter> parameters_;
};

// The commands of a text, in their order. Each begins at a "[" or the text's start; its verb ends at the
// first
// "(" or blank, and its parameters are separated by commas. Quotes protect nothing, so that a comma in a path
// cuts it, on purpose. Any text is read; pieces of blanks alone are passed over.
std::vector<DDECommand> ReadDDECommands(std::string_view text);

}  // namespace tw
