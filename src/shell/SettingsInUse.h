// The settings of the running program, with the immediate effects of changing one.
#pragma once

#include <string_view>

#include "document/DocumentHost.h"
#include "document/TypingUnits.h"
#include "platform/SettingsStore.h"
#include "shell/AutoSave.h"
#include "shell/CommandBar.h"
#include "shell/DocumentManager.h"
#include "shell/Settings.h"
#include "shell/ShellView.h"

namespace tw {

class SettingsInUse {
  public:
    // All arguments must outlive the object.
    SettingsInUse(SettingsStore& store, CommandBar& bar, ViewSlot& view, const DocumentManager& documents,
                  AutoSaveMinutes& minutes)
        : store_(store), bar_(bar), view_(view), documents_(documents), minutes_(minutes) {}

    Settings& Values() { return values_; }
    const Settings& Values() const { return values_; }

    void LoadWindowKeys() { values_.LoadWindowKeys(store_); }
    // Loads all other keys, and applies the append flag and autosave.
    void LoadProgramKeys();
    // Stores all settings; those of the window's geometry only if geometry is true.
    void Keep(bool geometry);
    // Stores a setting permanently; one of the section "Settings" also takes effect at once.
    void Store(std::string_view section, std::string_view key, std::string_view text);

    // True if no settings have been stored yet: this is the brewer's first start.
    bool AreNew() const;
    // The units of the examples and of the sample recipe.
    TypingUnits Units() const { return values_.metricExamples ? TypingUnits::Metric : TypingUnits::US; }
    // True if new rows are added after the last one: the check mark of the menu item.
    bool AppendRows() const { return bar_.Item(CommandId::EditAppendFlag).checked; }
    void SetAppendRows(bool append) { bar_.SetChecked(CommandId::EditAppendFlag, append); }
    // Switching autosave on restarts its count of minutes from 0.
    void SetDoAutoSave(bool on);
    // Shows or hides the strips of figures in the recipe windows.
    void SetFigureStrip(bool on);
    // Make the windows show the current icon set, button style and, in all documents, grid colours.
    void ShowIcons() { view_->ToolbarIconsChanged(); }
    void ShowButtonStyle() { view_->ToolbarButtonStyleChanged(); }
    void ShowGridColors();
    // Returns the initial values of new recipes.
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
