// Recipes of other programs through the databases of this one and out again: nothing of a file is lost on the
// way, and the program that reads it next gets the same recipe.
#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <map>
#include <set>
#include <sstream>

#include "ExchangedFiles.h"
#include "SmallProgram.h"
#include "doctor/ForeignImport.h"
#include "doctor/RecipeExporter.h"
#include "exchange/BeerJsonWriter.h"
#include "exchange/BeerXmlTags.h"
#include "exchange/BeerXmlWriter.h"
#include "exchange/ForeignFileReader.h"
#include "exchange/FragmentTree.h"
#include "store/CatalogueLoader.h"
#include "store/Schema.h"
#include "support/RecordingHost.h"
#include "values/NumberText.h"

namespace tw::test {
namespace {

using Lines = std::vector<std::string>;

class NoConflicts final : public CopyHost {
  public:
    bool Continue(const std::string&, int, int) override { return true; }
    ConflictAnswer ResolveConflict(const std::string&, const std::string&) override { return {}; }
    bool ContinueAfter(const std::string&) override { return false; }
};

// A new database with the catalogue of the program.
std::unique_ptr<Database> FreshDatabase() {
    static const std::string image = [] {
        const auto database = CreateMainDatabaseInMemory();
        EXPECT_TRUE(LoadCatalogue(CATALOGUE_FOLDER, *database, std::nullopt).empty());
        return database->Image();
    }();
    return Database::FromImage(image);
}

// A program on its first day, into which one recipe of another program comes.
class Visit : private SmallProgram {
  public:
    Visit(const ForeignFile& file, std::size_t index, const ImportOptions& options = {})
        : SmallProgram(FreshDatabase()) {
        NoConflicts host;
        Findings told;
        ForeignImport import(doctor, catalogue, host);
        EXPECT_EQ(import.Run(file, "visitor.xml", {{index}, 0, options}, told), 1);
        name_ = database->OpenRecordset("SELECT NAME FROM RECIPES").Fields(0).Text();
    }

    std::string Export(ExchangeFormat format) {
        Findings told;
        const ExportedRecipe recipe =
            RecipeExporter(*database, platform.platform, colors, ImportUnits::AsInFile, defaults)
                .Prepare(name_, format, told);
        return format == ExchangeFormat::BeerXml ? WriteBeerXml(std::span(&recipe, 1), told)
                                                 : WriteBeerJson(std::span(&recipe, 1), told);
    }

    // Every field and every cell of the recipe as it opens, with its text and its number.
    Lines Recipe() {
        ScratchHost host(RecipeDefaults{});
        RecipeDocument document(host, platform.platform, *database, colors, 0);
        document.Storage().Open(name_);
        const RecipeRecord& r = document.Record();
        Lines lines;
        for (const TextBox* box : r.TextBoxes())
            lines.push_back(box->Name() + ": " + box->Text() + " = " + NumberText(box->Value()));
        lines.push_back("style " + document.BeerStyle());
        lines.push_back("method " + std::to_string(r.grpIBUMethod.Selected()));
        lines.push_back("bottled " + std::to_string(r.Bottled()));
        for (const Grid* grid : r.Grids())
            for (int row = Grid::FixedRows(); row < grid->Rows(); ++row) lines.push_back(RowOf(*grid, row));
        return lines;
    }

    // Opens the recipe, lets change work on it, and saves it.
    void Edit(const std::function<void(RecipeDocument&)>& change) {
        RecordingHost editing(*database, platform.clock);
        RecipeDocument document(editing, platform.platform, *database, colors, 0);
        editing.documents = {&document};
        document.Storage().Open(name_);
        change(document);
        EXPECT_TRUE(document.Storage().Save(SaveAs::No, Asking::Quietly));
    }

  private:
    static std::string RowOf(const Grid& grid, int row) {
        std::string line = grid.Name() + " " + std::to_string(row) + ":";
        for (int col = 0; col < grid.Cols(); ++col) {
            const Cell& cell = grid.At(row, col);
            line += " " + cell.text + " = " + cell.value.Text();
            if (cell.check == CheckState::Checked) line += " checked";
            line += " |";
        }
        return line;
    }

    std::string name_;
};

struct Source {
    std::string name;
    ForeignFile file;
};

// The files of the project.
std::vector<Source> OwnFiles() {
    return {{"XML", *ReadForeignFile(kXmlFile)}, {"JSON", *ReadForeignFile(kJsonFile)}};
}

// Real files of other programs, which are not part of the project; TW_EXCHANGE_FILES names their folder.
std::vector<Source> SampleFiles() {
    std::vector<Source> sources;
    const char* const folder = std::getenv("TW_EXCHANGE_FILES");
    if (folder == nullptr) return sources;
    for (const auto& entry : std::filesystem::directory_iterator(std::filesystem::path(folder) / "samples")) {
        if (entry.path().extension() == ".tsv") continue;
        if (auto file = ReadForeignFile(ReadForeignBytes(entry.path().string())))
            sources.push_back({entry.path().filename().string(), std::move(*file)});
    }
    return sources;
}

void ForEachRecipe(const std::vector<Source>& sources,
                   const std::function<void(const ForeignFile& file, std::size_t index)>& visit) {
    for (const Source& source : sources) {
        for (std::size_t i = 0; i < source.file.recipes.size(); ++i) {
            SCOPED_TRACE(source.name + ", " + source.file.recipes[i].name);
            visit(source.file, i);
        }
    }
}

// Returns the only file that the text contains, with its only recipe.
ForeignFile ReadOne(const std::string& text) {
    ForeignFile file = *ReadForeignFile(text);
    EXPECT_EQ(file.recipes.size(), 1U);
    return file;
}

FragmentNode TreeOf(ExchangeFormat format, const ForeignRecipe& recipe) {
    const auto word = format == ExchangeFormat::BeerXml ? kCarriedBeerXml : kCarriedBeerJson;
    return ReadFragment({std::string(word), {}, {}, recipe.fragment});
}

// False for a text of which the format forbids that it stands in that element: it goes back as what it means,
// or not at all.
bool IsAllowed(const std::string& parent, const FragmentNode& node) {
    const XmlRecordRule* const record = RecordOfTag(parent);
    const XmlField* const field = record ? FieldOf(record->record, node.name) : nullptr;
    if (field == nullptr) return true;
    const std::string& text = node.value;
    switch (field->holds) {
        case XmlHolds::Text:
            return field->need == XmlNeed::Required || !text.empty();
        case XmlHolds::Number:
        case XmlHolds::Percent:
            return !text.empty() && text.find_first_not_of("0123456789.") == std::string::npos;
        case XmlHolds::Boolean:
            return text == "TRUE" || text == "FALSE";
        case XmlHolds::Word:
            return std::ranges::find(field->words, text) != field->words.end();
        default:
            return true;
    }
}

// Expects that written has everything of original, the elements of one name in their order. A record has no
// text of its own.
void ExpectWithin(const FragmentNode& original, const FragmentNode& written, const std::string& path) {
    if (RecordOfTag(original.name) == nullptr) {
        EXPECT_EQ(written.value, original.value) << path;
    }
    std::map<std::string, std::size_t> seen;
    for (const FragmentNode& child : original.children) {
        std::size_t left = seen[child.name]++;
        if (!IsAllowed(original.name, child)) continue;
        const auto found = std::ranges::find_if(written.children, [&](const FragmentNode& other) {
            return other.name == child.name && left-- == 0;
        });
        const std::string place = path + "/" + child.name;
        if (found == written.children.end())
            ADD_FAILURE() << place << " is missing: " << child.value;
        else
            ExpectWithin(child, *found, place);
    }
}

void ExpectEverythingBack(const ForeignFile& file, std::size_t index, ImportUnits units) {
    ImportOptions options;
    options.units = units;
    const ForeignFile back = ReadOne(Visit(file, index, options).Export(file.format));
    ExpectWithin(TreeOf(file.format, file.recipes[index]), TreeOf(file.format, back.recipes[0]), "");
}

// The export does not know in which units the recipe was imported.
TEST(RoundTrip, OneFormatGivesEveryElementBack) {
    for (const ImportUnits units : {ImportUnits::AsInFile, ImportUnits::US, ImportUnits::Metric})
        ForEachRecipe(OwnFiles(), [&](const ForeignFile& file, std::size_t index) {
            ExpectEverythingBack(file, index, units);
        });
}

TEST(RoundTrip, SamplesGetEveryElementBack) {
    const auto samples = SampleFiles();
    if (samples.empty()) GTEST_SKIP() << "TW_EXCHANGE_FILES names no folder with samples";
    ForEachRecipe(samples, [](const ForeignFile& file, std::size_t index) {
        ExpectEverythingBack(file, index, ImportUnits::AsInFile);
    });
}

// Removes the nodes of these names, and the amounts of the second hop, from a recipe.
void ForgetFigures(FragmentNode& recipe) {
    static const std::set<std::string> kFigures = {"OG",
                                                   "FG",
                                                   "EST_OG",
                                                   "IBU",
                                                   "IBU_METHOD",
                                                   "original_gravity",
                                                   "final_gravity",
                                                   "alcohol_by_volume",
                                                   "ibu_estimate",
                                                   "color_estimate"};
    std::erase_if(recipe.children, [](const FragmentNode& node) { return kFigures.contains(node.name); });
    for (FragmentNode& child : recipe.children) {
        if (child.name == "ingredients") ForgetFigures(child);
        if (child.name != "HOPS" && child.name != "hop_additions") continue;
        std::erase_if(child.children[1].children, [](const FragmentNode& node) {
            return node.name == "AMOUNT" || node.name == "DISPLAY_AMOUNT" || node.name == "amount";
        });
    }
}

// Of the second hop only the amount is typed anew; 2 oz are 56.69904625 g.
TEST(RoundTrip, AnEditedRowKeepsTheOtherFieldsOfItsElement) {
    for (const Source& source : OwnFiles()) {
        SCOPED_TRACE(source.name);
        Visit visit(source.file, 0);
        visit.Edit([](RecipeDocument& document) {
            document.Cells().EditCell(document.Record().gridHops, 2, HopCol::Amount, "2 oz");
        });
        const ForeignFile back = ReadOne(visit.Export(source.file.format));
        ASSERT_EQ(back.recipes[0].hops.size(), source.file.recipes[0].hops.size());
        EXPECT_NEAR(back.recipes[0].hops[1].amount->value, 0.05669904625, 1e-9);
        FragmentNode original = TreeOf(source.file.format, source.file.recipes[0]);
        // The figures that the other program has calculated, the amount and its text are obsolete.
        ForgetFigures(original);
        ExpectWithin(original, TreeOf(source.file.format, back.recipes[0]), "");
    }
}

// False if an element lacks a figure without which BeerXML has none: it gets a 0, which is a figure as well.
bool StatesItsFigures(const ForeignRecipe& recipe) {
    return std::ranges::all_of(recipe.fermentables, [](const ForeignFermentable& line) {
        return line.lovibond.has_value() || !line.yield;
    });
}

void ExpectSameRecipe(const ForeignFile& file, std::size_t index) {
    if (!StatesItsFigures(file.recipes[index])) return;
    Visit first(file, index);
    Visit second(ReadOne(first.Export(file.format)), 0);
    EXPECT_EQ(second.Recipe(), first.Recipe());
}

TEST(RoundTrip, AnotherDatabaseGetsTheSameRecipe) {
    ForEachRecipe(OwnFiles(), ExpectSameRecipe);
}

TEST(RoundTrip, SamplesAreTheSameInAnotherDatabase) {
    const auto samples = SampleFiles();
    if (samples.empty()) GTEST_SKIP() << "TW_EXCHANGE_FILES names no folder with samples";
    ForEachRecipe(samples, ExpectSameRecipe);
}

// What a use is once both formats have said it: they share these.
ForeignUse Shared(ForeignUse use) {
    if (use == ForeignUse::Whirlpool) return ForeignUse::Aroma;
    return use == ForeignUse::Secondary ? ForeignUse::Primary : use;
}

template <class Line>
void ExpectSameLines(const std::vector<Line>& before, const std::vector<Line>& after) {
    constexpr double kShare = 2e-4;
    ASSERT_EQ(after.size(), before.size());
    for (std::size_t i = 0; i < before.size(); ++i) {
        SCOPED_TRACE(before[i].name);
        EXPECT_EQ(after[i].name, before[i].name);
        if (before[i].amount) {
            ASSERT_TRUE(after[i].amount);
            // BeerXML weighs all hops and fermentables.
            if constexpr (std::is_same_v<Line, ForeignMisc>) {
                EXPECT_EQ(after[i].amount->of, before[i].amount->of);
            }
            EXPECT_NEAR(after[i].amount->value, before[i].amount->value, kShare * before[i].amount->value);
        }
        if constexpr (requires { before[i].use; }) {
            ASSERT_TRUE(after[i].use);
            EXPECT_EQ(Shared(*after[i].use), Shared(before[i].use.value_or(ForeignUse::Boil)));
            EXPECT_NEAR(after[i].minutes.value_or(0), before[i].minutes.value_or(0), 1.0 / 60);
        }
    }
}

void ExpectLinesThroughTheOther(const ForeignFile& file, std::size_t index) {
    const bool isXml = file.format == ExchangeFormat::BeerXml;
    const auto other = isXml ? ExchangeFormat::BeerJson : ExchangeFormat::BeerXml;
    const ForeignFile there = ReadOne(Visit(file, index).Export(other));
    const ForeignFile back = ReadOne(Visit(there, 0).Export(file.format));
    const ForeignRecipe& before = file.recipes[index];
    for (const ForeignRecipe* after : {&there.recipes[0], &back.recipes[0]}) {
        SCOPED_TRACE(after == &back.recipes[0] ? "back" : "there");
        EXPECT_EQ(after->name, before.name);
        ExpectSameLines(before.fermentables, after->fermentables);
        ExpectSameLines(before.hops, after->hops);
        ExpectSameLines(before.yeasts, after->yeasts);
        ExpectSameLines(before.miscs, after->miscs);
        EXPECT_EQ(after->waters.size(), before.waters.size());
    }
}

TEST(RoundTrip, LinesSurviveTheOtherFormatAndTheWayBack) {
    ForEachRecipe(OwnFiles(), ExpectLinesThroughTheOther);
}

TEST(RoundTrip, SamplesKeepTheirLinesThroughTheOtherFormat) {
    const auto samples = SampleFiles();
    if (samples.empty()) GTEST_SKIP() << "TW_EXCHANGE_FILES names no folder with samples";
    ForEachRecipe(samples, ExpectLinesThroughTheOther);
}

}  // namespace
}  // namespace tw::test
