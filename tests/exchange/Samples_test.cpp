// Real files of other programs, which are not part of the project. The environment variable TW_EXCHANGE_FILES
// names a folder with a subfolder "samples"; without it these tests are skipped. A second reader, which knows
// nothing but names, amounts, uses and times, reads each file on its own.
#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <map>
#include <pugixml.hpp>
#include <sstream>

#include "exchange/BeerJsonReader.h"
#include "exchange/BeerXmlReader.h"
#include "exchange/FileKind.h"
#include "values/Json.h"

namespace tw {
namespace {

using Of = ForeignAmount::Of;
using Use = ForeignUse;

struct Line {
    std::string name;
    std::optional<double> amount;  // kilograms, litres or pieces
    std::optional<Use> use;
    std::optional<double> minutes;
};

struct Lines {
    std::vector<Line> fermentables, hops, yeasts, miscs, waters;
};

struct Recipe : Lines {
    std::string name;
    std::optional<double> litres;
};

struct SampleFile {
    std::vector<Recipe> recipes;
    Lines library;
};

std::string Stripped(std::string text) {
    const char* const kSpace = " \t\r\n";
    text.erase(0, text.find_first_not_of(kSpace));
    text.erase(text.find_last_not_of(kSpace) + 1);
    return text;
}

// A comma is the decimal mark.
std::optional<double> WholeNumber(std::string text) {
    std::ranges::replace(text, ',', '.');
    char* end = nullptr;
    const double value = std::strtod(text.c_str(), &end);
    if (text.empty() || end != text.c_str() + text.size() || value < 0) return std::nullopt;
    return value;
}

Line XmlLine(pugi::xml_node element) {
    static const std::map<std::string, Use> uses = {
        {"Boil", Use::Boil},           {"Dry Hop", Use::Primary},
        {"Mash", Use::Mash},           {"First Wort", Use::FirstWort},
        {"Aroma", Use::Aroma},         {"Primary", Use::Primary},
        {"Secondary", Use::Secondary}, {"Bottling", Use::Package}};
    Line line;
    line.name = Stripped(element.child_value("NAME"));
    line.amount = WholeNumber(Stripped(element.child_value("AMOUNT")));
    line.minutes = WholeNumber(Stripped(element.child_value("TIME")));
    const auto use = uses.find(Stripped(element.child_value("USE")));
    if (use != uses.end()) line.use = use->second;
    return line;
}

Lines XmlLines(pugi::xml_node parent, const std::string& path) {
    const auto all = [&](const std::string& set, const std::string& tag) {
        std::vector<Line> lines;
        for (const auto& each : parent.select_nodes((path + set + "/" + tag).c_str()))
            lines.push_back(XmlLine(each.node()));
        return lines;
    };
    return {all("FERMENTABLES", "FERMENTABLE"), all("HOPS", "HOP"), all("YEASTS", "YEAST"),
            all("MISCS", "MISC"), all("WATERS", "WATER")};
}

SampleFile ReadXmlAgain(const std::string& text) {
    pugi::xml_document document;
    EXPECT_TRUE(document.load_buffer(text.data(), text.size(), pugi::parse_default, pugi::encoding_utf8));
    SampleFile sample;
    sample.library = XmlLines(document, "/");
    for (const auto& each : document.select_nodes("//RECIPE")) {
        Recipe recipe{XmlLines(each.node(), ""), Stripped(each.node().child_value("NAME")), {}};
        recipe.litres = WholeNumber(Stripped(each.node().child_value("BATCH_SIZE")));
        if (recipe.litres == 0.0) recipe.litres.reset();
        sample.recipes.push_back(recipe);
    }
    return sample;
}

std::optional<double> JsonQuantity(const Json* quantity, const std::map<std::string, double>& factors) {
    if (quantity == nullptr) return std::nullopt;
    const auto factor = factors.find(*quantity->Find("unit")->AsText());
    EXPECT_NE(factor, factors.end()) << *quantity->Find("unit")->AsText();
    return *quantity->Find("value")->AsNumber() * factor->second;
}

const std::map<std::string, double> kAmounts = {{"kg", 1},
                                                {"g", 1e-3},
                                                {"lb", 0.45359237},
                                                {"oz", 0.028349523125},
                                                {"mg", 1e-6},
                                                {"l", 1},
                                                {"ml", 1e-3},
                                                {"gal", 3.785411784},
                                                {"qt", 0.946352946},
                                                {"tsp", 0.00492892159375},
                                                {"tbsp", 0.01478676478125},
                                                {"cup", 0.2365882365},
                                                {"floz", 0.0295735295625},
                                                {"pkg", 1},
                                                {"each", 1},
                                                {"unit", 1},
                                                {"1", 1},
                                                {"dimensionless", 1}};
const std::map<std::string, double> kTimes = {
    {"sec", 1.0 / 60}, {"min", 1}, {"hr", 60}, {"day", 1440}, {"week", 10080}};

std::vector<Line> JsonLines(const Json* list) {
    static const std::map<std::string, Use> uses = {{"add_to_mash", Use::Mash},
                                                    {"add_to_boil", Use::Boil},
                                                    {"add_to_fermentation", Use::Primary},
                                                    {"add_to_package", Use::Package}};
    std::vector<Line> lines;
    if (list == nullptr) return lines;
    for (const Json& each : *list->AsArray()) {
        Line line{*each.Find("name")->AsText(), JsonQuantity(each.Find("amount"), kAmounts), {}, {}};
        if (const Json* const timing = each.Find("timing")) {
            if (const Json* const use = timing->Find("use")) line.use = uses.at(*use->AsText());
            line.minutes = JsonQuantity(timing->Find("time"), kTimes);
            if (line.use != Use::Boil && timing->Find("duration") != nullptr)
                line.minutes = JsonQuantity(timing->Find("duration"), kTimes);
        }
        lines.push_back(line);
    }
    return lines;
}

SampleFile ReadJsonAgain(const std::string& text) {
    const Json root = ParseJson(text).value;
    SampleFile sample;
    const Json& beer = *root.Find("beerjson");
    sample.library = {JsonLines(beer.Find("fermentables")), JsonLines(beer.Find("hop_varieties")),
                      JsonLines(beer.Find("cultures")), JsonLines(beer.Find("miscellaneous_ingredients")),
                      JsonLines(beer.Find("profiles"))};
    if (beer.Find("recipes") == nullptr) return sample;
    for (const Json& each : *beer.Find("recipes")->AsArray()) {
        const Json& list = *each.Find("ingredients");
        Recipe recipe{
            {JsonLines(list.Find("fermentable_additions")), JsonLines(list.Find("hop_additions")),
             JsonLines(list.Find("culture_additions")), JsonLines(list.Find("miscellaneous_additions")),
             JsonLines(list.Find("water_additions"))},
            Stripped(*each.Find("name")->AsText()),
            JsonQuantity(each.Find("batch_size"), kAmounts)};
        if (recipe.litres == 0.0) recipe.litres.reset();
        sample.recipes.push_back(recipe);
    }
    return sample;
}

void ExpectNear(std::optional<double> read, std::optional<double> expected, const std::string& what) {
    constexpr double kTolerance = 5e-4;
    EXPECT_EQ(read.has_value(), expected.has_value()) << what;
    EXPECT_LE(std::abs(read.value_or(0) - expected.value_or(0)), kTolerance * expected.value_or(0)) << what;
}

std::optional<double> ValueOf(const std::optional<ForeignAmount>& amount) {
    return amount ? std::optional(amount->value) : std::nullopt;
}

template <class Foreign>
void ExpectLines(const std::vector<Foreign>& read, const std::vector<Line>& expected,
                 const std::string& where) {
    ASSERT_EQ(read.size(), expected.size()) << where;
    for (std::size_t i = 0; i < read.size(); ++i) {
        const std::string what = where + " " + std::to_string(i + 1);
        EXPECT_EQ(read[i].name, Stripped(expected[i].name)) << what;
        if constexpr (requires { read[i].litres; })
            ExpectNear(read[i].litres, expected[i].amount, what);
        else
            ExpectNear(ValueOf(read[i].amount), expected[i].amount, what);
        if constexpr (requires { read[i].use; }) {
            EXPECT_EQ(read[i].use, expected[i].use) << what;
            ExpectNear(read[i].minutes, expected[i].minutes, what);
        }
    }
}

template <class Owner>
void ExpectAllLines(const Owner& read, const Lines& expected, const std::string& where) {
    ExpectLines(read.fermentables, expected.fermentables, where + ": fermentables");
    ExpectLines(read.hops, expected.hops, where + ": hops");
    ExpectLines(read.yeasts, expected.yeasts, where + ": yeasts");
    ExpectLines(read.miscs, expected.miscs, where + ": miscs");
    ExpectLines(read.waters, expected.waters, where + ": waters");
}

void ExpectSame(const ForeignFile& read, const SampleFile& expected, const std::string& where) {
    ASSERT_EQ(read.recipes.size(), expected.recipes.size()) << where;
    for (std::size_t i = 0; i < read.recipes.size(); ++i) {
        const std::string recipe = where + " recipe " + std::to_string(i + 1);
        const std::string& name = expected.recipes[i].name;
        EXPECT_EQ(read.recipes[i].name, name.empty() ? "Untitled" : name) << recipe;
        ExpectNear(ValueOf(read.recipes[i].batchSize), expected.recipes[i].litres, recipe);
        ExpectAllLines(read.recipes[i], expected.recipes[i], recipe);
    }
    ExpectAllLines(read, expected.library, where + " library");
    for (const Finding& finding : read.findings.All()) {
        EXPECT_NE(finding.severity, Severity::Refused) << where << ": " << finding.text;
        EXPECT_NE(finding.code, FindingCode::Truncated) << where << ": " << finding.text;
    }
}

std::vector<std::filesystem::path> SampleFiles() {
    std::vector<std::filesystem::path> files;
    const char* const folder = std::getenv("TW_EXCHANGE_FILES");
    if (folder == nullptr) return files;
    for (const auto& entry : std::filesystem::directory_iterator(std::filesystem::path(folder) / "samples"))
        if (entry.path().extension() != ".tsv") files.push_back(entry.path());
    std::ranges::sort(files);
    return files;
}

std::string ContentOf(const std::filesystem::path& path) {
    std::ifstream stream(path, std::ios::binary);
    std::ostringstream content;
    content << stream.rdbuf();
    return content.str();
}

TEST(Samples, AreReadAsASecondReaderReadsThem) {
    const auto files = SampleFiles();
    if (files.empty()) GTEST_SKIP() << "TW_EXCHANGE_FILES names no folder with samples";
    for (const auto& path : files) {
        const std::string text = ContentOf(path);
        const std::string name = path.filename().string();
        ForeignFile file;
        if (path.extension() == ".xml") {
            EXPECT_EQ(KindOf(text), FileKind::BeerXml) << name;
            ReadBeerXml(text, file);
            ExpectSame(file, ReadXmlAgain(text), name);
        } else {
            EXPECT_EQ(KindOf(text), FileKind::BeerJson) << name;
            ReadBeerJson(text, file);
            ExpectSame(file, ReadJsonAgain(text), name);
        }
    }
}

// What the file has of a recipe stands in its fragment: reading that alone gives the same recipe.
TEST(Samples, FragmentsHoldTheWholeRecipe) {
    const auto files = SampleFiles();
    if (files.empty()) GTEST_SKIP() << "TW_EXCHANGE_FILES names no folder with samples";
    for (const auto& path : files) {
        ForeignFile file;
        const bool isXml = path.extension() == ".xml";
        const std::string text = ContentOf(path);
        isXml ? ReadBeerXml(text, file) : ReadBeerJson(text, file);
        for (const ForeignRecipe& recipe : file.recipes) {
            ForeignFile again;
            if (isXml)
                ReadBeerXml(recipe.fragment, again);
            else
                ReadBeerJson(R"({"beerjson": {"recipes": [)" + recipe.fragment + "]}}", again);
            ASSERT_EQ(again.recipes.size(), 1U) << path;
            EXPECT_EQ(again.recipes[0].name, recipe.name);
            EXPECT_EQ(again.recipes[0].notes, recipe.notes);
            EXPECT_EQ(again.recipes[0].keptAside, recipe.keptAside);
            EXPECT_EQ(again.recipes[0].fragment, recipe.fragment);
            EXPECT_EQ(again.recipes[0].hops.size(), recipe.hops.size());
        }
    }
}

}  // namespace
}  // namespace tw
