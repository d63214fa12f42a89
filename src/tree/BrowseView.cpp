#include "tree/BrowseView.h"

#include <algorithm>

#include "tree/lvFiller.h"
#include "values/SettingText.h"
#include "values/Split.h"

namespace tw {
namespace {

constexpr std::string_view kSection = "Windows";
constexpr std::string_view kDescending = "descending";
constexpr int kLastColumn = lvFiller::kWindowColumns - 1;
// More than any screen has.
constexpr int kMostTwips = 1000000;

std::string ViewTypeText(const BrowseView& view) {
    return std::to_string(static_cast<int>(view.look.viewType));
}

void TakeViewType(BrowseView& view, std::string_view text) {
    if (const auto type = ReadWhole(text, 0, static_cast<int>(ListViewType::Details)))
        view.look.viewType = static_cast<ListViewType>(*type);
}

// "3", or "3 descending".
std::string OrderText(const BrowseView& view) {
    const std::string column = std::to_string(view.look.arrangeKey);
    return view.look.descending ? column + " " + std::string(kDescending) : column;
}

void TakeOrder(BrowseView& view, std::string_view text) {
    const std::string_view column = CutPart(text, ' ');
    if (TakeInto(view.look.arrangeKey, ReadWhole(column, 0, kLastColumn)))
        view.look.descending = text == kDescending;
}

// "0:3600 15 7:900": the columns from the left, with the width of those that have one.
std::string ColumnsText(const BrowseView& view) {
    std::string text;
    for (const ShownColumn& shown : view.columns) {
        if (!text.empty()) text += ' ';
        text += std::to_string(shown.column);
        if (shown.width > 0) text += ":" + std::to_string(shown.width);
    }
    return text;
}

void TakeColumns(BrowseView& view, std::string_view text) {
    ColumnLayout columns;
    for (std::string_view part : Split(text, ' ')) {
        const auto column = ReadWhole(CutPart(part, ':'), 0, kLastColumn);
        if (!column) return;
        const auto isSame = [&](const ShownColumn& other) { return other.column == *column; };
        if (std::ranges::any_of(columns, isSame)) return;
        columns.push_back({*column, ReadWhole(part, 0, kMostTwips).value_or(0)});
    }
    view.columns = std::move(columns);
}

std::string TreeWidthText(const BrowseView& view) {
    return std::to_string(view.treeWidth);
}

void TakeTreeWidth(BrowseView& view, std::string_view text) {
    TakeInto(view.treeWidth, ReadWhole(text, 0, kMostTwips));
}

struct KeyRow {
    std::string_view key;
    std::string (*textOf)(const BrowseView& view);
    void (*take)(BrowseView& view, std::string_view text);
};

constexpr KeyRow kKeys[] = {
    {"ListView", ViewTypeText, TakeViewType},
    {"ListOrder", OrderText, TakeOrder},
    {"ListColumns", ColumnsText, TakeColumns},
    {"ExplorerPage", [](const BrowseView& view) { return std::string(view.stylesPage ? "1" : "0"); },
     [](BrowseView& view, std::string_view text) { TakeInto(view.stylesPage, ReadFlag(text)); }},
    {"ExplorerRecipeEntry", [](const BrowseView& view) { return view.recipeEntry; },
     [](BrowseView& view, std::string_view text) { view.recipeEntry = text; }},
    {"ExplorerStyleEntry", [](const BrowseView& view) { return view.styleEntry; },
     [](BrowseView& view, std::string_view text) { view.styleEntry = text; }},
    {"ExplorerTreeWidth", TreeWidthText, TakeTreeWidth},
};

}  // namespace

void LoadBrowseView(const SettingsStore& store, BrowseView& view) {
    for (const KeyRow& row : kKeys) {
        const std::string text = store.GetSetting(kSection, row.key, {});
        if (!text.empty()) row.take(view, text);
    }
}

void StoreBrowseView(const SettingsStore& store, const BrowseView& view, const BrowseView& before) {
    for (const KeyRow& row : kKeys) {
        const std::string text = row.textOf(view);
        if (text != row.textOf(before)) store.SaveSetting(kSection, row.key, text, false);
    }
}

}  // namespace tw
