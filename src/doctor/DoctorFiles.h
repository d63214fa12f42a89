// The files of the window that imports from other programs: read, and each of their recipes examined.
#pragma once

#include <cstddef>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "doctor/FindingList.h"
#include "doctor/RecipeDoctor.h"
#include "exchange/ForeignRecipe.h"
#include "platform/OwnFiles.h"
#include "platform/Ports.h"

namespace tw {

struct DoctorRecipe {
    std::string name;  // under which it would be imported
    bool chosen = true;
    StatedFigures stated, calculated;
    std::vector<FindingLine> reading;   // what reading the file found about it
    std::vector<FindingLine> findings;  // all of them, those of reading first
    RemediesOffered offered;
    bool hasNewStyle = false;  // the catalogue does not have its style
};

struct DoctorFile {
    std::string path;
    std::string name;                    // the last part of the path
    std::optional<ForeignFile> content;  // nullopt if the file was refused
    std::vector<FindingLine> findings;   // about the file itself
    std::vector<DoctorRecipe> recipes;   // one for each of the content

    bool IsRefused() const { return !content; }
    bool HasIngredients() const;
    bool HasStyles() const;
    // Returns the worst severity of the file and of its recipes; nullopt if nothing was found.
    std::optional<Severity> Worst() const;
    // Returns the findings of the file and of its recipes, whose places then begin with the recipe's name.
    std::vector<FindingLine> AllFindings() const;
};

class DoctorFiles {
  public:
    // Which recipes to examine; null for all.
    using Which = std::function<bool(const DoctorRecipe& recipe)>;

    // own protects the files as long as they are listed here. REQUIRES: all arguments outlive this object.
    DoctorFiles(RecipeDoctor& doctor, DialogPort& dialogs, OwnFiles& own)
        : doctor_(doctor), dialogs_(dialogs), own_(own) {}

    const std::vector<DoctorFile>& All() const { return files_; }

    // Add and Examine show their progress. Both raise the store's errors, and change nothing then or if the
    // brewer cancels.
    //
    // Reads the files and examines their recipes, leaving out files that are listed already. A file that
    // cannot be read is added with a finding that says why. False if the brewer cancelled.
    bool Add(const std::vector<std::string>& paths, const ImportOptions& options);
    // Examines recipes again, with other options. False if the brewer cancelled.
    bool Examine(const ImportOptions& options, const Which& which = {});

    // REQUIRE: the indexes are those of a file and of one of its recipes.
    void Choose(std::size_t file, std::size_t recipe, bool chosen) {
        files_[file].recipes[recipe].chosen = chosen;
    }
    void ChooseAll(std::size_t file, bool chosen);
    // Returns the indexes of the recipes of the file that are chosen.
    std::vector<std::size_t> ChosenOf(std::size_t file) const;
    bool IsAnyChosen() const;

    // The remedies that help any of the chosen recipes.
    RemediesOffered Offered() const;

  private:
    bool IsListed(const std::string& path) const;
    // Examines the recipes of files that which accepts. False if the brewer cancelled.
    bool Examine(std::vector<DoctorFile>& files, const ImportOptions& options, const Which& which);

    RecipeDoctor& doctor_;
    DialogPort& dialogs_;
    OwnFiles& own_;
    std::vector<DoctorFile> files_;
    std::vector<std::unique_ptr<FileInUse>> inUse_;
};

}  // namespace tw
