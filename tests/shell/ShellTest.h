// A started shell with an empty database in memory and a recording platform and view.
#pragma once

#include <filesystem>
#include <gtest/gtest.h>
#include <string>
#include <string_view>
#include <vector>

#include "platform/ErrorBox.h"
#include "shell/Shell.h"
#include "support/RecordingPlatform.h"

namespace tw::test {

class RecordingView : public ShellView {
  public:
    void DocumentOpened(RecipeDocument& document) override { log.emplace_back("opened " + document.Key()); }
    void DocumentClosing(RecipeDocument& document) override { log.emplace_back("closing " + document.Key()); }
    void DocumentActivated(RecipeDocument* document) override {
        log.emplace_back("activated " + (document ? document->Key() : "none"));
    }
    void ArrangeDocuments(Arrangement arrangement) override {
        log.emplace_back("arrange " + std::to_string(static_cast<int>(arrangement)));
    }
    void ToolbarIconsChanged() override { log.emplace_back("icons"); }
    void ToolbarButtonStyleChanged() override { log.emplace_back("button style"); }
    void GridColorsChanged(const RecipeDocument& document) override {
        log.emplace_back("colors of " + document.Key());
    }
    void UnsavedWorkWaits() override { log.emplace_back("unsaved work"); }
    void AutoSaveSwitched(bool on) override { log.emplace_back(on ? "autosave on" : "autosave off"); }
    void NoticeChanged(const std::string& notice) override { log.emplace_back("notice: " + notice); }
    void SayBriefly(const std::string& text) override { log.emplace_back("news: " + text); }
    void CloseMainWindow() override { log.emplace_back("close main window"); }

    std::vector<std::string> log;
};

// Adds only the row of a recipe, as an import by another program might leave it.
inline void AddRecipeRow(Database& database, const std::string& name) {
    database.Execute("INSERT INTO RECIPES (NAME, STYLE_ID, FOLDER_ID) VALUES (" + SqlText(name) + ", 0, 0)");
}

inline std::vector<std::string> RecipeNames(Database& database) {
    std::vector<std::string> names;
    for (Recordset rows = database.OpenRecordset("SELECT NAME FROM RECIPES ORDER BY NAME"); !rows.AtEnd();
         rows.MoveNext()) {
        names.push_back(rows.Fields(0).Text());
    }
    return names;
}

// A folder for one test, deleted with its contents at the end.
class ScratchFolder {
  public:
    ScratchFolder() {
        const auto* info = testing::UnitTest::GetInstance()->current_test_info();
        path_ = std::filesystem::path(testing::TempDir()) /
                (std::string("tunwright_") + info->test_suite_name() + "_" + info->name());
        std::filesystem::remove_all(path_);
        std::filesystem::create_directories(path_);
    }
    ~ScratchFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(path_, ignored);
    }
    ScratchFolder(const ScratchFolder&) = delete;
    ScratchFolder& operator=(const ScratchFolder&) = delete;
    std::string File(std::string_view name) const { return (path_ / name).string(); }

  private:
    std::filesystem::path path_;
};

class ShellTest : public testing::Test {
  protected:
    void SetUp() override {
        shell.SetView(&view);
        ASSERT_TRUE(shell.PerformSplashScreenInit(":memory:"));
    }

    bool Lit(std::string_view item) { return bar().FindItem(item)->enabled; }
    bool Visible(std::string_view item) { return bar().FindItem(item)->visible; }
    const ToolButton& Button(std::string_view key) { return *bar().FindButton(key); }
    const CommandBar& bar() { return shell.Bar(); }

    std::vector<std::string> Captions() {
        std::vector<std::string> captions;
        for (const auto& document : shell.Documents().All()) captions.push_back(document->Caption());
        return captions;
    }

    // Creates a changed document with that name typed in.
    RecipeDocument& NewNamed(std::string_view name) {
        RecipeDocument& document = shell.Opened()->recipes.Create("");
        document.Fields().SetText(document.Record().txtName, name);
        return document;
    }
    // Creates a document and saves it under that name.
    RecipeDocument& NewSaved(std::string_view name) {
        RecipeDocument& document = shell.Opened()->recipes.Create("");
        EXPECT_TRUE(shell.Opened()->saver.SaveUnder(document, name, 0, Asking::Quietly));
        return document;
    }

    RecordingPlatform outside;
    RecordingView view;
    Shell shell{{outside.platform}};
};

using Strings = std::vector<std::string>;

}  // namespace tw::test
