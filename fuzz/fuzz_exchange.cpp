// Imports any bytes as a recipe file, with everything that an import does. Bad input may cause nothing but
// messages, and the database must be intact afterwards.
#include <cstdint>
#include <cstdlib>
#include <fstream>
#include <iostream>
#include <string>
#include <unistd.h>

#include "platform/SystemClock.h"
#include "shell/Shell.h"

namespace {

using namespace tw;

class NoMessages : public MessagePort {
  public:
    void ShowMessage(std::string_view, std::string_view) override {}
    Answer Ask(std::string_view, std::string_view, Question) override { return Answer::Ok; }
    void Beep() override {}
};

// Answers every name conflict with a new name, so that the recipe is imported too.
class Dialogs : public DialogPort {
  public:
    void ShowModal(DialogModel& dialog) override {
        dialog.FirstShown();
        if (dialog.IsOpen()) {
            dialog.SetControl("txtNewName", "Taken " + std::to_string(++count_));
            dialog.Press("cmdRename");
        }
        if (dialog.IsOpen()) dialog.CloseBox();
    }

  private:
    int count_ = 0;
};

class NoSettings : public SettingsPort {
  public:
    std::optional<std::string> Read(Layer, std::string_view, std::string_view) override {
        return std::nullopt;
    }
    bool Write(Layer, std::string_view, std::string_view, std::string_view) override { return false; }
    void Remove(Layer, std::string_view, std::string_view) override {}
};

class NoClipboard : public ClipboardPort {
  public:
    bool HasText() override { return false; }
    std::string Text() override { return {}; }
    void SetText(std::string_view) override {}
};

// A running program with an empty database in memory.
struct Program {
    NoMessages messages;
    Dialogs dialogs;
    NoSettings settings;
    SystemClock clock;
    NoClipboard clipboard;
    Platform platform{messages, dialogs, settings, clock, clipboard};
    Shell shell{{platform}};
};

// Checks that the names of all recipes are trimmed and unique.
void CheckWhole(Database& main) {
    for (const char* sql : {"SELECT ID FROM RECIPES WHERE NAME IS NULL OR NAME <> TRIM(NAME)",
                            "SELECT NAME FROM RECIPES GROUP BY UCASE(NAME) HAVING COUNT(*) > 1"})
        if (!main.OpenRecordset(sql).AtEnd()) std::abort();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    // Messages about unknown columns would hide those of the fuzzer.
    std::clog.rdbuf(nullptr);
    static const std::string file = "/tmp/fuzz_exchange." + std::to_string(getpid());
    std::ofstream(file, std::ios::binary | std::ios::trunc)
        .write(reinterpret_cast<const char*>(data), static_cast<std::streamsize>(size));
    Program program;
    if (!program.shell.PerformSplashScreenInit(":memory:")) std::abort();
    program.shell.Opened()->files.ImportRecipes(file, 0, std::nullopt);
    CheckWhole(*program.shell.DB());
    // Export the recipes, appended to what the file contains.
    std::vector<std::string> names;
    for (Recordset rows = program.shell.DB()->OpenRecordset("SELECT NAME FROM RECIPES"); !rows.AtEnd();
         rows.MoveNext())
        names.push_back(rows.Fields(0).Text());
    program.shell.Opened()->files.ExportRecipes(file, true, names);
    unlink(file.c_str());
    unlink((file + "-journal").c_str());
    return 0;
}
