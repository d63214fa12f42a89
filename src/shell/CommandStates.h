// Which commands are enabled, and what the undo commands are called: what the active document and the program
// say about it, brought to menu items and toolbar buttons.
#pragma once

#include <functional>
#include <string_view>

#include "document/DocumentHost.h"
#include "platform/Ports.h"
#include "shell/CommandBar.h"

namespace tw {

class CommandStates final : public DocumentCommands {
  public:
    // What the states depend on.
    struct Questions {
        std::function<bool()> anyChanged;  // an open document is changed
        std::function<bool()> anyRecipe;   // the database holds a recipe
    };
    // bar and clipboard must outlive the object.
    CommandStates(CommandBar& bar, ClipboardPort& clipboard, Questions questions);

    // The commands on open documents, when the first one comes.
    void EnableForDocument();
    // All commands that need a document are disabled, when the last one has gone.
    void DisableAll();
    // Cut and paste again: the clipboard may have changed.
    void ReapplyPaste();

    // DocumentCommands
    void EnableResizeRecipe(bool enabled) override;
    void EnableChangeStrength(bool enabled) override;
    void EnableChangeBitterness(bool enabled) override;
    void EnableChangeCarbonation(bool enabled) override;
    void EnableSave(bool enabled) override;
    void EnableInsert(bool enabled) override;
    void EnableDelete(bool enabled) override;
    void EnableCopyPaste(bool enableCopy, bool enableCutPaste) override;
    void EnableUndo(bool enabled, std::string_view description) override;
    void EnableRedo(bool enabled, std::string_view description) override;
    void CheckEnableSaveAll() override;
    void CheckEnableDelete() override;

  private:
    void EnableClose(bool enabled);
    void EnableWindowMenu(bool enabled);
    void EnableCopy(bool enabled);
    void EnablePaste(bool enabled);

    CommandBar& bar_;
    ClipboardPort& clipboard_;
    Questions questions_;
    bool pasteEnabled_ = false;  // what the document said last, whatever the clipboard holds
};

}  // namespace tw
