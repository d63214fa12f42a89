#include "tree/ProgressModel.h"

#include <gtest/gtest.h>

#include "platform/Error.h"
#include "support/RecordingPlatform.h"

namespace tw::test {
namespace {

using Strings = std::vector<std::string>;

std::vector<std::string> Names(std::size_t count) {
    std::vector<std::string> names;
    for (std::size_t i = 0; i < count; ++i) names.emplace_back("object " + std::to_string(i));
    return names;
}

TEST(ProgressModel, WorksAsSoonAsItIsShownAndGoes) {
    Strings shown;
    ProgressModel progress("Importing Recipes", [&](ProgressModel& model) {
        EXPECT_TRUE(model.IsBusy());
        EXPECT_TRUE(model.Show("Mild", 0, 2));
        EXPECT_TRUE(model.Show("Bock", 1, 2));
    });
    progress.SetObserver([&] {
        shown.push_back(progress.Controls()[0].text + " " + progress.Controls()[1].text + "/" +
                        std::to_string(progress.Total()) + (progress.IsBusy() ? " busy" : ""));
    });
    EXPECT_EQ(progress.Title(), "Importing Recipes");
    progress.FirstShown();
    EXPECT_EQ(shown, (Strings{" 0/0 busy", "Mild 0/2 busy", "Bock 1/2 busy", "Bock 1/2"}));
    EXPECT_FALSE(progress.IsOpen());
}

TEST(ProgressModel, CancelCallsTheWorkOffBehindTheObjectInHand) {
    ProgressModel progress("Exporting Recipes", [](ProgressModel& model) {
        EXPECT_TRUE(model.Show("Mild", 0, 2));
        EXPECT_TRUE(model.Press("cmdCancel"));
        EXPECT_TRUE(model.IsOpen());
        EXPECT_FALSE(model.Show("Bock", 1, 2));
    });
    EXPECT_FALSE(progress.Press("cmdOK"));
    EXPECT_FALSE(progress.SetControl("lblObject", "x"));
    progress.FirstShown();
    EXPECT_FALSE(progress.IsOpen());
}

TEST(ProgressModel, ClosedBeforeTheWorkItDoesNone) {
    bool worked = false;
    ProgressModel progress("Importing Recipes", [&](ProgressModel&) { worked = true; });
    progress.CloseBox();
    progress.FirstShown();
    EXPECT_FALSE(worked);
}

TEST(ProgressModel, GoesAlsoWhenAnErrorRises) {
    ProgressModel progress("Importing Recipes",
                           [](ProgressModel&) { throw Error("Copy", "It is broken", 7); });
    EXPECT_THROW(progress.FirstShown(), Error);
    EXPECT_FALSE(progress.IsOpen());
    EXPECT_FALSE(progress.IsBusy());
}

TEST(RunSteps, ShowsAWindowForManyObjectsOnly) {
    RecordingPlatform outside;
    std::size_t steps = 0;
    const auto step = [&](std::size_t) { return ++steps > 0; };
    RunSteps(outside.dialogs, "Moving", Names(ProgressModel::kWithoutWindow), step);
    EXPECT_EQ(outside.dialogs.shown, Strings{});
    EXPECT_EQ(steps, 10u);
    RunSteps(outside.dialogs, "Moving", Names(ProgressModel::kWithoutWindow + 1), step);
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
