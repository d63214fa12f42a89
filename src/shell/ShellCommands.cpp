// The commands of the shell: what a menu item or button does, and what the documents light and darken.
#include <algorithm>
#include <optional>
#include <span>

#include "shell/AboutModel.h"
#include "shell/OptionsModel.h"
#include "shell/RecipeExchange.h"
#include "shell/Shell.h"
#include "tools/ColorScaleModel.h"
#include "tools/ConvertUnitsModel.h"
#include "tools/HopUtilModel.h"
#include "tools/HydrometerModel.h"
#include "tree/LvShowModel.h"

namespace tw {

namespace {

bool IsEditItem(std::string_view name) {
    return name.starts_with("mnuEdit");
}

}  // namespace

const Shell::ActionRow Shell::kFileActions[] = {
    {"mnuFileNew", [](Shell& s) { s.CreateDocumentWindow(""); }},
    {"mnuFileOpen", [](Shell& s) { s.ShowOpenDialog(); }},
    {"mnuFileClose",
     [](Shell& s) {
         if (s.active_) s.CloseDocument(*s.active_);
     }},
    {"mnuFileCloseAll", [](Shell& s) { s.CloseAll(); }},
    {"mnuFileSave",
     [](Shell& s) {
         if (s.active_) s.SaveRecipe(*s.active_, false);
     }},
    {"mnuFileSaveAs",
     [](Shell& s) {
         if (s.active_) s.SaveRecipeAs(*s.active_);
     }},
    {"mnuFileSaveAll", [](Shell& s) { s.SaveAllDocuments(); }},
    {"mnuFileImport", [](Shell& s) { s.Exchange([](RecipeExchange& files) { files.Import(); }); }},
    {"mnuFileExport", [](Shell& s) { s.Exchange([](RecipeExchange& files) { files.Export(); }); }},
    {"mnuFilePrint", [](Shell& s) { s.PrintActiveDocument(false); }},
    {"mnuFilePreview", [](Shell& s) { s.PreviewActiveDocument(); }},
    // The toolbar's button, by its key.
    {"Print", [](Shell& s) { s.PrintActiveDocument(s.settings_.quickPrintFromToolbar); }},
    {"mnuFileReport", [](Shell& s) { s.ShowReportWizard(); }},
    {"mnuFileDelete", [](Shell& s) { s.ShowDeleteDialog(); }},
    {"mnuFileExit",
     [](Shell& s) {
         if (s.RequestExit() && s.view_) s.view_->CloseMainWindow();
     }},
};

// They run with an active document only.
const Shell::ActionRow Shell::kEditActions[] = {
    {"mnuEditUndo", [](Shell& s) { s.active_->Replay().Undo(); }},
    {"mnuEditRedo", [](Shell& s) { s.active_->Replay().Redo(); }},
    {"mnuEditCut",
     [](Shell& s) {
         s.active_->Edit().Cut();
         s.ReapplyPasteState();
     }},
    {"mnuEditCopy", [](Shell& s) { s.CopyShowingErrors(); }},
    {"mnuEditPaste", [](Shell& s) { s.active_->Edit().Paste(); }},
    {"mnuEditClear", [](Shell& s) { s.active_->Edit().Clear(); }},
    {"mnuEditSelectAll", [](Shell& s) { s.active_->Edit().SelectAll(); }},
    {"mnuEditInsert", [](Shell& s) { s.active_->Lines().InsertRow(); }},
    {"mnuEditDelete", [](Shell& s) { s.active_->Lines().DeleteRow(); }},
    {"mnuEditAppendFlag", [](Shell& s) { s.SetAppendRows(!s.AppendRows()); }},
};

const Shell::ActionRow Shell::kOtherActions[] = {
    {"mnuToolsExplorer", [](Shell& s) { s.ShowExplorer(); }},
    {"mnuToolsUnits",
     [](Shell& s) {
         ConvertUnitsModel converter(s.platform_.messages);
         s.platform_.dialogs.ShowModal(converter);
     }},
    {"mnuToolsHydrometer",
     [](Shell& s) {
         HydrometerModel hydrometer(s.platform_.messages);
         s.platform_.dialogs.ShowModal(hydrometer);
     }},
    {"mnuToolsColorScale",
     [](Shell& s) {
         ColorScaleModel scales;
         s.platform_.dialogs.ShowModal(scales);
     }},
    {"mnuToolsHopUtil",
     [](Shell& s) {
         std::optional<std::string> boilGravity;
         if (s.active_) boilGravity = s.active_->Record().txtBG.Text();
         HopUtilModel explorer(boilGravity);
         s.platform_.dialogs.ShowModal(explorer);
     }},
    {"mnuToolsResizeRecipe", [](Shell& s) { s.ShowScaling(Scaling::Size); }},
    {"mnuToolsChangeStrength", [](Shell& s) { s.ShowScaling(Scaling::Strength); }},
    {"mnuToolsChangeBitterness", [](Shell& s) { s.ShowScaling(Scaling::Bitterness); }},
    {"mnuToolsChangeCO2", [](Shell& s) { s.ShowScaling(Scaling::Carbonation); }},
    {"mnuToolsDataSetup", [](Shell& s) { s.ShowDatabaseSetup(); }},
    {"mnuToolsOptions",
     [](Shell& s) {
         OptionsModel options(s, s.platform_.messages);
         s.platform_.dialogs.ShowModal(options);
     }},
    {"mnuToolsAssistant", [](Shell& s) { s.ShowAssistant(); }},
    {"mnuWindowCascade", [](Shell& s) { s.Arrange(Arrangement::Cascade); }},
    {"mnuWindowTileHorizontal", [](Shell& s) { s.Arrange(Arrangement::TileHorizontal); }},
    {"mnuWindowTileVertical", [](Shell& s) { s.Arrange(Arrangement::TileVertical); }},
    {"mnuHelpContents", [](Shell& s) { s.ShowHelpContents(); }},
    {"mnuHelpAuto", [](Shell& s) { s.ShowHelpOfActive(); }},
    {"mnuHelpAbout",
     [](Shell& s) {
         AboutModel about;
         s.platform_.dialogs.ShowModal(about);
     }},
};

Shell::Action Shell::FindAction(std::string_view name) {
    for (const std::span<const ActionRow> rows :
         {std::span<const ActionRow>(kFileActions), std::span<const ActionRow>(kEditActions),
          std::span<const ActionRow>(kOtherActions)}) {
        const auto found = std::ranges::find(rows, name, &ActionRow::name);
        if (found != rows.end()) return found->action;
    }
    for (int slot = 0; slot < kMruCount; ++slot) {
        if (name == RecentList::ItemName(slot)) {
            return [slot](Shell& s) { s.OpenByName(s.recent_.NameOf(slot)); };
        }
    }
    return {};
}

void Shell::Arrange(Arrangement arrangement) {
    if (view_) view_->ArrangeDocuments(arrangement);
}

void Shell::CopyShowingErrors() {
    try {
        active_->Edit().Copy();
    } catch (const Error& error) {
        platform_.messages.ShowMessage("Error", "Error during copy:\r\n" + error.WithNumber());
    }
    ReapplyPasteState();
}

bool Shell::RunAction(std::string_view name) {
    const Action action = FindAction(name);
    // Without a database the program is about to end.
    if (!action || !database_) return false;
    // Every edit item is about the active document and does nothing without one.
    if (IsEditItem(name) && !active_) return true;
    Guard([&] { action(*this); });
    return true;
}

bool Shell::RunMenu(std::string_view name) {
    const MenuItem* item = bar_.FindItem(name);
    return item && item->enabled && item->visible && RunAction(name);
}

bool Shell::PressButton(std::string_view key) {
    const ToolButton* button = bar_.FindButton(key);
    if (!button || !button->enabled) return false;
    // A button whose action differs from its menu item's has one of its own.
    return RunAction(FindAction(key) ? key : std::string_view(button->menuItem));
}

void Shell::PickFromCatalogue(RecipeDocument& document, CatalogueKind list, const std::string& name) {
    LvShowModel picker(list, *database_, *tree_, name);
    picker.SetViewer([this](CatalogueKind type, ListTable& items) { ViewCatalogueRow(type, items); });
    platform_.dialogs.ShowModal(picker);
    if (!picker.Cancelled()) document.Picks().Take(list, picker.Answer());
}

void Shell::ShowScaling(Scaling what) {
    if (!active_ || !active_->Focus().FlushEdits()) return;
    RecipeDocument& document = *active_;
    const std::optional<std::string> current = CurrentFigure(document, what);
    if (!current) return;
    ScalingModel dialog(what, *current, platform_.messages);
    dialog.SetSizeCheck([&document](double gallons) { return document.Scaling().RefusalOfSize(gallons); });
    platform_.dialogs.ShowModal(dialog);
    if (!dialog.Cancelled()) Scale(document, dialog);
}

void Shell::SaveAllDocuments() {
    // One that cannot be saved does not keep the others from it.
    for (std::size_t i = 0; i < documents_.size(); ++i) {
        Guard([&] {
            documents_[i]->Focus().FlushEdits();
            SaveRecipe(*documents_[i], false);
        });
    }
}

void Shell::EnablePair(std::string_view item, std::string_view button, bool enabled) {
    bar_.SetEnabled(item, enabled);
    bar_.SetButtonEnabled(button, enabled);
}

void Shell::EnablePairWithTwin(std::string_view item, std::string_view button, bool enabled) {
    bar_.SetEnabled(item, enabled);
    bar_.SetButtonWithTwin(button, enabled);
}

void Shell::EnableResizeRecipe(bool enabled) {
    EnablePair("mnuToolsResizeRecipe", "Volume", enabled);
}
void Shell::EnableChangeStrength(bool enabled) {
    EnablePair("mnuToolsChangeStrength", "Strength", enabled);
}
void Shell::EnableChangeBitterness(bool enabled) {
    EnablePair("mnuToolsChangeBitterness", "Bitterness", enabled);
}
void Shell::EnableChangeCarbonation(bool enabled) {
    EnablePair("mnuToolsChangeCO2", "Carbonation", enabled);
}
void Shell::EnableInsert(bool enabled) {
    EnablePair("mnuEditInsert", "Insert", enabled);
}
void Shell::EnableDelete(bool enabled) {
    EnablePair("mnuEditDelete", "Delete", enabled);
}

void Shell::EnableSave(bool enabled) {
    EnablePairWithTwin("mnuFileSave", "Save", enabled);
    CheckEnableSaveAll();
}

void Shell::EnableCopyPaste(bool enableCopy, bool enableCutPaste) {
    EnableCopy(enableCopy);
    EnablePaste(enableCutPaste);
    lastPasteEnable_ = enableCutPaste;
}

void Shell::EnableCopy(bool enabled) {
    bar_.SetEnabled("mnuEditSelectAll", enabled);
    EnablePairWithTwin("mnuEditCopy", "Copy", enabled);
}

void Shell::EnablePaste(bool enabled) {
    bar_.SetEnabled("mnuEditClear", enabled);
    EnablePair("mnuEditCut", "Cut", enabled);
    EnablePairWithTwin("mnuEditPaste", "Paste", enabled && platform_.clipboard.HasText());
}

void Shell::ReapplyPasteState() {
    EnablePaste(lastPasteEnable_);
}

void Shell::EnableUndo(bool enabled, std::string_view description) {
    bar_.SetCaption("mnuEditUndo", "&Undo " + std::string(description));
    EnablePair("mnuEditUndo", "Undo", enabled);
}

void Shell::EnableRedo(bool enabled, std::string_view description) {
    bar_.SetCaption("mnuEditRedo", "&Redo " + std::string(description));
    EnablePair("mnuEditRedo", "Redo", enabled);
}

void Shell::EnableClose(bool enabled) {
    bar_.SetEnabled("mnuFileClose", enabled);
    bar_.SetEnabled("mnuFileCloseAll", enabled);
    bar_.SetEnabled("mnuFileSaveAs", enabled);
    EnablePairWithTwin("mnuFilePrint", "Print", enabled);
    bar_.SetEnabled("mnuFilePreview", enabled);
}

void Shell::ChangeToolbarIcons() {
    if (view_) view_->ToolbarIconsChanged();
}

void Shell::ChangeToolbarButtonStyle() {
    if (view_) view_->ToolbarButtonStyleChanged();
}

void Shell::EnableWindowMenu(bool enabled) {
    bar_.SetEnabled("mnuWindowCascade", enabled);
    bar_.SetEnabled("mnuWindowTileHorizontal", enabled);
    bar_.SetEnabled("mnuWindowTileVertical", enabled);
}

void Shell::CheckEnableSaveAll() {
    bar_.SetEnabled("mnuFileSaveAll", std::ranges::any_of(documents_, [](const auto& document) {
                        return document->Changed();
                    }));
}

void Shell::CheckEnableDelete() {
    const bool anyRecipe = !database_->OpenRecordset("SELECT * FROM RECIPES").AtEnd();
    // Compared with mnuFileDelete alone, on purpose: at a start with recipes mnuFilePrint stays off, and with
    // the first recipe it goes on, also without an open document.
    if (bar_.FindItem("mnuFileDelete")->enabled == anyRecipe) return;
    bar_.SetEnabled("mnuFileDelete", anyRecipe);
    bar_.SetEnabled("mnuFilePrint", anyRecipe);
    bar_.SetEnabled("mnuFileOpen", anyRecipe);
    bar_.SetEnabled("mnuFileExport", anyRecipe);
    bar_.SetButtonEnabled("Open", anyRecipe);
}

}  // namespace tw
