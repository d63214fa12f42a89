#include "exchange/XmlText.h"

#include <algorithm>
#include <optional>
#include <vector>

#include "exchange/ExchangeLimits.h"
#include "exchange/ExchangeText.h"
#include "exchange/HtmlWords.h"
#include "exchange/XmlTokens.h"
#include "values/Utf8.h"

namespace tw {
namespace {

constexpr std::size_t kNone = std::string_view::npos;
constexpr std::size_t kMostAttributes = 64;

// Returns the number of bytes of the forbidden character at that place; 0 if it is allowed.
std::size_t ForbiddenAt(std::string_view text, std::size_t at) {
    const auto byte = static_cast<unsigned char>(text[at]);
    if (byte < 0x20) return byte == 0x9 || byte == 0xA || byte == 0xD ? 0 : 1;
    // U+FFFE and U+FFFF.
    const bool isLast = byte == 0xEF && at + 2 < text.size() && text[at + 1] == '\xBF' &&
                        static_cast<unsigned char>(text[at + 2]) >= 0xBE;
    return isLast ? 3 : 0;
}

std::size_t FindForbidden(std::string_view text, std::size_t at) {
    while (at < text.size() && ForbiddenAt(text, at) == 0) ++at;
    return at;
}

void ReportRemoved(MendLog& log, std::size_t line, std::size_t count) {
    log.AddAtLine(FindingCode::ControlCharacter, Severity::Repaired, line, [&] {
        return count == 1 ? std::string("A control character, which XML forbids, was removed.")
                          : std::to_string(count) + " control characters, which XML forbids, were removed.";
    });
}

struct Attribute {
    std::string_view name;
    std::string_view value;
    char quote = 0;  // 0 if the value has none
};

// Takes the first attribute off the rest; nothing if only blanks and what is none are left.
std::optional<Attribute> TakeAttribute(std::string_view& rest) {
    const auto skipBlanks = [&] {
        while (!rest.empty() && IsXmlBlank(rest.front())) rest.remove_prefix(1);
    };
    while (!rest.empty() && !IsNameStart(rest.front())) rest.remove_prefix(1);
    if (rest.empty()) return std::nullopt;
    Attribute attribute;
    attribute.name = FrontName(rest);
    rest.remove_prefix(attribute.name.size());
    skipBlanks();
    if (rest.empty() || rest.front() != '=') return attribute;
    rest.remove_prefix(1);
    skipBlanks();
    if (rest.empty()) return attribute;
    const char quote = rest.front();
    const std::size_t end = quote == '"' || quote == '\'' ? rest.find(quote, 1) : kNone;
    if (end != kNone) {
        attribute.quote = quote;
        attribute.value = rest.substr(1, end - 1);
        rest.remove_prefix(end + 1);
    } else {
        const auto* const blank = std::ranges::find_if(rest, [](char c) { return IsXmlBlank(c); });
        attribute.value = rest.substr(0, static_cast<std::size_t>(blank - rest.begin()));
        rest.remove_prefix(attribute.value.size());
        if (quote == '"' || quote == '\'') attribute.value.remove_prefix(1);
    }
    return attribute;
}

// True if nothing in the attributes needs a repair.
bool AreSound(std::string_view attributes) {
    std::vector<std::string_view> names;
    std::size_t at = 0;
    const auto skipBlanks = [&] {
        const std::size_t begin = at;
        while (at < attributes.size() && IsXmlBlank(attributes[at])) ++at;
        return at > begin;
    };
    while (true) {
        const bool apart = skipBlanks();
        if (at == attributes.size()) return true;
        const std::string_view name = FrontName(attributes.substr(at));
        if (!apart || name.empty() || names.size() == kMostAttributes) return false;
        if (std::ranges::find(names, name) != names.end()) return false;
        names.push_back(name);
        at += name.size();
        skipBlanks();
        if (at == attributes.size() || attributes[at++] != '=') return false;
        skipBlanks();
        if (at == attributes.size() || (attributes[at] != '"' && attributes[at] != '\'')) return false;
        const std::size_t end = attributes.find(attributes[at], at + 1);
        if (end == kNone || attributes.substr(at, end - at).find_first_of("<&") != kNone) return false;
        at = end + 1;
    }
}

}  // namespace

void RemoveControlCharacters(std::string& text, Findings& findings) {
    std::size_t from = FindForbidden(text, 0);
    if (from == text.size()) return;
    const std::string_view all = text;
    MendLog log(all, findings);
    std::size_t to = from;
    std::size_t line = log.LineAt(from);
    std::size_t count = 0;
    while (from < text.size()) {
        const std::size_t bytes = ForbiddenAt(all, from);
        if (bytes > 0) {
            ++count;
            from += bytes;
            continue;
        }
        const bool endsLine = all[from] == '\n' || all[from] == '\r';
        if (endsLine && count > 0) {
            ReportRemoved(log, line, count);
            count = 0;
        }
        // What moves down never overtakes what is still to be read, so that the "\n" of "\r\n" is there.
        if (all[from] == '\n' || (all[from] == '\r' && (from + 1 == all.size() || all[from + 1] != '\n')))
            ++line;
        text[to++] = text[from++];
    }
    if (count > 0) ReportRemoved(log, line, count);
    text.resize(to);
}

void XmlText::Append(std::string_view text, std::size_t place) {
    // Of all ">", only that of "]]>" is wrong in a text; its brackets may have been written before.
    Seeker ends(text, "]>");
    const auto findEnd = [&](std::size_t from) {
        if (text.substr(from).starts_with('>')) return from;
        const std::size_t bracket = ends.From(from);
        return bracket == kNone ? kNone : bracket + 1;
    };
    std::size_t written = 0;
    std::size_t reference = text.find('&');
    std::size_t end = findEnd(0);
    while (reference != kNone || end != kNone) {
        const std::size_t at = std::min(reference, end);
        out_.append(text.substr(written, at - written));
        if (at == reference) {
            written = AppendReference(text, at, place);
            reference = text.find('&', written);
        } else {
            const bool endsSection = out_.ends_with("]]");
            out_ += endsSection ? "&gt;" : ">";
            if (endsSection)
                log_.Repaired(FindingCode::BareLessThan, place + at,
                              [] { return "\"]]>\" stands in a text; it was kept as text."; });
            written = std::min(text.find_first_not_of('>', at), text.size());
            out_.append(text.substr(at + 1, written - at - 1));
        }
        end = findEnd(written);
    }
    out_.append(text.substr(written));
}

// Returns the offset behind what was written.
std::size_t XmlText::AppendReference(std::string_view text, std::size_t at, std::size_t place) {
    constexpr std::size_t kLongestName = 16;
    const std::string_view front = text.substr(at + 1, kLongestName);
    const std::size_t length = front.find(';');
    const std::string_view name = front.substr(0, length == kNone ? 0 : length);
    const bool ofXml = name == "amp" || name == "lt" || name == "gt" || name == "quot" || name == "apos";
    if (ofXml || AppendCharacterReference(name, place + at)) {
        if (ofXml) out_.append(text.substr(at, length + 2));
        return at + length + 2;
    }
    if (const std::optional<std::int32_t> character = CharacterOfEntity(name)) {
        AppendCodePoint(out_, *character);
        log_.Repaired(FindingCode::HtmlEntity, place + at, [&] {
            std::string sentence = "\"&" + std::string(name) + ";\", which XML does not know, became \"";
            AppendCodePoint(sentence, *character);
            return sentence + "\".";
        });
        return at + length + 2;
    }
    out_ += "&amp;";
    log_.Repaired(FindingCode::BareAmpersand, place + at,
                  [] { return "\"&\" is not written as XML wants it; it was kept as text."; });
    return at + 1;
}

// True if the name is a number, whether the character may stand in XML or not.
bool XmlText::AppendCharacterReference(std::string_view name, std::size_t place) {
    const std::optional<std::uint32_t> number = NumberOfReference(name);
    if (!number) return false;
    if (IsXmlCharacter(*number)) {
        // XML writes the x of a hexadecimal number in lower case only.
        const bool upper = name[1] == 'X';
        out_ += upper ? "&#x" : "&#";
        out_.append(name.substr(upper ? 2 : 1)) += ';';
    } else {
        log_.Repaired(FindingCode::ControlCharacter, place, [&] {
            return "\"&" + std::string(name) + ";\", a character that XML forbids, was removed.";
        });
    }
    return true;
}

void XmlText::AppendLiteral(std::string_view text) {
    for (std::size_t at = 0; at < text.size();) {
        const std::size_t end = std::min(text.find_first_of("<&>", at), text.size());
        out_.append(text.substr(at, end - at));
        if (end < text.size()) out_ += text[end] == '<' ? "&lt;" : text[end] == '&' ? "&amp;" : "&gt;";
        at = end + 1;
    }
}

void XmlText::AppendLineBreaks(std::string_view text) {
    out_.append(CountLineBreaks(text), '\n');
}

void XmlText::AppendAttributes(std::string_view attributes, std::string_view tag, std::size_t place) {
    if (attributes.empty()) return;
    if (AreSound(attributes)) {
        out_.append(attributes);
        return;
    }
    std::vector<std::string_view> names;
    const std::size_t lineBreaks = CountLineBreaks(attributes);
    const std::size_t begin = out_.size();
    bool isLoose = false;
    for (std::string_view rest = attributes; const std::optional<Attribute> each = TakeAttribute(rest);) {
        if (std::ranges::find(names, each->name) != names.end()) {
            log_.Repaired(FindingCode::Duplicate, place, [&] {
                return "The tag " + std::string(tag) + " has the attribute \"" + std::string(each->name) +
                       "\" twice; the first was kept.";
            });
            continue;
        }
        if (names.size() == kMostAttributes)
            RefuseFile("The tag " + std::string(tag) + " has more than " + std::to_string(kMostAttributes) +
                       " attributes. Recipes have none: export or download the file again.");
        names.push_back(each->name);
        isLoose = isLoose || each->quote == 0;
        const char quote = each->quote == 0 ? '"' : each->quote;
        ((out_ += ' ').append(each->name) += '=') += quote;
        AppendValue(each->value, quote, place);
        out_ += quote;
    }
    if (isLoose)
        log_.Repaired(FindingCode::UnclosedTag, place, [&] {
            return "The attributes of the tag " + std::string(tag) + " were put in quotes.";
        });
    // The line breaks between attributes are gone.
    const std::size_t kept = CountLineBreaks(std::string_view(out_).substr(begin));
    out_.append(lineBreaks - std::min(kept, lineBreaks), '\n');
}

void XmlText::AppendValue(std::string_view value, char quote, std::size_t place) {
    for (std::size_t at = 0; at < value.size();) {
        const char c = value[at];
        if (c == '&') {
            at = AppendReference(value, at, place);
            continue;
        }
        if (c == '<')
            log_.Repaired(FindingCode::BareLessThan, place,
                          [] { return "\"<\" in an attribute was kept as text."; });
        if (c == '<')
            out_ += "&lt;";
        else if (c == quote)
            out_ += c == '"' ? "&quot;" : "&apos;";
        else
            out_ += c;
        ++at;
    }
}

}  // namespace tw
