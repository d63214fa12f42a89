#include "doctor/DoctorReport.h"

#include "doctor/FigureTexts.h"

namespace tw {
namespace {

constexpr std::string_view kLineEnd = "\r\n";

void AddLine(std::string& text, int level, std::string_view line) {
    text.append(static_cast<std::size_t>(level) * 2, ' ').append(line).append(kLineEnd);
}

void AddFindings(std::string& text, int level, const std::vector<FindingLine>& lines) {
    if (lines.empty()) AddLine(text, level, "Nothing was found.");
    for (const FoldedFinding& folded : Fold(lines)) {
        for (const FindingLine& line : folded.lines) {
            const std::string place = line.place.empty() ? std::string() : line.place + ": ";
            AddLine(text, level, std::string(WordOf(line.severity)) + ": " + place + line.text);
        }
    }
}

void AddFigures(std::string& text, int level, const DoctorRecipe& recipe) {
    for (const FigureColumn& column : FigureColumns()) {
        const std::string stated = FigureText(column, recipe.stated);
        const std::string calculated = FigureText(column, recipe.calculated);
        if (stated.empty() && calculated.empty()) continue;
        AddLine(text, level,
                std::string(column.caption) + ": " + (stated.empty() ? "not stated" : stated + " stated") +
                    ", " + (calculated.empty() ? "not calculated" : calculated + " calculated"));
    }
}

}  // namespace

std::string DoctorReport(const std::vector<DoctorFile>& files, const std::vector<FindingLine>& imported,
                         const DateTime& when) {
    std::string text;
    AddLine(text, 0, "Import from other programs, " + ShortDate(when));
    if (!imported.empty()) AddLine(text, 0, "");
    for (const FindingLine& line : imported) AddLine(text, 0, line.place + ": " + line.text);
    for (const DoctorFile& file : files) {
        AddLine(text, 0, "");
        AddLine(text, 0, "File " + file.path);
        if (!file.findings.empty()) AddFindings(text, 1, file.findings);
        for (const DoctorRecipe& recipe : file.recipes) {
            AddLine(text, 0, "");
            AddLine(text, 1, "Recipe " + recipe.name);
            AddFigures(text, 2, recipe);
            AddFindings(text, 2, recipe.findings);
        }
    }
    return text;
}

}  // namespace tw
