// Performs thousands of random operations on valid and invalid data. After each one, the tree must be the one
// that a start would read, and the rows, messages and notices those of a plain model of the rules.
#include <algorithm>
#include <random>

#include "ObjectsTest.h"
#include "PlainObjects.h"
#include "TreeComparison.h"

namespace tw::test {
namespace {

using Id = PlainObjects::Id;

class ObjectModel : public Objects {
  protected:
    std::size_t Below(std::size_t bound) { return random_() % bound; }
    bool OneIn(std::size_t count) { return Below(count) == 0; }

    std::string AnyName() {
        static const Lines kNames = {"Ale",
                                     "ale",
                                     "Stout",
                                     "STOUT ",
                                     "  Bock",
                                     "New Folder",
                                     "new folder",
                                     "New Folder (2)",
                                     "(None)",
                                     "!first",
                                     "Smith's",
                                     "say \"x\"",
                                     "'; --",
                                     "\x01\t\r\n",
                                     "\xC3\x84pfel",
                                     "\xC3\xA4PFEL",
                                     "%_*",
                                     "\xD7\xA9\xD7\x9B\xD7\xA8",
                                     "\xE2\x80\xAE"
                                     "drawkcab",
                                     "\xFF\xFE",
                                     "",
                                     "   ",
                                     "7",
                                     "1.050"};
        if (OneIn(40)) return std::string(10000, Below(2) == 0 ? 'x' : '\'');
        if (OneIn(3)) return "Name " + std::to_string(Below(60));
        return kNames[Below(kNames.size())];
    }
    // Returns the key of a row that exists or existed, occasionally that of none.
    std::string AnyKey() {
        static const Lines kOdd = {"X:DB", "X:STYLE", "F:-1", "G:-1", "F:0",  "G:0",    "S:0:0", "S:0:1", "",
                                   "F",    "Q:1",     "F:x",  "R::",  "S:1x", "F:9999", "R:0:0", "S:0"};
        if (OneIn(8)) return kOdd[Below(kOdd.size())];
        switch (Below(5)) {
            case 0:
                return "F:" + AnyIdOf(model.folders);
            case 1:
                return "G:" + AnyIdOf(model.folders);
            case 2:
                return "S:" + AnyIdOf(model.styles) + ":" + std::to_string(Below(2));
            default:
                return "R:" + AnyIdOf(model.recipes) + ":" + std::to_string(Below(4));
        }
    }
    template <typename Rows>
    std::string AnyIdOf(const Rows& rows) {
        if (rows.empty() || OneIn(15)) return std::to_string(Below(40));
        return std::to_string(
            std::next(rows.begin(), static_cast<std::ptrdiff_t>(Below(rows.size())))->first);
    }

    // Returns a link to an earlier row, or to none that a later row could become.
    std::optional<Id> AnyLink(Id last) {
        if (OneIn(20)) return std::nullopt;
        if (OneIn(20)) return 100000;
        return OneIn(4) ? 0 : static_cast<Id>(Below(static_cast<std::size_t>(last + 1)));
    }
    std::optional<std::string> AnyStoredName() {
        if (OneIn(15)) return std::nullopt;
        return AnyName();
    }
    static std::string Sql(const std::optional<Id>& link) { return link ? std::to_string(*link) : "NULL"; }
    static std::string Sql(const std::optional<std::string>& name) { return name ? SqlText(*name) : "NULL"; }

    // Adds rows that no operation would write: cycles, links to nothing, duplicate or missing names.
    void AddRows(int count) {
        for (int i = 0; i < count; ++i) {
            const PlainObjects::Folder folder{AnyLink(model.lastFolder + 1), AnyStoredName(), OneIn(2),
                                              false};
            main.Execute("INSERT INTO FOLDERS (PARENT_ID, NAME, STYLE) VALUES (" + Sql(folder.parent) + ", " +
                         Sql(folder.name) + (folder.style ? ", TRUE)" : ", FALSE)"));
            model.folders[++model.lastFolder] = folder;
            const PlainObjects::Item recipe{AnyStoredName(), AnyLink(model.lastFolder), AnyLink(lastStyle_)};
            main.Execute("INSERT INTO RECIPES (NAME, STYLE_ID, FOLDER_ID) VALUES (" + Sql(recipe.name) +
                         ", " + Sql(recipe.style) + ", " + Sql(recipe.folder) + ")");
            model.recipes[++lastRecipe_] = recipe;
            if (!OneIn(4)) continue;
            const PlainObjects::Item style{AnyStoredName(), AnyLink(model.lastFolder), std::nullopt};
            main.Execute("INSERT INTO STYLES (NAME, FOLDER_ID) VALUES (" + Sql(style.name) + ", " +
                         Sql(style.folder) + ")");
            model.styles[++lastStyle_] = style;
        }
        for (auto& [id, folder] : model.folders) {
            if (!OneIn(10)) continue;
            folder.parent = AnyLink(model.lastFolder);
            main.Execute("UPDATE FOLDERS SET PARENT_ID = " + Sql(folder.parent) +
                         " WHERE ID = " + std::to_string(id));
        }
        main.tree.InitFromDatabase();
        model.typed.clear();
    }

    // Performs an operation on both. A silent one has the same effect but shows no message.
    std::string Operate() {
        const Asking asking = OneIn(3) ? Asking::Quietly : Asking::Aloud;
        const std::string key = AnyKey();
        switch (Below(8)) {
            case 0: {
                const std::string name = AnyName();
                EXPECT_EQ(io.CreateFolderObject(key, name, asking), model.Create(key, name));
                return Done("folder " + key + " " + name, asking);
            }
            case 1:
                if (!OneIn(3)) break;
                io.DeleteObject(key);
                model.Remove(key);
                return Done("remove " + key, Asking::Aloud);
            case 2:
            case 3: {
                const std::string name = AnyName();
                EXPECT_EQ(io.RenameObject(key, name, asking), model.Rename(key, name));
                return Done("rename " + key + " " + name, asking);
            }
            default:
                break;
        }
        const std::string dest = AnyKey();
        EXPECT_EQ(io.MoveObject(key, dest, asking), model.Move(key, dest));
        return Done("move " + key + " " + dest, asking);
    }
    std::string Done(const std::string& what, Asking asking) {
        if (asking == Asking::Quietly) model.boxes.clear();
        return what.substr(0, 100);
    }

    void ExpectModel() {
        EXPECT_EQ(Boxes(), std::exchange(model.boxes, {}));
        // The order of the rows of a folder depends on the store.
        Lines given = Notices();
        std::ranges::sort(given);
        std::ranges::sort(model.notices);
        EXPECT_EQ(given, std::exchange(model.notices, {}));
        EXPECT_EQ(
            Select("SELECT ID, PARENT_ID, STYLE, NOT MODIFIED_WHEN IS NULL, NAME FROM FOLDERS ORDER BY ID"),
            FolderRows());
        EXPECT_EQ(Select("SELECT ID, FOLDER_ID, STYLE_ID, NAME FROM RECIPES ORDER BY ID"),
                  Rows(model.recipes));
        EXPECT_EQ(Select("SELECT ID, FOLDER_ID, NULL, NAME FROM STYLES ORDER BY ID"), Rows(model.styles));
        main.Execute("UPDATE FOLDERS SET MODIFIED_WHEN = NULL");
        for (auto& [id, folder] : model.folders) folder.touched = false;
    }
    Lines FolderRows() const {
        Lines rows;
        for (const auto& [id, folder] : model.folders)
            rows.push_back(std::to_string(id) + " " + Sql(folder.parent) +
                           (folder.style ? " TRUE" : " FALSE") + (folder.touched ? " 1 " : " 0 ") +
                           folder.name.value_or("NULL"));
        return rows;
    }
    static Lines Rows(const std::map<Id, PlainObjects::Item>& items) {
        Lines rows;
        for (const auto& [id, item] : items)
            rows.push_back(std::to_string(id) + " " + Sql(item.folder) + " " + Sql(item.style) + " " +
                           item.name.value_or("NULL"));
        return rows;
    }

    void ExpectFreshTree() {
        TWTree fresh(main.db.get());
        fresh.InitFromDatabase();
        // The tree shows names as typed until the next start.
        for (const auto& [object, name] : model.typed) {
            const std::string key = std::string(1, object.first) + ":" + std::to_string(object.second);
            for (const char* copy : {"", ":0", ":1", ":2", ":3"})
                if (TWNode* const node = fresh.Nodes(key + copy)) node->SetName(name);
        }
        ExpectSameTree(main.tree, fresh);
    }

    void Run(unsigned seed, int steps) {
        random_.seed(seed);
        AddRows(30);
        for (int step = 0; step < steps; ++step) {
            if (OneIn(100)) AddRows(10);
            const std::string what = Operate();
            ExpectModel();
            ExpectFreshTree();
            if (HasFailure()) FAIL() << "seed " << seed << ", step " << step << ": " << what;
        }
    }

    PlainObjects model;

  private:
    std::mt19937 random_;
    Id lastRecipe_ = 0, lastStyle_ = 0;
};

TEST_F(ObjectModel, KeepsTheTreeInStepThroughThousandsOfOperations) {
    Run(41, 1200);
}

TEST_F(ObjectModel, KeepsTheTreeInStepOnOtherData) {
    Run(97, 1200);
}

}  // namespace
}  // namespace tw::test
