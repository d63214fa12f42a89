// Commands for printing and for report files.
#include "cli/Command.h"
#include "reports/PrintedRecipe.h"
#include "reports/ReportFile.h"

namespace tw {
namespace {

constexpr std::string_view kTypeWords[] = {"text", "html", "rtf"};

void Print(Session& session, Arguments& arguments) {
    arguments.End();
    const RecipeRecord& recipe = session.Record();
    PrintRecipe(recipe, session.Printer().MakeDevice());
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
    Shell& program = session.Program();
    CreateReportFile(*program.DB(), session.Store(), request, program.Own(), session.Messages());
}

void Wizard(Session& session, Arguments& arguments) {
    const std::string control = arguments.Word("CONTROL");
    const std::string value = arguments.Text();
    // Each report command names its type and file, so these two boxes are never read.
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
