// Runs commands: maps each id to the call that it makes.
#pragma once

#include "commands/Commands.h"
#include "document/ScalingModel.h"
#include "shell/CarriedDesk.h"
#include "shell/CatalogueDesk.h"
#include "shell/CommandBar.h"
#include "shell/CommandStates.h"
#include "shell/DocumentManager.h"
#include "shell/ExchangeDesk.h"
#include "shell/HelpDesk.h"
#include "shell/OpenedDatabase.h"
#include "shell/PrintDesk.h"
#include "shell/RecentList.h"
#include "shell/RecipeDesk.h"
#include "shell/RecipeSaver.h"
#include "shell/SettingsInUse.h"
#include "shell/ShellView.h"

namespace tw {

class ShellActions {
  public:
    // The parts that commands call. All must outlive the object.
    struct Parts {
        Platform& platform;
        CommandBar& bar;
        ViewSlot& view;
        RecentList& recent;
        SettingsInUse& settings;
        DocumentManager& documents;
        CommandStates& states;
        OpenedDatabase& data;
        RecipeDesk& recipes;
        RecipeSaver& saver;
        CatalogueDesk& catalogue;
        ExchangeDesk& files;
        CarriedDesk& carried;
        PrintDesk& paper;
        HelpDesk& help;
    };
    explicit ShellActions(const Parts& parts) : on_(parts) {}

    // Runs the command as its menu item does, and shows errors as RunShowingErrors does. False, without
    // running anything, if the item is disabled or hidden or has no action. A command that needs a recipe
    // does nothing if none is active, and returns true.
    bool Run(CommandId command);
    // Runs the command as its toolbar button does, with the errors and results of Run. False if the command
    // has no button or the button is disabled.
    bool Press(CommandId command);
    // Shows the assistant if the settings ask for it at the start, keeps the state of its check box, and runs
    // the link that was chosen. If the settings are new, asks about the brewhouse before.
    void ShowAssistantAtStartup(bool metricDesktop);

  private:
    using Action = void (*)(const Parts& on);
    struct Row {
        CommandId command{};
        Action run = nullptr;
        Action pressed = nullptr;  // the action of the button, if it is another
    };
    static const Row kRows[];

    // Returns nullptr for a command without a row, such as a recent recipe.
    static const Row* RowFor(CommandId command);
    // Runs the action of the menu item, whether enabled or not. False if it has none.
    bool Carry(CommandId command);
    bool Carry(CommandId command, Action action);
    void ShowAssistant();
    void TellOfNews();

    Parts on_;
};

}  // namespace tw
