// The roles of the tools' own pictures for assistive programs.
#pragma once

namespace tw {

// Makes the graph and the colour scale known as graphics that say what they show. Called once.
void InstallToolAccessibility();

}  // namespace tw
