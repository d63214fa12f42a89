// The print preview (frmPrintPreview): the pages of a recipe as they would come out on a paper, one at a
// time.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/FormModel.h"
#include "reports/Paper.h"
#include "reports/PrintSteps.h"

namespace tw {

// cmbPaper and cmbZoom take one of their entries, txtPage the number of a page; lblPages; cmdPrint, cmdPDF,
// cmdClose. The page buttons cmdFirst, cmdPrevious, cmdNext and cmdLast are off at the ends, cmdZoomIn and
// cmdZoomOut at the last step.
class PrintPreviewModel final : public FormModel {
  public:
    static constexpr const char* kFormName = "frmPrintPreview";

    // What the preview asks of its program.
    struct Actions {
        // The pages for a printable area.
        std::function<PrintSteps(PrintSize)> layOut;
        std::function<void()> print;
        std::function<void(const PrintSteps&, Paper)> savePdf;
    };

    // Shows the first page, whole.
    PrintPreviewModel(Actions actions, Paper paper);

    const PrintSteps& Steps() const { return steps_; }
    Paper CurrentPaper() const { return paper_; }
    // From 1.
    int Page() const { return page_; }
    int Pages() const { return steps_.Pages(); }
    // The zoom in percent of the paper's size, 0 for the whole page in the window.
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
    std::size_t zoom_ = 0;  // a step of the zoom
};

}  // namespace tw
