// A message port that ignores everything, for code that shows no messages in the test.
#pragma once

#include "platform/Ports.h"

namespace tw::test {

class NoMessages : public MessagePort {
  public:
    void ShowMessage(std::string_view, std::string_view) override {}
    Answer Ask(std::string_view, std::string_view, Question) override { return Answer::No; }
    void Beep() override {}
};

}  // namespace tw::test
