// A doctor in a small program: a database in memory with a few catalogue entries, and a recording platform.
#pragma once

#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "SmallProgram.h"
#include "catalogue/CatalogueContext.h"
#include "doctor/RecipeDoctor.h"
#include "store/CatalogueNames.h"
#include "store/Schema.h"

namespace tw::test {

class DoctorTest : public testing::Test, protected SmallProgram {
  protected:
    DoctorTest() : SmallProgram(CreateMainDatabaseInMemory()) {
        for (const char* const row :
             {"GRAINS (GRAIN, NAME, PPG_LO, PPG_HI, COLOR_LO, COLOR_HI) VALUES (TRUE, 'Pale Malt', 36, 38, "
              "3, 3)",
              "GRAINS (GRAIN, NAME, PPG_LO, PPG_HI, COLOR_LO, COLOR_HI) VALUES (FALSE, 'Honey', 32, 38, 2, "
              "4)",
              "HOPS (NAME, AA_LO, AA_HI) VALUES ('Cascade', 5, 6)",
              "YEAST (NAME, AA_LO, AA_HI) VALUES ('House Ale', 75, 75)",
              "SALTS (NAME, CA, CO3, CL, MG, NA, SO4) VALUES ('Gypsum', 61.5, 0, 0, 0, 0, 147.4)",
              "SUGARS (NAME, FERMENT_LO, FERMENT_HI) VALUES ('Corn Sugar (Dextrose)', 90, 90)",
              "STYLES (NAME, FOLDER_ID) VALUES ('Pale Ale', 0)"})
            database->Execute(std::string("INSERT INTO ") + row);
    }

    // Gives a style of the catalogue its code in a guide, as the delivered catalogue has it.
    void GiveStyleCode(const std::string& style, const std::string& code, const std::string& guide) {
        WriteCatalogueNames({}, *database);
        database->Execute(
            "INSERT INTO CATALOGUE_FACTS (SHEET, NAME, CODE, SOURCE, FORM) VALUES ('STYLES', ?, ?, ?, '')",
            {style, code, guide});
    }

    // Examines the recipe and keeps the result.
    RecipeRecord& Examine(const ImportOptions& options = {}) {
        examined = doctor.Examine(recipe, options);
        return examined.document->Record();
    }
    // Returns the findings as "severity code place: text".
    std::vector<std::string> Told() const {
        std::vector<std::string> told;
        for (const Finding& finding : examined.findings)
            told.push_back(std::string(WordOf(finding.severity)) + " " + std::string(WordOf(finding.code)) +
                           " " + finding.place + ": " + finding.text);
        return told;
    }
    bool Has(FindingCode code) const {
        for (const Finding& finding : examined.findings)
            if (finding.code == code) return true;
        return false;
    }
    // Returns the texts of a row, separated by bars.
    static std::string Row(const Grid& grid, int row) {
        std::string cells;
        for (int col = 0; col < grid.Cols(); ++col) {
            if (col > 0) cells += "|";
            cells +=
                grid.IsCheckBox(row, col) ? (grid.Checked(row, col) ? "yes" : "no") : grid.Text(row, col);
        }
        return cells;
    }

    ForeignRecipe recipe;
    ExaminedRecipe examined;
};

}  // namespace tw::test
