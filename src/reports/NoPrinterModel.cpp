#include "reports/NoPrinterModel.h"

namespace tw {

bool NoPrinterModel::Press(std::string_view button) {
    if (button != "cmdPreview" && button != "cmdPDF" && button != "cmdCancel") return false;
    if (button == "cmdPreview") chosen_ = Choice::Preview;
    if (button == "cmdPDF") chosen_ = Choice::Pdf;
    open_ = false;
    return true;
}

}  // namespace tw
