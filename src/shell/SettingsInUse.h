// The settings of the running program, and what a change of one does in it at once.
#pragma once

#include <string_view>

#include "document/DocumentHost.h"
#include "platform/SettingsStore.h"
#include "shell/AutoSave.h"
#include "shell/CommandBar.h"
#include "shell/DocumentManager.h"
#include "shell/Settings.h"
#include "shell/ShellView.h"

namespace tw {

class SettingsInUse {
  public:
    // All must outlive the object.
    SettingsInUse(SettingsStore& store, CommandBar& bar, ViewSlot& view, const DocumentManager& documents,
                  AutoSaveMinutes& minutes)
        : store_(store), bar_(bar), view_(view), documents_(documents), minutes_(minutes) {}

    Settings& Values() { return values_; }
    const Settings& Values() const { return values_; }

    void LoadWindowKeys() { values_.LoadWindowKeys(store_); }
    // All other keys; the append flag and the autosave timer follow.
    void LoadProgramKeys();
    // Writes all of them, those of the window's geometry only when that is asked for.
    void Keep(bool geometry);
    // Stores a setting for the user; one of the section "Settings" acts in the running program at once.
    void Store(std::string_view section, std::string_view key, std::string_view text);

    // Whether new rows go behind the last one: the check mark of its menu item.
    bool AppendRows() const { return bar_.Item(CommandId::EditAppendFlag).checked; }
    void SetAppendRows(bool append) { bar_.SetChecked(CommandId::EditAppendFlag, append); }
    // Switching autosave on counts the minutes from 0.
    void SetDoAutoSave(bool on);
    // Show the icon set, the button style and, in all documents, the grid colours that the settings hold now.
    void ShowIcons() { view_->ToolbarIconsChanged(); }
    void ShowButtonStyle() { view_->ToolbarButtonStyleChanged(); }
    void ShowGridColors();
    // What new recipes start with.
    RecipeDefaults Defaults() const;

  private:
    void SwitchAutoSave(bool wasOn);

    SettingsStore& store_;
    CommandBar& bar_;
    ViewSlot& view_;
    const DocumentManager& documents_;
    AutoSaveMinutes& minutes_;
    Settings values_;
};

}  // namespace tw
