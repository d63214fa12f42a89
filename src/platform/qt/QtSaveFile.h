// The save dialog of the desktop.
#pragma once

#include <QString>

#include "platform/SaveFilePort.h"

namespace tw {

class QtSaveFile final : public SaveFilePort {
  public:
    std::optional<std::string> AskSaveFile(const SaveFileRequest& request) override;
};

// The filter in Qt's form; patterns match whatever the case of an extension.
QString QtFilter(const std::string& filter);

}  // namespace tw
