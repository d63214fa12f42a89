#include "exchange/BeerXmlReader.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <pugixml.hpp>
#include <string>
#include <utility>
#include <vector>

#include "exchange/AsciiCase.h"
#include "exchange/BeerXmlRecord.h"
#include "exchange/ExchangeLimits.h"
#include "exchange/ForeignPlace.h"

namespace tw {
namespace {

using Of = ForeignAmount::Of;

constexpr std::string_view kFormat = "BeerXML";

ForeignFermentable ReadFermentable(BeerXmlRecord& record) {
    using Type = ForeignFermentable::Type;
    ForeignFermentable read;
    read.name = record.Text("NAME");
    read.type = record.Word("TYPE", FermentableTypeOfWord);
    read.amount = record.Amount("AMOUNT", "DISPLAY_AMOUNT", Of::Mass);
    read.yield = record.Figure("YIELD");
    read.potential = record.Figure("POTENTIAL");
    read.lovibond = record.Figure("COLOR");
    // Programs that do not know a grain write zeros for both.
    const bool isGrain = !read.type || *read.type == Type::Grain;
    if (isGrain && !read.yield && read.lovibond == 0.0) read.lovibond.reset();
    read.recommendMash = record.Boolean("RECOMMEND_MASH");
    read.afterBoil = record.Boolean("ADD_AFTER_BOIL").value_or(false);
    read.origin = record.Text("ORIGIN");
    read.supplier = record.Text("SUPPLIER");
    read.notes = record.Text("NOTES");
    return read;
}

ForeignHop ReadHop(BeerXmlRecord& record) {
    ForeignHop read;
    read.name = record.Text("NAME");
    read.alpha = record.Figure("ALPHA");
    read.amount = record.Amount("AMOUNT", "DISPLAY_AMOUNT", Of::Mass);
    read.useWritten = record.Text("USE");
    read.use = record.Word("USE", UseOfWord);
    read.minutes = record.Figure("TIME");
    read.formWritten = record.Text("FORM");
    read.form = record.Word("FORM", HopFormOfWord);
    read.origin = record.Text("ORIGIN");
    read.notes = record.Text("NOTES");
    read.beta = record.Figure("BETA");
    return read;
}

ForeignYeast ReadYeast(BeerXmlRecord& record) {
    ForeignYeast read;
    read.name = record.Text("NAME");
    read.laboratory = record.Text("LABORATORY");
    read.productId = record.Text("PRODUCT_ID");
    read.type = record.FreeWord("TYPE");
    read.form = record.FreeWord("FORM");
    read.amount = record.WeightOrVolume();
    read.attenuation = record.Figure("ATTENUATION");
    read.minCelsius = record.Figure("MIN_TEMPERATURE");
    read.maxCelsius = record.Figure("MAX_TEMPERATURE");
    read.flocculation = record.FreeWord("FLOCCULATION");
    read.notes = record.Text("NOTES");
    read.secondary = record.Boolean("ADD_TO_SECONDARY").value_or(false);
    return read;
}

ForeignMisc ReadMisc(BeerXmlRecord& record) {
    ForeignMisc read;
    read.name = record.Text("NAME");
    read.type = record.FreeWord("TYPE");
    read.useWritten = record.Text("USE");
    read.use = record.Word("USE", UseOfWord);
    read.minutes = record.Figure("TIME");
    read.amount = record.WeightOrVolume();
    record.TellGuessedVolume(read.amount);
    read.useFor = record.Text("USE_FOR");
    read.notes = record.Text("NOTES");
    return read;
}

ForeignWater ReadWater(BeerXmlRecord& record) {
    ForeignWater read;
    read.name = record.Text("NAME");
    read.litres = record.Figure("AMOUNT");
    read.calcium = record.Figure("CALCIUM");
    read.bicarbonate = record.Figure("BICARBONATE");
    read.sulfate = record.Figure("SULFATE");
    read.chloride = record.Figure("CHLORIDE");
    read.sodium = record.Figure("SODIUM");
    read.magnesium = record.Figure("MAGNESIUM");
    read.ph = record.Figure("PH");
    read.notes = record.Text("NOTES");
    return read;
}

ForeignStyle ReadStyle(BeerXmlRecord& record) {
    ForeignStyle read;
    read.name = record.Text("NAME");
    read.category = record.Text("CATEGORY");
    read.categoryNumber = record.Text("CATEGORY_NUMBER");
    read.letter = record.Text("STYLE_LETTER");
    read.guide = record.Text("STYLE_GUIDE");
    read.type = record.FreeWord("TYPE");
    read.og = record.Range("OG_MIN", "OG_MAX");
    read.fg = record.Range("FG_MIN", "FG_MAX");
    read.ibu = record.Range("IBU_MIN", "IBU_MAX");
    read.srm = record.Range("COLOR_MIN", "COLOR_MAX");
    read.volumes = record.Range("CARB_MIN", "CARB_MAX");
    read.abv = record.Range("ABV_MIN", "ABV_MAX");
    read.notes = record.Text("NOTES");
    return read;
}

std::string NameOf(pugi::xml_node element) {
    for (const pugi::xml_node child : element.children())
        if (EqualAscii(child.name(), "NAME")) return TrimmedText(child);
    return {};
}

// Cuts elements out of the text of their document.
class ElementText {
  public:
    // REQUIRES: text outlives this; isWhole tells whether the document was read to its end.
    ElementText(std::string_view text, bool isWhole) : text_(text), isWhole_(isWhole) {}

    // Returns the element as it stands in the text. Of a damaged document it is written anew instead, without
    // comments.
    std::string Of(pugi::xml_node element) const {
        const auto from = element.offset_debug();
        if (!isWhole_ || from < 1) return Written(element);
        // The end: behind the start tag of the last element within, every end tag ends one element more.
        pugi::xml_node last = element;
        std::size_t open = 1;
        for (pugi::xml_node inner = LastElement(last); inner; inner = LastElement(inner), ++open)
            last = inner;
        std::size_t at = EndOfTag(static_cast<std::size_t>(last.offset_debug()));
        if (at >= 2 && at <= text_.size() && text_[at - 2] == '/') --open;
        while (open > 0) {
            at = text_.find('<', at);
            if (at == std::string_view::npos) return Written(element);
            if (text_.substr(at).starts_with("</")) --open;
            at = EndOfMarkup(at);
        }
        const auto begin = static_cast<std::size_t>(from) - 1;
        return std::string(text_.substr(begin, at - begin));
    }

  private:
    struct Writer : pugi::xml_writer {
        std::string out;
        void write(const void* data, std::size_t size) override {
            out.append(static_cast<const char*>(data), size);
        }
    };

    static std::string Written(pugi::xml_node element) {
        Writer writer;
        element.print(writer, "", pugi::format_raw, pugi::encoding_utf8);
        return writer.out;
    }
    static pugi::xml_node LastElement(pugi::xml_node node) {
        pugi::xml_node last = node.last_child();
        while (last && last.type() != pugi::node_element) last = last.previous_sibling();
        return last;
    }
    std::size_t Behind(std::string_view mark, std::size_t at) const {
        const auto found = text_.find(mark, at);
        return found == std::string_view::npos ? text_.size() : found + mark.size();
    }
    // Returns the place behind a start tag or end tag. Attributes may contain ">".
    std::size_t EndOfTag(std::size_t at) const {
        char quote = 0;
        for (; at < text_.size(); ++at) {
            const char c = text_[at];
            if (quote != 0)
                quote = c == quote ? '\0' : quote;
            else if (c == '"' || c == '\'')
                quote = c;
            else if (c == '>')
                return at + 1;
        }
        return at;
    }
    std::size_t EndOfMarkup(std::size_t at) const {
        const std::string_view rest = text_.substr(at);
        if (rest.starts_with("<!--")) return Behind("-->", at);
        if (rest.starts_with("<![CDATA[")) return Behind("]]>", at);
        if (rest.starts_with("<?")) return Behind("?>", at);
        return EndOfTag(at);
    }

    std::string_view text_;
    bool isWhole_;
};

// The lists of a recipe or of a library, which have the same names.
struct Lists {
    std::vector<ForeignFermentable>& fermentables;
    std::vector<ForeignHop>& hops;
    std::vector<ForeignYeast>& yeasts;
    std::vector<ForeignMisc>& miscs;
    std::vector<ForeignWater>& waters;
};

template <class Owner>
Lists ListsOf(Owner& owner) {
    return {owner.fermentables, owner.hops, owner.yeasts, owner.miscs, owner.waters};
}

template <class Line>
void AddLine(std::vector<Line>& list, Line (*read)(BeerXmlRecord&), pugi::xml_node element,
             std::string_view placeWord, const XmlRecordRule& rule, ForeignTelling& telling) {
    BeerXmlRecord record(element, rule.record, telling,
                         LinePlace(placeWord, list.size() + 1, NameOf(element)),
                         std::string(rule.setTag) + "/" + std::string(rule.tag));
    list.push_back(read(record));
    record.End();
}

// Appends the line that an element is. Returns false for every other kind of record.
bool AddLine(const Lists& lists, const XmlRecordRule& rule, pugi::xml_node element, ForeignTelling& telling) {
    switch (rule.record) {
        case XmlRecord::Fermentable:
            AddLine(lists.fermentables, ReadFermentable, element, kFermentablesPlace, rule, telling);
            return true;
        case XmlRecord::Hop:
            AddLine(lists.hops, ReadHop, element, kHopsPlace, rule, telling);
            return true;
        case XmlRecord::Yeast:
            AddLine(lists.yeasts, ReadYeast, element, kYeastsPlace, rule, telling);
            return true;
        case XmlRecord::Misc:
            AddLine(lists.miscs, ReadMisc, element, kMiscsPlace, rule, telling);
            return true;
        case XmlRecord::Water:
            AddLine(lists.waters, ReadWater, element, kWatersPlace, rule, telling);
            return true;
        case XmlRecord::Recipe:
        case XmlRecord::Style:
        case XmlRecord::Equipment:
        case XmlRecord::Mash:
        case XmlRecord::MashStep:
            return false;
    }
    return false;
}

class Reader {
  public:
    Reader(const ElementText& text, ForeignFile& file)
        : text_(text), file_(file), library_(file.findings, {}) {}

    // Reads all records below a node. depth is the number of elements around it.
    void ReadAll(pugi::xml_node parent, std::size_t depth) {
        if (depth > kMostExchangeDepth) return;
        for (const pugi::xml_node child : parent.children()) {
            if (child.type() != pugi::node_element) continue;
            const XmlRecordRule* const rule = RecordOfTag(child.name());
            if (rule == nullptr) {
                ReadAll(child, depth + 1);
            } else {
                Count();
                ReadEntry(*rule, child);
            }
        }
    }

    // Tells what holds for the file as a whole.
    void End() {
        library_.TellUnknown(kFormat);
        if (!homeless_.empty())
            file_.findings.Add(
                {Severity::NotCarried, FindingCode::Carried, "", "",
                 "Records outside of recipes that have no place here were left out: " + homeless_ + "."});
    }

  private:
    void Count() {
        if (++count_ > kMostExchangeRecords) RefuseRecords();
    }

    void ReadEntry(const XmlRecordRule& rule, pugi::xml_node element) {
        if (rule.record == XmlRecord::Recipe) {
            ReadRecipe(element, 0);
        } else if (rule.record == XmlRecord::Style) {
            BeerXmlRecord record(element, rule.record, library_,
                                 LinePlace(kStylesPlace, file_.styles.size() + 1, NameOf(element)),
                                 "STYLES/STYLE");
            file_.styles.push_back(ReadStyle(record));
            record.End();
        } else if (!AddLine(ListsOf(file_), rule, element, library_)) {
            if (homeless_.find(rule.setTag) == std::string::npos)
                homeless_ += (homeless_.empty() ? "" : ", ") + std::string(rule.setTag);
        }
    }

    // Also reads recipes within it, which a lost end tag leaves there. nesting is the number of recipes
    // around it: of many, each would keep all within it as its text.
    void ReadRecipe(pugi::xml_node element, int nesting) {
        constexpr int kMostNested = 4;
        ForeignTelling telling(file_.findings, RecipeName(NameOf(element)));
        ForeignRecipe recipe;
        BeerXmlRecord record(element, XmlRecord::Recipe, telling, {}, "RECIPE");
        ReadFields(record, recipe);
        ReadFigures(record, recipe);
        if (const pugi::xml_node style = record.Element("STYLE"); style.first_child())
            recipe.style = ReadStyleOf(style, telling);
        for (const std::string_view set : {"HOPS", "FERMENTABLES", "MISCS", "YEASTS", "WATERS"})
            record.Element(set);
        std::vector<pugi::xml_node> nested;
        ReadLists(element, recipe, telling, 1, nested);
        record.End();
        Keep(record.Element("EQUIPMENT"), XmlRecord::Equipment, recipe, telling);
        Keep(record.Element("MASH"), XmlRecord::Mash, recipe, telling);
        telling.TellUnknown(kFormat);
        recipe.keptAside = telling.KeptAside();
        recipe.fragment = text_.Of(element);
        file_.recipes.push_back(std::move(recipe));
        for (const pugi::xml_node each : nested) {
            if (nesting >= kMostNested) continue;
            Count();
            ReadRecipe(each, nesting + 1);
        }
    }

    static void ReadFields(BeerXmlRecord& record, ForeignRecipe& recipe) {
        recipe.name = RecipeName(record.Text("NAME"));
        recipe.type = record.Word("TYPE", RecipeTypeOfWord);
        recipe.brewer = record.Text("BREWER");
        recipe.assistant = record.Text("ASST_BREWER");
        recipe.date = record.Text("DATE");
        recipe.notes = record.Text("NOTES");
        recipe.tasteNotes = record.Text("TASTE_NOTES");
        recipe.tasteRating = record.Figure("TASTE_RATING");
        recipe.primingSugar = record.Text("PRIMING_SUGAR_NAME");
        recipe.forced = record.Boolean("FORCED_CARBONATION");
        recipe.ibuMethod = record.Word("IBU_METHOD", IbuMethodOfWord);
    }

    static void ReadFigures(BeerXmlRecord& record, ForeignRecipe& recipe) {
        recipe.batchSize = record.Volume("BATCH_SIZE", "DISPLAY_BATCH_SIZE");
        recipe.boilSize = record.Volume("BOIL_SIZE", "DISPLAY_BOIL_SIZE");
        recipe.boilMinutes = record.Figure("BOIL_TIME");
        recipe.efficiency = record.Figure("EFFICIENCY");
        recipe.carbonation = record.Figure("CARBONATION");
        recipe.carbonationCelsius = record.Figure("CARBONATION_TEMP");
        recipe.stated.og = record.FirstFigure("EST_OG", "OG");
        recipe.stated.fg = record.FirstFigure("EST_FG", "FG");
        recipe.stated.abv = record.FirstFigure("EST_ABV", "ABV");
        recipe.stated.ibu = record.Figure("IBU");
        recipe.stated.srm = record.Figure("EST_COLOR");
    }

    static ForeignStyle ReadStyleOf(pugi::xml_node element, ForeignTelling& telling) {
        BeerXmlRecord record(element, XmlRecord::Style, telling, NamedPlace("Style", NameOf(element)),
                             "STYLE");
        ForeignStyle style = ReadStyle(record);
        record.End();
        return style;
    }

    // Reads the lines of a recipe, wherever in it they stand.
    void ReadLists(pugi::xml_node parent, ForeignRecipe& recipe, ForeignTelling& telling, std::size_t depth,
                   std::vector<pugi::xml_node>& nested) {
        if (depth > kMostExchangeDepth) return;
        for (const pugi::xml_node child : parent.children()) {
            if (child.type() != pugi::node_element) continue;
            const std::string_view tag = child.name();
            if (const XmlRecordRule* const rule = RecordOfTag(tag)) {
                ReadPart(*rule, child, recipe, telling, nested);
            } else if (RecordOfSet(tag) != nullptr || FieldOf(XmlRecord::Recipe, tag) == nullptr) {
                if (RecordOfSet(parent.name()) != nullptr && RecordOfSet(tag) == nullptr) {
                    telling.NoteUnknown(tag);
                    telling.KeepAside(std::string(parent.name()) + "/" + std::string(tag),
                                      child.offset_debug());
                }
                ReadLists(child, recipe, telling, depth + 1, nested);
            }
        }
    }

    void ReadPart(const XmlRecordRule& rule, pugi::xml_node element, ForeignRecipe& recipe,
                  ForeignTelling& telling, std::vector<pugi::xml_node>& nested) {
        if (rule.record == XmlRecord::Recipe) {
            nested.push_back(element);
        } else if (rule.record == XmlRecord::Style) {
            if (!recipe.style && element.first_child()) recipe.style = ReadStyleOf(element, telling);
        } else {
            Count();
            AddLine(ListsOf(recipe), rule, element, telling);
        }
    }

    // Takes what the recipe needs from a record that is kept aside as a whole, and checks the rest.
    static void Keep(pugi::xml_node element, XmlRecord kind, ForeignRecipe& recipe, ForeignTelling& telling) {
        if (!element.first_child()) return;
        const bool isEquipment = kind == XmlRecord::Equipment;
        BeerXmlRecord record(element, kind, telling,
                             NamedPlace(isEquipment ? "Equipment" : "Mash", NameOf(element)), {});
        if (isEquipment) {
            recipe.equipmentBoilSize = record.Volume("BOIL_SIZE", "DISPLAY_BOIL_SIZE");
            recipe.hopUtilization = record.Figure("HOP_UTILIZATION");
        } else {
            std::size_t number = 0;
            for (const pugi::xml_node step : record.Element("MASH_STEPS").children())
                if (EqualAscii(step.name(), RuleOf(XmlRecord::MashStep).tag))
                    BeerXmlRecord(step, XmlRecord::MashStep, telling,
                                  LinePlace("Mash steps", ++number, NameOf(step)), {})
                        .End();
        }
        record.End();
    }

    const ElementText& text_;
    ForeignFile& file_;
    ForeignTelling library_;
    std::size_t count_ = 0;
    std::string homeless_;  // the sets of records that are read nowhere
};

void TellDamage(const pugi::xml_parse_result& result, std::string_view text, Findings& findings) {
    const auto offset =
        std::min(static_cast<std::size_t>(std::max<std::ptrdiff_t>(result.offset, 0)), text.size());
    const auto line = std::ranges::count(text.substr(0, offset), '\n') + 1;
    findings.Add({Severity::Suspicious, FindingCode::Truncated, "", "line " + std::to_string(line),
                  "The file is damaged here; only what stands before was read."});
}

}  // namespace

void ReadBeerXml(std::string_view text, ForeignFile& file) {
    file.format = ExchangeFormat::BeerXml;
    pugi::xml_document document;
    const pugi::xml_parse_result result =
        document.load_buffer(text.data(), text.size(), pugi::parse_default, pugi::encoding_utf8);
    if (!result) TellDamage(result, text, file.findings);
    const ElementText source(text, static_cast<bool>(result));
    Reader reader(source, file);
    reader.ReadAll(document, 0);
    reader.End();
}

}  // namespace tw
