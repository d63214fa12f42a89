#include "tree/ProgressModel.h"

#include <gtest/gtest.h>

#include "platform/Error.h"
#include "support/RecordingPlatform.h"

namespace tw::test {
namespace {

using Strings = std::vector<std::string>;

std::vector<std::string> Names(std::size_t count) {
    std::vector<std::string> names;
    for (std::size_t i = 0; i < count; ++i) names.push_back("object " + std::to_string(i));
    return names;
}

TEST(ProgressModel, WorksThroughAllAndClosesItself) {
    Strings shown;
    std::size_t steps = 0;
    ProgressModel progress("Moving", Names(3), [&](std::size_t i) { return i == steps++; });
    progress.SetObserver([&] { shown.push_back(progress.Name() + " " + std::to_string(progress.Done())); });
    EXPECT_EQ(progress.Controls()[0].text, "object 0");
    progress.FirstShown();
    EXPECT_EQ(shown, (Strings{"object 0 0", "object 1 1", "object 2 2"}));
    EXPECT_EQ(steps, 3u);
    EXPECT_FALSE(progress.IsOpen());
    EXPECT_EQ(progress.Controls()[1].text, "3");
    EXPECT_EQ(progress.Name(), "");
    EXPECT_NO_THROW(progress.Rethrow());
}

TEST(ProgressModel, CancelStopsBeforeTheNextObject) {
    std::size_t steps = 0;
    ProgressModel progress("Moving", Names(5), [&](std::size_t) { return ++steps > 0; });
    progress.SetObserver([&] {
        if (progress.Done() == 2) {
            EXPECT_TRUE(progress.Press("cmdCancel"));
        }
        EXPECT_TRUE(progress.IsOpen());
    });
    EXPECT_FALSE(progress.Press("cmdOK"));
    EXPECT_FALSE(progress.SetControl("lblObject", "x"));
    progress.FirstShown();
    EXPECT_EQ(steps, 2u);
    EXPECT_FALSE(progress.IsOpen());
}

TEST(ProgressModel, TheCloseBoxBeforeTheStartDoesNothing) {
    std::size_t steps = 0;
    ProgressModel progress("Moving", Names(5), [&](std::size_t) { return ++steps > 0; });
    progress.CloseBox();
    EXPECT_FALSE(progress.IsOpen());
    progress.FirstShown();
    EXPECT_EQ(steps, 0u);
}

TEST(RunSteps, ShowsAWindowForManyObjectsOnly) {
    RecordingPlatform outside;
    std::size_t steps = 0;
    const auto step = [&](std::size_t) { return ++steps > 0; };
    RunSteps(outside.dialogs, "Moving", Names(10), step);
    EXPECT_EQ(outside.dialogs.shown, Strings{});
    EXPECT_EQ(steps, 10u);
    RunSteps(outside.dialogs, "Moving", Names(11), step);
    EXPECT_EQ(outside.dialogs.shown, Strings{"frmProgress"});
    EXPECT_EQ(steps, 21u);
}

TEST(RunSteps, EndsAtTheFirstRefusalAndRaisesErrors) {
    RecordingPlatform outside;
    for (const std::size_t count : {4u, 40u}) {
        std::size_t steps = 0;
        RunSteps(outside.dialogs, "Moving", Names(count), [&](std::size_t i) {
            ++steps;
            return i < 2;
        });
        EXPECT_EQ(steps, 3u);
        steps = 0;
        EXPECT_THROW(RunSteps(outside.dialogs, "Moving", Names(count),
                              [&](std::size_t i) {
                                  if (i == 2) RaiseOverflow();
                                  return ++steps > 0;
                              }),
                     Error);
        EXPECT_EQ(steps, 2u);
    }
}

}  // namespace
}  // namespace tw::test
