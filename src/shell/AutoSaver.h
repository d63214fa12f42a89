// Saves the open recipes automatically every few minutes.
#pragma once

#include "shell/AutoSave.h"
#include "shell/DocumentManager.h"
#include "shell/ExchangeDesk.h"
#include "shell/OpenedDatabase.h"
#include "shell/RecipeSaver.h"
#include "shell/Settings.h"

namespace tw {

class AutoSaver {
  public:
    // minutes counts from the moment autosave is switched on. All arguments must outlive the object.
    AutoSaver(const Settings& settings, AutoSaveMinutes& minutes, OpenedDatabase& data,
              const DocumentManager& documents, RecipeSaver& saver, const ExchangeDesk& files)
        : settings_(settings),
          minutes_(minutes),
          data_(data),
          documents_(documents),
          saver_(saver),
          files_(files) {}

    // Counts one minute, and saves all documents when the interval is over. Does nothing while autosave is
    // switched off or running, while recipes are being imported or exported, or if the database is read-only.
    void Tick();
    // Saves all documents without asking, while the progress window is open.
    void Run();
    // Returns the model of that window, not yet shown.
    AutoSaveModel Progress();

  private:
    const Settings& settings_;
    AutoSaveMinutes& minutes_;
    OpenedDatabase& data_;
    const DocumentManager& documents_;
    RecipeSaver& saver_;
    const ExchangeDesk& files_;
    bool saving_ = false;
};

}  // namespace tw
