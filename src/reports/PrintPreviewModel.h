// The print preview (frmPrintPreview): shows the pages of a recipe as they would be printed, one at a time.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/FormModel.h"
#include "reports/Paper.h"
#include "reports/PrintSteps.h"

namespace tw {

// cmbPaper and cmbZoom accept one of their entries, txtPage the number of a page; lblPages shows the number
// of pages. Buttons: cmdPrint, cmdPDF, cmdClose. cmdFirst, cmdPrevious, cmdNext and cmdLast turn the pages
// and are disabled at the first and the last page, cmdZoomIn and cmdZoomOut at the last step of the zoom.
class PrintPreviewModel final : public FormModel {
  public:
    static constexpr const char* kFormName = "frmPrintPreview";

    // What the program does for the preview.
    struct Actions {
        // Returns the pages for a printable area.
        std::function<PrintSteps(PrintSize)> layOut;
        std::function<void()> print;
        std::function<void(const PrintSteps&, Paper)> savePdf;
    };

    // Shows the whole first page.
    PrintPreviewModel(Actions actions, Paper paper);

    const PrintSteps& Steps() const { return steps_; }
    Paper CurrentPaper() const { return paper_; }
    // Counted from 1.
    int Page() const { return page_; }
    int Pages() const { return steps_.Pages(); }
    // Returns the zoom in percent of the paper's size; 0 fits the whole page into the window.
    int Zoom() const;
    static std::vector<std::string> ZoomNames();

  private:
    bool ChoosePaper(std::string_view name);
    bool ChooseZoom(std::string_view name);
    void LayOut();

    Actions actions_;
    Paper paper_;
    PrintSteps steps_;
    int page_ = 1;
    std::size_t zoom_ = 0;  // index of the current step of the zoom
};

}  // namespace tw
