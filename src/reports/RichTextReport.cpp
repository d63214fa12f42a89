#include "reports/RichTextReport.h"

#include <algorithm>
#include <cmath>
#include <string>

#include "reports/ReportText.h"

namespace tw {
namespace {

// Returns the font size in half points, the unit of rich text.
int HalfPoints(const ReportFont& font) {
    constexpr double kHighest = 3276;
    return static_cast<int>(std::round(std::clamp(font.points * 2, 0.0, kHighest)));
}

}  // namespace

void RichTextReport::Line(std::string line) {
    stream_.Write(line.append("\r\n"));
}

void RichTextReport::BeginReport() {
    // The first control word ends with the letter "l" instead of the digit 1. It is not corrected, since
    // readers accept it and the files must stay the same to the byte.
    Line("{\\rtfl\\ansi\\ansicpg1252\\uc1\\deff0\\deflang1033\\deflangfe1033");
    Line("{\\fonttbl {\\f0\\fnil " + RichText(options_.title.face) + ";}{\\f1\\fnil " +
         RichText(options_.label.face) + ";}{\\f2\\fnil " + RichText(options_.text.face) + ";}}");
    std::string colors = "{\\colortbl;\\red0\\green0\\blue0;\\red255\\green255\\blue255;";
    for (const ReportFont* font : {&options_.title, &options_.label, &options_.text})
        colors += RichTextColor(font->color) + RichTextColor(font->backColor);
    Line(colors + "}");
    Line("\\viewkind1\\pard\\plain");
}

void RichTextReport::EndReport() {
    Line("}");
}

void RichTextReport::ReportSeparator() {
    Line(options_.pageBreak ? "\\page" : "\\par\\par");
}

void RichTextReport::ReportNewLine() {
    Line("\\par");
}

void RichTextReport::WriteTitle(std::string_view text, bool centred) {
    Write(options_.title, "\\cf3\\highlight4", text, centred);
}

void RichTextReport::WriteLabel(std::string_view text, bool centred) {
    Write(options_.label, "\\cf5\\highlight6", text, centred);
}

void RichTextReport::WriteText(std::string_view text, bool centred) {
    Write(options_.text, "\\cf7\\highlight8", text, centred);
}

void RichTextReport::Write(const ReportFont& font, std::string_view colors, std::string_view text,
                           bool centred) {
    std::string line = centred ? "{\\qc" : "{";
    // Always font 0, whatever the font table holds. It is not corrected, since the files must stay the same
    // to the byte.
    line.append(colors).append("\\f0\\fs").append(std::to_string(HalfPoints(font)));
    if (font.bold) line += "\\b";
    if (font.italic) line += "\\i";
    if (font.underline) line += "\\ul";
    if (font.strikethru) line += "\\strike";
    line.append(" ").append(RichText(text)).append(centred ? "\\par}" : "}");
    Line(std::move(line));
}

}  // namespace tw
