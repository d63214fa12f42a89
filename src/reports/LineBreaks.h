// Breaks a line that is too wide for the paper into several lines.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "record/Controls.h"
#include "reports/PrinterDevice.h"

namespace tw {

// A part of a line: a text in one font, or a filled box of the size of that text.
struct PrintRun {
    PrintFont font;
    std::string text;
    double drop = 0;                 // inches below the top of its line
    std::optional<Rgb> swatch = {};  // the colour of a box; none for a text
};
using PrintRuns = std::vector<PrintRun>;

// Returns the width of a text in inches.
using MeasureWidth = std::function<double(const PrintFont&, std::string_view)>;

// Breaks the runs, which follow each other on one line, into lines: the first is at most first inches wide,
// every other one at most further inches. A line breaks at the last blank up to which it fits, and that blank
// is dropped; without a blank, it breaks between two letters. Every blank counts, even one of an indent
// before a word that is too long. A line holds at least one letter or box, however narrow it is. Runs that
// fit are returned as one line, unchanged; no runs are one empty line.
std::vector<PrintRuns> BreakLines(const PrintRuns& runs, double first, double further,
                                  const MeasureWidth& width);

}  // namespace tw
