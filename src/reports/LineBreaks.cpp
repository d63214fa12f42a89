#include "reports/LineBreaks.h"

#include <algorithm>

#include "values/Text.h"

namespace tw {
namespace {

// The letters that the search for a fitting piece of text tries first: about one line of small letters.
constexpr std::size_t kFirstGuess = 128;
// Inches. Widths are sums of fractions, so a text that is too wide by no more than this still fits.
constexpr double kTolerance = 1e-9;

// The position of a byte in the runs.
struct Place {
    std::size_t run = 0;
    std::size_t byte = 0;
};

class LineBreaker {
  public:
    LineBreaker(const PrintRuns& runs, const MeasureWidth& width) : runs_(runs), width_(width) {}

    std::vector<PrintRuns> Break(double first, double further) const;

  private:
    Place Reach(Place from, double room) const;
    std::size_t FittingBytes(const PrintRun& run, std::size_t from, double room) const;
    std::optional<Place> LastBlank(Place from, Place to) const;
    PrintRuns Slice(Place from, Place to) const;
    bool IsBlankFrom(Place place) const;
    bool AtEnd(Place place) const { return place.run == runs_.size(); }

    const PrintRuns& runs_;
    const MeasureWidth& width_;
};

std::vector<PrintRuns> LineBreaker::Break(double first, double further) const {
    std::vector<PrintRuns> lines;
    for (Place from;;) {
        const Place reach = Reach(from, lines.empty() ? first : further);
        const std::optional<Place> blank = AtEnd(reach) ? std::nullopt : LastBlank(from, reach);
        const Place end = blank.value_or(reach);
        lines.push_back(Slice(from, end));
        from = blank ? Place{blank->run, blank->byte + 1} : end;
        if (IsBlankFrom(from)) return lines;
    }
}

// Returns the place before which a line of room inches ends. The line holds at least one letter or box.
Place LineBreaker::Reach(Place from, double room) const {
    bool taken = false;
    for (; !AtEnd(from); from = {from.run + 1, 0}) {
        const PrintRun& run = runs_[from.run];
        if (run.swatch) {
            // The text after a box is drawn over it, so a box uses up no room.
            if (taken && width_(run.font, run.text) > room + kTolerance) return from;
            taken = true;
            continue;
        }
        std::size_t bytes = FittingBytes(run, from.byte, room);
        if (bytes == 0 && !taken) bytes = CodePointOffset(std::string_view(run.text).substr(from.byte), 1);
        const std::string_view piece = std::string_view(run.text).substr(from.byte, bytes);
        if (from.byte + bytes < run.text.size()) return {from.run, from.byte + bytes};
        room -= width_(run.font, piece);
        taken = taken || !piece.empty();
    }
    return from;
}

// Returns the length in bytes of the longest piece of run.text that starts at byte from and fits into room
// inches. A piece consists of whole letters; 0 if not even one fits. The search takes few measurements even
// for a very long text, so that long notes print fast.
std::size_t LineBreaker::FittingBytes(const PrintRun& run, std::size_t from, double room) const {
    const std::string_view text = std::string_view(run.text).substr(from);
    const auto fits = [&](std::string_view piece) { return width_(run.font, piece) <= room + kTolerance; };
    std::size_t good = 0;  // letters that fit
    std::size_t bad = kFirstGuess;
    while (CodePointOffset(text, bad) < text.size() && fits(text.substr(0, CodePointOffset(text, bad)))) {
        good = bad;
        bad *= 2;
    }
    if (CodePointOffset(text, bad) == text.size()) {
        if (fits(text)) return text.size();
        bad = CodePointCount(text);
    }
    while (bad - good > 1) {
        const std::size_t middle = good + (bad - good) / 2;
        (fits(text.substr(0, CodePointOffset(text, middle))) ? good : bad) = middle;
    }
    return CodePointOffset(text, good);
}

// Returns the last blank in [from, to]; the place `to` may itself be that blank.
std::optional<Place> LineBreaker::LastBlank(Place from, Place to) const {
    for (std::size_t run = to.run + 1; run-- > from.run;) {
        if (runs_[run].swatch) continue;
        const std::string_view text = runs_[run].text;
        const std::size_t blank = text.rfind(' ', run == to.run ? to.byte : text.size());
        if (blank == std::string_view::npos || (run == from.run && blank < from.byte)) continue;
        return Place{run, blank};
    }
    return std::nullopt;
}

PrintRuns LineBreaker::Slice(Place from, Place to) const {
    PrintRuns line;
    for (std::size_t run = from.run; run < runs_.size() && run <= to.run; ++run) {
        const std::size_t begin = run == from.run ? from.byte : 0;
        const std::size_t end = run == to.run ? to.byte : runs_[run].text.size();
        // No part of this run is on this line.
        const bool empty = begin == end && !runs_[run].text.empty();
        if (empty) continue;
        line.push_back(runs_[run]);
        line.back().text = runs_[run].text.substr(begin, end - begin);
    }
    return line;
}

bool LineBreaker::IsBlankFrom(Place place) const {
    for (; !AtEnd(place); place = {place.run + 1, 0})
        if (runs_[place.run].swatch || !IsBlank(std::string_view(runs_[place.run].text).substr(place.byte)))
            return false;
    return true;
}

}  // namespace

std::vector<PrintRuns> BreakLines(const PrintRuns& runs, double first, double further,
                                  const MeasureWidth& width) {
    return LineBreaker(runs, width).Break(first, further);
}

}  // namespace tw
