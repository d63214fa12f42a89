#include "doctor/RecipeTypist.h"

#include <array>

#include "calc/Figures.h"
#include "doctor/AmountTexts.h"
#include "record/CellRules.h"

namespace tw {
namespace {

constexpr std::array<std::string_view, 3> kMethodOptions = {"optTinseth", "optRager", "optGaretz"};

// Runs entry, which returns false if the text is refused. An arithmetic fault refuses it, too.
template <class Entry>
bool Accepted(Entry entry) {
    try {
        return entry();
    } catch (const Error& error) {
        if (error.Source() != "Arithmetic") throw;
        return false;
    }
}

}  // namespace

void RecipeTypist::Type(const RecipePlan& plan) {
    document_.FillFrom([&] {
        RecipeRecord& r = document_.Record();
        name_ = plan.name;
        TypeField(r.txtName, plan.name);
        // The document is new, and so is its list of styles.
        if (plan.style) document_.Style().Select(document_.Style().EntryOf(*plan.style));
        if (plan.ibuMethod)
            document_.Options().Choose(kMethodOptions[static_cast<std::size_t>(*plan.ibuMethod)]);
        if (plan.bottled) document_.Options().Choose(*plan.bottled ? "optBottle" : "optKeg");
        for (const PlannedField& field : plan.fields) TypeField(r[field.field], field.text);
        for (const PlannedLine& line : plan.lines) TypeLine(line);
        FinishGravity(plan);
    });
}

void RecipeTypist::TypeField(TextBox& box, std::string_view text) {
    document_.Fields().SetText(box, text);
    if (Accepted([&] { return document_.Fields().CommitField(box, Asking::Quietly); })) return;
    document_.Fields().RestoreField(box);
    ReportRefused(box.Name(), text);
}

int RecipeTypist::RowFor(Grid& grid) {
    if (grid.Id() == GridId::Water) return WaterRow::Source;
    if (grid.Id() == GridId::Pressure) return Grid::FixedRows();
    const int last = grid.EndOfData() - 1;
    if (last < Grid::FixedRows() || !IsBlankRow(grid, last)) document_.Lines().AppendRow(grid);
    return grid.EndOfData() - 1;
}

void RecipeTypist::TypeLine(const PlannedLine& line) {
    Grid& grid = document_.Record()[line.grid];
    const int row = RowFor(grid);
    // Whether a hop is boiled decides how its time is read.
    if (grid.Id() == GridId::Hops) {
        document_.Cells().SetChecked(grid, row, HopCol::Sock, false);
        document_.Cells().SetChecked(grid, row, HopCol::DryHopped, line.dry);
    }
    for (const PlannedCell& cell : line.cells) TypeCell(grid, row, line, cell);
}

void RecipeTypist::TypeCell(Grid& grid, int row, const PlannedLine& line, const PlannedCell& cell) {
    if (grid.Text(row, cell.col) == cell.text) return;
    if (!Accepted(
            [&] { return document_.Cells().EditCell(grid, row, cell.col, cell.text, Asking::Quietly); }))
        ReportRefused(line.place, cell.text);
}

void RecipeTypist::FinishGravity(const RecipePlan& plan) {
    RecipeRecord& r = document_.Record();
    if (!plan.finishedGravity.empty()) {
        // The yeast may have given the same text, with a number that has more decimals.
        TypeField(r.txtFG, "");
        return TypeField(r.txtFG, plan.finishedGravity);
    }
    if (plan.attenuation && !r.txtOG.Empty()) {
        Accepted([&] {
            TypeField(r.txtFG, GravityText(AttenuatedGravity(r.txtOG.Value(), *plan.attenuation)));
            return true;
        });
    } else if (!plan.catalogueAttenuation && !r.txtFG.Empty()) {
        TypeField(r.txtFG, "");
    }
}

void RecipeTypist::ReportRefused(const std::string& place, std::string_view text) {
    findings_.Add(
        {Severity::NotCarried, FindingCode::NoNumber, name_, place,
         "'" + std::string(text.substr(0, text.find('\n'))) + "' cannot be entered here; it was left out."});
}

std::optional<std::string> ExtractionFor(const RecipeRecord& record, double gravity) {
    constexpr double kMost = 100;
    const double mashed = record.gridGrain.Total(GrainCol::Points);
    const double wanted = (gravity - 1) * 1000 - record.gridExtract.Total(GrainCol::Points);
    if (mashed <= 0 || wanted <= 0) return std::nullopt;
    const double extraction = record.txtExtract.Value() * wanted / mashed;
    if (extraction > kMost) return std::nullopt;
    return FewestDecimals(extraction) + "%";
}

std::optional<std::string> HopConstantFor(const RecipeRecord& record, double ibu) {
    if (record.txtIBU.Empty() || record.txtIBU.Value() <= 0 || ibu <= 0) return std::nullopt;
    return FewestDecimals(record.txtHopExtraction.Value() * ibu / record.txtIBU.Value());
}

}  // namespace tw
