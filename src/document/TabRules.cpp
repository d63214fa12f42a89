#include "document/TabRules.h"

#include "record/CellRules.h"
#include "record/FieldRules.h"

namespace tw {
namespace {

constexpr TabRule WithGrid(const char* caption, GridId grid) {
    return {caption, std::nullopt, grid, grid};
}

// In the order of Tab.
constexpr TabRule kTabRules[kTabs] = {
    {"General", FieldId::Name, std::nullopt, std::nullopt},
    WithGrid("Malts && Grains", GridId::Grain),
    WithGrid("Extracts && Sugars", GridId::Extract),
    WithGrid("Hops", GridId::Hops),
    {"Water Profile", std::nullopt, GridId::Water, GridId::Treatment},
    {"Carbon Dioxide", FieldId::Temp, std::nullopt, GridId::Priming},
    WithGrid("Other Adjuncts", GridId::Adjuncts),
    WithGrid("Brew Log", GridId::Log),
    {"Misc. Notes", FieldId::Notes, std::nullopt, std::nullopt},
};

}  // namespace

const TabRule& RuleOf(Tab tab) {
    return kTabRules[static_cast<std::size_t>(tab)];
}

std::string_view FirstControlOf(Tab tab) {
    const TabRule& rule = RuleOf(tab);
    return rule.firstBox ? RuleOf(*rule.firstBox).name : RuleOf(*rule.firstGrid).name;
}

}  // namespace tw
