#include "shell/ShellActions.h"

#include <algorithm>
#include <optional>
#include <string>

#include "help/AssistantModel.h"
#include "platform/ErrorBox.h"
#include "shell/AboutModel.h"
#include "shell/BrewhouseModel.h"
#include "shell/OptionsModel.h"
#include "tools/ColorScaleModel.h"
#include "tools/ConvertUnitsModel.h"
#include "tools/HopUtilisationModel.h"
#include "tools/HydrometerModel.h"

namespace tw {
namespace {

using On = const ShellActions::Parts&;

RecipeDocument& Active(On on) {
    return *on.documents.Active();
}

// CloseActive, SaveActive and SaveActiveAs do nothing without an active recipe.
void CloseActive(On on) {
    if (RecipeDocument* const active = on.documents.Active()) on.saver.Close(*active);
}

void SaveActive(On on) {
    if (RecipeDocument* const active = on.documents.Active()) on.saver.Save(*active);
}

void SaveActiveAs(On on) {
    if (RecipeDocument* const active = on.documents.Active()) on.saver.SaveAs(*active);
}

// Closing the main window closes the database and destroys its parts, including the caller of this function:
// nothing of it may be used afterwards.
void Exit(On on) {
    if (on.saver.CloseAll()) on.view->CloseMainWindow();
}

void Cut(On on) {
    Active(on).Edit().Cut();
    on.states.ReapplyPaste();
}

void Copy(On on) {
    try {
        Active(on).Edit().Copy();
    } catch (const Error& error) {
        on.platform.messages.ShowMessage("Error", "Error during copy:\r\n" + error.WithNumber());
    }
    on.states.ReapplyPaste();
}

// Asks for a new value of a figure of the active recipe and scales the recipe to it. Does nothing if the
// recipe has no such figure.
void ShowScaling(On on, Scaling what) {
    if (on.documents.Active() == nullptr || !Active(on).Focus().FlushEdits()) return;
    RecipeDocument& document = Active(on);
    // A row that is still to be typed has no amount to scale.
    document.Lines().WithdrawRow();
    const std::optional<std::string> current = CurrentFigure(document, what);
    if (!current) return;
    ScalingModel dialog(what, *current, on.platform.messages);
    dialog.SetSizeCheck([&document](double gallons) { return document.Scaling().RefusalOfSize(gallons); });
    Settings& settings = on.settings.Values();
    dialog.SetRemembered({settings.scaleBoilVol, settings.keepBitterness, settings.keepCarbonation},
                         document.Scaling().HasCarbonation());
    on.platform.dialogs.ShowModal(dialog);
    if (dialog.Cancelled()) return;
    if (const std::optional<ScalingChoices> choices = dialog.ChoicesToRemember()) {
        settings.scaleBoilVol = choices->scaleBoilVol;
        settings.keepBitterness = choices->keepBitterness;
        settings.keepCarbonation = choices->keepCarbonation;
    }
    Scale(document, dialog);
}

void ConvertUnits(On on) {
    ConvertUnitsModel converter(on.platform.messages);
    on.platform.dialogs.ShowModal(converter);
}

void CalibrateHydrometer(On on) {
    HydrometerModel hydrometer(on.platform.messages);
    on.platform.dialogs.ShowModal(hydrometer);
}

void ShowColorScales(On on) {
    ColorScaleModel scales;
    on.platform.dialogs.ShowModal(scales);
}

void ShowHopUtilization(On on) {
    std::optional<std::string> boilGravity;
    if (on.documents.Active() != nullptr) boilGravity = Active(on).Record().txtBG.Text();
    HopUtilisationModel explorer(boilGravity);
    on.platform.dialogs.ShowModal(explorer);
}

void ShowOptions(On on) {
    OptionsModel options(on.settings, *on.data.database, on.platform.messages);
    on.platform.dialogs.ShowModal(options);
}

void ShowBrewhouse(On on, BrewhouseModel::Start start) {
    BrewhouseModel brewhouse(on.settings, *on.data.database, on.platform.messages, start);
    on.platform.dialogs.ShowModal(brewhouse);
}

void ShowAbout(On on) {
    AboutModel about;
    on.platform.dialogs.ShowModal(about);
}

// Counts the releases whose news are worth a line in the status bar.
constexpr int kNewsEdition = 1;

}  // namespace

// Actions of commands that need a recipe run only if one is active.
const ShellActions::Row ShellActions::kRows[] = {
    {CommandId::FileNew, [](On on) { on.recipes.Create(""); }},
    {CommandId::FileOpen, [](On on) { on.recipes.ShowOpenDialog(); }},
    {CommandId::FileClose, CloseActive},
    {CommandId::FileCloseAll, [](On on) { on.saver.CloseAll(); }},
    {CommandId::FileSave, SaveActive},
    {CommandId::FileSaveAs, SaveActiveAs},
    {CommandId::FileSaveAll, [](On on) { on.saver.SaveAll(); }},
    {CommandId::FileImport, [](On on) { on.files.Import(); }},
    {CommandId::FileExport, [](On on) { on.files.Export(); }},
    {CommandId::FileDoctor, [](On on) { on.files.ImportForeign(); }},
    {CommandId::FileExportOther, [](On on) { on.files.ExportOther(); }},
    {CommandId::FileCarried, [](On on) { on.carried.Show(); }},
    {CommandId::FileDelete, [](On on) { on.recipes.ShowDeleteDialog(); }},
    {CommandId::FilePrint, [](On on) { on.paper.PrintActive(false); },
     [](On on) { on.paper.PrintActive(on.settings.Values().quickPrintFromToolbar); }},
    {CommandId::FilePreview, [](On on) { on.paper.PreviewActive(); }},
    {CommandId::FileReport, [](On on) { on.paper.ShowReportWizard(on.settings.Values().reportType); }},
    {CommandId::FileExit, Exit},
    {CommandId::EditUndo, [](On on) { Active(on).Replay().Undo(); }},
    {CommandId::EditRedo, [](On on) { Active(on).Replay().Redo(); }},
    {CommandId::EditCut, Cut},
    {CommandId::EditCopy, Copy},
    {CommandId::EditPaste, [](On on) { Active(on).Edit().Paste(); }},
    {CommandId::EditClear, [](On on) { Active(on).Edit().Clear(); }},
    {CommandId::EditSelectAll, [](On on) { Active(on).Edit().SelectAll(); }},
    {CommandId::EditInsert, [](On on) { Active(on).Lines().InsertRow(); }},
    {CommandId::EditDelete, [](On on) { Active(on).Lines().DeleteRow(); }},
    {CommandId::EditAppendFlag, [](On on) { on.settings.SetAppendRows(!on.settings.AppendRows()); }},
    {CommandId::ToolsDataSetup, [](On on) { on.catalogue.ShowSetup(); }},
    {CommandId::ToolsExplorer, [](On on) { on.recipes.ShowExplorer(); }},
    {CommandId::ToolsResizeRecipe, [](On on) { ShowScaling(on, Scaling::Size); }},
    {CommandId::ToolsChangeStrength, [](On on) { ShowScaling(on, Scaling::Strength); }},
    {CommandId::ToolsChangeBitterness, [](On on) { ShowScaling(on, Scaling::Bitterness); }},
    {CommandId::ToolsChangeCO2, [](On on) { ShowScaling(on, Scaling::Carbonation); }},
    {CommandId::ToolsUnits, ConvertUnits},
    {CommandId::ToolsHydrometer, CalibrateHydrometer},
    {CommandId::ToolsColorScale, ShowColorScales},
    {CommandId::ToolsHopUtil, ShowHopUtilization},
    {CommandId::ToolsOptions, ShowOptions},
    {CommandId::ToolsBrewhouse, [](On on) { ShowBrewhouse(on, BrewhouseModel::Start::ShowSettings); }},
    {CommandId::WindowCascade, [](On on) { on.view->ArrangeDocuments(Arrangement::Cascade); }},
    {CommandId::WindowTileHorizontal, [](On on) { on.view->ArrangeDocuments(Arrangement::TileHorizontal); }},
    {CommandId::WindowTileVertical, [](On on) { on.view->ArrangeDocuments(Arrangement::TileVertical); }},
    {CommandId::HelpContents, [](On on) { on.help.ShowContents(); }},
    {CommandId::HelpAuto, [](On on) { on.help.ShowForActive(); }},
    {CommandId::HelpNews, [](On on) { on.help.ShowNews(); }},
    {CommandId::HelpSample, [](On on) { on.recipes.OpenSample(on.settings.Units()); }},
    {CommandId::HelpAbout, ShowAbout},
};

const ShellActions::Row* ShellActions::RowFor(CommandId command) {
    const auto* const row = std::ranges::find(kRows, command, &Row::command);
    return row == std::end(kRows) ? nullptr : row;
}

bool ShellActions::Carry(CommandId command, Action action) {
    if (RowOf(command).needs == Needs::ActiveRecipe && on_.documents.Active() == nullptr) return true;
    RunShowingErrors(on_.platform.messages, [&] { action(on_); });
    return true;
}

bool ShellActions::Carry(CommandId command) {
    const int slot = static_cast<int>(command) - static_cast<int>(RecentCommand(0));
    if (slot >= 0 && slot < kRecentSlots) {
        RunShowingErrors(on_.platform.messages, [&] { on_.recipes.OpenByName(on_.recent.NameOf(slot)); });
        return true;
    }
    // The assistant runs other commands, so it cannot be an action.
    if (command == CommandId::ToolsAssistant) {
        RunShowingErrors(on_.platform.messages, [this] { ShowAssistant(); });
        return true;
    }
    const Row* const row = RowFor(command);
    return row != nullptr && Carry(command, row->run);
}

bool ShellActions::Run(CommandId command) {
    const MenuItem& item = on_.bar.Item(command);
    return item.enabled && item.visible && Carry(command);
}

bool ShellActions::Press(CommandId command) {
    const ToolButton* const button = on_.bar.ButtonOf(command);
    if (button == nullptr || !button->enabled) return false;
    const Row* const row = RowFor(command);
    if (row != nullptr && row->pressed != nullptr) return Carry(command, row->pressed);
    return Carry(command);
}

void ShellActions::ShowAssistantAtStartup(bool metricDesktop) {
    TellOfNews();
    if (!on_.settings.Values().showAssistantAtStartup) return;
    using Brewhouse = BrewhouseModel::Start;
    if (on_.settings.AreNew())
        RunShowingErrors(on_.platform.messages, [&] {
            ShowBrewhouse(on_, metricDesktop ? Brewhouse::SuggestMetric : Brewhouse::SuggestUS);
        });
    ShowAssistant();
}

// Says once that there is something new, to a brewer who has used an earlier version.
void ShellActions::TellOfNews() {
    int& seen = on_.settings.Values().newsSeen;
    if (seen < kNewsEdition && !on_.settings.AreNew())
        on_.view->SayBriefly("This version has new ways to work: see Help, What's New.");
    seen = kNewsEdition;
}

void ShellActions::ShowAssistant() {
    Settings& settings = on_.settings.Values();
    AssistantModel assistant(settings.showAssistantAtStartup);
    on_.platform.dialogs.ShowModal(assistant);
    settings.showAssistantAtStartup = assistant.ShowAtStartup();
    // A link runs its command even if the menu item is disabled because no recipe is open.
    if (const auto chosen = assistant.Chosen()) Carry(*chosen);
}

}  // namespace tw
