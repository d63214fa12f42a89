#include "exchange/ForeignTelling.h"

#include <algorithm>
#include <utility>

namespace tw {
namespace {

// "A, B and 3 more"
std::string Listed(const std::vector<std::string>& words) {
    constexpr std::size_t kMost = 30;
    std::string text;
    for (std::size_t i = 0; i < std::min(words.size(), kMost); ++i) {
        if (i > 0) text += ", ";
        text += words[i];
    }
    if (words.size() > kMost) text += " and " + std::to_string(words.size() - kMost) + " more";
    return text;
}

}  // namespace

void ForeignTelling::Tell(Severity severity, FindingCode code, std::string_view place,
                          std::string text) const {
    findings_.Add({severity, code, recipe_, std::string(place), std::move(text)});
}

void ForeignTelling::TellFigure(std::string_view place, std::string_view field, std::string_view text,
                                const ForeignFigure& figure, FigureUnit unit) const {
    tw::TellFigure(findings_, {recipe_, place, field}, text, figure, WordOf(unit));
}

void ForeignTelling::TellWord(std::string_view place, std::string_view field, std::string_view word,
                              std::span<const std::string_view> list, std::string_view readAs) const {
    const WordFit fit = FitOf(word, list);
    if (fit == WordFit::Listed) return;
    const std::string start = std::string(field) + " " + Quoted(word);
    if (fit == WordFit::Folded)
        Tell(Severity::Repaired, FindingCode::WordCase, place, start + " is not spelled as in the format.");
    else if (!readAs.empty())
        Tell(Severity::Approximated, FindingCode::UnknownWord, place,
             start + " is not a word of the format and was read as " + std::string(readAs) + ".");
    else
        Tell(Severity::Note, FindingCode::UnknownWord, place,
             start + " is not a word of the format and says nothing here.");
}

void ForeignTelling::TellFields(Severity severity, FindingCode code, std::string_view place,
                                std::string_view what, const std::vector<std::string>& fields) const {
    if (!fields.empty()) Tell(severity, code, place, std::string(what) + ": " + Listed(fields) + ".");
}

void ForeignTelling::NoteUnknown(std::string_view tag) {
    if (knownUnknown_.emplace(tag).second) unknownTags_.push_back(Quoted(tag));
}

void ForeignTelling::TellUnknown(std::string_view formatName) const {
    TellFields(Severity::Note, FindingCode::UnknownTag, "",
               "These fields are not part of " + std::string(formatName) + " and are kept aside",
               unknownTags_);
}

std::vector<std::string> ForeignTelling::KeptAside() const {
    std::vector<std::pair<std::ptrdiff_t, std::string>> sorted;
    for (const auto& [path, order] : keptAside_) sorted.emplace_back(order, path);
    std::ranges::sort(sorted);
    std::vector<std::string> paths;
    for (auto& each : sorted) paths.push_back(std::move(each.second));
    return paths;
}

}  // namespace tw
