#include "exchange/XmlLookahead.h"

#include <algorithm>
#include <vector>

#include "exchange/AsciiCase.h"
#include "exchange/HtmlWords.h"
#include "exchange/MendLog.h"

namespace tw {
namespace {

// Beyond so many, the searches cost more than they help; a file that needs them is no file with recipes.
constexpr std::size_t kMostLooks = 8'000'000;

// Takes the element that a tag closes off the open ones, with unclosed tags of HTML in it. False if the tag
// closes none.
bool TakeOff(std::vector<std::string_view>& open, std::string_view name) {
    if (open.empty() || !EqualAscii(open.back(), name)) {
        if (IsHtmlTag(name)) return false;
        while (!open.empty() && IsHtmlTag(open.back())) open.pop_back();
        if (open.empty() || !EqualAscii(open.back(), name)) return false;
    }
    open.pop_back();
    return true;
}

}  // namespace

XmlSurvey Survey(std::string_view text, std::size_t mostDepth, std::size_t mostTags) {
    XmlSurvey survey;
    XmlTokens tokens(text);
    std::vector<std::string_view> open;
    std::size_t faults = 0;
    for (XmlToken token = tokens.Next(); token.kind != XmlTokenKind::End; token = tokens.Next()) {
        const bool opens = token.kind == XmlTokenKind::Open;
        const bool isFault = token.kind == XmlTokenKind::LessThan || !token.closed;
        if (isFault && ++faults > kMostFaults) return survey;
        if (!opens && token.kind != XmlTokenKind::Close) continue;
        if (!token.closed) return survey;
        if (opens && ++survey.tags > mostTags) return survey;
        if (opens) {
            if (token.selfClosing) continue;
            open.push_back(token.name);
            survey.depth = std::max(survey.depth, open.size());
            if (survey.depth > mostDepth) return survey;
        } else if (!TakeOff(open, token.name)) {
            const bool becomesText = IsHtmlTag(token.name) && ++faults <= kMostFaults;
            if (!becomesText) return survey;
        }
    }
    while (!open.empty() && IsHtmlTag(open.back())) open.pop_back();
    survey.balanced = open.empty();
    return survey;
}

XmlLookahead::Place XmlLookahead::Find(std::string_view name, std::size_t from) {
    for (std::size_t at = text_.find('<', from); at != std::string_view::npos; at = text_.find('<', at + 1)) {
        if (++looked_ > kMostLooks) return {text_.size(), XmlNext::Closes};
        std::string_view rest = text_.substr(at + 1, name.size() + 2);
        const bool closes = rest.starts_with('/');
        if (closes) rest.remove_prefix(1);
        const bool isName = EqualAscii(rest.substr(0, name.size()), name) &&
                            (rest.size() == name.size() || !IsNameCharacter(rest[name.size()]));
        if (isName) return {at, closes ? XmlNext::Closes : XmlNext::Opens};
    }
    return {text_.size(), XmlNext::None};
}

XmlNext XmlLookahead::NextOf(std::string_view name, std::size_t from) {
    const auto [found, isNew] = next_.try_emplace(UpperAscii(name));
    Place& place = found->second;
    if (isNew || place.at < from) place = Find(name, from);
    return place.is;
}

const XmlToken& XmlLookahead::NextTag(const XmlTokens& tokens, std::size_t from) {
    if (hasNextTag_ && nextTag_.begin >= from) return nextTag_;
    XmlTokens ahead = tokens;
    std::size_t passed = 0;
    for (nextTag_ = ahead.Next(); nextTag_.kind != XmlTokenKind::End; nextTag_ = ahead.Next()) {
        if (nextTag_.kind != XmlTokenKind::Open && nextTag_.kind != XmlTokenKind::Close) continue;
        // A file with so many of them is refused in any case.
        if (!IsHtmlTag(nextTag_.name) || ++passed > kMostFaults) break;
    }
    hasNextTag_ = true;
    return nextTag_;
}

}  // namespace tw
