// Damages sound files in every way at every place, alone and in pairs: the mended file states the same facts,
// and a finding tells of the damage.
#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <map>
#include <pugixml.hpp>
#include <random>
#include <set>
#include <sstream>

#include "exchange/AsciiCase.h"
#include "exchange/TextEncoding.h"
#include "exchange/XmlMend.h"
#include "exchange/XmlVocabulary.h"
#include "platform/Error.h"

namespace tw {
namespace {

// All kinds of records, indented as programs write them.
constexpr std::string_view kWhole = R"(<?xml version="1.0" encoding="UTF-8"?>
<!-- written for this test -->
<RECIPES>
 <RECIPE>
  <NAME>Grüner Käfer &amp; Söhne</NAME>
  <VERSION>1</VERSION>
  <TYPE>All Grain</TYPE>
  <STYLE>
   <NAME>Weißbier</NAME>
   <CATEGORY>Wheat</CATEGORY>
   <OG_MIN>1.044</OG_MIN>
   <OG_MAX>1.052</OG_MAX>
   <NOTES>cloudy</NOTES>
  </STYLE>
  <BREWER>Anna &amp; Jo</BREWER>
  <EQUIPMENT>
   <NAME>Kettle</NAME>
   <BOIL_SIZE>26.5</BOIL_SIZE>
   <BATCH_SIZE>20</BATCH_SIZE>
  </EQUIPMENT>
  <BATCH_SIZE>20.5</BATCH_SIZE>
  <BOIL_SIZE>26</BOIL_SIZE>
  <BOIL_TIME>60</BOIL_TIME>
  <HOPS>
   <HOP>
    <NAME>Perle</NAME>
    <ALPHA>7.1</ALPHA>
    <AMOUNT>0.025</AMOUNT>
    <USE>Boil</USE>
    <TIME>60</TIME>
   </HOP>
   <HOP own="x">
    <NAME>Hersbrucker</NAME>
    <AMOUNT>0.03</AMOUNT>
    <NOTES>Two lines &lt; three,
the second one.</NOTES>
   </HOP>
  </HOPS>
  <FERMENTABLES>
   <FERMENTABLE>
    <NAME>Wheat malt</NAME>
    <AMOUNT>3.2</AMOUNT>
    <OWN_FIELD>7</OWN_FIELD>
    <YIELD>81</YIELD>
   </FERMENTABLE>
  </FERMENTABLES>
  <MISCS>
   <MISC>
    <NAME>Peel</NAME>
    <USE_FOR>Taste</USE_FOR>
   </MISC>
  </MISCS>
  <YEASTS>
   <YEAST>
    <NAME>Own &amp; old</NAME>
    <ATTENUATION>75</ATTENUATION>
   </YEAST>
  </YEASTS>
  <WATERS>
   <WATER>
    <NAME>Well</NAME>
    <CALCIUM>80</CALCIUM>
   </WATER>
  </WATERS>
  <MASH>
   <NAME>Steps</NAME>
   <GRAIN_TEMP>18</GRAIN_TEMP>
   <MASH_STEPS>
    <MASH_STEP>
     <NAME>Rest</NAME>
     <STEP_TEMP>65</STEP_TEMP>
    </MASH_STEP>
    <MASH_STEP>
     <NAME>Out</NAME>
     <STEP_TEMP>78</STEP_TEMP>
    </MASH_STEP>
   </MASH_STEPS>
   <PH>5.4</PH>
  </MASH>
  <NOTES>Best in May.
Drink soon.</NOTES>
  <OG>1.050</OG>
  <FG>1.012</FG>
 </RECIPE>
</RECIPES>
)";

// Several recipes without a blank between their tags, with what both a record and the recipe may have in
// front.
constexpr std::string_view kDense =
    "<RECIPES><RECIPE><NAME>One</NAME><NOTES>a</NOTES><TYPE>Extract</TYPE><OG>1.04</OG><STYLE><NAME>Ale"
    "</NAME><TYPE>Ale</TYPE></STYLE><HOPS><HOP><NAME>A&amp;B</NAME><TIME>5</TIME></HOP><HOP><NAME>C</NAME>"
    "<TIME>6</TIME></HOP></HOPS><YEASTS></YEASTS></RECIPE><RECIPE><NAME>Two</NAME><NOTES>b</NOTES><TYPE>"
    "Extract</TYPE><MASH><NAME>M</NAME><PH>5</PH></MASH><FERMENTABLES><FERMENTABLE><NAME>D</NAME><AMOUNT>2"
    "</AMOUNT></FERMENTABLE></FERMENTABLES></RECIPE><RECIPE><NAME>Three</NAME><HOPS/></RECIPE></RECIPES>";

constexpr std::string_view kLower =
    "<hops>\r\n\t<hop>\r\n\t\t<name>Zw\xC3\xB6lf</name>\r\n\t\t<alpha>12</alpha>\r\n\t</hop>\r\n\t<hop>\r\n"
    "\t\t<name>Elf</name>\r\n\t\t<own_word>w</own_word>\r\n\t\t<beta>4</beta>\r\n\t</hop>\r\n</hops>\r\n";

std::string Trimmed(std::string_view text) {
    constexpr std::string_view kBlank = " \t\r\n";
    const std::size_t begin = text.find_first_not_of(kBlank);
    return begin == std::string_view::npos
               ? std::string()
               : std::string(text.substr(begin, text.find_last_not_of(kBlank) + 1 - begin));
}

using Facts = std::vector<std::string>;

std::string TextOf(const pugi::xml_node& node) {
    std::string text;
    for (const pugi::xml_node& child : node.children())
        if (child.type() == pugi::node_pcdata || child.type() == pugi::node_cdata) text += child.value();
    return Trimmed(text);
}

void Collect(const pugi::xml_node& node, const std::string& path, Facts& facts) {
    std::map<std::string, int> count;
    for (const pugi::xml_node& child : node.children()) {
        if (child.type() != pugi::node_element) continue;
        const std::string name = child.name();
        const bool isAround = path.empty() && (name == "RECIPES" || name == "HOPS" || name == "RECORD_SETS");
        const std::string own = isAround ? "" : path + "/" + name + std::to_string(++count[name]);
        if (const std::string text = TextOf(child); !text.empty()) facts.push_back(own + "=" + text);
        Collect(child, own, facts);
    }
}

struct Mended {
    Facts facts;  // every text with its path; the sets at the top are left out of it
    std::set<FindingCode> codes;
};

Mended MendedFrom(const std::string& file) {
    Findings findings;
    const std::string text = MendXml(file, findings);
    pugi::xml_document document;
    EXPECT_TRUE(document.load_buffer(text.data(), text.size(), pugi::parse_full)) << text;
    Mended mended;
    Collect(document, "", mended.facts);
    for (const Finding& each : findings.All()) mended.codes.insert(each.code);
    return mended;
}

// Returns the first fact that differs; empty if none does.
std::string Difference(const Facts& mended, const Facts& sound) {
    for (std::size_t i = 0; i < std::max(mended.size(), sound.size()); ++i) {
        const std::string& ours = i < mended.size() ? mended[i] : std::string("nothing");
        const std::string& theirs = i < sound.size() ? sound[i] : std::string("nothing");
        if (ours != theirs) return ours + " instead of " + theirs;
    }
    return {};
}

std::string MendedText(const std::string& file) {
    Findings findings;
    return MendXml(file, findings);
}

// One change of a file, which breaks the format but not what is meant.
struct Damage {
    std::string what;
    std::size_t at;
    std::size_t length;  // of what is replaced
    std::string by;
    std::vector<FindingCode> codes;  // one of them must be found
};

struct Tag {
    std::size_t at;
    std::string name;
    std::size_t end;
    bool closes;
};

std::vector<Tag> TagsOf(std::string_view file) {
    std::vector<Tag> tags;
    for (std::size_t at = file.find('<'); at != std::string_view::npos; at = file.find('<', at + 1)) {
        const bool closes = file[at + 1] == '/';
        const std::size_t begin = at + (closes ? 2 : 1);
        std::size_t end = begin;
        while (end < file.size() &&
               (std::isalnum(static_cast<unsigned char>(file[end])) != 0 || file[end] == '_'))
            ++end;
        if (end > begin)
            tags.push_back(
                {at, std::string(file.substr(begin, end - begin)), file.find('>', end) + 1, closes});
    }
    return tags;
}

void AddSpellings(std::vector<Damage>& damages, const Tag& tag) {
    const std::size_t begin = tag.at + 2;
    std::set<std::string> seen{tag.name};
    const auto add = [&](const std::string& spelt) {
        if (!spelt.empty() && seen.insert(spelt).second)
            damages.push_back({"/" + spelt, begin, tag.name.size(), spelt, {FindingCode::MisspeltClose}});
    };
    for (std::size_t i = 0; i < tag.name.size(); ++i) {
        std::string spelt = tag.name;
        add(spelt.erase(i, 1));
        spelt = tag.name;
        add(spelt.insert(i, 1, tag.name[i]));
        spelt = tag.name;
        if (i + 1 < spelt.size()) std::swap(spelt[i], spelt[i + 1]);
        add(spelt);
    }
}

void AddTagDamages(std::vector<Damage>& damages, std::string_view file) {
    const std::vector<Tag> tags = TagsOf(file);
    for (const Tag& tag : tags) {
        const std::string own(file.substr(tag.at, tag.end - tag.at));
        if (FindTag(tag.name) != nullptr && !HasSmallLetter(tag.name)) {
            std::string lower = tag.name;
            for (char& c : lower) c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
            damages.push_back({"case of " + own,
                               tag.at + (tag.closes ? 2 : 1),
                               lower.size(),
                               lower,
                               {FindingCode::TagCase}});
        }
        if (!tag.closes) continue;
        const bool isLast = tag.at == tags.back().at;
        damages.push_back({"without " + own,
                           tag.at,
                           own.size(),
                           "",
                           {isLast ? FindingCode::Truncated : FindingCode::UnclosedTag}});
        damages.push_back({"twice " + own, tag.at, 0, own, {FindingCode::StrayClose}});
        AddSpellings(damages, tag);
    }
}

// Every damage at every place.
std::vector<Damage> DamagesOf(std::string_view file) {
    std::vector<Damage> damages;
    AddTagDamages(damages, file);
    const auto replaceAll = [&](std::string_view what, const std::string& by, FindingCode code) {
        for (std::size_t at = file.find(what); at != std::string_view::npos; at = file.find(what, at + 1))
            damages.push_back({std::string(what) + " as " + by, at, what.size(), by, {code}});
    };
    replaceAll("&amp;", "&", FindingCode::BareAmpersand);
    replaceAll("&lt;", "<", FindingCode::BareLessThan);
    replaceAll("\xC3\xBC", "&uuml;", FindingCode::HtmlEntity);
    replaceAll("\xC3\xA4", "&auml;", FindingCode::HtmlEntity);
    const std::size_t first = TagsOf(file).front().at;
    damages.push_back(
        {"DOCTYPE", first, 0, "<!DOCTYPE A SYSTEM 'a' [<!ENTITY b \"</c>\">]>", {FindingCode::Doctype}});
    damages.push_back({"words in front", 0, 0, "Saved today, at <3 o'clock\n", {FindingCode::Wrapped}});
    for (std::size_t at = 0; at < file.size(); at += 3) {
        const bool isWithin = (static_cast<unsigned char>(file[at]) & 0xC0) == 0x80;
        if (!isWithin)
            damages.push_back({"control character at " + std::to_string(at),
                               at,
                               0,
                               "\x02",
                               {FindingCode::ControlCharacter}});
    }
    return damages;
}

std::string Damaged(std::string_view file, std::vector<Damage> damages) {
    std::ranges::sort(damages, std::ranges::greater(), &Damage::at);
    std::string damaged(file);
    for (const Damage& each : damages) damaged.replace(each.at, each.length, each.by);
    return damaged;
}

void ExpectMended(const std::string& damaged, const Facts& facts, const std::vector<Damage>& damages) {
    const Mended mended = MendedFrom(damaged);
    std::string what;
    for (const Damage& each : damages) what += each.what + " at " + std::to_string(each.at) + "; ";
    EXPECT_EQ(Difference(mended.facts, facts), "") << what;
    for (const Damage& each : damages)
        EXPECT_TRUE(
            std::ranges::any_of(each.codes, [&](FindingCode code) { return mended.codes.contains(code); }))
            << what << " finds no " << WordOf(each.codes.front());
}

// True if both change the same tag.
bool Overlap(const Damage& one, const Damage& other) {
    constexpr std::size_t kApart = 2;  // "</"
    return one.at <= other.at + other.length + kApart && other.at <= one.at + one.length + kApart;
}

TEST(Damage, EachAlone) {
    for (const std::string_view file : {kWhole, kDense, kLower}) {
        const Facts facts = MendedFrom(std::string(file)).facts;
        ASSERT_GT(facts.size(), 4U);
        for (const Damage& damage : DamagesOf(file)) ExpectMended(Damaged(file, {damage}), facts, {damage});
    }
}

// Two damages of closing tags may look like one of another kind: "</HOP></HOPS>" without the first and
// without the "S" of the second is "</HOP>", as if the second were missing.
Damage Loosely(Damage damage) {
    const std::vector<FindingCode> ofTags = {FindingCode::MisspeltClose, FindingCode::UnclosedTag,
                                             FindingCode::StrayClose, FindingCode::Truncated};
    if (std::ranges::find(ofTags, damage.codes.front()) != ofTags.end()) damage.codes = ofTags;
    return damage;
}

TEST(Damage, InPairs) {
    std::mt19937 random(20240501);
    for (const std::string_view file : {kWhole, kDense, kLower}) {
        const Facts facts = MendedFrom(std::string(file)).facts;
        const std::vector<Damage> all = DamagesOf(file);
        for (int i = 0; i < 1500; ++i) {
            const Damage& one = all[random() % all.size()];
            const Damage& other = all[random() % all.size()];
            if (Overlap(one, other)) continue;
            ExpectMended(Damaged(file, {one, other}), facts, {Loosely(one), Loosely(other)});
        }
    }
}

// How many texts are whole before the cut: those whose closing tag is.
std::size_t WholeBefore(std::string_view file, std::size_t cut) {
    std::size_t count = 0;
    std::size_t begin = 0;
    bool isLeaf = false;
    for (const Tag& tag : TagsOf(file)) {
        const bool holdsText = tag.closes && isLeaf && !Trimmed(file.substr(begin, tag.at - begin)).empty();
        if (holdsText && tag.end <= cut) ++count;
        isLeaf = !tag.closes;
        begin = tag.end;
    }
    return count;
}

void ExpectCut(std::string_view file, std::size_t cut, const Facts& facts) {
    const std::vector<Tag> tags = TagsOf(file);
    const std::string begin(file.substr(0, cut));
    if (cut < tags.front().end) {
        Findings findings;
        EXPECT_THROW(MendXml(begin, findings), Error) << cut;
        return;
    }
    const Mended mended = MendedFrom(begin);
    const std::size_t whole = WholeBefore(file, cut);
    const Facts wholeFacts(facts.begin(), facts.begin() + static_cast<std::ptrdiff_t>(whole));
    EXPECT_EQ(Difference(mended.facts, wholeFacts), "") << cut;
    EXPECT_EQ(mended.codes.contains(FindingCode::Truncated), cut < tags.back().end) << cut;
}

TEST(Damage, CutAtEveryByte) {
    for (const std::string_view file : {kWhole, kDense, kLower}) {
        const Facts facts = MendedFrom(std::string(file)).facts;
        ASSERT_EQ(WholeBefore(file, file.size()), facts.size());
        for (std::size_t cut = 0; cut < file.size(); ++cut) ExpectCut(file, cut, facts);
    }
}

std::string Latin1(std::string_view utf8) {
    std::string bytes;
    for (std::size_t i = 0; i < utf8.size(); ++i) {
        const auto lead = static_cast<unsigned char>(utf8[i]);
        if (lead < 0x80)
            bytes += utf8[i];
        else
            bytes += static_cast<char>(((lead & 0x03) << 6) | (utf8[++i] & 0x3F));
    }
    return bytes;
}

std::string Utf16(std::string_view utf8, bool bigEndian) {
    std::string bytes;
    for (const char c : Latin1(utf8)) bytes += bigEndian ? std::string{'\0', c} : std::string{c, '\0'};
    return bytes;
}

std::string WithHeader(std::string_view file, const std::string& encoding) {
    const std::size_t end = file.starts_with("<?xml") ? file.find("?>") + 2 : 0;
    const std::string header =
        encoding.empty() ? "" : "<?xml version=\"1.0\" encoding=\"" + encoding + "\"?>";
    return header + std::string(file.substr(end));
}

TEST(Damage, EveryEncoding) {
    for (const std::string_view file : {kWhole, kLower}) {
        const Facts facts = MendedFrom(std::string(file)).facts;
        const auto expect = [&](const std::string& bytes, bool guessed, const char* what) {
            const Mended mended = MendedFrom(bytes);
            EXPECT_EQ(mended.facts, facts) << what;
            EXPECT_EQ(mended.codes.contains(FindingCode::Encoding), guessed) << what;
        };
        expect(WithHeader(file, ""), false, "UTF-8 without a header");
        expect("\xEF\xBB\xBF" + std::string(file), false, "UTF-8 with a mark");
        expect(WithHeader(file, "ISO-8859-1"), true, "UTF-8 that calls itself Latin-1");
        expect(WithHeader(file, "System"), true, "UTF-8 of an unknown name");
        expect(Latin1(WithHeader(file, "ISO-8859-1")), false, "Latin-1");
        expect(Latin1(WithHeader(file, "UTF-8")), true, "Latin-1 that calls itself UTF-8");
        expect(Latin1(WithHeader(file, "")), true, "Latin-1 without a header");
        expect("\xFF\xFE" + Utf16(WithHeader(file, "UTF-16"), false), false, "UTF-16");
        expect("\xFE\xFF" + Utf16(WithHeader(file, ""), true), false, "UTF-16 without a header");
        expect(Utf16(WithHeader(file, "UTF-16"), true), false, "UTF-16 without a mark");
        expect(Utf16(WithHeader(file, ""), false), true, "UTF-16 without either");
    }
}

std::string WithoutRoot(std::string file) {
    const std::vector<Tag> tags = TagsOf(file);
    file.erase(tags.back().at, tags.back().end - tags.back().at);
    return file.erase(tags.front().at, tags.front().end - tags.front().at);
}

TEST(Damage, WithoutItsRoot) {
    for (const std::string_view file : {kWhole, kDense}) {
        const Mended mended = MendedFrom(WithoutRoot(std::string(file)));
        EXPECT_EQ(mended.facts, MendedFrom(std::string(file)).facts);
        EXPECT_TRUE(mended.codes.contains(FindingCode::RecipeAsRoot));
        EXPECT_EQ(mended.codes.contains(FindingCode::SeveralRoots), file == kDense);
    }
}

TEST(Damage, AllTagsInAnotherCase) {
    std::string file(kWhole);
    for (const Tag& tag : TagsOf(kWhole))
        for (std::size_t at = tag.at; at < tag.end; ++at)
            file[at] = static_cast<char>(std::tolower(static_cast<unsigned char>(file[at])));
    // The tag that BeerXML does not know stays as it is written.
    std::string whole(kWhole);
    for (std::size_t at = whole.find("OWN_FIELD"); at != std::string::npos; at = whole.find("OWN_FIELD"))
        whole.replace(at, 9, "own_field");
    const Mended mended = MendedFrom(file);
    EXPECT_EQ(mended.facts, MendedFrom(whole).facts);
    EXPECT_EQ(mended.codes, std::set{FindingCode::TagCase});
}

// Where no rule can know what was meant: which one was chosen.
TEST(Damage, WhatCannotBeKnown) {
    // NOTES behind a STYLE without its closing tag, when neither it nor the recipe has NOTES and all stands
    // in one line, stays in the STYLE.
    EXPECT_EQ(MendedFrom("<RECIPES><RECIPE><STYLE><NAME>s</NAME><NOTES>n</NOTES></RECIPE></RECIPES>").facts,
              (Facts{"/RECIPE1/STYLE1/NAME1=s", "/RECIPE1/STYLE1/NOTES1=n"}));
    // A word in brackets in a text that nothing closes is a field of that name if the record may have one.
    EXPECT_EQ(MendedFrom("<HOPS><HOP><NOTES>wait <TIME> minutes</HOP></HOPS>").facts,
              (Facts{"/HOP1/NOTES1=wait", "/HOP1/TIME1=minutes"}));
}

class DamagedSamples : public testing::Test {
  protected:
    void SetUp() override {
        const char* folder = std::getenv("TW_EXCHANGE_FILES");
        if (folder == nullptr) GTEST_SKIP() << "TW_EXCHANGE_FILES does not name the folder of sample files";
        for (const auto& entry :
             std::filesystem::directory_iterator(std::filesystem::path(folder) / "samples"))
            if (entry.path().extension() == ".xml") paths_.push_back(entry.path());
        std::ranges::sort(paths_);
        ASSERT_FALSE(paths_.empty());
    }
    static std::string Read(const std::filesystem::path& path) {
        std::ifstream file(path, std::ios::binary);
        std::ostringstream bytes;
        bytes << file.rdbuf();
        return bytes.str();
    }

    std::vector<std::filesystem::path> paths_;
};

TEST_F(DamagedSamples, KeepTheirFactsAndTags) {
    for (const auto& path : paths_) {
        const std::string bytes = Read(path);
        pugi::xml_document document;
        const std::string text = Decode(bytes).text;
        const auto result =
            document.load_buffer(text.data(), text.size(), pugi::parse_full, pugi::encoding_utf8);
        const Mended mended = MendedFrom(bytes);
        for (const FindingCode code : mended.codes)
            std::cout << path.filename() << " " << WordOf(code) << "\n";
        if (!result) continue;
        Facts facts;
        Collect(document, "", facts);
        EXPECT_EQ(mended.facts, facts) << path;
    }
}

TEST_F(DamagedSamples, RandomDamagesAndPairs) {
    std::mt19937 random(7);
    for (const auto& path : paths_) {
        SCOPED_TRACE(path);
        const std::string file = MendedText(Read(path));
        const Facts facts = MendedFrom(file).facts;
        const std::vector<Damage> all = DamagesOf(file);
        for (int i = 0; i < 40; ++i) {
            const Damage& one = all[random() % all.size()];
            const Damage& other = all[random() % all.size()];
            ExpectMended(Damaged(file, {one}), facts, {one});
            if (!Overlap(one, other))
                ExpectMended(Damaged(file, {one, other}), facts, {Loosely(one), Loosely(other)});
        }
        // A record with text of its own states it before its fields, wherever it stands.
        if (WholeBefore(file, file.size()) != facts.size()) continue;
        for (int i = 0; i < 20; ++i) ExpectCut(file, random() % file.size(), facts);
    }
}

}  // namespace
}  // namespace tw
