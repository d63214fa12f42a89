// Commands that change a whole recipe: the scaling dialogs and the treatment of its water.
#include "cli/Command.h"
#include "document/ScalingModel.h"

namespace tw {
namespace {

struct Entry {
    std::string text;
    bool scaleBoilVol = false;
    bool preserveIBU = false;
};

// Shows the dialog of a menu item, makes the entry and presses OK. An entry that is refused counts
// as cancelled.
void RunDialog(Session& session, CommandId command, Scaling what, const Entry& entry) {
    session.Document();
    session.Dialogs().AnswerNextWith([&entry, what](DialogModel& dialog) {
        if (entry.scaleBoilVol) dialog.SetControl("chkScaleBV", "yes");
        if (entry.preserveIBU) dialog.SetControl("chkPreserveIBU", "yes");
        dialog.SetControl(ScalingModel::BoxOf(what), entry.text);
        dialog.Press("OKButton");
    });
    const bool ran = session.Program().RunCommand(command);
    session.Dialogs().AnswerNextWith({});
    if (!ran) session.Out().Line("off");
}

void Resize(Session& session, Arguments& arguments) {
    Entry entry;
    for (bool more = true; more;) {
        const bool boil = !entry.scaleBoilVol && arguments.TakeWord("boil");
        const bool ibu = !entry.preserveIBU && arguments.TakeWord("ibu");
        entry.scaleBoilVol |= boil;
        entry.preserveIBU |= ibu;
        more = boil || ibu;
    }
    entry.text = arguments.LastName("SIZE");
    RunDialog(session, CommandId::ToolsResizeRecipe, Scaling::Size, entry);
}

void Strength(Session& session, Arguments& arguments) {
    Entry entry;
    entry.preserveIBU = arguments.TakeWord("ibu");
    entry.text = arguments.LastName("GRAVITY");
    RunDialog(session, CommandId::ToolsChangeStrength, Scaling::Strength, entry);
}

void Bitterness(Session& session, Arguments& arguments) {
    RunDialog(session, CommandId::ToolsChangeBitterness, Scaling::Bitterness, {arguments.LastName("IBU")});
}

void Carbonation(Session& session, Arguments& arguments) {
    RunDialog(session, CommandId::ToolsChangeCO2, Scaling::Carbonation, {arguments.LastName("VOLUMES")});
}

void Treat(Session& session, Arguments& arguments) {
    arguments.End();
    RecipeDocument& document = session.Document();
    if (!document.Record().cmdCalcTreatment.Enabled()) return session.Out().Line("off");
    document.Focus().FocusElsewhere();
    document.Water().CalcTreatment();
}

constexpr Command kCommands[] = {
    {"resize", "[boil] [ibu] SIZE", "scales the recipe to another total volume", Resize},
    {"strength", "[ibu] GRAVITY", "scales the fermentables to another original gravity", Strength},
    {"bitterness", "IBU", "scales the hops to another bitterness", Bitterness},
    {"carbonation", "VOLUMES", "scales priming sugars or keg pressure to another carbonation", Carbonation},
    {"treat", "", "works out the salts for the water", Treat},
};

}  // namespace

std::span<const Command> CommandsOfScaling() {
    return kCommands;
}

}  // namespace tw
