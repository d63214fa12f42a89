#include "document/RecipeDocument.h"

#include "values/Text.h"

namespace tw {

RecipeDocument::RecipeDocument(DocumentHost& host, Platform& platform, Database& database,
                               const ColorTable& colors, int number)
    : host_(host),
      platform_(platform),
      database_(database),
      calculator_(record_, commands_, colors),
      number_(number) {
    recorder_.SetTracking(false);
    // An empty box counts as the multiplier 1, also before anything was committed in it.
    record_.txtHopExtraction.SetValue(1);
    for (Grid* grid : {&record_.gridGrain, &record_.gridExtract, &record_.gridHops, &record_.gridPriming})
        AddBlankRow(*grid, grid->EndOfData());
    ReloadStyles();
    ApplyDefaults();
    loaded_ = true;
    recorder_.SetTracking(true);
}

void RecipeDocument::ApplyDefaults() {
    const RecipeDefaults defaults = host_.Defaults();
    CommitDefault(record_.txtExtract, defaults.grainExtraction);
    CommitDefault(record_.txtHopExtraction, defaults.hopExtraction);
    EditCell(record_.gridWater, WaterRow::Source, WaterCol::Profile, defaults.waterProfile, Asking::Quietly);
    CommitDefault(record_.txtBoilVol, defaults.boilVol);
    CommitDefault(record_.txtTotalVol, defaults.totalVol);
    const auto choose = [](OptionGroup& group, int index) {
        if (index >= 0 && index < static_cast<int>(group.Options().size())) group.Select(index);
    };
    choose(record_.grpIBUMethod, defaults.ibuMethod);
    choose(record_.grpPkgMethod, defaults.packaging);
    calculator_.RecalcHops();
    calculator_.ShowCO2();
}

// A setting that cannot be read as the field's quantity leaves the field empty.
void RecipeDocument::CommitDefault(TextBox& box, const std::string& text) {
    box.SetText(text);
    try {
        if (CommitField(box, Asking::Quietly)) return;
    } catch (const Error&) {
        // The field is empty again; a new recipe must open whatever the settings hold.
    }
    RestoreField(box);
}

std::string RecipeDocument::Caption() const {
    const std::string_view name = Trim(BeerName());
    if (!name.empty()) return std::string(name);
    return number_ > 0 ? "Untitled " + std::to_string(number_) : "Untitled";
}

void RecipeDocument::MarkChanged() {
    if (!loaded_) return;
    const bool first = !changed_;
    changed_ = true;
    if (IsActive())
        host_.Commands().EnableSave(true);
    else
        host_.Commands().CheckEnableSaveAll();
    if (first) host_.DocumentRenamed(*this);
    host_.DocumentEdited(*this);
}

void RecipeDocument::ClearChanged() {
    changed_ = false;
    if (IsActive())
        host_.Commands().EnableSave(false);
    else
        host_.Commands().CheckEnableSaveAll();
    host_.DocumentRenamed(*this);
}

bool RecipeDocument::ChooseOption(std::string_view option) {
    OptionGroup* group = record_.FindOptionGroup(option);
    const int index = group ? group->IndexOf(option) : -1;
    if (index < 0) return false;
    if (index == group->Selected()) return true;
    const int before = group->Selected();
    group->Select(index);
    const bool isMethod = group->Name() == record_.grpIBUMethod.Name();
    try {
        isMethod ? calculator_.IbuMethodChosen() : calculator_.PackagingChosen();
    } catch (const Error&) {
        group->Select(before);
        isMethod ? calculator_.IbuMethodChosen() : calculator_.PackagingChosen();
        throw;
    }
    const EditRecorder::Edit edit{ControlType::OptionGroup, ChangeType::Selection};
    recorder_.RecordEdit(group->Name(), EditValue::OfText(group->Options()[static_cast<std::size_t>(before)]),
                         EditValue::OfText(group->Value()), edit);
    MarkChanged();
    if (!isMethod) RefreshRowCommands();
    return true;
}

TextBox* RecipeDocument::FirstBoxOfTab(Tab tab) {
    if (tab == Tab::General) return &record_.txtName;
    if (tab == Tab::Carbonation) return &record_.txtTemp;
    return tab == Tab::Notes ? &record_.txtNotes : nullptr;
}

void RecipeDocument::SetTab(Tab tab) {
    FlushEdits();
    tab_ = tab;
    if (TextBox* const box = FirstBoxOfTab(tab))
        FocusOn(*box);
    else
        FocusOn(tab == Tab::Water ? record_.gridWater : *GridOfTab(tab));
    recorder_.SetTab(static_cast<int>(tab));
    RefreshRowCommands();
}

void RecipeDocument::Activate() {
    DocumentCommands& commands = host_.Commands();
    commands.EnableSave(changed_);
    calculator_.RefreshCommands();
    RefreshUndoCommands();
    RefreshEditCommands();
    RefreshRowCommands();
}

bool RecipeDocument::FlushEdits() {
    if (view_) return view_->FlushEditors();
    if (focusBox_ && !CommitField(*focusBox_)) RestoreField(*focusBox_);
    return true;
}

void RecipeDocument::ActiveCommands::EnableResizeRecipe(bool enabled) {
    if (document_.IsActive()) document_.host_.Commands().EnableResizeRecipe(enabled);
}

void RecipeDocument::ActiveCommands::EnableChangeStrength(bool enabled) {
    if (document_.IsActive()) document_.host_.Commands().EnableChangeStrength(enabled);
}

void RecipeDocument::ActiveCommands::EnableChangeBitterness(bool enabled) {
    if (document_.IsActive()) document_.host_.Commands().EnableChangeBitterness(enabled);
}

void RecipeDocument::ActiveCommands::EnableChangeCarbonation(bool enabled) {
    if (document_.IsActive()) document_.host_.Commands().EnableChangeCarbonation(enabled);
}

// Notices from the database.

// A document that was never saved is none of the recipes, not the one without a name either.
bool RecipeDocument::IsStoredAs(std::string_view name) const {
    return !origName_.empty() && SameName(name, origName_);
}

void RecipeDocument::NotifyRecipeMoved(std::string_view name, std::int64_t folderId) {
    if (IsStoredAs(name)) folderId_ = folderId;
}

void RecipeDocument::NotifyRecipeNewStyle(std::string_view name, std::int64_t styleId) {
    if (IsStoredAs(name)) SetStyleID(styleId);
}

void RecipeDocument::NotifyRecipeRenamed(std::string_view oldName, std::string_view newName) {
    if (!IsStoredAs(oldName)) return;
    origName_ = Trim(newName);
    // A name that the brewer has edited meanwhile stays.
    if (!SameName(BeerName(), oldName)) return;
    record_.txtName.SetText(Trim(newName));
    record_.txtName.SetCommitted(record_.txtName.Text());
    host_.DocumentRenamed(*this);
}

// Every document lists all styles, so that a notice about any of them is for all documents.
void RecipeDocument::NotifyStyleRenamed(std::int64_t, std::string_view) {
    ReloadStyles();
}

void RecipeDocument::NotifyRecipeDeleted(std::string_view name) {
    if (IsStoredAs(name)) SetDetached();
}

void RecipeDocument::NotifyRecipeFolderDeleted(std::int64_t folderId) {
    if (folderId_ == folderId) SetDetached();
}

void RecipeDocument::NotifyStyleDeleted(std::int64_t styleId) {
    if (styleId_ == styleId)
        SetStyleID(0);
    else
        ReloadStyles();
}

void RecipeDocument::SetDetached() {
    if (savingOver_) return;
    folderId_ = -1;
    origName_.clear();
    MarkChanged();
}

void RecipeDocument::DBChanged() {
    // The ranges beside the figures may have changed, too.
    SetStyleID(styleId_);
}

}  // namespace tw
