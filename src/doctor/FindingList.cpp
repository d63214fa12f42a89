#include "doctor/FindingList.h"

#include <algorithm>
#include <cstddef>
#include <map>
#include <string_view>
#include <utility>

namespace tw {
namespace {

bool IsDigit(char c) {
    return c >= '0' && c <= '9';
}

bool IsWordCharacter(char c) {
    return IsDigit(c) || (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

// Returns the place behind the quoted words that begin at start; start if nothing is quoted there. The
// apostrophe of "file's" opens nothing, and that of "brewer's" within quotes closes nothing.
std::size_t EndOfQuote(std::string_view text, std::size_t start) {
    const char mark = text[start];
    if (mark != '\'' && mark != '"') return start;
    if (start > 0 && IsWordCharacter(text[start - 1])) return start;
    for (std::size_t i = text.find(mark, start + 1); i != std::string_view::npos; i = text.find(mark, i + 1))
        if (i + 1 == text.size() || !IsWordCharacter(text[i + 1])) return i + 1;
    return start;
}

std::size_t EndOfNumber(std::string_view text, std::size_t start) {
    std::size_t end = start;
    while (end < text.size() && IsDigit(text[end])) {
        while (end < text.size() && IsDigit(text[end])) ++end;
        const bool goesOn =
            end + 1 < text.size() && (text[end] == '.' || text[end] == ',') && IsDigit(text[end + 1]);
        if (goesOn) ++end;
    }
    return end;
}

// Returns the text without what differs between findings of one kind.
std::string PatternOf(std::string_view text) {
    std::string pattern;
    for (std::size_t i = 0; i < text.size();) {
        const std::size_t end = std::max(EndOfQuote(text, i), EndOfNumber(text, i));
        if (end > i) {
            pattern += '#';
            i = end;
        } else {
            pattern += text[i++];
        }
    }
    return pattern;
}

FoldedFinding Single(const FindingLine& line) {
    return {line.severity, line.place, line.text, {line}};
}

void Name(FoldedFinding& finding) {
    if (finding.lines.size() == 1) return;
    const auto isFirst = [&](const FindingLine& line) { return line.text == finding.lines.front().text; };
    const bool same = std::ranges::all_of(finding.lines, isFirst);
    finding.place.clear();
    finding.text =
        std::to_string(finding.lines.size()) + (same ? " times: " : " times, such as: ") + finding.text;
}

}  // namespace

FindingLine LineOf(const Finding& finding) {
    return {finding.severity, finding.place, finding.text};
}

std::string PlaceWithRecipe(const std::string& recipe, const std::string& place) {
    return place.empty() ? recipe : recipe + ", " + place;
}

std::vector<FoldedFinding> Fold(const std::vector<FindingLine>& lines) {
    std::vector<FoldedFinding> folded;
    std::map<std::pair<Severity, std::string>, std::size_t> places;
    for (const FindingLine& line : lines) {
        const auto [place, isNew] = places.try_emplace({line.severity, PatternOf(line.text)}, folded.size());
        if (isNew)
            folded.push_back(Single(line));
        else
            folded[place->second].lines.push_back(line);
    }
    for (FoldedFinding& finding : folded) Name(finding);
    std::ranges::stable_sort(folded, std::ranges::greater(), &FoldedFinding::severity);
    return folded;
}

std::vector<FoldedFinding> Unfolded(const std::vector<FindingLine>& lines) {
    std::vector<FoldedFinding> findings;
    for (const FindingLine& line : lines) findings.push_back(Single(line));
    return findings;
}

std::string TextOf(const std::vector<FoldedFinding>& findings) {
    std::string text;
    for (const FoldedFinding& finding : findings) {
        text.append(WordOf(finding.severity)).append(": ");
        if (!finding.place.empty()) text.append(finding.place).append(": ");
        text.append(finding.text).append("\n");
    }
    return text;
}

std::optional<Severity> WorstOf(const std::vector<FindingLine>& lines) {
    if (lines.empty()) return std::nullopt;
    return std::ranges::max(lines, {}, &FindingLine::severity).severity;
}

}  // namespace tw
