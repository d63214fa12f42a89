// Saves the open recipes by itself every few minutes.
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
    // minutes counts since autosave was switched on. All must outlive the object.
    AutoSaver(const Settings& settings, AutoSaveMinutes& minutes, OpenedDatabase& data,
              const DocumentManager& documents, RecipeSaver& saver, const ExchangeDesk& files)
        : settings_(settings),
          minutes_(minutes),
          data_(data),
          documents_(documents),
          saver_(saver),
          files_(files) {}

    // A minute has gone: saves all documents when it is time. Nothing while autosave is off, while it saves,
    // while recipes are being copied, or in a database that cannot be written.
    void Tick();
    // Saves all documents silently behind the progress window.
    void Run();
    // That window, before it is shown.
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
