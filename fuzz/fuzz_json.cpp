// Reads any text as JSON, as BeerJSON and as BeerXML. What is JSON is written and read back as the same
// value; what breaks off can be salvaged. Reading raises nothing but an Error of the program, and every
// amount and figure that it gives is finite.
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <optional>
#include <string_view>

#include "exchange/BeerJsonReader.h"
#include "exchange/BeerXmlReader.h"
#include "exchange/FileKind.h"
#include "values/Json.h"

namespace {

using namespace tw;

void Require(bool holds) {
    if (!holds) std::abort();
}

void RequireAmount(const std::optional<ForeignAmount>& amount) {
    Require(!amount || (std::isfinite(amount->value) && amount->value >= 0));
}

void RequireFigure(std::optional<double> figure) {
    Require(!figure || (std::isfinite(*figure) && *figure >= 0));
}

void RequireSound(const ForeignFile& file) {
    for (const ForeignRecipe& recipe : file.recipes) {
        RequireAmount(recipe.batchSize);
        RequireFigure(recipe.stated.og);
        for (const ForeignFermentable& line : recipe.fermentables) RequireAmount(line.amount);
        for (const ForeignHop& line : recipe.hops) {
            RequireAmount(line.amount);
            RequireFigure(line.alpha);
            RequireFigure(line.minutes);
        }
        for (const ForeignMisc& line : recipe.miscs) RequireAmount(line.amount);
    }
}

void ReadJson(std::string_view text) {
    try {
        const Json value = ParseJson(text).value;
        for (const JsonLayout layout : {JsonLayout::Compact, JsonLayout::Indented})
            Require(ParseJson(DumpJson(value, layout)).value == value);
    } catch (const Error& error) {
        Require(error.Number() == kJsonNumber || error.Number() == kJsonLimitNumber);
    }
}

template <class ReadAll>
void ReadFile(std::string_view text, ReadAll readAll) {
    ForeignFile file;
    try {
        readAll(text, file);
    } catch (const Error&) {
        return;
    }
    RequireSound(file);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    KindOf(text);
    ReadJson(text);
    ReadFile(text, ReadBeerJson);
    ReadFile(text, ReadBeerXml);
    return 0;
}
