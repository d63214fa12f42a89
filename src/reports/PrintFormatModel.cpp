#include "reports/PrintFormatModel.h"

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

PrintFormatModel::PrintFormatModel(ReportType mode, const SettingsStore& store, DialogPort& dialogs)
    : FormModel(kFormName),
      mode_(mode),
      store_(store),
      dialogs_(dialogs),
      options_(LoadReportOptions(store, mode)) {
    if (mode == ReportType::Text) AddControls({TextEntry("txtCols", options_.numColumns)});
    if (mode == ReportType::Html)
        AddControls({{"pbBGColor", [this] { return std::to_string(options_.bgColor); },
                      [this](std::string_view text) {
                          return TakeInto(options_.bgColor, ReadWhole(text, 0, kWhite));
                      }}});
    if (mode != ReportType::Text) AddFonts();
    AddControls(
        {CheckBox("chkOne", mode == ReportType::Html ? options_.horizontalRulers : options_.pageBreak)});
    if (mode == ReportType::Text) AddControls({CheckBox("chkTwo", options_.append)});
    AddButtons({{"cmdOK", [this] { Ok(); }}, {"cmdCancel", [this] { Close(); }}});
}

void PrintFormatModel::AddFonts() {
    for (const FontRow& row : kFonts) {
        ReportFont& font = options_.*row.font;
        AddControls({{std::string(row.box), [&font] { return font.face + ", " + NumberText(font.points); }}});
        AddButtons({{std::string(row.button), [this, &font] { ChooseFont(font); }}});
    }
}

std::string_view PrintFormatModel::Title() const {
    constexpr std::string_view kTitles[] = {"Text File Options", "HTML File Options",
                                            "Rich-Text File Options"};
    return kTitles[static_cast<std::size_t>(mode_)];
}

std::string_view PrintFormatModel::OneCaption() const {
    return mode_ == ReportType::Html ? "&Rule Between Recipes" : "&Page Break Between Recipes";
}

void PrintFormatModel::Ok() {
    SaveReportOptions(store_, mode_, options_);
    Accept();
}

void PrintFormatModel::ChooseFont(ReportFont& font) {
    ChooseFontModel dialog(font, options_.bgColor, mode_ == ReportType::RichText);
    dialogs_.ShowModal(dialog);
    if (!dialog.Cancelled()) font = dialog.FontFace();
}

}  // namespace tw
