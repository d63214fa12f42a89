#include "shell/CommandStates.h"

#include <string>
#include <utility>

namespace tw {

CommandStates::CommandStates(CommandBar& bar, ClipboardPort& clipboard, Questions questions)
    : bar_(bar), clipboard_(clipboard), questions_(std::move(questions)) {}

void CommandStates::EnableForDocument() {
    EnableClose(true);
    EnableWindowMenu(true);
}

void CommandStates::DisableAll() {
    EnableClose(false);
    EnableWindowMenu(false);
    EnableSave(false);
    EnableInsert(false);
    EnableDelete(false);
    EnableCopyPaste(false, false);
    EnableUndo(false, "");
    EnableRedo(false, "");
    EnableResizeRecipe(false);
    EnableChangeStrength(false);
    EnableChangeBitterness(false);
    EnableChangeCarbonation(false);
    bar_.SetEnabled(CommandId::FileCarried, false);
}

void CommandStates::EnableResizeRecipe(bool enabled) {
    bar_.SetBothEnabled(CommandId::ToolsResizeRecipe, enabled);
}
void CommandStates::EnableChangeStrength(bool enabled) {
    bar_.SetBothEnabled(CommandId::ToolsChangeStrength, enabled);
}
void CommandStates::EnableChangeBitterness(bool enabled) {
    bar_.SetBothEnabled(CommandId::ToolsChangeBitterness, enabled);
}
void CommandStates::EnableChangeCarbonation(bool enabled) {
    bar_.SetBothEnabled(CommandId::ToolsChangeCO2, enabled);
}
void CommandStates::EnableInsert(bool enabled) {
    bar_.SetBothEnabled(CommandId::EditInsert, enabled);
}
void CommandStates::EnableDelete(bool enabled) {
    bar_.SetBothEnabled(CommandId::EditDelete, enabled);
}

void CommandStates::EnableSave(bool enabled) {
    bar_.SetBothEnabled(CommandId::FileSave, enabled);
    CheckEnableSaveAll();
}

void CommandStates::EnableCopyPaste(bool enableCopy, bool enableCutPaste) {
    EnableCopy(enableCopy);
    EnablePaste(enableCutPaste);
    pasteEnabled_ = enableCutPaste;
}

void CommandStates::EnableCopy(bool enabled) {
    bar_.SetEnabled(CommandId::EditSelectAll, enabled);
    bar_.SetBothEnabled(CommandId::EditCopy, enabled);
}

void CommandStates::EnablePaste(bool enabled) {
    bar_.SetEnabled(CommandId::EditClear, enabled);
    bar_.SetBothEnabled(CommandId::EditCut, enabled);
    bar_.SetBothEnabled(CommandId::EditPaste, enabled && clipboard_.HasText());
}

void CommandStates::ReapplyPaste() {
    EnablePaste(pasteEnabled_);
}

void CommandStates::EnableUndo(bool enabled, std::string_view description) {
    bar_.SetCaption(CommandId::EditUndo, "&Undo " + std::string(description));
    bar_.SetBothEnabled(CommandId::EditUndo, enabled);
}

void CommandStates::EnableRedo(bool enabled, std::string_view description) {
    bar_.SetCaption(CommandId::EditRedo, "&Redo " + std::string(description));
    bar_.SetBothEnabled(CommandId::EditRedo, enabled);
}

void CommandStates::EnableClose(bool enabled) {
    bar_.SetEnabled(CommandId::FileClose, enabled);
    bar_.SetEnabled(CommandId::FileCloseAll, enabled);
    bar_.SetEnabled(CommandId::FileSaveAs, enabled);
    bar_.SetBothEnabled(CommandId::FilePrint, enabled);
    bar_.SetEnabled(CommandId::FilePreview, enabled);
}

void CommandStates::EnableWindowMenu(bool enabled) {
    bar_.SetEnabled(CommandId::WindowCascade, enabled);
    bar_.SetEnabled(CommandId::WindowTileHorizontal, enabled);
    bar_.SetEnabled(CommandId::WindowTileVertical, enabled);
}

void CommandStates::CheckEnableSaveAll() {
    bar_.SetEnabled(CommandId::FileSaveAll, questions_.anyChanged());
}

void CommandStates::CheckEnableCarried() {
    bar_.SetEnabled(CommandId::FileCarried, questions_.activeCarries());
}

void CommandStates::CheckEnableDelete() {
    const bool anyRecipe = questions_.anyRecipe();
    // Only FileDelete is compared, which has two effects, kept because scripts can query these states: if the
    // database contains recipes at the start, FilePrint stays disabled; once a first recipe is stored, it is
    // enabled, even without an open document.
    if (bar_.Item(CommandId::FileDelete).enabled == anyRecipe) return;
    bar_.SetEnabled(CommandId::FileDelete, anyRecipe);
    bar_.SetEnabled(CommandId::FilePrint, anyRecipe);
    bar_.SetEnabled(CommandId::FileOpen, anyRecipe);
    bar_.SetEnabled(CommandId::FileExport, anyRecipe);
    bar_.SetEnabled(CommandId::FileExportOther, anyRecipe);
    bar_.SetButtonEnabled(CommandId::FileOpen, anyRecipe);
}

}  // namespace tw
