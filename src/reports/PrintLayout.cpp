#include "reports/PrintLayout.h"

#include <algorithm>
#include <utility>

#include "values/NumberText.h"
#include "values/Split.h"
#include "values/Text.h"

namespace tw {
namespace {

// Inches.
constexpr double kMargin = 0.5;
// Relative to the height of a text.
constexpr double kLineSpacing = 1.05;
constexpr double kSubscriptDrop = 0.3;
constexpr double kSectionGap = 0.25;
constexpr double kRulePlace = 0.8;
// Inches.
constexpr double kColumnGap = 0.25;
constexpr double kWrapMargin = 0.5;
// Inches: the indent of the further lines of a text that is too wide for one line.
constexpr double kFurtherIndent = 0.15;
constexpr int kDefaultPoints = 10;
constexpr int kSmallPoints = 8;
// Small enough that the lowered text still ends above the foot of its line.
constexpr int kSubscriptPoints = 6;
constexpr int kSectionPoints = 12;
constexpr std::string_view kFamily = "Arial";
constexpr std::string_view kTitleFamily = "Times New Roman";
// Measured for the height of an empty line.
constexpr std::string_view kProbe = "ABCMfgpy|`'\"_";

}  // namespace

void PrintLayout::BeginPrint(std::unique_ptr<PrinterDevice> device, const std::string& title) {
    pageNumber_ = 1;
    pageTitle_ = title;
    const PrintSize page = printer_.BeginDoc(std::move(device), title);
    pageHeight_ = page.height;
    printableRight_ = page.width - kMargin;
    printableBottom_ = page.height - kMargin;
    DefaultFont();
    HomeCursor();
}

void PrintLayout::EndPrint() {
    DrawLine();
    PageFooter();
    printer_.FinishDoc();
}

void PrintLayout::SetFont(const PrintFont& font) {
    printer_.FontFamily(font.family);
    printer_.FontBold(font.bold);
    printer_.FontItalic(font.italic);
    printer_.FontSize(font.points);
}

void PrintLayout::DefaultFont() {
    SetFont({std::string(kFamily), kDefaultPoints, false, false});
}

void PrintLayout::HomeCursor() {
    BeginLine(kMargin);
    cursorY_ = kMargin;
}

PrintSize PrintLayout::SizeOf(const PrintFont& font, std::string_view text) {
    SetFont(font);
    return printer_.GetTextSize(text);
}

std::vector<PrintRuns> PrintLayout::LinesOf(const PrintRuns& runs, double first, double further) {
    return BreakLines(runs, first, further, [this](const PrintFont& font, std::string_view text) {
        return SizeOf(font, text).width;
    });
}

double PrintLayout::Width(const PrintRuns& runs) {
    double width = 0;
    for (const PrintRun& run : runs) width += SizeOf(run.font, run.text).width;
    return width;
}

// The footer is right-aligned and ends at the bottom of the page. A long one uses several lines.
// If there is no room for all of them, the lines before the last one are left out, since the last one has the
// page number.
void PrintLayout::PageFooter() {
    const PrintFont font{std::string(kFamily), kSmallPoints, false, true};
    const double room = printableRight_ - kMargin;
    std::vector<PrintRuns> lines =
        LinesOf({{font, pageTitle_ + " - Page " + NumberText(pageNumber_)}}, room, room);
    const double height = SizeOf(font, kProbe).height;
    const auto fitting = std::max(1, static_cast<int>((pageHeight_ - printableBottom_) / height));
    const auto surplus = static_cast<std::ptrdiff_t>(lines.size()) - fitting;
    if (surplus > 0) lines.erase(lines.end() - 1 - surplus, lines.end() - 1);
    double y = pageHeight_ - height * static_cast<double>(lines.size());
    for (const PrintRuns& line : lines) {
        const double x = printableRight_ - Width(line);
        for (const PrintRun& run : line) printer_.TextOut(run.text, x, y);
        y += height;
    }
    DefaultFont();
}

void PrintLayout::NextPage() {
    PageFooter();
    printer_.NewPage();
    cursorY_ = kMargin;
    pageNumber_ += 1;
}

void PrintLayout::BeginLine(double left) {
    line_ = {{left, printableRight_}};
}

void PrintLayout::Add(std::string_view text, double drop, std::optional<Rgb> swatch) {
    line_.back().runs.push_back({printer_.Font(), std::string(text), drop, swatch});
}

void PrintLayout::PrintText(std::string_view text) {
    Add(text);
}

// Draws all columns line by line, so that a page breaks between two lines of every column.
void PrintLayout::DrawLine() {
    const std::vector<Cell> cells = std::exchange(line_, {});
    BeginLine(kMargin);
    const PrintFont font = printer_.Font();
    std::vector<std::vector<PrintRuns>> columns;
    std::size_t count = 0;
    for (const Cell& cell : cells) {
        const double room = cell.right - cell.left;
        columns.push_back(LinesOf(cell.runs, room, room - kFurtherIndent));
        count = std::max(count, columns.back().size());
    }
    for (std::size_t line = 0; line < count; ++line) {
        std::vector<const PrintRuns*> pieces;
        pieces.reserve(columns.size());
        for (const auto& column : columns) pieces.push_back(line < column.size() ? &column[line] : nullptr);
        const double height = LineHeight(pieces);
        if (height > 0 && cursorY_ + height > printableBottom_) NextPage();
        for (std::size_t i = 0; i < cells.size(); ++i)
            if (pieces[i]) DrawPiece(*pieces[i], cells[i].left + (line == 0 ? 0 : kFurtherIndent));
        if (line + 1 < count) cursorY_ += height * kLineSpacing;
    }
    SetFont(font);
}

void PrintLayout::DrawPiece(const PrintRuns& runs, double left) {
    for (const PrintRun& run : runs) {
        const PrintSize size = SizeOf(run.font, run.text);
        const double y = cursorY_ + run.drop;
        if (run.swatch) {
            printer_.Box(left, y, left + size.width, y + size.height, *run.swatch);
            continue;
        }
        printer_.TextOut(run.text, left, y);
        left += size.width;
    }
}

// Returns 0 for an empty line, which never starts a new page.
double PrintLayout::LineHeight(const std::vector<const PrintRuns*>& pieces) {
    double height = 0;
    for (const PrintRuns* runs : pieces) {
        if (!runs) continue;
        for (const PrintRun& run : *runs)
            height = std::max(height, run.drop + SizeOf(run.font, run.text).height);
    }
    return height;
}

void PrintLayout::NewLine(std::string_view text) {
    DrawLine();
    cursorY_ += printer_.GetTextSize(text.empty() ? kProbe : text).height * kLineSpacing;
}

void PrintLayout::PrintLine(std::string_view text) {
    PrintText(text);
    NewLine(text);
}

void PrintLayout::PrintLabel(std::string_view text) {
    printer_.FontBold(true);
    PrintText(text);
    DefaultFont();
}

void PrintLayout::PrintSubscript(std::string_view text) {
    printer_.FontBold(true);
    const double drop = printer_.GetTextSize("CO").height * kSubscriptDrop;
    printer_.FontSize(kSubscriptPoints);
    Add(text, drop);
    DefaultFont();
}

void PrintLayout::PrintSection(std::string_view text) {
    printer_.FontItalic(true);
    printer_.FontBold(true);
    printer_.FontSize(kSectionPoints);
    PrintLine(text);
    cursorY_ += printer_.GetTextSize(text).height * kSectionGap;
    DefaultFont();
}

void PrintLayout::PrintTitle(std::string_view text, int points) {
    const double room = printableRight_ - kMargin;
    PrintFont font{std::string(kTitleFamily), points, true, false};
    while (font.points > kSmallPoints && SizeOf(font, text).width > room) --font.points;
    for (const PrintRuns& line : LinesOf({{font, std::string(text)}}, room, room)) {
        BeginLine((room - Width(line)) / 2 + kMargin);
        SetFont(font);
        PrintLine(line.empty() ? std::string_view() : line.front().text);
    }
    DefaultFont();
}

void PrintLayout::PrintRule() {
    const double y = cursorY_ + printer_.GetTextSize("A").height * kRulePlace;
    printer_.MoveTo(kMargin, y);
    printer_.LineTo(printableRight_, y);
    NewLine("A");
}

double PrintLayout::ColumnMiddle() const {
    return (printableRight_ - kMargin) / 2 + kMargin;
}

void PrintLayout::EndLeftColumn() {
    line_.back().right = ColumnMiddle();
}

void PrintLayout::SecondColumn() {
    EndLeftColumn();
    line_.push_back({ColumnMiddle() + kColumnGap, printableRight_});
}

void PrintLayout::PrintSwatch(Rgb color) {
    Add("ABC", 0, color);
}

void PrintLayout::PrintSmallNote(std::string_view text) {
    printer_.FontSize(kSmallPoints);
    printer_.FontItalic(true);
    PrintLine(text);
    DefaultFont();
}

void PrintLayout::PrintWrapped(std::string_view text) {
    const std::string lines = ReplaceAll(text, "\r", "");
    if (IsBlank(lines)) return;
    for (const std::string_view line : Split(lines, '\n')) PrintWrappedLine(line);
}

void PrintLayout::PrintWrappedLine(std::string_view line) {
    if (IsBlank(line)) return NewLine();
    const double limit = printableRight_ - kWrapMargin;
    for (const PrintRuns& piece : LinesOf({{printer_.Font(), std::string(line)}}, limit, limit))
        PrintLine(piece.empty() ? std::string_view() : piece.front().text);
}

void PrintLayout::PrintTwoColumns(const std::vector<std::string>& texts) {
    const std::size_t left = (texts.size() + 1) / 2;
    for (std::size_t row = 0; row < left; ++row) {
        PrintText(texts[row]);
        EndLeftColumn();
        if (left + row < texts.size()) {
            SecondColumn();
            PrintText(texts[left + row]);
        }
        NewLine();
    }
}

}  // namespace tw
