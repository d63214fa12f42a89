#include "document/SampleRecipe.h"

#include "document/RecipeDocument.h"

namespace tw {
namespace {

// What is typed, in US and in metric units.
struct Typed {
    const char* us = nullptr;
    const char* metric = nullptr;
    const char* In(TypingUnits units) const { return units == TypingUnits::US ? us : metric; }
};

struct Line {
    GridId grid = GridId::Grain;
    const char* name = nullptr;
    Typed amount{};
    const char* minutes = nullptr;  // of a hop
    bool dry = false;
};

constexpr Typed kBoilVolume{"6 gal", "23 L"}, kTotalVolume{"5 gal", "19 L"}, kTemperature{"68 F", "20 C"};

constexpr Line kLines[] = {
    {GridId::Grain, "Pale Malt, 2-Row (US)", {"9 lb", "4.1 kg"}},
    {GridId::Grain, "Caramel/Crystal Malt 40L", {"12 oz", "340 g"}},
    {GridId::Hops, "Magnum (US)", {"1/2 oz", "14 g"}, "60"},
    {GridId::Hops, "Cascade", {"1 oz", "28 g"}, "10"},
    {GridId::Hops, "Cascade", {"1 oz", "28 g"}, "5 days", true},
    {GridId::Priming, "Corn Sugar (Dextrose)", {"4 oz", "115 g"}},
};

constexpr std::string_view kNotes =
    "A pale ale to look around in: change what you like.\r\n"
    "It is stored in the database only if you save it.";

void Set(RecipeDocument& document, TextBox& box, std::string_view text) {
    document.Fields().SetText(box, text);
    document.Fields().CommitField(box, Asking::Quietly);
}

// Adds a line to its grid, in whose first row it goes if that is still blank.
void Add(RecipeDocument& document, const Line& line, TypingUnits units) {
    Grid& grid = document.Record()[line.grid];
    if (!grid.Empty(Grid::FixedRows(), 0)) document.Lines().AppendRow(grid);
    const int row = grid.EndOfData() - 1;
    const auto enter = [&](int col, std::string_view text) {
        document.Cells().EditCell(grid, row, col, text, Asking::Quietly);
    };
    enter(0, line.name);
    switch (line.grid) {
        case GridId::Hops:
            document.Cells().SetChecked(grid, row, HopCol::Sock, false);
            document.Cells().SetChecked(grid, row, HopCol::DryHopped, line.dry);
            enter(HopCol::Amount, line.amount.In(units));
            enter(HopCol::Time, line.minutes);
            break;
        case GridId::Priming:
            enter(PrimingCol::Amount, line.amount.In(units));
            break;
        default:
            enter(GrainCol::Amount, line.amount.In(units));
    }
}

}  // namespace

void FillSample(RecipeDocument& document, TypingUnits units) {
    document.FillFrom([&] {
        RecipeRecord& r = document.Record();
        Set(document, r.txtName, "First Pale Ale");
        document.Style().ChangeStyle("American Pale Ale");
        Set(document, r.txtBoilVol, kBoilVolume.In(units));
        Set(document, r.txtTotalVol, kTotalVolume.In(units));
        Set(document, r.txtExtract, "72%");
        Set(document, r.txtTemp, kTemperature.In(units));
        document.Options().Choose("optTinseth");
        document.Options().Choose("optBottle");
        for (const Line& line : kLines) Add(document, line, units);
        document.Yeast().Choose("Fermentis SafAle US-05");
        Set(document, r.txtNotes, kNotes);
    });
}

}  // namespace tw
