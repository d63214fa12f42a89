#include "reports/PrintLayout.h"

#include <algorithm>
#include <utility>

#include "values/NumberText.h"
#include "values/Text.h"

namespace tw {
namespace {

constexpr double kMargin = 0.5;
constexpr double kLineSpacing = 1.05;
constexpr double kSubscriptDrop = 0.3;
constexpr double kSectionGap = 0.25;
constexpr double kRulePlace = 0.8;
constexpr double kColumnGap = 0.25;
constexpr double kWrapMargin = 0.5;
constexpr int kDefaultPoints = 10;
constexpr int kSmallPoints = 8;
// Small enough that the lowered text still ends above the foot of its line.
constexpr int kSubscriptPoints = 6;
constexpr int kSectionPoints = 12;
constexpr std::string_view kFamily = "Arial";
constexpr std::string_view kTitleFamily = "Times New Roman";
// Stands for an empty line when its height is measured.
constexpr std::string_view kProbe = "ABCMfgpy|`'\"_";
// The first step of the search for the piece of a line that fits: about a line of small letters.
constexpr std::size_t kFirstGuess = 128;

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
    cursorX_ = kMargin;
    cursorY_ = kMargin;
}

void PrintLayout::PageFooter() {
    SetFont({std::string(kFamily), kSmallPoints, false, true});
    const std::string text = pageTitle_ + " - Page " + NumberText(pageNumber_);
    const PrintSize size = printer_.GetTextSize(text);
    printer_.TextOut(text, printableRight_ - size.width, pageHeight_ - size.height);
    DefaultFont();
}

void PrintLayout::NextPage() {
    PageFooter();
    printer_.NewPage();
    HomeCursor();
    pageNumber_ += 1;
}

void PrintLayout::PrintText(std::string_view text) {
    const PrintSize size = printer_.GetTextSize(text);
    if (cursorY_ + size.height > printableBottom_) {
        const PrintFont font = printer_.Font();
        NextPage();
        SetFont(font);
    }
    printer_.TextOut(text, cursorX_, cursorY_);
    cursorX_ += size.width;
}

void PrintLayout::NewLine(std::string_view text) {
    const PrintSize size = printer_.GetTextSize(text.empty() ? kProbe : text);
    cursorX_ = kMargin;
    cursorY_ += size.height * kLineSpacing;
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
    cursorY_ += drop;
    printer_.FontSize(kSubscriptPoints);
    PrintText(text);
    DefaultFont();
    cursorY_ -= drop;
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
    SetFont({std::string(kTitleFamily), points, true, false});
    const double width = printer_.GetTextSize(text).width;
    cursorX_ = (printableRight_ - kMargin - width) / 2 + kMargin;
    PrintLine(text);
    DefaultFont();
}

void PrintLayout::PrintRule() {
    const double y = cursorY_ + printer_.GetTextSize("A").height * kRulePlace;
    printer_.MoveTo(kMargin, y);
    printer_.LineTo(printableRight_, y);
    NewLine("A");
}

void PrintLayout::SecondColumn() {
    cursorX_ = (printableRight_ - kMargin) / 2 + kMargin + kColumnGap;
}

void PrintLayout::PrintSwatch(Rgb color) {
    const PrintSize size = printer_.GetTextSize("ABC");
    printer_.Box(cursorX_, cursorY_, cursorX_ + size.width, cursorY_ + size.height, color);
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
    for (std::size_t begin = 0; begin <= lines.size();) {
        const std::size_t end = std::min(lines.find('\n', begin), lines.size());
        PrintWrappedLine(std::string_view(lines).substr(begin, end - begin));
        begin = end + 1;
    }
}

void PrintLayout::PrintWrappedLine(std::string_view line) {
    if (IsBlank(line)) return NewLine();
    const double limit = printableRight_ - kWrapMargin;
    while (!IsBlank(line)) {
        const std::size_t fitting = FittingPiece(line, limit);
        if (fitting == line.size()) return PrintLine(line);
        // The last blank before which the text fits; the blank itself is dropped. Every blank counts, on
        // purpose, also one of an indent before a word that is too long for the line.
        const std::size_t blank = line.rfind(' ', fitting);
        const bool atBlank = blank != std::string_view::npos;
        PrintLine(line.substr(0, atBlank ? blank : fitting));
        line.remove_prefix(atBlank ? blank + 1 : fitting);
    }
}

bool PrintLayout::Fits(std::string_view text, double limit) {
    return printer_.GetTextSize(text).width <= limit;
}

// The bytes of the longest piece at the front of line that fits, whole characters, at least one. A piece is
// found in a few measurements whatever the length of the line, so that no note takes long to print.
std::size_t PrintLayout::FittingPiece(std::string_view line, double limit) {
    std::size_t good = 1;  // characters that fit, or the one that goes in any case
    std::size_t bad = kFirstGuess;
    while (CodePointOffset(line, bad) < line.size() &&
           Fits(line.substr(0, CodePointOffset(line, bad)), limit)) {
        good = bad;
        bad *= 2;
    }
    if (CodePointOffset(line, bad) == line.size()) {
        if (Fits(line, limit)) return line.size();
        bad = CodePointCount(line);
    }
    while (bad - good > 1) {
        const std::size_t middle = good + (bad - good) / 2;
        (Fits(line.substr(0, CodePointOffset(line, middle)), limit) ? good : bad) = middle;
    }
    return CodePointOffset(line, good);
}

void PrintLayout::PrintTwoColumns(const std::vector<std::string>& texts) {
    const std::size_t left = (texts.size() + 1) / 2;
    for (std::size_t row = 0; row < left; ++row) {
        PrintText(texts[row]);
        if (left + row < texts.size()) {
            SecondColumn();
            PrintText(texts[left + row]);
        }
        NewLine();
    }
}

}  // namespace tw
