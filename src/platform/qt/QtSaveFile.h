// The desktop's save dialog behind the port.
#pragma once

#include <QString>

#include "platform/SaveFilePort.h"

namespace tw {

class QtSaveFile final : public SaveFilePort {
  public:
    std::optional<std::string> AskSaveFile(const SaveFileRequest& request) override;
};

// Returns folder if it exists, else the user's documents folder, else the user's home folder.
QString StartFolder(const std::string& folder);

// Converts a filter to Qt's form. Each pattern also matches in lower case.
QString QtFilter(const std::string& filter);

}  // namespace tw
