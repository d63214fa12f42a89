// The report wizard (frmPrintWizard): the units, the recipes and the file of a report, a page each.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/DialogModel.h"
#include "platform/Ports.h"
#include "platform/SaveFilePort.h"
#include "platform/SettingsStore.h"
#include "reports/ReportFile.h"
#include "store/Database.h"
#include "tree/RecipeChooser.h"
#include "tree/TWTree.h"

namespace tw {

class PrintWizardModel final : public DialogModel {
  public:
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
    // cmdBack is off on the first page; cmdNext on the second until a recipe is chosen, on the last while
    // there is no file name.
    bool IsEnabled(std::string_view button) const;

    std::string FormName() const override { return "frmPrintWizard"; }
    // The options of the first page, treeRecipes and lstRecipes (what is chosen in the tree, the names of the
    // list), cmbFileType, txtFileName.
    std::vector<DialogControl> Controls() const override;
    // An option takes "yes", treeRecipes the key of a node, lstRecipes a name of the list, cmbFileType one of
    // its entries, which swaps the extension of the file name.
    bool SetControl(std::string_view name, std::string_view text) override;
    // cmdBack, cmdNext, cmdCancel, cmdConfigure, cmdBrowse, and the buttons of the chooser. A button that is
    // off does nothing. The report that cmdNext makes on the last page ends the wizard; one that fails has
    // had its box, and the wizard stays.
    bool Press(std::string_view button) override;
    void CloseBox() override { open_ = false; }
    bool IsOpen() const override { return open_; }

  private:
    void Next();
    void Finish();
    void Configure();
    void Browse();
    bool ChooseType(std::string_view text);
    void SwapExtension();

    Context context_;
    RecipeChooser recipes_;
    ReportRequest request_;
    int page_ = Units;
    bool open_ = true;
};

}  // namespace tw
