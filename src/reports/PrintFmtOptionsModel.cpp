#include "reports/PrintFmtOptionsModel.h"

#include "reports/ChooseFontModel.h"
#include "values/NumberText.h"
#include "values/SettingText.h"

namespace tw {
namespace {

struct FontRow {
    std::string_view box;
    std::string_view button;
    ReportFont ReportOptions::*font;
};
constexpr FontRow kFonts[] = {{"pbTitles", "cmdTitles", &ReportOptions::title},
                              {"pbLabels", "cmdLabels", &ReportOptions::label},
                              {"pbText", "cmdText", &ReportOptions::text}};

}  // namespace

PrintFmtOptionsModel::PrintFmtOptionsModel(ReportType mode, const SettingsStore& store, DialogPort& dialogs)
    : mode_(mode), store_(store), dialogs_(dialogs), options_(LoadReportOptions(store, mode)) {}

std::string_view PrintFmtOptionsModel::Title() const {
    constexpr std::string_view kTitles[] = {"Text File Options", "HTML File Options",
                                            "Rich-Text File Options"};
    return kTitles[static_cast<std::size_t>(mode_)];
}

std::string_view PrintFmtOptionsModel::OneCaption() const {
    return mode_ == ReportType::Html ? "&Rule Between Recipes" : "&Page Break Between Recipes";
}

bool* PrintFmtOptionsModel::Switch(std::string_view name) {
    if (name == "chkOne") return mode_ == ReportType::Html ? &options_.horizontalRulers : &options_.pageBreak;
    return name == "chkTwo" && mode_ == ReportType::Text ? &options_.append : nullptr;
}

std::vector<DialogControl> PrintFmtOptionsModel::Controls() const {
    const auto yesNo = [](bool yes) { return yes ? "yes" : "no"; };
    if (mode_ == ReportType::Text)
        return {{"txtCols", options_.numColumns},
                {"chkOne", yesNo(options_.pageBreak)},
                {"chkTwo", yesNo(options_.append)}};
    std::vector<DialogControl> controls;
    if (mode_ == ReportType::Html) controls.push_back({"pbBGColor", std::to_string(options_.bgColor)});
    for (const FontRow& row : kFonts) {
        const ReportFont& font = options_.*row.font;
        controls.push_back({std::string(row.box), font.face + ", " + NumberText(font.points)});
    }
    const bool one = mode_ == ReportType::Html ? options_.horizontalRulers : options_.pageBreak;
    controls.push_back({"chkOne", yesNo(one)});
    return controls;
}

bool PrintFmtOptionsModel::SetControl(std::string_view name, std::string_view text) {
    if (bool* const flag = Switch(name)) {
        if (text != "yes" && text != "no") return false;
        *flag = text == "yes";
        return true;
    }
    if (name == "pbBGColor" && mode_ == ReportType::Html) return ReadWhole(text, 0, kWhite, options_.bgColor);
    if (name != "txtCols" || mode_ != ReportType::Text) return false;
    options_.numColumns = text;
    return true;
}

bool PrintFmtOptionsModel::Press(std::string_view button) {
    if (mode_ != ReportType::Text) {
        for (const FontRow& row : kFonts) {
            if (row.button != button) continue;
            ChooseFont(options_.*row.font);
            return true;
        }
    }
    if (button != "cmdOK" && button != "cmdCancel") return false;
    if (button == "cmdOK") SaveReportOptions(store_, mode_, options_);
    open_ = false;
    return true;
}

void PrintFmtOptionsModel::ChooseFont(ReportFont& font) {
    ChooseFontModel dialog(font, options_.bgColor, mode_ == ReportType::RichText);
    dialogs_.ShowModal(dialog);
    if (!dialog.Cancelled()) font = dialog.FontFace();
}

}  // namespace tw
