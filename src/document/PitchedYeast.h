// The notes of a brew log line that pitches a yeast: its name, and behind " - " its description.
#pragma once

#include <string_view>

#include "values/Text.h"

namespace tw {

// The name alone, trimmed.
inline std::string_view PitchedYeastName(std::string_view notes) {
    return Trim(notes.substr(0, notes.find(" - ")));
}

}  // namespace tw
