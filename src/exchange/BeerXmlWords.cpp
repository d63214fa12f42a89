#include "exchange/BeerXmlWords.h"

#include <algorithm>
#include <array>

#include "exchange/ForeignWords.h"

namespace tw {
namespace {

constexpr std::array<std::string_view, 2> kBooleanWords = {"TRUE", "FALSE"};

// A word that no list has, and the closest one that the list has.
struct Closest {
    XmlRecord record;
    std::string_view tag;
    std::string_view word;
    XmlWord written;
};

constexpr std::array kClosest = {
    Closest{XmlRecord::Style, "TYPE", "Beer", {"Ale", false}},
    Closest{XmlRecord::Style, "TYPE", "Hybrid", {"Mixed", false}},
    Closest{XmlRecord::Style, "TYPE", "Kombucha", {"Mixed", false}},
    Closest{XmlRecord::Style, "TYPE", "Other", {"Mixed", false}},
    Closest{XmlRecord::Style, "TYPE", "Soda", {"Mixed", false}},
    Closest{XmlRecord::Style, "TYPE", "Wine", {"Mixed", false}},
    Closest{XmlRecord::Yeast, "FLOCCULATION", "Very Low", {"Low", false}},
    Closest{XmlRecord::Yeast, "FLOCCULATION", "Medium Low", {"Medium", false}},
    Closest{XmlRecord::Yeast, "FLOCCULATION", "Medium High", {"High", false}},
    Closest{XmlRecord::Yeast, "FORM", "Dried", {"Dry"}},
    Closest{XmlRecord::Yeast, "FORM", "Dregs", {"Culture", false}},
    Closest{XmlRecord::Misc, "TYPE", "Flavour", {"Flavor"}},
};

template <class T>
std::optional<XmlWord> AsXmlWord(const std::optional<WordMeaning<T>>& meaning, XmlWord (*wordOf)(T)) {
    if (!meaning) return std::nullopt;
    return wordOf(meaning->value);
}

template <class T>
std::optional<XmlWord> AsXmlWord(const std::optional<WordMeaning<T>>& meaning,
                                 std::string_view (*wordOf)(T)) {
    if (!meaning) return std::nullopt;
    return XmlWord{wordOf(meaning->value)};
}

// Returns the word for what the reading of files takes a word for.
std::optional<XmlWord> WordOfMeaning(XmlRecord record, std::string_view tag, std::string_view word) {
    if (record == XmlRecord::Hop && tag == "USE") return AsXmlWord(UseOfWord(word), XmlHopUse);
    if (record == XmlRecord::Hop && tag == "FORM") return AsXmlWord(HopFormOfWord(word), XmlHopForm);
    if (record == XmlRecord::Misc && tag == "USE") return AsXmlWord(UseOfWord(word), XmlMiscUse);
    if (record == XmlRecord::Fermentable && tag == "TYPE")
        return AsXmlWord(FermentableTypeOfWord(word), XmlFermentableType);
    if (record == XmlRecord::Recipe && tag == "TYPE") return AsXmlWord(RecipeTypeOfWord(word), XmlRecipeType);
    if (tag == "IBU_METHOD") return AsXmlWord(IbuMethodOfWord(word), XmlIbuMethod);
    return std::nullopt;
}

}  // namespace

XmlWord XmlHopUse(ForeignUse use) {
    switch (use) {
        case ForeignUse::Mash:
            return {"Mash"};
        case ForeignUse::FirstWort:
            return {"First Wort"};
        case ForeignUse::Boil:
            return {"Boil"};
        case ForeignUse::Aroma:
            return {"Aroma"};
        case ForeignUse::Whirlpool:
            return {"Aroma", false};
        case ForeignUse::Primary:
            return {"Dry Hop"};
        case ForeignUse::Secondary:
        case ForeignUse::Package:
            return {"Dry Hop", false};
    }
    return {"Boil", false};
}

XmlWord XmlMiscUse(ForeignUse use) {
    switch (use) {
        case ForeignUse::Mash:
            return {"Mash"};
        case ForeignUse::Boil:
            return {"Boil"};
        case ForeignUse::FirstWort:
        case ForeignUse::Aroma:
        case ForeignUse::Whirlpool:
            return {"Boil", false};
        case ForeignUse::Primary:
            return {"Primary"};
        case ForeignUse::Secondary:
            return {"Secondary"};
        case ForeignUse::Package:
            return {"Bottling"};
    }
    return {"Boil", false};
}

XmlWord XmlHopForm(ForeignHop::Form form) {
    switch (form) {
        case ForeignHop::Form::Pellet:
            return {"Pellet"};
        case ForeignHop::Form::Plug:
            return {"Plug"};
        case ForeignHop::Form::Leaf:
            return {"Leaf"};
        case ForeignHop::Form::WetLeaf:
        case ForeignHop::Form::Extract:
            return {"Leaf", false};
        case ForeignHop::Form::Powder:
            return {"Pellet", false};
    }
    return {"Pellet", false};
}

XmlWord XmlFermentableType(ForeignFermentable::Type type) {
    using Type = ForeignFermentable::Type;
    switch (type) {
        case Type::Grain:
            return {"Grain"};
        case Type::Adjunct:
            return {"Adjunct"};
        case Type::Sugar:
            return {"Sugar"};
        case Type::Extract:
            return {"Extract"};
        case Type::DryExtract:
            return {"Dry Extract"};
        case Type::Fruit:
        case Type::Juice:
        case Type::Honey:
            return {"Sugar", false};
        case Type::Other:
            return {"Adjunct", false};
    }
    return {"Grain", false};
}

std::string_view XmlRecipeType(ForeignRecipe::Type type) {
    switch (type) {
        case ForeignRecipe::Type::Extract:
            return "Extract";
        case ForeignRecipe::Type::PartialMash:
            return "Partial Mash";
        case ForeignRecipe::Type::AllGrain:
            return "All Grain";
    }
    return "All Grain";
}

std::string_view XmlIbuMethod(ForeignIbuMethod method) {
    switch (method) {
        case ForeignIbuMethod::Tinseth:
            return "Tinseth";
        case ForeignIbuMethod::Rager:
            return "Rager";
        case ForeignIbuMethod::Garetz:
            return "Garetz";
    }
    return "Tinseth";
}

std::optional<XmlWord> XmlWordFor(XmlRecord record, const XmlField& field, std::string_view word) {
    if (field.holds == XmlHolds::Boolean) {
        const auto meaning = BooleanOfWord(word);
        if (!meaning) return std::nullopt;
        return XmlWord{kBooleanWords[meaning->value ? 0 : 1]};
    }
    for (const std::string_view each : field.words)
        if (FitOf(word, std::span(&each, 1)) != WordFit::None) return XmlWord{each};
    for (const Closest& each : kClosest)
        if (each.record == record && each.tag == field.tag &&
            FitOf(word, std::span(&each.word, 1)) != WordFit::None)
            return each.written;
    return WordOfMeaning(record, field.tag, word);
}

std::string_view UsualXmlWord(XmlRecord record, const XmlField& field) {
    if (record == XmlRecord::Recipe) return "All Grain";
    if (record == XmlRecord::Misc && field.tag == "TYPE") return "Other";
    if (record == XmlRecord::Style) return "Ale";
    // The only type of step that requires no further field.
    if (record == XmlRecord::MashStep) return "Temperature";
    return field.words.empty() ? "FALSE" : field.words.front();
}

}  // namespace tw
