// The colour scales (frmColor): a picture of beer colours from pale straw to black with labelled marks, to
// read a figure as a colour.
#pragma once

#include <span>
#include <string>
#include <string_view>

#include "calc/BeerColor.h"
#include "platform/FormModel.h"

namespace tw {

// The options of optScale.
enum class ColorScale : int { Srm, Hcu, Both };
inline constexpr int kColorScales = 3;
// "SRM Scale", "HCU Scale", "Both Scales".
std::string_view ScaleName(ColorScale scale);

// One label along the picture.
struct ScaleMark {
    double fraction;  // of the picture's length, 0 to 1
    int value;        // in the unit of its column: SRM or HCU
};
// A column of labels beside the picture; its first mark is the picture's start.
struct ScaleColumn {
    std::string_view caption;
    std::span<const ScaleMark> marks;
};
ScaleColumn LeftColumn(ColorScale scale);
ScaleColumn RightColumn(ColorScale scale);

// Homebrew colour units at a fraction of the picture, 0 to 1: what the left column's marks say there, linear
// between them; outside 0 to 1 the figure of the nearer end. The marks are the program's own, SRM become
// colour units by SRMToHCU (calc/BeerColor.h). The picture has the colour of that figure, so that a mark
// stands beside its own colour in every scale.
double ScaleHcu(ColorScale scale, double fraction);
// An HCU figure as recipes show it: "12 SRM (21 HCU)", ">50 SRM (250 HCU)".
std::string ColorReading(double hcu);

// optScale(0) to (2); the members of lblVal that are shown, those of the left column from 0, those of the
// right one from 12; Label1(0) and (1); cmdClose.
class ColorScaleModel final : public FormModel {
  public:
    static constexpr const char* kFormName = "frmColor";

    ColorScaleModel();

    // Steps of the pointer along the picture.
    static constexpr int kPointerEnd = 100;

    ColorScale Scale() const { return scale_; }
    // The pointer keeps its place.
    void Choose(ColorScale scale) { scale_ = scale; }

    // The pointer that the window reads the picture with.
    int Pointer() const { return pointer_; }
    // Clamped to the picture's ends.
    void MovePointer(int step);
    // The figure under the pointer, in homebrew colour units.
    double PointerHcu() const;

  private:
    // The labels of a column, counted from the first one's number.
    void AddColumn(ScaleColumn (*columnOf)(ColorScale), int firstLabel);

    ColorScale scale_ = ColorScale::Srm;
    int pointer_ = 0;
};

}  // namespace tw
