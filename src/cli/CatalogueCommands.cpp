// Commands on the catalogue: its editors, deleting, and stepping from row to row.
#include <algorithm>

#include "catalogue/CatalogueEditor.h"
#include "catalogue/DatabaseSetupModel.h"
#include "cli/Command.h"
#include "cli/ScriptFormat.h"
#include "values/Text.h"

namespace tw {
namespace {

void PrintControls(Session& session, const CatalogueEditor& editor) {
    for (const DialogControl& control : editor.Controls())
        session.Out().Line(control.name + ": " + EscapeText(control.text));
}

void WorkEditor(CatalogueEditor& editor, const DialogAnswer& answer) {
    for (const auto& [control, value] : answer.entries)
        if (!editor.SetControl(control, value)) {
            std::string reason = editor.FormName() + " takes no '" + value;
            throw ScriptError(reason.append("' in '").append(control).append("'"));
        }
    if (answer.button == "Close")
        editor.CloseBox();
    else if (!editor.Press(answer.button))
        throw ScriptError(editor.FormName() + " has no button '" + answer.button + "'");
}

void Entry(Session& session, Arguments& arguments) {
    const CatalogueKind catalogue = TakeCatalogue(arguments);
    const std::string name = arguments.Word("NAME");
    const bool showsOnly = arguments.AtEnd();
    const DialogAnswer answer = showsOnly ? DialogAnswer() : ReadDialogAnswer(arguments.Text());
    Shell& program = session.Program();
    const CatalogueContext context = program.Opened()->catalogue.Context();
    const std::unique_ptr<CatalogueEditor> editor = MakeEditor(catalogue, context);
    editor->SetName(name);
    if (showsOnly) return PrintControls(session, *editor);
    session.Dialogs().AnswerNextWith([&](DialogModel&) { WorkEditor(*editor, answer); });
    session.Dialogs().ShowModal(*editor);
    if (!editor->Selection().empty()) program.Documents().CatalogueChanged();
}

void Drop(Session& session, Arguments& arguments) {
    const CatalogueKind catalogue = TakeCatalogue(arguments);
    const std::string name = arguments.LastName("NAME");
    Shell& program = session.Program();
    const CatalogueContext context = program.Opened()->catalogue.Context();
    DatabaseSetupModel setup(context);
    setup.Choose(catalogue);
    if (!setup.ShowName(name))
        throw ScriptError("there is no " + std::string(WordOf(catalogue)) + " '" + name + "'");
    setup.Press("cmdDelete");
    program.Documents().CatalogueChanged();
}

struct StepRow {
    std::string_view word;
    std::string (ObjectNavigator::*step)();
};

constexpr StepRow kSteps[] = {{"first", &ObjectNavigator::GetFirst},
                              {"previous", &ObjectNavigator::GetPrevious},
                              {"next", &ObjectNavigator::GetNext},
                              {"last", &ObjectNavigator::GetLast}};

void Navigate(Session& session, Arguments& arguments) {
    const CatalogueKind catalogue = TakeCatalogue(arguments);
    const std::string name = arguments.Word("NAME");
    const std::string word = arguments.Word("the step");
    arguments.End();
    const auto step = std::ranges::find(kSteps, word, &StepRow::word);
    if (step == std::end(kSteps)) throw ScriptError("there is no step '" + word + "'");
    const CatalogueContext context = session.Program().Opened()->catalogue.Context();
    DatabaseSetupModel setup(context);
    setup.Choose(catalogue);
    if (!setup.ShowName(name))
        throw ScriptError("there is no " + std::string(WordOf(catalogue)) + " '" + name + "'");
    ObjectNavigator navigator(setup.Items());
    std::string line = EscapeText((navigator.*step->step)());
    for (const bool on : {navigator.EnableFirst(), navigator.EnablePrevious(), navigator.EnableNext(),
                          navigator.EnableLast()})
        line.append("\t").append(OnOff(on));
    session.Out().Line(line);
}

constexpr Command kCommands[] = {
    {"entry", "WORD \"NAME\" [control=value; ...;] [BUTTON]",
     "the editor of a catalogue's row: fills controls and presses a button, or shows what stands there",
     Entry},
    {"drop", "WORD NAME", "deletes a catalogue's row, as database setup does", Drop},
    {"navigate", "WORD NAME first|previous|next|last",
     "a step through a catalogue, and which steps are possible from there", Navigate},
};

}  // namespace

std::span<const Command> CommandsOnCatalogue() {
    return kCommands;
}

}  // namespace tw
