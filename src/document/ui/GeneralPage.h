// The first tab: the recipe's name and sizes on the left, its figures on the right.
#pragma once

namespace tw {

class PageBuilder;

void BuildGeneral(PageBuilder& builder);

}  // namespace tw
