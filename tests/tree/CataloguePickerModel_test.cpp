#include "tree/CataloguePickerModel.h"

#include "ObjectsTest.h"
#include "support/OtherNames.h"

namespace tw::test {
namespace {

using testing::ElementsAre;

class Picker : public Objects {
  protected:
    CataloguePickerModel Open(CatalogueKind type, const std::string& name = "") {
        return {type, *main.db, main.tree, name};
    }
    void Hops(const Lines& names) {
        for (const std::string& name : names)
            main.Execute("INSERT INTO HOPS (NAME) VALUES (" + SqlText(name) + ")");
    }
    static Lines Controls(const CataloguePickerModel& picker) {
        Lines lines;
        for (const DialogControl& control : picker.Controls())
            lines.push_back(control.name + "=" + control.text);
        return lines;
    }
    static Lines Texts(CataloguePickerModel& picker) {
        Lines texts;
        for (const ListRow& row : picker.Items().Rows()) texts.push_back(row.cells.front());
        return texts;
    }
    // Presses cmdOK and returns the picker's answer.
    static std::string AnswerOf(CataloguePickerModel picker) {
        picker.Press("cmdOK");
        return picker.Cancelled() ? "cancelled" : picker.Answer();
    }
};

TEST_F(Picker, HasATitleAndAListForEachType) {
    Lines titles;
    for (int i = 0; i < kCatalogueKinds; ++i) {
        CataloguePickerModel picker = Open(static_cast<CatalogueKind>(i));
        titles.push_back(picker.Title() + ": " + picker.Items().Columns().front().title);
    }
    EXPECT_THAT(titles, ElementsAre("Select Style: Style Name", "Select Grain: Grain Name",
                                    "Select Extract: Extract Name", "Select Hop Variety: Hop Variety Name",
                                    "Select Yeast: Yeast Name", "Select Water Profile: Water Profile Name",
                                    "Select Treatment: Treatment Salt Name",
                                    "Select Priming Sugar: Priming Sugar Name"));
}

TEST_F(Picker, StartsOnTheNameInAnyCase) {
    Hops({"Cascade", "Fuggle", "Saaz"});
    EXPECT_EQ(Open(CatalogueKind::Hop, " FUGGLE").Items().SelectedText(), "Fuggle");
    EXPECT_EQ(Open(CatalogueKind::Hop, "Galena").Items().SelectedText(), "Fuggle");
    EXPECT_EQ(Open(CatalogueKind::Hop, "").Items().SelectedText(), "Cascade");
    EXPECT_EQ(Open(CatalogueKind::Hop, "Admiral").Items().SelectedText(), "Cascade");
}

TEST_F(Picker, StartsOnTheRowThatAnotherNameStandsFor) {
    Hops({"Cascade", "East Kent Goldings", "Saaz"});
    AddOtherNames(*main.db);
    AddAlias(*main.db, CatalogueKind::Hop, "EKG", "East Kent Goldings");
    EXPECT_EQ(Open(CatalogueKind::Hop, " ekg ").Items().SelectedText(), "East Kent Goldings");
    // Without a row of that name, the alphabetical order decides.
    main.Execute("DELETE FROM HOPS WHERE NAME = 'East Kent Goldings'");
    EXPECT_EQ(Open(CatalogueKind::Hop, "EKG").Items().SelectedText(), "Cascade");
}

TEST_F(Picker, OfStylesNamesTheGuidesOfItsCodes) {
    EXPECT_EQ(Open(CatalogueKind::Style).Guides(), "");
    AddOtherNames(*main.db);
    EXPECT_EQ(Open(CatalogueKind::Style).Guides(), "");
    AddFacts(*main.db, CatalogueKind::Style, "Stout", "15B", "Beer 2021");
    AddFacts(*main.db, CatalogueKind::Style, "Perry", "C4A", "Cider 2025");
    AddFacts(*main.db, CatalogueKind::Style, "Porter", "13C", "Beer 2021");
    EXPECT_EQ(Open(CatalogueKind::Style).Guides(), "Beer style guide of 2021, Cider style guide of 2025");
    EXPECT_EQ(Open(CatalogueKind::Hop).Guides(), "");
}

TEST_F(Picker, StartsOnNoHeadingOfAGroup) {
    main.Execute("INSERT INTO GRAIN_TYPES (NAME, GRAIN) VALUES ('Base Malt', TRUE)");
    main.Execute("INSERT INTO GRAINS (NAME, GRAIN, GRAIN_TYPE) VALUES ('Pale', TRUE, 1)");
    EXPECT_EQ(Open(CatalogueKind::Grain).Items().SelectedText(), "Pale");
    EXPECT_EQ(Open(CatalogueKind::Grain, "Base Malt").Items().SelectedText(), "Pale");
}

TEST_F(Picker, AnswersWithTheNameOfTheChosenRow) {
    Hops({"Cascade", "Saaz"});
    CataloguePickerModel picker = Open(CatalogueKind::Hop);
    EXPECT_TRUE(picker.SetControl("lvItems", "saaz"));
    EXPECT_TRUE(picker.Press("cmdOK"));
    EXPECT_FALSE(picker.IsOpen());
    EXPECT_FALSE(picker.Cancelled());
    EXPECT_EQ(picker.Answer(), "Saaz");
}

TEST_F(Picker, AYeastAnswersWithItsDescription) {
    main.Execute("INSERT INTO YEAST (NAME, DESCR) VALUES ('Ale 1', 'Clean')");
    EXPECT_EQ(AnswerOf(Open(CatalogueKind::Yeast)), "Ale 1 - Clean");
}

TEST_F(Picker, AYeastWithoutADescriptionAnswersWithItsName) {
    main.Execute("INSERT INTO YEAST (NAME) VALUES ('Ale 1')");
    EXPECT_EQ(AnswerOf(Open(CatalogueKind::Yeast)), "Ale 1");
}

TEST_F(Picker, AnEmptyListHasNothingToChoose) {
    CataloguePickerModel picker = Open(CatalogueKind::Sugar, "Corn");
    EXPECT_FALSE(picker.OkEnabled());
    EXPECT_TRUE(picker.Press("cmdOK"));
    EXPECT_TRUE(picker.IsOpen());
    EXPECT_TRUE(picker.Press("cmdCancel"));
    EXPECT_FALSE(picker.IsOpen());
    EXPECT_TRUE(picker.Cancelled());
}

TEST_F(Picker, CannotViewWithoutAViewer) {
    Hops({"Saaz"});
    CataloguePickerModel picker = Open(CatalogueKind::Hop);
    EXPECT_FALSE(picker.ViewEnabled());
    EXPECT_TRUE(picker.Press("cmdView"));
    std::string viewed;
    picker.SetViewer([&](CatalogueKind, const ListTable& items) { viewed = items.SelectedText(); });
    EXPECT_TRUE(picker.ViewEnabled());
    EXPECT_TRUE(picker.Press("cmdView"));
    EXPECT_EQ(viewed, "Saaz");
    EXPECT_TRUE(picker.IsOpen());
    CataloguePickerModel empty = Open(CatalogueKind::Sugar);
    empty.SetViewer([](CatalogueKind, const ListTable&) {});
    EXPECT_FALSE(empty.ViewEnabled());
}

TEST_F(Picker, KnowsItsControls) {
    Hops({"Saaz"});
    CataloguePickerModel picker = Open(CatalogueKind::Hop);
    EXPECT_EQ(picker.FormName(), "frmLvShow");
    EXPECT_THAT(Controls(picker), ElementsAre("lvItems=Saaz"));
    EXPECT_FALSE(picker.SetControl("lvItems", "Cascade"));
    EXPECT_FALSE(picker.SetControl("treeFolders", "G:0"));
    EXPECT_FALSE(picker.SetControl("txtName", "x"));
    EXPECT_FALSE(picker.Press("cmdDelete"));
    picker.CloseBox();
    EXPECT_TRUE(picker.Cancelled());
}

TEST_F(Picker, TheStyleListFollowsTheFolder) {
    const std::int64_t dark = StyleFolder(0, "Dark");
    Style("Ale");
    Style("Stout", dark);
    Style("Bock", dark);
    CataloguePickerModel picker = Open(CatalogueKind::Style, "stout");
    EXPECT_THAT(Controls(picker), ElementsAre("lvItems=Stout", "treeFolders=G:-1"));
    EXPECT_THAT(Texts(picker), ElementsAre("Ale", "Bock", "Stout"));
    EXPECT_TRUE(picker.ChooseFolder("G:0"));
    EXPECT_THAT(Controls(picker), ElementsAre("lvItems=Ale", "treeFolders=G:0"));
    EXPECT_TRUE(picker.SetControl("treeFolders", "G:1"));
    EXPECT_THAT(Controls(picker), ElementsAre("lvItems=Stout", "treeFolders=G:1"));
    EXPECT_FALSE(picker.ChooseFolder("G:9"));
    EXPECT_THAT(Texts(picker), ElementsAre("Bock", "Stout"));
}

TEST_F(Picker, TheTreeShowsTheFoldersOfStyles) {
    StyleFolder(0, "Dark");
    Style("Stout", 1);
    CataloguePickerModel picker = Open(CatalogueKind::Style);
    Lines keys;
    for (int item = 0; item < picker.Folders().Count(); ++item) keys.push_back(picker.Folders().Key(item));
    EXPECT_THAT(keys, ElementsAre("G:-1", "G:0", "G:1"));
    EXPECT_EQ(Open(CatalogueKind::Hop).Folders().Count(), 0);
}

TEST_F(Picker, AnEmptyFolderOfStylesHasNothingToChoose) {
    StyleFolder(0, "Dark");
    Style("Ale");
    CataloguePickerModel picker = Open(CatalogueKind::Style);
    EXPECT_TRUE(picker.OkEnabled());
    picker.ChooseFolder("G:1");
    EXPECT_FALSE(picker.OkEnabled());
}

TEST_F(Picker, WithoutATreeAllStylesAreShown) {
    Style("Ale");
    const TWTree empty;
    CataloguePickerModel picker(CatalogueKind::Style, *main.db, empty, "");
    EXPECT_EQ(picker.Items().SelectedText(), "Ale");
}

}  // namespace
}  // namespace tw::test
