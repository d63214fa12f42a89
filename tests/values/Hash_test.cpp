#include "values/Hash.h"

#include <gtest/gtest.h>

namespace tw {
namespace {

// The expected values are the published test vectors of FNV-1a.
TEST(Hash, IsThePublishedOne) {
    EXPECT_EQ(HashText(""), "cbf29ce484222325");
    EXPECT_EQ(HashText("a"), "af63dc4c8601ec8c");
    EXPECT_EQ(HashText("foobar"), "85944171f73967e8");
    EXPECT_EQ(Hash32('a', kEmptyHash32), 0xe40c292cU);
}

TEST(Hash, GoesOnFromTheHashOfWhatStandsBefore) {
    EXPECT_EQ(Hash64("bar", Hash64("foo")), Hash64("foobar"));
}

}  // namespace
}  // namespace tw
