#include "exchange/ForeignWords.h"

#include <algorithm>
#include <array>
#include <string>

#include "exchange/AsciiCase.h"

namespace tw {
namespace {

// Upper case without blanks and the marks within words.
std::string Folded(std::string_view word) {
    constexpr std::string_view kDropped = " \t\r\n-_.";
    std::string folded;
    for (const char c : word)
        if (kDropped.find(c) == std::string_view::npos) folded += UpperAscii(c);
    return folded;
}

// Between bars, the folded words of one meaning.
template <class T>
struct Row {
    std::string_view words;
    WordMeaning<T> meaning;
};

using Type = ForeignFermentable::Type;
using Form = ForeignHop::Form;
using Recipe = ForeignRecipe::Type;

constexpr std::array kUses = {
    Row<ForeignUse>{"|MASH|MASHHOP|MASHIN|ADDTOMASH|SPARGE|", {ForeignUse::Mash, "mash"}},
    Row<ForeignUse>{"|FIRSTWORT|FWH|FIRSTWORTHOP|FIRSTWORTHOPPING|", {ForeignUse::FirstWort, "first wort"}},
    Row<ForeignUse>{"|BOIL|KETTLE|BITTERING|ADDTOBOIL|", {ForeignUse::Boil, "boil"}},
    Row<ForeignUse>{"|AROMA|FLAMEOUT|KNOCKOUT|", {ForeignUse::Aroma, "aroma"}},
    Row<ForeignUse>{"|WHIRLPOOL|HOPSTAND|STAND|STEEP|STEEPING|HOPBACK|",
                    {ForeignUse::Whirlpool, "whirlpool"}},
    Row<ForeignUse>{"|DRYHOP|DRYHOPPING|", {ForeignUse::Primary, "dry hop"}},
    Row<ForeignUse>{"|PRIMARY|FERMENTATION|FERMENTER|FERMENTOR|ADDTOFERMENTATION|",
                    {ForeignUse::Primary, "primary fermentation"}},
    Row<ForeignUse>{"|SECONDARY|TERTIARY|CONDITIONING|MATURATION|",
                    {ForeignUse::Secondary, "secondary fermentation"}},
    Row<ForeignUse>{"|BOTTLING|BOTTLE|KEG|KEGGING|PACKAGE|PACKAGING|ADDTOPACKAGE|",
                    {ForeignUse::Package, "packaging"}},
};

constexpr std::array kFermentableTypes = {
    Row<Type>{
        "|GRAIN|GRAINS|MALT|BASEMALT|BASE|SPECIALTYMALT|SPECIALITYMALT|SPECIALTY|CRYSTALMALT|CRYSTAL|"
        "CARAMELMALT|CARAMEL|CARAMEL/CRYSTALMALT|ROASTEDMALT|ROASTED|ACIDULATEDMALT|SMOKEDMALT|TOASTED|",
        {Type::Grain, "grain"}},
    Row<Type>{"|ADJUNCT|ADJUNCTS|FLAKED|RAW|UNMALTED|OTHERADJUNCT|", {Type::Adjunct, "adjunct"}},
    Row<Type>{"|SUGAR|SUGARS|SYRUP|CANDISUGAR|CANDY|", {Type::Sugar, "sugar"}},
    Row<Type>{"|EXTRACT|LIQUIDEXTRACT|LIQUIDMALTEXTRACT|LIQUIDMALT|MALTEXTRACT|LME|",
              {Type::Extract, "liquid extract"}},
    Row<Type>{"|DRYEXTRACT|DRYMALTEXTRACT|DRIEDMALTEXTRACT|DRIEDEXTRACT|DRYMALT|DME|",
              {Type::DryExtract, "dry extract"}},
    Row<Type>{"|FRUIT|FRUITS|", {Type::Fruit, "fruit"}},
    Row<Type>{"|JUICE|JUICES|", {Type::Juice, "juice"}},
    Row<Type>{"|HONEY|", {Type::Honey, "honey"}},
    Row<Type>{"|OTHER|", {Type::Other, "other"}},
};

constexpr std::array kHopForms = {
    Row<Form>{"|PELLET|PELLETS|T90|T45|", {Form::Pellet, "pellet"}},
    Row<Form>{"|PLUG|PLUGS|", {Form::Plug, "plug"}},
    Row<Form>{"|LEAF|LEAVES|WHOLE|LEAF/WHOLE|WHOLE/LEAF|WHOLELEAF|LEAFWHOLE|CONE|CONES|WHOLECONE|FLOWER|",
              {Form::Leaf, "leaf"}},
    Row<Form>{"|LEAF(WET)|WET|WETLEAF|WETHOP|FRESH|GREEN|", {Form::WetLeaf, "wet leaf"}},
    Row<Form>{"|EXTRACT|OIL|HOPOIL|CO2EXTRACT|HOPEXTRACT|HOPSHOT|", {Form::Extract, "extract"}},
    Row<Form>{"|POWDER|LUPULIN|LUPULINPOWDER|CRYO|CRYOHOPS|", {Form::Powder, "powder"}},
};

constexpr std::array kRecipeTypes = {
    Row<Recipe>{"|EXTRACT|EXTRACTS|EXTRACTWITHGRAINS|", {Recipe::Extract, "extract"}},
    Row<Recipe>{"|PARTIALMASH|PARTIAL|MINIMASH|", {Recipe::PartialMash, "partial mash"}},
    Row<Recipe>{"|ALLGRAIN|GRAIN|BIAB|BREWINABAG|", {Recipe::AllGrain, "all grain"}},
};

constexpr std::array kIbuMethods = {
    Row<ForeignIbuMethod>{"|TINSETH|", {ForeignIbuMethod::Tinseth, "Tinseth"}},
    Row<ForeignIbuMethod>{"|RAGER|", {ForeignIbuMethod::Rager, "Rager"}},
    Row<ForeignIbuMethod>{"|GARETZ|", {ForeignIbuMethod::Garetz, "Garetz"}},
};

constexpr std::array kBooleans = {
    Row<bool>{"|TRUE|1|YES|Y|T|ON|", {true, "TRUE"}},
    Row<bool>{"|FALSE|0|NO|N|F|OFF|", {false, "FALSE"}},
};

template <class T, std::size_t N>
std::optional<WordMeaning<T>> Find(const std::array<Row<T>, N>& rows, std::string_view word) {
    constexpr std::size_t kLongest = 60;
    if (word.size() > kLongest || word.find('|') != std::string_view::npos) return std::nullopt;
    const std::string between = "|" + Folded(word) + "|";
    const auto* const found = std::ranges::find_if(
        rows, [&](const Row<T>& row) { return row.words.find(between) != std::string_view::npos; });
    if (between == "||" || found == rows.end()) return std::nullopt;
    return found->meaning;
}

}  // namespace

WordFit FitOf(std::string_view word, std::span<const std::string_view> list) {
    if (std::ranges::find(list, word) != list.end()) return WordFit::Listed;
    const std::string folded = Folded(word);
    const bool fits =
        std::ranges::any_of(list, [&](std::string_view each) { return Folded(each) == folded; });
    return fits ? WordFit::Folded : WordFit::None;
}

std::optional<WordMeaning<ForeignUse>> UseOfWord(std::string_view word) {
    return Find(kUses, word);
}

std::optional<WordMeaning<ForeignFermentable::Type>> FermentableTypeOfWord(std::string_view word) {
    return Find(kFermentableTypes, word);
}

std::optional<WordMeaning<ForeignHop::Form>> HopFormOfWord(std::string_view word) {
    return Find(kHopForms, word);
}

std::optional<WordMeaning<ForeignRecipe::Type>> RecipeTypeOfWord(std::string_view word) {
    return Find(kRecipeTypes, word);
}

std::optional<WordMeaning<ForeignIbuMethod>> IbuMethodOfWord(std::string_view word) {
    return Find(kIbuMethods, word);
}

std::optional<WordMeaning<bool>> BooleanOfWord(std::string_view word) {
    return Find(kBooleans, word);
}

}  // namespace tw
