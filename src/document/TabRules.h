// The properties of a recipe's nine tabs.
#pragma once

#include <optional>
#include <string_view>

#include "document/DocumentView.h"
#include "record/Controls.h"
#include "record/Grid.h"

namespace tw {

struct TabRule {
    const char* caption = nullptr;
    // The control that gets the focus when the tab is shown: a text box or a grid.
    std::optional<FieldId> firstBox;
    std::optional<GridId> firstGrid;
    // The grid on which the row commands act; nullopt for none.
    std::optional<GridId> rows;
};

const TabRule& RuleOf(Tab tab);
// Returns the name of the control that gets the focus first.
std::string_view FirstControlOf(Tab tab);

}  // namespace tw
