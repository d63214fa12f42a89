// The window that examines files of other programs and imports their recipes (frmImportDoctor).
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "doctor/DoctorFiles.h"
#include "doctor/DoctorImport.h"
#include "doctor/FindingList.h"
#include "doctor/ImportOptions.h"
#include "doctor/RecipeDoctor.h"
#include "platform/FileDialogModel.h"
#include "platform/FormModel.h"
#include "platform/OwnFiles.h"
#include "platform/Ports.h"
#include "store/RecipeCopy.h"
#include "tree/NodeList.h"
#include "tree/ProgressModel.h"

namespace tw {

// The program around the window.
class ImportDoctorHost {
  public:
    virtual ~ImportDoctorHost() = default;
    // Returns the host of one import, which asks about names that exist. progress outlives it.
    virtual std::unique_ptr<CopyHost> Copying(ProgressModel& progress) = 0;
    // An import has ended that stored so many recipes, perhaps none, with texts in these units.
    virtual void Imported(int recipes, ImportUnits units) = 0;
};

// An item of the list: the account of the import, a file, or a recipe of a file.
struct DoctorItem {
    enum class Kind : std::uint8_t { Account, File, Recipe };
    Kind kind = Kind::File;
    std::size_t file = 0;
    std::size_t recipe = 0;
    bool operator==(const DoctorItem&) const = default;
};

// How much of an item is chosen.
enum class Choice : std::uint8_t { None, Some, All };

// treeRecipes contains the name of the selected item and accepts that of a file or recipe; chkImport says how
// much of the item is chosen, and chooses it. treeFindings contains the folded findings of the item, each as
// "severity: text" and a line feed. The remedies are chkGrams, chkGravity, chkBitterness and chkEbc, which
// are refused unless they help a chosen recipe; then chkCatalogue, cmbUnits, chkAddStyles and
// chkAddIngredients. Each change examines the recipes that it concerns again. The buttons are cmdFolder,
// cmdAddFiles, cmdReport, cmdImport and cmdCancel. An import closes the window unless something was left out.
class ImportDoctorModel final : public FormModel {
  public:
    static constexpr const char* kFormName = "frmImportDoctor";
    // The texts of cmbUnits, in the order of ImportUnits.
    static const std::vector<std::string>& UnitWords();
    // The dialog that asks for files to import.
    static FileDialogModel::Options FilesToAskFor();

    // REQUIRES: all arguments outlive the object.
    ImportDoctorModel(RecipeDoctor& doctor, const ObjectAccess& access, OwnFiles& own, ImportDoctorHost& host,
                      const ImportOptions& options);

    // Adds files, examines them, and selects the first of them. Shows errors.
    void AddFiles(const std::vector<std::string>& paths);

    const DoctorFiles& Files() const { return files_; }
    const ImportOptions& Options() const { return options_; }
    // Returns what the last import had to say; empty before the first.
    const std::vector<FindingLine>& Account() const { return account_; }

    // nullopt only while the list is empty.
    const std::optional<DoctorItem>& Selected() const { return selected_; }
    // REQUIRES: the list has that item.
    void Select(const DoctorItem& item) { selected_ = item; }
    // Returns the name of the file or recipe.
    std::string NameOf(const DoctorItem& item) const;
    Choice ChoiceOf(const DoctorItem& item) const;
    void Choose(const DoctorItem& item, bool chosen);
    // Returns the findings of the selected item.
    std::vector<FoldedFinding> SelectedFindings() const;
    // Returns what stands above the findings: "Pale Ale: 3 findings".
    std::string SelectionText() const;
    // Returns the name of the folder into which recipes are imported.
    std::string FolderName() const;

    // True if the remedy of that control would help a chosen recipe, or if the control is none of a remedy.
    bool IsOffered(std::string_view control) const;
    // The window says "Close" instead of "Cancel" once something has been imported.
    bool HasImported() const { return !account_.empty(); }

  private:
    bool SelectNamed(std::string_view name);
    bool ChooseSelected(std::string_view text);
    FormControl OptionBox(std::string name, bool ImportOptions::*option);
    // Applies other options, unless the brewer cancels the examination.
    void SetOptions(const ImportOptions& options);
    bool SetUnits(std::string_view word);
    void ChooseFolder();
    void AskForFiles();
    void SaveReport();
    void Import();
    // Runs an operation, which may show other windows, unless one is running.
    template <class Operation>
    void Run(Operation operation);

    RecipeDoctor& doctor_;
    ObjectAccess access_;
    OwnFiles& own_;
    ImportDoctorHost& host_;
    ImportOptions options_;
    DoctorFiles files_;
    std::int64_t folderId_ = 0;
    std::vector<FindingLine> account_;
    std::optional<DoctorItem> selected_;
    bool running_ = false;
};

}  // namespace tw
