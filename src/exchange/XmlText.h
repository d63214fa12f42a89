// The text between tags and in attributes as well-formed XML.
#pragma once

#include <string>
#include <string_view>

#include "exchange/MendLog.h"

namespace tw {

// Removes the characters that XML forbids, one finding for each line that has some. Line breaks stay.
void RemoveControlCharacters(std::string& text, Findings& findings);

// Writes mended text behind what out holds already. The places of texts are offsets in the file, for lines.
class XmlText {
  public:
    XmlText(std::string& out, MendLog& log) : out_(out), log_(log) {}

    // Writes text as it stands, except for "&" that begins no reference of XML. Entities of HTML become
    // their characters.
    void Append(std::string_view text, std::size_t place);
    // Writes every character so that it stands for itself.
    void AppendLiteral(std::string_view text);
    // Writes only the line breaks of text, so that the lines of what follows keep their numbers.
    void AppendLineBreaks(std::string_view text);
    // Writes the attributes of a tag, as they stand if they are well-formed.
    void AppendAttributes(std::string_view attributes, std::string_view tag, std::size_t place);

  private:
    std::size_t AppendReference(std::string_view text, std::size_t at, std::size_t place);
    bool AppendCharacterReference(std::string_view name, std::size_t place);
    void AppendValue(std::string_view value, char quote, std::size_t place);

    std::string& out_;
    MendLog& log_;
};

}  // namespace tw
