// Reads one typed quantity once: the number at its head and the text behind it. The unit parsers and the
// validators then ask for one unit after another, so that a text is upper-cased, cut and read only once,
// whatever its unit.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "values/UnitWords.h"

namespace tw {

// A text in upper case without the blanks at both ends. Short ASCII texts, which nearly all are, need no
// allocation.
class UpperText {
  public:
    explicit UpperText(std::string_view text);
    UpperText(const UpperText&) = delete;
    UpperText& operator=(const UpperText&) = delete;

    std::string_view View() const { return view_; }

  private:
    static constexpr std::size_t kRoom = 48;
    char room_[kRoom];
    std::string long_;
    std::string_view view_;
};

enum class NumberForm {
    Mixed,  // "2", "2.5", "1/2", "2 1/2"
    Real    // "2", "2.5"
};

class UnitReader {
  public:
    // Reads the number. Raises "Division by zero" and "Overflow" as the parsers do.
    UnitReader(std::string_view text, NumberForm form);

    // True if a number of that form is at the head. If not, the other functions return nothing of use.
    bool HasNumber() const { return number_.has_value(); }
    // Returns the number, which may be in any unit: Rest says which. REQUIRES: HasNumber().
    double Number() const { return *number_; }
    // Returns the text behind the number, in upper case, trimmed.
    std::string_view Rest() const { return rest_; }

    // True if the whole of Rest is one of the unit's words.
    bool Names(Unit unit) const { return units_.Has(unit); }
    // True if Rest is one of the unit's words with an optional degree word before it: "DEG P".
    bool NamesDegree(Unit unit) const { return NamesBehind(IsDegreeWord, unit); }
    // True if Rest is one of the unit's words with an optional "FL", "FL." or "FLUID" before it.
    bool NamesFluid(Unit unit) const { return NamesBehind(IsFluidWord, unit); }

  private:
    UpperText upper_;
    std::string_view rest_;
    std::optional<double> number_;
    UnitSet units_;

    bool NamesBehind(bool (*isOptional)(std::string_view), Unit unit) const;
};

}  // namespace tw
