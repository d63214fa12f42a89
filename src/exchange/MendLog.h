// Reports the repairs of one file with their lines.
#pragma once

#include <array>
#include <string>
#include <string_view>

#include "exchange/Finding.h"

namespace tw {

// Returns the number of line breaks, of any of the three kinds.
std::size_t CountLineBreaks(std::string_view text);

// Beyond so many faults, a file is refused.
inline constexpr std::size_t kMostFaults = 250'000;

class MendLog {
  public:
    // The text is that of the whole file, from which the lines are counted.
    MendLog(std::string_view text, Findings& findings) : text_(text), findings_(findings) {}

    // Returns the line of an offset, from 1. Cheap if the offsets grow from call to call.
    std::size_t LineAt(std::size_t offset);

    // Adds a finding with the sentence that makeText returns; it is not called if no more findings of the
    // code are kept. Raises the refusal of a file that consists of nothing but damage.
    template <class MakeText>
    void AddAtLine(FindingCode code, Severity severity, std::size_t line, MakeText makeText) {
        if (Count(code))
            findings_.Add({severity, code, {}, "line " + std::to_string(line), makeText()});
        else
            findings_.Add({severity, code, {}, {}, {}});
    }
    template <class MakeText>
    void Add(FindingCode code, Severity severity, std::size_t offset, MakeText makeText) {
        AddAtLine(code, severity, LineAt(offset), makeText);
    }
    template <class MakeText>
    void Repaired(FindingCode code, std::size_t offset, MakeText makeText) {
        Add(code, Severity::Repaired, offset, makeText);
    }

    // Counts faults that need no findings of their own. Raises the refusal of a file with too many.
    void CountFaults(std::size_t count);

  private:
    // Returns true if the next finding of the code is kept.
    bool Count(FindingCode code);

    std::string_view text_;
    Findings& findings_;
    std::size_t counted_ = 0;  // the offset up to which line breaks are counted
    std::size_t line_ = 1;
    std::size_t faults_ = 0;
    std::array<std::size_t, kFindingCodes> ofCode_{};
};

}  // namespace tw
