// Ports and listeners for DB_IO that ignore everything.
#pragma once

#include <string>
#include <string_view>

#include "platform/Ports.h"
#include "tree/DB_IO.h"

namespace tw {

class FixedClock : public ClockPort {
  public:
    DateTime Now() override { return {2024, 2, 28, 18, 30, 0}; }
};

class NoMessages : public MessagePort {
  public:
    void ShowMessage(std::string_view, std::string_view) override {}
    Answer Ask(std::string_view, std::string_view, Question) override { return Answer::No; }
    void Beep() override {}
};

class NoListener : public ObjectListener {
  public:
    void NotifyRecipeMoved(const std::string&, std::int64_t) override {}
    void NotifyRecipeNewStyle(const std::string&, std::int64_t) override {}
    void NotifyRecipeRenamed(const std::string&, const std::string&) override {}
    void NotifyStyleRenamed(std::int64_t, const std::string&) override {}
    void NotifyRecipeDeleted(const std::string&) override {}
    void NotifyRecipeFolderDeleted(std::int64_t) override {}
    void NotifyStyleDeleted(std::int64_t) override {}
};

}  // namespace tw
