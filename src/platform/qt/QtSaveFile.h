// The save dialog of the desktop.
#pragma once

#include <QString>

#include "platform/SaveFilePort.h"

namespace tw {

class QtSaveFile final : public SaveFilePort {
  public:
    std::optional<std::string> AskSaveFile(const SaveFileRequest& request) override;
};

// The folder itself while it is there, else that of the user's documents, else the user's own.
QString StartFolder(const std::string& folder);

// The filter in Qt's form; patterns match whatever the case of an extension.
QString QtFilter(const std::string& filter);

}  // namespace tw
