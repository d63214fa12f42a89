// The paper sizes for which a recipe is laid out when no printer defines the page.
#pragma once

#include <array>
#include <string_view>

#include "reports/PrinterDevice.h"

namespace tw {

enum class Paper : int { Letter, A4 };
inline constexpr std::array<std::string_view, 2> kPaperNames{"Letter", "A4"};

// The width of the edge that a typical printer cannot print on, in inches.
inline constexpr double kPaperEdge = 0.25;

// Returns the size of the sheet in inches; A4 is 210 by 297 mm.
constexpr PrintSize PaperSize(Paper paper) {
    constexpr double kMillimetersPerInch = 25.4;
    if (paper == Paper::Letter) return kLetterPaper;
    return {210 / kMillimetersPerInch, 297 / kMillimetersPerInch};
}

// Returns the size of the sheet without its edges, in inches.
constexpr PrintSize PrintableArea(Paper paper) {
    const PrintSize sheet = PaperSize(paper);
    return {sheet.width - 2 * kPaperEdge, sheet.height - 2 * kPaperEdge};
}

}  // namespace tw
