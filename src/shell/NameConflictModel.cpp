#include "shell/NameConflictModel.h"

#include <utility>

#include "values/Text.h"

namespace tw {

std::string NameConflictModel::RenameText() const {
    return Word() + " the recipe with a different name";
}

std::string NameConflictModel::SkipText() const {
    return "Do not " + SmallWord() + " this recipe";
}

std::string NameConflictModel::AbortText() const {
    return "Abort the " + SmallWord() + " process";
}

std::vector<DialogControl> NameConflictModel::Controls() const {
    return {{"lblName", recipeName_},
            {"txtNewName", newName_},
            {"lblRename", RenameText()},
            {"lblSkip", SkipText()},
            {"lblAbort", AbortText()}};
}

bool NameConflictModel::SetControl(std::string_view name, std::string_view text) {
    if (name != "txtNewName") return false;
    newName_ = text;
    return true;
}

bool NameConflictModel::Press(std::string_view button) {
    if (button == "cmdRename") {
        Rename();
        return true;
    }
    for (const auto& [name, response] :
         {std::pair("cmdOverwrite", ConflictResponse::Overwrite),
          std::pair("cmdAbort", ConflictResponse::Abort), std::pair("cmdSkip", ConflictResponse::Skip)}) {
        if (button != name) continue;
        Close(response);
        return true;
    }
    return false;
}

void NameConflictModel::Rename() {
    if (IsBlank(newName_)) {
        messages_.ShowMessage("No Name", "To rename you must enter a recipe name");
    } else if (SameName(newName_, recipeName_)) {
        messages_.ShowMessage("Same Name", "To rename you must enter a different recipe name");
    } else {
        answer_.newName = newName_;
        Close(ConflictResponse::Rename);
    }
}

void NameConflictModel::Close(ConflictResponse response) {
    answer_.response = response;
    open_ = false;
}

}  // namespace tw
