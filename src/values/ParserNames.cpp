// Finds the parsers and validators by name.
#include <algorithm>
#include <iterator>

#include "values/QuantityParsers.h"

namespace tw {
namespace {

template <typename Function>
struct Named {
    std::string_view name;
    Function function;
};

constexpr Named<Parser> kParsers[] = {
    {"ParseReal", ParseReal},
    {"ParseWholeNumber", ParseWholeNumber},
    {"ParseFraction", ParseFraction},
    {"ParseSG", ParseSG},
    {"ParsePlato", ParsePlato},
    {"ParseGallons", ParseGallons},
    {"ParseQuarts", ParseQuarts},
    {"ParsePints", ParsePints},
    {"ParseCups", ParseCups},
    {"ParseFluidOunces", ParseFluidOunces},
    {"ParseTablespoons", ParseTablespoons},
    {"ParseTeaspoons", ParseTeaspoons},
    {"ParseLiters", ParseLiters},
    {"ParseMilliliters", ParseMilliliters},
    {"ParsePounds", ParsePounds},
    {"ParseOunces", ParseOunces},
    {"ParseGrams", ParseGrams},
    {"ParseKilograms", ParseKilograms},
    {"ParsePercent", ParsePercent},
    {"ParseAAU", ParseAAU},
    {"ParseIBU", ParseIBU},
    {"ParseCO2Volumes", ParseCO2Volumes},
    {"ParseMinutes", ParseMinutes},
    {"ParseHours", ParseHours},
    {"ParseSeconds", ParseSeconds},
    {"ParseFahrenheit", ParseFahrenheit},
    {"ParseCelsius", ParseCelsius},
    {"ParseKelvin", ParseKelvin},
    {"ParsePSI", ParsePSI},
    {"ParseKPa", ParseKPa},
    {"ParsePa", ParsePa},
    {"ParseAtm", ParseAtm},
    {"ParseOuncesAnyUnit", ParseOuncesAnyUnit},
};

constexpr Named<Validator> kValidators[] = {
    {"ValidateVolume", ValidateVolume},     {"ValidateGravity", ValidateGravity},
    {"ValidatePercent", ValidatePercent},   {"ValidatePounds", ValidatePounds},
    {"ValidateGrams", ValidateGrams},       {"ValidateOunces", ValidateOunces},
    {"ValidateMinutes", ValidateMinutes},   {"ValidateTemperature", ValidateTemperature},
    {"ValidatePressure", ValidatePressure},
};

template <typename Table>
auto Find(const Table& table, std::string_view name) -> decltype(std::begin(table)->function) {
    const auto found = std::find_if(std::begin(table), std::end(table),
                                    [name](const auto& entry) { return entry.name == name; });
    return found == std::end(table) ? nullptr : found->function;
}

}  // namespace

Parser FindParser(std::string_view name) {
    return Find(kParsers, name);
}

Validator FindValidator(std::string_view name) {
    return Find(kValidators, name);
}

}  // namespace tw
