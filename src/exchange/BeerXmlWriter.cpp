#include "exchange/BeerXmlWriter.h"

#include <algorithm>
#include <array>
#include <pugixml.hpp>
#include <string_view>
#include <utility>

#include "exchange/AsciiCase.h"
#include "exchange/BeerXmlEditor.h"
#include "exchange/BeerXmlRecord.h"
#include "exchange/ExchangeLimits.h"
#include "exchange/ExchangeText.h"
#include "exchange/ForeignPlace.h"

namespace tw {
namespace {

constexpr unsigned kParsing = pugi::parse_default | pugi::parse_ws_pcdata | pugi::parse_comments |
                              pugi::parse_pi | pugi::parse_fragment;

// The fields that hold lines.
constexpr std::array kLineRecords = {XmlRecord::Hop, XmlRecord::Fermentable, XmlRecord::Misc,
                                     XmlRecord::Yeast, XmlRecord::Water};

// The tags that a changed field of a recipe sets anew. A tag for which there is no value is removed.
struct ChangedTags {
    ExportedField field;
    std::string_view tag;
    bool onlyIfThere = false;  // the original says the same in two places
};
constexpr std::array kChangedTags = {
    ChangedTags{ExportedField::Name, "NAME"},
    ChangedTags{ExportedField::Type, "TYPE"},
    ChangedTags{ExportedField::BatchSize, "BATCH_SIZE"},
    ChangedTags{ExportedField::BatchSize, "DISPLAY_BATCH_SIZE"},
    ChangedTags{ExportedField::BoilSize, "BOIL_SIZE"},
    ChangedTags{ExportedField::BoilSize, "DISPLAY_BOIL_SIZE"},
    ChangedTags{ExportedField::BoilTime, "BOIL_TIME"},
    ChangedTags{ExportedField::Efficiency, "EFFICIENCY"},
    ChangedTags{ExportedField::OriginalGravity, "EST_OG"},
    ChangedTags{ExportedField::OriginalGravity, "OG", true},
    ChangedTags{ExportedField::OriginalGravity, "DISPLAY_OG"},
    ChangedTags{ExportedField::FinalGravity, "EST_FG"},
    ChangedTags{ExportedField::FinalGravity, "FG", true},
    ChangedTags{ExportedField::FinalGravity, "DISPLAY_FG"},
    ChangedTags{ExportedField::Alcohol, "EST_ABV"},
    ChangedTags{ExportedField::Alcohol, "ABV", true},
    ChangedTags{ExportedField::Bitterness, "IBU"},
    ChangedTags{ExportedField::Bitterness, "IBU_METHOD"},
    ChangedTags{ExportedField::Color, "EST_COLOR"},
    ChangedTags{ExportedField::Carbonation, "CARBONATION"},
    ChangedTags{ExportedField::Carbonation, "FORCED_CARBONATION"},
    ChangedTags{ExportedField::Carbonation, "PRIMING_SUGAR_NAME"},
    ChangedTags{ExportedField::Carbonation, "PRIMING_SUGAR_EQUIV"},
    ChangedTags{ExportedField::Carbonation, "CARBONATION_TEMP"},
    ChangedTags{ExportedField::Carbonation, "CARBONATION_USED"},
    ChangedTags{ExportedField::Carbonation, "DISPLAY_CARB_TEMP"},
    ChangedTags{ExportedField::Notes, "NOTES"},
    ChangedTags{ExportedField::TasteNotes, "TASTE_NOTES"},
};

// Removes what is not XML from the texts of a fragment.
struct Cleaner : pugi::xml_tree_walker {
    bool for_each(pugi::xml_node& node) override {
        if (*node.value() != 0)
            if (const std::string clean = CleanText(node.value()); clean != node.value())
                node.set_value(clean.c_str());
        for (pugi::xml_attribute attribute : node.attributes())
            if (const std::string clean = CleanText(attribute.value()); clean != attribute.value())
                attribute.set_value(clean.c_str());
        return true;
    }
};

// The elements of a recipe by kind of record, in the order in which they are read.
using Elements = std::array<std::vector<pugi::xml_node>, kXmlRecords>;

// Finds records as the reading does: at any depth, but not within each other or within fields.
void FindRecords(pugi::xml_node parent, std::size_t depth, Elements& found) {
    if (depth > kMostExchangeDepth) return;
    for (const pugi::xml_node child : parent.children()) {
        if (child.type() != pugi::node_element) continue;
        if (const XmlRecordRule* const rule = RecordOfTag(child.name()))
            found[static_cast<std::size_t>(rule->record)].push_back(child);
        else if (RecordOfSet(child.name()) != nullptr || FieldOf(XmlRecord::Recipe, child.name()) == nullptr)
            FindRecords(child, depth + 1, found);
    }
}

class RecipeWriter {
  public:
    // recipe is an element RECIPE, empty or from a fragment.
    RecipeWriter(pugi::xml_node recipe, const ExportedRecipe& exported, Findings& findings)
        : recipe_(recipe),
          exported_(exported),
          isNew_(!recipe.first_child()),
          telling_(findings, exported.facts.name, "BeerXML") {}

    void Write() {
        Gather();
        BeerXmlEditor editor(recipe_, XmlRecord::Recipe, telling_, {});
        const ForeignRecipe& facts = exported_.facts;
        const XmlValues values = XmlValuesOf(facts);
        if (isNew_) {
            editor.Change(values);
            telling_.NoteLost(values.lost);
        } else {
            WriteChanged(editor, values);
        }
        editor.Complete(values);
        WriteStyle(editor);
        WriteLines(editor, XmlRecord::Fermentable, kFermentablesPlace, facts.fermentables,
                   exported_.fermentables);
        WriteLines(editor, XmlRecord::Hop, kHopsPlace, facts.hops, exported_.hops);
        WriteLines(editor, XmlRecord::Misc, kMiscsPlace, facts.miscs, exported_.miscs);
        WriteLines(editor, XmlRecord::Yeast, kYeastsPlace, facts.yeasts, exported_.yeasts);
        WriteLines(editor, XmlRecord::Water, kWatersPlace, facts.waters, exported_.waters);
        WriteMash(editor);
        WriteEquipment(editor);
        telling_.End();
    }

  private:
    // Finds the lines and brings what stands in odd places to where the format has it.
    void Gather() {
        FindRecords(recipe_, 0, elements_);
        // A lost end tag leaves the next recipe within this one. It was read as one of its own.
        for (pugi::xml_node nested : Of(XmlRecord::Recipe)) nested.parent().remove_child(nested);
        for (const XmlRecord record : kLineRecords) GatherSet(RuleOf(record));
        const auto& styles = Of(XmlRecord::Style);
        const auto isMissing = std::ranges::none_of(
            styles, [&](pugi::xml_node style) { return style.parent() == recipe_ && style.first_child(); });
        if (isMissing && !styles.empty() && styles.front().parent() != recipe_) {
            for (pugi::xml_node style : styles)
                if (style.parent() == recipe_) recipe_.remove_child(style);
            recipe_.append_move(styles.front());
        }
    }

    // Merges several sets of a kind, and moves lines into it that stand elsewhere.
    void GatherSet(const XmlRecordRule& rule) {
        pugi::xml_node set;
        pugi::xml_node next;
        for (pugi::xml_node child = recipe_.first_child(); child; child = next) {
            next = child.next_sibling();
            if (!EqualAscii(child.name(), rule.setTag)) continue;
            if (!set) {
                set = child;
                continue;
            }
            while (child.first_child()) set.append_move(child.first_child());
            recipe_.remove_child(child);
        }
        for (pugi::xml_node line : Of(rule.record)) {
            if (!set) set = recipe_.append_child(std::string(rule.setTag).c_str());
            if (line.parent() != set) set.append_move(line);
        }
    }

    std::vector<pugi::xml_node>& Of(XmlRecord record) { return elements_[static_cast<std::size_t>(record)]; }
    bool HasChanged(ExportedField field) const { return isNew_ || exported_.changed.contains(field); }

    void WriteChanged(BeerXmlEditor& editor, const XmlValues& values) {
        const StatedFigures& stated = exported_.facts.stated;
        XmlValues changed;
        for (const ChangedTags& each : kChangedTags) {
            if (!HasChanged(each.field) || (each.onlyIfThere && !editor.Element(each.tag))) continue;
            if (const XmlValue* const value = values.Find(each.tag))
                changed.values.push_back(*value);
            else if (each.tag == "OG" && stated.og)
                changed.values.push_back({"OG", PlainNumber(*stated.og)});
            else if (each.tag == "FG" && stated.fg)
                changed.values.push_back({"FG", PlainNumber(*stated.fg)});
            else if (each.tag == "ABV" && stated.abv)
                changed.values.push_back({"ABV", PlainNumber(*stated.abv) + " %"});
            else
                editor.Remove(each.tag);
        }
        editor.Change(changed);
    }

    void WriteStyle(BeerXmlEditor& editor) {
        pugi::xml_node style = editor.Obtain("STYLE");
        const auto& facts = exported_.facts.style;
        const bool isChanged = HasChanged(ExportedField::Style) || !style.first_child();
        if (isChanged) style.remove_children();
        BeerXmlEditor record(style, XmlRecord::Style, telling_,
                             NamedPlace("Style", facts ? facts->name : std::string()));
        const XmlValues values = facts ? XmlValuesOf(*facts) : XmlValues();
        if (isChanged) {
            record.Change(values);
            telling_.NoteLost(values.lost);
        }
        record.Complete(values);
    }

    template <class Line>
    void WriteLines(BeerXmlEditor& editor, XmlRecord record, std::string_view place,
                    const std::vector<Line>& lines, const std::vector<LineOrigin>& origins) {
        const XmlRecordRule& rule = RuleOf(record);
        const std::string tag(rule.tag);
        pugi::xml_node set = editor.Obtain(rule.setTag);
        if (RemoveStrayText(set)) telling_.NoteDropped("text in " + std::string(rule.setTag));
        std::vector<pugi::xml_node> originals = std::move(Of(record));
        std::vector<pugi::xml_node> written;
        for (std::size_t i = 0; i < lines.size(); ++i) {
            const LineOrigin* const origin = i < origins.size() ? &origins[i] : nullptr;
            pugi::xml_node element;
            if (origin != nullptr && origin->element.value_or(originals.size()) < originals.size())
                element = std::exchange(originals[*origin->element], pugi::xml_node());
            const bool keeps = element && origin->unchanged;
            if (!element) element = set.append_child(tag.c_str());
            element.set_name(tag.c_str());
            BeerXmlEditor line(element, record, telling_, LinePlace(place, i + 1, lines[i].name));
            const XmlValues values = XmlValuesOf(lines[i]);
            if (!keeps) {
                line.Change(values);
                telling_.NoteLost(values.lost);
            }
            line.Complete(values);
            written.push_back(element);
        }
        for (const pugi::xml_node deleted : originals)
            if (deleted) set.remove_child(deleted);
        Order(set, written);
    }

    // Puts the lines into their order, if they are not in it.
    static void Order(pugi::xml_node set, const std::vector<pugi::xml_node>& lines) {
        std::size_t next = 0;
        for (const pugi::xml_node child : set.children())
            if (next < lines.size() && child == lines[next]) ++next;
        if (next == lines.size()) return;
        for (const pugi::xml_node line : lines) set.append_move(line);
    }

    void WriteMash(BeerXmlEditor& editor) {
        // Room temperature: the format requires a temperature even of a mash that nobody has described.
        static const XmlValues kUsual = {{{"NAME", "Mash"}, {"VERSION", "1"}, {"GRAIN_TEMP", "20"}}, {}};
        if (!editor.Element("MASH") && !editor.Needs(*FieldOf(XmlRecord::Recipe, "MASH"))) return;
        pugi::xml_node mash = editor.Obtain("MASH");
        const bool isEmpty = !mash.first_child();
        BeerXmlEditor record(mash, XmlRecord::Mash, telling_, "Mash");
        if (isEmpty) record.Change(kUsual);
        record.Complete({});
        pugi::xml_node steps = record.Obtain("MASH_STEPS");
        if (RemoveStrayText(steps)) telling_.NoteDropped("text in MASH_STEPS");
        std::size_t number = 0;
        for (pugi::xml_node step : steps.children()) {
            if (!EqualAscii(step.name(), RuleOf(XmlRecord::MashStep).tag)) continue;
            step.set_name(std::string(RuleOf(XmlRecord::MashStep).tag).c_str());
            BeerXmlEditor(step, XmlRecord::MashStep, telling_, LinePlace("Mash steps", ++number, {}))
                .Complete({});
        }
    }

    void WriteEquipment(BeerXmlEditor& editor) {
        const ForeignRecipe& facts = exported_.facts;
        const bool isChanged = HasChanged(ExportedField::HopUtilization);
        const bool isWanted = isChanged && (facts.hopUtilization || (isNew_ && facts.equipmentBoilSize));
        pugi::xml_node equipment = editor.Element("EQUIPMENT");
        if (equipment && !equipment.first_child() && !isWanted) {
            editor.Remove("EQUIPMENT");
            telling_.NoteDropped("EQUIPMENT");
            return;
        }
        if (!equipment && !isWanted) return;
        equipment = editor.Obtain("EQUIPMENT");
        const bool isEmpty = !equipment.first_child();
        BeerXmlEditor record(equipment, XmlRecord::Equipment, telling_, "Equipment");
        const XmlValues values = XmlEquipmentValues(facts);
        if (isEmpty)
            record.Change(values);
        else if (const XmlValue* const utilization = values.Find("HOP_UTILIZATION"); isChanged && utilization)
            record.Change({{*utilization}, {}});
        else if (isChanged)
            record.Remove("HOP_UTILIZATION");
        record.Complete(values);
    }

    pugi::xml_node recipe_;
    const ExportedRecipe& exported_;
    const bool isNew_;
    WriteTelling telling_;
    Elements elements_;
};

// Appends the recipe of a fragment, or an empty one.
pugi::xml_node AppendRecipe(pugi::xml_node recipes, const ExportedRecipe& exported, Findings& findings) {
    const ForeignRecipe& facts = exported.facts;
    const std::string tag(RuleOf(XmlRecord::Recipe).tag);
    if (!facts.fragment.empty()) {
        pugi::xml_document document;
        const auto result =
            document.load_buffer(facts.fragment.data(), facts.fragment.size(), kParsing, pugi::encoding_utf8);
        const pugi::xml_node root = document.document_element();
        if (result && EqualAscii(root.name(), tag)) {
            pugi::xml_node recipe = recipes.append_copy(root);
            recipe.set_name(tag.c_str());
            Cleaner cleaner;
            cleaner.for_each(recipe);
            recipe.traverse(cleaner);
            return recipe;
        }
        findings.Add({Severity::NotCarried, FindingCode::Carried, facts.name, "",
                      "The original of the recipe cannot be read, so nothing of it was written."});
    }
    return recipes.append_child(tag.c_str());
}

// Puts each field, record and set, which have no text beside their elements, on a line of its own. Other
// elements keep their blanks.
void Indent(pugi::xml_node element, const XmlRecordRule& rule, bool isSet, std::size_t depth) {
    constexpr std::size_t kBlanks = 2;
    const auto lineAt = [](std::size_t level) { return "\n" + std::string(kBlanks * level, ' '); };
    if (!element.first_child()) return;
    for (pugi::xml_node child = element.first_child(); child; child = child.next_sibling()) {
        element.insert_child_before(pugi::node_pcdata, child).set_value(lineAt(depth + 1).c_str());
        if (isSet && child.name() == rule.tag) {
            Indent(child, rule, false, depth + 1);
        } else if (const XmlField* const field = isSet ? nullptr : FieldOf(rule.record, child.name())) {
            if (field->holds == XmlHolds::Record) Indent(child, *RecordOfTag(field->tag), false, depth + 1);
            if (field->holds == XmlHolds::RecordSet) Indent(child, *RecordOfSet(field->tag), true, depth + 1);
        }
    }
    element.append_child(pugi::node_pcdata).set_value(lineAt(depth).c_str());
}

struct TextWriter : pugi::xml_writer {
    std::string text;
    void write(const void* data, std::size_t size) override {
        text.append(static_cast<const char*>(data), size);
    }
};

}  // namespace

std::string WriteBeerXml(std::span<const ExportedRecipe> recipes, Findings& findings) {
    const XmlRecordRule& rule = RuleOf(XmlRecord::Recipe);
    pugi::xml_document document;
    pugi::xml_node root = document.append_child(std::string(rule.setTag).c_str());
    for (const ExportedRecipe& exported : recipes)
        RecipeWriter(AppendRecipe(root, exported, findings), exported, findings).Write();
    Indent(root, rule, true, 0);
    TextWriter writer;
    writer.text = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n";
    document.save(writer, "", pugi::format_raw | pugi::format_no_declaration, pugi::encoding_utf8);
    return writer.text + "\n";
}

}  // namespace tw
