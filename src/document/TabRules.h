// What the nine tabs of a recipe are.
#pragma once

#include <optional>
#include <string_view>

#include "document/DocumentView.h"
#include "record/Controls.h"
#include "record/Grid.h"

namespace tw {

struct TabRule {
    const char* caption;
    // The control that takes the focus when the tab comes to the front: a text box or a grid.
    std::optional<FieldId> firstBox;
    std::optional<GridId> firstGrid;
    // The grid that the row commands act on; nothing for none.
    std::optional<GridId> rows;
};

const TabRule& RuleOf(Tab tab);
// The name of the control that takes the focus first.
std::string_view FirstControlOf(Tab tab);

}  // namespace tw
