// A recipe document in a small program of its own: a database in memory with a few catalogue entries, a
// platform and a host that record.
#pragma once

#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "PlainRecipe.h"
#include "document/RecipeDocument.h"
#include "store/Schema.h"
#include "support/RecordingHost.h"
#include "support/RecordingPlatform.h"

namespace tw::test {

// Ids of the styles that FillCatalogue makes.
enum : int { kStout = 1, kLager, kOddWater, kHalfOpen };

void FillCatalogue(Database& database);
// The same entries for the plain calculation.
PlainCatalogue MakePlainCatalogue();

using Log = std::vector<std::string>;

class DocumentTest : public testing::Test {
  protected:
    DocumentTest() { FillCatalogue(*database); }

    // Makes a new active document with the host's defaults.
    RecipeDocument& New() {
        if (document) std::erase(host.documents, document.get());
        document = std::make_unique<RecipeDocument>(host, platform.platform, *database, colors, 3);
        host.documents.push_back(document.get());
        host.active = document.get();
        document->Focus().Activate();
        host.log.clear();
        return *document;
    }
    // The same with a stored recipe in it.
    RecipeDocument& Open(std::string_view name) {
        New().Storage().Open(name);
        host.log.clear();
        return *document;
    }
    RecipeRecord& R() { return document->Record(); }

    // Types a text and leaves the box.
    bool Set(TextBox& box, std::string_view text, Asking asking = Asking::Aloud) {
        document->Fields().SetText(box, text);
        return document->Fields().CommitField(box, asking);
    }
    bool Put(Grid& grid, int row, int col, std::string_view text) {
        return document->Cells().EditCell(grid, row, col, text);
    }
    // Saves under a name; the recipe then stands in folder 0.
    void SaveAs(std::string_view name) {
        ASSERT_TRUE(document->Storage().SaveUnder(name, 0, Asking::Quietly));
    }
    std::string One(std::string_view sql) {
        const Recordset rows = database->OpenRecordset(sql);
        if (rows.AtEnd()) return "no row";
        return rows.Fields(0).IsNull() ? "NULL" : rows.Fields(0).Text();
    }
    int Count(const std::string& table) {
        return static_cast<int>(database->OpenRecordset("SELECT COUNT(*) FROM " + table).Fields(0).Integer());
    }
    Log Boxes() { return platform.messages.TakeLog(); }

    // Everything that the window shows, line by line.
    Log Shown() const;

    RecordingPlatform platform;
    std::unique_ptr<Database> database = CreateMainDatabaseInMemory();
    RecordingHost host{*database, platform.clock};
    ColorTable colors;
    std::unique_ptr<RecipeDocument> document;
};

}  // namespace tw::test
