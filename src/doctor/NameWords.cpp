#include "doctor/NameWords.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <numeric>
#include <unordered_map>

#include "values/NameMatch.h"
#include "values/Split.h"

namespace tw {
namespace {

enum class WordKind : std::uint8_t { Spelling, Origin, Supplier, Filler };

// Words of names as files have them, each with the spelling in which it is compared. A filler says nothing
// that its list does not say already.
struct KnownWord {
    WordKind kind;
    std::string_view spelling;
    std::string_view variants;  // separated by blanks; of several words each is one variant
};

constexpr KnownWord kKnownWords[] = {
    {WordKind::Origin, "us", "us usa american america states"},
    {WordKind::Origin, "uk", "uk gb british britain english england kingdom"},
    {WordKind::Origin, "german", "german germany ger de deutschland"},
    {WordKind::Origin, "belgian", "belgian belgium bel be"},
    {WordKind::Origin, "czech", "czech cz czechia"},
    {WordKind::Origin, "french", "french france fr"},
    {WordKind::Origin, "nz", "nz zealand"},
    {WordKind::Origin, "au", "au aus australian australia"},
    {WordKind::Origin, "canadian", "canadian canada ca"},
    {WordKind::Origin, "polish", "polish poland pl"},
    {WordKind::Origin, "slovenian", "slovenian slovenia si"},
    {WordKind::Origin, "japanese", "japanese japan jp"},
    {WordKind::Origin, "scottish", "scottish scotland"},
    {WordKind::Origin, "irish", "irish ireland"},
    {WordKind::Supplier, "briess", "briess"},
    {WordKind::Supplier, "weyermann", "weyermann weyerman"},
    {WordKind::Supplier, "castle", "castle chateau chateaux"},
    {WordKind::Supplier, "dingemans", "dingemans dingeman mout"},
    {WordKind::Supplier, "crisp", "crisp"},
    {WordKind::Supplier, "simpsons", "simpsons simpson"},
    {WordKind::Supplier, "muntons", "muntons munton"},
    {WordKind::Supplier, "bairds", "bairds baird"},
    {WordKind::Supplier, "fawcett", "fawcett thomas warminster"},
    {WordKind::Supplier, "bestmalz", "bestmalz"},
    {WordKind::Supplier, "avangard", "avangard"},
    {WordKind::Supplier, "rahr", "rahr"},
    {WordKind::Supplier, "gambrinus", "gambrinus"},
    {WordKind::Supplier, "viking", "viking"},
    {WordKind::Supplier, "swaen", "swaen"},
    {WordKind::Supplier, "ireks", "ireks"},
    {WordKind::Supplier, "gladfield", "gladfield"},
    {WordKind::Supplier, "coopers", "coopers cooper"},
    {WordKind::Supplier, "white labs", "labs whitelabs"},
    {WordKind::Supplier, "wyeast", "wyeast"},
    {WordKind::Supplier, "fermentis", "fermentis dcl safale saflager safbrew"},
    {WordKind::Supplier, "lallemand", "lallemand danstar"},
    {WordKind::Supplier, "mangrove jack", "mangrove jacks jack"},
    {WordKind::Supplier, "omega", "omega"},
    {WordKind::Supplier, "imperial", "imperial"},
    {WordKind::Filler, "",
     "malt malts malted hop hops yeast the of and or united pellet pellets organic type"},
    {WordKind::Spelling, "pilsner", "pilsner pilsener pilsen pils plzen"},
    {WordKind::Spelling, "hallertau", "hallertau hallertauer hallertaur"},
    {WordKind::Spelling, "tettnang", "tettnang tettnanger tett"},
    {WordKind::Spelling, "hersbruck", "hersbruck hersbrucker"},
    {WordKind::Spelling, "mittelfruh", "mittelfruh mittelfrueh mittlefruh mittelfruher mittelfruth"},
    {WordKind::Spelling, "golding", "golding goldings"},
    {WordKind::Spelling, "fuggle", "fuggle fuggles"},
    {WordKind::Spelling, "saaz", "saaz saazer zatec"},
    {WordKind::Spelling, "spalt", "spalt spalter"},
    {WordKind::Spelling, "select", "select selekt"},
    {WordKind::Spelling, "mandarina", "mandarina mandarin"},
    {WordKind::Spelling, "munich", "munich muenchner munchner munchener"},
    {WordKind::Spelling, "vienna", "vienna wiener wien"},
    {WordKind::Spelling, "kolsch", "kolsch koelsch"},
    {WordKind::Spelling, "weizen", "weizen weisse weissbier weiss hefeweizen"},
    {WordKind::Spelling, "caramel", "caramel crystal cara"},
    {WordKind::Spelling, "roasted", "roasted roast"},
    {WordKind::Spelling, "flaked", "flaked flakes"},
    {WordKind::Spelling, "torrified", "torrified torrefied"},
    {WordKind::Spelling, "smoked", "smoked smoke rauch"},
    {WordKind::Spelling, "peated", "peated peat"},
    {WordKind::Spelling, "oats", "oats oat"},
    {WordKind::Spelling, "chocolate", "chocolate choc choco"},
    {WordKind::Spelling, "carapils", "carapils"},
    {WordKind::Spelling, "melanoidin", "melanoidin melanoiden melanoidine"},
    {WordKind::Spelling, "candi", "candi candy kandi"},
    {WordKind::Spelling, "liquid", "liquid lme syrup"},
    {WordKind::Spelling, "dry", "dry dried dme spraymalt"},
    {WordKind::Spelling, "1", "i"},
    {WordKind::Spelling, "2", "ii two"},
    {WordKind::Spelling, "3", "iii three"},
    {WordKind::Spelling, "6", "vi six"},
    {WordKind::Spelling, "lager", "lager lagers"},
    {WordKind::Spelling, "ale", "ale ales"},
};

using WordTable = std::unordered_map<std::string, const KnownWord*>;

const WordTable& KnownWords() {
    static const WordTable table = [] {
        WordTable words;
        for (const KnownWord& known : kKnownWords)
            for (const std::string_view variant : Split(known.variants, ' '))
                words.emplace(std::string(variant), &known);
        return words;
    }();
    return table;
}

// A degree of colour, "l", or of lintner says nothing besides its number.
bool IsUnitOfNumber(const std::string& word) {
    return word == "l" || word == "lovibond" || word == "srm";
}

void SortUnique(std::vector<std::string>& words) {
    std::ranges::sort(words);
    words.erase(std::ranges::unique(words).begin(), words.end());
}

}  // namespace

NameWords WordsOfName(std::string_view name) {
    NameWords words;
    for (std::string& word : MatchWords(name)) {
        words.joined += word;
        if (IsUnitOfNumber(word)) continue;
        const auto known = KnownWords().find(word);
        if (known == KnownWords().end()) {
            words.core.push_back(word);
            words.all.push_back(std::move(word));
            continue;
        }
        const std::string spelling(known->second->spelling);
        switch (known->second->kind) {
            case WordKind::Filler:
                continue;
            case WordKind::Origin:
                words.origins.push_back(spelling);
                break;
            case WordKind::Supplier:
                words.suppliers.push_back(spelling);
                break;
            case WordKind::Spelling:
                words.core.push_back(spelling);
                break;
        }
        words.all.push_back(spelling);
    }
    for (auto* const each : {&words.all, &words.core, &words.origins, &words.suppliers}) SortUnique(*each);
    return words;
}

std::size_t EditDistance(std::string_view a, std::string_view b, std::size_t most) {
    if ((a.size() > b.size() ? a.size() - b.size() : b.size() - a.size()) > most) return most + 1;
    // Rows of the table of distances between the beginnings of both texts: the last two and the next.
    std::vector<std::size_t> before(b.size() + 1), last(b.size() + 1), next(b.size() + 1);
    std::iota(last.begin(), last.end(), 0U);
    for (std::size_t i = 1; i <= a.size(); ++i) {
        next[0] = i;
        for (std::size_t j = 1; j <= b.size(); ++j) {
            const std::size_t replaced = last[j - 1] + (a[i - 1] == b[j - 1] ? 0 : 1);
            next[j] = std::min({last[j] + 1, next[j - 1] + 1, replaced});
            if (i > 1 && j > 1 && a[i - 1] == b[j - 2] && a[i - 2] == b[j - 1])
                next[j] = std::min(next[j], before[j - 2] + 1);
        }
        before.swap(last);
        last.swap(next);
    }
    return std::min(last[b.size()], most + 1);
}

}  // namespace tw
