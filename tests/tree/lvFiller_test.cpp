#include "tree/lvFiller.h"

#include "ObjectsTest.h"
#include "support/OtherNames.h"

namespace tw::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class Lists : public Objects {
  protected:
    // Returns the cells of a row, separated by "|".
    static std::string Line(const ListRow& row) {
        std::string line;
        for (const std::string& cell : row.cells) line.append(line.empty() ? "" : "|").append(cell);
        return line;
    }
    Lines LinesOf() const {
        Lines lines;
        for (const ListRow& row : list.Rows()) lines.push_back(Line(row));
        return lines;
    }
    Lines Titles() const {
        Lines titles;
        for (const ListColumn& column : list.Columns()) titles.push_back(column.title);
        return titles;
    }
    // Returns the rows below a node.
    Lines Fill(const std::string& key, bool showStyles = true) {
        lvFiller::SetUpExplorerColumns(list);
        filler.FillByKey(list, key, showStyles);
        return LinesOf();
    }
    // Creates one recipe with these columns and returns one of its cells.
    std::string RecipeCell(const std::string& column, const std::string& assignments) {
        main.Execute("DELETE FROM RECIPES");
        main.Execute("INSERT INTO RECIPES (NAME, FOLDER_ID, STYLE_ID) VALUES ('Mild', 0, 0)");
        main.Execute("UPDATE RECIPES SET " + assignments);
        main.tree.InitFromDatabase();
        Fill("F:0");
        return list.Row(0).cells.at(static_cast<std::size_t>(list.ColumnOf(column)));
    }
    std::string StyleCell(const std::string& column, const std::string& assignments) {
        main.Execute("DELETE FROM STYLES");
        main.Execute("INSERT INTO STYLES (NAME, FOLDER_ID) VALUES ('Bock', 7)");
        main.Execute("UPDATE STYLES SET " + assignments);
        main.tree.InitFromDatabase();
        Fill("G:-1");
        return list.Row(1).cells.at(static_cast<std::size_t>(list.ColumnOf(column)));
    }
    // Returns the rows, each read by its own statement.
    Lines OneByOne(const std::string& key) {
        lvFiller::SetUpExplorerColumns(list);
        for (const auto& child : main.tree.Nodes(key)->Children()) {
            if (child->IsDocument())
                filler.AddRecipeRow(list, *child);
            else if (child->IsStyle())
                filler.AddStyleRow(list, *child);
            else
                filler.AddFolderRow(list, *child);
        }
        return LinesOf();
    }

    ListTable list;
    lvFiller filler{*main.db, main.tree};
};

TEST_F(Lists, TheExplorerHasTheColumnsInTheirOrder) {
    lvFiller::SetUpExplorerColumns(list);
    EXPECT_THAT(Titles(),
                ElementsAre("Name", "Size", "Type", "Modified When", "Created When", "Number of Batches",
                            "Batch Size", "Original Gravity", "Finished Gravity", "Alcohol Content", "Color",
                            "Bitterness", "Carbonation", "Water Profile"));
}

TEST_F(Lists, WindowsHaveTwoMoreColumnsBehindThem) {
    lvFiller::SetUpExplorerColumns(list);
    Lines titles = Titles();
    for (const char* title : {"Folder", "Style"}) titles.emplace_back(title);
    lvFiller::SetUpWindowColumns(list, true);
    EXPECT_EQ(Titles(), titles);
}

TEST_F(Lists, ARecipeShowsItsFigures) {
    Recipe("Mild");
    main.Execute(
        "UPDATE RECIPES SET CREATED_WHEN = '01/05/2024 00:07:59', MODIFIED_WHEN = '12/31/2024 13:45:00', "
        "NUMBATCHES = '3', FV = '5 gal', FV_DATA = 5, TV = '6', TV_DATA = 6, OG = '1.05', OG_DATA = 1.05, "
        "FG = '1.0105', FG_DATA = 1.0105, ABV = '5.2 abv', COLOR = '12 SRM (33 HCU)', IBU = '28', "
        "CO2_VOLS = '2.4', TRG_PROFILE_NAME = 'Burton'");
    EXPECT_THAT(Fill("F:0"),
                ElementsAre("Mild|  |Recipe|12/31/2024  01:45 PM|01/05/2024  12:07 AM|3|5 gals|1.050|1.011|"
                            "5.2 abv|12 SRM |28 IBUs|2.4|Burton"));
    EXPECT_EQ(list.Row(0).key, "R:1:3");
    EXPECT_EQ(list.Row(0).icon, NodeIcon::Document);
}

TEST_F(Lists, ARecipeWithoutFiguresShowsBlanks) {
    Recipe("Mild");
    main.Execute(
        "UPDATE RECIPES SET CREATED_WHEN = NULL, MODIFIED_WHEN = NULL, NUMBATCHES = '', FV = '', OG = NULL");
    EXPECT_THAT(Fill("F:0"), ElementsAre("Mild|  |Recipe| | |  |  |  |  |  |  |  |  |  "));
}

TEST_F(Lists, NoonAndMidnightAreTwelve) {
    EXPECT_EQ(RecipeCell("Created When", "CREATED_WHEN = '06/30/2025 12:00:00'"), "06/30/2025  12:00 PM");
    EXPECT_EQ(RecipeCell("Created When", "CREATED_WHEN = '06/30/2025 00:00:00'"), "06/30/2025  12:00 AM");
    EXPECT_EQ(RecipeCell("Created When", "CREATED_WHEN = '06/30/2025 23:59:59'"), "06/30/2025  11:59 PM");
}

TEST_F(Lists, TheBatchSizeIsTheTotalVolumeWithoutAFinalOne) {
    EXPECT_EQ(RecipeCell("Batch Size", "FV = NULL, FV_DATA = NULL, TV = '20 L', TV_DATA = 5.25"),
              "5.25 gals");
    EXPECT_EQ(RecipeCell("Batch Size", "FV = '', FV_DATA = 4, TV = '5', TV_DATA = 5"), "5 gals");
    EXPECT_EQ(RecipeCell("Batch Size", "FV = NULL, TV = NULL, TV_DATA = 5"), "  ");
    EXPECT_EQ(RecipeCell("Batch Size", "FV = '5', FV_DATA = NULL, TV = '6', TV_DATA = 6"), "  ");
}

TEST_F(Lists, AGravityNeedsItsText) {
    EXPECT_EQ(RecipeCell("Original Gravity", "OG = ' ', OG_DATA = 1.05"), "  ");
    EXPECT_EQ(RecipeCell("Original Gravity", "OG = '1.05', OG_DATA = 1.0495"), "1.050");
    EXPECT_EQ(RecipeCell("Finished Gravity", "FG = '1', FG_DATA = 1"), "1.000");
}

TEST_F(Lists, TheColorEndsBeforeItsFirstParenthesis) {
    EXPECT_EQ(RecipeCell("Color", "COLOR = '>50 SRM (a (b'"), ">50 SRM ");
    EXPECT_EQ(RecipeCell("Color", "COLOR = '12 SRM'"), "12 SRM");
    EXPECT_EQ(RecipeCell("Color", "COLOR = '(12)'"), "  ");
}

TEST_F(Lists, AStyleShowsItsRanges) {
    Style("Bock");
    main.Execute(
        "UPDATE STYLES SET CREATED_WHEN = '01/05/2024 09:30:00', MODIFIED_WHEN = '01/06/2024 09:30:00', "
        "WATER_PROFILE = 'Munich', OG_LO = 1.06, OG_HI = 1.0725, FG_LO = 1.01, FG_HI = 1.02, ABV_LO = 6, "
        "ABV_HI = 7.25, COLOR_LO = 14, COLOR_HI = 22.5, IBU_LO = 20, IBU_HI = 27.5, CO2_LO = 2.2, "
        "CO2_HI = 2.7");
    EXPECT_THAT(Fill("G:0"),
                ElementsAre("(None)|0|Style| | |  |  |  |  |  |  |  |  |  ",
                            "Bock|0|Style|01/06/2024  09:30 AM|01/05/2024  09:30 AM|  |  |1.060-1.073|"
                            "1.010-1.020|6.0-7.3|14-22.5|20-28|2.2-2.7|Munich"));
    EXPECT_EQ(list.Row(1).key, "S:1:1");
    EXPECT_EQ(list.Row(1).icon, NodeIcon::StyleClosed);
}

TEST_F(Lists, ARangeWithOneEndShowsThatEnd) {
    EXPECT_EQ(StyleCell("Original Gravity", "OG_LO = 1.04"), "1.040");
    EXPECT_EQ(StyleCell("Original Gravity", "OG_LO = NULL, OG_HI = 1.05"), "1.050");
    EXPECT_EQ(StyleCell("Alcohol Content", "ABV_LO = NULL, ABV_HI = NULL"), "  ");
    EXPECT_EQ(StyleCell("Color", "COLOR_LO = 0.25"), "0.25");
    EXPECT_EQ(StyleCell("Bitterness", "IBU_LO = 10, IBU_HI = 10"), "10-10");
    EXPECT_EQ(StyleCell("Water Profile", "WATER_PROFILE = ''"), "  ");
}

TEST_F(Lists, FoldersShowTheirKindTheirDatesAndTheCountOfTheirChildren) {
    const std::int64_t winter = Folder(0, "Winter");
    Folder(winter, "Old");
    Recipe("Stout", winter);
    StyleFolder(0, "Dark");
    main.Execute("UPDATE FOLDERS SET CREATED_WHEN = '01/05/2024 18:00:00', MODIFIED_WHEN = NULL");
    EXPECT_THAT(Fill("F:0"),
                ElementsAre("Winter|2|Recipe Folder| |01/05/2024  06:00 PM|  |  |  |  |  |  |  |  |  "));
    EXPECT_EQ(list.Row(0).key, "F:1");
    EXPECT_EQ(list.Row(0).icon, NodeIcon::FolderClosed);
    EXPECT_TRUE(list.Row(0).isFolder);
    EXPECT_EQ(Fill("G:0").front(), "Dark|0|Style Folder| |01/05/2024  06:00 PM|  |  |  |  |  |  |  |  |  ");
}

TEST_F(Lists, SystemFoldersShowNoDates) {
    Recipe("Stout");
    const std::string blanks = "| | |  |  |  |  |  |  |  |  |  ";
    EXPECT_THAT(Fill("X:DB"),
                ElementsAre("All Recipes|1|System Folder" + blanks, "By Style|2|System Folder" + blanks,
                            "My Recipe Folders|1|System Folder" + blanks));
    EXPECT_THAT(Fill("X:STYLE"), ElementsAre("All Styles|1|System Folder" + blanks,
                                             "My Style Folders|1|System Folder" + blanks));
}

TEST_F(Lists, NoStyleShowsTheCountOfItsRecipes) {
    Recipe("Stout");
    Recipe("Mild");
    EXPECT_THAT(Fill("G:-1"), ElementsAre("(None)|2|Style| | |  |  |  |  |  |  |  |  |  "));
    EXPECT_EQ(list.Row(0).key, "S:0:0");
}

TEST_F(Lists, FoldersComeBeforeStylesBeforeRecipesByName) {
    Folder(0, "Winter");
    Recipe("Ale");
    Recipe("bitter");
    Folder(0, "autumn");
    Fill("F:0");
    EXPECT_THAT(Lines({list.Row(0).key, list.Row(1).key, list.Row(2).key, list.Row(3).key}),
                ElementsAre("F:2", "F:1", "R:1:3", "R:2:3"));
}

TEST_F(Lists, WithoutStylesTheirBranchIsLeftOut) {
    Style("Bock");
    Fill("X:DB", false);
    EXPECT_EQ(list.Count(), 2);
    EXPECT_EQ(list.FindKey("X:STYLE"), ListTable::kNoRow);
    EXPECT_THAT(Fill("X:STYLE", false), IsEmpty());
    EXPECT_THAT(Fill("G:-1", false), IsEmpty());
}

TEST_F(Lists, AKeyWithoutChildrenEmptiesTheList) {
    Recipe("Ale");
    Fill("F:0");
    EXPECT_EQ(list.Count(), 1);
    EXPECT_THAT(Fill("R:1:3"), IsEmpty());
    EXPECT_THAT(Fill("F:99"), IsEmpty());
    EXPECT_THAT(Fill(""), IsEmpty());
}

TEST_F(Lists, AnObjectWhoseRowIsGoneShowsItsNodeAlone) {
    Recipe("Ale");
    Folder(0, "Winter");
    main.Execute("DELETE FROM RECIPES");
    main.Execute("DELETE FROM FOLDERS");
    EXPECT_THAT(Fill("F:0"), ElementsAre("Winter|0|Recipe Folder| | |  |  |  |  |  |  |  |  |  ",
                                         "Ale|  |Recipe| | |  |  |  |  |  |  |  |  |  "));
}

TEST_F(Lists, ARowOfTheOtherKindGivesNoDates) {
    main.Execute(
        "INSERT INTO FOLDERS (PARENT_ID, NAME, STYLE, CREATED_WHEN) VALUES (0, 'Dark', TRUE, "
        "'01/05/2024 18:00:00')");
    main.tree.Nodes("F:0")->Children().AddItem("Winter", "F:1", "folder open", "folder closed");
    EXPECT_THAT(Fill("F:0"), ElementsAre("Winter|0|Recipe Folder| | |  |  |  |  |  |  |  |  |  "));
    EXPECT_EQ(OneByOne("F:0"), Fill("F:0"));
}

TEST_F(Lists, NamesOfAnyLengthAndNoneAreShown) {
    const std::string huge(100000, 'x');
    Recipe(huge);
    main.tree.Nodes("F:0")->Children().AddItem("", "R:9:3", "document", "document", true);
    Fill("F:0");
    EXPECT_EQ(list.Row(0).cells.front(), "  ");
    EXPECT_EQ(list.Row(1).cells.front(), huge);
}

TEST_F(Lists, ReadingInBulkGivesTheSameRowsFromFewStatements) {
    constexpr int kRecipes = 1203;
    const std::int64_t folder = Folder(0, "Winter");
    for (int i = 0; i < 3; ++i) {
        Folder(folder, "Folder " + std::to_string(i));
        Style("Style " + std::to_string(i));
    }
    main.Execute("UPDATE STYLES SET OG_LO = 1.04 + ID / 1000, TYPE = ID, WATER_PROFILE = NAME");
    for (int i = 0; i < kRecipes; ++i) {
        const std::string number = std::to_string(i);
        main.Execute(
            "INSERT INTO RECIPES (NAME, FOLDER_ID, STYLE_ID, MODIFIED_WHEN, FV, FV_DATA, IBU) VALUES ("
            "'Recipe " +
            number + "', 1, " + std::to_string(i % 4) + ", '01/05/2024 10:00:00', '" + number + "', " +
            number + ", '" + std::to_string(i % 70) + "')");
    }
    main.tree.InitFromDatabase();
    int statements = 0;
    main.db->SetStatementHook([&](std::string_view) { ++statements; });
    const Lines bulk = Fill("F:1");
    main.db->SetStatementHook(nullptr);
    EXPECT_EQ(bulk.size(), kRecipes + 3U);
    EXPECT_LE(statements, 5);
    EXPECT_EQ(OneByOne("F:1"), bulk);
    for (const char* key : {"F:-1", "G:-1", "G:0", "S:1:0", "S:0:1", "X:DB"})
        EXPECT_EQ(OneByOne(key), Fill(key)) << key;
}

// The catalogues.

TEST_F(Lists, StylesAreListedByFolder) {
    main.Execute(
        "INSERT INTO STYLES (NAME, FOLDER_ID, TYPE, OG_LO, OG_HI, ABV_LO, COLOR_HI, IBU_LO, IBU_HI, CO2_LO, "
        "WATER_PROFILE) VALUES ('stout', 0, 0, 1.04, 1.06, 4, 40, 25, 45, 1.75, 'Dublin')");
    main.Execute("INSERT INTO STYLES (NAME, FOLDER_ID, TYPE) VALUES ('Bock', 3, 1)");
    filler.FillStyles(list, 0);
    EXPECT_THAT(Titles(),
                ElementsAre("Style Name", "Type", "OG", "FG", "ABV", "Color", "IBU", "CO2", "Water Profile"));
    EXPECT_THAT(LinesOf(), ElementsAre("stout|Ale|1.040-1.060|  |4.0|40|25-45|1.8|Dublin"));
    EXPECT_EQ(list.Row(0).key, "stout");
    filler.FillStyles(list, 3);
    EXPECT_THAT(LinesOf(), ElementsAre("Bock|Lager|  |  |  |  |  |  |  "));
    filler.FillStyles(list, 99);
    EXPECT_THAT(LinesOf(), IsEmpty());
}

TEST_F(Lists, AllStylesIncludesThoseOfNoFolder) {
    main.Execute("INSERT INTO STYLES (NAME, FOLDER_ID) VALUES ('stout', 0)");
    main.Execute("INSERT INTO STYLES (NAME, FOLDER_ID) VALUES ('Bock', 77)");
    main.Execute("INSERT INTO STYLES (NAME, FOLDER_ID) VALUES ('Mild', NULL)");
    filler.FillStyles(list, -1);
    EXPECT_THAT(Lines({list.Row(0).key, list.Row(1).key, list.Row(2).key}),
                ElementsAre("Bock", "Mild", "stout"));
}

TEST_F(Lists, StylesCarryTheirCodesBesideTheirCells) {
    Style("Stout");
    Style("Mine");
    AddOtherNames(*main.db);
    AddFacts(*main.db, CatalogueKind::Style, "STOUT", "15B", "Beer 2021");
    AddAlias(*main.db, CatalogueKind::Style, "Dry Stout", "Stout");
    main.tree.InitFromDatabase();
    filler.FillStyles(list, -1);
    EXPECT_EQ(list.Row(1).cells.front(), "Stout");
    EXPECT_EQ(list.Row(1).code, "15B");
    EXPECT_EQ(list.Row(1).origin, "Beer style guide of 2021");
    EXPECT_THAT(list.Row(1).otherNames, ElementsAre("Dry Stout"));
    EXPECT_EQ(list.Row(0).code, "");
    // The explorer shows the code too; there, "(None)" comes first.
    Fill("G:-1");
    EXPECT_EQ(list.Row(2).cells.front(), "Stout");
    EXPECT_EQ(list.Row(2).code, "15B");
    EXPECT_EQ(list.Row(1).code, "");
}

TEST_F(Lists, IngredientsCarryOriginLaboratoryFormAndOtherNames) {
    main.Execute("INSERT INTO HOPS (NAME) VALUES ('Celeia')");
    main.Execute("INSERT INTO YEAST (NAME) VALUES ('Acme A1 Ale')");
    AddOtherNames(*main.db);
    AddFacts(*main.db, CatalogueKind::Hop, "Celeia", "", "Slovenia", "Pellet or leaf");
    AddFacts(*main.db, CatalogueKind::Yeast, "Acme A1 Ale", "A1", "Acme", "Dry");
    AddAlias(*main.db, CatalogueKind::Hop, "Styrian Celeia", "Celeia");
    filler.FillHops(list);
    EXPECT_EQ(list.Row(0).code, "");
    EXPECT_EQ(list.Row(0).origin, "Slovenia, Pellet or leaf");
    EXPECT_THAT(list.Row(0).otherNames, ElementsAre("Styrian Celeia", "Slovenia"));
    filler.FillYeast(list);
    EXPECT_EQ(list.Row(0).code, "");
    EXPECT_EQ(list.Row(0).origin, "Acme, Dry");
    EXPECT_THAT(list.Row(0).otherNames, ElementsAre("Acme", "Dry", "A1"));
}

TEST_F(Lists, TypesHaveTheirWords) {
    for (const char* type : {"0", "1", "2", "3", "4", "5", "NULL", "-1", "0.5"})
        main.Execute(std::string("INSERT INTO YEAST (NAME, TYPE) VALUES ('Y', ") + type + ")");
    filler.FillYeast(list);
    Lines types;
    for (const ListRow& row : list.Rows()) types.push_back(row.cells[2]);
    EXPECT_THAT(types,
                ElementsAre("Ale", "Lager", "Wheat", "Lactic", "Wine/Mead/Cider", "  ", "  ", "  ", "  "));
}

TEST_F(Lists, TheStyleCatalogueShowsFoldersBeforeStyles) {
    StyleFolder(0, "Dark");
    StyleFolder(1, "Below");
    Style("Ale");
    Style("Bock", 1);
    filler.Fill(list, CatalogueKind::Style);
    EXPECT_THAT(LinesOf(),
                ElementsAre("Dark|Style Folder|  |  |  |  |  |  |  ", "Ale|  |  |  |  |  |  |  |  "));
    EXPECT_EQ(list.Row(0).key, "G:1");
    filler.FillStylesAndFolders(list, 1);
    EXPECT_THAT(LinesOf(),
                ElementsAre("Below|Style Folder|  |  |  |  |  |  |  ", "Bock|  |  |  |  |  |  |  |  "));
}

class GrainLists : public Lists {
  protected:
    void Type(int id, const std::string& name) {
        main.Execute("INSERT INTO GRAIN_TYPES (ID, NAME, GRAIN) VALUES (" + std::to_string(id) + ", " + name +
                     ", TRUE)");
    }
    void Grain(const std::string& name, const std::string& type, const char* grain = "TRUE",
               const std::string& figures = "NULL, NULL, NULL, NULL") {
        main.Execute(
            "INSERT INTO GRAINS (NAME, GRAIN_TYPE, GRAIN, PPG_LO, PPG_HI, COLOR_LO, COLOR_HI) VALUES ('" +
            name + "', " + type + ", " + grain + ", " + figures + ")");
    }
};

TEST_F(GrainLists, StandInGroupsInTheOrderOfTheTypes) {
    Type(1, "'Roasted Malt'");
    Type(2, "'Base Malt'");
    Type(3, "'Unused'");
    Grain("Pale", "2", "TRUE", "36, 37.5, 1.8, 2");
    Grain("Chocolate", "1", "TRUE", "25, NULL, NULL, 350");
    Grain("black", "1");
    filler.FillGrains(list, true);
    EXPECT_THAT(Titles(), ElementsAre("Grain Name", "PPG", "Color"));
    EXPECT_THAT(LinesOf(), ElementsAre("Roasted Malt|  |  ", "black|  |  ", "Chocolate|25|350",
                                       "Base Malt|  |  ", "Pale|36-37.5|1.8-2"));
    EXPECT_TRUE(list.Row(0).isGroup);
    // A row without figures is not a group.
    EXPECT_FALSE(list.Row(1).isGroup);
    EXPECT_EQ(list.Row(1).key, "black");
}

TEST_F(GrainLists, WithoutATypeStandBehindTheGroupsUnderNoHeading) {
    Type(1, "'Base Malt'");
    Grain("Zuma", "1");
    Grain("Oats", "NULL");
    Grain("Corn", "99");
    Grain("Barley", "0");
    filler.FillGrains(list, true);
    EXPECT_THAT(LinesOf(),
                ElementsAre("Base Malt|  |  ", "Zuma|  |  ", "Barley|  |  ", "Corn|  |  ", "Oats|  |  "));
    list.Sort(0, true);
    EXPECT_THAT(LinesOf(),
                ElementsAre("Base Malt|  |  ", "Zuma|  |  ", "Oats|  |  ", "Corn|  |  ", "Barley|  |  "));
}

TEST_F(GrainLists, ExtractsAreApart) {
    Type(1, "'Malt Extract'");
    Type(2, "'Base Malt'");
    Grain("Pale", "2");
    Grain("Light Syrup", "1", "FALSE");
    Grain("Honey", "NULL", "FALSE");
    filler.FillGrains(list, false);
    EXPECT_EQ(Titles().front(), "Extract Name");
    EXPECT_THAT(LinesOf(), ElementsAre("Malt Extract|  |  ", "Light Syrup|  |  ", "Honey|  |  "));
}

TEST_F(GrainLists, TypesOfOneNameShareAHeading) {
    Type(1, "'Malt'");
    Type(2, "'Malt'");
    Type(3, "NULL");
    Grain("A", "1");
    Grain("B", "2");
    Grain("C", "3");
    filler.FillGrains(list, true);
    EXPECT_THAT(LinesOf(), ElementsAre("Malt|  |  ", "A|  |  ", "B|  |  ", "  |  |  ", "C|  |  "));
}

TEST_F(Lists, HopsAreSortedByName) {
    main.Execute("INSERT INTO HOPS (NAME, AA_LO, AA_HI, USAGE) VALUES ('saaz', 3, 4.5, 'Aroma')");
    main.Execute("INSERT INTO HOPS (NAME) VALUES ('Fuggle')");
    filler.FillHops(list);
    EXPECT_THAT(Titles(), ElementsAre("Hop Variety Name", "Alpha Acids %", "Usage"));
    EXPECT_THAT(LinesOf(), ElementsAre("Fuggle|  |  ", "saaz|3-4.5|Aroma"));
}

TEST_F(Lists, YeastShowsItsShortDescription) {
    main.Execute(
        "INSERT INTO YEAST (NAME, DESCR, FULL_DESCR, TYPE, FLOC, AA_LO, AA_HI, TEMP_LO, TEMP_HI) VALUES "
        "('Ale 1', 'Clean', 'Very clean', 0, 'Medium', 73, 80, 64, 73)");
    filler.FillYeast(list);
    EXPECT_THAT(Titles(), ElementsAre("Yeast Name", "Description", "Type", "Flocculation", "Attenuation",
                                      "Temperature"));
    EXPECT_THAT(LinesOf(), ElementsAre("Ale 1|Clean|Ale|Medium|73-80|64-73"));
}

TEST_F(Lists, WatersAndSaltsShowTheirIons) {
    for (const char* table : {"WATER_PROFILES", "SALTS"})
        main.Execute(std::string("INSERT INTO ") + table +
                     " (NAME, CA, CO3, CL, MG, NA, SO4) VALUES ('One', 1, 2.5, 0, NULL, 5, 600)");
    filler.FillWaterProfiles(list);
    EXPECT_THAT(Titles(), ElementsAre("Water Profile Name", "Calcium", "Carbonate", "Chloride", "Magnesium",
                                      "Sodium", "Sulfate"));
    EXPECT_THAT(LinesOf(), ElementsAre("One|1|2.5|0|  |5|600"));
    filler.FillSalts(list);
    EXPECT_EQ(Titles().front(), "Treatment Salt Name");
    EXPECT_THAT(LinesOf(), ElementsAre("One|1|2.5|0|  |5|600"));
}

TEST_F(Lists, SugarsShowTheirRange) {
    main.Execute("INSERT INTO SUGARS (NAME, FERMENT_LO, FERMENT_HI) VALUES ('Corn', 84, 93)");
    filler.FillSugars(list);
    EXPECT_THAT(Titles(), ElementsAre("Priming Sugar Name", "Fermentable %"));
    EXPECT_THAT(LinesOf(), ElementsAre("Corn|84-93"));
}

TEST_F(Lists, AFigureThatIsInfiniteIsBlank) {
    main.db->ExecuteNative("INSERT INTO HOPS (NAME, AA_LO, AA_HI) VALUES ('Odd', 9e999, 5)");
    filler.FillHops(list);
    EXPECT_THAT(LinesOf(), ElementsAre("Odd|5|  "));
}

TEST_F(Lists, ARowWithoutANameIsShownBlank) {
    main.Execute("INSERT INTO SUGARS (NAME) VALUES (NULL)");
    filler.FillSugars(list);
    EXPECT_THAT(LinesOf(), ElementsAre("  |  "));
    EXPECT_EQ(list.Row(0).key, "");
}

TEST_F(Lists, EveryCatalogueHasItsWordAndItsList) {
    Lines heads;
    for (const CatalogueKind kind : kSetupOrder) {
        filler.Fill(list, kind);
        heads.push_back(std::string(WordOf(kind)) + ": " + Titles().front());
    }
    EXPECT_THAT(heads, ElementsAre("style: Style Name", "grain: Grain Name", "extract: Extract Name",
                                   "hop variety: Hop Variety Name", "yeast: Yeast Name",
                                   "priming sugar: Priming Sugar Name", "water profile: Water Profile Name",
                                   "treatment salt: Treatment Salt Name"));
}

}  // namespace
}  // namespace tw::test
