// The report wizard (frmPrintWizard): the units, the recipes and the file of a report, a page each.
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

// The options of the first page; treeRecipes with the key of the chosen node, lstRecipes with the names of
// the list; cmbFileType takes one of its entries, which swaps the extension of the file name; txtFileName;
// cmdConfigure and cmdBrowse; cmdCancel, cmdBack, and cmdNext, which makes the report on the last page; the
// buttons of the chooser.
class PrintWizardModel final : public FormModel {
  public:
    static constexpr const char* kFormName = "frmPrintWizard";

    enum Page : int { Units, Recipes, Output };
    static constexpr int kPages = 3;
    // Captions of the pages.
    static std::string_view PageTitle(int page);

    // What the wizard works on; everything must outlive it.
    struct Context {
        Database& database;
        const TWTree& tree;
        const SettingsStore& store;
        MessagePort& messages;
        DialogPort& dialogs;
        SaveFilePort* files;  // nullptr where no file can be browsed for
        const OwnFiles& own;
    };
    // reportType: the setting of that name, which the type starts on.
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
    // Off on the second page until a recipe is chosen, on the last one while there is no file name.
    bool CanGoOn() const;
    void Next();
    // The report ends the wizard; one that fails has had its box, and the wizard stays.
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
