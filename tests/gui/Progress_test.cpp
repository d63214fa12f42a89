// Tests of the progress window of an operation on many objects.
#include "GuiTest.h"
#include "platform/Error.h"
#include "tree/ui/ProgressDialog.h"

namespace tw::test {
namespace {

using ProgressWindow = GuiTest;

TEST_F(ProgressWindow, ShortWorkShowsTheHourglassAlone) {
    ProgressModel model("Importing Recipes", [](ProgressModel& progress) {
        EXPECT_TRUE(progress.Show("Mild", 0, ProgressModel::kWithoutWindow));
        EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
        ASSERT_NE(QApplication::overrideCursor(), nullptr);
        EXPECT_EQ(QApplication::overrideCursor()->shape(), Qt::WaitCursor);
        // A question is shown in front of the window.
        progress.SetBusy(false);
        EXPECT_EQ(QApplication::overrideCursor(), nullptr);
        progress.SetBusy(true);
    });
    ProgressDialog dialog(model, &window);
    dialog.exec();
    EXPECT_FALSE(model.IsOpen());
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

TEST_F(ProgressWindow, LongWorkShowsItsObjectAndIsCalledOffByCancel) {
    int done = 0;
    ProgressModel model("Importing Recipes", [&](ProgressModel& progress) {
        const int total = ProgressModel::kWithoutWindow + 1;
        ASSERT_TRUE(progress.Show("Mild", 0, total));
        QWidget* shown = QApplication::activeModalWidget();
        ASSERT_NE(shown, nullptr);
        EXPECT_EQ(FromQt(shown->windowTitle()), "Importing Recipes");
        EXPECT_EQ(FromQt(shown->findChild<QLabel*>(QStringLiteral("lblObject"))->text()), "Mild");
        EXPECT_EQ(shown->findChild<QProgressBar*>()->maximum(), total);
        shown->findChild<QPushButton*>(QStringLiteral("cmdCancel"))->click();
        EXPECT_TRUE(shown->isVisible());
        if (progress.Show("Ale", 1, total)) ++done;
    });
    ProgressDialog dialog(model, &window);
    dialog.exec();
    EXPECT_EQ(done, 0);
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

TEST_F(ProgressWindow, AnErrorInTheWorkGivesThePointerBack) {
    {
        ProgressModel model("Importing Recipes",
                            [](ProgressModel&) { throw Error("Copy", "It is broken", 7); });
        ProgressDialog dialog(model, &window);
        EXPECT_THROW(dialog.exec(), Error);
    }
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

// A click waits in the queue until the window processes events, which it does between two objects.
TEST_F(ProgressWindow, StopsBetweenTwoObjects) {
    class Windows final : public DialogPort {
      public:
        void ShowModal(DialogModel& dialog) override {
            const auto shown =
                std::make_unique<ProgressDialog>(dynamic_cast<ProgressModel&>(dialog), nullptr);
            QMetaObject::invokeMethod(shown->findChild<QPushButton*>(QStringLiteral("cmdCancel")), "click",
                                      Qt::QueuedConnection);
            shown->exec();
        }
    } windows;
    int steps = 0;
    RunSteps(windows, "Deleting", Strings(ProgressModel::kWithoutWindow + 1, "Mild"),
             [&](std::size_t) { return ++steps > 0; });
    EXPECT_EQ(steps, 0);
}

}  // namespace
}  // namespace tw::test
