#include "exchange/XmlTokens.h"

#include <algorithm>
#include <cstring>

#include "exchange/AsciiCase.h"
#include "exchange/XmlVocabulary.h"

namespace tw {
namespace {

constexpr std::size_t kNone = std::string_view::npos;
constexpr std::string_view kCommentBegin = "<!--";
constexpr std::string_view kCDataBegin = "<![CDATA[";
constexpr std::string_view kDoctypeBegin = "<!DOCTYPE";

}  // namespace

bool IsXmlBlank(std::string_view text) {
    return std::ranges::all_of(text, [](char c) { return IsXmlBlank(c); });
}

std::string_view FrontName(std::string_view text) {
    if (text.empty() || !IsNameStart(text.front())) return {};
    const auto end = std::ranges::find_if_not(text, [](char c) { return IsNameCharacter(c); });
    return text.substr(0, static_cast<std::size_t>(end - text.begin()));
}

std::size_t Seeker::From(std::size_t begin) {
    if (begin < searched_ || begin > found_ || searched_ == found_) {
        searched_ = begin;
        // Where the first character is frequent, find of the standard library takes many times as long.
        const void* const found =
            memmem(text_.data() + begin, text_.size() - begin, pattern_.data(), pattern_.size());
        found_ = found == nullptr ? kNone
                                  : static_cast<std::size_t>(static_cast<const char*>(found) - text_.data());
    }
    return found_;
}

XmlTokens::XmlTokens(std::string_view text)
    : text_(text),
      commentEnd_(text, "-->"),
      looseCommentEnd_(text, "->"),
      instructionEnd_(text, "?>"),
      cdataEnd_(text, "]]>"),
      cdataBegin_(text, kCDataBegin),
      doubleQuote_(text, "\""),
      singleQuote_(text, "'") {}

XmlToken XmlTokens::Next() {
    XmlToken token;
    token.begin = at_;
    if (at_ < text_.size()) {
        if (text_[at_] == '<')
            ReadMarkup(token);
        else
            ReadText(token);
    } else {
        token.end = at_;
    }
    at_ = token.end;
    return token;
}

void XmlTokens::ReadText(XmlToken& token) {
    token.kind = XmlTokenKind::Text;
    token.end = std::min(text_.find('<', at_), text_.size());
}

void XmlTokens::ReadMarkup(XmlToken& token) {
    const char next = at_ + 1 < text_.size() ? text_[at_ + 1] : ' ';
    const bool isMarkup = next == '!'   ? ReadDeclaration(token)
                          : next == '?' ? ReadInstruction(token)
                          : next == '/' ? ReadClose(token)
                                        : ReadOpen(token);
    if (isMarkup) return;
    token = {};
    token.kind = XmlTokenKind::LessThan;
    token.begin = at_;
    token.end = at_ + 1;
    const std::string_view rest = text_.substr(at_);
    for (const std::string_view begin : {kCommentBegin, kCDataBegin, kDoctypeBegin, std::string_view("<?")})
        if (rest.size() < begin.size() && EqualAscii(rest, begin.substr(0, rest.size())))
            return CutOff(token);
    while (token.end + 1 < text_.size() && text_[token.end] == '<' && text_[token.end + 1] == '<')
        ++token.end;
}

bool XmlTokens::StartsWith(std::size_t at, std::string_view upper) const {
    return EqualAscii(text_.substr(at, upper.size()), upper);
}

void XmlTokens::CutOff(XmlToken& token) const {
    token.end = text_.size();
    token.closed = false;
    token.cutOff = true;
}

bool XmlTokens::ReadDeclaration(XmlToken& token) {
    if (StartsWith(at_, kCommentBegin))
        ReadComment(token);
    else if (StartsWith(at_, kCDataBegin))
        ReadCData(token);
    else if (StartsWith(at_, kDoctypeBegin))
        ReadDoctype(token);
    else
        return false;
    return true;
}

// A comment that nothing ends as it should may end with "->" or "-- >".
void XmlTokens::ReadComment(XmlToken& token) {
    token.kind = XmlTokenKind::Comment;
    const std::size_t inner = at_ + kCommentBegin.size();
    std::size_t end = commentEnd_.From(inner);
    std::size_t length = std::string_view("-->").size();
    if (end == kNone) {
        end = looseCommentEnd_.From(inner);
        length = std::string_view("->").size();
        token.closed = false;
    }
    if (end == kNone) return CutOff(token);
    token.content = text_.substr(inner, end - inner);
    token.end = end + length;
}

// A section that begins again before its end ends where the next tag closes.
void XmlTokens::ReadCData(XmlToken& token) {
    token.kind = XmlTokenKind::CData;
    const std::size_t inner = at_ + kCDataBegin.size();
    const std::size_t end = cdataEnd_.From(inner);
    if (end < cdataBegin_.From(inner)) {
        token.content = text_.substr(inner, end - inner);
        token.end = end + std::string_view("]]>").size();
        return;
    }
    const std::size_t close = text_.find("</", inner);
    if (close == kNone) return CutOff(token);
    token.closed = false;
    token.content = text_.substr(inner, close - inner);
    token.end = close;
}

// Quotes, comments and the brackets of the subset are passed over. "<" with a letter behind it stands in none
// of them: there the document begins, and an end was forgotten.
void XmlTokens::ReadDoctype(XmlToken& token) {
    token.kind = XmlTokenKind::Doctype;
    bool inSubset = false;
    for (std::size_t i = at_ + kDoctypeBegin.size(); i < text_.size(); ++i) {
        const char c = text_[i];
        const char next = i + 1 < text_.size() ? text_[i + 1] : ' ';
        if (c == '"' || c == '\'') {
            const std::size_t end = (c == '"' ? doubleQuote_ : singleQuote_).From(i + 1);
            const bool isQuoted = end != kNone && (inSubset || text_.substr(i, end - i).find('<') == kNone);
            if (isQuoted) i = end;
        } else if (c == '<' && StartsWith(i, kCommentBegin)) {
            const std::size_t end = commentEnd_.From(i);
            if (end != kNone) i = end + 2;
        } else if (c == '<' && next == '?') {
            const std::size_t end = instructionEnd_.From(i);
            if (end != kNone) i = end + 1;
        } else if (c == '[') {
            inSubset = true;
        } else if (c == ']') {
            inSubset = false;
        } else if (c == '<' && (next == '/' || IsNameStart(next))) {
            token.closed = false;
            token.end = i;
            return;
        } else if (c == '>' && !inSubset) {
            token.end = i + 1;
            return;
        }
    }
    CutOff(token);
}

bool XmlTokens::ReadInstruction(XmlToken& token) {
    if (at_ + 2 >= text_.size() || !IsNameStart(text_[at_ + 2])) return false;
    token.kind = XmlTokenKind::Instruction;
    const std::size_t next = std::min(text_.find('<', at_ + 1), text_.size());
    const std::string_view region = text_.substr(0, next);
    std::size_t end = region.find("?>", at_);
    if (end != kNone) {
        token.end = end + 2;
        return true;
    }
    token.closed = false;
    end = region.find('>', at_);
    if (end == kNone && next == text_.size())
        CutOff(token);
    else
        token.end = end == kNone ? next : end + 1;
    return true;
}

bool XmlTokens::ReadClose(XmlToken& token) {
    token.kind = XmlTokenKind::Close;
    std::size_t i = at_ + 2;
    while (i < text_.size() && (text_[i] == ' ' || text_[i] == '\t')) ++i;
    token.name = FrontName(text_.substr(i));
    i += token.name.size();
    if (token.name.empty() && i < text_.size() && text_[i] != '>') return false;
    const std::size_t end = std::min(text_.find_first_of("<>", i), text_.size());
    if (end == text_.size()) {
        CutOff(token);
    } else if (text_[end] == '>') {
        token.end = end + 1;
    } else {
        token.closed = false;
        token.end = i;
    }
    return true;
}

// Returns the end of a quoted value, or that of the quote if the value never ends.
std::size_t XmlTokens::SkipQuoted(std::size_t quote) {
    const std::size_t end = (text_[quote] == '"' ? doubleQuote_ : singleQuote_).From(quote + 1);
    if (end == kNone) return quote + 1;
    const std::string_view value = text_.substr(quote + 1, end - quote - 1);
    // A tag within the quotes means that the closing one is missing.
    bool holdsTag = false;
    for (std::size_t i = value.find('<'); i < value.size() && !holdsTag; i = value.find('<', i + 1))
        holdsTag = i + 1 < value.size() && (value[i + 1] == '/' || IsNameStart(value[i + 1]));
    holdsTag = holdsTag && value.find('>') != kNone;
    return holdsTag ? quote + 1 : end + 1;
}

// Returns the offset of the ">" of a tag; of "<" if that comes first, or the size of the text.
std::size_t XmlTokens::EndOfTag(std::size_t at) {
    bool behindEquals = false;
    while (at < text_.size() && text_[at] != '>' && text_[at] != '<') {
        const char c = text_[at];
        at = behindEquals && (c == '"' || c == '\'') ? SkipQuoted(at) : at + 1;
        if (!IsXmlBlank(c)) behindEquals = c == '=';
    }
    return at;
}

bool XmlTokens::ReadOpen(XmlToken& token) {
    token.kind = XmlTokenKind::Open;
    token.name = FrontName(text_.substr(at_ + 1));
    if (token.name.empty()) return false;
    const std::size_t behind = at_ + 1 + token.name.size();
    const char next = behind < text_.size() ? text_[behind] : '>';
    const bool slash = next == '/' && (behind + 1 >= text_.size() || text_[behind + 1] == '>');
    if (!slash && next != '>' && next != '<' && !IsXmlBlank(next)) return false;
    const std::size_t end = EndOfTag(behind);
    if (end == text_.size()) {
        CutOff(token);
        return true;
    }
    if (text_[end] == '<') {
        token.closed = false;
        token.end = behind;
        return FindTag(token.name) != nullptr;
    }
    token.end = end + 1;
    token.selfClosing = text_[end - 1] == '/';
    token.content = text_.substr(behind, end - behind - (token.selfClosing ? 1 : 0));
    return true;
}

}  // namespace tw
