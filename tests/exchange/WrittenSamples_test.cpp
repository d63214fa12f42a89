// Real files of other programs, written again: valid, with everything that they had, and from one format into
// the other and back. They are not part of the project; TW_EXCHANGE_FILES names their folder.
#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <sstream>
#include <sys/wait.h>
#include <unistd.h>
#include <utility>

#include "exchange/BeerJsonReader.h"
#include "exchange/BeerJsonWriter.h"
#include "exchange/BeerXmlReader.h"
#include "exchange/BeerXmlWriter.h"
#include "exchange/Originals.h"
#include "exchange/XmlMend.h"
#include "exchange/XmlSchema.h"
#include "values/Json.h"

namespace tw::test {
namespace {

struct Sample {
    std::string name;
    bool isXml = false;
    ForeignFile file;
};

std::vector<Sample> Samples() {
    std::vector<Sample> samples;
    const char* const folder = std::getenv("TW_EXCHANGE_FILES");
    if (folder == nullptr) return samples;
    for (const auto& entry : std::filesystem::directory_iterator(std::filesystem::path(folder) / "samples")) {
        const std::string extension = entry.path().extension();
        if (extension == ".tsv") continue;
        std::ostringstream content;
        content << std::ifstream(entry.path(), std::ios::binary).rdbuf();
        Sample sample{entry.path().filename(), extension == ".xml", {}};
        if (sample.isXml)
            ReadBeerXml(MendXml(content.str(), sample.file.findings), sample.file);
        else
            ReadBeerJson(content.str(), sample.file);
        samples.push_back(std::move(sample));
    }
    return samples;
}

ExportedRecipe WithoutOriginal(ForeignRecipe facts) {
    facts.fragment.clear();
    ExportedRecipe recipe;
    recipe.facts = std::move(facts);
    return recipe;
}

// Returns what is wrong with the files by the schema of BeerJSON, as the tool for it says.
struct Checked {
    int status = 0;  // 77 if the check could not be made
    std::string faults;
};
Checked CheckJson(const std::vector<std::string>& texts) {
    std::string folder = "/tmp/tunwright-json-XXXXXX";
    if (mkdtemp(folder.data()) == nullptr) return {1, "No folder for the files can be made."};
    std::string command = "/usr/bin/python3 '" EXCHANGE_TESTS "/check_beerjson.py' '" +
                          std::string(std::getenv("TW_EXCHANGE_FILES")) + "/beerjson-schema'";
    for (std::size_t i = 0; i < texts.size(); ++i) {
        const std::string path = folder + "/" + std::to_string(i) + ".json";
        std::ofstream(path, std::ios::binary) << texts[i];
        command += " '" + path + "'";
    }
    Checked checked;
    FILE* const output = popen((command + " 2>&1").c_str(), "r");
    std::array<char, 4096> buffer{};
    while (const std::size_t size = std::fread(buffer.data(), 1, buffer.size(), output))
        checked.faults.append(buffer.data(), size);
    const int status = pclose(output);
    checked.status = WIFEXITED(status) ? WEXITSTATUS(status) : 1;
    std::filesystem::remove_all(folder);
    return checked;
}

std::string WriteOne(const ExportedRecipe& recipe, bool asXml) {
    Findings findings;
    return asXml ? WriteBeerXml(std::span(&recipe, 1), findings)
                 : WriteBeerJson(std::span(&recipe, 1), findings);
}

TEST(WrittenSamples, SatisfyBothSchemas) {
    const auto samples = Samples();
    if (samples.empty()) GTEST_SKIP() << "TW_EXCHANGE_FILES names no folder with samples";
    std::vector<std::string> json;
    for (const Sample& sample : samples) {
        for (const ForeignRecipe& facts : sample.file.recipes) {
            const ExportedRecipe fresh = WithoutOriginal(facts);
            EXPECT_EQ(XmlSchemaErrors(WriteOne(fresh, true)), "") << sample.name;
            json.push_back(WriteOne(fresh, false));
            if (!sample.isXml) json.push_back(WriteOne(Original(facts), false));
        }
    }
    const Checked checked = CheckJson(json);
    if (checked.status == 77) GTEST_SKIP() << checked.faults;
    EXPECT_EQ(checked.status, 0) << checked.faults;
}

// Tells each member of an original that is missing in what was written.
void ExpectWithin(const Json& original, const Json& written, const std::string& path) {
    if (const Json::Object* const members = original.AsObject()) {
        for (const JsonMember& member : *members) {
            const Json* const found = written.Find(member.name);
            if (found == nullptr)
                ADD_FAILURE() << path << "/" << member.name << " is missing: " << DumpJson(member.value);
            else
                ExpectWithin(member.value, *found, path + "/" + member.name);
        }
    } else if (const Json::Array* const elements = original.AsArray()) {
        const Json::Array* const others = written.AsArray();
        ASSERT_TRUE(others != nullptr && others->size() == elements->size()) << path;
        for (std::size_t i = 0; i < elements->size(); ++i) ExpectWithin((*elements)[i], (*others)[i], path);
    } else {
        EXPECT_EQ(DumpJson(written), DumpJson(original)) << path;
    }
}

TEST(WrittenSamples, ValidJsonComesBack) {
    const auto samples = Samples();
    if (samples.empty()) GTEST_SKIP() << "TW_EXCHANGE_FILES names no folder with samples";
    for (const Sample& sample : samples) {
        if (sample.isXml) continue;
        for (const ForeignRecipe& facts : sample.file.recipes) {
            const std::string original =
                R"({"beerjson": {"version": 1, "recipes": [)" + facts.fragment + "]}}";
            const Checked checked = CheckJson({original});
            if (checked.status == 77) GTEST_SKIP() << checked.faults;
            // What the schema forbids is mended or left out.
            if (checked.status != 0) continue;
            const Json written = ParseJson(WriteOne(Original(facts), false)).value;
            ExpectWithin(ParseJson(facts.fragment).value,
                         written.Find("beerjson")->Find("recipes")->AsArray()->front(), sample.name);
        }
    }
}

// What a use is after BeerJSON and BeerXML have said it: they share these.
ForeignUse Shared(ForeignUse use) {
    if (use == ForeignUse::Whirlpool) return ForeignUse::Aroma;
    return use == ForeignUse::Secondary ? ForeignUse::Primary : use;
}

void ExpectSameAmount(const std::optional<ForeignAmount>& before, const std::optional<ForeignAmount>& after,
                      const std::string& where) {
    const double value = before ? before->value : 0;
    ASSERT_TRUE(after) << where;
    EXPECT_NEAR(after->value, value, 2e-4 * value) << where;
}

template <class Line>
void ExpectSameLines(const std::vector<Line>& before, const std::vector<Line>& after,
                     const std::string& where) {
    ASSERT_EQ(after.size(), before.size()) << where;
    for (std::size_t i = 0; i < before.size(); ++i) {
        const std::string place = where + ": " + before[i].name;
        EXPECT_EQ(after[i].name, before[i].name) << where;
        ExpectSameAmount(before[i].amount, after[i].amount, place);
        if constexpr (requires { before[i].use; }) {
            const auto use = before[i].use.value_or(ForeignUse::Boil);
            ASSERT_TRUE(after[i].use) << place;
            EXPECT_EQ(Shared(*after[i].use), Shared(use)) << place;
            EXPECT_NEAR(after[i].minutes.value_or(0), before[i].minutes.value_or(0), 1.0 / 60) << place;
        }
    }
}

TEST(WrittenSamples, XmlKeepsItsLinesThroughJsonAndBack) {
    const auto samples = Samples();
    if (samples.empty()) GTEST_SKIP() << "TW_EXCHANGE_FILES names no folder with samples";
    for (const Sample& sample : samples) {
        if (!sample.isXml) continue;
        for (const ForeignRecipe& facts : sample.file.recipes) {
            ForeignFile json;
            ReadBeerJson(WriteOne(WithoutOriginal(facts), false), json);
            ASSERT_EQ(json.recipes.size(), 1U);
            ForeignFile xml;
            ReadBeerXml(WriteOne(WithoutOriginal(json.recipes[0]), true), xml);
            ASSERT_EQ(xml.recipes.size(), 1U);
            for (const ForeignRecipe& after : {json.recipes[0], xml.recipes[0]}) {
                EXPECT_EQ(after.name, facts.name);
                ExpectSameLines(facts.fermentables, after.fermentables, sample.name);
                ExpectSameLines(facts.hops, after.hops, sample.name);
                ExpectSameLines(facts.yeasts, after.yeasts, sample.name);
                ExpectSameLines(facts.miscs, after.miscs, sample.name);
                EXPECT_EQ(after.waters.size(), facts.waters.size());
                if (facts.batchSize) {
                    EXPECT_NEAR(after.batchSize->value, facts.batchSize->value,
                                2e-4 * facts.batchSize->value);
                }
                EXPECT_EQ(after.efficiency.value_or(0), facts.efficiency.value_or(0)) << sample.name;
                EXPECT_NEAR(after.stated.og.value_or(0), facts.stated.og.value_or(0), 1e-6) << sample.name;
                EXPECT_NEAR(after.stated.ibu.value_or(0), facts.stated.ibu.value_or(0), 1e-4) << sample.name;
            }
        }
    }
}

// Of all damages, every so many-th is tried: each field of each kind is among them in some file.
constexpr std::size_t kEvery = 11;

// Calls visit for every value within value, which it may replace.
template <class Visit>
void VisitAll(Json& value, const Visit& visit) {
    if (Json::Object* const members = value.AsObject())
        for (JsonMember& member : *members) {
            VisitAll(member.value, visit);
            visit(member.value);
        }
    if (Json::Array* const elements = value.AsArray())
        for (Json& element : *elements) {
            VisitAll(element, visit);
            visit(element);
        }
}

TEST(WrittenSamples, AnyDamagedValueOfAJsonOriginalIsWrittenValid) {
    const auto samples = Samples();
    if (samples.empty()) GTEST_SKIP() << "TW_EXCHANGE_FILES names no folder with samples";
    std::vector<std::string> written;
    std::size_t count = 0;
    for (const Sample& sample : samples) {
        if (sample.isXml || sample.file.recipes.empty()) continue;
        std::vector<ExportedRecipe> damaged;
        Json recipe = ParseJson(sample.file.recipes[0].fragment).value;
        for (const char* replacement : {"null", "\"odd\"", "-1.5", "[]", "{}", "[7]", "true"}) {
            VisitAll(recipe, [&](Json& value) {
                if (++count % kEvery != 0) return;
                const Json sound = std::exchange(value, ParseJson(replacement).value);
                ForeignFile file;
                ReadBeerJson(R"({"beerjson": {"version": 1, "recipes": [)" + DumpJson(recipe) + "]}}", file);
                for (const ForeignRecipe& facts : file.recipes) damaged.push_back(Original(facts));
                value = sound;
            });
        }
        Findings findings;
        written.push_back(WriteBeerJson(damaged, findings));
    }
    const Checked checked = CheckJson(written);
    if (checked.status == 77) GTEST_SKIP() << checked.faults;
    EXPECT_EQ(checked.status, 0) << checked.faults.substr(0, 4000);
}

TEST(WrittenSamples, AnyDamagedFieldOfAnXmlOriginalIsWrittenValid) {
    const auto samples = Samples();
    if (samples.empty()) GTEST_SKIP() << "TW_EXCHANGE_FILES names no folder with samples";
    std::size_t count = 0;
    for (const Sample& sample : samples) {
        if (!sample.isXml || sample.file.recipes.empty()) continue;
        std::vector<ExportedRecipe> damaged;
        pugi::xml_document recipe;
        ASSERT_TRUE(recipe.load_string(sample.file.recipes[0].fragment.c_str()));
        for (const char* replacement : {"", "odd", "NaN", "-1.5", "1e400", "10 %", "<A>1</A>"}) {
            for (const pugi::xpath_node& found : recipe.select_nodes("//*[not(*)]")) {
                if (++count % kEvery != 0) continue;
                pugi::xml_node element = found.node();
                const std::string sound = element.child_value();
                element.remove_children();
                element.append_buffer(replacement, std::string(replacement).size());
                std::ostringstream text;
                recipe.save(text);
                ForeignFile file;
                ReadBeerXml("<RECIPES>" + text.str().substr(text.str().find("<RECIPE")) + "</RECIPES>", file);
                for (const ForeignRecipe& facts : file.recipes) damaged.push_back(Original(facts));
                element.remove_children();
                element.append_child(pugi::node_pcdata).set_value(sound.c_str());
            }
        }
        Findings findings;
        EXPECT_EQ(XmlSchemaErrors(WriteBeerXml(damaged, findings)).substr(0, 2000), "") << sample.name;
    }
}

}  // namespace
}  // namespace tw::test
