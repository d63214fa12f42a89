// Recipes in which every text is much too long for the paper, and the check that no printed
// text leaves its place.
#pragma once

#include <algorithm>
#include <cmath>
#include <random>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "record/RecipeRecord.h"
#include "reports/PrintSteps.h"
#include "values/Text.h"

namespace tw::test {

// Generates random texts from a seed: words of 1 to 120 letters, some letters of two bytes, up
// to 600 letters in all.
class LongTexts {
  public:
    explicit LongTexts(unsigned seed) : random_(seed) {}
    std::string Next() {
        std::string text;
        for (int left = Pick(1, 600); left > 0;) {
            const int word = std::min(left, Pick(1, Pick(0, 3) == 0 ? 120 : 12));
            for (int i = 0; i < word; ++i) text += kLetters[static_cast<std::size_t>(Pick(0, 7))];
            text += std::string(static_cast<std::size_t>(Pick(1, 8) / 4), ' ');
            left -= word;
        }
        return text;
    }
    int Pick(int least, int most) { return std::uniform_int_distribution(least, most)(random_); }

  private:
    static constexpr const char* kLetters[] = {"w", "i", "m", "l", "A", "T", "\u00fc", "\u00d8"};
    std::mt19937 random_;
};

inline void FillWithLongTexts(RecipeRecord& recipe, LongTexts& texts) {
    for (TextBox* box : {&recipe.txtName, &recipe.txtFinalVol, &recipe.txtTotalVol, &recipe.txtOG,
                         &recipe.txtIBU, &recipe.txtFG, &recipe.txtCO2, &recipe.txtABV, &recipe.txtColor,
                         &recipe.txtBoilVol, &recipe.txtTemp, &recipe.txtNotes})
        box->SetText(texts.Next());
    recipe.cmbStyle.SetEntries({{"(None)", 0}, {texts.Next(), 1}}, 1);
    recipe.gridWater.SetText(WaterRow::Source, WaterCol::Profile, texts.Next());
    recipe.gridPressure.SetText(1, PressureCol::Pressure, texts.Next());
    for (Grid* grid : {&recipe.gridTreatment, &recipe.gridGrain, &recipe.gridExtract, &recipe.gridHops,
                       &recipe.gridAdjuncts, &recipe.gridPriming, &recipe.gridLog})
        for (int rows = texts.Pick(0, 5); rows > 0; --rows) {
            const int row = grid->EndOfData();
            grid->InsertRow(row);
            for (int col = 0; col < grid->Cols(); ++col) grid->SetText(row, col, texts.Next());
        }
    recipe.grpPkgMethod.Select(texts.Pick(0, 1));
}

// Returns one line for each step that leaves its column or the page; empty if there is none. A text is in the
// left column if there is a text of the right column at the same height of the same page.
inline std::vector<std::string> OutOfBounds(const PrintSteps& steps, const TextMeasure& measure) {
    constexpr double kMargin = 0.5, kGap = 0.25, kRounding = 1e-6;
    const double right = steps.page.width - kMargin, middle = (right - kMargin) / 2 + kMargin;
    std::vector<std::string> faults;
    std::set<std::pair<int, double>>
        halved;  // page and height (inches) of the lines that have a right column
    int page = 0;
    for (const PrintStep& step : steps.steps) {
        if (step.kind == PrintStep::Kind::Page) ++page;
        if (step.kind == PrintStep::Kind::Text && std::abs(step.x1 - middle - kGap) < kRounding)
            halved.emplace(page, step.y1);
    }
    page = 0;
    for (const PrintStep& step : steps.steps) {
        if (step.kind == PrintStep::Kind::Page) ++page;
        if (step.kind != PrintStep::Kind::Text && step.kind != PrintStep::Kind::Box) continue;
        const bool box = step.kind == PrintStep::Kind::Box;
        const PrintSize size = measure.SizeOf(step.font, step.text);
        const double end = box ? step.x2 : step.x1 + size.width;
        const double foot = box ? step.y2 : step.y1 + size.height;
        const double limit = step.x1 < middle && halved.contains({page, step.y1}) ? middle : right;
        if (step.x1 < kMargin - kRounding || end > limit + kRounding || step.y1 < kMargin - kRounding ||
            foot > steps.page.height + kRounding)
            faults.emplace_back("page " + std::to_string(page) + ": " + step.text);
    }
    return faults;
}

}  // namespace tw::test
