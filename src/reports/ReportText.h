// Texts as the markup of a report file writes them, so that the file reads right whatever its reader takes
// its encoding for.
#pragma once

#include <string>
#include <string_view>

#include "record/Controls.h"

namespace tw {

// "&", the double quote, "<" and ">" by name, everything beyond ASCII as "&#N;".
std::string HtmlText(std::string_view text);
// "\", "{" and "}" escaped; what is beyond ASCII as "\uN" and the byte of code page 1252 for readers that do
// not know it, "?" where the page has none.
std::string RichText(std::string_view text);

// The parts of a colour in blue-green-red order.
Rgb ReportColor(int color);
// "#RRGGBB" between double quotes.
std::string HtmlColor(int color);
// "\redR\greenG\blueB;"
std::string RichTextColor(int color);

}  // namespace tw
