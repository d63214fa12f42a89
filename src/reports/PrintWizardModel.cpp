#include "reports/PrintWizardModel.h"

#include <algorithm>

#include "reports/PrintFormatModel.h"
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

PrintWizardModel::PrintWizardModel(const Context& context, int reportType)
    : FormModel(kFormName), context_(context) {
    if (reportType > 0 && reportType < static_cast<int>(kReportTypeNames.size()))
        request_.type = static_cast<ReportType>(reportType);
    recipes_.SetTree(&context_.tree);
    recipes_.SetAction("Print");
    recipes_.Initialize();
    AddUnits();
    AddControls({
        {"treeRecipes", [this] { return std::string(recipes_.treeRecipes().SelectedKey()); },
         [this](std::string_view key) { return recipes_.treeRecipes().SelectKey(key); }},
        {"lstRecipes", [this] { return PickedNames(); },
         [this](std::string_view name) { return ChoosePicked(name); }},
        {"cmbFileType",
         [this] { return std::string(kReportTypeNames[static_cast<std::size_t>(request_.type)]); },
         [this](std::string_view name) { return ChooseType(name); }},
        TextEntry("txtFileName", request_.path),
    });
    AddButtons({
        {"cmdCancel", [this] { Close(); }},
        {"cmdBack", [this] { --page_; }, [this] { return page_ > Units; }},
        {"cmdNext", [this] { Next(); }, [this] { return CanGoOn(); }},
        {"cmdConfigure", [this] { Configure(); }},
        {"cmdBrowse", [this] { Browse(); }},
    });
    AddButtons(recipes_.Buttons());
}

void PrintWizardModel::AddUnits() {
    for (const ReportUnitGroup& group : ReportUnitGroups())
        for (const ReportUnitGroup::Option& option : group.options)
            AddControls({OptionButton(
                std::string(option.name), [this, &option] { return request_.units.IsChosen(option.name); },
                [this, &option] { request_.units.Choose(option.name); })});
}

bool PrintWizardModel::CanGoOn() const {
    if (page_ == Recipes) return recipes_.SelectionCount() > 0;
    return page_ != Output || !request_.path.empty();
}

std::string PrintWizardModel::PickedNames() const {
    std::string names;
    for (const std::string& name : recipes_.Selection()) names += (names.empty() ? "" : ", ") + name;
    return names;
}

bool PrintWizardModel::ChoosePicked(std::string_view name) {
    const auto& names = recipes_.Selection();
    const auto found =
        std::ranges::find_if(names, [&](const auto& picked) { return SameName(picked, name); });
    if (found == names.end()) return false;
    recipes_.SetCurrent(static_cast<int>(found - names.begin()));
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
    if (CreateReportFile(context_.database, context_.store, request_, context_.own, context_.messages))
        Accept();
}

void PrintWizardModel::Configure() {
    PrintFormatModel options(request_.type, context_.store, context_.dialogs);
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

// Gives the file name the extension of the chosen type, even if it has no extension or is empty. A dot in the
// name of a folder does not begin an extension.
void PrintWizardModel::SwapExtension() {
    std::string& path = request_.path;
    const std::size_t folder = path.find_last_of("/\\");
    const std::size_t dot = path.rfind('.');
    const bool hasExtension = dot != std::string::npos && (folder == std::string::npos || dot > folder);
    if (hasExtension) path.erase(dot);
    path.append(".").append(ReportExtension(request_.type));
}

}  // namespace tw
