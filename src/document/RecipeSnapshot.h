// An open recipe as it stands at one moment, unsaved edits included: every field, cell and choice under its
// control name. As a text it is kept outside the database, so that a crash loses nothing.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "record/Grid.h"
#include "platform/DateTime.h"
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
        std::vector<std::vector<Cell>> rows;  // all but the header, the totals rows included
        bool operator==(const Rows&) const = default;
    };
    std::string origName;
    std::int64_t folderId = -1;
    std::int64_t styleId = 0;
    std::optional<DateTime> createdWhen;
    Rgb swatch;
    std::vector<std::string> options;  // the option buttons that are set
    std::vector<std::string> buttons;  // the buttons that are on
    std::vector<Field> fields;
    std::vector<Rows> grids;
    bool operator==(const RecipeSnapshot&) const = default;

    // What the recipe is called: the text of txtName, empty without one.
    std::string Name() const;
};

// The snapshot as lines of text behind a line with the version of the form, with its HashText at the end.
// Every byte of its texts comes back.
std::string SnapshotText(const RecipeSnapshot& snapshot);
// Reads the form of SnapshotText. Nothing for any other text: a foreign or later form, a damaged or cut one.
// What is read agrees with itself; a document checks it against its own controls (RecipeDocument::Restore).
std::optional<RecipeSnapshot> ReadSnapshot(std::string_view text);

}  // namespace tw
