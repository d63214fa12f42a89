// The main database, its tree, and DB_IO on both, with all messages and notices recorded.
#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>
#include <string_view>
#include <utility>

#include "TreeComparison.h"
#include "TreeTest.h"
#include "support/RecordingPlatform.h"
#include "tree/DB_IO.h"
#include "tree/TreeObjects.h"

namespace tw::test {

// Records the notices, one a line. Calls a function during each of them.
class NoticeRecorder : public ObjectListener {
  public:
    void NotifyRecipeMoved(const std::string& name, std::int64_t folderId) override {
        Add("moved " + name + " " + std::to_string(folderId));
    }
    void NotifyRecipeNewStyle(const std::string& name, std::int64_t styleId) override {
        Add("new style " + name + " " + std::to_string(styleId));
    }
    void NotifyRecipeRenamed(const std::string& oldName, const std::string& newName) override {
        Add("renamed " + oldName + " to " + newName);
    }
    void NotifyStyleRenamed(std::int64_t styleId, const std::string& newName) override {
        Add("style renamed " + std::to_string(styleId) + " to " + newName);
    }
    void NotifyRecipeDeleted(const std::string& name) override { Add("deleted " + name); }
    void NotifyRecipeFolderDeleted(std::int64_t folderId) override {
        Add("folder deleted " + std::to_string(folderId));
    }
    void NotifyStyleDeleted(std::int64_t styleId) override {
        Add("style deleted " + std::to_string(styleId));
    }
    void DeletionEnded() override { Add("deletion ended"); }

    Lines log;
    std::function<void()> look;

  private:
    void Add(std::string line) {
        log.push_back(std::move(line));
        if (look) look();
    }
};

class Objects : public testing::Test {
  protected:
    Objects() { main.tree.InitFromDatabase(); }

    // These add rows that are also in the tree.
    std::int64_t Folder(std::int64_t parent, const std::string& name) {
        return io.CreateRecipeFolder(parent, name, Asking::Quietly);
    }
    std::int64_t StyleFolder(std::int64_t parent, const std::string& name) {
        return io.CreateStyleFolder(parent, name, Asking::Quietly);
    }
    void Recipe(const std::string& name, std::int64_t folder = 0, std::int64_t style = 0) {
        main.Execute("INSERT INTO RECIPES (NAME, STYLE_ID, FOLDER_ID) VALUES (" + SqlText(name) + ", " +
                     std::to_string(style) + ", " + std::to_string(folder) + ")");
        io.AddRecipeNodesByName(name);
    }
    void Style(const std::string& name, std::int64_t folder = 0) {
        main.Execute("INSERT INTO STYLES (NAME, FOLDER_ID) VALUES (" + SqlText(name) + ", " +
                     std::to_string(folder) + ")");
        io.AddStyleNodesByName(name);
    }

    // Returns the entries below the entry, without the entry itself.
    Lines Tree(const std::string& key) {
        Lines lines;
        const TWNode& node = *main.tree.Nodes(key);
        if (!node.HasChildren()) return lines;
        for (const auto& child : main.tree.Nodes(key)->Children())
            for (std::string& line : Below(*child)) lines.push_back(std::move(line));
        return lines;
    }
    // Returns the rows of a SELECT, one a line.
    Lines Select(const std::string& sql) {
        Lines lines;
        for (Recordset rows = main.db->OpenRecordset(sql); !rows.AtEnd(); rows.MoveNext()) {
            std::string line;
            for (int i = 0; i < rows.FieldCount(); ++i) {
                if (i > 0) line.push_back(' ');
                line += rows.Fields(i).IsNull() ? "NULL" : rows.Fields(i).Text();
            }
            lines.push_back(line);
        }
        return lines;
    }
    // Returns the ids of the folders whose modification date has been set since the last call.
    Lines Touched() {
        Lines ids = Select("SELECT ID FROM FOLDERS WHERE NOT MODIFIED_WHEN IS NULL ORDER BY ID");
        main.Execute("UPDATE FOLDERS SET MODIFIED_WHEN = NULL");
        return ids;
    }
    // Runs action and returns its statements that change something.
    template <typename Action>
    Lines ChangesOf(Action action) {
        Lines changes;
        main.db->SetStatementHook([&](std::string_view sql) {
            if (!sql.starts_with("SELECT")) changes.emplace_back(sql);
        });
        action();
        main.db->SetStatementHook(nullptr);
        return changes;
    }
    // Fails the test unless the tree matches the database.
    void ExpectInStep() {
        TWTree fresh(main.db.get());
        fresh.InitFromDatabase();
        ExpectSameTree(main.tree, fresh);
    }
    Lines Boxes() { return outside.messages.TakeLog(); }
    Lines Notices() { return std::exchange(listener.log, {}); }

    MainTree main;
    RecordingPlatform outside;
    NoticeRecorder listener;
    TreeObjects treeObjects{main.tree};
    DB_IO io{*main.db, treeObjects, outside.messages, outside.clock, listener};
};

}  // namespace tw::test
