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

const Shell::ActionRow Shell::kFileActions[] = {
    {CommandId::FileNew, [](Shell& s) { s.CreateDocumentWindow(""); }},
    {CommandId::FileOpen, [](Shell& s) { s.ShowOpenDialog(); }},
    {CommandId::FileClose,
     [](Shell& s) {
         if (s.active_) s.CloseDocument(*s.active_);
     }},
    {CommandId::FileCloseAll, [](Shell& s) { s.CloseAll(); }},
    {CommandId::FileSave,
     [](Shell& s) {
         if (s.active_) s.SaveRecipe(*s.active_, false);
     }},
    {CommandId::FileSaveAs,
     [](Shell& s) {
         if (s.active_) s.SaveRecipeAs(*s.active_);
     }},
    {CommandId::FileSaveAll, [](Shell& s) { s.SaveAllDocuments(); }},
    {CommandId::FileImport, [](Shell& s) { s.Exchange([](RecipeExchange& files) { files.Import(); }); }},
    {CommandId::FileExport, [](Shell& s) { s.Exchange([](RecipeExchange& files) { files.Export(); }); }},
    {CommandId::FilePrint, [](Shell& s) { s.PrintActiveDocument(false); },
     [](Shell& s) { s.PrintActiveDocument(s.settings_.quickPrintFromToolbar); }},
    {CommandId::FilePreview, [](Shell& s) { s.PreviewActiveDocument(); }},
    {CommandId::FileReport, [](Shell& s) { s.ShowReportWizard(); }},
    {CommandId::FileDelete, [](Shell& s) { s.ShowDeleteDialog(); }},
    {CommandId::FileExit,
     [](Shell& s) {
         if (s.RequestExit() && s.view_) s.view_->CloseMainWindow();
     }},
};

// They run with an active document only.
const Shell::ActionRow Shell::kEditActions[] = {
    {CommandId::EditUndo, [](Shell& s) { s.active_->Replay().Undo(); }},
    {CommandId::EditRedo, [](Shell& s) { s.active_->Replay().Redo(); }},
    {CommandId::EditCut,
     [](Shell& s) {
         s.active_->Edit().Cut();
         s.ReapplyPasteState();
     }},
    {CommandId::EditCopy, [](Shell& s) { s.CopyShowingErrors(); }},
    {CommandId::EditPaste, [](Shell& s) { s.active_->Edit().Paste(); }},
    {CommandId::EditClear, [](Shell& s) { s.active_->Edit().Clear(); }},
    {CommandId::EditSelectAll, [](Shell& s) { s.active_->Edit().SelectAll(); }},
    {CommandId::EditInsert, [](Shell& s) { s.active_->Lines().InsertRow(); }},
    {CommandId::EditDelete, [](Shell& s) { s.active_->Lines().DeleteRow(); }},
    {CommandId::EditAppendFlag, [](Shell& s) { s.SetAppendRows(!s.AppendRows()); }},
};

const Shell::ActionRow Shell::kOtherActions[] = {
    {CommandId::ToolsExplorer, [](Shell& s) { s.ShowExplorer(); }},
    {CommandId::ToolsUnits,
     [](Shell& s) {
         ConvertUnitsModel converter(s.platform_.messages);
         s.platform_.dialogs.ShowModal(converter);
     }},
    {CommandId::ToolsHydrometer,
     [](Shell& s) {
         HydrometerModel hydrometer(s.platform_.messages);
         s.platform_.dialogs.ShowModal(hydrometer);
     }},
    {CommandId::ToolsColorScale,
     [](Shell& s) {
         ColorScaleModel scales;
         s.platform_.dialogs.ShowModal(scales);
     }},
    {CommandId::ToolsHopUtil,
     [](Shell& s) {
         std::optional<std::string> boilGravity;
         if (s.active_) boilGravity = s.active_->Record().txtBG.Text();
         HopUtilModel explorer(boilGravity);
         s.platform_.dialogs.ShowModal(explorer);
     }},
    {CommandId::ToolsResizeRecipe, [](Shell& s) { s.ShowScaling(Scaling::Size); }},
    {CommandId::ToolsChangeStrength, [](Shell& s) { s.ShowScaling(Scaling::Strength); }},
    {CommandId::ToolsChangeBitterness, [](Shell& s) { s.ShowScaling(Scaling::Bitterness); }},
    {CommandId::ToolsChangeCO2, [](Shell& s) { s.ShowScaling(Scaling::Carbonation); }},
    {CommandId::ToolsDataSetup, [](Shell& s) { s.ShowDatabaseSetup(); }},
    {CommandId::ToolsOptions,
     [](Shell& s) {
         OptionsModel options(s, s.platform_.messages);
         s.platform_.dialogs.ShowModal(options);
     }},
    {CommandId::ToolsAssistant, [](Shell& s) { s.ShowAssistant(); }},
    {CommandId::WindowCascade, [](Shell& s) { s.Arrange(Arrangement::Cascade); }},
    {CommandId::WindowTileHorizontal, [](Shell& s) { s.Arrange(Arrangement::TileHorizontal); }},
    {CommandId::WindowTileVertical, [](Shell& s) { s.Arrange(Arrangement::TileVertical); }},
    {CommandId::HelpContents, [](Shell& s) { s.ShowHelpContents(); }},
    {CommandId::HelpAuto, [](Shell& s) { s.ShowHelpOfActive(); }},
    {CommandId::HelpAbout,
     [](Shell& s) {
         AboutModel about;
         s.platform_.dialogs.ShowModal(about);
     }},
};

const Shell::ActionRow* Shell::FindAction(CommandId command) {
    for (const std::span<const ActionRow> rows :
         {std::span<const ActionRow>(kFileActions), std::span<const ActionRow>(kEditActions),
          std::span<const ActionRow>(kOtherActions)}) {
        const auto found = std::ranges::find(rows, command, &ActionRow::command);
        if (found != rows.end()) return &*found;
    }
    return nullptr;
}

Shell::Action Shell::ActionOf(CommandId command) {
    const int slot = static_cast<int>(command) - static_cast<int>(RecentCommand(0));
    if (slot >= 0 && slot < kRecentSlots) return [slot](Shell& s) { s.OpenByName(s.recent_.NameOf(slot)); };
    const ActionRow* const row = FindAction(command);
    return row != nullptr ? row->action : Action{};
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

bool Shell::RunAction(CommandId command, const Action& action) {
    // Without a database the program is about to end.
    if (!action || !database_) return false;
    if (RowOf(command).needs == Needs::ActiveRecipe && !active_) return true;
    Guard([&] { action(*this); });
    return true;
}

bool Shell::RunCommand(CommandId command) {
    const MenuItem& item = bar_.Item(command);
    return item.enabled && item.visible && RunAction(command, ActionOf(command));
}

bool Shell::RunMenu(std::string_view name) {
    const std::optional<CommandId> command = FindCommandId(name);
    return command && RunCommand(*command);
}

bool Shell::PressButton(CommandId command) {
    const ToolButton* button = bar_.ButtonOf(command);
    if (!button || !button->enabled) return false;
    const ActionRow* const row = FindAction(command);
    return RunAction(command, row != nullptr && row->pressed != nullptr ? row->pressed : ActionOf(command));
}

void Shell::PickFromCatalogue(RecipeDocument& document, CatalogueKind list, const std::string& name) {
    LvShowModel picker(list, *database_, *tree_, name);
    picker.SetViewer([this](CatalogueKind type, ListTable& items) { ViewCatalogueRow(type, items); });
    platform_.dialogs.ShowModal(picker);
    if (!picker.Cancelled()) document.Picks().Take(list, picker.Answer());
}

void Shell::ShowScaling(Scaling what) {
    if (!active_ || !active_->Focus().Focus().FlushEdits()) return;
    RecipeDocument& document = *active_;
    const std::optional<std::string> current = CurrentFigure(document, what);
    if (!current) return;
    ScalingModel dialog(what, *current, platform_.messages);
    dialog.SetSizeCheck([&document](double gallons) { return document.Scaling().Scaling().RefusalOfSize(gallons); });
    platform_.dialogs.ShowModal(dialog);
    if (!dialog.Cancelled()) Scale(document, dialog);
}

void Shell::SaveAllDocuments() {
    // One that cannot be saved does not keep the others from it.
    for (std::size_t i = 0; i < documents_.size(); ++i) {
        Guard([&] {
            documents_[i]->Focus().Focus().FlushEdits();
            SaveRecipe(*documents_[i], false);
        });
    }
}

void Shell::EnableResizeRecipe(bool enabled) {
    bar_.SetBothEnabled(CommandId::ToolsResizeRecipe, enabled);
}
void Shell::EnableChangeStrength(bool enabled) {
    bar_.SetBothEnabled(CommandId::ToolsChangeStrength, enabled);
}
void Shell::EnableChangeBitterness(bool enabled) {
    bar_.SetBothEnabled(CommandId::ToolsChangeBitterness, enabled);
}
void Shell::EnableChangeCarbonation(bool enabled) {
    bar_.SetBothEnabled(CommandId::ToolsChangeCO2, enabled);
}
void Shell::EnableInsert(bool enabled) {
    bar_.SetBothEnabled(CommandId::EditInsert, enabled);
}
void Shell::EnableDelete(bool enabled) {
    bar_.SetBothEnabled(CommandId::EditDelete, enabled);
}

void Shell::EnableSave(bool enabled) {
    bar_.SetBothEnabled(CommandId::FileSave, enabled);
    CheckEnableSaveAll();
}

void Shell::EnableCopyPaste(bool enableCopy, bool enableCutPaste) {
    EnableCopy(enableCopy);
    EnablePaste(enableCutPaste);
    lastPasteEnable_ = enableCutPaste;
}

void Shell::EnableCopy(bool enabled) {
    bar_.SetEnabled(CommandId::EditSelectAll, enabled);
    bar_.SetBothEnabled(CommandId::EditCopy, enabled);
}

void Shell::EnablePaste(bool enabled) {
    bar_.SetEnabled(CommandId::EditClear, enabled);
    bar_.SetBothEnabled(CommandId::EditCut, enabled);
    bar_.SetBothEnabled(CommandId::EditPaste, enabled && platform_.clipboard.HasText());
}

void Shell::ReapplyPasteState() {
    EnablePaste(lastPasteEnable_);
}

void Shell::EnableUndo(bool enabled, std::string_view description) {
    bar_.SetCaption(CommandId::EditUndo, "&Undo " + std::string(description));
    bar_.SetBothEnabled(CommandId::EditUndo, enabled);
}

void Shell::EnableRedo(bool enabled, std::string_view description) {
    bar_.SetCaption(CommandId::EditRedo, "&Redo " + std::string(description));
    bar_.SetBothEnabled(CommandId::EditRedo, enabled);
}

void Shell::EnableClose(bool enabled) {
    bar_.SetEnabled(CommandId::FileClose, enabled);
    bar_.SetEnabled(CommandId::FileCloseAll, enabled);
    bar_.SetEnabled(CommandId::FileSaveAs, enabled);
    bar_.SetBothEnabled(CommandId::FilePrint, enabled);
    bar_.SetEnabled(CommandId::FilePreview, enabled);
}

void Shell::ChangeToolbarIcons() {
    if (view_) view_->ToolbarIconsChanged();
}

void Shell::ChangeToolbarButtonStyle() {
    if (view_) view_->ToolbarButtonStyleChanged();
}

void Shell::EnableWindowMenu(bool enabled) {
    bar_.SetEnabled(CommandId::WindowCascade, enabled);
    bar_.SetEnabled(CommandId::WindowTileHorizontal, enabled);
    bar_.SetEnabled(CommandId::WindowTileVertical, enabled);
}

void Shell::CheckEnableSaveAll() {
    bar_.SetEnabled(CommandId::FileSaveAll, std::ranges::any_of(documents_, [](const auto& document) {
                        return document->Changed();
                    }));
}

void Shell::CheckEnableDelete() {
    const bool anyRecipe = !database_->OpenRecordset("SELECT * FROM RECIPES").AtEnd();
    // Compared with FileDelete alone, on purpose: at a start with recipes FilePrint stays off, and with
    // the first recipe it goes on, also without an open document.
    if (bar_.Item(CommandId::FileDelete).enabled == anyRecipe) return;
    bar_.SetEnabled(CommandId::FileDelete, anyRecipe);
    bar_.SetEnabled(CommandId::FilePrint, anyRecipe);
    bar_.SetEnabled(CommandId::FileOpen, anyRecipe);
    bar_.SetEnabled(CommandId::FileExport, anyRecipe);
    bar_.SetButtonEnabled(CommandId::FileOpen, anyRecipe);
}

}  // namespace tw
