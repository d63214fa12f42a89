// Measures undo and redo in a recipe of 30 lines through its document, without a window. Each step
// recalculates the figures that depend on its control, so the limits are those of the
// recalculation, not of the history.
#include <benchmark/benchmark.h>

#include "BenchRecipe.h"

namespace {

using tw::Grid;
using tw::bench::Recipe;

void Require(bool done) {
    if (!done) throw tw::Error("undo_bench", "There was nothing to undo or redo", 1);
}

// Undoes and redoes one edited grain amount: two steps an iteration.
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

// Every line depends on the total volume.
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

// Pastes 1000 cells in one step: 250 lines of the four columns of the adjuncts, or 1000 amounts of grains,
// each of which recalculates the recipe.
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
    recipe.Paste(grid, target, "7.25");
    for ([[maybe_unused]] const auto _ : state) Require(document.Replay().Undo() && document.Replay().Redo());
}
BENCHMARK(PasteThousandCells)->ArgName("grains")->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);

}  // namespace
