#include "doctor/KnownFigures.h"

#include "values/Text.h"

namespace tw {
namespace {

// Returns the figures of the entry found, which read is asked for only once.
template <class Figures, class Read>
std::optional<Known<Figures>> Remembered(const std::optional<CatalogueMatch>& match,
                                         std::unordered_map<std::string, Figures>& known, Read read) {
    if (!match) return std::nullopt;
    auto found = known.find(match->name);
    if (found == known.end()) found = known.emplace(match->name, read(match->name).value_or(Figures{})).first;
    return Known<Figures>{*match, found->second};
}

}  // namespace

std::optional<Known<FermentableFigures>> KnownFigures::Fermentable(CatalogueKind kind,
                                                                   const NameSought& sought) {
    return Remembered(matcher_.Find(kind, sought), kind == CatalogueKind::Grain ? grains_ : extracts_,
                      [&](const std::string& name) { return catalogue_.Fermentable(kind, name); });
}

std::optional<Known<HopFigures>> KnownFigures::Hop(const NameSought& sought) {
    return Remembered(matcher_.Find(CatalogueKind::Hop, sought), hops_,
                      [&](const std::string& name) { return catalogue_.Hop(name); });
}

void KnownFigures::Forget() {
    matcher_.Forget();
    grains_.clear();
    extracts_.clear();
    hops_.clear();
    sugars_.clear();
    facts_.clear();
}

const CatalogueFacts* KnownFigures::Facts(CatalogueKind kind, std::string_view name) {
    auto facts = facts_.find(kind);
    if (facts == facts_.end()) facts = facts_.emplace(kind, CatalogueNames(database_).FactsOf(kind)).first;
    const auto known = facts->second.find(Upper(name));
    return known == facts->second.end() ? nullptr : &known->second;
}

std::optional<Known<SugarFigures>> KnownFigures::Sugar(const NameSought& sought) {
    return Remembered(matcher_.Find(CatalogueKind::Sugar, sought), sugars_,
                      [&](const std::string& name) { return catalogue_.Sugar(name); });
}

}  // namespace tw
