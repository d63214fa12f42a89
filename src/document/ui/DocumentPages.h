// The contents of a document's nine tabs.
#pragma once

#include <QString>

#include "document/RecipeDocument.h"

class QWidget;

namespace tw {

class PageBuilder;

// What a tab is called, and the control that takes the focus when it comes to the front.
struct TabText {
    const char* caption;
    const char* firstFocus;
};
const TabText& TextOf(Tab tab);

// Fills the builder's page with the controls of a tab.
void BuildPage(Tab tab, PageBuilder& builder);

}  // namespace tw
