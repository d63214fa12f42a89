// A recipe of 30 lines (14 grains, 4 extracts, 10 hops, 2 sugars) in its document, without a window, for the
// benchmarks. All its figures are calculated, and it is the same in every run and on every machine.
#pragma once

#include <array>
#include <charconv>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "document/RecipeDocument.h"
#include "document/ScratchHost.h"
#include "platform/DialogModel.h"
#include "store/Schema.h"

namespace tw::bench {

inline constexpr int kGrains = 14;
inline constexpr int kExtracts = 4;
inline constexpr int kHops = 10;
inline constexpr int kSugars = 2;

// A small random generator with the same sequence in every run and on every machine.
class Dice {
  public:
    double Next() {
        state_ = state_ * 6364136223846793005u + 1442695040888963407u;
        return static_cast<double>(state_ >> 11) / 9007199254740992.0;
    }

  private:
    std::uint64_t state_ = 7;
};

// Returns a number with two decimals, as a brewer types it.
inline std::string Typed(double value) {
    std::array<char, 32> buffer{};
    const auto result =
        std::to_chars(buffer.data(), buffer.data() + buffer.size(), value, std::chars_format::fixed, 2);
    return {buffer.data(), result.ptr};
}

// A platform that does nothing but keep the clipboard.
class Nothing : public MessagePort,
                public DialogPort,
                public SettingsPort,
                public ClockPort,
                public ClipboardPort {
  public:
    void ShowMessage(std::string_view, std::string_view) override {}
    Answer Ask(std::string_view, std::string_view, Question) override { return Answer::No; }
    void Beep() override {}
    void ShowModal(DialogModel& dialog) override { dialog.CloseBox(); }
    std::optional<std::string> Read(Layer, std::string_view, std::string_view) override {
        return std::nullopt;
    }
    bool Write(Layer, std::string_view, std::string_view, std::string_view) override { return false; }
    void Remove(Layer, std::string_view, std::string_view) override {}
    DateTime Now() override { return {}; }
    bool HasText() override { return !clipboard_.empty(); }
    std::string Text() override { return clipboard_; }
    void SetText(std::string_view text) override { clipboard_ = text; }

  private:
    std::string clipboard_;
};

class BenchHost final : public ScratchHost {
  public:
    BenchHost() : ScratchHost({"72%", "1.0", "", "6.5 gal", "5 gal", 0, 0, 0, true}) {}
    bool IsActive(const RecipeDocument&) const override { return true; }
    int LPMaxIter() const override { return 1000; }
};

class Recipe {
  public:
    Recipe() {
        Dice dice;
        RecipeRecord& r = document_.Record();
        Lines(r.gridGrain, kGrains, dice, {{1, 10}, {2, 36}, {4, 20}});
        Lines(r.gridExtract, kExtracts, dice, {{1, 3}, {2, 40}, {4, 8}});
        Lines(r.gridHops, kHops, dice, {{1, 15}, {4, 2}, {6, 80}});
        Lines(r.gridPriming, kSugars, dice, {{1, 100}, {2, 4}});
        Commit(r.txtTemp, "68");
        Commit(r.txtFG, "1.012");
        for (const TextBox* figure : {&r.txtOG, &r.txtBG, &r.txtABV, &r.txtColor, &r.txtIBU, &r.txtCO2})
            if (figure->Empty()) throw Error("Recipe", "A figure is missing", 1);
    }

    void Commit(TextBox& box, std::string_view text) {
        document_.Fields().SetText(box, text);
        if (!document_.Fields().CommitField(box)) throw Error("Recipe", "The entry was refused", 1);
    }
    void CommitTotalVolume(std::string_view text) { Commit(document_.Record().txtTotalVol, text); }
    void CommitGrain(int row, std::string_view text) {
        if (!document_.Cells().EditCell(document_.Record().gridGrain, row, GrainCol::Amount, text))
            throw Error("Recipe", "The entry was refused", 1);
    }

    RecipeDocument& Document() { return document_; }
    // Pastes text into a block of cells.
    void Paste(Grid& grid, const GridRange& range, std::string_view text) {
        nothing_.SetText(text);
        document_.Focus().FocusOn(grid);
        document_.Focus().SelectCells(grid, range);
        document_.Edit().Paste();
    }

  private:
    struct Entry {
        int col;
        double most;
    };
    void Lines(Grid& grid, int lines, Dice& dice, const std::vector<Entry>& entries) {
        while (grid.DataRows() < lines) document_.Lines().InsertRowForGrid(grid);
        for (int row = 1; row <= lines; ++row)
            for (const Entry& entry : entries)
                document_.Cells().EditCell(grid, row, entry.col,
                                           Typed((0.1 + 0.9 * dice.Next()) * entry.most));
    }

    Nothing nothing_;
    Platform platform_{nothing_, nothing_, nothing_, nothing_, nothing_};
    BenchHost host_;
    std::unique_ptr<Database> database_ = CreateMainDatabaseInMemory();
    ColorTable colors_;
    RecipeDocument document_{host_, platform_, *database_, colors_, 1};
};

}  // namespace tw::bench
