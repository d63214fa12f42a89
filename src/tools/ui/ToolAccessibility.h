// The roles of the tools' pictures for assistive programs.
#pragma once

namespace tw {

// Makes assistive programs see the graph and the colour scale as graphics with a description of what they
// show. Call once.
void InstallToolAccessibility();

}  // namespace tw
