// All user preferences of the section "Settings" as fields, and the one table of their keys, defaults and
// text forms. They are read once at start and written at shut-down.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/SettingsStore.h"

namespace tw {

struct Settings {
    // Geometry of the main window in twips (a twentieth of a point).
    double mainLeft = 1000, mainTop = 1000, mainWidth = 6500, mainHeight = 6500;
    int iconStyle = 0, buttonStyle = 0, childState = 0;
    bool appendRows = false;
    int hopForm = 0;
    bool hopSocks = true;
    std::string hopExtraction, grainExtraction, waterProfile;
    int packaging = 0;
    std::string boilVol, totalVol;
    int ibuMethod = 0, reportType = 0;
    bool copyHeaders = false, pasteMismatchSize = false, showAssistantAtStartup = true, doAutoSave = false;
    int doAutoSaveEvery = 5;
    bool askBeforeNonUndoableChange = true, quickPrintFromToolbar = true;
    // Colours as 32-bit numbers in blue-green-red order. Nothing is a colour that the brewer never chose: the
    // grids show a tint of the desktop's colours for it, and it is not stored.
    std::optional<int> gridReadOnlyBg, gridTotalBg, gridReadOnlyFg, gridTotalFg;
    int lpMaxIter = 1000;  // read, never written by the program

    // The keys of the window's geometry and style, read before the database is opened.
    void LoadWindowKeys(const SettingsStore& store);
    // All other keys, in the table's order.
    void LoadProgramKeys(const SettingsStore& store);
    // Every key but those of the geometry (and LPMaxIter, which is never written), in the order of shut-down.
    // A colour that was never chosen leaves the store.
    void Store(const SettingsStore& store) const;
    void StoreGeometry(const SettingsStore& store) const;
    // Takes one key's text into its field. False for an unknown key.
    bool Take(std::string_view key, std::string_view text);
    // The default text of a key of any section of the program; nothing for an unknown key.
    static std::optional<std::string> DefaultOf(std::string_view section, std::string_view key);
};

inline constexpr std::string_view kSettingsSection = "Settings";
inline constexpr std::string_view kMruSection = "MRU";

}  // namespace tw
