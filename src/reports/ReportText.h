// Converts texts and colours to the markup of report files. All markup is ASCII, so that a file is shown
// correctly whatever encoding its reader assumes.
#pragma once

#include <string>
#include <string_view>

#include "record/Controls.h"

namespace tw {

// Escapes "&", the double quote, "<" and ">" by name, and everything beyond ASCII as "&#N;".
std::string HtmlText(std::string_view text);
// Escapes "\", "{" and "}". Writes everything beyond ASCII as "\uN", followed by its byte of code page 1252
// for readers that do not know "\uN", or by "?" if the code page lacks it.
std::string RichText(std::string_view text);

// Returns the parts of a colour 0xBBGGRR.
Rgb ReportColor(int color);
// Returns "#RRGGBB" in double quotes.
std::string HtmlColor(int color);
// Returns "\redR\greenG\blueB;".
std::string RichTextColor(int color);

}  // namespace tw
