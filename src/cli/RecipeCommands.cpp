// Commands on open recipes: opening, saving, fields and calculated values.
#include <limits>

#include "cli/Command.h"
#include "cli/ScriptFormat.h"
#include "document/DetailWindows.h"
#include "values/NumberText.h"
#include "values/Text.h"

namespace tw {
namespace {

void New(Session& session, Arguments& arguments) {
    arguments.End();
    session.Program().Opened()->recipes.Create("");
}

void Open(Session& session, Arguments& arguments) {
    const std::string name = arguments.LastName("NAME");
    session.Program().Opened()->recipes.OpenByName(name);
}

void Save(Session& session, Arguments& arguments) {
    arguments.End();
    RecipeDocument& document = session.Document();
    session.Program().Opened()->saver.Save(document);
}

void SaveAs(Session& session, Arguments& arguments) {
    const int folder = arguments.Integer("FOLDERID", 0, std::numeric_limits<int>::max());
    const std::string name = arguments.LastName("NAME");
    RecipeDocument& document = session.Document();
    session.Program().Opened()->saver.SaveUnder(document, name, folder);
}

void Close(Session& session, Arguments& arguments) {
    arguments.End();
    RecipeDocument& document = session.Document();
    session.Program().Opened()->saver.Close(document);
}

void Documents(Session& session, Arguments& arguments) {
    arguments.End();
    Shell& program = session.Program();
    for (const auto& document : program.Documents().All())
        session.Out().Line((program.Opened()->services.IsActive(*document) ? "*" : "") +
                           EscapeText(document->Caption()));
}

void Activate(Session& session, Arguments& arguments) {
    const std::string caption = arguments.LastName("CAPTION");
    Shell& program = session.Program();
    for (const auto& document : program.Documents().All())
        if (document->Caption() == caption) return program.Documents().Activate(*document);
    throw ScriptError("no document has the caption '" + caption + "'");
}

void Set(Session& session, Arguments& arguments) {
    const std::string name = arguments.Word("CONTROL");
    const std::string text = arguments.Text();
    RecipeDocument& document = session.Document();
    TextBox* const box = document.Record().FindTextBox(name);
    if (box == nullptr) throw ScriptError("there is no text box '" + name + "'");
    if (box->Computed()) return session.Out().Line("read-only");
    document.Focus().FocusOn(*box);
    document.Fields().SetText(*box, text);
    if (!document.Fields().CommitField(*box)) document.Fields().RestoreField(*box);
}

void Pick(Session& session, Arguments& arguments) {
    const std::string name = arguments.Word("CONTROL");
    const std::string text = arguments.Text();
    RecipeDocument& document = session.Document();
    const ListBox& list = document.Record().cmbStyle;
    if (name != list.Name()) throw ScriptError("there is no list '" + name + "'");
    document.Focus().FocusElsewhere();
    for (std::size_t i = 0; i < list.Entries().size(); ++i)
        if (SameName(list.Entries()[i].text, text)) return document.Style().Select(static_cast<int>(i));
    throw ScriptError(name + " has no entry '" + text + "'");
}

void Choose(Session& session, Arguments& arguments) {
    const std::string option = arguments.Word("OPTION");
    arguments.End();
    RecipeDocument& document = session.Document();
    document.Focus().FocusElsewhere();
    if (!document.Options().Choose(option)) throw ScriptError("there is no option '" + option + "'");
}

void Changed(Session& session, Arguments& arguments) {
    arguments.End();
    session.Out().Line(YesNo(session.Document().Changed()));
}

void ShowSwatch(Session& session, Arguments& arguments) {
    arguments.End();
    session.Out().Line(ColorText(session.Record().Swatch()));
}

void Slider(Session& session, Arguments& arguments) {
    arguments.End();
    const RecipeDocument& document = session.Document();
    if (!document.Record().cmdIBUDetails.Enabled()) return session.Out().Line("off");
    session.Out().Line(std::to_string(HopDetailsOf(document).SliderBalance()));
}

struct DetailWindow {
    std::string_view name;
    Button RecipeRecord::*button;
    DetailsModel (*make)(const RecipeDocument&);
};
constexpr DetailWindow kDetailWindows[] = {
    {"strength", &RecipeRecord::cmdStrengthDetails, StrengthDetailsOf},
    {"volume", &RecipeRecord::cmdFinalVolDetails, FinalVolDetailsOf},
    {"hops", &RecipeRecord::cmdIBUDetails, HopDetailsOf},
};

void Details(Session& session, Arguments& arguments) {
    const std::string name = arguments.Word("the window");
    arguments.End();
    for (const DetailWindow& window : kDetailWindows) {
        if (window.name != name) continue;
        const RecipeDocument& document = session.Document();
        if (!(document.Record().*window.button).Enabled()) return session.Out().Line("off");
        for (const DialogControl& label : window.make(document).Controls())
            session.Out().Line(label.name + ": " + EscapeText(label.text));
        return;
    }
    throw ScriptError("there is no detail window '" + name + "', only strength, volume and hops");
}

constexpr Command kCommands[] = {
    {"new", "", "makes a new recipe, which becomes the active document", New},
    {"open", "NAME", "opens a stored recipe", Open},
    {"save", "", "saves the active document", Save},
    {"saveas", "FOLDERID NAME", "saves the active document under a name in a folder", SaveAs},
    {"close", "", "closes the active document", Close},
    {"documents", "", "the captions of the open documents, * before the active one", Documents},
    {"activate", "CAPTION", "makes a document the active one", Activate},
    {"set", "CONTROL TEXT", "types a text into a text box and leaves it", Set},
    {"pick", "CONTROL TEXT", "chooses an entry of a list", Pick},
    {"choose", "OPTION", "sets an option button", Choose},
    {"changed", "", "whether the active document has unsaved changes", Changed},
    {"swatch", "", "the colour beside txtColor", ShowSwatch},
    {"slider", "", "the position of sliderBalance", Slider},
    {"details", "strength|volume|hops", "the labels of a detail window", Details},
};

}  // namespace

std::span<const Command> CommandsOnRecipes() {
    return kCommands;
}

}  // namespace tw
