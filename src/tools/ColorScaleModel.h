// The colour scales (frmColor): a picture of beer colours from pale straw to black, with labelled marks by
// which a colour figure is read.
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
// Returns "SRM Scale", "HCU Scale" or "Both Scales".
std::string_view ScaleName(ColorScale scale);

// A label along the picture.
struct ScaleMark {
    double fraction;  // of the picture's length, 0 to 1
    int value;        // in the unit of its column: SRM or HCU
};
// A column of labels beside the picture. Its first mark is at the start of the picture.
struct ScaleColumn {
    std::string_view caption;
    std::span<const ScaleMark> marks;
};
ScaleColumn LeftColumn(ColorScale scale);
ScaleColumn RightColumn(ColorScale scale);

// Returns the homebrew colour units at a fraction of the picture's length, 0 to 1: what the marks of the left
// column say there, linear between them, SRM converted by SRMToHCU (calc/BeerColor.h). Outside 0 to 1 it is
// the value of the nearer end. The marks are the program's own. The picture shows the colour of this value,
// so that a mark is beside its own colour in every scale.
double ScaleHcu(ColorScale scale, double fraction);
// Returns HCU in the form of a recipe: "12 SRM (21 HCU)", ">50 SRM (250 HCU)".
std::string ColorReading(double hcu);

// Controls: optScale(0) to (2); those members of lblVal that are shown, the left column from 0, the right one
// from 12; Label1(0) and (1); cmdClose.
class ColorScaleModel final : public FormModel {
  public:
    static constexpr const char* kFormName = "frmColor";

    ColorScaleModel();

    // The last position of the pointer along the picture; the first is 0.
    static constexpr int kPointerEnd = 100;

    ColorScale Scale() const { return scale_; }
    // Changes the scale; the pointer stays in its place.
    void Choose(ColorScale scale) { scale_ = scale; }

    // Returns the position of the pointer, by which the picture is read.
    int Pointer() const { return pointer_; }
    // Moves the pointer to step, clamped to 0 and kPointerEnd.
    void MovePointer(int step);
    // Returns the homebrew colour units at the pointer.
    double PointerHcu() const;

  private:
    // Adds the labels of a column as members of lblVal, from index firstLabel on.
    void AddColumn(ScaleColumn (*columnOf)(ColorScale), int firstLabel);

    ColorScale scale_ = ColorScale::Srm;
    int pointer_ = 0;
};

}  // namespace tw
