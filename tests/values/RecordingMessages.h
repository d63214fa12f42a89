// A message port that records the messages.
#pragma once

#include <string>
#include <vector>

#include "platform/Ports.h"

namespace tw::test {

class RecordingMessages : public MessagePort {
  public:
    void ShowMessage(std::string_view title, std::string_view text) override {
        shown.push_back(std::string(title) + "|" + std::string(text));
    }
    Answer Ask(std::string_view, std::string_view, Question) override { return Answer::Cancel; }
    void Beep() override {}

    std::vector<std::string> shown;  // "title|text" of each message
};

}  // namespace tw::test
