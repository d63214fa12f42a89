#include "reports/ChooseFontModel.h"

#include "values/NumberText.h"
#include "values/SettingText.h"
#include "values/Text.h"

namespace tw {
namespace {

constexpr int kSizes[] = {8, 9, 10, 11, 12, 14, 16, 18, 20, 22, 24, 26, 28, 36, 48, 72};

std::string YesNo(bool yes) {
    return yes ? "yes" : "no";
}

struct CheckRow {
    std::string_view name;
    bool ReportFont::*field;
};
constexpr CheckRow kChecks[] = {{"chkBold", &ReportFont::bold},
                                {"chkItalic", &ReportFont::italic},
                                {"chkUnderline", &ReportFont::underline},
                                {"chkStrikethru", &ReportFont::strikethru}};

}  // namespace

ChooseFontModel::ChooseFontModel(const ReportFont& font, int bgColor, bool showFontBColor)
    : font_(font), size_(NumberText(font.points)), bgColor_(bgColor), showFontBColor_(showFontBColor) {}

std::vector<std::string> ChooseFontModel::Sizes() {
    std::vector<std::string> sizes;
    for (const int size : kSizes) sizes.push_back(std::to_string(size));
    return sizes;
}

bool ChooseFontModel::CanAccept() const {
    double points = 0;
    return !IsBlank(font_.face) && ReadReal(size_, points) && points > 0;
}

std::vector<DialogControl> ChooseFontModel::Controls() const {
    std::vector<DialogControl> controls = {{"cmbFontName", font_.face}, {"cmbFontSize", size_}};
    for (const CheckRow& row : kChecks) controls.push_back({std::string(row.name), YesNo(font_.*row.field)});
    controls.push_back({"picFontColor", std::to_string(font_.color)});
    if (showFontBColor_) controls.push_back({"picFontBColor", std::to_string(font_.backColor)});
    controls.push_back({"txtSample", sample_});
    return controls;
}

bool ChooseFontModel::SetControl(std::string_view name, std::string_view text) {
    for (const CheckRow& row : kChecks) {
        if (row.name != name) continue;
        if (text != "yes" && text != "no") return false;
        font_.*row.field = text == "yes";
        return true;
    }
    if (name == "picFontColor") return ReadWhole(text, 0, kWhite, font_.color);
    if (name == "picFontBColor") return showFontBColor_ && ReadWhole(text, 0, kWhite, font_.backColor);
    if (name == "cmbFontName") {
        font_.face = text;
    } else if (name == "cmbFontSize") {
        size_ = text;
        double points = 0;
        if (ReadReal(text, points) && points > 0) font_.points = points;
    } else if (name == "txtSample") {
        sample_ = text;
    } else {
        return false;
    }
    return true;
}

bool ChooseFontModel::Press(std::string_view button) {
    if (button == "cmdCancel") {
        CloseBox();
        return true;
    }
    if (button != "cmdOK") return false;
    if (!CanAccept()) return true;
    cancelled_ = false;
    open_ = false;
    return true;
}

}  // namespace tw
