// The exchange with other brewing programs, as the windows and the console use it: examining their files,
// importing from them, exporting to them.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "calc/BeerColor.h"
#include "doctor/ForeignImport.h"
#include "doctor/RecipeDoctor.h"
#include "exchange/ForeignRecipe.h"
#include "platform/OwnFiles.h"
#include "shell/OpenedDatabase.h"
#include "shell/SettingsInUse.h"

namespace tw {

// The figures of one recipe of a foreign file as texts, empty where there are none.
struct ExaminedFigures {
    struct Pair {
        std::string_view word;           // "og", "fg", "abv", "ibu", "srm"
        std::string stated, calculated;  // by the file, by this program
    };
    std::string recipe;
    std::vector<Pair> pairs;
};

// What examining a file has found.
struct Diagnosis {
    Findings findings;
    std::vector<ExaminedFigures> figures;  // one entry a recipe
};

class DoctorDesk {
  public:
    // All arguments must outlive the object.
    DoctorDesk(OpenedDatabase& data, SettingsInUse& settings, const ColorTable& colors, OwnFiles& own)
        : data_(data), settings_(settings), colors_(colors), own_(own) {}

    // Returns true if the file is one of another brewing program that can be imported, or nearly so.
    static bool Takes(const std::string& path);

    // Examines all recipes of a file and stores nothing. Raises Error if the file cannot be read.
    Diagnosis Examine(const std::string& path);

    // Imports the recipes of these names, without names all, and returns how many were imported. What Remedy
    // has chosen holds for this import only. Raises Error if the file cannot be read or the store fails; then
    // nothing of the file is stored. The tree is not brought in line.
    int Import(const std::string& path, std::int64_t folderId,
               const std::optional<std::vector<std::string>>& names, CopyHost& host);

    // Writes the stored recipes of these names as a new file of that format, which replaces an older one as a
    // whole, and returns what the format cannot say. Shows its progress; nullopt if the brewer cancelled.
    // Raises Error if there is no such recipe or the file cannot be written. In both cases an older file
    // remains.
    std::optional<Findings> Export(ExchangeFormat format, const std::string& path,
                                   const std::vector<std::string>& names);

    // Chooses a remedy for the next import by its word: "grams", "gravity", "bitterness", "ebc", "styles",
    // "catalogue", "no-catalogue-figures". False if there is none of that word.
    bool Remedy(std::string_view word);

    // The options of an import without remedies.
    ImportOptions Options() const;
    // Makes the units of an import those of the next ones.
    void KeepUnits(ImportUnits units) { settings_.Values().importUnits = static_cast<int>(units); }
    RecipeDoctor Doctor() const {
        return RecipeDoctor(*data_.database, data_.platform, colors_, settings_.Defaults());
    }

  private:
    OpenedDatabase& data_;
    SettingsInUse& settings_;
    const ColorTable& colors_;
    OwnFiles& own_;
    std::optional<ImportOptions> next_;  // with the remedies chosen for the next import
};

}  // namespace tw
