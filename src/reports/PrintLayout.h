// Lays text out on the pages of a print job, line by line: a cursor, the fonts of the parts of a printed
// recipe, page breaks with a footer. Nothing runs over its column or off the sheet: what is too wide goes on
// below itself, a little further in. Lengths are inches.
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "record/Controls.h"
#include "reports/LineBreaks.h"
#include "reports/TWPrinter.h"

namespace tw {

class PrintLayout {
  public:
    // Draws on that printer, which must outlive the layout.
    explicit PrintLayout(TWPrinter& printer) : printer_(printer) {}

    // Starts the document and its first page; title stands in the footers.
    void BeginPrint(std::unique_ptr<PrinterDevice> device, const std::string& title);
    // The last footer, and the end of the document.
    void EndPrint();

    // Each text goes behind the one before it. A line is drawn when NewLine ends it: its columns are broken
    // into lines of their own where they are too wide, and those beside each other stay on one page.
    void PrintText(std::string_view text);
    // Draws the line; one that would cross the page's lower margin goes to the next page. Then to the left
    // margin, down by 1.05 times the height of text; of an ordinary line for an empty one.
    void NewLine(std::string_view text = {});
    void PrintLine(std::string_view text);
    // Bold.
    void PrintLabel(std::string_view text);
    // Bold, small and lower.
    void PrintSubscript(std::string_view text);
    // The heading of a section.
    void PrintSection(std::string_view text);
    // Centred on the page. Set smaller, down to 8 points, where it is too wide; broken where it still is.
    void PrintTitle(std::string_view text, int points);
    // A line across the page.
    void PrintRule();
    // To the middle of the page. What stands before it on the line keeps to the left column.
    void SecondColumn();
    // A filled box as large as three letters; what follows is drawn over it.
    void PrintSwatch(Rgb color);
    void PrintSmallNote(std::string_view text);
    // Paragraphs end at "\n", with or without "\r"; empty ones stay as blank lines. Lines break at blanks so
    // that they keep clear of the right margin, a word longer than the line within; none is indented. Nothing
    // for a blank text.
    void PrintWrapped(std::string_view text);
    // The first half of the texts in the left column, the odd one too, the others beside them.
    void PrintTwoColumns(const std::vector<std::string>& texts);

  private:
    // What stands in one column of the line.
    struct Cell {
        double left = 0, right = 0;
        PrintRuns runs = {};
    };

    void DefaultFont();
    void SetFont(const PrintFont& font);
    void HomeCursor();
    void PageFooter();
    void NextPage();
    // A text or a box in the font in use, at the end of the line that is being made.
    void Add(std::string_view text, double drop = 0, std::optional<Rgb> swatch = {});
    void BeginLine(double left);
    // Draws what stands on the line and begins one at the left margin.
    void DrawLine();
    void DrawPiece(const PrintRuns& runs, double left);
    void PrintWrappedLine(std::string_view line);
    void EndLeftColumn();
    std::vector<PrintRuns> LinesOf(const PrintRuns& runs, double first, double further);
    PrintSize SizeOf(const PrintFont& font, std::string_view text);
    double Width(const PrintRuns& runs);
    double LineHeight(const std::vector<const PrintRuns*>& pieces);
    double ColumnMiddle() const;

    TWPrinter& printer_;
    std::string pageTitle_;
    std::vector<Cell> line_;  // the line that is being made, never without a cell
    double cursorY_ = 0;
    double pageNumber_ = 1;
    double printableRight_ = 0, printableBottom_ = 0;
    double pageHeight_ = 0;
};

}  // namespace tw
