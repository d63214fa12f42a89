#include "exchange/ForeignFigure.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <vector>

#include "exchange/AsciiCase.h"
#include "values/Converter.h"
#include "values/NumberText.h"
#include "values/Utf8.h"

namespace tw {
namespace {

constexpr std::string_view kNoBreakSpace = "\xC2\xA0";
constexpr double kMost = 1e9;

bool IsDigit(char c) {
    return c >= '0' && c <= '9';
}

bool IsSpace(char c) {
    return c == ' ' || c == '\t' || c == '\r' || c == '\n';
}

// A number at the front of a text.
struct FrontNumber {
    double value = 0;
    std::size_t bytes = 0;
    bool hasComma = false;
};

// True if all groups behind the first have three digits, as between thousands.
bool IsGrouped(std::string_view digits, char mark) {
    constexpr std::size_t kGroup = 3;
    auto at = digits.find(mark);
    if (at == 0 || at > kGroup) return false;
    while (at != std::string_view::npos) {
        const auto next = digits.find(mark, at + 1);
        if (std::min(next, digits.size()) - at - 1 != kGroup) return false;
        at = next;
    }
    return true;
}

// Returns digits with their marks as "1234.5", or nothing if the marks make no number.
std::optional<std::string> WithPoint(std::string_view digits) {
    const auto commas = std::ranges::count(digits, ',');
    const auto points = std::ranges::count(digits, '.');
    char decimal = commas == 1 && points == 0 ? ',' : '.';
    if (commas > 0 && points > 0) decimal = digits[digits.find_last_of(".,")];
    const char other = decimal == ',' ? '.' : ',';
    std::string_view whole = digits;
    const bool hasDecimals = std::ranges::count(digits, decimal) == 1;
    if (hasDecimals)
        whole = digits.substr(0, digits.find(decimal));
    else if (digits.find(decimal) != std::string_view::npos && (commas > 0 && points > 0))
        return std::nullopt;
    for (const char mark : {decimal, other})
        if (whole.find(mark) != std::string_view::npos && !IsGrouped(whole, mark)) return std::nullopt;
    std::string plain;
    for (const char c : whole)
        if (IsDigit(c)) plain += c;
    if (hasDecimals) {
        plain += '.';
        plain += digits.substr(whole.size() + 1);
    }
    return plain;
}

std::optional<double> NumberOf(std::string_view plain) {
    double value = 0;
    const char* const end = plain.data() + plain.size();
    const auto [rest, error] = std::from_chars(plain.data(), end, value);
    if (error != std::errc() || rest != end) return std::nullopt;
    return value;
}

// Returns the number at the front of text: "1.5", "1,5", "1e-3", "+5", "3/4".
std::optional<FrontNumber> ReadFront(std::string_view text) {
    std::size_t at = text.starts_with("+") ? 1 : 0;
    const std::size_t from = at;
    while (at < text.size() && (IsDigit(text[at]) || text[at] == '.' || text[at] == ',')) ++at;
    std::size_t end = at;
    while (end > from && text[end - 1] == ',') --end;
    const auto plain = WithPoint(text.substr(from, end - from));
    if (!plain || std::ranges::none_of(*plain, IsDigit)) return std::nullopt;
    std::string number = *plain;
    if (end == at && at < text.size() && (text[at] == 'e' || text[at] == 'E')) {
        std::size_t exponent = at + 1;
        if (exponent < text.size() && (text[exponent] == '+' || text[exponent] == '-')) ++exponent;
        std::size_t last = exponent;
        while (last < text.size() && IsDigit(text[last])) ++last;
        if (last > exponent) {
            number += text[at + 1] == '-' ? "e-" : "e";
            number += text.substr(exponent, last - exponent);
            at = end = last;
        }
    }
    auto value = NumberOf(number);
    if (!value) return std::nullopt;
    if (end < text.size() && text[end] == '/') {
        std::size_t last = end + 1;
        while (last < text.size() && IsDigit(text[last])) ++last;
        const auto divisor = NumberOf(text.substr(end + 1, last - end - 1));
        if (divisor && *divisor > 0) {
            value = *value / *divisor;
            end = last;
        }
    }
    return FrontNumber{*value, end, text.substr(from, end - from).find(',') != std::string_view::npos};
}

// A number and what stands behind it.
struct Part {
    double value;
    std::string_view unit;
};

struct Scanned {
    std::vector<Part> parts;  // empty if the text states no usable number
    bool hasComma = false;
};

// Returns how many bytes at the front of text are a unit: everything up to the next number or bracket. The
// digit of "CO2" begins no number.
std::size_t UnitBytes(std::string_view text) {
    std::size_t at = 0;
    for (; at < text.size() && text[at] != '('; ++at)
        if (IsDigit(text[at]) && (at < 2 || !EqualAscii(text.substr(at - 2, 2), "CO"))) break;
    return at;
}

// Reads numbers, each with its unit, up to the end or a bracket: "9 lb 4 oz", "1 1/2 tsp".
Scanned Scan(std::string_view text) {
    Scanned scanned;
    while (!text.empty() && text.front() != '(') {
        const auto number = ReadFront(text);
        if (!number) return {};
        text.remove_prefix(number->bytes);
        const std::size_t bytes = UnitBytes(text);
        const std::string_view unit = TrimSpace(text.substr(0, bytes));
        text.remove_prefix(bytes);
        const bool isLast = text.empty() || text.front() == '(';
        if (!isLast && unit.empty()) {
            // Two numbers in a row: only a whole one and a fraction belong together.
            const auto fraction = ReadFront(text);
            if (!fraction || text.substr(0, fraction->bytes).find('/') == std::string_view::npos ||
                std::floor(number->value) != number->value)
                return {};
        }
        scanned.hasComma = scanned.hasComma || number->hasComma;
        scanned.parts.push_back(
            {number->value, unit.ends_with(',') ? unit.substr(0, unit.size() - 1) : unit});
    }
    // "1 1/2 tsp": the whole number takes the unit of the fraction.
    for (std::size_t i = scanned.parts.size(); i-- > 1;)
        if (scanned.parts[i - 1].unit.empty()) scanned.parts[i - 1].unit = scanned.parts[i].unit;
    return scanned;
}

bool SaysUnknown(std::string_view text) {
    constexpr std::size_t kLongest = 16;
    if (text.size() > kLongest) return false;
    constexpr std::array<std::string_view, 15> kWords = {"-",    "--",  "---",       "null", "(null)",
                                                         "none", "n/a", "na",        "nil",  "unknown",
                                                         "nan",  "?",   "undefined", "inf",  "tbd"};
    // A unit may follow: "NaN SRM".
    const std::string_view word = text.substr(0, text.find(' '));
    return std::ranges::any_of(kWords, [&](std::string_view each) { return EqualAscii(each, word); });
}

// What a figure can be converted from.
std::optional<UnitKind> KindOf(FigureUnit unit) {
    switch (unit) {
        case FigureUnit::Plain:
            return std::nullopt;
        case FigureUnit::Percent:
            return UnitKind::Percent;
        case FigureUnit::Gravity:
        case FigureUnit::Potential:
            return UnitKind::Gravity;
        case FigureUnit::Kilograms:
            return UnitKind::Mass;
        case FigureUnit::Litres:
            return UnitKind::Volume;
        case FigureUnit::Celsius:
            return UnitKind::Temperature;
        case FigureUnit::Minutes:
        case FigureUnit::Days:
            return UnitKind::Time;
        case FigureUnit::Lovibond:
        case FigureUnit::Srm:
            return UnitKind::Colour;
        case FigureUnit::Ibus:
            return UnitKind::Bitterness;
        case FigureUnit::Volumes:
            return UnitKind::Carbonation;
        case FigureUnit::MilligramsPerLitre:
            return UnitKind::Concentration;
        case FigureUnit::Kilopascals:
            return UnitKind::Pressure;
    }
    return std::nullopt;
}

// Returns a value with its unit in the unit wanted.
double Converted(double value, const ForeignUnit& unit, FigureUnit wanted) {
    constexpr double kMinutesPerDay = 24 * 60;
    if (wanted == FigureUnit::Days) return unit.ToBase(value) / kMinutesPerDay;
    if (wanted != FigureUnit::Lovibond) return unit.ToBase(value);
    return unit.convert == SrmOfLovibond ? value : LovibondOfSrm(unit.ToBase(value));
}

bool IsThousandths(double gravity) {
    constexpr double kLeast = 900;
    constexpr double kHighest = 1300;
    return gravity >= kLeast && gravity <= kHighest;
}

// Brings a gravity to its scale. hasScale is true if a unit has said which one it is.
void ScaleGravity(ForeignFigure& figure, FigureUnit wanted, bool hasScale) {
    constexpr double kLeast = 0.9;
    constexpr double kHighest = 1.3;
    constexpr double kMostPlato = 40;
    constexpr double kMostPoints = 60;
    constexpr double kThousand = 1000;
    double value = *figure.value;
    const double before = value;
    if (IsThousandths(value))
        value /= kThousand;
    else if (!hasScale && wanted == FigureUnit::Potential && value > kHighest && value <= kMostPoints)
        value = 1 + value / kThousand;
    else if (!hasScale && wanted == FigureUnit::Gravity && value > kHighest && value <= kMostPlato)
        value = PlatoToSG(value);
    figure.isRescaled = value != before;
    figure.isImplausible = value != 0 && (value < kLeast || value > kHighest);
    if (value == 0 || figure.isImplausible)
        figure.value.reset();
    else
        figure.value = value;
}

// Returns the sum of all parts in the unit wanted; nothing if there are several and one has no known unit. A
// single part without one is taken as it stands, and so is "1038 P", which is in thousandths.
std::optional<double> SumOf(const std::vector<Part>& parts, UnitKind kind, FigureUnit wanted) {
    const auto value = [&](const Part& part, const ForeignUnit& unit) {
        if (kind == UnitKind::Gravity && IsThousandths(part.value)) return part.value;
        return Converted(part.value, unit, wanted);
    };
    double sum = 0;
    for (const Part& part : parts) {
        const ForeignUnit* const unit = FindUnit(kind, part.unit);
        if (unit == nullptr && parts.size() > 1 && !part.unit.empty()) return std::nullopt;
        sum += unit == nullptr ? part.value : value(part, *unit);
    }
    return sum;
}

// Fills all but the value and what depends on it.
Scanned Begin(ForeignFigure& figure, std::string_view text) {
    text = TrimSpace(text);
    figure.isEmpty = text.empty();
    figure.saysUnknown = SaysUnknown(text);
    if (figure.isEmpty || figure.saysUnknown) return {};
    constexpr std::size_t kLongest = 1000;
    Scanned scanned = text.size() > kLongest ? Scanned() : Scan(text);
    figure.isNoNumber = scanned.parts.empty();
    figure.hasComma = scanned.hasComma;
    if (!scanned.parts.empty()) figure.unitWritten = scanned.parts.front().unit;
    return scanned;
}

ForeignAmount::Of AmountKindOf(UnitKind kind) {
    if (kind == UnitKind::Mass) return ForeignAmount::Of::Mass;
    return kind == UnitKind::Volume ? ForeignAmount::Of::Volume : ForeignAmount::Of::Pieces;
}

// Takes a value unless it is beyond everything that brewing measures.
void TakeValue(ForeignFigure& figure, std::optional<double> value) {
    figure.isNoNumber = !value || !std::isfinite(*value) || std::abs(*value) > kMost;
    if (!figure.isNoNumber) figure.value = value;
}

}  // namespace

std::string_view TrimSpace(std::string_view text) {
    for (;;) {
        if (!text.empty() && IsSpace(text.front()))
            text.remove_prefix(1);
        else if (!text.empty() && IsSpace(text.back()))
            text.remove_suffix(1);
        else if (text.starts_with(kNoBreakSpace))
            text.remove_prefix(kNoBreakSpace.size());
        else if (text.ends_with(kNoBreakSpace))
            text.remove_suffix(kNoBreakSpace.size());
        else
            return text;
    }
}

ForeignFigure ReadFigure(std::string_view text, FigureUnit wanted, ZeroMeans zero) {
    ForeignFigure figure;
    const Scanned scanned = Begin(figure, text);
    if (scanned.parts.empty()) return figure;
    if (const auto kind = KindOf(wanted)) {
        figure.unit = FindUnit(*kind, figure.unitWritten);
        TakeValue(figure, SumOf(scanned.parts, *kind, wanted));
        if (figure.value && *kind == UnitKind::Gravity) ScaleGravity(figure, wanted, figure.unit != nullptr);
    } else {
        double sum = 0;
        for (const Part& part : scanned.parts) sum += part.value;
        // "5 (or 6)" is a number; "5 by 6" is none.
        const bool isOne = scanned.parts.size() == 1 || figure.unitWritten.empty();
        TakeValue(figure, isOne ? std::optional(sum) : std::nullopt);
    }
    if (figure.value == 0.0 && zero == ZeroMeans::Unknown) figure.value.reset();
    return figure;
}

ForeignAmountFigure ReadAmount(std::string_view text, ForeignAmount::Of unlessStated, ZeroMeans zero) {
    ForeignAmountFigure amount;
    ForeignFigure& figure = amount.figure;
    const Scanned scanned = Begin(figure, text);
    if (scanned.parts.empty()) return amount;
    figure.unit = FindAmountUnit(figure.unitWritten);
    const ForeignAmount::Of of = figure.unit != nullptr ? AmountKindOf(figure.unit->kind) : unlessStated;
    const FigureUnit wanted = of == ForeignAmount::Of::Mass ? FigureUnit::Kilograms : FigureUnit::Litres;
    const UnitKind kind = of == ForeignAmount::Of::Mass     ? UnitKind::Mass
                          : of == ForeignAmount::Of::Volume ? UnitKind::Volume
                                                            : UnitKind::Pieces;
    TakeValue(figure, SumOf(scanned.parts, kind, wanted));
    if (figure.value == 0.0 && zero == ZeroMeans::Unknown) figure.value.reset();
    if (figure.value) amount.amount = ForeignAmount{of, *figure.value, {}};
    return amount;
}

std::string WrittenAmount(std::string_view text) {
    const ForeignAmountFigure amount = ReadAmount(text, ForeignAmount::Of::Mass);
    if (!amount.amount || amount.figure.unit == nullptr) return {};
    std::string written;
    for (const char c : TrimSpace(text)) {
        if (!IsSpace(c))
            written += c;
        else if (!written.ends_with(' '))
            written += ' ';
    }
    return written;
}

std::string_view WordOf(FigureUnit unit) {
    switch (unit) {
        case FigureUnit::Plain:
            return "";
        case FigureUnit::Percent:
            return "percent";
        case FigureUnit::Gravity:
        case FigureUnit::Potential:
            return "(specific gravity)";
        case FigureUnit::Kilograms:
            return "kilograms";
        case FigureUnit::Litres:
            return "liters";
        case FigureUnit::Celsius:
            return "degrees Celsius";
        case FigureUnit::Minutes:
            return "minutes";
        case FigureUnit::Days:
            return "days";
        case FigureUnit::Lovibond:
            return "degrees Lovibond";
        case FigureUnit::Srm:
            return "SRM";
        case FigureUnit::Ibus:
            return "IBUs";
        case FigureUnit::Volumes:
            return "volumes of CO2";
        case FigureUnit::MilligramsPerLitre:
            return "mg/l";
        case FigureUnit::Kilopascals:
            return "kilopascals";
    }
    return "";
}

std::string Quoted(std::string_view text) {
    constexpr std::size_t kMostPoints = 40;
    text = TrimSpace(text);
    const std::size_t end = CodePointOffset(text, kMostPoints);
    std::string quoted = "\"";
    for (const char c : text.substr(0, end)) quoted += IsAscii(c) && c < ' ' ? ' ' : c;
    return quoted + (end < text.size() ? "...\"" : "\"");
}

void TellFigure(Findings& findings, const FigurePlace& place, std::string_view text,
                const ForeignFigure& figure, std::string_view unitWord) {
    const auto tell = [&](Severity severity, FindingCode code, const std::string& rest) {
        findings.Add({severity, code, std::string(place.recipe), std::string(place.place),
                      std::string(place.field) + " " + Quoted(text) + " " + rest});
    };
    if (figure.saysUnknown) tell(Severity::Note, FindingCode::NoNumber, "states nothing and was left out.");
    if (figure.isNoNumber)
        tell(Severity::Suspicious, FindingCode::NoNumber, "is not a usable number and was left out.");
    if (figure.isImplausible)
        tell(Severity::Suspicious, FindingCode::Implausible,
             "is not a gravity on any scale and was left out.");
    if (!figure.value || (!figure.hasComma && figure.unitWritten.empty() && !figure.isRescaled)) return;
    constexpr int kDecimals = 5;
    std::string read = FormatQuantity(*figure.value, kDecimals).text;
    if (!unitWord.empty()) read += " " + std::string(unitWord);
    if (figure.hasComma)
        tell(Severity::Repaired, FindingCode::DecimalComma,
             "is written with a comma and was read as " + read + ".");
    if (!figure.unitWritten.empty() && figure.unit != nullptr)
        tell(Severity::Repaired, FindingCode::UnitInNumber, "has a unit in it and was read as " + read + ".");
    else if (!figure.unitWritten.empty())
        tell(Severity::Approximated, FindingCode::UnitInNumber,
             "has something unknown behind the number and was read as " + read + ".");
    else if (figure.isRescaled)
        tell(Severity::Repaired, FindingCode::UnitInNumber,
             "is on another scale and was read as " + read + ".");
}

}  // namespace tw
