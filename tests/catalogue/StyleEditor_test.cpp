#include "catalogue/StyleEditor.h"

#include "EditorTest.h"
#include "tree/TWNodes.h"

namespace tw::test {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

class Styles : public EditorTest {
  protected:
    StyleEditor& OpenStyle(const std::string& name = "") {
        editor = std::make_unique<StyleEditor>(context);
        editor->SetName(name);
        return *editor;
    }
    // Returns the names of a node's children.
    Lines Below(const std::string& key) {
        Lines names;
        TWNode& node = *tree.Nodes(key);
        if (node.HasChildren())
            for (const auto& child : node.Children()) names.emplace_back(child->Name());
        return names;
    }

    std::unique_ptr<StyleEditor> editor;
};

TEST_F(Styles, ANewStyleIsInsertedAndShownInTheTree) {
    db->Execute("INSERT INTO WATER_PROFILES (NAME) VALUES ('Dublin')");
    StyleEditor& style = OpenStyle();
    EXPECT_THAT(style.List("Combo1").entries,
                ElementsAre("?", "Ale", "Lager", "Wheat", "Lactic", "Wine/Mead/Cider"));
    EXPECT_THAT(style.List("Combo2").entries, ElementsAre("", "Dublin"));
    const Lines statements = StatementsOf([&] {
        Save(style,
             {{"Text1", "St'out"}, {"Combo1", "Lager"}, {"Combo2", "DUBLIN"}, {"gridInfo(0,1)", "1.06"}});
    });
    EXPECT_EQ(statements[0], "SELECT * FROM STYLES WHERE NAME = 'St''out'");
    EXPECT_EQ(
        statements[1],
        "INSERT INTO STYLES (NAME, FOLDER_ID, CREATED_WHEN, MODIFIED_WHEN, DESCR, TYPE, WATER_PROFILE, "
        "OG_LO, OG_HI, FG_LO, FG_HI, ABV_LO, ABV_HI, COLOR_LO, COLOR_HI, IBU_LO, IBU_HI, CO2_LO, CO2_HI) "
        "VALUES ('St''out', 0, '03/09/2024 14:05:07', '03/09/2024 14:05:07', '', 1, 'Dublin', NULL, 1.06, "
        "NULL, NULL, NULL, NULL, NULL, NULL, NULL, NULL, NULL, NULL)");
    EXPECT_THAT(Below("G:0"), ElementsAre("(None)", "St'out"));
    EXPECT_THAT(Below("G:-1"), ElementsAre("(None)", "St'out"));
    EXPECT_EQ(style.ID(), 1);
    EXPECT_FALSE(style.Cancelled());
}

TEST_F(Styles, AStoredStyleIsUpdatedInOneStatement) {
    db->Execute("INSERT INTO STYLES (NAME, FOLDER_ID, TYPE, OG_LO) VALUES ('Stout', 0, 0, 1.05)");
    io.AddStyleNodesByName("Stout");
    StyleEditor& style = OpenStyle("stout");
    const Lines statements = StatementsOf([&] {
        Save(style, {{"Combo1", "?"}, {"gridInfo(5,1)", "2.5 volumes"}});
    });
    EXPECT_THAT(statements, testing::Not(testing::Contains(HasSubstr("SELECT * FROM STYLES"))));
    style.SetControl("Text1", "x");
    EXPECT_THAT(Boxes(), ElementsAre("[Invalid Entry] Please enter a valid CO2 value"));
    EXPECT_THAT(
        statements,
        testing::Contains("UPDATE STYLES SET NAME = 'Stout', FOLDER_ID = 0, DESCR = '', TYPE = NULL, "
                          "WATER_PROFILE = NULL, OG_LO = 1.05, OG_HI = NULL, FG_LO = NULL, FG_HI = NULL, "
                          "ABV_LO = NULL, ABV_HI = NULL, COLOR_LO = NULL, COLOR_HI = NULL, IBU_LO = NULL, "
                          "IBU_HI = NULL, CO2_LO = NULL, CO2_HI = NULL, MODIFIED_WHEN = "
                          "'03/09/2024 14:05:07' WHERE NAME = 'Stout'"));
    EXPECT_THAT(notices.log, IsEmpty());
}

TEST_F(Styles, ARenameReachesTheRightNodes) {
    db->Execute("INSERT INTO STYLES (NAME, FOLDER_ID) VALUES ('Stout', 0)");
    io.AddStyleNodesByName("Stout");
    Save(OpenStyle("Stout"), {{"Text1", " Dry Stout "}});
    EXPECT_THAT(Below("G:0"), ElementsAre("(None)", "Dry Stout"));
    EXPECT_THAT(notices.log, ElementsAre("style renamed 1 to Dry Stout"));
    // A change of case only does not look up the name, but is otherwise the same.
    StyleEditor& style = OpenStyle("Dry Stout");
    const Lines statements = StatementsOf([&] { Save(style, {{"Text1", "DRY STOUT"}}); });
    EXPECT_THAT(statements, testing::Not(testing::Contains(HasSubstr("SELECT * FROM STYLES"))));
    EXPECT_THAT(Below("G:-1"), ElementsAre("(None)", "DRY STOUT"));
}

TEST_F(Styles, AnotherFolderMovesTheStyleAndTouchesBoth) {
    const std::int64_t dark = io.CreateStyleFolder(0, "Dark", Asking::Quietly),
                       pale = io.CreateStyleFolder(0, "Pale", Asking::Quietly);
    db->Execute("INSERT INTO STYLES (NAME, FOLDER_ID) VALUES ('Stout', " + std::to_string(pale) + ")");
    io.AddStyleNodesByName("Stout");
    db->Execute("UPDATE FOLDERS SET MODIFIED_WHEN = NULL");
    StyleEditor& style = OpenStyle("Stout");
    EXPECT_EQ(style.Folders()->FolderID(), pale);
    EXPECT_FALSE(style.SetControl("FolderID", "99"));
    Save(style, {{"FolderID", std::to_string(dark)}});
    EXPECT_THAT(Select("SELECT FOLDER_ID FROM STYLES"), ElementsAre(std::to_string(dark)));
    EXPECT_THAT(Below("G:1"), ElementsAre("Stout"));
    EXPECT_THAT(Below("G:2"), IsEmpty());
    EXPECT_THAT(Select("SELECT NAME FROM FOLDERS WHERE NOT MODIFIED_WHEN IS NULL ORDER BY NAME"),
                ElementsAre("Dark", "Pale"));
}

TEST_F(Styles, ApplyStoresAndTheNextOneGoesOnFromThere) {
    const std::int64_t dark = io.CreateStyleFolder(0, "Dark", Asking::Quietly);
    StyleEditor& style = OpenStyle();
    EXPECT_FALSE(style.ApplyEnabled());
    style.SetControl("Text1", "Stout");
    EXPECT_TRUE(style.ApplyEnabled());
    style.Press("cmdApply");
    EXPECT_TRUE(style.IsOpen());
    EXPECT_FALSE(style.ApplyEnabled());
    EXPECT_EQ(style.ID(), 1);
    EXPECT_THAT(Below("G:0"), ElementsAre("Dark", "(None)", "Stout"));
    // The same row gets another name and another folder; no second row is added.
    style.SetControl("Text1", "Dry Stout");
    style.SetControl("FolderID", std::to_string(dark));
    style.Press("cmdApply");
    EXPECT_THAT(Select("SELECT ID, NAME, FOLDER_ID FROM STYLES"), ElementsAre("1|Dry Stout|1"));
    EXPECT_THAT(Below("G:0"), ElementsAre("Dark", "(None)"));
    EXPECT_THAT(Below("G:1"), ElementsAre("Dry Stout"));
    EXPECT_THAT(notices.log, ElementsAre("style renamed 1 to Dry Stout"));
    style.SetControl("Text1", "Never");
    style.Press("cmdCancel");
    EXPECT_EQ(style.Selection(), "Dry Stout");
    EXPECT_THAT(Select("SELECT NAME FROM STYLES"), ElementsAre("Dry Stout"));
}

TEST_F(Styles, AStyleOfAMissingFolderComesBackIntoSightWhenItIsStored) {
    db->Execute("INSERT INTO STYLES (NAME, FOLDER_ID) VALUES ('Lost', 77)");
    io.AddStyleNodesByName("Lost");
    EXPECT_THAT(Below("G:0"), ElementsAre("(None)"));
    Save(OpenStyle("Lost"), {{"txtDesc", "x"}});
    EXPECT_THAT(Below("G:0"), ElementsAre("(None)", "Lost"));
}

TEST_F(Styles, ANewStyleStartsInTheFolderThatItIsMadeIn) {
    const std::int64_t dark = io.CreateStyleFolder(0, "Dark", Asking::Quietly);
    StyleEditor& style = OpenStyle();
    style.StartInFolder(dark);
    Save(style, {{"Text1", "Stout"}});
    EXPECT_THAT(Below("G:1"), ElementsAre("Stout"));
}

TEST_F(Styles, AStyleThatWasDeletedMeanwhileIsToldAndKeptAsANewOne) {
    db->Execute("INSERT INTO STYLES (NAME, FOLDER_ID) VALUES ('Stout', 0)");
    StyleEditor& style = OpenStyle("Stout");
    db->Execute("DELETE FROM STYLES");
    Save(style, {{"gridInfo(4,0)", "30 IBU"}});
    EXPECT_TRUE(style.IsOpen());
    EXPECT_THAT(Boxes(),
                ElementsAre("[Error!] The style 'Stout' is no longer in the database. OK stores it as a "
                            "new style."));
    style.Press("cmdOK");
    EXPECT_THAT(Select("SELECT NAME, IBU_LO FROM STYLES"), ElementsAre("Stout|30"));
}

TEST_F(Styles, AWaterThatIsNoLongerThereStaysTheStyles) {
    db->Execute("INSERT INTO STYLES (NAME, FOLDER_ID, WATER_PROFILE, TYPE) VALUES ('Stout', 0, 'Gone', 8)");
    Save(OpenStyle("Stout"), {{"txtDesc", "x"}});
    EXPECT_THAT(Select("SELECT WATER_PROFILE, TYPE FROM STYLES"), ElementsAre("Gone|8"));
}

TEST_F(Styles, AGravityMayBeTypedInDegreesPlato) {
    StyleEditor& style = OpenStyle();
    style.SetControl("gridInfo(0,0)", "12 P");
    // 1 + 0.0038661 * 12 + 1.3488e-5 * 144 + 4.3074e-8 * 1728
    EXPECT_NEAR(style.Cells().Value(0, 0).value_or(0), 1.04840990, 1e-8);
    EXPECT_EQ(style.Cells().Text(0, 0), "12 P");
}

TEST_F(Styles, AnErrorIsShownAndTheFormStays) {
    StyleEditor& style = OpenStyle();
    FailAt("INSERT");
    Save(style, {{"Text1", "Stout"}});
    Work();
    EXPECT_THAT(Boxes(), ElementsAre("[Error!] The disk is full."));
    EXPECT_TRUE(style.IsOpen());
    style.Press("cmdOK");
    EXPECT_THAT(Select("SELECT NAME FROM STYLES"), ElementsAre("Stout"));
}

TEST_F(Styles, AReadOnlyStyleIsLockedWithItsFolder) {
    io.CreateStyleFolder(0, "Dark", Asking::Quietly);
    db->Execute("INSERT INTO STYLES (NAME, FOLDER_ID) VALUES ('Stout', 0)");
    StyleEditor& style = OpenStyle("Stout");
    style.SetReadOnly();
    EXPECT_FALSE(style.SetControl("FolderID", "1"));
    EXPECT_TRUE(style.Folders()->Locked());
    EXPECT_THAT(StatementsOf([&] { style.Press("cmdOK"); }), IsEmpty());
    EXPECT_FALSE(style.IsOpen());
}

}  // namespace
}  // namespace tw::test
