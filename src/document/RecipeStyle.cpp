#include "document/RecipeStyle.h"

#include <algorithm>

#include "values/NumberText.h"
#include "values/Text.h"

namespace tw {
namespace {

struct RangeLabel {
    Label RecipeRecord::*label;
    FigureRange StyleFigures::*range;
    const char* pattern;     // the format of the last or only number
    const char* lowPattern;  // the format of the first of two numbers
};

constexpr RangeLabel kRangeLabels[] = {
    {&RecipeRecord::lblOGStyle, &StyleFigures::og, "0.##0", "0.##0"},
    {&RecipeRecord::lblFGStyle, &StyleFigures::fg, "0.##0", "0.##0"},
    {&RecipeRecord::lblABVStyle, &StyleFigures::abv, "0.0 abv", "0.0"},
    {&RecipeRecord::lblColorStyle, &StyleFigures::color, "0 SRM", "0"},
    {&RecipeRecord::lblIBUStyle, &StyleFigures::ibu, "0", "0"},
    {&RecipeRecord::lblCO2Style, &StyleFigures::co2, "0.0", "0.0"},
};

std::string RangeText(const FigureRange& range, const RangeLabel& label) {
    if (!range.low && !range.high) return "";
    if (!range.low) return "<= " + FormatNumber(*range.high, label.pattern);
    if (!range.high) return ">= " + FormatNumber(*range.low, label.pattern);
    if (*range.low == *range.high) return FormatNumber(*range.low, label.pattern);
    return FormatNumber(*range.low, label.lowPattern) + " - " + FormatNumber(*range.high, label.pattern);
}

}  // namespace

void RecipeStyle::Reload() {
    std::vector<ListBox::Entry> entries{{"(None)", 0}};
    int selected = 0;
    for (StyleName& style : catalogue_.Styles()) {
        if (style.id == id_) selected = static_cast<int>(entries.size());
        entries.push_back({std::move(style.name), style.id});
    }
    recipe_.record.cmbStyle.SetEntries(std::move(entries), selected);
    if (selected == 0 && id_ != 0) {
        id_ = 0;
        EmptyRanges();
    }
}

void RecipeStyle::SetId(std::int64_t id) {
    id_ = id;
    Reload();
    Show(id_);
}

void RecipeStyle::Select(int index) {
    const auto& entries = recipe_.record.cmbStyle.Entries();
    if (index < 0 || index >= static_cast<int>(entries.size())) return;
    const std::int64_t id = entries[static_cast<std::size_t>(index)].itemData;
    if (id == id_) return;
    OneStep step(recipe_, ChangeType::Selection);
    Choose(id);
    step.Keep();
}

int RecipeStyle::EntryOf(std::string_view name) const {
    const auto& entries = recipe_.record.cmbStyle.Entries();
    const auto entryNamed = [&](std::string_view wanted) {
        const auto found = std::ranges::find_if(
            entries, [&](const ListBox::Entry& entry) { return SameName(entry.text, wanted); });
        return found == entries.end() ? -1 : static_cast<int>(found - entries.begin());
    };
    const int entry = entryNamed(name);
    if (entry >= 0) return entry;
    const std::optional<std::string> row = catalogue_.StyleNamed(name);
    return row ? entryNamed(*row) : -1;
}

NameList RecipeStyle::Names() const {
    std::vector<std::string> names;
    for (const ListBox::Entry& entry : recipe_.record.cmbStyle.Entries()) names.push_back(entry.text);
    return catalogue_.StyleNames(names);
}

bool RecipeStyle::ChangeStyle(std::string_view name) {
    Reload();
    const int entry = EntryOf(name);
    if (entry >= 0) Select(entry);
    return entry >= 0;
}

// Selects the style and enters its water profile as the target water. A style that does not exist means none.
void RecipeStyle::Choose(std::int64_t id) {
    const std::int64_t oldId = id_;
    const std::optional<std::string> profile = Show(id);
    recipe_.recorder.RecordEdit(
        recipe_.record.cmbStyle.Name(), EditValue::OfNumber(static_cast<double>(oldId)),
        EditValue::OfNumber(static_cast<double>(id_)), {ControlType::ComboBox, ChangeType::Selection});
    Grid& water = recipe_.record.gridWater;
    if (profile)
        cells_.EditCell(water, WaterRow::Target, WaterCol::Profile, Trim(*profile), Asking::Quietly);
    else
        cells_.ClearFrom(water, WaterRow::Target, WaterCol::Profile);
    recipe_.MarkChanged();
}

// Selects the style and shows its ranges; "(None)" if it does not exist. Returns its water profile, or
// nullopt if it has none.
std::optional<std::string> RecipeStyle::Show(std::int64_t id) {
    const std::optional<StyleFigures> style = catalogue_.Style(id);
    id_ = style ? id : 0;
    const int index = recipe_.record.cmbStyle.IndexOf(id_);
    // The list is out of date.
    if (index < 0 || id_ != id)
        Reload();
    else
        recipe_.record.cmbStyle.Select(index);
    if (!style) {
        EmptyRanges();
        return std::nullopt;
    }
    for (const RangeLabel& label : kRangeLabels)
        (recipe_.record.*label.label).SetText(RangeText((*style).*label.range, label));
    return style->waterProfile;
}

void RecipeStyle::EmptyRanges() {
    for (const RangeLabel& label : kRangeLabels) (recipe_.record.*label.label).SetText("");
}

void RecipeStyle::PutBack(std::int64_t id) {
    const std::int64_t before = id_;
    SetId(id);
    if (id_ != before) recipe_.MarkChanged();
}

}  // namespace tw
