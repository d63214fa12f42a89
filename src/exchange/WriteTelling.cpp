#include "exchange/WriteTelling.h"

#include <algorithm>

namespace tw {

void WriteTelling::NoteLost(const std::vector<std::string>& what) {
    for (const std::string& each : what) AddOnce(lost_, each);
}

void WriteTelling::End() const {
    telling_.TellFields(Severity::Note, FindingCode::Missing, "",
                        "The format requires figures that are unknown, which were written as 0 or as the "
                        "usual word",
                        filled_);
    telling_.TellFields(Severity::Note, FindingCode::NoNumber, "",
                        "Fields without a usable value, which the format does not allow, were left out",
                        dropped_);
    telling_.TellFields(Severity::Repaired, FindingCode::WordCase, "",
                        "Fields were written as the format spells them", respelled_);
    telling_.TellFields(Severity::Repaired, FindingCode::Duplicate, "",
                        "Of fields that a record had more than once, the first was written", twice_);
    telling_.TellFields(Severity::NotCarried, FindingCode::Carried, "",
                        std::string(formatName_) + " has no place for what was left out", lost_);
}

void WriteTelling::AddOnce(std::vector<std::string>& list, const std::string& text) {
    if (std::ranges::find(list, text) == list.end()) list.push_back(text);
}

}  // namespace tw
