#include "doctor/DoctorFiles.h"

#include <algorithm>
#include <filesystem>
#include <iterator>
#include <unordered_map>
#include <utility>

#include "doctor/PlausibilityCheck.h"
#include "exchange/ForeignFileReader.h"
#include "platform/Error.h"
#include "tree/ProgressModel.h"

namespace tw {
namespace {

namespace fs = std::filesystem;

// Broken files can have millions of findings, of which the list keeps some.
void AddDropped(const Findings& findings, std::vector<FindingLine>& lines) {
    for (std::size_t i = 0; i < kFindingCodes; ++i) {
        const auto code = static_cast<FindingCode>(i);
        const std::size_t dropped = findings.Dropped(code);
        if (dropped == 0) continue;
        const auto one = std::ranges::find(findings.All(), code, &Finding::code);
        lines.push_back({one->severity,
                         {},
                         std::to_string(dropped) + " more findings of the kind '" +
                             std::string(WordOf(code)) + "' are not listed."});
    }
}

// Gives each recipe what reading the file found about it, and the file the rest.
void SortOut(const ForeignFile& content, DoctorFile& file) {
    std::unordered_map<std::string, std::vector<std::size_t>> byName;
    for (std::size_t i = 0; i < content.recipes.size(); ++i) {
        DoctorRecipe recipe;
        recipe.name = content.recipes[i].name;
        recipe.stated = content.recipes[i].stated;
        byName[recipe.name].push_back(i);
        file.recipes.push_back(std::move(recipe));
    }
    for (const Finding& finding : content.findings.All()) {
        const auto found = finding.recipe.empty() ? byName.end() : byName.find(finding.recipe);
        if (found == byName.end()) {
            file.findings.push_back(LineOf(finding));
        } else {
            for (const std::size_t i : found->second) file.recipes[i].reading.push_back(LineOf(finding));
        }
    }
    AddDropped(content.findings, file.findings);
}

DoctorFile Read(const std::string& path) {
    DoctorFile file;
    file.path = path;
    file.name = fs::path(path).filename().string();
    std::string why = "This is no file of another brewing program.";
    try {
        file.content = ReadForeignFile(ReadForeignBytes(path));
    } catch (const Error& error) {
        why = error.Description();
    }
    if (file.content) {
        NoteHopForms(*file.content, file.content->findings);
        SortOut(*file.content, file);
    } else {
        file.findings.push_back({Severity::Refused, {}, std::move(why)});
    }
    return file;
}

// Puts the result of an examination into recipe.
void Take(const ExaminedRecipe& examined, DoctorRecipe& recipe) {
    recipe.name = examined.plan.name;
    recipe.calculated = examined.calculated;
    recipe.offered = examined.offered;
    recipe.hasNewStyle = false;
    recipe.findings = recipe.reading;
    for (const Finding& finding : examined.findings) {
        recipe.findings.push_back(LineOf(finding));
        recipe.hasNewStyle |= finding.code == FindingCode::StyleUnknown;
    }
}

}  // namespace

bool DoctorFile::HasIngredients() const {
    return content && !(content->fermentables.empty() && content->hops.empty() && content->yeasts.empty() &&
                        content->miscs.empty() && content->waters.empty());
}

bool DoctorFile::HasStyles() const {
    return content && (!content->styles.empty() || std::ranges::any_of(recipes, &DoctorRecipe::hasNewStyle));
}

std::optional<Severity> DoctorFile::Worst() const {
    std::optional<Severity> worst = WorstOf(findings);
    // An optional without a value is less than any other.
    for (const DoctorRecipe& recipe : recipes) worst = std::max(worst, WorstOf(recipe.findings));
    return worst;
}

std::vector<FindingLine> DoctorFile::AllFindings() const {
    std::vector<FindingLine> all = findings;
    for (const DoctorRecipe& recipe : recipes) {
        for (FindingLine line : recipe.findings) {
            line.place = PlaceWithRecipe(recipe.name, line.place);
            all.push_back(std::move(line));
        }
    }
    return all;
}

bool DoctorFiles::IsListed(const std::string& path) const {
    return std::ranges::any_of(files_, [&](const DoctorFile& file) {
        std::error_code missing;
        return file.path == path || fs::equivalent(file.path, path, missing);
    });
}

bool DoctorFiles::Add(const std::vector<std::string>& paths, const ImportOptions& options) {
    std::vector<std::string> added;
    for (const std::string& path : paths)
        if (!IsListed(path) && std::ranges::find(added, path) == added.end()) added.push_back(path);
    std::vector<DoctorFile> files;
    RunSteps(dialogs_, "Reading Files", added, [&](std::size_t i) {
        files.push_back(Read(added[i]));
        return true;
    });
    if (files.size() < added.size() || !Examine(files, options, {})) return false;
    for (const DoctorFile& file : files)
        inUse_.push_back(std::make_unique<FileInUse>(own_, file.path, "is being imported"));
    files_.insert(files_.end(), std::make_move_iterator(files.begin()), std::make_move_iterator(files.end()));
    return true;
}

bool DoctorFiles::Examine(const ImportOptions& options, const Which& which) {
    return Examine(files_, options, which);
}

bool DoctorFiles::Examine(std::vector<DoctorFile>& files, const ImportOptions& options, const Which& which) {
    struct Step {
        const ForeignRecipe* recipe;
        DoctorRecipe* place;
    };
    std::vector<Step> steps;
    std::vector<std::string> names;
    for (DoctorFile& file : files) {
        for (std::size_t i = 0; i < file.recipes.size(); ++i) {
            if (which && !which(file.recipes[i])) continue;
            steps.push_back({&file.content->recipes[i], &file.recipes[i]});
            names.push_back(file.recipes[i].name);
        }
    }
    std::vector<DoctorRecipe> results;
    RunSteps(dialogs_, "Examining Recipes", names, [&](std::size_t i) {
        DoctorRecipe result = *steps[i].place;
        Take(doctor_.Examine(*steps[i].recipe, options), result);
        results.push_back(std::move(result));
        return true;
    });
    if (results.size() < steps.size()) return false;
    for (std::size_t i = 0; i < steps.size(); ++i) *steps[i].place = std::move(results[i]);
    return true;
}

void DoctorFiles::ChooseAll(std::size_t file, bool chosen) {
    for (DoctorRecipe& recipe : files_[file].recipes) recipe.chosen = chosen;
}

std::vector<std::size_t> DoctorFiles::ChosenOf(std::size_t file) const {
    std::vector<std::size_t> chosen;
    const std::vector<DoctorRecipe>& recipes = files_[file].recipes;
    for (std::size_t i = 0; i < recipes.size(); ++i)
        if (recipes[i].chosen) chosen.push_back(i);
    return chosen;
}

bool DoctorFiles::IsAnyChosen() const {
    return std::ranges::any_of(files_, [](const DoctorFile& file) {
        return std::ranges::any_of(file.recipes, &DoctorRecipe::chosen);
    });
}

RemediesOffered DoctorFiles::Offered() const {
    RemediesOffered offered;
    for (const DoctorFile& file : files_) {
        for (const DoctorRecipe& recipe : file.recipes) {
            if (!recipe.chosen) continue;
            offered.grams |= recipe.offered.grams;
            offered.gravity |= recipe.offered.gravity;
            offered.bitterness |= recipe.offered.bitterness;
            offered.ebc |= recipe.offered.ebc;
        }
    }
    return offered;
}

}  // namespace tw
