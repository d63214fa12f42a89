// Lays out text on the pages of a print job, line by line: keeps the cursor, sets the fonts of the parts of a
// printed recipe, and breaks pages, each with a footer. No text leaves its column or the page: a line that is
// too wide is continued on further lines, slightly indented. All lengths are inches.
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
    // printer must outlive the layout.
    explicit PrintLayout(TWPrinter& printer) : printer_(printer) {}

    // Starts the document and its first page. title is printed in the footers.
    void BeginPrint(std::unique_ptr<PrinterDevice> device, const std::string& title);
    // Draws the last line and the last footer, and ends the document.
    void EndPrint();

    // Adds text to the end of the current line. The line is drawn when NewLine ends it: each column that is
    // too wide is broken into lines, and lines of two columns that are side by side stay on the same page.
    void PrintText(std::string_view text);
    // Draws the current line, on the next page if it would cross the lower margin. Then moves the cursor to
    // the left margin and down by 1.05 times the height of text, or of an ordinary line if text is empty.
    // text is only measured, not drawn.
    void NewLine(std::string_view text = {});
    void PrintLine(std::string_view text);
    // Bold.
    void PrintLabel(std::string_view text);
    // Bold, small and lowered.
    void PrintSubscript(std::string_view text);
    // Prints the heading of a section.
    void PrintSection(std::string_view text);
    // Prints text centred on the page. A title that is too wide is set smaller, down to 8 points, and broken
    // into lines if it is still too wide.
    void PrintTitle(std::string_view text, int points);
    // Draws a horizontal line across the page.
    void PrintRule();
    // Starts the right column, at the middle of the page. The text already on the line is kept within the
    // left column.
    void SecondColumn();
    // Draws a filled box of the size of three letters; the text that follows is drawn over it.
    void PrintSwatch(Rgb color);
    void PrintSmallNote(std::string_view text);
    // Prints paragraphs, which are separated by "\n" or "\r\n"; an empty one becomes an empty line. Lines
    // break at blanks to stay within the right margin, or within a word that is longer than a line; the
    // further lines are not indented. Does nothing if text is blank.
    void PrintWrapped(std::string_view text);
    // Prints the first half of the texts in the left column and the others beside them. The left column has
    // one more if their number is odd.
    void PrintTwoColumns(const std::vector<std::string>& texts);

  private:
    // The part of the current line in one column.
    struct Cell {
        double left = 0, right = 0;
        PrintRuns runs = {};
    };

    void DefaultFont();
    void SetFont(const PrintFont& font);
    void HomeCursor();
    void PageFooter();
    void NextPage();
    // Adds a text or a box in the current font to the end of the current line.
    void Add(std::string_view text, double drop = 0, std::optional<Rgb> swatch = {});
    void BeginLine(double left);
    // Draws the current line and begins a new one at the left margin.
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
    std::vector<Cell> line_;  // the current line; always has at least one cell
    double cursorY_ = 0;
    double pageNumber_ = 1;
    double printableRight_ = 0, printableBottom_ = 0;
    double pageHeight_ = 0;
};

}  // namespace tw
