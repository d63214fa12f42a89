// The commands of the main window: every menu item and toolbar button, by id. To add a command, add its id
// here, its row in the table (Commands.cpp), and the call that it makes (shell/ShellActions.cpp).
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace tw {

// In the order of the menus, including separators.
enum class CommandId : std::uint8_t {
    // The File menu
    FileNew,
    FileOpen,
    FileBar0,
    FileClose,
    FileCloseAll,
    FileBar1,
    FileSave,
    FileSaveAs,
    FileSaveAll,
    FileBar2,
    FileImport,
    FileExport,
    FileDoctor,
    FileExportOther,
    FileCarried,
    FileBar3,
    FileDelete,
    FileBar4,
    FilePrint,
    FilePreview,
    FileBar5,
    FileReport,
    FileBar6,
    FileRecent0,
    FileRecent1,
    FileRecent2,
    FileRecent3,
    FileRecent4,
    FileRecent5,
    FileBar7,
    FileExit,
    // The Edit menu
    EditHydroCalibration,
    EditBottleCalc,
    EditWaterCalc,
    EditBar0,
    EditUndo,
    EditRedo,
    EditBar1,
    EditCut,
    EditCopy,
    EditPaste,
    EditClear,
    EditBar2,
    EditSelectAll,
    EditBar3,
    EditInsert,
    EditDelete,
    EditAppendFlag,
    // The Tools menu
    ToolsDataSetup,
    ToolsExplorer,
    ToolsAssistant,
    ToolBar1,
    ToolsResizeRecipe,
    ToolsChangeStrength,
    ToolsChangeBitterness,
    ToolsChangeCO2,
    ToolBar2,
    ToolsUnits,
    ToolsHydrometer,
    ToolsColorScale,
    ToolsHopUtil,
    ToolBar3,
    ToolsOptions,
    ToolsBrewhouse,
    // The Window menu
    WindowCascade,
    WindowTileHorizontal,
    WindowTileVertical,
    // The Help menu
    HelpContents,
    HelpAuto,
    HelpNews,
    HelpSample,
    HelpBar,
    HelpAbout,
    Count
};
inline constexpr std::size_t kCommandCount = static_cast<std::size_t>(CommandId::Count);

// The number of recently used recipes that the File menu can show.
inline constexpr int kRecentSlots = 6;
// Returns the command of a recently used recipe. REQUIRES: 0 <= slot < kRecentSlots.
constexpr CommandId RecentCommand(int slot) {
    return static_cast<CommandId>(static_cast<int>(CommandId::FileRecent0) + slot);
}

// The menus of the menu bar, from left to right.
enum class TopMenu : std::uint8_t { File, Edit, Tools, Window, Help };

struct TopMenuRow {
    TopMenu id;
    std::string_view name;     // of the control
    std::string_view caption;  // "&" marks the access key
    CommandId first;           // its items range from this one to the first of the next menu
};

// The state of a command before anything has enabled or shown it.
enum class Start : std::uint8_t { Enabled, Disabled, Hidden };

// What a command requires to run. Every command requires an open database.
enum class Needs : std::uint8_t { Database, ActiveRecipe };

struct ToolButtonRow {
    std::string_view key = {};  // empty if the command has no toolbar button
    std::string_view toolTip = {};
    std::string_view image = {};  // the name of the picture
    bool twin = false;  // has a grey picture for its disabled state, named with "Transparent" appended
    int place = 0;      // tens: the group on the toolbar; ones: the position in the group
    std::string_view tip = {};  // status bar text, if the button acts differently from the menu item
};

inline constexpr std::string_view kSeparator = "-";

struct CommandRow {
    CommandId id;
    std::string_view name;     // of the control; separators have one, too
    std::string_view caption;  // "&" marks the access key; kSeparator for a separator
    // The access key that a window marks if that of caption would hide another item of the menu; 0 for that
    // of caption, which scripts know.
    char ownLetter = 0;
    std::string_view keys = {};  // "Ctrl+N"; empty for none
    Start start = Start::Enabled;
    Needs needs = Needs::Database;
    bool commitsEntry = false;  // commits an entry in progress first; does not run if that is refused
    bool checkable = false;
    std::string_view tip = {};  // one sentence for the status bar
    ToolButtonRow button = {};
};

std::span<const TopMenuRow> AllTopMenus();
// In the order of CommandId.
std::span<const CommandRow> AllCommandRows();
const CommandRow& RowOf(CommandId id);
TopMenu MenuOf(CommandId id);
// Returns the caption of the command's menu item with the access key that a window marks.
std::string ShownCaption(const CommandRow& row, std::string_view caption);
// Returns the command of that control name, for scripts and other programs; nullopt for an unknown name.
std::optional<CommandId> FindCommandId(std::string_view name);

}  // namespace tw
