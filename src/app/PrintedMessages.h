// Messages of a run without a visible screen: they are printed to standard error, and questions get the
// answer that closing the box gives.
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
