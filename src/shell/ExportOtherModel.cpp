#include "shell/ExportOtherModel.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace tw {
namespace {

struct FormatRow {
    const char* name;
    const char* extension;
    const char* filterName;
    const char* filter;
};
// Indexed by ExchangeFormat.
constexpr std::array kFormats = {
    FormatRow{"BeerXML 1.0", "xml", "BeerXML Recipes (*.xml)", "*.xml"},
    FormatRow{"BeerJSON 1.0", "json", "BeerJSON Recipes (*.json)", "*.json"},
};

}  // namespace

ExportOtherModel::ExportOtherModel(const TWTree& tree)
    : RecipePickModel(kFormName, tree, {"Export for Other Programs", "Export", {}}) {
    AddControls({
        {"cmbFormat", [this] { return std::string(kFormats[static_cast<std::size_t>(format_)].name); },
         [this](std::string_view name) {
             const auto found = std::ranges::find(kFormats, name, &FormatRow::name);
             if (found == kFormats.end()) return false;
             SetFormat(static_cast<int>(found - kFormats.begin()));
             return true;
         }},
    });
}

std::vector<std::string> ExportOtherModel::Formats() {
    std::vector<std::string> names;
    for (const FormatRow& format : kFormats) names.emplace_back(format.name);
    return names;
}

FileDialogModel::Options ExportOtherModel::FileDialog() const {
    const FormatRow& format = kFormats[static_cast<std::size_t>(format_)];
    return {FileDialogModel::Kind::Save, Caption(), format.extension, format.filterName, format.filter, true};
}

}  // namespace tw
