#include "PlainRecipe.h"

#include <tuple>

#include "PlainArithmetic.h"
#include "platform/Error.h"
#include "values/Converter.h"
#include "values/NumberText.h"
#include "values/QuantityParsers.h"
#include "values/Text.h"

namespace tw::test {
namespace {

constexpr const char* kFormNames[] = {"Pellet", "Plug", "Leaf"};

int Columns(const std::string& grid) {
    if (grid == "gridGrain" || grid == "gridExtract") return 6;
    if (grid == "gridHops" || grid == "gridWater" || grid == "gridTreatment") return 8;
    if (grid == "gridPriming" || grid == "gridAdjuncts") return 4;
    return grid == "gridLog" ? 3 : 2;
}

bool IsFermentable(const std::string& grid) {
    return grid == "gridGrain" || grid == "gridExtract";
}

bool IsFreeText(const std::string& box) {
    return box == "txtName" || box == "txtNotes" || box == "txtNumBatches";
}

// True for the columns that accept a quantity, a form or a number; all others accept any text.
bool IsQuantity(const std::string& grid, int col) {
    if (grid == "gridAdjuncts" || grid == "gridLog") return false;
    if (grid == "gridWater") return col > 1;
    return grid == "gridPressure" || col > 0;
}

bool IsBlanks(const std::string& text) {
    return text.find_first_not_of(' ') == std::string::npos;
}

}  // namespace

PlainRecipe::PlainRecipe(const PlainCatalogue& catalogue, int hopForm, bool hopSock)
    : catalogue_(catalogue), hopForm_(hopForm), hopSock_(hopSock) {
    for (const char* box : {"txtName", "txtNumBatches", "txtBoilVol", "txtTotalVol", "txtOG", "txtFG",
                            "txtABV", "txtColor", "txtIBU", "txtCO2", "txtExtract", "txtHopExtraction",
                            "txtBG", "txtTemp", "txtDilutions", "txtFinalVol", "txtNotes"})
        boxes[box] = {};
    boxes["txtHopExtraction"].number = 1;
    for (const char* grid : {"gridGrain", "gridExtract", "gridHops", "gridPriming"}) {
        rows[grid] = {NewRow(grid)};
        totals[grid] = PlainRow(static_cast<std::size_t>(Columns(grid)));
    }
    for (const char* grid : {"gridTreatment", "gridAdjuncts", "gridLog"}) rows[grid] = {};
    rows["gridPressure"] = {PlainRow(2)};
    rows["gridWater"] = PlainRows(5, PlainRow(8));
    for (const char* button :
         {"cmdStrengthDetails", "cmdFinalVolDetails", "cmdIBUDetails", "cmdCalcTreatment"})
        buttons[button] = false;
}

PlainRow PlainRecipe::NewRow(const std::string& grid) const {
    PlainRow row(static_cast<std::size_t>(Columns(grid)));
    if (grid == "gridHops") {
        row[2].text = kFormNames[hopForm_];
        row[2].number = hopForm_;
        row[3].checked = hopSock_;
    }
    return row;
}

template <class Change>
PlainRecipe::Outcome PlainRecipe::Try(Change change) {
    const auto before = std::make_tuple(boxes, rows, totals, residual, method, packaging, buttons, commands);
    const auto goBack = [&] {
        std::tie(boxes, rows, totals, residual, method, packaging, buttons, commands) = before;
    };
    try {
        if (change()) {
            changed = true;
            return Outcome::Done;
        }
        goBack();
        return Outcome::Refused;
    } catch (const Fault&) {
    } catch (const Error&) {
    }
    goBack();
    return Outcome::Raised;
}

namespace {

// Sets number to the value read. Returns false and leaves number unchanged if there is none.
bool Take(const std::optional<double>& read, double& number) {
    number = read.value_or(number);
    return read.has_value();
}
bool Take(const Reading<double>& read, double& number) {
    number = read.ValueOr(number);
    return read.Accepted();
}

}  // namespace

bool PlainRecipe::ReadBox(const std::string& box, const std::string& text, double& number) {
    if (box == "txtExtract") return Take(ValidatePercent(text), number);
    if (box == "txtFG") return Take(ValidateGravity(text), number);
    if (box == "txtTemp") return Take(ValidateTemperature(text), number);
    if (box != "txtHopExtraction") return Take(ValidateVolume(text), number);
    if (text.empty()) {
        number = 1;
        return true;
    }
    double read = 0;
    if (!Take(ParseReal(text), read) || read < 0) return false;
    number = read;
    return true;
}

PlainRecipe::Outcome PlainRecipe::Commit(const std::string& box, const std::string& typed) {
    const std::string text = IsBlanks(typed) && !IsFreeText(box) ? "" : typed;
    if (boxes[box].text == text) return Outcome::Done;
    bool chainRan = false;
    const Outcome outcome = Try([&] {
        double number = 0;
        const bool freeText = IsFreeText(box);
        if (!freeText && !ReadBox(box, text, number)) return false;
        boxes[box] = {text, number};
        chainRan = true;
        if (box == "txtTemp") {
            if (!Carbonation()) return false;
            CarbonationCommand();
        } else if (!freeText) {
            RunBox(box);
        }
        return true;
    });
    // The old text is recalculated; this can be seen in a total of the water that had never been calculated.
    if (outcome == Outcome::Raised && chainRan) RunBox(box);
    return outcome;
}

void PlainRecipe::RunBox(const std::string& box) {
    const auto each = [&](const std::string& grid, auto step) {
        for (int row = 0; row < static_cast<int>(rows[grid].size()); ++row) step(row);
    };
    if (box == "txtBoilVol") {
        BoilGravity();
        AllIbus();
    } else if (box == "txtTotalVol") {
        for (const char* grid : {"gridGrain", "gridExtract"}) {
            each(grid, [&](int row) { Points(grid, row, false); });
            Sum(grid, 3);
            each(grid, [&](int row) { Hcu(grid, row, false); });
            Sum(grid, 5);
        }
        OriginalGravity();
        Color();
        each("gridTreatment", [&](int row) { Treatment(row); });
        TreatmentTotals();
        if (boxes["txtFinalVol"].text.empty()) AllPriming();
        CarbonationCommand();
        commands["EnableResizeRecipe"] = !boxes["txtTotalVol"].text.empty();
        buttons["cmdCalcTreatment"] = !Trim(boxes["txtTotalVol"].text).empty();
    } else if (box == "txtFinalVol") {
        AllPriming();
        CarbonationCommand();
    } else if (box == "txtExtract") {
        each("gridGrain", [&](int row) { Points("gridGrain", row, false); });
        Sum("gridGrain", 3);
        OriginalGravity();
    } else if (box == "txtHopExtraction") {
        AllIbus();
    } else if (box == "txtFG") {
        Alcohol();
    }
}

// Cells.

bool PlainRecipe::ReadCell(const std::string& grid, int row, int col, const std::string& text,
                           PlainCell& cell) {
    cell.text = text;
    cell.number = 0;
    cell.kind = ' ';
    if (text.empty()) return true;
    const auto number = [&] { return Take(ParseReal(text), cell.number) && cell.number >= 0; };
    if (IsFermentable(grid)) {
        if (col == 1) return Take(ValidatePounds(text), cell.number);
        return col == 0 || number();
    }
    if (grid == "gridHops") {
        if (col == 1) return Take(ValidatePercent(text), cell.number);
        if (col == 2) {
            for (int form = 0; form < 3; ++form)
                if (SameName(text, kFormNames[form])) {
                    cell.text = kFormNames[form];
                    cell.number = form;
                    return true;
                }
            return false;
        }
        if (col == 4) {
            if (Take(ParseOuncesAnyUnit(text), cell.number)) return cell.number >= 0;
            cell.kind = 'A';
            if (Take(ParseAAU(text), cell.number)) return cell.number >= 0;
            cell.kind = 'I';
            return Take(ParseIBU(text), cell.number) && cell.number >= 0;
        }
        const bool dry = rows[grid][static_cast<std::size_t>(row)][5].checked;
        return col != 6 || dry || Take(ValidateMinutes(text), cell.number);
    }
    if (grid == "gridPriming" && col == 1) return Take(ValidatePercent(text), cell.number);
    if (grid == "gridPriming" && col == 2) return Take(ValidateOunces(text), cell.number);
    if (grid == "gridPressure") return Take(ValidatePressure(text), cell.number) && KegVolumes(cell.number);
    if (grid == "gridTreatment" && col == 1) return Take(ValidateGrams(text), cell.number);
    if (grid == "gridWater" && col > 1) return number();
    return true;
}

PlainRecipe::Outcome PlainRecipe::Edit(const std::string& grid, int row, int col, const std::string& typed) {
    const std::string text = IsBlanks(typed) && IsQuantity(grid, col) ? "" : typed;
    const PlainCell old = rows[grid][static_cast<std::size_t>(row)][static_cast<std::size_t>(col)];
    if (old.text == text) return Outcome::Done;
    return Try([&] {
        PlainCell cell;
        if (!ReadCell(grid, row, col, text, cell)) return false;
        cell.bold = old.bold;
        EditNow(grid, row, col, cell);
        return true;
    });
}

void PlainRecipe::EditNow(const std::string& grid, int row, int col, const PlainCell& cell) {
    rows[grid][static_cast<std::size_t>(row)][static_cast<std::size_t>(col)] = cell;
    RunCell(grid, row, col);
}

void PlainRecipe::RunCell(const std::string& grid, int row, int col) {
    PlainRow& line = rows[grid][static_cast<std::size_t>(row)];
    const std::string& name = line[0].text;
    if (IsFermentable(grid)) {
        if (col == 0) {
            const auto& entries = grid == "gridGrain" ? catalogue_.grains : catalogue_.extracts;
            const auto found = entries.find(name);
            if (found == entries.end()) return;
            SetMaybe(line[2], found->second.ppg);
            SetMaybe(line[4], found->second.color);
        }
        if (col != 4) Points(grid, row, true);
        if (col != 2) Hcu(grid, row, true);
        if (col <= 1) AmountTotal(grid);
        if (col != 4) OriginalGravity();
        if (col != 2) Color();
    } else if (grid == "gridHops") {
        if (col == 0)
            if (const auto found = catalogue_.hops.find(name); found != catalogue_.hops.end())
                SetMaybe(line[1], found->second);
        Ibu(row);
        Sum(grid, 7);
        AmountTotal(grid);
        ShowIbu();
    } else if (grid == "gridPriming") {
        if (col == 0) {
            const auto found = catalogue_.sugars.find(name);
            if (found == catalogue_.sugars.end()) return;
            SetMaybe(line[1], found->second);
        }
        Priming(row);
        PrimingTotal();
        CarbonationCommand();
    } else if (grid == "gridPressure") {
        KegVolumes(std::nullopt);
        ShowCO2();
    } else if (grid == "gridTreatment") {
        if (col == 0) {
            const auto found = catalogue_.salts.find(name);
            for (std::size_t ion = 0; ion < 6; ++ion)
                line[2 + ion].number = found == catalogue_.salts.end() ? 0 : found->second[ion].value_or(0);
        }
        Treatment(row);
        TreatmentTotals();
    } else if (grid == "gridWater") {
        if (col == 1)
            if (const auto found = catalogue_.waters.find(line[1].text); found != catalogue_.waters.end())
                for (std::size_t ion = 0; ion < 6; ++ion)
                    SetNumber(line[2 + ion], found->second[ion].value_or(0));
        Needed();
    } else if (grid == "gridLog" && col == 2) {
        Yeast(row);
    }
}

void PlainRecipe::Yeast(int row) {
    const PlainRow& line = rows["gridLog"][static_cast<std::size_t>(row)];
    if (Upper(Trim(line[1].text)) != "PITCHED YEAST") return;
    const std::string notes(Trim(line[2].text));
    const auto found = catalogue_.yeasts.find(std::string(Trim(notes.substr(0, notes.find(" - ")))));
    if (found == catalogue_.yeasts.end() || !found->second || boxes["txtOG"].text.empty()) return;
    const double att = *found->second / 100;
    const double oe = SGToPlato(boxes["txtOG"].number);
    PlainBox& fg = boxes["txtFG"];
    fg.number = Sound(PlatoToSG(oe - att * oe));
    fg.text = FormatNumber(fg.number, "0.##0");
    Alcohol();
}

PlainRecipe::Outcome PlainRecipe::Check(int hopRow, int col, bool checked) {
    PlainRow& line = rows["gridHops"][static_cast<std::size_t>(hopRow)];
    if (line[static_cast<std::size_t>(col)].checked == checked) return Outcome::Done;
    return Try([&] {
        PlainRow& row = rows["gridHops"][static_cast<std::size_t>(hopRow)];
        row[static_cast<std::size_t>(col)].checked = checked;
        double minutes = 0;
        if (col == 5 && !checked && Take(ValidateMinutes(row[6].text), minutes)) row[6].number = minutes;
        RunCell("gridHops", hopRow, col);
        return true;
    });
}

PlainRecipe::Outcome PlainRecipe::ChooseMethod(int chosen) {
    if (chosen == method) return Outcome::Done;
    return Try([&] {
        method = chosen;
        AllIbus();
        return true;
    });
}

PlainRecipe::Outcome PlainRecipe::ChoosePackaging(int chosen) {
    if (chosen == packaging) return Outcome::Done;
    return Try([&] {
        packaging = chosen;
        ShowCO2();
        CarbonationCommand();
        return true;
    });
}

void PlainRecipe::ChooseStyle(int id) {
    if (id == style) return;
    style = id;
    changed = true;
    const auto found = catalogue_.styleWaters.find(id);
    if (found != catalogue_.styleWaters.end() && found->second) {
        Edit("gridWater", 1, 1, *found->second);
        return;
    }
    for (std::size_t col = 1; col < 8; ++col) Blank(rows["gridWater"][1][col]);
    Needed();
}

void PlainRecipe::InsertRow(const std::string& grid, int row) {
    rows[grid].insert(rows[grid].begin() + row, NewRow(grid));
    changed = true;
}

PlainRecipe::Outcome PlainRecipe::DeleteRow(const std::string& grid, int row) {
    const auto clear = [&](int col) {
        const PlainCell& cell = rows[grid][static_cast<std::size_t>(row)][static_cast<std::size_t>(col)];
        if (!cell.text.empty()) EditNow(grid, row, col, {});
    };
    return Try([&] {
        for (int col = 0; col < Columns(grid); ++col) {
            const bool computed = (IsFermentable(grid) && (col == 3 || col == 5)) ||
                                  (grid == "gridHops" && (col == 3 || col == 5 || col == 7)) ||
                                  (grid == "gridPriming" && col == 3) || (grid == "gridTreatment" && col > 1);
            if (!computed) clear(col);
        }
        rows[grid].erase(rows[grid].begin() + row);
        if (IsFermentable(grid)) {
            Sum(grid, 3);
            Sum(grid, 5);
            AmountTotal(grid);
            OriginalGravity();
            Color();
        } else if (grid == "gridHops") {
            Sum(grid, 7);
            AmountTotal(grid);
            ShowIbu();
        } else if (grid == "gridTreatment") {
            for (int i = 0; i < static_cast<int>(rows[grid].size()); ++i) Treatment(i);
            TreatmentTotals();
        } else if (grid == "gridPriming") {
            PrimingTotal();
        }
        return true;
    });
}

void PlainRecipe::Reopen() {
    for (auto& [grid, lines] : rows)
        for (PlainRow& line : lines)
            for (PlainCell& cell : line) cell.text = Trim(cell.text);
    for (auto& [name, box] : boxes) box.text = Trim(box.text);
    for (PlainRow& line : rows["gridHops"])
        if (line[2].text.empty()) line[2].text = kFormNames[0];
    // Ions are stored as numbers only.
    for (std::size_t row : {0u, 1u})
        for (std::size_t col = 2; col < 8; ++col)
            if (PlainCell& cell = rows["gridWater"][row][col]; !cell.Empty())
                cell.text = NumberText(cell.number);
    Needed();
    for (int row = 0; row < static_cast<int>(rows["gridTreatment"].size()); ++row) Treatment(row);
    TreatmentTotals();
    changed = false;
}

}  // namespace tw::test
