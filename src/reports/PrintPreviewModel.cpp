#include "reports/PrintPreviewModel.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "values/SettingText.h"
#include "values/Text.h"

namespace tw {
namespace {

constexpr int kWholePage = 0;
constexpr int kZooms[] = {kWholePage, 50, 75, 100, 125, 150, 200, 300};

std::string ZoomName(int zoom) {
    return zoom == kWholePage ? "Whole Page" : std::to_string(zoom) + "%";
}

}  // namespace

PrintPreviewModel::PrintPreviewModel(Actions actions, Paper paper)
    : actions_(std::move(actions)), paper_(paper) {
    LayOut();
}

void PrintPreviewModel::LayOut() {
    steps_ = actions_.layOut(PrintableArea(paper_));
    page_ = std::clamp(page_, 1, Pages());
}

int PrintPreviewModel::Zoom() const {
    return kZooms[zoom_];
}

std::vector<std::string> PrintPreviewModel::ZoomNames() {
    std::vector<std::string> names;
    for (const int zoom : kZooms) names.push_back(ZoomName(zoom));
    return names;
}

bool PrintPreviewModel::IsEnabled(std::string_view button) const {
    if (button == "cmdFirst" || button == "cmdPrevious") return page_ > 1;
    if (button == "cmdNext" || button == "cmdLast") return page_ < Pages();
    if (button == "cmdZoomIn") return zoom_ + 1 < std::size(kZooms);
    if (button == "cmdZoomOut") return zoom_ > 0;
    return true;
}

std::vector<DialogControl> PrintPreviewModel::Controls() const {
    return {{"cmbPaper", std::string(kPaperNames[static_cast<std::size_t>(paper_)])},
            {"cmbZoom", ZoomName(Zoom())},
            {"txtPage", std::to_string(page_)},
            {"lblPages", "of " + std::to_string(Pages())}};
}

bool PrintPreviewModel::SetControl(std::string_view name, std::string_view text) {
    if (name == "txtPage") return ReadWhole(text, 1, Pages(), page_);
    if (name == "cmbPaper") {
        const auto* const found =
            std::ranges::find_if(kPaperNames, [&](auto n) { return SameName(n, text); });
        if (found == kPaperNames.end()) return false;
        paper_ = static_cast<Paper>(found - kPaperNames.begin());
        LayOut();
        return true;
    }
    if (name != "cmbZoom") return false;
    const auto* const found =
        std::ranges::find_if(kZooms, [&](int zoom) { return SameName(ZoomName(zoom), text); });
    if (found == std::end(kZooms)) return false;
    zoom_ = static_cast<std::size_t>(found - kZooms);
    return true;
}

bool PrintPreviewModel::Press(std::string_view button) {
    const bool on = IsEnabled(button);
    if (button == "cmdClose")
        CloseBox();
    else if (button == "cmdPrint")
        actions_.print();
    else if (button == "cmdPDF")
        actions_.savePdf(steps_, paper_);
    else if (button == "cmdFirst")
        page_ = 1;
    else if (button == "cmdLast")
        page_ = Pages();
    else if (button == "cmdPrevious")
        page_ -= on ? 1 : 0;
    else if (button == "cmdNext")
        page_ += on ? 1 : 0;
    else if (button == "cmdZoomIn")
        zoom_ += on ? 1 : 0;
    else if (button == "cmdZoomOut")
        zoom_ -= on ? 1 : 0;
    else
        return false;
    return true;
}

}  // namespace tw
