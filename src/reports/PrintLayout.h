// Lays text out on the pages of a print job, line by line: a cursor, the fonts of the parts of a printed
// recipe, page breaks with a footer. Lengths are inches.
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "calc/Controls.h"
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

    // At the cursor, which moves on by the text's width. A text that would cross the page's lower margin goes
    // to the next page, in the same font.
    void PrintText(std::string_view text);
    // To the left margin, down by 1.05 times the height of text; of an ordinary line for an empty one.
    void NewLine(std::string_view text = {});
    void PrintLine(std::string_view text);
    // Bold.
    void PrintLabel(std::string_view text);
    // Bold, small and lower.
    void PrintSubscript(std::string_view text);
    // The heading of a section.
    void PrintSection(std::string_view text);
    // Centred on the page.
    void PrintTitle(std::string_view text, int points);
    // A line across the page.
    void PrintRule();
    // To the middle of the page.
    void SecondColumn();
    // A filled box as large as three letters; the cursor stays.
    void PrintSwatch(Rgb color);
    void PrintSmallNote(std::string_view text);
    // Paragraphs end at "\n", with or without "\r"; empty ones stay as blank lines. Lines break at blanks so
    // that they keep clear of the right margin, a word longer than the line within. Nothing for a blank text.
    void PrintWrapped(std::string_view text);
    // The first half of the texts in the left column, the odd one too, the others beside them.
    void PrintTwoColumns(const std::vector<std::string>& texts);

  private:
    void DefaultFont();
    void SetFont(const PrintFont& font);
    void HomeCursor();
    void PageFooter();
    void NextPage();
    void PrintWrappedLine(std::string_view line);
    bool Fits(std::string_view text, double limit);
    std::size_t FittingPiece(std::string_view line, double limit);

    TWPrinter& printer_;
    std::string pageTitle_;
    double cursorX_ = 0, cursorY_ = 0;
    double pageNumber_ = 1;
    double printableRight_ = 0, printableBottom_ = 0;
    double pageHeight_ = 0;
};

}  // namespace tw
