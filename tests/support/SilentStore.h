// Ports and listeners for DB_IO that ignore everything, for tests of something else.
#pragma once

#include <string>

#include "platform/Ports.h"
#include "tree/DB_IO.h"

namespace tw::test {

class StoreClock : public ClockPort {
  public:
    DateTime Now() override { return {2024, 5, 6, 7, 8, 9}; }
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

}  // namespace tw::test
