#include "exchange/BeerJsonWriter.h"

#include <algorithm>
#include <array>
#include <optional>
#include <string_view>
#include <utility>

#include "exchange/BeerJsonBoil.h"
#include "exchange/BeerJsonCompleter.h"
#include "exchange/BeerJsonReader.h"
#include "exchange/BeerJsonValues.h"
#include "exchange/ExchangeText.h"
#include "exchange/ForeignPlace.h"
#include "exchange/ForeignUnits.h"
#include "exchange/JsonEdit.h"

namespace tw {
namespace {

constexpr double kVersion = 2.06;

// A member that a changed field of a recipe sets anew; inner is a member of it, if not all of it is set.
struct ChangedKey {
    ExportedField field;
    std::string_view key;
    std::string_view inner = {};
};
constexpr std::array kChangedKeys = {
    ChangedKey{ExportedField::Name, "name"},
    ChangedKey{ExportedField::Type, "type"},
    ChangedKey{ExportedField::BatchSize, "batch_size"},
    ChangedKey{ExportedField::BoilSize, "boil", "pre_boil_size"},
    ChangedKey{ExportedField::BoilTime, "boil", "boil_time"},
    ChangedKey{ExportedField::Efficiency, "efficiency", "brewhouse"},
    ChangedKey{ExportedField::OriginalGravity, "original_gravity"},
    ChangedKey{ExportedField::FinalGravity, "final_gravity"},
    ChangedKey{ExportedField::FinalGravity, "apparent_attenuation"},
    ChangedKey{ExportedField::Alcohol, "alcohol_by_volume"},
    ChangedKey{ExportedField::Bitterness, "ibu_estimate"},
    ChangedKey{ExportedField::Color, "color_estimate"},
    ChangedKey{ExportedField::Carbonation, "carbonation"},
    ChangedKey{ExportedField::Notes, "notes"},
    ChangedKey{ExportedField::TasteNotes, "taste", "notes"},
};

constexpr std::array<std::string_view, 5> kLists = {"fermentable_additions", "hop_additions",
                                                    "miscellaneous_additions", "culture_additions",
                                                    "water_additions"};

std::optional<double> BaseOf(const Json& value, const Json& unit) {
    const auto number = value.AsNumber();
    const ForeignUnit* const found = unit.AsText() == nullptr ? nullptr : FindAmountUnit(*unit.AsText());
    if (!number || found == nullptr) return std::nullopt;
    return found->ToBase(*number);
}

// True if both say the same: numbers and amounts, even in other units, may differ a little.
bool SaysTheSame(const Json& a, const Json& b) {
    constexpr double kSameFigurePart = 1e-6;
    if (a.AsNumber() && b.AsNumber()) return IsWithin(*a.AsNumber(), *b.AsNumber(), kSameFigurePart);
    const Json::Object* const inA = a.AsObject();
    const Json::Object* const inB = b.AsObject();
    if (inA == nullptr || inB == nullptr || inA->size() != inB->size()) return a == b;
    const Json* const unitA = a.Find("unit");
    const Json* const unitB = b.Find("unit");
    const Json* const valueA = a.Find("value");
    const Json* const valueB = b.Find("value");
    if (unitA != nullptr && unitB != nullptr && valueA != nullptr && valueB != nullptr) {
        const auto baseA = BaseOf(*valueA, *unitA);
        const auto baseB = BaseOf(*valueB, *unitB);
        if (baseA && baseB) return IsWithin(*baseA, *baseB, kSameAmountPart);
    }
    return std::ranges::all_of(*inA, [&](const JsonMember& member) {
        const Json* const other = b.Find(member.name);
        return other != nullptr && SaysTheSame(member.value, *other);
    });
}

bool AreEqual(const Json* a, const Json* b) {
    return a == nullptr || b == nullptr ? a == b : *a == *b;
}

// Sets what the facts know of a timing. Conditions such as a gravity stay.
void ChangeTiming(Json& timing, const Json& now, const Json& before) {
    const bool isSameUse =
        AreEqual(now.Find("use"), before.Find("use")) && AreEqual(now.Find("step"), before.Find("step"));
    if (!isSameUse)
        for (const std::string_view key : {"use", "step", "time", "duration"}) RemoveMember(timing, key);
    for (const JsonMember& member : *now.AsObject()) {
        const bool isTime = member.name == "time" || member.name == "duration";
        if (isSameUse && !isTime) continue;
        // A file may say how long something stays by either of the two.
        const std::string_view other = member.name == "time" ? "duration" : "time";
        const bool hasOnlyOther =
            MemberOf(timing, member.name) == nullptr && MemberOf(timing, other) != nullptr;
        SetMember(timing, isTime && hasOnlyOther ? other : std::string_view(member.name), member.value);
    }
}

class RecipeWriter {
  public:
    RecipeWriter(const ExportedRecipe& exported, Findings& findings)
        : exported_(exported), facts_(exported.facts), telling_(findings, facts_.name, "BeerJSON") {
        ReadFragment(findings);
    }

    Json Write() {
        const JsonValues values = JsonValuesOf(facts_);
        WriteFields(values);
        WriteStyle();
        TakeLines();
        PlanSteps();
        Json lists(Json::Object{});
        WriteLines(lists, "fermentable_additions", kFermentablesPlace, facts_.fermentables,
                   exported_.fermentables, before_.fermentables);
        WriteLines(lists, "hop_additions", kHopsPlace, facts_.hops, exported_.hops, before_.hops);
        WriteLines(lists, "miscellaneous_additions", kMiscsPlace, facts_.miscs, exported_.miscs,
                   before_.miscs);
        WriteLines(lists, "culture_additions", kYeastsPlace, facts_.yeasts, exported_.yeasts, before_.yeasts);
        WriteLines(lists, "water_additions", kWatersPlace, facts_.waters, exported_.waters, before_.waters);
        for (JsonMember& list : *lists.AsObject())
            SetMember(*MemberOf(recipe_, "ingredients"), list.name, std::move(list.value));
        CompleteJson(recipe_, ShapeOf(JsonRecord::Recipe), values.object, {}, telling_);
        telling_.End();
        return std::move(recipe_);
    }

  private:
    // Reads the original, and what it says.
    void ReadFragment(Findings& findings) {
        if (facts_.fragment.empty()) return;
        Json original;
        try {
            original = ParseJson(facts_.fragment).value;
        } catch (const Error&) {
            // Told below.
        }
        isNew_ = original.AsObject() == nullptr;
        if (isNew_) {
            findings.Add({Severity::NotCarried, FindingCode::Carried, facts_.name, "",
                          "The original of the recipe cannot be read, so nothing of it was written."});
            return;
        }
        recipe_ = std::move(original);
        ForeignFile file;
        ReadBeerJson(R"({"beerjson": {"recipes": [)" + facts_.fragment + "]}}", file);
        if (!file.recipes.empty()) before_ = std::move(file.recipes.front());
    }

    bool HasChanged(ExportedField field) const { return isNew_ || exported_.changed.contains(field); }

    void WriteFields(const JsonValues& values) {
        if (isNew_) {
            recipe_ = values.object;
            telling_.NoteLost(values.lost);
            return;
        }
        for (const ChangedKey& each : kChangedKeys) {
            if (!HasChanged(each.field)) continue;
            const Json* value = values.object.Find(each.key);
            Json* owner = &recipe_;
            if (!each.inner.empty()) {
                const Json* const old = MemberOf(recipe_, each.key);
                if (old == nullptr || old->AsObject() == nullptr)
                    SetMember(recipe_, each.key, Json(Json::Object{}));
                owner = MemberOf(recipe_, each.key);
                value = value == nullptr ? nullptr : value->Find(each.inner);
            }
            const std::string_view key = each.inner.empty() ? each.key : each.inner;
            if (value != nullptr)
                SetMember(*owner, key, *value);
            else
                RemoveMember(*owner, key);
        }
        // A taste has both or nothing; of a boil without a time there is nothing to say either.
        for (const std::string_view key : {"taste", "boil"})
            if (const Json* const object = MemberOf(recipe_, key);
                object != nullptr && object->AsObject() != nullptr && object->AsObject()->empty())
                RemoveMember(recipe_, key);
    }

    void WriteStyle() {
        if (!HasChanged(ExportedField::Style)) return;
        RemoveMember(recipe_, "style");
        if (!facts_.style) return;
        JsonValues style = JsonValuesOf(*facts_.style);
        telling_.NoteLost(style.lost);
        TellRemarks(style, NamedPlace("Style", facts_.style->name));
        SetMember(recipe_, "style", std::move(style.object));
    }

    // Takes the lines of the original, whose indexes count objects only.
    void TakeLines() {
        if (Json* const old = MemberOf(recipe_, "ingredients"); old == nullptr || old->AsObject() == nullptr)
            SetMember(recipe_, "ingredients", Json(Json::Object{}));
        Json& ingredients = *MemberOf(recipe_, "ingredients");
        for (std::size_t i = 0; i < kLists.size(); ++i) {
            Json* const list = MemberOf(ingredients, kLists[i]);
            if (list == nullptr) continue;
            if (list->AsObject() != nullptr) *list = Json(Json::Array{*list});
            if (Json::Array* const elements = list->AsArray()) originals_[i] = std::move(*elements);
            const auto stray = [](const Json& each) { return each.AsObject() == nullptr; };
            if (std::erase_if(originals_[i], stray) > 0)
                telling_.NoteDropped("ingredients/" + std::string(kLists[i]));
            RemoveMember(ingredients, kLists[i]);
        }
    }

    static LineOrigin OriginOf(const std::vector<LineOrigin>& origins, std::size_t index) {
        return index < origins.size() ? origins[index] : LineOrigin();
    }

    // Notes the steps that a line needs if its timing is written.
    template <class Line>
    void NoteNeeds(const std::vector<Line>& lines, const std::vector<LineOrigin>& origins,
                   const std::vector<Line>& before) {
        for (std::size_t i = 0; i < lines.size(); ++i) {
            const LineOrigin origin = OriginOf(origins, i);
            const bool hasOrigin = !isNew_ && origin.element && *origin.element < before.size();
            if (hasOrigin && (origin.unchanged || before[*origin.element].use == lines[i].use)) continue;
            const auto use = lines[i].use;
            needs_.firstWort = needs_.firstWort || use == ForeignUse::FirstWort;
            needs_.stand = needs_.stand || use == ForeignUse::Aroma || use == ForeignUse::Whirlpool;
            needsSecondary_ = needsSecondary_ || use == ForeignUse::Secondary;
        }
    }

    // Adds the steps of the boil and the fermentation that the lines need.
    void PlanSteps() {
        NoteNeeds(facts_.hops, exported_.hops, before_.hops);
        NoteNeeds(facts_.miscs, exported_.miscs, before_.miscs);
        for (std::size_t i = 0; i < facts_.yeasts.size(); ++i)
            needsSecondary_ =
                needsSecondary_ || (facts_.yeasts[i].secondary && !OriginOf(exported_.yeasts, i).unchanged);
        const JsonBoilPlan plan = PlanBoil(recipe_, needs_);
        stand_ = plan.stand;
        if (plan.isShifted && !isNew_) ShiftSteps();
        if (!needsSecondary_ || recipe_.Find("fermentation") != nullptr) return;
        const auto step = [](std::string_view name) {
            Json named(Json::Object{});
            named.Add("name", Json(name));
            return named;
        };
        Json fermentation = step("Fermentation");
        fermentation.Add("fermentation_steps", Json(Json::Array{step("Primary"), step("Secondary")}));
        SetMember(recipe_, "fermentation", std::move(fermentation));
    }

    void ShiftSteps() {
        for (Json::Array& list : originals_)
            for (Json& element : list) {
                Json* const timing = MemberOf(element, "timing");
                if (timing == nullptr || timing->AsObject() == nullptr) continue;
                const Json* const use = timing->Find("use");
                Json* const step = MemberOf(*timing, "step");
                const bool isBoil =
                    use != nullptr && use->AsText() != nullptr && *use->AsText() == "add_to_boil";
                if (isBoil && step != nullptr && step->AsInteger() != nullptr)
                    *step = Json(std::int64_t{*step->AsInteger() + 1});
            }
    }

    template <class Line>
    void WriteLines(Json& lists, std::string_view key, std::string_view place, const std::vector<Line>& lines,
                    const std::vector<LineOrigin>& origins, const std::vector<Line>& before) {
        const JsonShape& ingredients = ShapeOf(JsonRecord::Ingredients);
        const JsonShape& shape = *FieldOf(ingredients, key)->shape;
        Json::Array& originals =
            originals_[static_cast<std::size_t>(std::ranges::find(kLists, key) - kLists.begin())];
        const bool wasThere = !originals.empty();
        std::vector<bool> isTaken(originals.size());
        Json::Array written;
        for (std::size_t i = 0; i < lines.size(); ++i) {
            const LineOrigin origin = OriginOf(origins, i);
            const JsonValues now = JsonValuesOf(lines[i], stand_);
            const bool keeps =
                origin.element && *origin.element < originals.size() && !isTaken[*origin.element];
            Json element(Json::Object{});
            if (keeps) {
                element = std::move(originals[*origin.element]);
                isTaken[*origin.element] = true;
            }
            if (!keeps || !origin.unchanged) {
                const Line old = keeps && *origin.element < before.size() ? before[*origin.element] : Line();
                Change(element, now, keeps ? JsonValuesOf(old, stand_) : JsonValues(),
                       LinePlace(place, i + 1, lines[i].name));
                telling_.NoteLost(now.lost);
            }
            CompleteJson(element, shape, now.object, "ingredients/" + std::string(key), telling_);
            written.push_back(std::move(element));
        }
        // An empty list says nothing, but for the one that the format requires.
        if (!written.empty() || wasThere || FieldOf(ingredients, key)->IsRequired(true))
            lists.Add(key, Json(std::move(written)));
    }

    // Writes the members that differ from what the element says.
    void Change(Json& element, const JsonValues& now, const JsonValues& before, const std::string& place) {
        for (const JsonMember& member : *now.object.AsObject()) {
            Json* const old = MemberOf(element, member.name);
            const Json* const said = before.object.Find(member.name);
            if (old != nullptr && said != nullptr && SaysTheSame(member.value, *said)) continue;
            if (member.name == "timing" && old != nullptr && old->AsObject() != nullptr && said != nullptr)
                ChangeTiming(*old, member.value, *said);
            else
                SetMember(element, member.name, member.value);
            TellRemark(now, member.name, place);
        }
    }

    void TellRemarks(const JsonValues& values, const std::string& place) {
        for (const JsonRemark& remark : values.remarks) TellRemark(values, remark.key, place);
    }
    void TellRemark(const JsonValues& values, std::string_view key, const std::string& place) {
        for (const JsonRemark& remark : values.remarks)
            if (remark.key == key) telling_.Tell(Severity::Approximated, remark.code, place, remark.text);
    }

    const ExportedRecipe& exported_;
    const ForeignRecipe& facts_;
    WriteTelling telling_;
    Json recipe_ = Json(Json::Object{});
    ForeignRecipe before_;  // what the original says
    bool isNew_ = true;
    std::array<Json::Array, kLists.size()> originals_;  // the lines of the original, by list
    JsonBoilNeeds needs_;
    bool needsSecondary_ = false;
    StandStep stand_ = 0;
};

}  // namespace

std::string WriteBeerJson(std::span<const ExportedRecipe> recipes, Findings& findings) {
    Json::Array written;
    for (const ExportedRecipe& exported : recipes)
        written.push_back(RecipeWriter(exported, findings).Write());
    Json beer(Json::Object{});
    beer.Add("version", Json(kVersion));
    beer.Add("recipes", Json(std::move(written)));
    Json file(Json::Object{});
    file.Add("beerjson", std::move(beer));
    return DumpJson(file, JsonLayout::Indented) + "\n";
}

}  // namespace tw
