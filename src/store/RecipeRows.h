// One recipe as the rows of its tables: what a save writes and an opening reads. Plain data; the document
// maps its controls to it and back.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/DateTime.h"
#include "store/Database.h"

namespace tw {

// A pair of columns X and X_DATA. Each half is absent when the column is NULL.
struct StoredQuantity {
    std::optional<std::string> text;
    std::optional<double> data;
};

// An optional column of its own.
using StoredText = std::optional<std::string>;

struct StoredGrain {  // a line of RECIPE_GRAINS, grain or extract
    int rowId = 0;
    StoredText name;
    StoredQuantity amount, ppg, color;
};

struct StoredHop {
    int rowId = 0;
    StoredText name;
    std::optional<std::int64_t> form;
    std::optional<bool> sock, dry;
    StoredQuantity amount, aa, duration;
};

struct StoredSalt {
    int rowId = 0;
    StoredText name;
    StoredQuantity amount;
    std::array<std::optional<double>, 6> ions;  // CA, CO3, CL, MG, NA, SO4
};

struct StoredSugar {
    int rowId = 0;
    StoredText name;
    StoredQuantity ferment, amount;
};

struct StoredAdjunct {
    int rowId = 0;
    StoredText name, amount, duration, when;
};

struct StoredLogLine {
    int rowId = 0;
    StoredText date, action, notes;
};

struct StoredWater {
    StoredText profile;
    // The cells' texts, bare numbers; blank or absent is NULL. CA, CO3, CL, MG, NA, SO4.
    std::array<StoredText, 6> ions;
};

struct StoredRecipe {
    std::string name;  // trimmed
    std::int64_t id = 0;
    std::optional<std::int64_t> styleId, folderId;
    std::optional<DateTime> createdWhen;
    DateTime modifiedWhen;
    StoredQuantity bv, tv, dilutions, fv, bg, og, fg;
    StoredText abv, color, ibu, co2Vols, notes, numBatches;
    StoredQuantity grainExtract;
    std::optional<std::int64_t> ibuMethod;
    StoredQuantity hopExtract;
    std::optional<bool> bottled;
    StoredQuantity kegPsi;
    StoredText kegVols;  // the cell's text, a bare number; blank or absent is NULL
    StoredQuantity temperature;
    StoredWater source, target;
    std::vector<StoredGrain> grains, extracts;
    std::vector<StoredHop> hops;
    std::vector<StoredSalt> salts;
    std::vector<StoredSugar> sugars;
    std::vector<StoredAdjunct> adjuncts;
    std::vector<StoredLogLine> log;
};

// Writes a recipe as a new row with its lines. A quantity without data writes 0. Returns false when the new
// row cannot be found again or an UPDATE touches no row; what was written until then stays. Raises the
// store's errors. REQUIRES: createdWhen is set.
bool InsertRecipe(Database& database, const StoredRecipe& recipe);

// Reads the recipe of that name (without regard to case) with all its lines, each list by descending rowId;
// nothing when there is none.
std::optional<StoredRecipe> ReadRecipe(Database& database, std::string_view name);

// True when a recipe of that name (trimmed, without regard to case) exists.
bool RecipeExists(Database& database, std::string_view name);

}  // namespace tw
