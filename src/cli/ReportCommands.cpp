// Commands on what leaves the program on paper and in report files.
#include <cmath>

#include "cli/Command.h"
#include "cli/ScriptFormat.h"
#include "reports/PrintedRecipe.h"
#include "reports/ReportFile.h"
#include "values/NumberText.h"
#include "values/Text.h"

namespace tw {
namespace {

constexpr std::string_view kTypeWords[] = {"text", "html", "rtf"};

// At most four decimals.
std::string Inches(double value) {
    constexpr double kScale = 1e4;
    return NumberText(std::round(value * kScale) / kScale);
}

std::string Places(const PrintStep& step) {
    return Inches(step.x1) + " " + Inches(step.y1) + " " + Inches(step.x2) + " " + Inches(step.y2);
}

std::string TextStep(const PrintStep& step) {
    const PrintFont& font = step.font;
    std::string style = font.bold ? "bold" : font.italic ? "" : "plain";
    if (font.italic) style += "italic";
    const bool quoted = font.family.find(' ') != std::string::npos;
    const std::string family = quoted ? "\"" + font.family + "\"" : font.family;
    return "text " + Inches(step.x1) + " " + Inches(step.y1) + " " + std::to_string(font.points) + " " +
           style + " " + family + " " + EscapeText(step.text);
}

std::string StepLine(const PrintStep& step) {
    switch (step.kind) {
        case PrintStep::Kind::Text:
            return TextStep(step);
        case PrintStep::Kind::Line:
            return "line " + Places(step);
        case PrintStep::Kind::Box:
            return "box " + Places(step) + " " + ColorText(step.color);
        case PrintStep::Kind::Page:
            break;
    }
    return "page";
}

void Print(Session& session, Arguments& arguments) {
    arguments.End();
    const PrintSteps steps = LayOutRecipe(session.Record(), kLetterPaper, FixedMeasure());
    for (const PrintStep& step : steps.steps) session.Out().Line(StepLine(step));
}

ReportType TakeReportType(Arguments& arguments) {
    const std::string word = arguments.Word("text, html or rtf");
    for (std::size_t i = 0; i < std::size(kTypeWords); ++i)
        if (kTypeWords[i] == word) return static_cast<ReportType>(i);
    throw ScriptError("there is no report '" + word + "', only text, html and rtf");
}

void Report(Session& session, Arguments& arguments) {
    ReportRequest request;
    request.type = TakeReportType(arguments);
    request.path = arguments.Word("FILE");
    do {
        request.names.push_back(arguments.Word("NAME"));
    } while (!arguments.AtEnd());
    request.units = session.Units();
    CreateReportFile(*session.Program().DB(), session.Store(), request, session.Messages());
}

void Wizard(Session& session, Arguments& arguments) {
    const std::string control = arguments.Word("CONTROL");
    const std::string value = arguments.Text();
    // Each report names its own type and file, so what stands in these two boxes is never read.
    if (control == "cmbFileType" || control == "txtFileName") return;
    if (value != "yes" && value != "no") throw ScriptError("an option of the wizard takes yes or no");
    ReportUnits& units = session.Units();
    const bool known = value == "yes" ? units.Choose(control) : units.Knows(control);
    if (!known) throw ScriptError("the wizard has no option '" + control + "'");
}

constexpr Command kCommands[] = {
    {"print", "", "the printed recipe of the active document as drawing steps", Print},
    {"report", "text|html|rtf FILE NAME...", "makes a report file of stored recipes", Report},
    {"wizard", "CONTROL VALUE", "sets an option of the report wizard for the reports that follow", Wizard},
};

}  // namespace

std::span<const Command> CommandsOfReports() {
    return kCommands;
}

}  // namespace tw
