#include "EditorTest.h"

namespace tw::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class Ingredients : public EditorTest {};

TEST_F(Ingredients, ANewHopIsLookedUpAndInserted) {
    const auto editor = Open(CatalogueKind::Hop);
    EXPECT_THAT(StatementsOf([&] {
                    Save(*editor, {{"Text1", " Zeus "}, {"Text2", "Bittering"}, {"gridInfo(0,0)", "14 %"}});
                }),
                ElementsAre("SELECT * FROM HOPS WHERE NAME = 'Zeus'",
                            "INSERT INTO HOPS (NAME, USAGE, DESCR, AA_LO, AA_HI) VALUES "
                            "('Zeus', 'Bittering', '', 14, 14)"));
    EXPECT_FALSE(editor->IsOpen());
    EXPECT_FALSE(editor->Cancelled());
    EXPECT_EQ(editor->Selection(), "Zeus");
}

TEST_F(Ingredients, AStoredHopIsDeletedAndInserted) {
    db->Execute("INSERT INTO HOPS (NAME, USAGE, AA_LO, AA_HI) VALUES ('Zeus', 'Aroma', 14, 16)");
    const auto editor = Open(CatalogueKind::Hop, "ZEUS");
    EXPECT_THAT(Shown(*editor),
                ElementsAre("Text1=Zeus", "Text2=Aroma", "txtDesc=", "gridInfo(0,0)=14", "gridInfo(0,1)=16"));
    EXPECT_THAT(
        StatementsOf([&] {
            Save(*editor, {{"Text1", "zeus"}, {"gridInfo(0,1)", ""}});
        }),
        ElementsAre(
            "DELETE FROM HOPS WHERE NAME = 'Zeus'",
            "INSERT INTO HOPS (NAME, USAGE, DESCR, AA_LO, AA_HI) VALUES ('zeus', 'Aroma', '', 14, 14)"));
}

TEST_F(Ingredients, BlankAlphaAcidsAreNull) {
    Save(*Open(CatalogueKind::Hop), {{"Text1", "Zeus"}});
    EXPECT_THAT(Select("SELECT NAME, USAGE, DESCR, AA_LO, AA_HI FROM HOPS"), ElementsAre("Zeus|||NULL|NULL"));
}

TEST_F(Ingredients, ARangeWithItsHighEndAloneHasItAtBoth) {
    Save(*Open(CatalogueKind::Sugar), {{"Text1", "Honey"}, {"gridInfo(0,1)", "85"}});
    EXPECT_THAT(Select("SELECT FERMENT_LO, FERMENT_HI FROM SUGARS"), ElementsAre("85|85"));
}

TEST_F(Ingredients, AReversedRangeIsStoredAsItIsAndHintedAt) {
    const auto editor = Open(CatalogueKind::Hop);
    editor->SetControl("gridInfo(0,0)", "9");
    EXPECT_EQ(editor->Cells().RangeHint(), "");
    editor->SetControl("gridInfo(0,1)", "4");
    EXPECT_EQ(editor->Cells().RangeHint(), "Alpha Acids %: the low value is above the high one.");
    Save(*editor, {{"Text1", "Odd"}});
    EXPECT_THAT(Boxes(), IsEmpty());
    EXPECT_THAT(Select("SELECT AA_LO, AA_HI FROM HOPS"), ElementsAre("9|4"));
}

TEST_F(Ingredients, AYeastIsStoredWithItsTypeAndInFahrenheit) {
    const auto editor = Open(CatalogueKind::Yeast);
    EXPECT_EQ(editor->List("Combo1").text, "Ale");
    EXPECT_THAT(editor->List("Combo1").entries,
                ElementsAre("Ale", "Lager", "Wheat", "Lactic", "Wine/Mead/Cider"));
    EXPECT_THAT(editor->List("Combo2").entries, ElementsAre("Low", "Medium", "High", "Very High"));
    EXPECT_THAT(
        StatementsOf([&] {
            Save(*editor, {{"Text1", "Y'east"},
                           {"Text2", "Clean"},
                           {"Combo1", "wheat"},
                           {"Combo2", "High"},
                           {"txtDesc", "Long"},
                           {"gridInfo(1,1)", "20 C"}});
        }),
        ElementsAre("SELECT * FROM YEAST WHERE NAME = 'Y''east'",
                    "INSERT INTO YEAST (NAME, DESCR, FLOC, FULL_DESCR, TYPE, TEMP_LO, TEMP_HI) VALUES "
                    "('Y''east', 'Clean', 'High', 'Long', 2, 68, 68)"));
}

TEST_F(Ingredients, ATypeWithoutAWordAndNoTypeStayAsTheyAre) {
    db->Execute("INSERT INTO YEAST (NAME, TYPE) VALUES ('Odd', 9)");
    db->Execute("INSERT INTO YEAST (NAME) VALUES ('None')");
    Save(*Open(CatalogueKind::Yeast, "Odd"), {{"Text2", "x"}});
    Save(*Open(CatalogueKind::Yeast, "None"), {{"Text2", "x"}});
    EXPECT_THAT(Select("SELECT NAME, TYPE FROM YEAST ORDER BY NAME"), ElementsAre("None|NULL", "Odd|9"));
}

TEST_F(Ingredients, ABlankIonIsZero) {
    const auto profile = Open(CatalogueKind::Water);
    EXPECT_THAT(StatementsOf([&] {
                    Save(*profile, {{"Text1", "Burton"}, {"gridInfo(0,0)", "270"}, {"gridInfo(5,0)", ".5"}});
                }),
                ElementsAre("SELECT * FROM WATER_PROFILES WHERE NAME = 'Burton'",
                            "INSERT INTO WATER_PROFILES (NAME, DESCR, CA, CO3, CL, MG, NA, SO4) VALUES "
                            "('Burton', '', 270, 0, 0, 0, 0, 0.5)"));
    const auto salt = Open(CatalogueKind::Salt);
    EXPECT_FALSE(salt->SetControl("gridInfo(0,1)", "1"));
    Save(*salt, {{"Text1", "Chalk"}});
    EXPECT_THAT(Select("SELECT NAME, CA, CO3, CL, MG, NA, SO4 FROM SALTS"), ElementsAre("Chalk|0|0|0|0|0|0"));
}

TEST_F(Ingredients, AFigureThatIsOnlyLookedAtKeepsAllItsDigits) {
    db->Execute("INSERT INTO SUGARS (NAME, FERMENT_LO, FERMENT_HI) VALUES ('Honey', 0.1, 66.66666666666667)");
    Save(*Open(CatalogueKind::Sugar, "Honey"), {{"txtDesc", "x"}});
    EXPECT_THAT(Select("SELECT FERMENT_LO, FERMENT_HI FROM SUGARS"), ElementsAre("0.1|66.66666666666667"));
}

TEST_F(Ingredients, ARefusedCellKeepsItsLastGoodText) {
    const auto editor = Open(CatalogueKind::Yeast);
    editor->SetControl("gridInfo(0,0)", "75%");
    editor->SetControl("gridInfo(0,0)", "three");
    EXPECT_EQ(editor->Cells().Text(0, 0), "75%");
    editor->SetControl("gridInfo(0,0)", "100.1");
    editor->SetControl("gridInfo(1,0)", "cold");
    editor->SetControl("gridInfo(1,0)", "213");
    EXPECT_EQ(editor->Cells().Text(1, 0), "");
    EXPECT_EQ(editor->Cells().Value(0, 0), 75);
    EXPECT_THAT(Boxes(), ElementsAre("[Invalid Entry] Please enter a valid percentage",
                                     "[Invalid Entry] Please enter a percentage (0 to 100)",
                                     "[Invalid Entry] Please enter a valid temperature",
                                     "[Invalid Entry] Please enter a reasonable temperature"));
}

TEST_F(Ingredients, ACellThatIsStillBeingTypedIsCheckedBeforeTheRowIsStored) {
    const auto editor = Open(CatalogueKind::Hop);
    editor->SetControl("Text1", "Zeus");
    editor->TypeCell(0, 1, "strong");
    EXPECT_TRUE(editor->Press("cmdOK"));
    EXPECT_TRUE(editor->IsOpen());
    EXPECT_EQ(editor->RefusedControl(), "gridInfo(0,1)");
    EXPECT_THAT(Boxes(), ElementsAre("[Invalid Entry] Please enter a valid percentage"));
    EXPECT_THAT(Select("SELECT * FROM HOPS"), IsEmpty());
}

TEST_F(Ingredients, AZeroDenominatorHasItsBox) {
    const auto editor = Open(CatalogueKind::Yeast);
    editor->SetControl("gridInfo(1,0)", "1/0");
    EXPECT_THAT(Boxes(), ElementsAre("[Error] Division by zero (11)"));
    EXPECT_EQ(editor->Cells().Text(1, 0), "");
}

TEST_F(Ingredients, ANameMustBeThereAndBeItsOwn) {
    db->Execute("INSERT INTO HOPS (NAME) VALUES ('Zeus')");
    db->Execute("INSERT INTO HOPS (NAME) VALUES ('Saaz')");
    const auto editor = Open(CatalogueKind::Hop, "Saaz");
    Save(*editor, {{"Text1", "  "}});
    EXPECT_EQ(editor->RefusedControl(), "Text1");
    Save(*editor, {{"Text1", "zeus "}});
    EXPECT_TRUE(editor->IsOpen());
    EXPECT_TRUE(editor->Cancelled());
    EXPECT_THAT(Boxes(), ElementsAre("[Invalid Name] Hop name cannot be blank.",
                                     "[Duplicate Name] A hop variety named 'zeus' already exists."));
    EXPECT_THAT(Select("SELECT NAME FROM HOPS ORDER BY NAME"), ElementsAre("Saaz", "Zeus"));
}

TEST_F(Ingredients, AnyNameCanBeStoredAndReadAgain) {
    for (const std::string& name : {std::string("It's \"[odd]\"; DROP"), std::string(1000, 'x'),
                                    std::string("Höpfchen % _ *"), std::string("''"), std::string("NAME")}) {
        Save(*Open(CatalogueKind::Hop), {{"Text1", name}, {"txtDesc", name}});
        const auto editor = Open(CatalogueKind::Hop, name);
        EXPECT_EQ(editor->LoadedName(), name);
        EXPECT_EQ(editor->Text("txtDesc"), name);
        Save(*editor, {{"Text2", "again"}});
    }
    EXPECT_THAT(Select("SELECT COUNT(*) FROM HOPS"), ElementsAre("5"));
    EXPECT_THAT(Boxes(), IsEmpty());
}

TEST_F(Ingredients, ANameThatIsNotThereGivesABlankForm) {
    const auto editor = Open(CatalogueKind::Hop, "Nugget");
    EXPECT_THAT(Boxes(), ElementsAre("[Error] No data available for Nugget"));
    EXPECT_EQ(editor->LoadedName(), "");
    EXPECT_THAT(Shown(*editor),
                ElementsAre("Text1=", "Text2=", "txtDesc=", "gridInfo(0,0)=", "gridInfo(0,1)="));
}

TEST_F(Ingredients, ARowThatCannotBeReadGivesABlankForm) {
    db->Execute("INSERT INTO HOPS (NAME, USAGE, AA_LO) VALUES ('Hot', 'Aroma', 1)");
    db->ExecuteNative("UPDATE HOPS SET AA_LO = 9e999");
    const auto editor = MakeEditor(CatalogueKind::Hop, context);
    EXPECT_THROW(editor->SetName("Hot"), Error);
    EXPECT_THAT(Shown(*editor),
                ElementsAre("Text1=", "Text2=", "txtDesc=", "gridInfo(0,0)=", "gridInfo(0,1)="));
    EXPECT_EQ(editor->LoadedName(), "");
}

TEST_F(Ingredients, NullInEveryColumnLeavesTheFormBlank) {
    db->Execute("INSERT INTO WATER_PROFILES (NAME) VALUES ('Empty')");
    const auto editor = Open(CatalogueKind::Water, "Empty");
    EXPECT_THAT(Shown(*editor),
                ElementsAre("Text1=Empty", "txtDesc=", "gridInfo(0,0)=", "gridInfo(1,0)=", "gridInfo(2,0)=",
                            "gridInfo(3,0)=", "gridInfo(4,0)=", "gridInfo(5,0)="));
}

TEST_F(Ingredients, ApplyStoresStaysAndIsOffUntilTheNextChange) {
    const auto editor = Open(CatalogueKind::Hop);
    EXPECT_FALSE(editor->ApplyEnabled());
    editor->SetControl("Text1", "Zeus");
    EXPECT_TRUE(editor->ApplyEnabled());
    std::string told;
    editor->OnSaved([&](const std::string& name) { told = name; });
    editor->Press("cmdApply");
    EXPECT_EQ(told, "Zeus");
    EXPECT_TRUE(editor->IsOpen());
    EXPECT_FALSE(editor->ApplyEnabled());
    // Apply is disabled, so nothing is stored again.
    EXPECT_THAT(StatementsOf([&] { editor->Press("cmdApply"); }), IsEmpty());
    editor->TypeCell(0, 0, "1");
    EXPECT_TRUE(editor->ApplyEnabled());
    editor->SetControl("Text1", "Hercules");
    editor->Press("cmdApply");
    EXPECT_THAT(Select("SELECT NAME, AA_LO FROM HOPS"), ElementsAre("Hercules|1"));
    editor->Press("cmdCancel");
    EXPECT_TRUE(editor->Cancelled());
    EXPECT_EQ(editor->Selection(), "Hercules");
}

TEST_F(Ingredients, TheOldRowStaysWhenTheNewOneCannotBeWritten) {
    db->Execute("INSERT INTO HOPS (NAME, AA_LO) VALUES ('Zeus', 14)");
    const auto editor = Open(CatalogueKind::Hop, "Zeus");
    FailAt("INSERT");
    Save(*editor, {{"Text1", "Hercules"}});
    Work();
    EXPECT_THAT(Boxes(), ElementsAre("[Error!] The disk is full."));
    EXPECT_TRUE(editor->IsOpen());
    EXPECT_THAT(Select("SELECT NAME, AA_LO FROM HOPS"), ElementsAre("Zeus|14"));
    // The entries are kept and can be stored now.
    editor->Press("cmdOK");
    EXPECT_THAT(Select("SELECT NAME FROM HOPS"), ElementsAre("Hercules"));
}

TEST_F(Ingredients, ARowThatWasDeletedMeanwhileIsStoredAnew) {
    db->Execute("INSERT INTO HOPS (NAME) VALUES ('Zeus')");
    const auto editor = Open(CatalogueKind::Hop, "Zeus");
    db->Execute("DELETE FROM HOPS");
    Save(*editor, {{"Text2", "Bittering"}});
    EXPECT_THAT(Select("SELECT NAME, USAGE FROM HOPS"), ElementsAre("Zeus|Bittering"));
}

TEST_F(Ingredients, AReadOnlyFormTakesAndStoresNothing) {
    db->Execute("INSERT INTO HOPS (NAME) VALUES ('Zeus')");
    const auto editor = Open(CatalogueKind::Hop, "Zeus");
    editor->SetReadOnly();
    EXPECT_FALSE(editor->SetControl("Text1", "Hercules"));
    EXPECT_FALSE(editor->SetControl("gridInfo(0,0)", "1"));
    editor->TypeCell(0, 0, "1");
    EXPECT_EQ(editor->Cells().Text(0, 0), "");
    EXPECT_THAT(StatementsOf([&] {
                    editor->Press("cmdApply");
                    editor->Press("cmdOK");
                }),
                IsEmpty());
    EXPECT_FALSE(editor->IsOpen());
    EXPECT_TRUE(editor->Cancelled());
}

TEST_F(Ingredients, AStepShowsTheNextRowAndDropsWhatWasNotApplied) {
    ListTable list;
    list.SetColumns({{"Name"}});
    for (const char* name : {"A", "B"}) {
        db->Execute("INSERT INTO HOPS (NAME, USAGE) VALUES (" + SqlText(name) + ", 'old')");
        list.Add({name, {name}});
    }
    list.Select(0);
    ObjectNavigator navigator(list);
    const auto editor = Open(CatalogueKind::Hop, "A");
    editor->SetNavigator(navigator);
    editor->SetControl("Text2", "new");
    editor->TypeCell(0, 0, "not checked");
    editor->Press("cmdNext");
    EXPECT_EQ(editor->LoadedName(), "B");
    EXPECT_EQ(editor->Cells().Text(0, 0), "");
    EXPECT_FALSE(editor->ApplyEnabled());
    // There is no row after the last one, so the form is unchanged.
    editor->SetControl("Text2", "kept");
    editor->Press("cmdNext");
    EXPECT_EQ(editor->Text("Text2"), "kept");
    editor->Press("cmdFirst");
    EXPECT_EQ(editor->Text("Text2"), "old");
    EXPECT_EQ(list.Selected(), 0);
    editor->Press("cmdLast");
    editor->Press("cmdPrevious");
    EXPECT_EQ(editor->LoadedName(), "A");
    EXPECT_THAT(Select("SELECT USAGE FROM HOPS"), ElementsAre("old", "old"));
    EXPECT_THAT(Boxes(), IsEmpty());
}

TEST_F(Ingredients, OnlyTheFormsOwnControlsAndEntriesAreTaken) {
    const auto hop = Open(CatalogueKind::Hop);
    for (const char* control : {"Combo1", "Combo2", "FolderID", "gridInfo(1,0)", "cmdOK", ""})
        EXPECT_FALSE(hop->SetControl(control, "1")) << control;
    const auto yeast = Open(CatalogueKind::Yeast);
    EXPECT_FALSE(yeast->SetControl("Combo1", "Bread"));
    EXPECT_TRUE(yeast->SetControl("Combo2", "Powdery"));
    EXPECT_FALSE(yeast->Press("cmdHelp"));
}

TEST_F(Ingredients, AMaltHasTheMiddleOfItsColours) {
    const auto grain = Open(CatalogueKind::Grain);
    EXPECT_FALSE(grain->Cells().ColorHcu());
    grain->SetControl("gridInfo(1,0)", "10");
    EXPECT_EQ(grain->Cells().ColorHcu(), 10);
    grain->SetControl("gridInfo(1,1)", "14");
    EXPECT_EQ(grain->Cells().ColorHcu(), 12);
    EXPECT_FALSE(Open(CatalogueKind::Hop)->Cells().ColorHcu());
}

class Grains : public EditorTest {};

TEST_F(Grains, ANewTypeIsThereBeforeItsGrain) {
    const auto editor = Open(CatalogueKind::Grain);
    EXPECT_THAT(StatementsOf([&] {
                    Save(*editor, {{"Text1", "Pale"}, {"Combo1", " Base Malt "}, {"gridInfo(0,0)", "36"}});
                }),
                ElementsAre("SELECT * FROM GRAINS WHERE NAME = 'Pale'",
                            "SELECT * FROM GRAIN_TYPES WHERE NAME = 'Base Malt' AND GRAIN = TRUE",
                            "INSERT INTO GRAIN_TYPES (NAME, GRAIN) VALUES ('Base Malt', TRUE)",
                            "SELECT * FROM GRAIN_TYPES WHERE NAME = 'Base Malt' AND GRAIN = TRUE",
                            "INSERT INTO GRAINS (GRAIN, NAME, GRAIN_TYPE, DESCR, PPG_LO, PPG_HI) VALUES "
                            "(TRUE, 'Pale', 1, '', 36, 36)"));
}

TEST_F(Grains, TheOldTypeGoesWithItsLastGrain) {
    db->Execute("INSERT INTO GRAIN_TYPES (NAME, GRAIN) VALUES ('Base', TRUE)");
    db->Execute("INSERT INTO GRAIN_TYPES (NAME, GRAIN) VALUES ('Roasted', TRUE)");
    db->Execute("INSERT INTO GRAINS (NAME, GRAIN, GRAIN_TYPE) VALUES ('Pale', TRUE, 1)");
    const auto editor = Open(CatalogueKind::Grain, "pale");
    EXPECT_THAT(editor->List("Combo1").entries, ElementsAre("Base", "Roasted"));
    EXPECT_EQ(editor->List("Combo1").text, "Base");
    EXPECT_THAT(
        StatementsOf([&] {
            Save(*editor, {{"Combo1", "roasted"}});
        }),
        ElementsAre("SELECT * FROM GRAIN_TYPES WHERE NAME = 'roasted' AND GRAIN = TRUE",
                    "DELETE FROM GRAINS WHERE NAME = 'Pale'",
                    "INSERT INTO GRAINS (GRAIN, NAME, GRAIN_TYPE, DESCR) VALUES (TRUE, 'Pale', 2, '')",
                    "SELECT COUNT(GRAIN_TYPE) FROM GRAINS WHERE GRAIN_TYPE = 1",
                    "DELETE FROM GRAIN_TYPES WHERE ID = 1"));
}

TEST_F(Grains, ATypeThatOthersHaveStays) {
    db->Execute("INSERT INTO GRAIN_TYPES (NAME, GRAIN) VALUES ('Base', TRUE)");
    db->Execute("INSERT INTO GRAINS (NAME, GRAIN, GRAIN_TYPE) VALUES ('Pale', TRUE, 1)");
    db->Execute("INSERT INTO GRAINS (NAME, GRAIN, GRAIN_TYPE) VALUES ('Mild', TRUE, 1)");
    Save(*Open(CatalogueKind::Grain, "Pale"), {{"Combo1", ""}});
    EXPECT_THAT(Select("SELECT NAME FROM GRAIN_TYPES"), ElementsAre("Base"));
    EXPECT_THAT(Select("SELECT NAME, GRAIN_TYPE FROM GRAINS ORDER BY NAME"), ElementsAre("Mild|1", "Pale|0"));
}

TEST_F(Grains, ATypeGoesWithTheApplyThatLeavesItWithoutGrains) {
    db->Execute("INSERT INTO GRAIN_TYPES (NAME, GRAIN) VALUES ('Base', TRUE)");
    db->Execute("INSERT INTO GRAINS (NAME, GRAIN, GRAIN_TYPE) VALUES ('Pale', TRUE, 1)");
    const auto editor = Open(CatalogueKind::Grain, "Pale");
    const auto apply = [&](const char* type) {
        editor->SetControl("Combo1", type);
        editor->Press("cmdApply");
        EXPECT_EQ(editor->List("Combo1").text, type);
    };
    // Each type is the only one, of the only grain, until the next one replaces it.
    for (const char* type : {"Roasted", "Smoked", "Kilned"}) {
        apply(type);
        EXPECT_THAT(Select("SELECT NAME FROM GRAIN_TYPES"), ElementsAre(type));
        EXPECT_THAT(editor->List("Combo1").entries, ElementsAre(type));
    }
    apply("");
    EXPECT_THAT(Select("SELECT NAME FROM GRAIN_TYPES"), IsEmpty());
    EXPECT_THAT(editor->List("Combo1").entries, IsEmpty());
    // Cancel keeps what was applied.
    editor->SetControl("Combo1", "Base");
    editor->Press("cmdCancel");
    EXPECT_THAT(Select("SELECT NAME, GRAIN_TYPE FROM GRAINS"), ElementsAre("Pale|0"));
}

TEST_F(Grains, ANewGrainLeavesItsFirstTypeByTheNextApply) {
    const auto editor = Open(CatalogueKind::Grain);
    editor->SetControl("Text1", "Pale");
    for (const char* type : {"Base", "Kilned"}) {
        editor->SetControl("Combo1", type);
        editor->Press("cmdApply");
    }
    EXPECT_THAT(Select("SELECT NAME FROM GRAIN_TYPES"), ElementsAre("Kilned"));
    EXPECT_THAT(Select("SELECT NAME FROM GRAINS"), ElementsAre("Pale"));
}

TEST_F(Grains, AnApplyThatFailsLeavesTheTypeAsItIsStored) {
    db->Execute("INSERT INTO GRAIN_TYPES (NAME, GRAIN) VALUES ('Base', TRUE)");
    db->Execute("INSERT INTO GRAINS (NAME, GRAIN, GRAIN_TYPE) VALUES ('Pale', TRUE, 1)");
    const auto editor = Open(CatalogueKind::Grain, "Pale");
    editor->SetControl("Combo1", "Kilned");
    FailAt("INSERT INTO GRAINS");
    editor->Press("cmdApply");
    Work();
    EXPECT_THAT(Boxes(), ElementsAre("[Error!] The disk is full."));
    EXPECT_THAT(Select("SELECT NAME FROM GRAIN_TYPES"), ElementsAre("Base"));
    EXPECT_TRUE(editor->ApplyEnabled());
    editor->Press("cmdApply");
    EXPECT_THAT(Select("SELECT NAME FROM GRAIN_TYPES"), ElementsAre("Kilned"));
}

TEST_F(Grains, ExtractsHaveTypesAndWordsOfTheirOwn) {
    db->Execute("INSERT INTO GRAIN_TYPES (NAME, GRAIN) VALUES ('Syrup', TRUE)");
    const auto editor = Open(CatalogueKind::Extract);
    EXPECT_THAT(editor->List("Combo1").entries, IsEmpty());
    Save(*editor, {{"Text1", ""}});
    Save(*editor, {{"Text1", "Dark"}, {"Combo1", "Syrup"}});
    EXPECT_THAT(Select("SELECT NAME, GRAIN FROM GRAIN_TYPES"), ElementsAre("Syrup|TRUE", "Syrup|FALSE"));
    EXPECT_THAT(Select("SELECT GRAIN, NAME, GRAIN_TYPE FROM GRAINS"), ElementsAre("FALSE|Dark|2"));
    Save(*Open(CatalogueKind::Grain), {{"Text1", "DARK"}});
    EXPECT_THAT(Boxes(), ElementsAre("[Invalid Name] Extract name cannot be blank.",
                                     "[Duplicate Name] A grain or extract named 'DARK' already exists."));
}

TEST_F(Grains, AnExtractOpenedAsAGrainStaysAnExtract) {
    db->Execute("INSERT INTO GRAINS (NAME, GRAIN) VALUES ('Dark', FALSE)");
    Save(*Open(CatalogueKind::Grain, "Dark"), {{"txtDesc", "Thick"}});
    EXPECT_THAT(Select("SELECT GRAIN, NAME, GRAIN_TYPE, DESCR FROM GRAINS"),
                ElementsAre("FALSE|Dark|0|Thick"));
}

TEST_F(Grains, ATypeThatWasMadeForAGrainGoesWhenTheGrainCannotBeWritten) {
    db->Execute("INSERT INTO GRAINS (NAME, GRAIN) VALUES ('Pale', TRUE)");
    const auto editor = Open(CatalogueKind::Grain, "Pale");
    FailAt("INSERT INTO GRAINS");
    Save(*editor, {{"Combo1", "Base"}});
    Work();
    EXPECT_THAT(Boxes(), ElementsAre("[Error!] The disk is full."));
    EXPECT_THAT(Select("SELECT NAME FROM GRAIN_TYPES"), IsEmpty());
    EXPECT_THAT(Select("SELECT NAME FROM GRAINS"), ElementsAre("Pale"));
}

TEST_F(Grains, EachCellHasItsWords) {
    const auto editor = Open(CatalogueKind::Grain);
    for (const char* cell : {"gridInfo(0,0)", "gridInfo(1,1)"})
        for (const char* text : {"36 PPG", "-1", "1e3", "+1"}) editor->SetControl(cell, text);
    EXPECT_THAT(Boxes(), ElementsAre("[Invalid Entry] Please enter a valid PPG value",
                                     "[Invalid Entry] Please enter a positive PPG value",
                                     "[Invalid Entry] Please enter a valid PPG value",
                                     "[Invalid Entry] Please enter a valid PPG value",
                                     "[Invalid Entry] Please enter a valid Color value",
                                     "[Invalid Entry] Please enter a positive Color value",
                                     "[Invalid Entry] Please enter a valid Color value",
                                     "[Invalid Entry] Please enter a valid Color value"));
    editor->SetControl("gridInfo(0,0)", "0");
    EXPECT_EQ(editor->Cells().Value(0, 0), 0);
}

}  // namespace
}  // namespace tw::test
