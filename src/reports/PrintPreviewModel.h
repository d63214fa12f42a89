// The print preview (frmPrintPreview): the pages of a recipe as they would come out on a paper, one at a
// time.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/DialogModel.h"
#include "reports/Paper.h"
#include "reports/PrintSteps.h"

namespace tw {

class PrintPreviewModel final : public DialogModel {
  public:
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
    // Off where it would change nothing: the page buttons at the ends, the zoom buttons at the last step.
    bool IsEnabled(std::string_view button) const;

    std::string FormName() const override { return "frmPrintPreview"; }
    // cmbPaper, cmbZoom, txtPage, lblPages.
    std::vector<DialogControl> Controls() const override;
    // cmbPaper and cmbZoom take one of their entries, txtPage the number of a page.
    bool SetControl(std::string_view name, std::string_view text) override;
    // cmdPrint, cmdPDF, cmdFirst, cmdPrevious, cmdNext, cmdLast, cmdZoomIn, cmdZoomOut, cmdClose. A button
    // that is off does nothing.
    bool Press(std::string_view button) override;
    void CloseBox() override { open_ = false; }
    bool IsOpen() const override { return open_; }

  private:
    void LayOut();

    Actions actions_;
    Paper paper_;
    PrintSteps steps_;
    int page_ = 1;
    std::size_t zoom_ = 0;
    bool open_ = true;
};

}  // namespace tw
