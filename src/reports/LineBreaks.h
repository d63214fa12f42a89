// Breaks what stands on one line of paper into as many lines as its room asks for.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "record/Controls.h"
#include "reports/PrinterDevice.h"

namespace tw {

// A stretch of a line: a text in one face, or a filled box as large as that text.
struct PrintRun {
    PrintFont font;
    std::string text;
    double drop = 0;                 // inches that it stands lower than its line
    std::optional<Rgb> swatch = {};  // the box's colour; nothing for a text
};
using PrintRuns = std::vector<PrintRun>;

// The width of a text in inches.
using MeasureWidth = std::function<double(const PrintFont&, std::string_view)>;

// Returns the runs, which stand behind each other, as lines: the first is at most first inches wide, each
// further one at most further. A line breaks at the last blank before which it fits, and that blank is
// dropped; where there is none, between two letters. Every blank counts, on purpose, even one of an indent
// before a word that is too long. A line takes at least one letter or box, however narrow its room. What
// fits is one line as it is; no runs are one line without any.
std::vector<PrintRuns> BreakLines(const PrintRuns& runs, double first, double further,
                                  const MeasureWidth& width);

}  // namespace tw
