#include "doctor/PlainText.h"

#include <algorithm>
#include <cstdint>
#include <optional>

#include "exchange/ExchangeText.h"
#include "exchange/HtmlWords.h"
#include "exchange/XmlTokens.h"
#include "values/Text.h"
#include "values/Utf8.h"

namespace tw {
namespace {

constexpr std::size_t kNone = std::string_view::npos;
// Of the names of tags and references; a longer one is none.
constexpr std::size_t kLongestWord = 16;

// A tag of HTML in a text.
struct Tag {
    std::size_t end = 0;  // the offset behind it; 0 if there is none
    bool breaksLine = false;
};

// Goes through a text that may have tags of HTML.
class HtmlText {
  public:
    explicit HtmlText(std::string_view text) : text_(text), tagEnds_(text, ">") {}

    bool HasTags() {
        for (std::size_t at = text_.find('<'); at != kNone; at = text_.find('<', at + 1))
            if (TagAt(at).end > 0) return true;
        return false;
    }

    std::string WithoutTags() {
        std::string plain;
        for (std::size_t at = 0; at < text_.size();) {
            const std::size_t next = std::min(text_.find('<', at), text_.size());
            plain.append(text_.substr(at, next - at));
            if (next == text_.size()) break;
            const Tag tag = TagAt(next);
            at = tag.end > 0 ? tag.end : next + 1;
            if (tag.end == 0) plain += '<';
            if (tag.breaksLine && !plain.empty() && !plain.ends_with('\n')) plain += '\n';
        }
        return plain;
    }

  private:
    // REQUIRES: at is not below that of the call before.
    Tag TagAt(std::size_t at) {
        std::string_view name = text_.substr(at + 1, kLongestWord);
        const bool closes = name.starts_with('/');
        if (closes) name.remove_prefix(1);
        // A text of nothing but "<" would look up each of them.
        if (name.starts_with('<')) return {};
        name = name.substr(0, name.find_first_of(" \t\r\n/>"));
        const std::optional<HtmlTag> tag = FindHtmlTag(name);
        if (!tag) return {};
        const std::size_t end = tagEnds_.From(at);
        if (end == kNone) return {};
        return {end + 1, *tag == HtmlTag::ParagraphBreak || (*tag == HtmlTag::LineBreak && !closes)};
    }

    std::string_view text_;
    Seeker tagEnds_;
};

// Appends what the name between "&" and ";" stands for. False if it stands for nothing.
bool AppendReference(std::string& out, std::string_view name) {
    struct OfXml {
        std::string_view name;
        char character;
    };
    constexpr OfXml kOfXml[] = {{"amp", '&'}, {"apos", '\''}, {"gt", '>'}, {"lt", '<'}, {"quot", '"'}};
    constexpr std::int32_t kNoBreakSpace = 0xA0;
    const auto* const known = std::ranges::find(kOfXml, name, &OfXml::name);
    std::optional<std::int32_t> character = CharacterOfEntity(name);
    if (known != std::end(kOfXml)) character = known->character;
    if (const auto number = NumberOfReference(name); number && IsXmlCharacter(*number))
        character = static_cast<std::int32_t>(*number);
    if (!character) return false;
    AppendCodePoint(out, *character == kNoBreakSpace ? ' ' : *character);
    return true;
}

std::string WithoutReferences(std::string_view text) {
    std::string plain;
    for (std::size_t at = 0; at < text.size();) {
        const std::size_t begin = std::min(text.find('&', at), text.size());
        plain.append(text.substr(at, begin - at));
        if (begin == text.size()) break;
        const std::string_view name = text.substr(begin + 1, kLongestWord);
        const std::size_t length = name.find(';');
        const bool isKnown = length != kNone && AppendReference(plain, name.substr(0, length));
        if (!isKnown) plain += '&';
        at = begin + 1 + (isKnown ? length + 1 : 0);
    }
    return plain;
}

}  // namespace

std::string PlainText(std::string_view text) {
    std::string plain = ReplaceAll(ReplaceAll(text, "\r\n", "\n"), "\r", "\n");
    if (HtmlText(plain).HasTags()) plain = WithoutReferences(HtmlText(plain).WithoutTags());
    const std::size_t first = plain.find_first_not_of(" \t\n");
    if (first == std::string::npos) return {};
    plain = plain.substr(first, plain.find_last_not_of(" \t\n") + 1 - first);
    return ReplaceAll(plain, "\n", "\r\n");
}

}  // namespace tw
