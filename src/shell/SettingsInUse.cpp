#include "shell/SettingsInUse.h"

#include "record/RecipeRecord.h"

namespace tw {
namespace {

// Returns index, or 0 for a stored number that is not among the choices.
int ChoiceOf(int index, int choices) {
    return index >= 0 && index < choices ? index : 0;
}

constexpr int kIbuMethods = 3;
constexpr int kPackagings = 2;

}  // namespace

void SettingsInUse::LoadProgramKeys() {
    values_.LoadProgramKeys(store_);
    SetAppendRows(values_.appendRows);
    SwitchAutoSave(false);
}

void SettingsInUse::Keep(bool geometry) {
    values_.appendRows = AppendRows();
    if (geometry) values_.StoreGeometry(store_);
    values_.Store(store_);
}

bool SettingsInUse::AreNew() const {
    // Every end of the program stores this key.
    return store_.GetSetting(kSettingsSection, "GrainExtraction", "").empty();
}

void SettingsInUse::Store(std::string_view section, std::string_view key, std::string_view text) {
    store_.SaveSetting(section, key, text, false);
    const bool wasSaving = values_.doAutoSave;
    if (section != kSettingsSection || !values_.Take(key, text)) return;
    if (key == "AppendRows") SetAppendRows(values_.appendRows);
    if (key == "DoAutoSave") SwitchAutoSave(wasSaving);
    if (key == "IconStyle") ShowIcons();
    if (key == "ButtonStyle") ShowButtonStyle();
    if (key.starts_with("Grid")) ShowGridColors();
    if (key == "FigureStrip") view_->FigureStripSwitched();
}

void SettingsInUse::SetDoAutoSave(bool on) {
    const bool wasOn = values_.doAutoSave;
    values_.doAutoSave = on;
    SwitchAutoSave(wasOn);
}

void SettingsInUse::SetFigureStrip(bool on) {
    values_.figureStrip = on;
    view_->FigureStripSwitched();
}

void SettingsInUse::SwitchAutoSave(bool wasOn) {
    const bool on = values_.doAutoSave;
    if (on == wasOn) return;
    if (on) minutes_.Reset();
    view_->AutoSaveSwitched(on);
}

void SettingsInUse::ShowGridColors() {
    for (const auto& document : documents_.All()) view_->GridColorsChanged(*document);
}

RecipeDefaults SettingsInUse::Defaults() const {
    RecipeDefaults defaults;
    defaults.grainExtraction = values_.grainExtraction;
    defaults.hopExtraction = values_.hopExtraction;
    defaults.waterProfile = values_.waterProfile;
    defaults.boilVol = values_.boilVol;
    defaults.totalVol = values_.totalVol;
    defaults.ibuMethod = ChoiceOf(values_.ibuMethod, kIbuMethods);
    defaults.packaging = ChoiceOf(values_.packaging, kPackagings);
    defaults.hopForm = ChoiceOf(values_.hopForm, static_cast<int>(kHopForms.size()));
    defaults.hopSocks = values_.hopSocks;
    return defaults;
}

}  // namespace tw
