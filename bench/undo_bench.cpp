// Undo and redo in a recipe of 30 lines through its document, without a window. Each step recomputes the
// figures that its control feeds, so that the limits are those of the recalculation and not of the history.
#include <benchmark/benchmark.h>

#include "BenchRecipe.h"

namespace {

using tw::Grid;
using tw::bench::kGrains;
using tw::bench::Recipe;

void Require(bool done) {
    if (!done) throw tw::Error("undo_bench", "There was nothing to undo or redo", 1);
}

// One edited grain amount, taken back and made again: two steps an iteration.
void UndoOneCell(benchmark::State& state) {
    Recipe recipe;
    recipe.CommitGrain(3, "4.56");
    recipe.CommitGrain(3, "7.89");
    for ([[maybe_unused]] const auto _ : state) {
        Require(recipe.Document().Replay().Undo());
        Require(recipe.Document().Replay().Redo());
    }
    state.counters["per_step"] =
        benchmark::Counter(2.0 * static_cast<double>(state.iterations()),
                           benchmark::Counter::kIsRate | benchmark::Counter::kInvert);
}
BENCHMARK(UndoOneCell)->Unit(benchmark::kMicrosecond);

// The total volume feeds every line.
void UndoTheTotalVolume(benchmark::State& state) {
    Recipe recipe;
    recipe.CommitTotalVolume("5.5 gal");
    for ([[maybe_unused]] const auto _ : state) {
        Require(recipe.Document().Replay().Undo());
        Require(recipe.Document().Replay().Redo());
    }
    state.counters["per_step"] =
        benchmark::Counter(2.0 * static_cast<double>(state.iterations()),
                           benchmark::Counter::kIsRate | benchmark::Counter::kInvert);
}
BENCHMARK(UndoTheTotalVolume)->Unit(benchmark::kMicrosecond);

void UndoADeletedRow(benchmark::State& state) {
    Recipe recipe;
    Grid& grain = recipe.Document().Record().gridGrain;
    recipe.Document().Focus().SetCurrentCell(grain, 7, 0);
    recipe.Document().Lines().DeleteRowForGrid(grain);
    for ([[maybe_unused]] const auto _ : state) {
        Require(recipe.Document().Replay().Undo());
        Require(recipe.Document().Replay().Redo());
    }
}
BENCHMARK(UndoADeletedRow)->Unit(benchmark::kMicrosecond);

// 1000 cells in one step: 250 lines of the adjuncts' four columns, or as many amounts of grains, of which
// each recomputes the recipe.
void PasteThousandCells(benchmark::State& state) {
    const bool adjuncts = state.range(0) == 0;
    const int rows = adjuncts ? 250 : 1000;
    Recipe recipe;
    tw::RecipeDocument& document = recipe.Document();
    Grid& grid = adjuncts ? document.Record().gridAdjuncts : document.Record().gridGrain;
    while (grid.DataRows() < rows) document.Lines().InsertRowForGrid(grid);
    const tw::GridRange target = adjuncts
                                     ? tw::GridRange{1, 0, rows, 3}
                                     : tw::GridRange{1, tw::GrainCol::Amount, rows, tw::GrainCol::Amount};
    recipe.Edit().Paste(grid, target, "7.25");
    for ([[maybe_unused]] const auto _ : state) Require(document.Replay().Undo() && document.Replay().Redo());
}
BENCHMARK(PasteThousandCells)->ArgName("grains")->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);

}  // namespace
