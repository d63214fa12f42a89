// Tests of sizes, colours, the range bars and the detail windows.
#include "platform/qt/Appearance.h"

#include <QtTest/QTest>
#include <QtWidgets>
#include <gtest/gtest.h>

#include "document/ui/DetailsDialog.h"
#include "document/ui/RangeBar.h"
#include "platform/qt/CellColors.h"
#include "platform/qt/QtText.h"

namespace tw::test {
namespace {

// Black on white is 21:1 by definition.
TEST(Contrast, OfBlackAndWhiteIsTwentyOne) {
    EXPECT_NEAR(ContrastRatio(Qt::black, Qt::white), 21, 1e-9);
    EXPECT_NEAR(ContrastRatio(Qt::white, Qt::white), 1, 1e-9);
}

class PaletteContrast : public testing::TestWithParam<bool> {
  protected:
    QPalette palette = GetParam() ? DarkPalette() : LightPalette();
    QColor Role(QPalette::ColorRole role) const { return palette.color(QPalette::Active, role); }
};

TEST_P(PaletteContrast, OfTextIsAtLeastFourAndAHalf) {
    EXPECT_GE(ContrastRatio(Role(QPalette::WindowText), Role(QPalette::Window)), 4.5);
    EXPECT_GE(ContrastRatio(Role(QPalette::Text), Role(QPalette::Base)), 4.5);
    EXPECT_GE(ContrastRatio(Role(QPalette::ButtonText), Role(QPalette::Button)), 4.5);
    EXPECT_GE(ContrastRatio(Role(QPalette::HighlightedText), Role(QPalette::Highlight)), 4.5);
    EXPECT_GE(ContrastRatio(Role(QPalette::PlaceholderText), Role(QPalette::Base)), 4.5);
    EXPECT_GE(ContrastRatio(Role(QPalette::ToolTipText), Role(QPalette::ToolTipBase)), 4.5);
    EXPECT_GE(ContrastRatio(HintColor(palette), Role(QPalette::Base)), 4.5);
}

TEST_P(PaletteContrast, OfTheAccentIsAtLeastThree) {
    EXPECT_GE(ContrastRatio(Accent(palette), Role(QPalette::Window)), 3);
    EXPECT_GE(ContrastRatio(Accent(palette), Role(QPalette::Base)), 3);
}

TEST_P(PaletteContrast, TellsDarkFromLight) {
    EXPECT_EQ(IsDark(palette), GetParam());
}

// Colours that were not chosen by the brewer differ from those of plain cells, and
// their text is easy to read.
TEST_P(PaletteContrast, OfTheTintsIsReadableAndTheirGroundsDiffer) {
    const CellColors calculated = CalculatedColors({}, palette), total = TotalColors({}, palette);
    EXPECT_GE(ContrastRatio(calculated.ink, calculated.ground), 7);
    EXPECT_GE(ContrastRatio(total.ink, total.ground), 7);
    EXPECT_GE(ContrastRatio(calculated.ground, Role(QPalette::Base)), 1.08);
    EXPECT_GE(ContrastRatio(total.ground, calculated.ground), 1.08);
}

INSTANTIATE_TEST_SUITE_P(LightAndDark, PaletteContrast, testing::Bool());

TEST(CellColorsTest, PaintsAChosenColorExactly) {
    const CellColors chosen{QColor(1, 2, 3), QColor(4, 5, 6)};
    const CellColors painted = TotalColors(chosen, DarkPalette());
    EXPECT_EQ(painted.ground, QColor(1, 2, 3));
    EXPECT_EQ(painted.ink, QColor(4, 5, 6));
}

// With the light text of a dark desktop, a yellow background would have a contrast of about 1.2:1.
TEST(CellColorsTest, TurnsToAReadableTextOnAChosenGround) {
    EXPECT_EQ(CalculatedColors({QColor(255, 255, 0), {}}, DarkPalette()).ink, QColor(Qt::black));
    EXPECT_EQ(CalculatedColors({QColor(0, 0, 128), {}}, LightPalette()).ink, QColor(Qt::white));
    EXPECT_EQ(CalculatedColors({QColor(255, 255, 0), {}}, LightPalette()).ink,
              LightPalette().color(QPalette::Text));
}

// The high-contrast themes of desktops: black on white, white on black, yellow on black.
TEST(CellColorsTest, KeepsTheContrastOfAContrastPalette) {
    for (const auto& [base, text] : {std::pair(Qt::white, Qt::black), std::pair(Qt::black, Qt::white),
                                     std::pair(Qt::black, Qt::yellow)}) {
        QPalette palette;
        for (const auto role : {QPalette::Base, QPalette::Window}) palette.setColor(role, base);
        for (const auto role : {QPalette::Text, QPalette::WindowText}) palette.setColor(role, text);
        const CellColors total = TotalColors({}, palette), calculated = CalculatedColors({}, palette);
        EXPECT_EQ(total.ink, QColor(text));
        EXPECT_GE(ContrastRatio(total.ink, total.ground), 10);
        EXPECT_GE(ContrastRatio(total.ground, QColor(base)), 1.15);
        EXPECT_GE(ContrastRatio(calculated.ground, QColor(base)), 1.08);
    }
}

// 1440 twips are an inch.
TEST(Twips, AreATwentiethOfAPoint) {
    EXPECT_EQ(PixelsOfTwips(1440, 96), 96);
    EXPECT_EQ(PixelsOfTwips(6500, 96), 433);
    EXPECT_EQ(TwipsOfPixels(96, 96), 1440);
    EXPECT_EQ(TwipsOfPixels(96, 192), 720);
}

TEST(RangeBarTest, SaysWhereTheFigureLies) {
    RangeBar bar(QStringLiteral("Original Gravity"));
    bar.Show("1.045 - 1.056", "1.050");
    EXPECT_EQ(bar.Verdict(), QStringLiteral("within the style's range"));
    bar.Show("1.045 - 1.056", "1.044");
    EXPECT_EQ(bar.Verdict(), QStringLiteral("below the style's range"));
    bar.Show("1.045 - 1.056", "1.057");
    EXPECT_EQ(bar.Verdict(), QStringLiteral("above the style's range"));
    EXPECT_EQ(bar.accessibleDescription(), bar.Verdict());
    bar.Show("", "1.057");
    EXPECT_EQ(bar.Verdict(), QString());
    bar.Show("1.045 - 1.056", "");
    EXPECT_EQ(bar.Verdict(), QString());
}

TEST(DetailsWindow, ShowsTheModelAndClosesOnEscape) {
    DetailsModel model = StrengthDetails(1.05, 1.01);
    DetailsDialog window(model, nullptr);
    for (const DialogControl& control : model.Controls()) {
        const auto* label = window.findChild<QLabel*>(ToQt(control.name));
        ASSERT_NE(label, nullptr) << control.name;
        EXPECT_EQ(FromQt(label->text()), control.text);
    }
    window.show();
    QTest::keyClick(&window, Qt::Key_Escape);
    EXPECT_FALSE(model.IsOpen());
}

TEST(DetailsWindow, BalanceSliderStandsWhereTheModelSays) {
    DetailsModel model = HopDetails(1.05, 30);
    DetailsDialog window(model, nullptr);
    const auto* slider = window.findChild<QSlider*>(QStringLiteral("sliderBalance"));
    ASSERT_NE(slider, nullptr);
    EXPECT_EQ(slider->maximum(), 1000);
    EXPECT_EQ(slider->value(), model.SliderBalance());
}

}  // namespace
}  // namespace tw::test
