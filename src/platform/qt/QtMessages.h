// Message boxes and questions in Qt. No other part of the program opens a message box.
#pragma once

#include "platform/Ports.h"

namespace tw {

class QtMessages final : public MessagePort {
  public:
    void ShowMessage(std::string_view title, std::string_view text) override;
    void ShowMessageWithAdvice(std::string_view title, std::string_view text,
                               std::string_view advice) override;
    Answer Ask(std::string_view title, std::string_view text, Question kind) override;
    void Beep() override;
};

}  // namespace tw
