// What reading, importing and writing recipes of other programs has to tell the brewer: everything that was
// repaired, guessed or left out, or that looks wrong.
#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace tw {

// From the mildest to the worst.
enum class Severity : std::uint8_t {
    Note,          // worth knowing; nothing was changed
    Repaired,      // the file broke its format, but what was meant is certain
    Approximated,  // read as the nearest thing that a recipe here can say
    NotCarried,    // has no place in a recipe here
    Suspicious,    // read as it stands, but probably wrong
    Refused        // not read
};
inline constexpr std::size_t kSeverities = 6;

// Returns the word for a reader: "note", "not carried".
std::string_view WordOf(Severity severity);

enum class FindingCode : std::uint8_t {
    Encoding,
    ControlCharacter,
    BareAmpersand,
    BareLessThan,
    HtmlEntity,
    MisspeltClose,
    UnclosedTag,
    StrayClose,
    Truncated,
    SeveralRoots,
    RecipeAsRoot,
    Wrapped,
    Doctype,
    TagCase,
    WordCase,
    UnknownWord,
    UnitInNumber,
    DecimalComma,
    NoNumber,
    Missing,
    EmptyRequired,
    UnknownTag,
    JsonComments,
    HopUse,
    HopTime,
    Form,
    LateExtract,
    WaterMix,
    CatalogueFigure,
    NoFigure,
    StyleUnknown,
    Priming,
    ThousandSlip,
    TooMuchHops,
    Grist,
    OgDiffers,
    FgDiffers,
    AbvDiffers,
    IbuDiffers,
    ColourDiffers,
    Carried,         // fields without a place here, which are kept beside the recipe
    AmountUnit,      // an amount of another kind than the line takes, or without one
    IngredientKind,  // an ingredient listed as something that it is not
    YieldPotential,  // yield and potential contradict each other
    Implausible,     // a figure outside of what brewing knows
    Duplicate,       // a field that a record has twice
    NewEntry         // a style or an ingredient that the catalogue does not have
};
inline constexpr std::size_t kFindingCodes = 47;

// Returns the word by which scripts know the code: "bare-ampersand".
std::string_view WordOf(FindingCode code);

struct Finding {
    Severity severity;
    FindingCode code;
    std::string recipe;  // its name; empty for the file as a whole and for entries of a library
    std::string place;   // where in the file or recipe: "line 12", "Hops 2: Cascade"
    std::string text;    // a sentence for the brewer
    bool operator==(const Finding&) const = default;
};

// The findings of one file in the order in which they were made. A broken file could have millions: of each
// code, the list keeps only so many.
class Findings {
  public:
    static constexpr std::size_t kKeptOfOneCode = 1000;

    void Add(Finding finding);
    const std::vector<Finding>& All() const { return all_; }
    bool IsEmpty() const { return all_.empty(); }
    // Returns how many findings of that code were added beyond those kept.
    std::size_t Dropped(FindingCode code) const;

  private:
    std::vector<Finding> all_;
    std::map<FindingCode, std::size_t> added_;
};

}  // namespace tw
