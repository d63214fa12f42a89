#include "shell/DoctorDesk.h"

#include <array>
#include <filesystem>

#include "doctor/FigureTexts.h"
#include "doctor/RecipeExporter.h"
#include "exchange/BeerJsonWriter.h"
#include "exchange/BeerXmlWriter.h"
#include "exchange/ForeignFileReader.h"
#include "platform/TargetFile.h"
#include "tree/ProgressModel.h"
#include "values/Text.h"

namespace tw {
namespace {

struct RemedyWord {
    std::string_view word;
    bool ImportOptions::*option;
    bool value;
};
constexpr RemedyWord kRemedies[] = {
    {"grams", &ImportOptions::grams, true},
    {"gravity", &ImportOptions::gravity, true},
    {"bitterness", &ImportOptions::bitterness, true},
    {"ebc", &ImportOptions::ebc, true},
    {"styles", &ImportOptions::addStyles, true},
    {"catalogue", &ImportOptions::addIngredients, true},
    {"no-catalogue-figures", &ImportOptions::catalogueFigures, false},
};

ForeignFile ReadFile(const std::string& path) {
    std::optional<ForeignFile> file = ReadForeignFile(ReadForeignBytes(path));
    if (!file)
        throw Error("ForeignFile",
                    "File not recognized.\r\n\"" + path + "\" is not valid Tunwright Recipe file", 0);
    return std::move(*file);
}

ExaminedFigures FiguresOf(const ForeignRecipe& recipe, const ExaminedRecipe& examined) {
    ExaminedFigures figures{examined.plan.name, {}};
    for (const FigureColumn& column : FigureColumns())
        figures.pairs.push_back({column.word, WholeFigureText(column, recipe.stated),
                                 (examined.document->Record().*column.box).Text()});
    return figures;
}

// Returns the indexes of the recipes of these names. Asks the host what to do about a name that the file does
// not have; nullopt to stop.
std::optional<std::vector<std::size_t>> Chosen(const ForeignFile& file,
                                               const std::optional<std::vector<std::string>>& names,
                                               CopyHost& host) {
    std::vector<std::size_t> chosen;
    if (!names) {
        for (std::size_t i = 0; i < file.recipes.size(); ++i) chosen.push_back(i);
        return chosen;
    }
    for (const std::string& name : *names) {
        const std::size_t before = chosen.size();
        for (std::size_t i = 0; i < file.recipes.size(); ++i)
            if (SameName(file.recipes[i].name, name)) chosen.push_back(i);
        if (chosen.size() == before &&
            !host.ContinueAfter("Recipe '" + name + "' does not exist in Import File !"))
            return std::nullopt;
    }
    return chosen;
}

}  // namespace

bool DoctorDesk::Takes(const std::string& path) {
    return KindOfFile(path) != FileKind::Other;
}

ImportOptions DoctorDesk::Options() const {
    ImportOptions options;
    options.units = static_cast<ImportUnits>(settings_.Values().importUnits);
    return options;
}

Diagnosis DoctorDesk::Examine(const std::string& path) {
    const ForeignFile file = ReadFile(path);
    Diagnosis diagnosis{file.findings, {}};
    NoteHopForms(file, diagnosis.findings);
    RecipeDoctor doctor = Doctor();
    for (const ForeignRecipe& recipe : file.recipes) {
        const ExaminedRecipe examined = doctor.Examine(recipe, Options());
        for (const Finding& finding : examined.findings) diagnosis.findings.Add(finding);
        diagnosis.figures.push_back(FiguresOf(recipe, examined));
    }
    return diagnosis;
}

int DoctorDesk::Import(const std::string& path, std::int64_t folderId,
                       const std::optional<std::vector<std::string>>& names, CopyHost& host) {
    const ImportOptions options = std::exchange(next_, std::nullopt).value_or(Options());
    const ForeignFile file = ReadFile(path);
    const auto chosen = Chosen(file, names, host);
    if (!chosen) return 0;
    RecipeDoctor doctor = Doctor();
    Findings findings;  // examining the file tells them
    return ForeignImport(doctor, data_.Catalogue(), host)
        .Run(file, std::filesystem::path(path).filename().string(), {*chosen, folderId, options}, findings);
}

std::optional<Findings> DoctorDesk::Export(ExchangeFormat format, const std::string& path,
                                           const std::vector<std::string>& names) {
    const TargetFile target(path, own_);
    Findings findings;
    RecipeExporter exporter(*data_.database, data_.platform, colors_, Options().units, settings_.Defaults());
    std::vector<ExportedRecipe> recipes;
    recipes.reserve(names.size());
    RunSteps(data_.platform.dialogs, "Exporting Recipes", names, [&](std::size_t i) {
        recipes.push_back(exporter.Prepare(names[i], format, findings));
        return true;
    });
    const bool cancelled = recipes.size() < names.size();
    if (cancelled) return std::nullopt;
    target.Replace(format == ExchangeFormat::BeerXml ? WriteBeerXml(recipes, findings)
                                                     : WriteBeerJson(recipes, findings));
    return findings;
}

bool DoctorDesk::Remedy(std::string_view word) {
    for (const RemedyWord& remedy : kRemedies) {
        if (remedy.word != word) continue;
        if (!next_) next_ = Options();
        (*next_).*remedy.option = remedy.value;
        return true;
    }
    return false;
}

}  // namespace tw
