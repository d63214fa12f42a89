#include "doctor/CarriedDataModel.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "store/Schema.h"
#include "support/RecordingPlatform.h"

namespace tw::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class CarriedDataModelTest : public testing::Test {
  protected:
    CarriedDataModelTest() {
        CarriedData carried(*database);
        carried.Keep(7, kCarriedBeerJson, "old.json", {2025, 12, 1, 0, 0, 0},
                     R"({"name": "Mild", "vegan": true})");
        carried.Keep(7, kCarriedBeerXml, "new.xml", {2026, 5, 4, 9, 30, 5},
                     "<RECIPE><NAME>Mild</NAME><HOPS><HOP><NAME>Fuggle</NAME><BETA>2.5</BETA></HOP></HOPS>"
                     "<BREWER>Ann</BREWER></RECIPE>");
    }
    CarriedDataModel Model() { return {*database, 7, "Mild", outside.messages, outside.clipboard}; }

    RecordingPlatform outside;
    std::unique_ptr<Database> database = CreateMainDatabaseInMemory();
};

TEST_F(CarriedDataModelTest, ShowsTheFieldsOfAllFragmentsAndWhereTheyCameFrom) {
    CarriedDataModel model = Model();
    std::vector<std::string> lines;
    for (const CarriedField& field : model.Fields())
        lines.push_back(std::string(static_cast<std::size_t>(field.level), '>') + field.Line() + " ^" +
                        std::to_string(field.parent));
    EXPECT_THAT(lines, ElementsAre("RECIPE: Mild ^-1", ">NAME: Mild ^0", ">HOPS ^0", ">>HOP: Fuggle ^2",
                                   ">>>NAME: Fuggle ^3", ">>>BETA: 2.5 ^3", ">BREWER: Ann ^0",
                                   "recipe: Mild ^-1", ">name: Mild ^7", ">vegan: true ^7"));
    EXPECT_EQ(model.Text("lblSource"), "From new.xml, imported 5/4/2026");
    EXPECT_EQ(model.Text("treeFields"), "RECIPE: Mild");
    EXPECT_TRUE(model.SetControl("treeFields", "vegan"));
    EXPECT_EQ(model.Text("lblSource"), "From old.json, imported 12/1/2025");
    EXPECT_TRUE(model.SetControl("treeFields", "HOP: Fuggle"));
    EXPECT_EQ(model.Selected(), 3);
    EXPECT_FALSE(model.SetControl("treeFields", "MASH"));
    EXPECT_EQ(model.SourceText([](const DateTime& when) { return std::to_string(when.minute); }),
              "From new.xml, imported 30");
}

TEST_F(CarriedDataModelTest, CopiesABranch) {
    CarriedDataModel model = Model();
    model.SetControl("treeFields", "HOPS");
    EXPECT_TRUE(model.Press("treeFields"));
    EXPECT_EQ(outside.clipboard.text, "HOPS\r\n  HOP: Fuggle\r\n    NAME: Fuggle\r\n    BETA: 2.5\r\n");
    model.SetControl("treeFields", "vegan");
    model.CopySelected();
    EXPECT_EQ(outside.clipboard.text, "vegan: true\r\n");
}

TEST_F(CarriedDataModelTest, DropsEverythingOnceTheBrewerAgrees) {
    CarriedData(*database).Keep(8, kCarriedBeerXml, "other.xml", {2026, 5, 4, 9, 30, 5}, "<RECIPE/>");
    CarriedDataModel model = Model();
    model.Press("cmdDrop");
    EXPECT_TRUE(model.IsOpen());
    EXPECT_THAT(
        outside.messages.TakeLog(),
        ElementsAre("[Carried Data] Drop the carried data of 'Mild'?\r\nAn export can then no longer give "
                    "these fields back. -> No"));
    EXPECT_TRUE(CarriedData(*database).IsCarriedFor(7));
    outside.messages.answers = {Answer::Yes};
    model.Press("cmdDrop");
    EXPECT_FALSE(model.IsOpen());
    EXPECT_THAT(model.Fields(), IsEmpty());
    EXPECT_FALSE(CarriedData(*database).IsCarriedFor(7));
    EXPECT_TRUE(CarriedData(*database).IsCarriedFor(8));
}

TEST_F(CarriedDataModelTest, KeepsEverythingIfTheDatabaseRefuses) {
    CarriedDataModel model = Model();
    outside.messages.answers = {Answer::Yes};
    database->SetStatementHook([](std::string_view) { throw Error("Database", "disk I/O error", 10); });
    model.Press("cmdDrop");
    database->SetStatementHook({});
    EXPECT_EQ(outside.messages.TakeLog().back(), "[Error] disk I/O error (10)");
    EXPECT_TRUE(model.IsOpen());
    EXPECT_EQ(model.Fields().size(), 10u);
    EXPECT_TRUE(CarriedData(*database).IsCarriedFor(7));
}

TEST_F(CarriedDataModelTest, SaysThatThereIsNothing) {
    CarriedDataModel model(*database, 1, "Stout", outside.messages, outside.clipboard);
    EXPECT_EQ(model.Text("lblSource"), "This recipe carries no data of another program.");
    EXPECT_EQ(model.Text("treeFields"), "");
    EXPECT_EQ(model.Selected(), CarriedField::kTop);
    EXPECT_FALSE(model.IsEnabled("cmdDrop"));
    EXPECT_FALSE(model.IsEnabled("treeFields"));
    model.Press("cmdDrop");
    model.CopySelected();
    EXPECT_THAT(outside.messages.TakeLog(), IsEmpty());
    model.Press("cmdClose");
    EXPECT_FALSE(model.IsOpen());
}

// The table's rule about dates can be got around.
TEST_F(CarriedDataModelTest, ShowsADateThatIsNoneAsItStands) {
    database->ExecuteNative("PRAGMA ignore_check_constraints = ON; UPDATE CARRIED SET IMPORTED = 'in May'");
    EXPECT_EQ(Model().Text("lblSource"), "From new.xml, imported in May");
}

}  // namespace
}  // namespace tw::test
