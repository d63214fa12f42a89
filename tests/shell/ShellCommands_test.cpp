#include "shell/AboutModel.h"
#include "shell/ShellTest.h"

namespace tw::test {
namespace {

TEST_F(ShellTest, EveryLitCommandHasAnAction) {
    RecipeDocument& document = NewSaved("Pale Ale");
    document.Focus().SetTab(Tab::Adjuncts);
    const std::vector<MenuItem> items = bar().Items();
    for (const MenuItem& item : items) {
        if (item.IsSeparator() || !item.visible || !item.enabled || item.name == "mnuFileExit" ||
            item.name.starts_with("mnuFileClose") || item.name == "mnuFileNew") {
            continue;
        }
        EXPECT_TRUE(shell.RunMenu(item.name)) << item.name;
    }
    outside.messages.answers = {Answer::No};
    EXPECT_TRUE(shell.RunMenu("mnuFileCloseAll"));
    EXPECT_TRUE(shell.Documents().All().empty());
}

TEST_F(ShellTest, WhatIsOffHiddenOrUnknownDoesNothing) {
    EXPECT_FALSE(shell.RunMenu("mnuFileClose"));      // off
    EXPECT_FALSE(shell.RunMenu("mnuFileReport"));     // hidden
    EXPECT_FALSE(shell.RunMenu("mnuEditWaterCalc"));  // hidden
    EXPECT_FALSE(shell.RunMenu("mnuFileBar0"));
    EXPECT_FALSE(shell.RunMenu("mnuFile"));
    EXPECT_FALSE(shell.RunMenu("mnuNothing"));
    EXPECT_FALSE(shell.PressButton(CommandId::FileSave));
    EXPECT_FALSE(shell.PressButton(CommandId::FileClose));
    EXPECT_TRUE(shell.Documents().All().empty());
}

TEST_F(ShellTest, AButtonRunsTheActionOfItsItem) {
    EXPECT_TRUE(shell.PressButton(CommandId::FileNew));
    EXPECT_EQ(Captions(), Strings{"Untitled 1"});
}

TEST_F(ShellTest, AnErrorInACommandIsShown) {
    NewSaved("Pale Ale");
    shell.DB()->SetStatementHook([](std::string_view) { throw Error("Database", "disk gone", 10); });
    EXPECT_TRUE(shell.RunMenu("mnuFileOpen"));
    EXPECT_EQ(outside.messages.log, Strings{"[Error] disk gone (10)"});
}

TEST_F(ShellTest, GuardShowsAnyErrorAndTellsOfIt) {
    EXPECT_TRUE(RunShowingErrors(outside.messages, [] {}));
    EXPECT_FALSE(RunShowingErrors(outside.messages, [] { RaiseOverflow(); }));
    EXPECT_FALSE(RunShowingErrors(outside.messages, [] { throw std::runtime_error("odd"); }));
    EXPECT_EQ(outside.messages.log, (Strings{"[Error] Overflow (6)", "[Error] odd"}));
}

TEST_F(ShellTest, TheFirstDocumentLightsTheDocumentCommandsAndTheLastDarkensThem) {
    constexpr std::string_view commands[] = {
        "mnuFileClose",     "mnuFileCloseAll",         "mnuFileSaveAs",        "mnuFilePreview",
        "mnuWindowCascade", "mnuWindowTileHorizontal", "mnuWindowTileVertical"};
    for (const std::string_view item : commands) EXPECT_FALSE(Lit(item)) << item;
    RecipeDocument& document = shell.Opened()->recipes.Create("");
    for (const std::string_view item : commands) EXPECT_TRUE(Lit(item)) << item;
    EXPECT_TRUE(bar().FindItem("mnuFilePrint")->enabled);
    EXPECT_TRUE(bar().FindButton("Print")->enabled);
    document.Focus().SetTab(Tab::Adjuncts);
    document.Fields().SetText(document.Record().txtNotes, "x");
    EXPECT_TRUE(Lit("mnuFileSave"));
    EXPECT_TRUE(Lit("mnuFileSaveAll"));
    EXPECT_TRUE(Lit("mnuEditInsert"));
    EXPECT_EQ(Button("Save").image, "Save");
    outside.messages.answers = {Answer::No};
    EXPECT_TRUE(shell.Opened()->saver.Close(document));
    for (const std::string_view item : commands) EXPECT_FALSE(Lit(item)) << item;
    for (const char* item : {"mnuFileSave", "mnuFileSaveAll", "mnuFilePrint", "mnuEditInsert",
                             "mnuEditDelete", "mnuEditCopy", "mnuEditSelectAll", "mnuEditCut", "mnuEditClear",
                             "mnuEditPaste", "mnuEditUndo", "mnuEditRedo", "mnuToolsResizeRecipe",
                             "mnuToolsChangeStrength", "mnuToolsChangeBitterness", "mnuToolsChangeCO2"}) {
        EXPECT_FALSE(bar().FindItem(item)->enabled) << item;
    }
    for (const char* key : {"Save", "Insert", "Delete"}) EXPECT_FALSE(Button(key).enabled) << key;
    EXPECT_EQ(Button("Save").image, "SaveTransparent");
    EXPECT_EQ(bar().FindItem("mnuEditUndo")->caption, "&Undo ");
}

// Without an open document, these commands depend only on the stored recipes.
TEST_F(ShellTest, OpenAndExportFollowTheStoredRecipesNotTheDocuments) {
    RecipeDocument& document = NewSaved("Pale Ale");
    EXPECT_TRUE(shell.Opened()->saver.Close(document));
    EXPECT_TRUE(Lit("mnuFileOpen"));
    EXPECT_TRUE(Button("Open").enabled);
    EXPECT_TRUE(bar().FindItem("mnuFileExport")->enabled);
    EXPECT_TRUE(bar().FindItem("mnuFileExportOther")->enabled);
    EXPECT_TRUE(bar().FindItem("mnuFileDelete")->enabled);
    EXPECT_FALSE(bar().FindItem("mnuFilePrint")->enabled);
    shell.Opened()->services.DeleteRecipe("Pale Ale");
    EXPECT_FALSE(Lit("mnuFileOpen"));
    EXPECT_FALSE(Button("Open").enabled);
    EXPECT_FALSE(bar().FindItem("mnuFileExport")->enabled);
    EXPECT_FALSE(bar().FindItem("mnuFileExportOther")->enabled);
}

// The first recipe enables Print even while no document is open.
TEST_F(ShellTest, TheFirstRecipeTurnsPrintOnWithoutADocument) {
    AddRecipeRow(*shell.DB(), "Pale Ale");
    shell.States().CheckEnableDelete();
    EXPECT_TRUE(bar().FindItem("mnuFilePrint")->enabled);
    EXPECT_FALSE(bar().FindButton("Print")->enabled);
    EXPECT_FALSE(bar().FindItem("mnuFilePreview")->enabled);
}

// Deleting the last recipe disables Print even under an open document, but not the preview.
TEST_F(ShellTest, ThePreviewFollowsTheDocumentsAlone) {
    NewSaved("Pale Ale");
    EXPECT_TRUE(bar().FindItem("mnuFilePreview")->enabled);
    shell.Opened()->services.DeleteRecipe("Pale Ale");
    EXPECT_FALSE(bar().FindItem("mnuFilePrint")->enabled);
    EXPECT_TRUE(bar().FindItem("mnuFilePreview")->enabled);
}

// Only the state of mnuFileDelete is compared.
TEST_F(ShellTest, NothingIsTouchedWhileDeleteIsAsItShouldBe) {
    AddRecipeRow(*shell.DB(), "Pale Ale");
    shell.States().CheckEnableDelete();
    shell.Bar().SetEnabled(CommandId::FilePrint, false);
    shell.Bar().SetEnabled(CommandId::FileOpen, false);
    shell.States().CheckEnableDelete();
    EXPECT_FALSE(bar().FindItem("mnuFilePrint")->enabled);
    EXPECT_FALSE(bar().FindItem("mnuFileOpen")->enabled);
}

TEST_F(ShellTest, TheFirstSaveLightsTheRecipeCommands) {
    EXPECT_FALSE(Lit("mnuFileOpen"));
    NewSaved("Pale Ale");
    EXPECT_TRUE(Lit("mnuFileOpen"));
    EXPECT_TRUE(bar().FindItem("mnuFileDelete")->enabled);
}

TEST_F(ShellTest, SaveAllIsOnExactlyWhileSomeDocumentIsChanged) {
    RecipeDocument& first = NewSaved("One");
    RecipeDocument& second = NewSaved("Two");
    EXPECT_FALSE(Lit("mnuFileSaveAll"));
    first.Fields().SetText(first.Record().txtNotes, "x");
    EXPECT_TRUE(Lit("mnuFileSaveAll"));
    EXPECT_FALSE(Lit("mnuFileSave"));  // the active one has no changes
    shell.Documents().Activate(first);
    EXPECT_TRUE(Lit("mnuFileSave"));
    shell.Documents().Activate(second);
    EXPECT_FALSE(Lit("mnuFileSave"));
    EXPECT_TRUE(shell.Opened()->saver.Save(first));
    EXPECT_FALSE(Lit("mnuFileSaveAll"));
}

TEST_F(ShellTest, EachOperationLightsItsItemAndItsButton) {
    struct Pair {
        void (CommandStates::*enable)(bool);
        const char* item;
        const char* button;
    };
    const Pair pairs[] = {
        {&CommandStates::EnableSave, "mnuFileSave", "Save"},
        {&CommandStates::EnableInsert, "mnuEditInsert", "Insert"},
        {&CommandStates::EnableDelete, "mnuEditDelete", "Delete"},
        {&CommandStates::EnableResizeRecipe, "mnuToolsResizeRecipe", "Volume"},
        {&CommandStates::EnableChangeStrength, "mnuToolsChangeStrength", "Strength"},
        {&CommandStates::EnableChangeBitterness, "mnuToolsChangeBitterness", "Bitterness"},
        {&CommandStates::EnableChangeCarbonation, "mnuToolsChangeCO2", "Carbonation"},
    };
    for (const Pair& pair : pairs) {
        for (const bool on : {true, false}) {
            (shell.States().*pair.enable)(on);
            EXPECT_EQ(bar().FindItem(pair.item)->enabled, on) << pair.item;
            EXPECT_EQ(Button(pair.button).enabled, on) << pair.button;
        }
    }
}

TEST_F(ShellTest, UndoAndRedoShowTheirDescriptionAlways) {
    shell.States().EnableUndo(false, "Typing");
    shell.States().EnableRedo(true, "Insert Row");
    EXPECT_EQ(bar().FindItem("mnuEditUndo")->caption, "&Undo Typing");
    EXPECT_EQ(bar().FindItem("mnuEditRedo")->caption, "&Redo Insert Row");
    EXPECT_FALSE(bar().FindItem("mnuEditUndo")->enabled);
    EXPECT_TRUE(bar().FindItem("mnuEditRedo")->enabled);
    EXPECT_TRUE(Button("Redo").enabled);
}

TEST_F(ShellTest, CopyAndPasteLightTheirCommands) {
    outside.clipboard.text = "x";
    shell.States().EnableCopyPaste(true, false);
    EXPECT_TRUE(bar().FindItem("mnuEditCopy")->enabled);
    EXPECT_TRUE(bar().FindItem("mnuEditSelectAll")->enabled);
    EXPECT_TRUE(Button("Copy").enabled);
    EXPECT_FALSE(bar().FindItem("mnuEditCut")->enabled);
    EXPECT_FALSE(bar().FindItem("mnuEditPaste")->enabled);
    shell.States().EnableCopyPaste(false, true);
    EXPECT_FALSE(bar().FindItem("mnuEditCopy")->enabled);
    for (const char* item : {"mnuEditCut", "mnuEditClear", "mnuEditPaste"})
        EXPECT_TRUE(bar().FindItem(item)->enabled) << item;
    EXPECT_TRUE(Button("Cut").enabled);
    EXPECT_TRUE(Button("Paste").enabled);
}

TEST_F(ShellTest, PasteStaysOffWhileTheClipboardHoldsNoText) {
    shell.States().EnableCopyPaste(true, true);
    EXPECT_TRUE(bar().FindItem("mnuEditCut")->enabled);
    EXPECT_FALSE(bar().FindItem("mnuEditPaste")->enabled);
    EXPECT_FALSE(Button("Paste").enabled);
    outside.clipboard.text = "from elsewhere";
    shell.States().ReapplyPaste();
    EXPECT_TRUE(bar().FindItem("mnuEditPaste")->enabled);
    EXPECT_TRUE(Button("Paste").enabled);
    outside.clipboard.text.reset();
    shell.States().ReapplyPaste();
    EXPECT_FALSE(bar().FindItem("mnuEditPaste")->enabled);
    EXPECT_TRUE(bar().FindItem("mnuEditCut")->enabled);
}

TEST_F(ShellTest, ReapplyingKeepsWhatTheDocumentRefused) {
    outside.clipboard.text = "x";
    shell.States().EnableCopyPaste(true, false);
    shell.States().ReapplyPaste();
    EXPECT_FALSE(bar().FindItem("mnuEditPaste")->enabled);
    EXPECT_FALSE(bar().FindItem("mnuEditCut")->enabled);
}

// Every edit item applies to the active document, even the append flag.
TEST_F(ShellTest, TheAppendFlagTogglesWhileADocumentIsOpen) {
    EXPECT_TRUE(shell.RunMenu("mnuEditAppendFlag"));
    EXPECT_FALSE(shell.SettingsNow().AppendRows());
    shell.Opened()->recipes.Create("");
    EXPECT_TRUE(shell.RunMenu("mnuEditAppendFlag"));
    EXPECT_TRUE(shell.SettingsNow().AppendRows());
    EXPECT_TRUE(bar().FindItem("mnuEditAppendFlag")->checked);
    EXPECT_TRUE(shell.RunMenu("mnuEditAppendFlag"));
    EXPECT_FALSE(shell.SettingsNow().AppendRows());
}

TEST_F(ShellTest, InsertAndDeleteActOnTheActiveDocument) {
    RecipeDocument& document = shell.Opened()->recipes.Create("");
    document.Focus().SetTab(Tab::Adjuncts);
    const int before = document.Record().gridAdjuncts.Rows();
    EXPECT_TRUE(shell.RunMenu("mnuEditInsert"));
    EXPECT_EQ(document.Record().gridAdjuncts.Rows(), before + 1);
}

TEST_F(ShellTest, TheWindowMenuArranges) {
    shell.Opened()->recipes.Create("");
    view.log.clear();
    EXPECT_TRUE(shell.RunMenu("mnuWindowCascade"));
    EXPECT_TRUE(shell.RunMenu("mnuWindowTileHorizontal"));
    EXPECT_TRUE(shell.RunMenu("mnuWindowTileVertical"));
    EXPECT_EQ(view.log, (Strings{"arrange 0", "arrange 1", "arrange 2"}));
}

TEST_F(ShellTest, CloseAllStopsAtTheFirstRefusal) {
    NewNamed("One");
    shell.Opened()->recipes.Create("");
    EXPECT_TRUE(shell.RunMenu("mnuFileCloseAll"));
    EXPECT_EQ(shell.Documents().All().size(), 2u);
    outside.messages.answers = {Answer::No};
    EXPECT_TRUE(shell.RunMenu("mnuFileCloseAll"));
    EXPECT_TRUE(shell.Documents().All().empty());
}

TEST_F(ShellTest, OpenTakesTheNameOfTheDialog) {
    RecipeDocument& document = NewSaved("Pale Ale");
    EXPECT_TRUE(shell.Opened()->saver.Close(document));
    outside.dialogs.scripts.emplace_back([](DialogModel& dialog) {
        dialog.SetControl("txtName", "Pale Ale");
        dialog.Press("cmdOK");
    });
    EXPECT_TRUE(shell.RunMenu("mnuFileOpen"));
    EXPECT_EQ(Captions(), Strings{"Pale Ale"});
    EXPECT_TRUE(shell.RunMenu("mnuFileOpen"));  // cancelled
    EXPECT_EQ(shell.Documents().All().size(), 1u);
}

TEST_F(ShellTest, TheAboutWindowTellsTitleAndVersion) {
    outside.dialogs.scripts.emplace_back([](DialogModel& dialog) {
        EXPECT_EQ(dialog.FormName(), "frmAbout");
        ASSERT_EQ(dialog.Controls().size(), 2u);
        EXPECT_EQ(dialog.Controls()[0].text, "Tunwright");
        EXPECT_EQ(dialog.Controls()[1].text, "Version 1.0.0");
        EXPECT_FALSE(dialog.SetControl("lblTitle", "x"));
        EXPECT_FALSE(dialog.Press("cmdCancel"));
        EXPECT_TRUE(dialog.IsOpen());
        EXPECT_TRUE(dialog.Press("cmdOK"));
        EXPECT_FALSE(dialog.IsOpen());
    });
    EXPECT_TRUE(shell.RunMenu("mnuHelpAbout"));
    EXPECT_EQ(outside.dialogs.shown, Strings{"frmAbout"});
}

// A row in the table is only half of a command; the other half is its effect.
TEST_F(ShellTest, EveryCommandThatCanBeSeenDoesSomething) {
    shell.Opened()->recipes.Create("");
    for (const CommandRow& row : AllCommandRows()) {
        if (row.caption == kSeparator || row.start == Start::Hidden || row.id == CommandId::FileExit)
            continue;
        shell.Bar().SetEnabled(row.id, true);
        EXPECT_TRUE(shell.RunCommand(row.id)) << row.name;
        if (shell.Documents().All().empty()) shell.Opened()->recipes.Create("");
    }
}

TEST_F(ShellTest, WithoutADatabaseNoCommandRuns) {
    Shell closed({outside.platform});
    EXPECT_FALSE(closed.RunCommand(CommandId::FileNew));
    EXPECT_FALSE(closed.PressButton(CommandId::FileNew));
    EXPECT_FALSE(closed.RunMenu("mnuHelpAbout"));
    EXPECT_TRUE(closed.RequestExit());
    EXPECT_EQ(outside.dialogs.shown, Strings{});
}

}  // namespace
}  // namespace tw::test
