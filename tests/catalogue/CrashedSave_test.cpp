// Tests that a crash while an ingredient is stored leaves the old row and its type.
#include <filesystem>
#include <unistd.h>

#include "EditorTest.h"
#include "catalogue/DatabaseSetupModel.h"
#include "store/Schema.h"
#include "support/DiesIn.h"

namespace tw::test {
namespace {

class CrashedSave : public testing::Test {
  protected:
    CrashedSave() {
        std::string name = (std::filesystem::temp_directory_path() / "tunwright_crash_XXXXXX").string();
        if (mkdtemp(name.data()) == nullptr) throw Error("CrashedSave", "no temporary folder", 0);
        folder_ = name;
    }
    ~CrashedSave() override {
        std::error_code ignored;
        std::filesystem::remove_all(folder_, ignored);
    }

    std::string File() const { return (folder_ / "made.mdb").string(); }
    void Make() const {
        std::filesystem::remove(File());
        const auto database = Database::CreateDatabase(File(), "");
        CreateSchema(*database);
        database->Execute("INSERT INTO GRAIN_TYPES (NAME, GRAIN) VALUES ('Base', TRUE)");
        database->Execute("INSERT INTO GRAINS (NAME, GRAIN, GRAIN_TYPE) VALUES ('Pale', TRUE, 1)");
    }
    // Returns the names of grains and types.
    Lines Rows() const {
        const auto database = OpenMainDatabase(File());
        Lines rows;
        for (const char* sql : {"SELECT NAME FROM GRAINS", "SELECT NAME FROM GRAIN_TYPES"})
            for (Recordset set = database->OpenRecordset(sql); !set.AtEnd(); set.MoveNext())
                rows.push_back(set.Fields(0).Text());
        return rows;
    }
    // Runs work in a process that is killed before that statement. Returns false if work ends before.
    template <typename Work>
    bool DiesAt(int statement, Work work) const {
        Make();
        return DiesIn([&] {
            const auto database = OpenMainDatabase(File());
            TWTree tree(database.get());
            tree.InitFromDatabase();
            TreeObjects objects(tree);
            RecordingPlatform outside;
            outside.messages.answers = {Answer::Yes};
            StyleNotices notices;
            DB_IO io(*database, objects, outside.messages, outside.clock, notices);
            const auto arm = [&] { DieAt(*database, statement); };
            work(CatalogueContext{*database, tree, io, outside.messages, outside.dialogs, outside.clock},
                 arm);
        });
    }
    // Kills the work at each of its statements in turn and expects the old rows; it must
    // have that many statements.
    template <typename Work>
    void ExpectWhole(int statements, Work work) const {
        int count = 0;
        for (; DiesAt(count, work); ++count)
            EXPECT_THAT(Rows(), testing::ElementsAre("Pale", "Base")) << "killed before statement " << count;
        EXPECT_EQ(count, statements);
    }

  private:
    std::filesystem::path folder_;
};

TEST_F(CrashedSave, OfARenamedGrainLeavesTheOldRow) {
    // Queries of the name and twice of the type, its INSERT, DELETE and INSERT of the grain, count and
    // DELETE of the old type.
    ExpectWhole(8, [](const CatalogueContext& context, const auto& arm) {
        const auto editor = MakeEditor(CatalogueKind::Grain, context);
        editor->SetName("Pale");
        editor->SetControl("Text1", "Pale Ale");
        editor->SetControl("Combo1", "Malt");
        arm();
        editor->Press("cmdOK");
    });
    EXPECT_THAT(Rows(), testing::ElementsAre("Pale Ale", "Malt"));
}

TEST_F(CrashedSave, OfADeletedGrainLeavesIt) {
    ExpectWhole(4, [](const CatalogueContext& context, const auto& arm) {
        DatabaseSetupModel setup(context);
        setup.Choose(CatalogueKind::Grain);
        arm();
        setup.Press("cmdDelete");
    });
    EXPECT_THAT(Rows(), testing::IsEmpty());
}

}  // namespace
}  // namespace tw::test
