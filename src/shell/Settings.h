// All preferences of the section "Settings" as fields, with one table of their keys, defaults and text forms.
// They are read once at the start and stored at shut-down.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/SettingsStore.h"

namespace tw {

// The value of Settings::childState for recipes that fill the main window.
inline constexpr int kStateMaximized = 2;

struct Settings {
    // Geometry of the main window in twips (a twentieth of a point).
    double mainLeft = 1000, mainTop = 1000, mainWidth = 6500, mainHeight = 6500;
    int iconStyle = 0, buttonStyle = 0, childState = 0;
    bool appendRows = false;
    int hopForm = 0;
    bool hopSocks = true;
    // As typed: a multiplier, percent, and the name of a water profile.
    std::string hopExtraction, grainExtraction, waterProfile;
    int packaging = 0;
    std::string boilVol, totalVol;  // as typed, US gallons unless they name another unit
    int ibuMethod = 0, reportType = 0;
    bool copyHeaders = false, pasteMismatchSize = false, showAssistantAtStartup = true, doAutoSave = false;
    int doAutoSaveEvery = 5;  // minutes
    bool askBeforeNonUndoableChange = true, quickPrintFromToolbar = true;
    // Colours as 0xBBGGRR. nullopt is a colour that the brewer has not chosen: the grids then use a tint of
    // the desktop's colours, and the colour is not stored.
    std::optional<int> gridReadOnlyBg, gridTotalBg, gridReadOnlyFg, gridTotalFg;
    int lpMaxIter = 1000;  // of the water solver; read, but never written by the program
    // Keys that newer versions added. Each is stored only while it differs from its default, so that a store
    // without them means the program as it was before them.
    bool undoScaling = false;     // scaling is one step of the history, and nothing is asked before it
    bool keepTypedUnits = false;  // scaling keeps the units of the amounts as they were typed
    // The check boxes of the windows that scale a recipe, as they were last accepted.
    bool scaleBoilVol = true, keepBitterness = true, keepCarbonation = true;
    bool figureStrip = true;      // the strip of figures below the tabs of a recipe is shown
    int newsSeen = 0;             // the last edition of the news that the brewer was told of
    bool metricExamples = false;  // examples of what can be typed, and the sample recipe, are metric
    int importUnits = 0;          // the units of recipes from other programs: an index of ImportUnits

    // Loads the keys of the window's geometry and style, before the database is opened.
    void LoadWindowKeys(const SettingsStore& store);
    // Loads all other keys, in the order of the table.
    void LoadProgramKeys(const SettingsStore& store);
    // Stores every key except those of the geometry and LPMaxIter, which is never written, in a fixed order.
    // Removes colours that were never chosen, and added keys with their default, from the store.
    void Store(const SettingsStore& store) const;
    void StoreGeometry(const SettingsStore& store) const;
    // Sets the field of a key from its text; a text of the wrong form sets the default. False for an
    // unknown key.
    bool Take(std::string_view key, std::string_view text);
    // Returns the default text of a key of any section of the program; nullopt for an unknown key.
    static std::optional<std::string> DefaultOf(std::string_view section, std::string_view key);
};

inline constexpr std::string_view kSettingsSection = "Settings";
inline constexpr std::string_view kMruSection = "MRU";

}  // namespace tw
