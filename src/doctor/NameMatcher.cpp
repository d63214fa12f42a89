#include "doctor/NameMatcher.h"

#include <algorithm>
#include <map>
#include <set>

#include "doctor/NameWords.h"
#include "store/CatalogueNames.h"
#include "values/Text.h"

namespace tw {
namespace {

using Strings = std::vector<std::string>;

std::string Key(const Strings& words) {
    std::string key;
    for (const std::string& word : words) key.append(word).append(" ");
    return key;
}

bool Meet(const Strings& a, const Strings& b) {
    return std::ranges::any_of(a,
                               [&](const std::string& word) { return std::ranges::binary_search(b, word); });
}

// Returns the letters and digits of a code in upper case: "WLP001" for "WLP 001", "US05" for "US-05".
std::string FoldedCode(std::string_view code) {
    std::string folded;
    for (const char c : Upper(code))
        if ((c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z')) folded += c;
    return folded;
}

std::string Digits(std::string_view text) {
    std::string digits;
    std::ranges::copy_if(text, std::back_inserter(digits), [](char c) { return c >= '0' && c <= '9'; });
    return digits;
}

// Returns the name without a remark in brackets, unless it has a number, which tells one malt from another.
std::string WithoutRemark(std::string_view name) {
    const std::size_t open = name.find('(');
    const std::size_t close = name.find(')', open);
    if (open == std::string_view::npos || close == std::string_view::npos) return std::string(name);
    if (!Digits(name.substr(open, close - open)).empty()) return std::string(name);
    return std::string(Trim(name.substr(0, open))) + std::string(name.substr(close + 1));
}

// Names that differ in so many letters can still be slips of one name.
std::size_t SlipsIn(std::string_view name) {
    constexpr std::size_t kShort = 5, kLong = 10;
    if (name.size() < kShort) return 0;
    return name.size() < kLong ? 1 : 2;
}

void Merge(Strings& into, const Strings& from) {
    into.insert(into.end(), from.begin(), from.end());
    std::ranges::sort(into);
}

// What is sought, ready for comparison.
struct Sought {
    explicit Sought(const NameSought& sought)
        : upper(Upper(Trim(sought.name))), words(WordsOfName(sought.name)), code(FoldedCode(sought.code)) {
        Merge(words.origins, WordsOfName(sought.origin).origins);
        Merge(words.suppliers, WordsOfName(sought.supplier).suppliers);
        guideYear = Digits(sought.supplier);
    }
    std::string upper;
    NameWords words;
    std::string code;
    std::string guideYear;
};

}  // namespace

// One list of the catalogue with the ways to find its entries.
class NameMatcher::List {
  public:
    List(Database& database, CatalogueKind kind) : kind_(kind) {
        const CatalogueNames names(database);
        const NameList list = names.NamesOf(kind);
        const auto facts = names.FactsOf(kind);
        entries_.reserve(list.Count());
        for (std::size_t i = 0; i < list.Count(); ++i) {
            const auto known = facts.find(Upper(list.Name(i)));
            Add(list.Name(i), known == facts.end() ? CatalogueFacts() : known->second);
        }
    }

    std::optional<CatalogueMatch> Find(const Sought& sought) const {
        if (const auto entry = byName_.find(sought.upper); entry != byName_.end())
            return CatalogueMatch{entries_[entry->second].name, MatchedBy::Name};
        if (auto found = Match(Of(byJoined_, sought.words.joined), sought, MatchedBy::Folded)) return found;
        if (auto found = Match(Coded(sought), sought, MatchedBy::Code)) return found;
        auto meant = Match(Of(byAlias_, sought.words.joined), sought, MatchedBy::Alias);
        if (!meant) meant = Match(Of(byWords_, Key(sought.words.all)), sought, MatchedBy::Words);
        if (meant && !IsFromElsewhere(*meant, sought)) return meant;
        // The country belongs to what a style is.
        if (kind_ != CatalogueKind::Style && !sought.words.core.empty()) {
            auto core = Match(Of(byCore_, Key(sought.words.core)), sought, MatchedBy::Core);
            if (core && !(meant && IsFromElsewhere(*core, sought))) return core;
        }
        return meant;
    }

    // Returns the entry whose name or alias differs in a slip only.
    std::optional<CatalogueMatch> FindNear(const Sought& sought) const {
        const Entries near = Near(sought.words.joined);
        return Match(&near, sought, MatchedBy::Near);
    }

  private:
    struct Entry {
        std::string name;
        Strings origins, suppliers;  // sorted
        std::string guideYear;       // of a style's code
    };
    using Entries = std::set<std::size_t>;
    using Index = std::unordered_map<std::string, Entries>;

    static const Entries* Of(const Index& index, const std::string& key) {
        const auto found = index.find(key);
        return found == index.end() ? nullptr : &found->second;
    }

    std::optional<CatalogueMatch> Match(const Entries* entries, const Sought& sought, MatchedBy by) const {
        const std::optional<std::size_t> only = Only(entries, sought);
        if (!only) return std::nullopt;
        return CatalogueMatch{entries_[*only].name, by};
    }

    // True if the entry is from another country or maker than the one sought.
    bool IsFromElsewhere(const CatalogueMatch& match, const Sought& sought) const {
        return Fit(entries_[byName_.at(Upper(Trim(match.name)))], sought.words) < 0 &&
               !(sought.words.origins.empty() && sought.words.suppliers.empty());
    }

    void Add(const std::string& name, const CatalogueFacts& facts) {
        const std::size_t number = entries_.size();
        const NameWords words = WordsOfName(name);
        const NameWords source = WordsOfName(facts.source);
        Entry entry{name, words.origins, words.suppliers, Digits(facts.source)};
        Merge(entry.origins, source.origins);
        Merge(entry.suppliers, source.suppliers);
        entries_.push_back(std::move(entry));
        byName_.emplace(Upper(Trim(name)), number);
        byJoined_[words.joined].insert(number);
        if (!facts.code.empty()) byCode_[FoldedCode(facts.code)].insert(number);
        AddWords(words, number);
        for (const std::string& alias : facts.aliases) AddAlias(WordsOfName(alias), number);
        // A yeast is "Laboratory Code Name"; other programs have each in a field of its own.
        if (kind_ == CatalogueKind::Yeast) AddAlias(WordsOfName(WithoutCode(name, facts)), number);
    }

    static std::string WithoutCode(const std::string& name, const CatalogueFacts& facts) {
        std::string rest = name;
        for (const std::string& part : {facts.source, facts.code})
            if (!part.empty() && rest.find(part) != std::string::npos)
                rest.erase(rest.find(part), part.size());
        return rest;
    }

    void AddAlias(const NameWords& words, std::size_t number) {
        if (words.joined.empty()) return;
        byAlias_[words.joined].insert(number);
        AddWords(words, number);
    }

    void AddWords(const NameWords& words, std::size_t number) {
        if (words.all.empty()) return;
        byWords_[Key(words.all)].insert(number);
        if (!words.core.empty()) byCore_[Key(words.core)].insert(number);
        spellings_.emplace_back(words.joined, number);
    }

    // The entries with the code sought, except those of another laboratory or guide.
    const Entries* Coded(const Sought& sought) const {
        const Entries* const coded = sought.code.empty() ? nullptr : Of(byCode_, sought.code);
        if (!coded) return nullptr;
        const Entry& first = entries_[*coded->begin()];
        // The numbers of styles differ from one edition of a guide to the next.
        if (kind_ == CatalogueKind::Style) return first.guideYear == sought.guideYear ? coded : nullptr;
        const bool otherMaker = coded->size() == 1 && !sought.words.suppliers.empty() &&
                                !first.suppliers.empty() && !Meet(sought.words.suppliers, first.suppliers);
        return otherMaker ? nullptr : coded;
    }

    // Returns the entries whose name or alias is closest, if that is close enough to be a slip.
    Entries Near(const std::string& joined) const {
        Entries nearest;
        std::size_t least = SlipsIn(joined);
        if (least == 0) return nearest;
        const std::string digits = Digits(joined);
        for (const auto& [spelling, number] : spellings_) {
            if (Digits(spelling) != digits) continue;
            const std::size_t distance = EditDistance(joined, spelling, least);
            if (distance > least) continue;
            if (distance < least) nearest.clear();
            least = distance;
            nearest.insert(number);
        }
        return nearest;
    }

    // Returns the entry meant: the only one, or the only one that fits origin and supplier best; among
    // equals, the one that names neither.
    std::optional<std::size_t> Only(const Entries* entries, const Sought& sought) const {
        if (!entries || entries->empty()) return std::nullopt;
        if (entries->size() == 1) return *entries->begin();
        std::map<int, std::vector<std::size_t>> byFit;
        for (const std::size_t number : *entries)
            byFit[Fit(entries_[number], sought.words)].push_back(number);
        const std::vector<std::size_t>& best = byFit.rbegin()->second;
        if (best.size() == 1) return best.front();
        return std::nullopt;
    }

    static int Fit(const Entry& entry, const NameWords& sought) {
        constexpr int kSame = 4, kOther = -4, kNeedlesslyNamed = -1;
        const auto fit = [](const Strings& has, const Strings& wants) {
            if (has.empty()) return 0;
            if (wants.empty()) return kNeedlesslyNamed;
            return Meet(wants, has) ? kSame : kOther;
        };
        return fit(entry.origins, sought.origins) + fit(entry.suppliers, sought.suppliers);
    }

    CatalogueKind kind_;
    std::vector<Entry> entries_;
    std::unordered_map<std::string, std::size_t> byName_;
    Index byJoined_, byCode_, byAlias_, byWords_, byCore_;
    std::vector<std::pair<std::string, std::size_t>> spellings_;
};

NameMatcher::NameMatcher(Database& database) : database_(database) {}
NameMatcher::~NameMatcher() = default;

std::optional<CatalogueMatch> NameMatcher::Find(CatalogueKind kind, const NameSought& sought) {
    std::string key = std::to_string(static_cast<int>(kind));
    for (const std::string_view part : {sought.name, sought.origin, sought.supplier, sought.code})
        key.append("\n").append(part);
    if (const auto known = found_.find(key); known != found_.end()) return known->second;
    std::unique_ptr<List>& list = lists_[static_cast<std::size_t>(kind)];
    if (!list) list = std::make_unique<List>(database_, kind);
    return found_[key] = FindIn(*list, sought);
}

void NameMatcher::Forget() {
    for (std::unique_ptr<List>& list : lists_) list.reset();
    found_.clear();
}

std::optional<CatalogueMatch> NameMatcher::FindIn(const List& list, const NameSought& sought) {
    const Sought whole(sought);
    if (whole.words.joined.empty() && whole.code.empty()) return list.Find(whole);
    if (auto found = list.Find(whole)) return found;
    NameSought shorter = sought;
    const std::string outside = WithoutRemark(sought.name);
    shorter.name = outside;
    if (shorter.name != sought.name)
        if (auto found = list.Find(Sought(shorter))) return CatalogueMatch{found->name, MatchedBy::Core};
    return list.FindNear(whole);
}

}  // namespace tw
