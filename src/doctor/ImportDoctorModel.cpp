#include "doctor/ImportDoctorModel.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "doctor/DoctorReport.h"
#include "platform/ErrorBox.h"
#include "platform/ScopeGuard.h"
#include "platform/TargetFile.h"
#include "tree/ChooseFolderModel.h"
#include "tree/NodeKey.h"
#include "tree/TWNode.h"

namespace tw {
namespace {

constexpr std::string_view kAccountName = "The import";

// A remedy: its control, the option that applies it, and whether it is offered.
struct Remedy {
    std::string_view control;
    bool ImportOptions::*option;
    bool RemediesOffered::*offered;
};
constexpr Remedy kRemedies[] = {
    {"chkGrams", &ImportOptions::grams, &RemediesOffered::grams},
    {"chkGravity", &ImportOptions::gravity, &RemediesOffered::gravity},
    {"chkBitterness", &ImportOptions::bitterness, &RemediesOffered::bitterness},
    {"chkEbc", &ImportOptions::ebc, &RemediesOffered::ebc},
};

// True if a change from one option to the other can change how this recipe is read.
bool Concerns(const DoctorRecipe& recipe, const ImportOptions& before, const ImportOptions& after) {
    if (before.units != after.units || before.catalogueFigures != after.catalogueFigures) return true;
    return std::ranges::any_of(kRemedies, [&](const Remedy& remedy) {
        return recipe.offered.*remedy.offered && before.*remedy.option != after.*remedy.option;
    });
}

std::string Counted(std::size_t findings) {
    if (findings == 0) return "nothing was found";
    return std::to_string(findings) + (findings == 1 ? " finding" : " findings");
}

CatalogueContext CatalogueOf(const ObjectAccess& access) {
    const Platform& platform = access.platform;
    return {access.database,   access.tree,      access.objects,
            platform.messages, platform.dialogs, platform.clock};
}

}  // namespace

const std::vector<std::string>& ImportDoctorModel::UnitWords() {
    static const std::vector<std::string> words = {"As in the file", "US", "Metric"};
    return words;
}

FileDialogModel::Options ImportDoctorModel::FilesToAskFor() {
    return {.kind = FileDialogModel::Kind::Open,
            .title = "Import from Other Programs",
            .extension = "xml",
            .filterName = "Recipes of Other Programs (*.xml *.beerxml *.json *.beerjson);;All Files (*)",
            .filter = "*.xml *.beerxml *.json *.beerjson",
            .several = true};
}

ImportDoctorModel::ImportDoctorModel(RecipeDoctor& doctor, const ObjectAccess& access, OwnFiles& own,
                                     ImportDoctorHost& host, const ImportOptions& options)
    : FormModel(kFormName),
      doctor_(doctor),
      access_(access),
      own_(own),
      host_(host),
      options_(options),
      files_(doctor, access.platform.dialogs, own) {
    AddControls({
        {"treeRecipes", [this] { return selected_ ? NameOf(*selected_) : std::string(); },
         [this](std::string_view name) { return SelectNamed(name); }},
        {"chkImport",
         [this] {
             constexpr std::string_view kWords[] = {"no", "some", "yes"};
             const Choice choice = selected_ ? ChoiceOf(*selected_) : Choice::None;
             return std::string(kWords[static_cast<std::size_t>(choice)]);
         },
         [this](std::string_view text) { return ChooseSelected(text); }},
        {"lblFindings", [this] { return SelectionText(); }},
        {"treeFindings", [this] { return TextOf(SelectedFindings()); }},
    });
    for (const Remedy& remedy : kRemedies)
        AddControls({OptionBox(std::string(remedy.control), remedy.option)});
    AddControls({
        OptionBox("chkCatalogue", &ImportOptions::catalogueFigures),
        {"cmbUnits", [this] { return UnitWords()[static_cast<std::size_t>(options_.units)]; },
         [this](std::string_view word) { return SetUnits(word); }},
        {"lblFolder", [this] { return FolderName(); }},
        OptionBox("chkAddStyles", &ImportOptions::addStyles),
        OptionBox("chkAddIngredients", &ImportOptions::addIngredients),
    });
    AddButtons({
        {"cmdFolder", [this] { ChooseFolder(); }},
        {"cmdAddFiles", [this] { AskForFiles(); }},
        {"cmdReport", [this] { SaveReport(); }, [this] { return !files_.All().empty(); }},
        {"cmdImport", [this] { Import(); }, [this] { return DoctorImport::HasWork(files_, options_); }},
        {"cmdCancel", [this] { Close(); }},
    });
}

template <class Operation>
void ImportDoctorModel::Run(Operation operation) {
    if (running_) return;
    const ScopedValue running(running_, true);
    RunShowingErrors(access_.platform.messages, operation);
}

void ImportDoctorModel::AddFiles(const std::vector<std::string>& paths) {
    Run([&] {
        const std::size_t before = files_.All().size();
        files_.Add(paths, options_);
        if (files_.All().size() > before) selected_ = DoctorItem{DoctorItem::Kind::File, before, 0};
    });
}

std::string ImportDoctorModel::NameOf(const DoctorItem& item) const {
    if (item.kind == DoctorItem::Kind::Account) return std::string(kAccountName);
    const DoctorFile& file = files_.All()[item.file];
    return item.kind == DoctorItem::Kind::File ? file.name : file.recipes[item.recipe].name;
}

bool ImportDoctorModel::SelectNamed(std::string_view name) {
    if (HasImported() && name == kAccountName) {
        selected_ = DoctorItem{DoctorItem::Kind::Account, 0, 0};
        return true;
    }
    for (std::size_t i = 0; i < files_.All().size(); ++i) {
        const DoctorFile& file = files_.All()[i];
        const auto recipe = std::ranges::find(file.recipes, name, &DoctorRecipe::name);
        const bool isRecipe = recipe != file.recipes.end();
        if (!isRecipe && file.name != name) continue;
        const auto index = static_cast<std::size_t>(recipe - file.recipes.begin());
        selected_ = isRecipe ? DoctorItem{DoctorItem::Kind::Recipe, i, index}
                             : DoctorItem{DoctorItem::Kind::File, i, 0};
        return true;
    }
    return false;
}

Choice ImportDoctorModel::ChoiceOf(const DoctorItem& item) const {
    if (item.kind == DoctorItem::Kind::Account) return Choice::None;
    const DoctorFile& file = files_.All()[item.file];
    if (item.kind == DoctorItem::Kind::Recipe)
        return file.recipes[item.recipe].chosen ? Choice::All : Choice::None;
    const auto chosen = std::ranges::count_if(file.recipes, &DoctorRecipe::chosen);
    if (chosen == 0) return Choice::None;
    return chosen == std::ssize(file.recipes) ? Choice::All : Choice::Some;
}

void ImportDoctorModel::Choose(const DoctorItem& item, bool chosen) {
    if (item.kind == DoctorItem::Kind::File) files_.ChooseAll(item.file, chosen);
    if (item.kind == DoctorItem::Kind::Recipe) files_.Choose(item.file, item.recipe, chosen);
}

bool ImportDoctorModel::ChooseSelected(std::string_view text) {
    if (!selected_ || selected_->kind == DoctorItem::Kind::Account) return false;
    if (text != "yes" && text != "no") return false;
    Choose(*selected_, text == "yes");
    return true;
}

std::vector<FoldedFinding> ImportDoctorModel::SelectedFindings() const {
    if (!selected_) return {};
    if (selected_->kind == DoctorItem::Kind::Account) return Unfolded(account_);
    const DoctorFile& file = files_.All()[selected_->file];
    return Fold(selected_->kind == DoctorItem::Kind::File ? file.AllFindings()
                                                          : file.recipes[selected_->recipe].findings);
}

std::string ImportDoctorModel::SelectionText() const {
    if (!selected_) return {};
    if (selected_->kind == DoctorItem::Kind::Account) return NameOf(*selected_);
    const DoctorFile& file = files_.All()[selected_->file];
    const std::size_t count = selected_->kind == DoctorItem::Kind::File
                                  ? file.AllFindings().size()
                                  : file.recipes[selected_->recipe].findings.size();
    return NameOf(*selected_) + ": " + Counted(count);
}

bool ImportDoctorModel::IsOffered(std::string_view control) const {
    const auto any = [&](auto has) { return std::ranges::any_of(files_.All(), has); };
    if (control == "chkAddStyles") return any(&DoctorFile::HasStyles);
    if (control == "chkAddIngredients") return any(&DoctorFile::HasIngredients);
    const auto* const remedy = std::ranges::find(kRemedies, control, &Remedy::control);
    return remedy == std::end(kRemedies) || files_.Offered().*remedy->offered;
}

FormControl ImportDoctorModel::OptionBox(std::string name, bool ImportOptions::*option) {
    return {name, [this, option] { return std::string(options_.*option ? "yes" : "no"); },
            [this, name, option](std::string_view text) {
                if ((text != "yes" && text != "no") || !IsOffered(name)) return false;
                ImportOptions options = options_;
                options.*option = text == "yes";
                SetOptions(options);
                return true;
            }};
}

void ImportDoctorModel::SetOptions(const ImportOptions& options) {
    Run([&] {
        const auto concerns = [&](const DoctorRecipe& recipe) { return Concerns(recipe, options_, options); };
        if (files_.Examine(options, concerns)) options_ = options;
    });
}

bool ImportDoctorModel::SetUnits(std::string_view word) {
    const auto found = std::ranges::find(UnitWords(), word);
    if (found == UnitWords().end()) return false;
    ImportOptions options = options_;
    options.units = static_cast<ImportUnits>(found - UnitWords().begin());
    SetOptions(options);
    return true;
}

std::string ImportDoctorModel::FolderName() const {
    const TWNode* const folder = access_.tree.Nodes(RecipeFolderKey(folderId_));
    return folder ? std::string(folder->Name()) : std::string();
}

void ImportDoctorModel::ChooseFolder() {
    Run([this] {
        ChooseFolderModel folder(access_.tree, access_.objects);
        folder.SetFolderID(folderId_);
        access_.platform.dialogs.ShowModal(folder);
        if (!folder.Cancelled()) folderId_ = folder.FolderID();
    });
}

void ImportDoctorModel::AskForFiles() {
    FileDialogModel files(FilesToAskFor(), access_.platform.messages);
    access_.platform.dialogs.ShowModal(files);
    if (!files.Cancelled()) AddFiles(files.FileNames());
}

void ImportDoctorModel::SaveReport() {
    Run([this] {
        FileDialogModel file({.kind = FileDialogModel::Kind::Save,
                              .title = "Save Report",
                              .extension = "txt",
                              .filterName = "Text Files (*.txt)",
                              .filter = "*.txt"},
                             access_.platform.messages);
        access_.platform.dialogs.ShowModal(file);
        if (file.Cancelled()) return;
        TargetFile(file.FileName(), own_)
            .Replace(DoctorReport(files_.All(), account_, access_.platform.clock.Now()));
    });
}

void ImportDoctorModel::Import() {
    Run([this] {
        ImportOutcome outcome;
        ProgressModel progress("Importing Recipes", [&](ProgressModel& shown) {
            const std::unique_ptr<CopyHost> copying = host_.Copying(shown);
            outcome = DoctorImport(doctor_, CatalogueOf(access_), *copying).Run(files_, folderId_, options_);
        });
        access_.platform.dialogs.ShowModal(progress);
        account_ = std::move(outcome.lines);
        if (outcome.leftOut)
            selected_ = DoctorItem{DoctorItem::Kind::Account, 0, 0};
        else
            Accept();
        host_.Imported(outcome.imported, options_.units);
    });
}

}  // namespace tw
