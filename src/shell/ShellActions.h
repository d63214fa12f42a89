// What each command does: from its id to the call.
#pragma once

#include "commands/Commands.h"
#include "document/ScalingModel.h"
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
    // What commands end in. All must outlive the object.
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
        PrintDesk& paper;
        HelpDesk& help;
    };
    explicit ShellActions(const Parts& parts) : on_(parts) {}

    // Runs a menu item's action. False when it is disabled or hidden, or has none: nothing happens then. An
    // error that rises from the action is shown as RunShowingErrors does.
    bool Run(CommandId command);
    // What the toolbar button of the command does; likewise. False for a command without one.
    bool Press(CommandId command);
    // The assistant, if the settings want it at the start; its box and then its link are carried out.
    void ShowAssistantAtStartup();

  private:
    using Action = void (*)(const Parts& on);
    struct Row {
        CommandId command;
        Action run;
        Action pressed = nullptr;  // what the button does, where that is something else
    };
    static const Row kRows[];

    // nullptr for a command without a row, such as a recent recipe.
    static const Row* RowFor(CommandId command);
    // What the menu item does, whatever its state. False for a command that does nothing.
    bool Carry(CommandId command);
    bool Carry(CommandId command, Action action);
    void ShowAssistant();

    Parts on_;
};

}  // namespace tw
