// Which commands are enabled, and the captions of the undo commands. Applies what the active document and the
// program report to menu items and toolbar buttons.
#pragma once

#include <functional>
#include <string_view>

#include "document/DocumentHost.h"
#include "platform/Ports.h"
#include "shell/CommandBar.h"

namespace tw {

class CommandStates final : public DocumentCommands {
  public:
    // The state of the program on which commands depend.
    struct Questions {
        std::function<bool()> anyChanged;  // true if an open document has changes
        std::function<bool()> anyRecipe;   // true if the database contains a recipe
        // True if the active document is that of a stored recipe that carries data of another program.
        std::function<bool()> activeCarries;
    };
    // bar and clipboard must outlive the object, and so must what questions refer to.
    CommandStates(CommandBar& bar, ClipboardPort& clipboard, Questions questions);

    // Enables the commands that need an open document. To be called when the first one opens.
    void EnableForDocument();
    // Disables all commands that need a document. To be called when the last one has closed.
    void DisableAll();
    // Updates cut, clear and paste after the clipboard may have changed.
    void ReapplyPaste();
    // Updates the command that shows carried data, after the active document, its stored recipe, or what that
    // carries may have changed.
    void CheckEnableCarried();

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
    bool pasteEnabled_ = false;  // what the document reported last, regardless of the clipboard
};

}  // namespace tw
