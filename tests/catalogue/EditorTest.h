// A database with its tree, and the editors of its catalogue with a recording platform.
#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "catalogue/CatalogueEditor.h"
#include "platform/Error.h"
#include "store/Schema.h"
#include "support/RecordingPlatform.h"
#include "tree/TreeObjects.h"

namespace tw::test {

using Lines = std::vector<std::string>;

// Records the notices about styles, one a line.
class StyleNotices : public ObjectListener {
  public:
    void NotifyRecipeMoved(const std::string&, std::int64_t) override {}
    void NotifyRecipeNewStyle(const std::string& name, std::int64_t id) override {
        log.emplace_back("new style " + name + " " + std::to_string(id));
    }
    void NotifyRecipeRenamed(const std::string&, const std::string&) override {}
    void NotifyStyleRenamed(std::int64_t id, const std::string& name) override {
        log.emplace_back("style renamed " + std::to_string(id) + " to " + name);
    }
    void NotifyRecipeDeleted(const std::string&) override {}
    void NotifyRecipeFolderDeleted(std::int64_t) override {}
    void NotifyStyleDeleted(std::int64_t id) override {
        log.emplace_back("style deleted " + std::to_string(id));
    }

    Lines log;
};

class EditorTest : public testing::Test {
  protected:
    EditorTest() { tree.InitFromDatabase(); }

    std::unique_ptr<CatalogueEditor> Open(CatalogueKind catalogue, const std::string& name = "") {
        auto editor = MakeEditor(catalogue, context);
        editor->SetName(name);
        return editor;
    }
    // Fills the controls and presses OK.
    void Save(CatalogueEditor& editor, const std::vector<std::pair<std::string, std::string>>& entries) {
        for (const auto& [control, text] : entries) EXPECT_TRUE(editor.SetControl(control, text)) << control;
        EXPECT_TRUE(editor.Press("cmdOK"));
    }
    // Returns the texts of all controls, as "control=text".
    static Lines Shown(const CatalogueEditor& editor) {
        Lines lines;
        for (const DialogControl& control : editor.Controls())
            lines.push_back(control.name + "=" + control.text);
        return lines;
    }
    // Returns the rows of a SELECT, one a line.
    Lines Select(const std::string& sql) {
        Lines lines;
        for (Recordset rows = db->OpenRecordset(sql); !rows.AtEnd(); rows.MoveNext()) {
            std::string line;
            for (int i = 0; i < rows.FieldCount(); ++i) {
                if (i > 0) line.push_back('|');
                line += rows.Fields(i).IsNull() ? "NULL" : rows.Fields(i).Text();
            }
            lines.push_back(line);
        }
        return lines;
    }
    // Returns all statements that action runs.
    template <typename Action>
    Lines StatementsOf(Action action) {
        Lines statements;
        db->SetStatementHook([&](std::string_view sql) { statements.emplace_back(sql); });
        action();
        db->SetStatementHook(nullptr);
        return statements;
    }
    // Makes every statement with this beginning fail.
    void FailAt(const std::string& beginning) {
        db->SetStatementHook([beginning](std::string_view sql) {
            if (sql.starts_with(beginning)) throw Error("Database", "The disk is full.", 13);
        });
    }
    void Work() { db->SetStatementHook(nullptr); }
    Lines Boxes() { return outside.messages.TakeLog(); }

    std::unique_ptr<Database> db = CreateMainDatabaseInMemory();
    RecordingPlatform outside;
    StyleNotices notices;
    TWTree tree{db.get()};
    TreeObjects treeObjects{tree};
    DB_IO io{*db, treeObjects, outside.messages, outside.clock, notices};
    CatalogueContext context{*db, tree, io, outside.messages, outside.dialogs, outside.clock};
};

}  // namespace tw::test
