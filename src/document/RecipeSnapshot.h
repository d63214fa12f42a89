// The state of an open recipe at one moment, unsaved edits included: every field, cell and choice under the
// name of its control. Its text is stored outside the database, so that a crash loses nothing.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/DateTime.h"
#include "record/Grid.h"
#include "values/Hash.h"

namespace tw {

struct RecipeSnapshot {
    struct Field {
        std::string name, text, committed;
        double value = 0;
        bool operator==(const Field&) const = default;
    };
    struct Rows {
        std::string grid;
        std::vector<std::vector<Cell>> rows;  // all but the header, including the totals rows
        bool operator==(const Rows&) const = default;
    };
    std::string origName;
    std::int64_t folderId = -1;
    std::int64_t styleId = 0;
    std::optional<DateTime> createdWhen;
    Rgb swatch;
    std::vector<std::string> options;  // the option buttons that are chosen
    std::vector<std::string> buttons;  // the buttons that are enabled
    std::vector<Field> fields;
    std::vector<Rows> grids;
    bool operator==(const RecipeSnapshot&) const = default;

    // Returns the text of txtName; empty if there is no such field.
    std::string Name() const;
};

// Returns the snapshot as lines of text. The first line contains the version of the format, the last one the
// HashText of all others. Texts are preserved byte by byte.
std::string SnapshotText(const RecipeSnapshot& snapshot);
// Reads the format of SnapshotText. nullopt for any other text: a foreign or later format, a damaged or
// truncated text. The result is well-formed; RecipeStorage::Restore checks whether it fits the controls
// of a recipe.
std::optional<RecipeSnapshot> ReadSnapshot(std::string_view text);

}  // namespace tw
