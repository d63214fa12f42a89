// Makes thousands of random edits with random undo and redo steps between them. At every point that
// is reached, the whole document must be what it was when the point was created, and the history
// must follow its rules.
//
// TUNWRIGHT_UNDO_STEPS and TUNWRIGHT_UNDO_SEED set the number of edits and the seed.
#include <cstdlib>

#include "RandomEditor.h"

namespace tw::test {
namespace {

int FromEnvironment(const char* name, int usual) {
    const char* const text = std::getenv(name);
    return text ? std::atoi(text) : usual;
}

class UndoModelTest : public RandomEditor, public testing::WithParamInterface<int> {
  protected:
    unsigned Seed() const {
        return static_cast<unsigned>(GetParam() + FromEnvironment("TUNWRIGHT_UNDO_SEED", 0));
    }
    static int Steps(int usual) { return FromEnvironment("TUNWRIGHT_UNDO_STEPS", usual); }

    void Run(int steps, int saveEach) {
        for (int step = 1; step <= steps; ++step) {
            EditOnce();
            if (HasFailure()) return;
            if (step % 9 == 0) Walk();
            if (HasFailure()) return;
            if (step % 250 == 0) BackAndForth();
            if (step % saveEach == 0) SaveAndStartAgain();
            if (HasFailure()) return;
        }
        BackAndForth();
    }

    void BackAndForth() {
        UndoAll();
        if (!HasFailure()) RedoAll();
    }
};

TEST_P(UndoModelTest, EveryPointOfTheHistoryComesBack) {
    StartWith(Seed(), false);
    Run(Steps(1500), 1000);
    EXPECT_FALSE(HasFailure()) << "seed " << Seed();
}

TEST_P(UndoModelTest, EveryPointOfAFullRecipeComesBack) {
    StartWith(Seed() + 1000, true);
    Run(Steps(1000), 400);
    EXPECT_FALSE(HasFailure()) << "seed " << Seed();
}

TEST_P(UndoModelTest, EveryPointOfAScaledRecipeComesBack) {
    host.scaling.undoable = true;
    StartWith(Seed() + 2000, true);
    Run(Steps(1000), 400);
    EXPECT_FALSE(HasFailure()) << "seed " << Seed();
}

INSTANTIATE_TEST_SUITE_P(Seeds, UndoModelTest, testing::Range(1, 7));

}  // namespace
}  // namespace tw::test
