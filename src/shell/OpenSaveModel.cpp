#include "shell/OpenSaveModel.h"

#include <charconv>

#include "store/RecipeRows.h"
#include "values/Text.h"

namespace tw {

OpenSaveModel::OpenSaveModel(Style style, Database& database, MessagePort& messages)
    : style_(style), database_(database), messages_(messages) {
    for (Recordset rows = database_.OpenRecordset("SELECT NAME FROM RECIPES ORDER BY NAME"); !rows.AtEnd();
         rows.MoveNext()) {
        names_.push_back(rows.Fields(0).Text());
    }
}

void OpenSaveModel::SetRecipe(std::string_view name, std::int64_t folderId) {
    text_ = name;
    recipe_ = Trim(name);
    folderId_ = folderId < 0 ? 0 : folderId;
}

std::string OpenSaveModel::Caption() const {
    if (style_ == Style::Open) return "Open Recipe";
    return recipe_.empty() ? "Save Recipe" : "Save '" + recipe_ + "' As...";
}

std::string OpenSaveModel::OkCaption() const {
    return style_ == Style::Open ? "&Open" : "&Save";
}

std::vector<DialogControl> OpenSaveModel::Controls() const {
    std::vector<DialogControl> controls{{"txtName", text_}};
    if (style_ == Style::Save) controls.push_back({"FolderID", std::to_string(folderId_)});
    return controls;
}

bool OpenSaveModel::SetControl(std::string_view name, std::string_view text) {
    if (name == "txtName") {
        text_ = text;
        return true;
    }
    if (name != "FolderID" || style_ != Style::Save) return false;
    std::int64_t id = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), id);
    if (error != std::errc() || end != text.data() + text.size() || id < 0) return false;
    folderId_ = id;
    return true;
}

bool OpenSaveModel::Press(std::string_view button) {
    if (button == "cmdCancel") {
        CloseBox();
        return true;
    }
    if (button != "cmdOK") return false;
    if (AcceptsName(std::string(Trim(text_)))) Accept();
    return true;
}

bool OpenSaveModel::AcceptsName(const std::string& name) {
    const bool exists = RecipeExists(database_, name);
    if (style_ == Style::Open) {
        if (!exists) messages_.ShowMessage("Recipe not found", "No recipe named '" + name + "' exists.");
        return exists;
    }
    if (name.empty()) {
        messages_.Beep();
        return false;
    }
    return !exists || messages_.Ask("Overwrite existing recipe?",
                                    "A recipe named '" + name + "' already exists.\r\nOverwrite it?",
                                    Question::YesNo) == Answer::Yes;
}

void OpenSaveModel::Accept() {
    beerName_ = Trim(text_);
    cancelled_ = false;
    open_ = false;
}

void OpenSaveModel::CloseBox() {
    beerName_.clear();
    open_ = false;
}

}  // namespace tw
