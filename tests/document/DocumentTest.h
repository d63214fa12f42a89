// A recipe document in a small program: a database in memory with a few catalogue entries, and a
// recording platform and host.
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

// The ids of the styles that FillCatalogue adds.
inline constexpr int kStout = 1, kLager = 2, kOddWater = 3, kHalfOpen = 4;

void FillCatalogue(Database& database);
// Returns the entries of FillCatalogue for the plain calculation.
PlainCatalogue MakePlainCatalogue();

using Log = std::vector<std::string>;

class DocumentTest : public testing::Test {
  protected:
    DocumentTest() { FillCatalogue(*database); }

    // Creates a new active document with the host's defaults.
    RecipeDocument& New() {
        if (document) std::erase(host.documents, document.get());
        document = std::make_unique<RecipeDocument>(host, platform.platform, *database, colors, 3);
        host.documents.push_back(document.get());
        host.active = document.get();
        document->Focus().Activate();
        host.log.clear();
        return *document;
    }
    // Opens a stored recipe in a new active document.
    RecipeDocument& Open(std::string_view name) {
        New().Storage().Open(name);
        host.log.clear();
        return *document;
    }
    RecipeRecord& R() { return document->Record(); }

    // Types a text and leaves the box. Returns false if the entry is refused.
    bool Set(TextBox& box, std::string_view text, Asking asking = Asking::Aloud) {
        document->Fields().SetText(box, text);
        return document->Fields().CommitField(box, asking);
    }
    bool Put(Grid& grid, int row, int col, std::string_view text) {
        return document->Cells().EditCell(grid, row, col, text);
    }
    // Saves the recipe under a name, in folder 0.
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

    // Returns everything that the window shows, line by line.
    Log Shown() const;

    RecordingPlatform platform;
    std::unique_ptr<Database> database = CreateMainDatabaseInMemory();
    RecordingHost host{*database, platform.clock};
    ColorTable colors;
    std::unique_ptr<RecipeDocument> document;
};

}  // namespace tw::test
