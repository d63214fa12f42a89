// Measures examining a thousand recipes of another program in a file of 10 MB, against a fixed time, and
// importing recipes, against as many silent saves of the same recipes in the same run: x_saves against saves
// one by one, each of which waits for the disk, x_limit against all of them as one unit. The files are
// created in the current folder: run it on the disk to be measured.
#include <array>
#include <benchmark/benchmark.h>
#include <cstdlib>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "BenchRecipe.h"
#include "SilentStore.h"
#include "Timing.h"
#include "catalogue/CatalogueContext.h"
#include "doctor/ForeignImport.h"
#include "doctor/RecipeDoctor.h"
#include "exchange/ForeignFileReader.h"
#include "store/CatalogueLoader.h"
#include "tree/TreeObjects.h"

namespace {

using namespace tw;

constexpr int kExamined = 1000;
constexpr int kImported = 200;
const std::string kMade = "doctor_bench_made.mdb";
const std::string kUsed = "doctor_bench_used.mdb";

std::string Tag(const std::string& name, const std::string& value) {
    return "<" + name + ">" + value + "</" + name + ">\n";
}

// Returns a recipe of 17 lines, with what other programs write besides: mash, equipment, style, display
// texts, and notes that make it 10 kB long.
std::string RecipeText(int number, bench::Dice& dice) {
    constexpr std::size_t kLength = 10'000;
    constexpr std::array kMalts = {"Pale Malt (2 Row) US", "Munich Malt", "Crystal Malt 40L", "Wheat Malt"};
    constexpr std::array kHopNames = {"Cascade", "Columbus", "Fuggles", "East Kent Goldings"};
    std::string text = "<RECIPE>" + Tag("NAME", "Copper Lantern " + std::to_string(number)) +
                       Tag("VERSION", "1") + Tag("TYPE", "All Grain") + Tag("BREWER", "Ida") +
                       Tag("BATCH_SIZE", "20") + Tag("BOIL_SIZE", "24") + Tag("BOIL_TIME", "60") +
                       Tag("EFFICIENCY", "72") + Tag("OG", "1.052") + Tag("FG", "1.012") +
                       Tag("IBU", "34.5 IBUs") + Tag("EST_COLOR", "9.5 SRM") +
                       "<STYLE><NAME>American Pale Ale</NAME><CATEGORY_NUMBER>18</CATEGORY_NUMBER>"
                       "<STYLE_LETTER>B</STYLE_LETTER><STYLE_GUIDE>BJCP</STYLE_GUIDE></STYLE>"
                       "<EQUIPMENT><NAME>Shed</NAME><BOIL_SIZE>24</BOIL_SIZE></EQUIPMENT><FERMENTABLES>";
    for (int i = 0; i < 7; ++i)
        text += "<FERMENTABLE>" + Tag("NAME", kMalts[static_cast<std::size_t>(i) % kMalts.size()]) +
                Tag("VERSION", "1") + Tag("TYPE", "Grain") + Tag("AMOUNT", bench::Typed(0.2 + dice.Next())) +
                Tag("YIELD", bench::Typed(70 + 10 * dice.Next())) +
                Tag("COLOR", bench::Typed(2 + 20 * dice.Next())) + Tag("MOISTURE", "4") +
                Tag("ORIGIN", "US") + "</FERMENTABLE>";
    text += "</FERMENTABLES><HOPS>";
    for (int i = 0; i < 6; ++i)
        text += "<HOP>" + Tag("NAME", kHopNames[static_cast<std::size_t>(i) % kHopNames.size()]) +
                Tag("VERSION", "1") + Tag("ALPHA", bench::Typed(4 + 8 * dice.Next())) +
                Tag("AMOUNT", "0.0" + std::to_string(10 + static_cast<int>(20 * dice.Next()))) +
                Tag("USE", i == 5 ? "Dry Hop" : "Boil") + Tag("TIME", std::to_string(60 - 10 * i)) +
                Tag("FORM", "Pellet") + Tag("BETA", "4.5") + "</HOP>";
    text += "</HOPS><MISCS>";
    for (const char* const name : {"Gypsum", "Irish Moss", "Coriander"})
        text += "<MISC>" + Tag("NAME", name) + Tag("VERSION", "1") + Tag("TYPE", "Other") +
                Tag("USE", "Boil") + Tag("TIME", "15") + Tag("AMOUNT", "0.005") +
                Tag("AMOUNT_IS_WEIGHT", "TRUE") + "</MISC>";
    text += "</MISCS><YEASTS><YEAST>" + Tag("NAME", "American Ale") + Tag("LABORATORY", "Wyeast Labs") +
            Tag("PRODUCT_ID", "1056") + Tag("TYPE", "Ale") + Tag("FORM", "Liquid") + Tag("AMOUNT", "0.125") +
            Tag("ATTENUATION", "75") + "</YEAST></YEASTS><WATERS/><MASH><NAME>Rest</NAME><MASH_STEPS>";
    for (int i = 0; i < 3; ++i)
        text += "<MASH_STEP>" + Tag("NAME", "Step") + Tag("TYPE", "Temperature") + Tag("STEP_TEMP", "66") +
                Tag("STEP_TIME", "20") + "</MASH_STEP>";
    text += "</MASH_STEPS></MASH><NOTES>";
    while (text.size() < kLength) text += "A sentence that is some fifty characters long by now. ";
    return text + "</NOTES></RECIPE>\n";
}

std::string FileText(int recipes) {
    bench::Dice dice;
    std::string text = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<RECIPES>\n";
    for (int i = 0; i < recipes; ++i) text += RecipeText(i, dice);
    return text + "</RECIPES>\n";
}

void RemoveFiles() {
    for (const std::string& file : {kMade, kUsed})
        for (const std::string end : {"", "-journal"}) std::filesystem::remove(file + end);
}

void MakeDatabase() {
    RemoveFiles();
    const auto database = Database::CreateDatabase(kMade, "");
    CreateSchema(*database);
    if (!LoadCatalogue(CATALOGUE_FOLDER, *database, std::nullopt).empty()) std::abort();
}

// A program on a database that has the catalogue and no recipes.
struct Program {
    Program() {
        std::filesystem::copy_file(kMade, kUsed, std::filesystem::copy_options::overwrite_existing);
        database = OpenMainDatabase(kUsed);
    }
    std::unique_ptr<Database> database;
    bench::Nothing nothing;
    Platform platform{nothing, nothing, nothing, nothing, nothing};
    ColorTable colors;
};

struct Doctor : Program {
    RecipeDoctor doctor{*database, platform, colors, {"72%", "1.0", "", "6.5 gal", "5 gal"}};
};

class Accepting final : public CopyHost {
  public:
    bool Continue(const std::string&, int, int) override { return true; }
    ConflictAnswer ResolveConflict(const std::string&, const std::string&) override { return {}; }
    bool ContinueAfter(const std::string&) override { return false; }
};

// Limit: one second for a thousand recipes; x_reading is the share of the reading alone.
void ExamineThousandRecipes(benchmark::State& state) {
    constexpr double kLimit = 1;
    const std::string text = FileText(kExamined);
    MakeDatabase();
    std::vector<double> reading, whole;
    for ([[maybe_unused]] const auto _ : state) {
        Doctor program;
        whole.push_back(Seconds([&] {
            std::optional<ForeignFile> file;
            reading.push_back(Seconds([&] { file = ReadForeignFile(text); }));
            for (const ForeignRecipe& recipe : file->recipes)
                benchmark::DoNotOptimize(program.doctor.Examine(recipe, {}));
        }));
    }
    RemoveFiles();
    state.counters["MB"] = static_cast<double>(text.size()) / 1e6;
    state.counters["x_limit"] = Median(whole) / kLimit;
    state.counters["x_reading"] = Median(reading) / Median(whole);
}
BENCHMARK(ExamineThousandRecipes)->Unit(benchmark::kMillisecond)->MinTime(3);

double ImportSeconds(const ForeignFile& file, const ForeignChoice& choice) {
    Doctor program;
    FixedClock clock;
    NoListener listener;
    TWTree tree(program.database.get());
    TreeObjects treeObjects(tree);
    DB_IO objects(*program.database, treeObjects, program.nothing, clock, listener);
    const CatalogueContext catalogue{*program.database, tree, objects, program.nothing,
                                     program.nothing,   clock};
    Accepting host;
    Findings findings;
    return Seconds(
        [&] { ForeignImport(program.doctor, catalogue, host).Run(file, "bench.xml", choice, findings); });
}

// Saves the recipes, which have been typed before.
double SaveSeconds(const ForeignFile& file, bool asOneUnit) {
    Doctor program;
    std::vector<ExaminedRecipe> typed;
    for (const ForeignRecipe& recipe : file.recipes) typed.push_back(program.doctor.Examine(recipe, {}));
    const auto saveAll = [&] {
        for (const ExaminedRecipe& recipe : typed)
            recipe.document->Storage().SaveUnder(recipe.plan.name, 0, Asking::Quietly);
    };
    return Seconds([&] {
        if (!asOneUnit) return saveAll();
        UnitOfWork unit(*program.database);
        saveAll();
        unit.Commit();
    });
}

void ImportRecipes(benchmark::State& state) {
    const ForeignFile file = *ReadForeignFile(FileText(kImported));
    ForeignChoice choice;
    for (std::size_t i = 0; i < file.recipes.size(); ++i) choice.recipes.push_back(i);
    MakeDatabase();
    std::vector<double> imports, saves, unit;
    for ([[maybe_unused]] const auto _ : state) {
        imports.push_back(ImportSeconds(file, choice));
        saves.push_back(SaveSeconds(file, false));
        unit.push_back(SaveSeconds(file, true));
    }
    RemoveFiles();
    state.counters["import_ms"] = Median(imports) * 1000;
    state.counters["x_saves"] = Median(imports) / Median(saves);
    state.counters["x_limit"] = Median(imports) / Median(unit);
}
BENCHMARK(ImportRecipes)->Unit(benchmark::kMillisecond)->MinTime(3);

}  // namespace
