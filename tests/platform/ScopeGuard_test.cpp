#include "platform/ScopeGuard.h"

#include <gtest/gtest.h>
#include <stdexcept>

namespace tw {
namespace {

TEST(ScopeGuard, RunsItsActionWhenTheScopeEnds) {
    int runs = 0;
    {
        const ScopeGuard end([&] { ++runs; });
        EXPECT_EQ(runs, 0);
    }
    EXPECT_EQ(runs, 1);
}

TEST(ScopeGuard, RunsItsActionWhenAnExceptionEndsTheScope) {
    int runs = 0;
    EXPECT_THROW(
        {
            const ScopeGuard end([&] { ++runs; });
            throw std::runtime_error("broken off");
        },
        std::runtime_error);
    EXPECT_EQ(runs, 1);
}

TEST(ScopedValue, ComesBackAsItWas) {
    bool flag = true;
    {
        const ScopedValue outer(flag, false);
        EXPECT_FALSE(flag);
        {
            const ScopedValue inner(flag, true);
            EXPECT_TRUE(flag);
        }
        EXPECT_FALSE(flag);
    }
    EXPECT_TRUE(flag);
}

}  // namespace
}  // namespace tw
