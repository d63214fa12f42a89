#include "reports/ChooseFontModel.h"

#include "values/NumberText.h"
#include "values/SettingText.h"
#include "values/Text.h"

namespace tw {
namespace {

constexpr int kSizes[] = {8, 9, 10, 11, 12, 14, 16, 18, 20, 22, 24, 26, 28, 36, 48, 72};

}  // namespace

ChooseFontModel::ChooseFontModel(const ReportFont& font, int bgColor, bool showFontBColor)
    : FormModel(kFormName),
      font_(font),
      size_(NumberText(font.points)),
      bgColor_(bgColor),
      showFontBColor_(showFontBColor) {
    AddControls({
        TextEntry("cmbFontName", font_.face),
        {"cmbFontSize", [this] { return size_; }, [this](std::string_view text) { return EnterSize(text); }},
        CheckBox("chkBold", font_.bold),
        CheckBox("chkItalic", font_.italic),
        CheckBox("chkUnderline", font_.underline),
        CheckBox("chkStrikethru", font_.strikethru),
        ColorBox("picFontColor", font_.color),
    });
    if (showFontBColor_) AddControls({ColorBox("picFontBColor", font_.backColor)});
    AddControls({TextEntry("txtSample", sample_)});
    AddButtons({
        {"cmdOK", [this] { Accept(); }, [this] { return CanAccept(); }},
        {"cmdCancel", [this] { Close(); }},
    });
}

FormControl ChooseFontModel::ColorBox(std::string name, int& color) {
    return {std::move(name), [&color] { return std::to_string(color); },
            [&color](std::string_view text) { return TakeInto(color, ReadWhole(text, 0, kWhite)); }};
}

bool ChooseFontModel::EnterSize(std::string_view text) {
    size_ = text;
    if (const std::optional<double> points = ReadReal(text); points.value_or(0) > 0) font_.points = *points;
    return true;
}

std::vector<std::string> ChooseFontModel::Sizes() {
    std::vector<std::string> sizes;
    for (const int size : kSizes) sizes.push_back(std::to_string(size));
    return sizes;
}

bool ChooseFontModel::CanAccept() const {
    return !IsBlank(font_.face) && ReadReal(size_).value_or(0) > 0;
}

}  // namespace tw
