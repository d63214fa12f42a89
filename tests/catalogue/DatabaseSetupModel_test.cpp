#include "catalogue/DatabaseSetupModel.h"

#include "EditorTest.h"
#include "tree/FolderChooser.h"

namespace tw::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class Setup : public EditorTest {
  protected:
    DatabaseSetupModel& Show(CatalogueKind catalogue) {
        model = std::make_unique<DatabaseSetupModel>(context);
        model->Choose(catalogue);
        return *model;
    }
    Lines Names() {
        Lines names;
        for (const ListRow& row : model->Items().Rows()) names.push_back(row.cells.front());
        return names;
    }
    void Hops(const Lines& names) {
        for (const std::string& name : names)
            db->Execute("INSERT INTO HOPS (NAME) VALUES (" + SqlText(name) + ")");
    }
    void Grain(const std::string& name, int type) {
        db->Execute("INSERT INTO GRAINS (NAME, GRAIN, GRAIN_TYPE) VALUES (" + SqlText(name) + ", TRUE, " +
                    std::to_string(type) + ")");
    }
    void Style(const std::string& name, std::int64_t folder) {
        db->Execute("INSERT INTO STYLES (NAME, FOLDER_ID) VALUES (" + SqlText(name) + ", " +
                    std::to_string(folder) + ")");
        io.AddStyleNodesByName(name);
    }
    // Sets what the brewer does in the next dialog.
    void Next(std::function<void(DialogModel&)> work) {
        outside.dialogs.scripts.emplace_back(std::move(work));
    }

    std::unique_ptr<DatabaseSetupModel> model;
};

TEST_F(Setup, EachEntryShowsItsCatalogueOnTheFirstRow) {
    Lines shown;
    for (const std::string& entry : DatabaseSetupModel::Entries()) {
        DatabaseSetupModel& setup = Show(CatalogueKind::Hop);
        EXPECT_TRUE(setup.SetControl("Combo1", entry));
        shown.push_back(entry + ": " + setup.Items().Columns().front().title);
    }
    EXPECT_THAT(shown, ElementsAre("Styles: Style Name", "Grains: Grain Name", "Extracts: Extract Name",
                                   "Hop Varieties: Hop Variety Name", "Yeasts: Yeast Name",
                                   "Priming Sugars: Priming Sugar Name", "Water Profiles: Water Profile Name",
                                   "Treatment Salts: Treatment Salt Name"));
    EXPECT_FALSE(model->SetControl("Combo1", "Malts"));
    Hops({"Saaz", "Fuggle"});
    EXPECT_EQ(Show(CatalogueKind::Hop).Items().SelectedText(), "Fuggle");
}

TEST_F(Setup, EditAndDeleteAreOffWithoutARow) {
    DatabaseSetupModel& setup = Show(CatalogueKind::Hop);
    EXPECT_FALSE(setup.EditEnabled());
    setup.Press("cmdEdit");
    setup.Press("cmdDelete");
    setup.Press("lvItems");
    EXPECT_THAT(outside.dialogs.shown, IsEmpty());
    EXPECT_THAT(Boxes(), IsEmpty());
}

TEST_F(Setup, DeletingAsksFirst) {
    Hops({"Fuggle", "It's"});
    DatabaseSetupModel& setup = Show(CatalogueKind::Hop);
    setup.SetControl("lvItems", "it's");
    setup.Press("cmdDelete");
    EXPECT_THAT(Boxes(), ElementsAre("[Delete hop variety?] Are you sure you want to delete the hop variety "
                                     "'It's'? -> No"));
    EXPECT_THAT(Names(), ElementsAre("Fuggle", "It's"));
    outside.messages.answers.push_back(Answer::Yes);
    EXPECT_THAT(StatementsOf([&] { setup.Press("cmdDelete"); }),
                ElementsAre("DELETE FROM HOPS WHERE NAME = 'It''s'"));
    EXPECT_THAT(Names(), ElementsAre("Fuggle"));
    EXPECT_EQ(setup.Items().SelectedText(), "Fuggle");
}

TEST_F(Setup, TheLastGrainOfATypeTakesItAlong) {
    db->Execute("INSERT INTO GRAIN_TYPES (NAME, GRAIN) VALUES ('Base', TRUE)");
    db->Execute("INSERT INTO GRAIN_TYPES (NAME, GRAIN) VALUES ('Roasted', TRUE)");
    Grain("Pale", 1);
    Grain("Black", 2);
    Grain("Bare", 0);
    DatabaseSetupModel& setup = Show(CatalogueKind::Grain);
    EXPECT_THAT(Names(), ElementsAre("Base", "Pale", "Roasted", "Black", "Bare"));
    outside.messages.answers = {Answer::Yes, Answer::Yes, Answer::Yes};
    setup.SetControl("lvItems", "Black");
    EXPECT_THAT(StatementsOf([&] { setup.Press("cmdDelete"); }),
                ElementsAre("SELECT GRAIN_TYPE FROM GRAINS WHERE NAME = 'Black'",
                            "DELETE FROM GRAINS WHERE NAME = 'Black'",
                            "SELECT COUNT(GRAIN_TYPE) FROM GRAINS WHERE GRAIN_TYPE = 2",
                            "DELETE FROM GRAIN_TYPES WHERE ID = 2"));
    EXPECT_THAT(Names(), ElementsAre("Base", "Pale", "Bare"));
    EXPECT_EQ(setup.Items().SelectedText(), "Bare");
    EXPECT_THAT(StatementsOf([&] { setup.Press("cmdDelete"); }),
                ElementsAre("SELECT GRAIN_TYPE FROM GRAINS WHERE NAME = 'Bare'",
                            "DELETE FROM GRAINS WHERE NAME = 'Bare'"));
    EXPECT_EQ(setup.Items().SelectedText(), "Pale");
    setup.Press("cmdDelete");
    EXPECT_THAT(Names(), IsEmpty());
    EXPECT_THAT(Select("SELECT * FROM GRAIN_TYPES"), IsEmpty());
}

TEST_F(Setup, DeletingAHopLeavesTheRecipesThatUseIt) {
    Hops({"Saaz"});
    db->Execute("INSERT INTO RECIPE_HOPS (RECIPE_ID, ROW_ID, NAME) VALUES (1, 0, 'Saaz')");
    outside.messages.answers = {Answer::Yes};
    Show(CatalogueKind::Hop).Press("cmdDelete");
    EXPECT_THAT(Select("SELECT NAME FROM RECIPE_HOPS"), ElementsAre("Saaz"));
}

TEST_F(Setup, DeletingAStyleGoesThroughTheTree) {
    Style("Stout", 0);
    outside.messages.answers = {Answer::Yes};
    Show(CatalogueKind::Style).Press("cmdDelete");
    EXPECT_THAT(Boxes(),
                ElementsAre("[Delete style?] Are you sure you want to delete the style 'Stout'? -> Yes"));
    EXPECT_THAT(notices.log, ElementsAre("style deleted 1"));
    EXPECT_FALSE(tree.NodeExists("S:1:1"));
}

TEST_F(Setup, WhatAnEditorHasSavedIsSelected) {
    Hops({"Fuggle", "Saaz"});
    DatabaseSetupModel& setup = Show(CatalogueKind::Hop);
    Next([](DialogModel& editor) {
        editor.SetControl("Text1", "Zeus");
        editor.Press("cmdOK");
    });
    setup.Press("cmdEdit");
    EXPECT_THAT(Names(), ElementsAre("Saaz", "Zeus"));
    EXPECT_EQ(setup.Items().SelectedText(), "Zeus");
    Next([](DialogModel& editor) {
        EXPECT_EQ(editor.Controls().front().text, "");
        editor.SetControl("Text1", "Nugget");
        editor.Press("cmdOK");
    });
    setup.Press("cmdNew");
    EXPECT_EQ(setup.Items().SelectedText(), "Nugget");
    Next([](DialogModel& editor) { editor.SetControl("Text1", "Lost"); });
    setup.Press("lvItems");
    EXPECT_THAT(Names(), ElementsAre("Nugget", "Saaz", "Zeus"));
    EXPECT_THAT(outside.dialogs.shown, ElementsAre("frmHop", "frmHop", "frmHop"));
}

TEST_F(Setup, TheNavigatorFollowsARenameThatWasApplied) {
    Hops({"B", "D"});
    DatabaseSetupModel& setup = Show(CatalogueKind::Hop);
    Next([](DialogModel& editor) {
        editor.SetControl("Text1", "E");
        editor.Press("cmdApply");
        editor.Press("cmdPrevious");
        EXPECT_EQ(editor.Controls().front().text, "D");
        editor.Press("cmdNext");
        EXPECT_EQ(editor.Controls().front().text, "E");
        editor.Press("cmdCancel");
    });
    setup.Press("cmdEdit");
    EXPECT_THAT(Names(), ElementsAre("D", "E"));
    EXPECT_EQ(setup.Items().SelectedText(), "E");
    EXPECT_THAT(Boxes(), IsEmpty());
}

TEST_F(Setup, FoldersOfStylesAreEnteredAndLeft) {
    const std::int64_t dark = io.CreateStyleFolder(0, "Dark", Asking::Quietly);
    const std::int64_t darker = io.CreateStyleFolder(dark, "Darker", Asking::Quietly);
    Style("Bock", darker);
    Style("Alt", 0);
    DatabaseSetupModel& setup = Show(CatalogueKind::Style);
    EXPECT_THAT(Names(), ElementsAre("Dark", "Alt"));
    EXPECT_FALSE(setup.EditEnabled());
    EXPECT_FALSE(setup.DeleteEnabled());
    setup.Press("lvItems");
    EXPECT_THAT(Names(), ElementsAre("..", "Darker"));
    EXPECT_EQ(setup.Items().SelectedText(), "..");
    setup.SetControl("lvItems", "Darker");
    setup.Press("lvItems");
    EXPECT_THAT(Names(), ElementsAre("..", "Bock"));
    setup.Items().Sort(0, true);
    EXPECT_THAT(Names(), ElementsAre("..", "Bock"));
    setup.SetControl("lvItems", "..");
    setup.Press("lvItems");
    EXPECT_EQ(setup.Items().SelectedText(), "Darker");
    setup.SetControl("lvItems", "..");
    setup.Press("lvItems");
    EXPECT_EQ(setup.Items().SelectedText(), "Dark");
    EXPECT_TRUE(setup.ShowName("BOCK"));
    EXPECT_THAT(Names(), ElementsAre("..", "Bock"));
    EXPECT_FALSE(setup.ShowName("Kölsch"));
}

TEST_F(Setup, ANewStyleStandsInTheFolderThatIsShown) {
    io.CreateStyleFolder(0, "Dark", Asking::Quietly);
    DatabaseSetupModel& setup = Show(CatalogueKind::Style);
    setup.Press("lvItems");
    Next([](DialogModel& editor) {
        editor.SetControl("Text1", "Stout");
        editor.Press("cmdOK");
    });
    setup.Press("cmdNew");
    EXPECT_THAT(Names(), ElementsAre("..", "Stout"));
    // A style that is moved is shown in its new folder.
    Next([](DialogModel& editor) {
        editor.SetControl("FolderID", "0");
        editor.Press("cmdOK");
    });
    setup.Press("cmdEdit");
    EXPECT_THAT(Names(), ElementsAre("Dark", "Stout"));
    EXPECT_EQ(setup.Items().SelectedText(), "Stout");
}

TEST_F(Setup, AFolderThatWasMadeInACancelledEditorIsShown) {
    Style("Bock", 0);
    DatabaseSetupModel& setup = Show(CatalogueKind::Style);
    Next([](DialogModel& editor) { dynamic_cast<CatalogueEditor&>(editor).Folders()->CreateFolder(); });
    setup.Press("cmdEdit");
    EXPECT_THAT(Names(), ElementsAre("New Folder", "Bock"));
    EXPECT_EQ(setup.Items().SelectedText(), "Bock");
}

TEST_F(Setup, AFilterFindsTheStylesOfAllFolders) {
    const std::int64_t dark = io.CreateStyleFolder(0, "Dark", Asking::Quietly);
    Style("Dry Stout", dark);
    Style("Double Bock", 0);
    DatabaseSetupModel& setup = Show(CatalogueKind::Style);
    EXPECT_TRUE(setup.SetControl("txtFilter", "stout"));
    EXPECT_THAT(Names(), ElementsAre("Dry Stout"));
    EXPECT_TRUE(setup.EditEnabled());
    setup.SetFilter("d");
    EXPECT_THAT(Names(), ElementsAre("Double Bock", "Dry Stout"));
    // Without the filter, the selected style is shown in its folder.
    setup.SetControl("lvItems", "Dry Stout");
    setup.SetFilter("");
    EXPECT_THAT(Names(), ElementsAre("..", "Dry Stout"));
    EXPECT_EQ(setup.Items().SelectedText(), "Dry Stout");
}

TEST_F(Setup, AFilterGivesWayToWhatWasSaved) {
    Hops({"Fuggle", "Saaz"});
    DatabaseSetupModel& setup = Show(CatalogueKind::Hop);
    setup.SetFilter("saaz");
    Next([](DialogModel& editor) {
        editor.SetControl("Text1", "Zeus");
        editor.Press("cmdOK");
    });
    setup.Press("cmdNew");
    EXPECT_EQ(setup.Items().Filter(), "");
    EXPECT_EQ(setup.Items().SelectedText(), "Zeus");
}

TEST_F(Setup, DeletingUnderAFilterLeavesTheHeadingOfWhatIsHidden) {
    db->Execute("INSERT INTO GRAIN_TYPES (NAME, GRAIN) VALUES ('Base', TRUE)");
    for (const char* name : {"Mild", "Pale 1", "Pale 2"}) Grain(name, 1);
    DatabaseSetupModel& setup = Show(CatalogueKind::Grain);
    setup.SetFilter("pale");
    outside.messages.answers = {Answer::Yes, Answer::Yes};
    setup.Press("cmdDelete");
    EXPECT_THAT(Names(), ElementsAre("Base", "Pale 2"));
    EXPECT_EQ(setup.Items().SelectedText(), "Pale 2");
    setup.Press("cmdDelete");
    EXPECT_THAT(Names(), IsEmpty());
    EXPECT_FALSE(setup.DeleteEnabled());
    setup.SetFilter("");
    EXPECT_THAT(Names(), ElementsAre("Base", "Mild"));
}

TEST_F(Setup, TheOrderOfTheBrewerStaysWhenTheListIsReadAgain) {
    Hops({"A", "B"});
    DatabaseSetupModel& setup = Show(CatalogueKind::Hop);
    setup.Items().Sort(0, true);
    Next([](DialogModel& editor) {
        editor.SetControl("Text1", "C");
        editor.Press("cmdOK");
    });
    setup.Press("cmdNew");
    EXPECT_THAT(Names(), ElementsAre("C", "B", "A"));
}

TEST_F(Setup, AFailedDeletionRisesAndLeavesTheRow) {
    Hops({"Saaz"});
    DatabaseSetupModel& setup = Show(CatalogueKind::Hop);
    outside.messages.answers = {Answer::Yes};
    FailAt("DELETE");
    EXPECT_THROW(setup.Press("cmdDelete"), Error);
    Work();
    EXPECT_THAT(Names(), ElementsAre("Saaz"));
    EXPECT_TRUE(setup.IsOpen());
    EXPECT_FALSE(setup.Press("cmdHelp"));
    setup.Press("cmdClose");
    EXPECT_FALSE(setup.IsOpen());
}

}  // namespace
}  // namespace tw::test
