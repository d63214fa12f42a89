// A second, plain calculation of a recipe, independent of the program's: numbers are doubles, each
// recalculation is one list of steps, and an error in the middle is undone by restoring a copy. The model
// test compares the program with it after every edit.
#pragma once

#include <map>
#include <optional>
#include <string>
#include <vector>

namespace tw::test {

// The values of the catalogue for a name; an absent number is NULL.
struct PlainCatalogue {
    struct Fermentable {
        std::optional<double> ppg, color;
    };
    using Ions = std::vector<std::optional<double>>;
    std::map<std::string, Fermentable> grains, extracts;
    std::map<std::string, std::optional<double>> hops, sugars, yeasts;
    std::map<std::string, Ions> waters, salts;
    std::map<int, std::optional<std::string>> styleWaters;  // water profile by style
};

struct PlainCell {
    std::string text;
    double number = 0;
    char kind = ' ';  // for a hop amount: ' ' weight, 'A' AAU, 'I' IBU
    bool checked = false;
    bool bold = false;
    bool Empty() const { return text.empty(); }
};
using PlainRow = std::vector<PlainCell>;
using PlainRows = std::vector<PlainRow>;

struct PlainBox {
    std::string text;
    double number = 0;
};

class PlainRecipe {
  public:
    enum class Outcome { Done, Refused, Raised };

    explicit PlainRecipe(const PlainCatalogue& catalogue, int hopForm, bool hopSock);

    // Edits as the brewer makes them. Refused and Raised leave everything unchanged.
    Outcome Commit(const std::string& box, const std::string& typed);
    Outcome Edit(const std::string& grid, int row, int col, const std::string& typed);
    Outcome Check(int hopRow, int col, bool checked);
    Outcome ChooseMethod(int chosen);
    Outcome ChoosePackaging(int chosen);
    void ChooseStyle(int id);
    // row is counted from 0 among the data rows.
    void InsertRow(const std::string& grid, int row);
    Outcome DeleteRow(const std::string& grid, int row);
    // Scaling (PlainScaling.cpp). Refused means that the operation stopped on the way and may have changed
    // something. carbonate is the answer to the question about the carbonation. A final volume that would be
    // 0 or less refuses a resize before anything changes.
    Outcome Resize(double size, const std::string& text, bool boil, bool keepIbu, bool carbonate);
    Outcome ChangeOG(double og, bool keepIbu);
    Outcome ChangeIBU(double ibu);
    Outcome ChangeCO2(double volumes);
    // Applies the changes that saving and opening make to what is shown.
    void Reopen();

    std::map<std::string, PlainBox> boxes;
    std::map<std::string, PlainRows> rows;   // the data rows of each grid
    std::map<std::string, PlainRow> totals;  // the last row of the grids that have one
    PlainCell residual;                      // CO2 left in the beer
    int method = 0, packaging = 0, style = 0;
    bool changed = false;
    std::map<std::string, bool> buttons;
    std::map<std::string, bool> commands;

  private:
    template <class Change>
    Outcome Try(Change change);
    bool ReadBox(const std::string& box, const std::string& text, double& number);
    bool ReadCell(const std::string& grid, int row, int col, const std::string& text, PlainCell& cell);
    void RunBox(const std::string& box);
    void RunCell(const std::string& grid, int row, int col);
    void EditNow(const std::string& grid, int row, int col, const PlainCell& cell);
    PlainRow NewRow(const std::string& grid) const;

    void Points(const std::string& grid, int row, bool total);
    void Hcu(const std::string& grid, int row, bool total);
    void Sum(const std::string& grid, int col);
    void AmountTotal(const std::string& grid);
    void OriginalGravity();
    void BoilGravity();
    void Alcohol();
    void Color();
    void Ibu(int row);
    void AllIbus();
    void ShowIbu();
    void Priming(int row);
    void PrimingTotal();
    void AllPriming();
    void ShowCO2();
    bool KegVolumes(std::optional<double> pressure);
    bool Carbonation();
    void CarbonationCommand();
    void Treatment(int row);
    void TreatmentTotals();
    void Needed();
    void MarkTotal(int col);
    void Yeast(int row);

    template <class Change>
    Outcome TryForGood(Change change);
    std::string AllTexts() const;
    static void Amount(PlainCell& cell, double number, int decimals, const std::string& unit);
    void Amounts(const std::string& grid, double factor);
    void AllFermentables();
    bool KeepIbu(double old);
    bool CarbonateNow(double volumes);

    const PlainCatalogue& catalogue_;
    int hopForm_;
    bool hopSock_;
};

}  // namespace tw::test
