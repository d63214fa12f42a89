#include "reports/PrintWizardModel.h"

#include <algorithm>

#include "reports/PrintFmtOptionsModel.h"
#include "values/Text.h"

namespace tw {
namespace {

constexpr std::string_view kFilters[] = {"Text Files (*.TXT)|*.TXT|All Files (*.*)|*.*||",
                                         "HTML Files (*.HTM,*.HTML)|*.HTM;*.HTML|All Files (*.*)|*.*||",
                                         "RichText Files (*.RTF)|*.RTF|All Files (*.*)|*.*||"};

}  // namespace

std::string_view PrintWizardModel::PageTitle(int page) {
    constexpr std::string_view kTitles[kPages] = {"Choose Units", "Choose Recipes", "Choose Output"};
    return kTitles[page];
}

PrintWizardModel::PrintWizardModel(const Context& context, int reportType) : context_(context) {
    if (reportType > 0 && reportType < static_cast<int>(kReportTypeNames.size()))
        request_.type = static_cast<ReportType>(reportType);
    recipes_.SetTree(&context_.tree);
    recipes_.SetAction("Print");
    recipes_.Initialize();
}

bool PrintWizardModel::IsEnabled(std::string_view button) const {
    if (button == "cmdBack") return page_ > Units;
    if (button != "cmdNext") return true;
    if (page_ == Recipes) return recipes_.SelectionCount() > 0;
    return page_ != Output || !request_.path.empty();
}

std::vector<DialogControl> PrintWizardModel::Controls() const {
    std::vector<DialogControl> controls;
    for (const ReportUnitGroup& group : ReportUnitGroups())
        for (const ReportUnitGroup::Option& option : group.options)
            controls.push_back(
                {std::string(option.name), request_.units.IsChosen(option.name) ? "yes" : "no"});
    controls.push_back({"treeRecipes", std::string(recipes_.treeRecipes().SelectedKey())});
    std::string names;
    for (const std::string& name : recipes_.Selection()) names += (names.empty() ? "" : ", ") + name;
    controls.push_back({"lstRecipes", names});
    controls.push_back(
        {"cmbFileType", std::string(kReportTypeNames[static_cast<std::size_t>(request_.type)])});
    controls.push_back({"txtFileName", request_.path});
    return controls;
}

bool PrintWizardModel::SetControl(std::string_view name, std::string_view text) {
    if (request_.units.Knows(name)) return text == "yes" && request_.units.Choose(name);
    if (name == "treeRecipes") return recipes_.treeRecipes().SelectKey(text);
    if (name == "cmbFileType") return ChooseType(text);
    if (name == "lstRecipes") {
        const auto& names = recipes_.Selection();
        const auto found = std::ranges::find_if(names, [&](const auto& n) { return SameName(n, text); });
        if (found == names.end()) return false;
        recipes_.SetCurrent(static_cast<int>(found - names.begin()));
        return true;
    }
    if (name != "txtFileName") return false;
    request_.path = text;
    return true;
}

bool PrintWizardModel::Press(std::string_view button) {
    const bool on = IsEnabled(button);
    if (button == "cmdCancel")
        CloseBox();
    else if (button == "cmdBack")
        page_ -= on ? 1 : 0;
    else if (button == "cmdConfigure")
        Configure();
    else if (button == "cmdBrowse")
        Browse();
    else if (button != "cmdNext")
        return recipes_.Press(button);
    else if (on)
        Next();
    return true;
}

void PrintWizardModel::Next() {
    if (page_ == Output)
        Finish();
    else
        ++page_;
}

void PrintWizardModel::Finish() {
    request_.names = recipes_.Selection();
    open_ = !CreateReportFile(context_.database, context_.store, request_, context_.own, context_.messages);
}

void PrintWizardModel::Configure() {
    PrintFmtOptionsModel options(request_.type, context_.store, context_.dialogs);
    context_.dialogs.ShowModal(options);
}

void PrintWizardModel::Browse() {
    if (context_.files == nullptr) return;
    const auto chosen =
        context_.files->AskSaveFile({"Select Report File", std::string(ReportExtension(request_.type)),
                                     std::string(kFilters[static_cast<int>(request_.type)]), request_.path});
    if (chosen) request_.path = *chosen;
}

bool PrintWizardModel::ChooseType(std::string_view text) {
    const auto* const found =
        std::ranges::find_if(kReportTypeNames, [&](auto name) { return SameName(name, text); });
    if (found == kReportTypeNames.end()) return false;
    const auto type = static_cast<ReportType>(found - kReportTypeNames.begin());
    if (type == request_.type) return true;
    request_.type = type;
    SwapExtension();
    return true;
}

// A dot in the name of a folder begins no extension. A name without one gets it, an empty name too.
void PrintWizardModel::SwapExtension() {
    std::string& path = request_.path;
    const std::size_t folder = path.find_last_of("/\\");
    const std::size_t dot = path.rfind('.');
    const bool hasExtension = dot != std::string::npos && (folder == std::string::npos || dot > folder);
    if (hasExtension) path.erase(dot);
    path.append(".").append(ReportExtension(request_.type));
}

}  // namespace tw
