// Cuts a text that should be XML into tags and what stands between them, whatever is wrong with it.
#pragma once

#include <cstdint>
#include <string_view>

namespace tw {

enum class XmlTokenKind : std::uint8_t {
    Text,
    LessThan,  // "<" that begins nothing, or several in a row
    Open,
    Close,
    Comment,
    CData,
    Instruction,  // "<?...?>", as the header of the file
    Doctype,
    End
};

struct XmlToken {
    XmlTokenKind kind = XmlTokenKind::End;
    std::size_t begin = 0;  // offsets in the text
    std::size_t end = 0;
    std::string_view name;     // of a tag, as written; empty for "</>"
    std::string_view content;  // the attributes, the comment, the characters of CDATA
    bool selfClosing = false;  // "<A/>"
    bool closed = true;        // false if its end is missing, so that the next tag ends it
    bool cutOff = false;       // the text ends within it
};

// Finds a pattern again and again, each place once.
class Seeker {
  public:
    Seeker(std::string_view text, std::string_view pattern) : text_(text), pattern_(pattern) {}
    // Returns the first place from begin on. REQUIRES: begin is not below that of the call before.
    std::size_t From(std::size_t begin);

  private:
    std::string_view text_, pattern_;
    std::size_t searched_ = 0;  // there is none from here to found_
    std::size_t found_ = 0;
};

// A tag is "<" with a name behind it; the name of a tag without ">" must be one of BeerXML. The time of all
// calls together grows with the length of the text only.
class XmlTokens {
  public:
    explicit XmlTokens(std::string_view text);
    XmlToken Next();

  private:
    void ReadText(XmlToken& token);
    void ReadMarkup(XmlToken& token);
    bool ReadDeclaration(XmlToken& token);
    void ReadComment(XmlToken& token);
    void ReadCData(XmlToken& token);
    void ReadDoctype(XmlToken& token);
    bool ReadInstruction(XmlToken& token);
    bool ReadClose(XmlToken& token);
    bool ReadOpen(XmlToken& token);
    std::size_t SkipQuoted(std::size_t quote);
    std::size_t EndOfTag(std::size_t at);
    bool StartsWith(std::size_t at, std::string_view upper) const;
    void CutOff(XmlToken& token) const;

    std::string_view text_;
    std::size_t at_ = 0;
    Seeker commentEnd_, looseCommentEnd_, instructionEnd_, cdataEnd_, cdataBegin_, doubleQuote_, singleQuote_;
};

// True for a character that may begin a name; behind it, digits, "-" and "." may stand as well.
constexpr bool IsNameStart(char c) {
    return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || c == '_' || c == ':' ||
           static_cast<unsigned char>(c) >= 0x80;
}
constexpr bool IsNameCharacter(char c) {
    return IsNameStart(c) || (c >= '0' && c <= '9') || c == '-' || c == '.';
}
constexpr bool IsXmlBlank(char c) {
    return c == ' ' || c == '\t' || c == '\r' || c == '\n';
}
bool IsXmlBlank(std::string_view text);
// Returns the name at the beginning of text; empty if there is none.
std::string_view FrontName(std::string_view text);

}  // namespace tw
