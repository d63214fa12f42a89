#include "tree/RowFacts.h"

#include "values/Text.h"

namespace tw {
namespace {

// The form of nearly all hops, which is not worth searching for.
constexpr std::string_view kUsualHopForm = "Pellet or leaf";

// Returns "Beer style guide of 2021" for "Beer 2021".
std::string GuideName(const std::string& guide) {
    const std::size_t blank = guide.find(' ');
    if (blank == std::string::npos) return guide;
    return guide.substr(0, blank) + " style guide of " + guide.substr(blank + 1);
}

}  // namespace

RowFacts::RowFacts(Database& database, CatalogueKind kind)
    : kind_(kind), facts_(CatalogueNames(database).FactsOf(kind)) {}

void RowFacts::AddTo(ListRow& row) const {
    const auto found = facts_.find(Upper(row.cells.front()));
    if (found == facts_.end()) return;
    const CatalogueFacts& facts = found->second;
    row.otherNames = facts.aliases;
    if (kind_ == CatalogueKind::Style) {
        row.code = facts.code;
        row.origin = GuideName(facts.source);
        return;
    }
    // A product's code is already part of its name, so it is not shown again.
    for (const std::string& fact : {facts.source, facts.form}) {
        if (fact.empty()) continue;
        row.origin += (row.origin.empty() ? "" : ", ") + fact;
        if (fact != kUsualHopForm) row.otherNames.push_back(fact);
    }
    if (!facts.code.empty()) row.otherNames.push_back(facts.code);
}

std::string StyleGuides(Database& database) {
    std::string guides;
    for (const std::string& source : CatalogueNames(database).SourcesOf(CatalogueKind::Style))
        guides += (guides.empty() ? "" : ", ") + GuideName(source);
    return guides;
}

}  // namespace tw
