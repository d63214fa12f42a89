// Measures laying out a recipe, and writing report files compared with the reads that they need.
#include <benchmark/benchmark.h>
#include <string>
#include <vector>

#include "reports/PrintedRecipe.h"
#include "reports/ReportFile.h"
#include "store/Schema.h"

namespace tw {
namespace {

// Fills a recipe with 60 lines of grains, hops, adjuncts and log, and with several lines of notes.
void Fill(RecipeRecord& recipe) {
    constexpr int kRowsOfEach = 15;
    recipe.txtName.SetText("Sixty Lines");
    for (Grid* grid : {&recipe.gridGrain, &recipe.gridHops, &recipe.gridAdjuncts, &recipe.gridLog}) {
        for (int i = 0; i < kRowsOfEach; ++i) {
            const int row = grid->EndOfData();
            grid->InsertRow(row);
            for (int col = 0; col < 3; ++col)
                grid->SetText(row, col, "Text " + std::to_string(row) + " " + std::to_string(col));
        }
    }
    std::string notes;
    for (int i = 0; i < 40; ++i) notes += "A sentence that is some fifty characters long by now. ";
    recipe.txtNotes.SetText(notes);
}

void LayOutSixtyLines(benchmark::State& state) {
    RecipeRecord recipe;
    Fill(recipe);
    for ([[maybe_unused]] const auto _ : state)
        benchmark::DoNotOptimize(LayOutRecipe(recipe, kLetterPaper, FixedMeasure()));
}
BENCHMARK(LayOutSixtyLines)->Unit(benchmark::kMillisecond);

constexpr int kRecipes = 1000;

struct Recipes {
    Recipes() {
        UnitOfWork unit(*database);
        for (int i = 0; i < kRecipes; ++i) {
            names.push_back("Recipe " + std::to_string(i));
            database->Execute(
                "INSERT INTO RECIPES (NAME, STYLE_ID, FOLDER_ID, OG, OG_DATA, FG, FG_DATA, ABV, COLOR, IBU, "
                "CO2_VOLS, BV, BV_DATA, FV, FV_DATA, BG_DATA, NOTES) VALUES (" +
                SqlText(names.back()) +
                ", 0, 0, '1.050', 1.05, '1.012', 1.012, '5.2% abv', '8 SRM (12 HCU)', '30', '2.40 volumes', "
                "'6 gal', 6, '5 gal', 5, 1.042, 'A note of one line.')");
        }
        unit.Commit();
    }
    std::unique_ptr<Database> database = CreateMainDatabaseInMemory();
    std::vector<std::string> names;
};

// The limit: the same rows, read by the same statements, with every column.
void ReadThousandRows(benchmark::State& state) {
    const Recipes recipes;
    for ([[maybe_unused]] const auto _ : state) {
        std::size_t bytes = 0;
        for (const std::string& name : recipes.names) {
            const Recordset row =
                recipes.database->OpenRecordset("SELECT * FROM RECIPES WHERE NAME = " + SqlText(name));
            for (int i = 0; i < row.FieldCount(); ++i) bytes += row.Fields(i).Text().size();
        }
        benchmark::DoNotOptimize(bytes);
    }
}
BENCHMARK(ReadThousandRows)->Unit(benchmark::kMillisecond);

class CountingStream final : public ReportStream {
  public:
    void Write(std::string_view text) override { bytes += text.size(); }
    std::size_t bytes = 0;
};

void ReportThousandRecipes(benchmark::State& state) {
    const Recipes recipes;
    const auto type = static_cast<ReportType>(state.range(0));
    for ([[maybe_unused]] const auto _ : state) {
        CountingStream stream;
        WriteReport(*recipes.database, recipes.names, ReportUnits(), type, ReportOptions(), stream);
        benchmark::DoNotOptimize(stream.bytes);
    }
}
BENCHMARK(ReportThousandRecipes)->Arg(0)->Arg(1)->Arg(2)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace tw
