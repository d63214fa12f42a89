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
    : FormModel(kFormName), actions_(std::move(actions)), paper_(paper) {
    AddControls({
        {"cmbPaper", [this] { return std::string(kPaperNames[static_cast<std::size_t>(paper_)]); },
         [this](std::string_view name) { return ChoosePaper(name); }},
        {"cmbZoom", [this] { return ZoomName(Zoom()); },
         [this](std::string_view name) { return ChooseZoom(name); }},
        {"txtPage", [this] { return std::to_string(page_); },
         [this](std::string_view text) { return TakeInto(page_, ReadWhole(text, 1, Pages())); }},
        {"lblPages", [this] { return "of " + std::to_string(Pages()); }},
    });
    const auto before = [this] { return page_ > 1; };
    const auto behind = [this] { return page_ < Pages(); };
    AddButtons({
        {"cmdPrint", [this] { actions_.print(); }},
        {"cmdPDF", [this] { actions_.savePdf(steps_, paper_); }},
        {"cmdFirst", [this] { page_ = 1; }, before},
        {"cmdPrevious", [this] { --page_; }, before},
        {"cmdNext", [this] { ++page_; }, behind},
        {"cmdLast", [this] { page_ = Pages(); }, behind},
        {"cmdZoomIn", [this] { ++zoom_; }, [this] { return zoom_ + 1 < std::size(kZooms); }},
        {"cmdZoomOut", [this] { --zoom_; }, [this] { return zoom_ > 0; }},
        {"cmdClose", [this] { Close(); }},
    });
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

bool PrintPreviewModel::ChoosePaper(std::string_view name) {
    const auto* const found =
        std::ranges::find_if(kPaperNames, [&](auto paper) { return SameName(paper, name); });
    if (found == kPaperNames.end()) return false;
    paper_ = static_cast<Paper>(found - kPaperNames.begin());
    LayOut();
    return true;
}

bool PrintPreviewModel::ChooseZoom(std::string_view name) {
    const auto* const found =
        std::ranges::find_if(kZooms, [&](int zoom) { return SameName(ZoomName(zoom), name); });
    if (found == std::end(kZooms)) return false;
    zoom_ = static_cast<std::size_t>(found - kZooms);
    return true;
}

}  // namespace tw
