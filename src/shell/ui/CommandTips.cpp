#include "shell/ui/CommandTips.h"

#include <QCoreApplication>

namespace tw {
namespace {

struct Tip {
    std::string_view name;
    const char* sentence;
};

constexpr Tip kTips[] = {
    {"mnuFileNew", "Starts a new recipe."},
    {"mnuFileOpen", "Opens a recipe from the database."},
    {"mnuFileClose", "Closes the recipe in front."},
    {"mnuFileCloseAll", "Closes all open recipes."},
    {"mnuFileSave", "Saves the recipe in front to the database."},
    {"mnuFileSaveAs", "Saves the recipe in front under another name or in another folder."},
    {"mnuFileSaveAll", "Saves all open recipes that have changed."},
    {"mnuFileImport", "Reads recipes from an exchange file into the database."},
    {"mnuFileExport", "Writes recipes of the database to an exchange file."},
    {"mnuFileDelete", "Deletes a recipe from the database."},
    {"mnuFilePrint", "Prints the recipe in front on a printer that you choose."},
    {"mnuFilePreview", "Shows the pages of the recipe in front as they will be printed."},
    {"Print", "Prints the recipe in front on the default printer, or asks first, as the options say."},
    {"mnuFileReport", "Writes recipes to a report file."},
    {"mnuFileExit", "Closes all recipes and ends Tunwright."},
    {"mnuEditUndo", "Takes the last change back."},
    {"mnuEditRedo", "Makes the change again that was taken back."},
    {"mnuEditCut", "Moves what is selected to the clipboard."},
    {"mnuEditCopy", "Copies what is selected to the clipboard."},
    {"mnuEditPaste", "Puts the text of the clipboard here."},
    {"mnuEditClear", "Empties what is selected."},
    {"mnuEditSelectAll", "Selects everything in the box or grid."},
    {"mnuEditInsert", "Inserts a row into the grid."},
    {"mnuEditDelete", "Deletes the current row of the grid."},
    {"mnuEditAppendFlag", "Puts new rows behind the last one instead of before the current one."},
    {"mnuToolsDataSetup", "Edits the styles and ingredients of the database."},
    {"mnuToolsExplorer", "Shows the recipes in their folders."},
    {"mnuToolsAssistant", "Shows the assistant with the first steps."},
    {"mnuToolsResizeRecipe", "Rewrites the recipe for another batch size."},
    {"mnuToolsChangeStrength", "Rewrites the recipe for another original gravity."},
    {"mnuToolsChangeBitterness", "Rewrites the recipe for another bitterness."},
    {"mnuToolsChangeCO2", "Rewrites the priming or pressure for another carbonation."},
    {"mnuToolsUnits", "Converts a quantity into other units."},
    {"mnuToolsHydrometer", "Corrects a hydrometer's reading for its temperature."},
    {"mnuToolsColorScale", "Shows the colors of beer."},
    {"mnuToolsHopUtil", "Shows what the boil takes out of hops."},
    {"mnuToolsOptions", "Sets the defaults of new recipes and the looks."},
    {"mnuWindowCascade", "Lays the open recipes over each other."},
    {"mnuWindowTileHorizontal", "Lays the open recipes below each other."},
    {"mnuWindowTileVertical", "Lays the open recipes beside each other."},
    {"mnuHelpContents", "Shows the contents of the help."},
    {"mnuHelpAuto", "Shows the help about what is in front."},
    {"mnuHelpAbout", "Shows the version of Tunwright."},
};

}  // namespace

QString CommandTip(std::string_view command) {
    for (const Tip& tip : kTips)
        if (tip.name == command) return QCoreApplication::translate("CommandTips", tip.sentence);
    return {};
}

}  // namespace tw
