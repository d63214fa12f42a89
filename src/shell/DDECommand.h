// Commands that other programs send as text: "[IMPORT(/home/ann/Stout.TWR)]", or bare words such
// as "Activate".
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tw {

class DDECommand {
  public:
    void ClearParameters() { parameters_.clear(); }
    // Returns the parameter at index (from 0), trimmed and in upper case. Raises Error if there is none.
    const std::string& Parameters(int index) const { return At(index).upper; }
    // Returns the parameter at index (from 0), trimmed but in the case in which it was sent, as file names
    // here are case-sensitive. Raises Error if there is none.
    const std::string& ParameterAsSent(int index) const { return At(index).asSent; }
    const std::string& Verb() const { return verb_; }
    int ParameterCount() const { return static_cast<int>(parameters_.size()); }

    // Both setters trim the text and convert it to upper case.
    void SetVerb(std::string_view text);
    void AddParameter(std::string_view text);
    // Adds a parameter without changing it.
    void AddPath(std::string_view path);

  private:
    struct Parameter {
        std::string upper, asSent;
    };
    const Parameter& At(int index) const;

    std::string verb_;
    std::vector<Parameter> parameters_;
};

// Returns the commands in text, in order. Each begins at a "[" or at the start of the text; its verb ends at
// the first "(" or blank, and its parameters are separated by commas. Quotes protect nothing, so a comma
// splits a path; only ChannelMessage::File can send such a path. Accepts any text and skips blank pieces.
std::vector<DDECommand> ReadDDECommands(std::string_view text);

}  // namespace tw
