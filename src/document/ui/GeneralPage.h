// The first tab, the recipe's face: its name and sizes at the left, its figures at the right.
#pragma once

namespace tw {

class PageBuilder;

void BuildGeneral(PageBuilder& builder);

}  // namespace tw
