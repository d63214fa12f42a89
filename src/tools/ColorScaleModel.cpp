#include "tools/ColorScaleModel.h"

#include <algorithm>
#include <iterator>

#include "values/NumberText.h"

namespace tw {
namespace {

constexpr std::string_view kSrm = "SRM";
constexpr std::string_view kHcu = "HCU";

constexpr ScaleMark kSrmMarks[] = {{0, 0},    {0.1, 5},  {0.2, 10}, {0.3, 15}, {0.4, 20}, {0.5, 25},
                                   {0.6, 30}, {0.7, 35}, {0.8, 40}, {0.9, 45}, {1, 50}};
constexpr ScaleMark kHcuMarks[] = {{0, 0},     {0.1, 30},  {0.2, 60},  {0.3, 90},  {0.4, 120}, {0.5, 150},
                                   {0.6, 180}, {0.7, 210}, {0.8, 240}, {0.9, 270}, {1, 300}};
constexpr ScaleMark kBothHcuMarks[] = {{0, 0},     {0.09, 3},   {0.18, 8},   {0.27, 14},
                                       {0.36, 21}, {0.45, 28},  {0.54, 36},  {0.63, 47},
                                       {0.72, 90}, {0.81, 161}, {0.91, 230}, {1, 300}};
constexpr ScaleMark kBothSrmMarks[] = {{0, 0},     {0.09, 3},  {0.18, 6},  {0.27, 9},  {0.37, 12},
                                       {0.46, 15}, {0.55, 17}, {0.64, 21}, {0.73, 34}, {0.82, 50}};

// The members of lblVal for a column: the left one has the first of them, the right one the next.
constexpr int kColumnMembers = static_cast<int>(std::size(kBothHcuMarks));

// Returns the value at a fraction, linear between the marks.
double ValueAt(std::span<const ScaleMark> marks, double fraction) {
    const auto right = std::ranges::upper_bound(marks, fraction, {}, &ScaleMark::fraction);
    if (right == marks.begin()) return marks.front().value;
    if (right == marks.end()) return marks.back().value;
    const ScaleMark& left = *std::prev(right);
    return left.value +
           (fraction - left.fraction) * (right->value - left.value) / (right->fraction - left.fraction);
}

std::string Member(std::string_view array, int index) {
    return std::string(array) + '(' + std::to_string(index) + ')';
}

}  // namespace

std::string_view ScaleName(ColorScale scale) {
    constexpr std::string_view kNames[kColorScales] = {"SRM Scale", "HCU Scale", "Both Scales"};
    return kNames[static_cast<int>(scale)];
}

ScaleColumn LeftColumn(ColorScale scale) {
    if (scale == ColorScale::Srm) return {kSrm, kSrmMarks};
    return {kHcu, scale == ColorScale::Hcu ? std::span<const ScaleMark>(kHcuMarks) : kBothHcuMarks};
}

ScaleColumn RightColumn(ColorScale scale) {
    if (scale == ColorScale::Both) return {kSrm, kBothSrmMarks};
    return LeftColumn(scale);
}

double ScaleHcu(ColorScale scale, double fraction) {
    const double value = ValueAt(LeftColumn(scale).marks, fraction);
    return scale == ColorScale::Srm ? SRMToHCU(value) : value;
}

std::string ColorReading(double hcu) {
    const double srm = HCUToSRM(hcu);
    return (srm <= 50 ? FormatNumber(srm, "0") : std::string(">50")) + " SRM (" + FormatNumber(hcu, "0 HCU)");
}

ColorScaleModel::ColorScaleModel() : FormModel(kFormName) {
    for (int i = 0; i < kColorScales; ++i) {
        const auto scale = static_cast<ColorScale>(i);
        AddControls({OptionButton(
            Member("optScale", i), [this, scale] { return scale_ == scale; },
            [this, scale] { Choose(scale); })});
    }
    AddColumn(LeftColumn, 0);
    AddColumn(RightColumn, kColumnMembers);
    AddControls({
        {Member("Label1", 0), [this] { return std::string(LeftColumn(scale_).caption); }},
        {Member("Label1", 1), [this] { return std::string(RightColumn(scale_).caption); }},
    });
    AddButtons({{"cmdClose", [this] { Close(); }}});
}

// Adds as many labels as the longest column has; a shorter column hides the last of them.
void ColorScaleModel::AddColumn(ScaleColumn (*columnOf)(ColorScale), int firstLabel) {
    for (int i = 0; i < kColumnMembers; ++i) {
        const auto mark = static_cast<std::size_t>(i);
        const auto value = [this, columnOf, mark] {
            return std::to_string(columnOf(scale_).marks[mark].value);
        };
        const auto isThere = [this, columnOf, mark] { return mark < columnOf(scale_).marks.size(); };
        AddControls({{Member("lblVal", firstLabel + i), value, {}, isThere}});
    }
}

void ColorScaleModel::MovePointer(int step) {
    pointer_ = std::clamp(step, 0, kPointerEnd);
}

double ColorScaleModel::PointerHcu() const {
    return ScaleHcu(scale_, static_cast<double>(pointer_) / kPointerEnd);
}

}  // namespace tw
