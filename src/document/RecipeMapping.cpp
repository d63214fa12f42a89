// Controls and cells of a document to the rows of its tables and back. What is NULL in the database leaves
// the control or the cell as it was.
#include "document/RecipeDocument.h"
#include "values/NumberText.h"
#include "values/ParserValidater.h"
#include "values/Text.h"

namespace tw {
namespace {

// More lines than any recipe has; a place beyond it is damage, and growing the grid to it would never end.
constexpr int kMostLines = 20000;

std::string Trimmed(std::string_view text) {
    return std::string(Trim(text));
}

// The last committed text beside its number, so that the two always agree.
StoredQuantity Typed(const TextBox& box) {
    return {Trimmed(box.Committed()), box.Value()};
}

StoredQuantity Computed(const TextBox& box) {
    return {Trimmed(box.Text()), box.Value()};
}

// Blanks alone are no quantity.
std::string_view QuantityText(std::string_view stored) {
    return IsBlank(stored) ? std::string_view() : stored;
}

// A hop amount in AAUs or IBUs is no plain number and takes 0: intended.
StoredQuantity QuantityOf(const Grid& grid, int row, int col) {
    const CellValue value = grid.At(row, col).value;
    return {Trimmed(grid.Text(row, col)), value.kind == CellValue::Kind::Number ? value.number : 0};
}

StoredWater WaterOf(const Grid& water, int row) {
    StoredWater stored;
    stored.profile = Trimmed(water.Text(row, WaterCol::Profile));
    for (int ion = 0; ion < kIons; ++ion)
        stored.ions[static_cast<std::size_t>(ion)] = Trimmed(water.Text(row, WaterCol::FirstIon + ion));
    return stored;
}

// Calls take(grid row, ROW_ID) for each data row, blank ones too.
template <class Take>
void EachLine(const Grid& grid, Take take) {
    for (int row = Grid::FixedRows(); row < grid.EndOfData(); ++row) take(row, row - Grid::FixedRows());
}

std::vector<StoredGrain> FermentablesOf(const Grid& grid) {
    std::vector<StoredGrain> lines;
    EachLine(grid, [&](int row, int id) {
        lines.push_back({id, Trimmed(grid.Text(row, GrainCol::Name)), QuantityOf(grid, row, GrainCol::Amount),
                         QuantityOf(grid, row, GrainCol::Ppg), QuantityOf(grid, row, GrainCol::Color)});
    });
    return lines;
}

StoredSalt SaltOf(const Grid& grid, int row, int id) {
    StoredSalt salt{
        id, Trimmed(grid.Text(row, TreatmentCol::Name)), QuantityOf(grid, row, TreatmentCol::Amount), {}};
    for (int ion = 0; ion < kIons; ++ion)
        salt.ions[static_cast<std::size_t>(ion)] = grid.Number(row, TreatmentCol::FirstIon + ion);
    return salt;
}

}  // namespace

StoredRecipe RecipeDocument::ToStored() const {
    const RecipeRecord& r = record_;
    StoredRecipe s;
    s.name = Trimmed(BeerName());
    s.styleId = styleId_;
    s.folderId = folderId_;
    s.createdWhen = createdWhen_;
    s.bv = Typed(r.txtBoilVol);
    s.tv = Typed(r.txtTotalVol);
    s.dilutions = Typed(r.txtDilutions);
    s.fv = Typed(r.txtFinalVol);
    s.bg = Computed(r.txtBG);
    s.og = Computed(r.txtOG);
    s.fg = Typed(r.txtFG);
    s.abv = Trimmed(r.txtABV.Text());
    s.color = Trimmed(r.txtColor.Text());
    s.ibu = Trimmed(r.txtIBU.Text());
    s.co2Vols = Trimmed(r.txtCO2.Text());
    s.notes = Trimmed(r.txtNotes.Text());
    s.numBatches = Trimmed(r.txtNumBatches.Text());
    s.grainExtract = Typed(r.txtExtract);
    s.ibuMethod = r.grpIBUMethod.Selected();
    s.hopExtract = Typed(r.txtHopExtraction);
    s.bottled = r.Bottled();
    s.kegPsi = QuantityOf(r.gridPressure, 1, PressureCol::Pressure);
    s.kegVols = Trimmed(r.gridPressure.Text(1, PressureCol::Volumes));
    s.temperature = Typed(r.txtTemp);
    s.source = WaterOf(r.gridWater, WaterRow::Source);
    s.target = WaterOf(r.gridWater, WaterRow::Target);
    s.grains = FermentablesOf(r.gridGrain);
    s.extracts = FermentablesOf(r.gridExtract);
    LinesToStored(s);
    return s;
}

void RecipeDocument::LinesToStored(StoredRecipe& s) const {
    const RecipeRecord& r = record_;
    EachLine(r.gridHops, [&](int row, int id) {
        const Grid& g = r.gridHops;
        s.hops.push_back({id, Trimmed(g.Text(row, HopCol::Variety)),
                          static_cast<std::int64_t>(g.Number(row, HopCol::Form)),
                          g.Checked(row, HopCol::Sock), g.Checked(row, HopCol::DryHopped),
                          QuantityOf(g, row, HopCol::Amount), QuantityOf(g, row, HopCol::AlphaAcid),
                          QuantityOf(g, row, HopCol::Time)});
    });
    EachLine(r.gridTreatment, [&](int row, int id) { s.salts.push_back(SaltOf(r.gridTreatment, row, id)); });
    EachLine(r.gridPriming, [&](int row, int id) {
        const Grid& g = r.gridPriming;
        s.sugars.push_back({id, Trimmed(g.Text(row, PrimingCol::Sugar)),
                            QuantityOf(g, row, PrimingCol::Fermentable),
                            QuantityOf(g, row, PrimingCol::Amount)});
    });
    EachLine(r.gridAdjuncts, [&](int row, int id) {
        const Grid& g = r.gridAdjuncts;
        s.adjuncts.push_back(
            {id, Trimmed(g.Text(row, AdjunctCol::Name)), Trimmed(g.Text(row, AdjunctCol::Amount)),
             Trimmed(g.Text(row, AdjunctCol::Time)), Trimmed(g.Text(row, AdjunctCol::WhenAdded))});
    });
    EachLine(r.gridLog, [&](int row, int id) {
        const Grid& g = r.gridLog;
        s.log.push_back({id, Trimmed(g.Text(row, LogCol::Date)), Trimmed(g.Text(row, LogCol::Action)),
                         Trimmed(g.Text(row, LogCol::Notes))});
    });
}

void RecipeDocument::CheckHopForms(const StoredRecipe& stored) {
    for (const StoredHop& hop : stored.hops)
        if (hop.form && (*hop.form < 0 || *hop.form >= static_cast<std::int64_t>(kHopForms.size())))
            throw Error("RecipeDocument.OpenRecipe",
                        "Hop form " + std::to_string(*hop.form) + " is not known", 9);
}

// A box's text and number. A number that is missing, or 0 behind a text that tells another one, is read from
// the text again, so that a gap in the row does no harm.
void RecipeDocument::FillBox(TextBox& box, const StoredQuantity& stored) {
    if (stored.text) box.SetText(QuantityText(*stored.text));
    if (stored.data) box.SetValue(*stored.data);
    if (!box.Computed()) box.SetCommitted(box.Text());
    if (stored.data ? *stored.data != 0 : !stored.text) return;
    box.SetValue(NumberTold(box, box.Text(), box.Value()));
}

void RecipeDocument::FillFields(const StoredRecipe& s) {
    RecipeRecord& r = record_;
    createdWhen_ = s.createdWhen;
    r.txtName.SetText(s.name);
    r.txtName.SetCommitted(s.name);
    if (s.folderId) folderId_ = *s.folderId;
    if (s.styleId) SetStyleID(*s.styleId);
    FillBox(r.txtBoilVol, s.bv);
    FillBox(r.txtTotalVol, s.tv);
    FillBox(r.txtDilutions, s.dilutions);
    FillBox(r.txtFinalVol, s.fv);
    FillBox(r.txtBG, s.bg);
    FillBox(r.txtOG, s.og);
    FillBox(r.txtFG, s.fg);
    const auto show = [](TextBox& box, const StoredText& text) {
        if (text) box.SetText(*text);
        if (!box.Computed()) box.SetCommitted(box.Text());
    };
    show(r.txtABV, s.abv);
    show(r.txtColor, s.color);
    show(r.txtIBU, s.ibu);
    show(r.txtCO2, s.co2Vols);
    show(r.txtNotes, s.notes);
    show(r.txtNumBatches, s.numBatches);
    FillBox(r.txtExtract, s.grainExtract);
    if (s.ibuMethod) r.grpIBUMethod.Select(*s.ibuMethod == 0 ? 0 : *s.ibuMethod == 1 ? 1 : 2);
    FillBox(r.txtHopExtraction, s.hopExtract);
    if (s.bottled) r.grpPkgMethod.Select(*s.bottled ? 0 : 1);
    FillBox(r.txtTemp, s.temperature);
    const bool gravities = !r.txtOG.Empty() && !r.txtFG.Empty();
    r.cmdStrengthDetails.SetEnabled(gravities);
    r.cmdFinalVolDetails.SetEnabled(gravities);
    r.cmdCalcTreatment.SetEnabled(!IsBlank(r.txtTotalVol.Text()));
}

void RecipeDocument::FillWaterAndKeg(const StoredRecipe& s) {
    const auto fillNumber = [](Grid& grid, int row, int col, const StoredText& text) {
        double number = 0;
        if (text && ReadNumber(*text, number)) {
            grid.SetText(row, col, *text);
            grid.SetValue(row, col, CellValue::Of(number));
        } else {
            grid.Clear(row, col);
        }
    };
    Grid& water = record_.gridWater;
    const auto fillWater = [&](int row, const StoredWater& stored) {
        water.SetText(row, WaterCol::Profile, stored.profile.value_or(""));
        for (int ion = 0; ion < kIons; ++ion)
            fillNumber(water, row, WaterCol::FirstIon + ion, stored.ions[static_cast<std::size_t>(ion)]);
    };
    fillWater(WaterRow::Source, s.source);
    fillWater(WaterRow::Target, s.target);
    Grid& keg = record_.gridPressure;
    FillCell(keg, 1, PressureCol::Pressure, {s.kegPsi.text.value_or(""), s.kegPsi.data.value_or(0)});
    fillNumber(keg, 1, PressureCol::Volumes, s.kegVols);
}

std::vector<std::string> RecipeDocument::FillGrids(const StoredRecipe& s) {
    RecipeRecord& r = record_;
    std::vector<std::string> failed;
    const auto recalculate = [&](const std::string& figure, const std::function<void()>& operation) {
        if (!Recalculate(operation)) failed.push_back(figure);
    };
    recalculate("Treatment Needed", [&] { calculator_.UpdateTreatmentNeeded(); });
    const auto fillFermentables = [&](Grid& grid, const std::vector<StoredGrain>& lines) {
        FillFermentables(grid, lines);
        recalculate("Points and HCU of " + grid.ColumnAt(0).header, [&] {
            calculator_.ShowGridTotal(grid);
            calculator_.RecalcPoints(grid, grid.Id() == GridId::Grain);
            calculator_.RecalcHCU(grid);
        });
    };
    fillFermentables(r.gridGrain, s.grains);
    fillFermentables(r.gridExtract, s.extracts);
    recalculate("Color", [&] { calculator_.CalcColor(); });
    for (const StoredHop& hop : s.hops) FillHop(hop);
    FinishGrid(r.gridHops);
    recalculate("IBUs", [&] {
        calculator_.ShowGridTotal(r.gridHops);
        calculator_.RecalcHops();
    });
    for (const StoredSalt& salt : s.salts) {
        const int row = GrowTo(r.gridTreatment, salt.rowId);
        FillText(r.gridTreatment, row, TreatmentCol::Name, salt.name);
        FillCell(r.gridTreatment, row, TreatmentCol::Amount, salt.amount);
        for (int ion = 0; ion < kIons; ++ion)
            r.gridTreatment.SetValue(row, TreatmentCol::FirstIon + ion,
                                     CellValue::Of(salt.ions[static_cast<std::size_t>(ion)].value_or(0)));
    }
    FinishGrid(r.gridTreatment);
    recalculate("Treatment Totals", [&] { calculator_.RecalcTreatment(); });
    for (const StoredSugar& sugar : s.sugars) {
        const int row = GrowTo(r.gridPriming, sugar.rowId);
        FillText(r.gridPriming, row, PrimingCol::Sugar, sugar.name);
        FillCell(r.gridPriming, row, PrimingCol::Fermentable, sugar.ferment);
        FillCell(r.gridPriming, row, PrimingCol::Amount, sugar.amount);
    }
    FinishGrid(r.gridPriming);
    recalculate("CO2 Amount", [&] {
        calculator_.CalcCarbonation();
        calculator_.RecalcPriming();
    });
    FillTextGrids(s);
    return failed;
}

void RecipeDocument::FillFermentables(Grid& grid, const std::vector<StoredGrain>& lines) {
    for (const StoredGrain& line : lines) {
        const int row = GrowTo(grid, line.rowId);
        FillText(grid, row, GrainCol::Name, line.name);
        FillCell(grid, row, GrainCol::Amount, line.amount);
        FillCell(grid, row, GrainCol::Ppg, line.ppg);
        FillCell(grid, row, GrainCol::Color, line.color);
    }
    FinishGrid(grid);
}

void RecipeDocument::FillHop(const StoredHop& hop) {
    Grid& grid = record_.gridHops;
    const int row = GrowTo(grid, hop.rowId);
    FillText(grid, row, HopCol::Variety, hop.name);
    FillCell(grid, row, HopCol::AlphaAcid, hop.aa);
    const std::int64_t form = hop.form.value_or(0);
    grid.SetText(row, HopCol::Form, kHopForms[static_cast<std::size_t>(form)].name);
    grid.SetValue(row, HopCol::Form, CellValue::Of(static_cast<double>(form)));
    if (hop.sock) grid.SetChecked(row, HopCol::Sock, *hop.sock);
    if (hop.dry) grid.SetChecked(row, HopCol::DryHopped, *hop.dry);
    FillCell(grid, row, HopCol::Time, hop.duration);
    FillCell(grid, row, HopCol::Amount, hop.amount);
    // The number column cannot tell AAUs and IBUs: their kind and number are taken from the text again.
    if (grid.Empty(row, HopCol::Amount)) return;
    const auto value = ReadQuietly(grid, row, HopCol::Amount, grid.Text(row, HopCol::Amount));
    if (value && value->kind != CellValue::Kind::Number) grid.SetValue(row, HopCol::Amount, *value);
}

void RecipeDocument::FillTextGrids(const StoredRecipe& s) {
    Grid& adjuncts = record_.gridAdjuncts;
    for (const StoredAdjunct& line : s.adjuncts) {
        const int row = GrowTo(adjuncts, line.rowId);
        FillText(adjuncts, row, AdjunctCol::Name, line.name);
        FillText(adjuncts, row, AdjunctCol::Amount, line.amount);
        FillText(adjuncts, row, AdjunctCol::WhenAdded, line.when);
        FillText(adjuncts, row, AdjunctCol::Time, line.duration);
    }
    FinishGrid(adjuncts);
    Grid& log = record_.gridLog;
    for (const StoredLogLine& line : s.log) {
        const int row = GrowTo(log, line.rowId);
        FillText(log, row, LogCol::Date, line.date);
        FillText(log, row, LogCol::Action, line.action);
        FillText(log, row, LogCol::Notes, line.notes);
    }
    FinishGrid(log);
}

int RecipeDocument::GrowTo(Grid& grid, int rowId) {
    if (rowId < 0 || rowId >= kMostLines)
        throw Error("RecipeDocument.OpenRecipe",
                    "A line of " + grid.Name() + " has the impossible place " + std::to_string(rowId), 9);
    while (grid.DataRows() <= rowId) AddBlankRow(grid, grid.EndOfData());
    return Grid::FixedRows() + rowId;
}

void RecipeDocument::FillText(Grid& grid, int row, int col, const StoredText& text) {
    if (text) grid.SetText(row, col, *text);
}

void RecipeDocument::FillCell(Grid& grid, int row, int col, const StoredQuantity& stored) {
    if (stored.text) grid.SetText(row, col, QuantityText(*stored.text));
    if (stored.data) grid.SetValue(row, col, CellValue::Of(*stored.data));
    if (grid.Empty(row, col) || stored.data.value_or(0) != 0) return;
    // As in a box: what is missing is read from the text.
    const std::optional<CellValue> value = ReadQuietly(grid, row, col, grid.Text(row, col));
    if (value && (!stored.data || value->number != 0)) grid.SetValue(row, col, *value);
}

void RecipeDocument::FinishGrid(Grid& grid) {
    if (grid.DataRows() > 0) grid.SetCurrent(Grid::FixedRows(), 0);
    grid.NotifyFilled();
}

// A stored number that breaks a formula leaves that figure as it is; the recipe opens all the same.
bool RecipeDocument::Recalculate(const std::function<void()>& operation) {
    return Quietly([&] {
        operation();
        return true;
    });
}

std::optional<CellValue> RecipeDocument::ReadQuietly(const Grid& grid, int row, int col,
                                                     std::string_view text) const {
    try {
        const Reading<CellValue> read = ReadCell(grid, row, col, text);
        if (read) return *read;
    } catch (const Error&) {
        // An arithmetic fault tells no number, as a text that is refused.
    }
    return std::nullopt;
}

bool RecipeDocument::Quietly(const std::function<bool()>& reading) {
    try {
        return reading();
    } catch (const Error&) {
        return false;
    }
}

}  // namespace tw
