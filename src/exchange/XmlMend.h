// Makes well-formed XML of files that should be BeerXML but are not quite.
#pragma once

#include <string>
#include <string_view>

#include "exchange/Finding.h"

namespace tw {

// Returns the file as well-formed XML in UTF-8 with one root and without DOCTYPE, whose entities are never
// used. Tags of BeerXML are in upper case; an element RECORD_SETS holds several roots that are not all
// records of one kind. Line N of the result is line N of the file. Each repair adds a finding with its line;
// a file that is well-formed keeps its elements and texts and gives none. Raises an Error if the file exceeds
// a limit, or if it has no tag at all.
std::string MendXml(std::string_view bytes, Findings& findings);

}  // namespace tw
