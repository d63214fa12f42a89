#include "DocumentTest.h"

namespace tw::test {

void FillCatalogue(Database& database) {
    const char* const rows[] = {
        "GRAINS (GRAIN, NAME, PPG_LO, PPG_HI, COLOR_LO, COLOR_HI) VALUES (TRUE, 'Pale Malt', 35, 38, 1.5, "
        "2.5)",
        "GRAINS (GRAIN, NAME, PPG_LO, PPG_HI, COLOR_LO, COLOR_HI) VALUES (TRUE, 'O''Brien''s', 30, 30, 60, "
        "60)",
        "GRAINS (GRAIN, NAME, PPG_LO, PPG_HI, COLOR_LO, COLOR_HI) VALUES (TRUE, 'Half Known', 30, NULL, 10, "
        "20)",
        "GRAINS (GRAIN, NAME, PPG_LO, PPG_HI, COLOR_LO, COLOR_HI) VALUES (FALSE, 'Pale Malt', 42, 44, 4, 6)",
        "GRAINS (GRAIN, NAME, PPG_LO, PPG_HI, COLOR_LO, COLOR_HI) VALUES (FALSE, 'Syrup', 36, 38, 4, 6)",
        "HOPS (NAME, AA_LO, AA_HI) VALUES ('Saaz', 3, 4)",
        "HOPS (NAME, AA_LO, AA_HI) VALUES ('Zeus', 14, 16)",
        "HOPS (NAME, AA_LO, AA_HI) VALUES ('Wild', NULL, NULL)",
        "SUGARS (NAME, FERMENT_LO, FERMENT_HI) VALUES ('Corn Sugar', 100, 100)",
        "SUGARS (NAME, FERMENT_LO, FERMENT_HI) VALUES ('Honey', 90, 98)",
        "SUGARS (NAME, FERMENT_LO, FERMENT_HI) VALUES ('Riddle', NULL, 1)",
        "YEAST (NAME, AA_LO, AA_HI) VALUES ('Ale', 72, 78)",
        "YEAST (NAME, AA_LO, AA_HI) VALUES ('Cook''s', 70, 70)",
        "YEAST (NAME, AA_LO, AA_HI) VALUES ('Stray', NULL, NULL)",
        "WATER_PROFILES (NAME, CA, CO3, CL, MG, NA, SO4) VALUES ('Burton', 275, 270, 35, 40, NULL, 610)",
        "WATER_PROFILES (NAME, CA, CO3, CL, MG, NA, SO4) VALUES ('Soft', 7, 15, 5.5, 2, 3, 5)",
        "SALTS (NAME, CA, CO3, CL, MG, NA, SO4) VALUES ('Gypsum', 61.5, 0, 0, NULL, 0, 147.4)",
        "SALTS (NAME, CA, CO3, CL, MG, NA, SO4) VALUES ('Chalk', 105.8, 158.4, 0, 0, 0, 0)",
        "STYLES (ID, NAME, WATER_PROFILE, OG_LO, OG_HI, FG_LO, FG_HI, ABV_LO, ABV_HI, COLOR_LO, COLOR_HI, "
        "IBU_LO, "
        "IBU_HI, CO2_LO, CO2_HI) VALUES (1, 'Stout', ' Burton ', 1.035, 1.05, NULL, NULL, 3.2, 5.5, 35, 200, "
        "30, "
        "50, 2, 2.5)",
        "STYLES (ID, NAME, WATER_PROFILE, OG_LO, OG_HI, FG_LO, FG_HI, ABV_LO, ABV_HI, COLOR_LO, COLOR_HI, "
        "IBU_LO, "
        "IBU_HI, CO2_LO, CO2_HI) VALUES (2, 'Lager', NULL, 1.045, 1.045, 1.01, 1.01, 5, 5, 4, 4, 20, 20, "
        "2.5, 2.5)",
        "STYLES (ID, NAME, WATER_PROFILE) VALUES (3, 'Odd Water', 'No Such Water')",
        "STYLES (ID, NAME, WATER_PROFILE, OG_LO, FG_HI, ABV_LO, COLOR_HI, IBU_LO, CO2_HI) VALUES (4, 'Half "
        "Open', "
        "'Soft', 1.05, 1.012, 6, 12.4, 25.5, 2.75)",
    };
    for (const char* row : rows) database.Execute("INSERT INTO " + std::string(row));
}

PlainCatalogue MakePlainCatalogue() {
    PlainCatalogue c;
    c.grains = {{"Pale Malt", {36.5, 2}}, {"O'Brien's", {30, 60}}, {"Half Known", {std::nullopt, 15}}};
    c.extracts = {{"Pale Malt", {43, 5}}, {"Syrup", {37, 5}}};
    c.hops = {{"Saaz", 3.5}, {"Zeus", 15}, {"Wild", std::nullopt}};
    c.sugars = {{"Corn Sugar", 100}, {"Honey", 94}, {"Riddle", std::nullopt}};
    c.yeasts = {{"Ale", 75}, {"Cook's", 70}, {"Stray", std::nullopt}};
    c.waters = {{"Burton", {275, 270, 35, 40, std::nullopt, 610}}, {"Soft", {7, 15, 5.5, 2, 3, 5}}};
    c.salts = {{"Gypsum", {61.5, 0, 0, std::nullopt, 0, 147.4}}, {"Chalk", {105.8, 158.4, 0, 0, 0, 0}}};
    c.styleWaters = {
        {kStout, "Burton"}, {kLager, std::nullopt}, {kOddWater, "No Such Water"}, {kHalfOpen, "Soft"}};
    return c;
}

Log DocumentTest::Shown() const {
    const RecipeRecord& r = document->Record();
    Log shown;
    for (const TextBox* box : r.TextBoxes()) shown.push_back(box->Name() + "=" + box->Text());
    shown.emplace_back("cmbStyle=" + r.cmbStyle.Text());
    for (const Label* label : r.Labels()) shown.push_back(label->Name() + "=" + label->Text());
    for (const Button* button : r.Buttons())
        shown.push_back(button->Name() + (button->Enabled() ? " on" : " off"));
    shown.push_back(r.grpIBUMethod.Value() + " " + r.grpPkgMethod.Value());
    for (const Grid* grid : r.Grids())
        for (int row = 0; row < grid->Rows(); ++row) {
            std::string line = grid->Name() + " " + std::to_string(row) + ":";
            for (int col = 0; col < grid->Cols(); ++col) {
                line += grid->Text(row, col);
                if (grid->IsCheckBox(row, col)) line += grid->Checked(row, col) ? "yes" : "no";
                line += grid->At(row, col).bold && row > 0 ? "!|" : "|";
            }
            shown.push_back(line);
        }
    return shown;
}

}  // namespace tw::test
