#include "doctor/ExportFindingsModel.h"

namespace tw {
namespace {

std::vector<FindingLine> LinesOf(const Findings& findings) {
    std::vector<FindingLine> lines;
    for (const Finding& finding : findings.All()) {
        lines.push_back(LineOf(finding));
        lines.back().place = PlaceWithRecipe(finding.recipe, finding.place);
    }
    return lines;
}

}  // namespace

ExportFindingsModel::ExportFindingsModel(const std::string& file, const Findings& findings)
    : FormModel(kFormName),
      fileText_("Exported to " + file + ", which says these things in its own way or not at all:"),
      lines_(Fold(LinesOf(findings))) {
    AddControls({
        {"lblFile", [this] { return fileText_; }},
        {"treeFindings", [this] { return TextOf(lines_); }},
    });
    AddButtons({{"cmdOK", [this] { Accept(); }}});
}

}  // namespace tw
