// The style of a recipe: the list, the choice, the ranges shown beside the figures.
#include <algorithm>

#include "document/RecipeDocument.h"
#include "store/CatalogueNames.h"
#include "values/NumberText.h"
#include "values/Text.h"

namespace tw {
namespace {

struct RangeLabel {
    Label RecipeRecord::*label;
    const char* low;
    const char* high;
    const char* pattern;     // of a single value and of the upper end
    const char* lowPattern;  // of the lower end of a range
};

constexpr RangeLabel kRangeLabels[] = {
    {&RecipeRecord::lblOGStyle, "OG_LO", "OG_HI", "0.##0", "0.##0"},
    {&RecipeRecord::lblFGStyle, "FG_LO", "FG_HI", "0.##0", "0.##0"},
    {&RecipeRecord::lblABVStyle, "ABV_LO", "ABV_HI", "0.0 abv", "0.0"},
    {&RecipeRecord::lblColorStyle, "COLOR_LO", "COLOR_HI", "0 SRM", "0"},
    {&RecipeRecord::lblIBUStyle, "IBU_LO", "IBU_HI", "0", "0"},
    {&RecipeRecord::lblCO2Style, "CO2_LO", "CO2_HI", "0.0", "0.0"},
};

std::string RangeText(const Field& low, const Field& high, const RangeLabel& label) {
    if (low.IsNull() && high.IsNull()) return "";
    if (low.IsNull()) return "<= " + FormatNumber(high.Number(), label.pattern);
    if (high.IsNull()) return ">= " + FormatNumber(low.Number(), label.pattern);
    if (low.Number() == high.Number()) return FormatNumber(low.Number(), label.pattern);
    return FormatNumber(low.Number(), label.lowPattern) + " - " + FormatNumber(high.Number(), label.pattern);
}

}  // namespace

void RecipeDocument::ReloadStyles() {
    std::vector<ListBox::Entry> entries{{"(None)", 0}};
    int selected = 0;
    for (Recordset rs = database_.OpenRecordset("SELECT NAME, ID FROM STYLES ORDER BY 1"); !rs.AtEnd();
         rs.MoveNext()) {
        const std::int64_t id = rs.Fields(1).Integer();
        if (id == styleId_) selected = static_cast<int>(entries.size());
        entries.push_back({rs.Fields(0).Text(), id});
    }
    record_.cmbStyle.SetEntries(std::move(entries), selected);
    if (selected == 0 && styleId_ != 0) {
        styleId_ = 0;
        EmptyStyleRanges();
    }
}

void RecipeDocument::SetStyleID(std::int64_t id) {
    styleId_ = id;
    ReloadStyles();
    ShowStyle(styleId_);
}

void RecipeDocument::SelectStyle(int index) {
    const auto& entries = record_.cmbStyle.Entries();
    if (index < 0 || index >= static_cast<int>(entries.size())) return;
    const std::int64_t id = entries[static_cast<std::size_t>(index)].itemData;
    if (id != styleId_) AsOneStep(ChangeType::Selection, [&] { ChooseStyle(id); });
}

int RecipeDocument::StyleEntryOf(std::string_view name) const {
    const auto& entries = record_.cmbStyle.Entries();
    const auto entryNamed = [&](std::string_view wanted) {
        const auto found = std::ranges::find_if(
            entries, [&](const ListBox::Entry& entry) { return SameName(entry.text, wanted); });
        return found == entries.end() ? -1 : static_cast<int>(found - entries.begin());
    };
    const int entry = entryNamed(name);
    if (entry >= 0) return entry;
    const std::optional<std::string> row = CatalogueNames(database_).RowOf(CatalogueKind::Style, name);
    return row ? entryNamed(*row) : -1;
}

bool RecipeDocument::ChangeStyle(std::string_view name) {
    ReloadStyles();
    const int entry = StyleEntryOf(name);
    if (entry >= 0) SelectStyle(entry);
    return entry >= 0;
}

// The style, and the water that it brings. A style that is gone is none.
void RecipeDocument::ChooseStyle(std::int64_t id) {
    const std::int64_t oldId = styleId_;
    const std::optional<std::string> profile = ShowStyle(id);
    recorder_.RecordEdit(record_.cmbStyle.Name(), EditValue::OfNumber(static_cast<double>(oldId)),
                         EditValue::OfNumber(static_cast<double>(styleId_)),
                         {ControlType::ComboBox, ChangeType::Selection});
    Grid& water = record_.gridWater;
    if (profile)
        EditCell(water, WaterRow::Target, WaterCol::Profile, Trim(*profile), Asking::Quietly);
    else
        ChangeRow(water, WaterRow::Target, WaterCol::Profile, [&] {
            for (int col = WaterCol::Profile; col < water.Cols(); ++col) water.Clear(WaterRow::Target, col);
            calculator_.UpdateTreatmentNeeded();
        });
    MarkChanged();
}

std::optional<std::string> RecipeDocument::ShowStyle(std::int64_t id) {
    // Even a row of that id would not be "(None)".
    const Recordset rs =
        database_.OpenRecordset("SELECT * FROM STYLES WHERE ID <> 0 AND ID = " + std::to_string(id));
    styleId_ = rs.AtEnd() ? 0 : id;
    const int index = record_.cmbStyle.IndexOf(styleId_);
    // A list that is not up to date is read again.
    if (index < 0 || styleId_ != id)
        ReloadStyles();
    else
        record_.cmbStyle.Select(index);
    if (rs.AtEnd()) {
        EmptyStyleRanges();
        return std::nullopt;
    }
    for (const RangeLabel& range : kRangeLabels) {
        const Field low = rs.Fields(range.low);
        const Field high = rs.Fields(range.high);
        (record_.*range.label).SetText(RangeText(low, high, range));
    }
    const Field profile = rs.Fields("WATER_PROFILE");
    if (profile.IsNull()) return std::nullopt;
    return profile.Text();
}

void RecipeDocument::EmptyStyleRanges() {
    for (const RangeLabel& range : kRangeLabels) (record_.*range.label).SetText("");
}

}  // namespace tw
