// The names of a list as texts.
#pragma once

#include <string>
#include <vector>

#include "values/NameMatch.h"

namespace tw::test {

inline std::vector<std::string> NamesIn(const NameList& list) {
    std::vector<std::string> names;
    for (std::size_t i = 0; i < list.Count(); ++i) names.push_back(list.Name(i));
    return names;
}

}  // namespace tw::test
