#include "reports/NoPrinterModel.h"

namespace tw {

NoPrinterModel::NoPrinterModel() : FormModel(kFormName) {
    AddButtons({
        {"cmdPreview", [this] { Choose(Choice::Preview); }},
        {"cmdPDF", [this] { Choose(Choice::Pdf); }},
        {"cmdCancel", [this] { Close(); }},
    });
}

void NoPrinterModel::Choose(Choice choice) {
    chosen_ = choice;
    Close();
}

}  // namespace tw
