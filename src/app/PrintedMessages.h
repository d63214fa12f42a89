// Messages of a run that nobody watches: they go to standard error, and a question is closed by its close
// box.
#pragma once

#include "platform/Ports.h"

namespace tw {

class PrintedMessages final : public MessagePort {
  public:
    void ShowMessage(std::string_view title, std::string_view text) override;
    Answer Ask(std::string_view title, std::string_view text, Question kind) override;
    void Beep() override {}
};

}  // namespace tw
