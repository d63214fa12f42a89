// Runs the tests, or with --keep-recipe FOLDER TEXT keeps one recipe as the program keeps unsaved work.
#include <gtest/gtest.h>
#include <string_view>

#include "shell/Recovery.h"

namespace {

int KeepRecipe(const std::string& folder, const std::string& text) {
    tw::RecipeSnapshot snapshot;
    snapshot.fields = {{"txtNotes", text, text}};
    const std::string database = "/Tunwright.mdb";  // not opened; its path only determines the folder
    tw::Recovery recovery(folder, database, "");
    recovery.Adopt("1", tw::Recovery::FolderOf(folder, database) + "/1.unsaved");
    return recovery.Keep("1", snapshot) ? 0 : 1;
}

}  // namespace

int main(int argc, char** argv) {
    if (argc == 4 && std::string_view(argv[1]) == "--keep-recipe") return KeepRecipe(argv[2], argv[3]);
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
