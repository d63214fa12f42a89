// What the rest of a file with damaged tags says about the place that is being mended. The time of all
// questions together grows with the length of the text only.
#pragma once

#include <string>
#include <string_view>
#include <unordered_map>

#include "exchange/XmlTokens.h"

namespace tw {

// What a text consists of, as far as it is in order.
struct XmlSurvey {
    // True if every opening tag has its closing one; tags of HTML do not count.
    bool balanced = false;
    std::size_t depth = 0;  // of the deepest tag
    std::size_t tags = 0;   // opening tags
};

// Stops at the first tag that does not fit, and once anything exceeds its limit.
XmlSurvey Survey(std::string_view text, std::size_t mostDepth, std::size_t mostTags);

enum class XmlNext : std::uint8_t { Opens, Closes, None };

class XmlLookahead {
  public:
    explicit XmlLookahead(std::string_view text) : text_(text) {}

    // Returns what the next tag of that name from the offset on is. REQUIRES: the offset is not below that of
    // a question about the same name before.
    XmlNext NextOf(std::string_view name, std::size_t from);
    // Returns the next tag behind the token that tokens have read last, except those that mark up text.
    const XmlToken& NextTag(const XmlTokens& tokens, std::size_t from);

  private:
    struct Place {
        std::size_t at = 0;
        XmlNext is = XmlNext::None;
    };
    Place Find(std::string_view name, std::size_t from);

    std::string_view text_;
    std::unordered_map<std::string, Place> next_;  // by name in upper case
    std::size_t looked_ = 0;                       // how many "<" the searches have seen
    XmlToken nextTag_;
    bool hasNextTag_ = false;
};

}  // namespace tw
