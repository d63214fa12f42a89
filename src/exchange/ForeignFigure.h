// Figures as other programs write them: with units, with a comma as the decimal mark, with one of many words
// for "unknown".
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "exchange/Finding.h"
#include "exchange/ForeignRecipe.h"
#include "exchange/ForeignUnits.h"

namespace tw {

// What a figure measures, and in which unit a format expects it.
enum class FigureUnit : std::uint8_t {
    Plain,  // a number without a unit: a count, a pH
    Percent,
    Gravity,    // specific gravity
    Potential,  // specific gravity of one pound in one gallon
    Kilograms,
    Litres,
    Celsius,
    Minutes,
    Days,
    Lovibond,  // the colour of a fermentable
    Srm,       // the colour of beer
    Ibus,
    Volumes,  // of CO2
    MilligramsPerLitre,
    Kilopascals
};

enum class ZeroMeans : std::uint8_t { Zero, Unknown };

struct ForeignFigure {
    // In the unit that was asked for; not negative, but for a temperature converted from Fahrenheit. Absent
    // if the text is empty, states none, or states a zero that means "unknown".
    std::optional<double> value;
    std::string_view unitWritten;       // what stands behind the number, trimmed; of the text that was read
    const ForeignUnit* unit = nullptr;  // the unit that it means; nullptr if it is none of the right kind
    bool isEmpty = false;               // nothing but blanks
    bool saysUnknown = false;           // "-", "null", "unknown", "NaN" and the like
    bool isNoNumber = false;            // any other text that states no usable number
    bool hasComma = false;              // a decimal comma, or marks between thousands
    bool isRescaled = false;            // a gravity in thousandths, points or degrees Plato without a unit
    bool isImplausible = false;         // a gravity that is none on any scale
};

// Reads a figure: "1.5", "1,5", "1.234,5", "1e-3", "+5", "9.3 % ", "68 F", "1/2 tsp", "9 lb 4 oz", "2.4>".
// Of two kinds of marks the last is the decimal one; a single comma is decimal. Negative numbers, infinities
// and numbers beyond a thousand million are no usable ones. A unit of the right kind is converted; what else
// stands behind the number is ignored. Gravities of 900 to 1,300 are thousandths, above 1.3 to 40 degrees
// Plato; potentials above 1.3 to 60 are points a pound. A gravity of zero is always unknown.
ForeignFigure ReadFigure(std::string_view text, FigureUnit wanted, ZeroMeans zero = ZeroMeans::Zero);

struct ForeignAmountFigure {
    ForeignFigure figure;
    std::optional<ForeignAmount> amount;  // without its written text
};
// Reads an amount. Its unit says whether it is a mass, a volume or a number of pieces; without one it is what
// unlessStated says, in kilograms, litres or pieces.
ForeignAmountFigure ReadAmount(std::string_view text, ForeignAmount::Of unlessStated,
                               ZeroMeans zero = ZeroMeans::Zero);

// Returns the text, trimmed and with its blanks made single, if it holds an amount and its unit: "9.25 lb".
// Returns "" for any other text.
std::string WrittenAmount(std::string_view text);

// Where a figure stands.
struct FigurePlace {
    std::string_view recipe;  // as in a Finding
    std::string_view place;
    std::string_view field;  // its tag or key
};
// Tells what is odd about the figure that was read from text; nothing if it is as the format wants it or
// empty. unitWord is the unit of a value that was converted, in words: "kilograms".
void TellFigure(Findings& findings, const FigurePlace& place, std::string_view text,
                const ForeignFigure& figure, std::string_view unitWord);
// Returns the unit in words for a reader: "kilograms"; empty for a plain number.
std::string_view WordOf(FigureUnit unit);

// Returns text between quotation marks, in one line and cut to about 40 characters.
std::string Quoted(std::string_view text);
// Returns text without blanks, tabs, line ends and no-break spaces at both ends.
std::string_view TrimSpace(std::string_view text);

}  // namespace tw
