#include "doctor/AmountTexts.h"

#include <array>
#include <charconv>
#include <cmath>
#include <optional>
#include <span>
#include <string_view>

#include "doctor/ExactUnits.h"
#include "platform/Error.h"
#include "values/QuantityParsers.h"
#include "values/Text.h"

namespace tw {
namespace {

constexpr double kOuncesPerPound = 16;
constexpr double kKept = 0.0002;  // the relative error allowed to a text

bool IsNear(double value, double to, double relative) {
    return std::abs(value - to) <= relative * std::abs(to);
}

std::string Fixed(double value, int decimals) {
    // A double has at most 309 digits before its point.
    std::array<char, 330> digits{};
    const auto end =
        std::to_chars(digits.begin(), digits.end(), value, std::chars_format::fixed, decimals).ptr;
    std::string text(digits.begin(), end);
    if (decimals > 0) text.erase(text.find_last_not_of('0') + 1);
    if (text.ends_with('.')) text.pop_back();
    return text;
}

// Returns what a validator reads; nothing if it refuses the text.
std::optional<double> Read(Validator validator, std::string_view text) {
    try {
        const Reading<double> reading = validator(text);
        if (reading) return *reading;
    } catch (const Error&) {
        // A text that breaks the arithmetic is refused, too.
    }
    return std::nullopt;
}

// True if the text of the file, as the program reads it, is that quantity.
bool Says(std::string_view written, Validator validator, double quantity) {
    const std::optional<double> read = Read(validator, written);
    return read && IsNear(*read, quantity, kKept);
}

std::string With(double value, std::string_view unit) {
    return FewestDecimals(value).append(" ").append(unit);
}

// True if the number that the text says is the value.
bool Keeps(const std::string& text, double value) {
    double read = 0;
    std::from_chars(text.data(), text.data() + text.size(), read);
    return IsNear(read, value, kKept);
}

struct UnitChoice {
    double factor;   // litres or kilograms of one
    double atLeast;  // in the unit; smaller quantities have a later one
    std::string_view word;
};

// Returns the quantity in the first unit that suits its size and keeps it, else in the last one.
std::string InFirstFit(double quantity, std::span<const UnitChoice> choices) {
    for (const UnitChoice& choice : choices.first(choices.size() - 1)) {
        const double value = quantity / choice.factor;
        if (value >= choice.atLeast && Keeps(FewestDecimals(value), value)) return With(value, choice.word);
    }
    return With(quantity / choices.back().factor, choices.back().word);
}

constexpr double kLitresPerFluidOunce = kLitresPerGallon / 128;
constexpr double kLitresPerTeaspoon = kLitresPerGallon / 768;
constexpr std::array kVolumesUS = {UnitChoice{kLitresPerGallon, 0.25, "gal"},
                                   UnitChoice{kLitresPerFluidOunce, 1, "fl oz"},
                                   UnitChoice{kLitresPerTeaspoon, 0, "tsp"}, UnitChoice{0.001, 0, "ml"}};
constexpr std::array kVolumesMetric = {UnitChoice{1, 0.5, "L"}, UnitChoice{0.001, 0, "ml"}};
constexpr std::array kSmallWeightsUS = {UnitChoice{kKilogramsPerOunce, 0, "oz"}, UnitChoice{0.001, 0, "g"}};

// Returns the quantity in the unit of the file's text, if the program can read a text with that unit.
std::optional<std::string> InUnitOf(std::string_view written, UnitKind kind, double quantity,
                                    Validator validator) {
    const ForeignUnit* const unit = FindUnit(kind, UnitWordOf(written));
    if (!unit || unit->shown.empty()) return std::nullopt;
    const std::string_view word = unit->shown == "l" ? "L" : unit->shown;
    std::string text = With(quantity / unit->factor, word);
    return Says(text, validator, quantity) ? std::optional(std::move(text)) : std::nullopt;
}

// Returns "9 lb 4 oz" for whole and quarter ounces; nothing for other weights and below a pound.
std::optional<std::string> PoundsAndOunces(double kilograms) {
    constexpr double kParts = 4;
    const double quarters = std::round(kilograms / kKilogramsPerOunce * kParts);
    if (!IsNear(quarters * kKilogramsPerOunce / kParts, kilograms, kKept)) return std::nullopt;
    const double pounds = std::floor(quarters / (kParts * kOuncesPerPound));
    if (pounds < 1) return std::nullopt;
    const double ounces = quarters / kParts - pounds * kOuncesPerPound;
    std::string text = Fixed(pounds, 0) + " lb";
    if (ounces > 0) text += " " + Fixed(ounces, 2) + " oz";
    return text;
}

bool IsMultiple(double value, double of) {
    constexpr double kBatchKept = 0.002;
    const double count = std::round(value / of);
    return count > 0 && IsNear(count * of, value, kBatchKept);
}

bool IsBatchOfGallons(const ForeignRecipe& recipe) {
    constexpr double kHalf = 0.5;
    if (!recipe.batchSize) return false;
    const double litres = recipe.batchSize->value;
    return IsMultiple(litres, kHalf * kLitresPerGallon) && !IsMultiple(litres, kHalf);
}

// True if the file shows its batch in US units; nothing if it shows no unit.
std::optional<bool> ShownInUS(const ForeignRecipe& recipe) {
    if (!recipe.batchSize) return std::nullopt;
    const ForeignUnit* const unit = FindUnit(UnitKind::Volume, UnitWordOf(recipe.batchSize->written));
    if (!unit) return std::nullopt;
    return unit->shown != "l" && unit->shown != "ml" && unit->shown != "hl";
}

}  // namespace

std::string FewestDecimals(double value) {
    constexpr int kMost = 4;
    for (int decimals = 0; decimals < kMost; ++decimals) {
        std::string text = Fixed(value, decimals);
        if (Keeps(text, value)) return text;
    }
    return Fixed(value, kMost);
}

std::string GravityText(double gravity) {
    constexpr int kUsual = 3;
    constexpr double kHalfTenthOfAPoint = 0.00005;
    const double rounded = std::round(gravity * 1000) / 1000;
    if (std::abs(rounded - gravity) >= kHalfTenthOfAPoint) return Fixed(gravity, kUsual + 1);
    std::array<char, 32> digits{};
    const auto end =
        std::to_chars(digits.begin(), digits.end(), rounded, std::chars_format::fixed, kUsual).ptr;
    return {digits.begin(), end};
}

std::string MinutesText(double minutes) {
    return With(minutes, "min");
}

std::string TimeText(double minutes) {
    if (minutes < kMinutesPerDay) return MinutesText(minutes);
    const std::string days = FewestDecimals(minutes / kMinutesPerDay);
    return days + (days == "1" ? " day" : " days");
}

AmountTexts::AmountTexts(ImportUnits units, const ForeignRecipe& recipe)
    : asInFile_(units == ImportUnits::AsInFile), us_(units == ImportUnits::US) {
    if (asInFile_) us_ = ShownInUS(recipe).value_or(IsBatchOfGallons(recipe));
}

std::string AmountTexts::Volume(const ForeignAmount& amount) const {
    const double litres = amount.value;
    if (asInFile_ && !amount.written.empty()) {
        if (Says(amount.written, ValidateVolume, litres / kLitresPerGallon))
            return std::string(Trim(amount.written));
        if (auto text = InUnitOf(amount.written, UnitKind::Volume, litres, ValidateVolume)) return *text;
    }
    return us_ ? InFirstFit(litres, kVolumesUS) : InFirstFit(litres, kVolumesMetric);
}

std::string AmountTexts::WeightIn(bool us, double kilograms, Weighed what) const {
    const bool small = what != Weighed::Malt;
    if (what == Weighed::Salt || !us) {
        if (what == Weighed::Malt && kilograms >= 1) return With(kilograms, "kg");
        return With(kilograms * 1000, "g");
    }
    if (small || kilograms < kKilogramsPerPound) return InFirstFit(kilograms, kSmallWeightsUS);
    if (auto both = PoundsAndOunces(kilograms)) return *both;
    return With(kilograms / kKilogramsPerPound, "lb");
}

std::string AmountTexts::Weight(const ForeignAmount& amount, Weighed what) const {
    const double kilograms = amount.value;
    if (asInFile_ && !amount.written.empty()) {
        if (Says(amount.written, ValidateOunces, kilograms / kKilogramsPerOunce))
            return std::string(Trim(amount.written));
        if (auto text = InUnitOf(amount.written, UnitKind::Mass, kilograms, ValidateOunces)) return *text;
        // No recipe has milligrams.
        if (UnitWordOf(amount.written) == "mg") return With(kilograms * 1000, "g");
    }
    return WeightIn(us_, kilograms, what);
}

std::string AmountTexts::Any(const ForeignAmount& amount, Weighed what) const {
    switch (amount.of) {
        case ForeignAmount::Of::Mass:
            return Weight(amount, what);
        case ForeignAmount::Of::Volume:
            return Volume(amount);
        case ForeignAmount::Of::Pieces:
            break;
    }
    return amount.written.empty() ? FewestDecimals(amount.value) : std::string(Trim(amount.written));
}

std::string AmountTexts::Temperature(double celsius) const {
    constexpr double kFreezing = 32, kDegrees = 1.8;
    return us_ ? With(celsius * kDegrees + kFreezing, "F") : With(celsius, "C");
}

}  // namespace tw
