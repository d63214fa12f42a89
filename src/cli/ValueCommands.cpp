// Commands on values, without a recipe or a database.
#include <cstdio>
#include <limits>

#include "calc/BeerColor.h"
#include "calc/Hops.h"
#include "cli/Command.h"
#include "cli/ScriptFormat.h"
#include "values/Converter.h"
#include "values/NumberText.h"
#include "values/QuantityParsers.h"

namespace tw {
namespace {

void PrintNumber(Session& session, double number) {
    session.Out().Line(NumberText(Finite(number)));
}

void Parse(Session& session, Arguments& arguments) {
    const std::string name = arguments.Word("PARSER");
    const Parser parser = FindParser(name);
    if (parser == nullptr) throw ScriptError("unknown parser '" + name + "'");
    if (const std::optional<double> number = parser(arguments.Text()))
        PrintNumber(session, *number);
    else
        session.Out().Line("no");
}

void Validate(Session& session, Arguments& arguments) {
    const std::string name = arguments.Word("VALIDATOR");
    const Validator validator = FindValidator(name);
    if (validator == nullptr) throw ScriptError("unknown validator '" + name + "'");
    const Reading<double> number = validator(arguments.Text());
    if (number) return PrintNumber(session, *number);
    ShowRefusal(session.Messages(), number.Why());
    session.Out().Line("no");
}

void Format(Session& session, Arguments& arguments) {
    const double number = arguments.Number("NUMBER");
    session.Out().Text(FormatNumber(number, arguments.Text()));
}

void Quantity(Session& session, Arguments& arguments) {
    constexpr int kAny = std::numeric_limits<int>::max();
    const int decimals = arguments.Integer("DECIMALS", -kAny, kAny);
    const double number = arguments.Number("NUMBER");
    arguments.End();
    session.Out().Text(FormatQuantity(number, decimals).text);
}

void Plato(Session& session, Arguments& arguments) {
    const double sg = arguments.Number("SG");
    arguments.End();
    PrintNumber(session, SGToPlato(sg));
}

void Gravity(Session& session, Arguments& arguments) {
    const double plato = arguments.Number("PLATO");
    arguments.End();
    PrintNumber(session, PlatoToSG(plato));
}

void Srm(Session& session, Arguments& arguments) {
    const double hcu = arguments.Number("HCU");
    arguments.End();
    if (hcu < 0) throw ScriptError("HCU must not be negative");
    PrintNumber(session, HCUToSRM(hcu));
}

void ShowRgb(Session& session, Arguments& arguments) {
    const double hcu = arguments.Number("HCU");
    arguments.End();
    session.Out().Line(ColorText(ColorTable().HCUToColor(hcu)));
}

void Utilisation(Session& session, Arguments& arguments) {
    const double gravity = arguments.Number("GRAVITY");
    const double minutes = arguments.Number("MINUTES");
    arguments.End();
    if (minutes < 0) throw ScriptError("MINUTES must not be negative");
    const UtilisationFigures percent = UtilisationAt(gravity, minutes);
    session.Out().Line(NumberText(Finite(percent.tinseth)) + ' ' + NumberText(Finite(percent.rager)) + ' ' +
                       NumberText(Finite(percent.garetz)));
}

constexpr Command kCommands[] = {
    {"parse", "PARSER TEXT", "the number that a parser reads, or no", Parse},
    {"validate", "VALIDATOR TEXT", "the number that a validator accepts, or no after its box", Validate},
    {"format", "NUMBER PATTERN", "the number in a number pattern", Format},
    {"quantity", "DECIMALS NUMBER", "the number as the program writes amounts", Quantity},
    {"plato", "SG", "degrees Plato of a specific gravity", Plato},
    {"gravity", "PLATO", "specific gravity of degrees Plato", Gravity},
    {"srm", "HCU", "SRM of homebrew colour units", Srm},
    {"rgb", "HCU", "the colour shown for homebrew colour units", ShowRgb},
    {"utilisation", "GRAVITY MINUTES", "hop utilisation by Tinseth, Rager and Garetz in percent",
     Utilisation},
};

}  // namespace

std::span<const Command> CommandsOnValues() {
    return kCommands;
}

}  // namespace tw
