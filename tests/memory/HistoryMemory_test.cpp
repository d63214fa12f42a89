// Tests of the memory that a long history uses: it must not grow without need during a session. Every
// allocated byte is counted.
#include <cstdlib>
#include <new>

#include "DocumentTest.h"

namespace {

// Bytes allocated and not freed. The size of each block is stored before it.
std::size_t held = 0;
constexpr std::size_t kHeader = alignof(std::max_align_t);

}  // namespace

// NOLINTBEGIN(cppcoreguidelines-no-malloc): what new and delete themselves call
void* operator new(std::size_t size) {
    void* const block = std::malloc(size + kHeader);
    if (!block) throw std::bad_alloc();
    *static_cast<std::size_t*>(block) = size;
    held += size;
    return static_cast<char*>(block) + kHeader;
}

void operator delete(void* memory) noexcept {
    if (!memory) return;
    void* const block = static_cast<char*>(memory) - kHeader;
    held -= *static_cast<std::size_t*>(block);
    std::free(block);
}
// NOLINTEND(cppcoreguidelines-no-malloc)

void operator delete(void* memory, std::size_t) noexcept {
    operator delete(memory);
}

namespace tw::test {
namespace {

constexpr int kSteps = 100000;
constexpr double kMostPerStep = 100;

class HistoryMemory : public DocumentTest {
  protected:
    // The log of the test's host is not part of the history.
    void Forget() { Log().swap(host.log); }
};

TEST_F(HistoryMemory, AStepOfOneCellTakesLittleBesideItsTwoTexts) {
    New();
    document->Lines().InsertRowForGrid(R().gridAdjuncts);
    const std::string texts[] = {"Irish Moss, rehydrated", "Whirlfloc tablets, two"};
    ASSERT_TRUE(Put(R().gridAdjuncts, 1, 0, texts[1]));
    Forget();
    const std::size_t before = held;
    for (int step = 0; step < kSteps; ++step) {
        ASSERT_TRUE(document->Cells().EditCell(R().gridAdjuncts, 1, 0, texts[step % 2], Asking::Quietly));
        host.log.clear();
    }
    Forget();
    ASSERT_EQ(document->History().StackTop(), kSteps + 2U);
    const double perStep = static_cast<double>(held - before) / kSteps;
    const auto bothTexts = static_cast<double>(texts[0].size() + texts[1].size());
    RecordProperty("bytes_beside_the_texts", std::to_string(perStep - bothTexts));
    EXPECT_GT(perStep, bothTexts);
    EXPECT_LT(perStep, bothTexts + kMostPerStep);
}

TEST_F(HistoryMemory, TypingAThousandLettersIsOneStepOfTwoTexts) {
    New();
    Forget();
    const std::size_t before = held;
    std::string text;
    for (int letter = 0; letter < 1000; ++letter) {
        text += 'x';
        document->Fields().SetText(R().txtNotes, text);
        host.log.clear();
    }
    Forget();
    EXPECT_EQ(document->History().StackTop(), 1U);
    // The notes, the local copy of them and the new text in the record, with spare capacity.
    EXPECT_LT(held - before, 8000U);
}

TEST_F(HistoryMemory, ASaveGivesTheHistoryBack) {
    New();
    SaveAs("A");
    document->Lines().InsertRowForGrid(R().gridAdjuncts);
    Forget();
    const std::size_t before = held;
    for (int step = 0; step < 1000; ++step) Put(R().gridAdjuncts, 1, 0, std::to_string(step));
    const std::size_t full = held;
    ASSERT_TRUE(document->Storage().Save(SaveAs::No, Asking::Quietly));
    Forget();
    EXPECT_GT(full - before, 50U * 1000);
    EXPECT_LT(held, before + 10000);
}

}  // namespace
}  // namespace tw::test
