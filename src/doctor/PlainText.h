// Notes of other programs as plain text.
#pragma once

#include <string>
#include <string_view>

namespace tw {

// Returns text with line ends "\r\n" and without blank lines at both ends. If it contains HTML, its tags are
// left out, paragraphs, breaks, list items and table rows become lines, and entities become characters.
std::string PlainText(std::string_view text);

}  // namespace tw
