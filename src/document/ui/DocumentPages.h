// The contents of a document's nine tabs.
#pragma once

#include <QString>

#include "document/RecipeDocument.h"

class QWidget;

namespace tw {

class PageBuilder;

// Fills the builder's page with the controls of a tab.
void BuildPage(Tab tab, PageBuilder& builder);

}  // namespace tw
