// A calculator with a record only, without a document.
#pragma once

#include <gtest/gtest.h>
#include <string_view>

#include "record/RecipeCalculator.h"

namespace tw::test {

struct Commands : RecipeCommands {
    void EnableResizeRecipe(bool on) override { resize = on; }
    void EnableChangeStrength(bool on) override { strength = on; }
    void EnableChangeBitterness(bool on) override { bitterness = on; }
    void EnableChangeCarbonation(bool on) override { carbonation = on; }
    bool resize = false, strength = false, bitterness = false, carbonation = false;
};

class CalculatorTest : public testing::Test {
  protected:
    CalculatorTest();

    // Sets a committed text and its number.
    static void Fill(TextBox& box, std::string_view text, double value);
    // Sets the number of a cell; text only has to be non-empty.
    static void Put(Grid& grid, int row, int col, double value, std::string_view text = "given");
    void PutFermentable(Grid& grid, int row, double pounds, double ppg, double lovibond);
    // Enters 8 lb of grain at 36 PPG and 2 degrees Lovibond, 40% extraction, a total volume of 5 gallons and
    // a boil volume of 6 gallons.
    void MakeRecipe();
    // Adds a row of hops with 5% alpha acid and 60 minutes.
    void PutHop(int row, CellValue amount);

    RecipeRecord r;
    Commands commands;
    ColorTable colors;
    RecipeCalculator calculator{r, commands, colors};
};

}  // namespace tw::test
