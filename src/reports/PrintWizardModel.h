// The report wizard (frmPrintWizard), with three pages: the units, the recipes and the file of a report.
#pragma once

#include <string>
#include <string_view>

#include "platform/FormModel.h"
#include "platform/Ports.h"
#include "platform/SaveFilePort.h"
#include "platform/SettingsStore.h"
#include "reports/ReportFile.h"
#include "store/Database.h"
#include "tree/RecipeChooser.h"
#include "tree/TWTree.h"

namespace tw {

// The controls include the option buttons of ReportUnitGroups(). treeRecipes contains the key of the selected
// node, lstRecipes the names of the chosen recipes. cmbFileType accepts one of its entries and then changes
// the extension in txtFileName. Buttons: cmdConfigure, cmdBrowse, cmdCancel, cmdBack, cmdNext (which creates
// the report on the last page) and the buttons of the recipe chooser.
class PrintWizardModel final : public FormModel {
  public:
    static constexpr const char* kFormName = "frmPrintWizard";

    enum Page : int { Units, Recipes, Output };
    static constexpr int kPages = 3;
    // Returns the caption of a page.
    static std::string_view PageTitle(int page);

    // What the wizard needs; everything must outlive it.
    struct Context {
        Database& database;
        const TWTree& tree;
        const SettingsStore& store;
        MessagePort& messages;
        DialogPort& dialogs;
        SaveFilePort* files;  // nullptr: cmdBrowse does nothing
        const OwnFiles& own;
    };
    // reportType is the stored number of the report type to start with; an unknown number means text.
    PrintWizardModel(const Context& context, int reportType);

    int CurrentPage() const { return page_; }
    RecipeChooser& Chooser() { return recipes_; }
    const ReportUnits& ChosenUnits() const { return request_.units; }
    ReportType Type() const { return request_.type; }
    const std::string& FileName() const { return request_.path; }
    // "Next >", or "Finish" on the last page.
    std::string_view NextCaption() const { return page_ == Output ? "Finish" : "Next >"; }

  private:
    void AddUnits();
    std::string PickedNames() const;
    bool ChoosePicked(std::string_view name);
    // True if cmdNext is enabled: on the second page at least one recipe is chosen, on the last page there is
    // a file name.
    bool CanGoOn() const;
    void Next();
    // Creates the report and closes the wizard. If that fails, the error has been shown and the wizard
    // stays open.
    void Finish();
    void Configure();
    void Browse();
    bool ChooseType(std::string_view text);
    void SwapExtension();

    Context context_;
    RecipeChooser recipes_;
    ReportRequest request_;
    int page_ = Units;
};

}  // namespace tw
