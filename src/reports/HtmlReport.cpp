#include "reports/HtmlReport.h"

#include <algorithm>
#include <string>

#include "reports/ReportText.h"

namespace tw {
namespace {

// Returns the SIZE of a font: (points - 6) / 2, rounded down, from 0 to 1000. HTML itself has only 1 to 7.
int SizeOf(const ReportFont& font) {
    constexpr double kHighest = 1000;
    return static_cast<int>(std::clamp((font.points - 6) / 2, 0.0, kHighest));
}

}  // namespace

void HtmlReport::Line(std::string line) {
    stream_.Write(line.append("\r\n"));
}

void HtmlReport::BeginReport() {
    Line("<HTML>");
    Line("<HEAD>");
    Line("<TITLE>Tunwright Recipes</TITLE>");
    Line("</HEAD>");
    Line("<BODY BGCOLOR=" + HtmlColor(options_.bgColor) + " TEXT=" + HtmlColor(options_.text.color) + ">");
}

void HtmlReport::EndReport() {
    Line("</BODY>");
    Line("</HTML>");
}

void HtmlReport::ReportSeparator() {
    Line(options_.horizontalRulers ? "<BR><HR><BR>" : "<P>&nbsp;</P>");
}

void HtmlReport::ReportNewLine() {
    Line("<BR>");
}

void HtmlReport::Write(const ReportFont& font, std::string_view text, bool centred) {
    std::string line = centred ? "<CENTER>" : "";
    line += "<FONT FACE=\"" + HtmlText(font.face) + "\" COLOR=" + HtmlColor(font.color) +
            " SIZE=" + std::to_string(SizeOf(font)) + ">";
    if (font.bold) line += "<B>";
    if (font.italic) line += "<I>";
    if (font.underline) line += "<U>";
    if (font.strikethru) line += "<STRIKE>";
    line += HtmlText(text);
    if (font.strikethru) line += "</STRIKE>";
    if (font.underline) line += "</U>";
    if (font.italic) line += "</I>";
    if (font.bold) line += "</B>";
    line += "</FONT>";
    if (centred) line += "</CENTER>";
    Line(std::move(line));
}

}  // namespace tw
