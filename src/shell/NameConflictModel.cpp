#include "shell/NameConflictModel.h"

#include <utility>

#include "values/Text.h"

namespace tw {

NameConflictModel::NameConflictModel(std::string recipeName, bool dirIn, MessagePort& messages)
    : FormModel(kFormName),
      recipeName_(std::move(recipeName)),
      newName_(recipeName_),
      dirIn_(dirIn),
      messages_(messages) {
    AddControls({
        {"lblName", [this] { return recipeName_; }},
        TextEntry("txtNewName", newName_),
        {"lblRename", [this] { return RenameText(); }},
        {"lblSkip", [this] { return SkipText(); }},
        {"lblAbort", [this] { return AbortText(); }},
    });
    FormControl forAll = CheckBox("chkAll", forAll_);
    forAll.isThere = [this] { return offersAll_; };
    AddControls({std::move(forAll)});
    AddButtons({
        {"cmdOverwrite", [this] { EndWith(ConflictResponse::Overwrite); }},
        {"cmdAbort", [this] { EndWith(ConflictResponse::Abort); }},
        {"cmdSkip", [this] { EndWith(ConflictResponse::Skip); }},
        {"cmdRename", [this] { Rename(); }},
    });
}

std::string NameConflictModel::RenameText() const {
    return Word() + " the recipe with a different name";
}

std::string NameConflictModel::SkipText() const {
    return "Do not " + SmallWord() + " this recipe";
}

std::string NameConflictModel::AbortText() const {
    return "Abort the " + SmallWord() + " process";
}

void NameConflictModel::Rename() {
    if (IsBlank(newName_)) {
        messages_.ShowMessage("No Name", "To rename you must enter a recipe name");
    } else if (SameName(newName_, recipeName_)) {
        messages_.ShowMessage("Same Name", "To rename you must enter a different recipe name");
    } else {
        answer_.newName = newName_;
        EndWith(ConflictResponse::Rename);
    }
}

void NameConflictModel::EndWith(ConflictResponse response) {
    answer_.response = response;
    Close();
}

}  // namespace tw
