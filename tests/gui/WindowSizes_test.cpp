// Tests that windows appear within the screen, both in their first size and in a stored size.
#include <QScreen>

#include "GuiTest.h"
#include "platform/qt/Appearance.h"
#include "platform/qt/QtDialogs.h"
#include "platform/qt/ScreenRoom.h"
#include "platform/qt/ScrollingContents.h"
#include "shell/AboutModel.h"
#include "shell/ui/MainGeometry.h"

namespace tw::test {
namespace {

// Asks for that size but can be smaller.
class Contents : public QWidget {
  public:
    Contents(const QSize& wanted, QWidget* parent) : QWidget(parent), wanted_(wanted) {}
    QSize sizeHint() const override { return wanted_; }

  private:
    QSize wanted_;
};

class WindowSizes : public GuiTest {
  protected:
    // Prepares and shows a dialog and returns its size. The dialog is resized to left, if
    // valid, before it closes.
    QSize Opened(const std::function<void(QDialog&)>& prepare, const QSize& left = {}) {
        QtDialogs dialogs(outside.settings);
        QSize opened;
        dialogs.Register("frmAbout", [&](DialogModel&, QWidget* parent) {
            auto dialog = std::make_unique<QDialog>(parent);
            dialog->setObjectName(QStringLiteral("frmAbout"));
            prepare(*dialog);
            QTimer::singleShot(0, dialog.get(), [&, shown = dialog.get()] {
                opened = shown->size();
                if (!left.isEmpty()) shown->resize(left);
                shown->reject();
            });
            return dialog;
        });
        AboutModel about;
        dialogs.ShowModal(about);
        return opened;
    }
    QSize Opened(const QSize& first, const QSize& left = {}) {
        return Opened([&](QDialog& dialog) { dialog.resize(first); }, left);
    }
    std::optional<std::string> Kept() {
        return outside.settings.Read(SettingsPort::Layer::User, "Windows", "frmAbout");
    }
};

TEST_F(WindowSizes, TheFrameOfAWindowNeedsRoomToo) {
    const QRect free = window.screen()->availableGeometry();
    const QMargins frame = window.windowHandle()->frameMargins();
    ASSERT_FALSE(frame.isNull());
    EXPECT_EQ(RoomOf(window), QRect(free.topLeft(), free.size() - QSize(frame.left() + frame.right(),
                                                                        frame.top() + frame.bottom())));
    // Before there is a window, a window of the usual size.
    window.hide();
    EXPECT_EQ(RoomOf(window), QRect(free.topLeft(), free.size() - QSize(10, 40)));
}

TEST_F(WindowSizes, AFirstSizeIsNoLargerThanTheScreen) {
    EXPECT_EQ(Opened(QSize(300, 200)), QSize(300, 200));
    EXPECT_EQ(Opened(QSize(5000, 200)), QSize(RoomOf(window).width(), 200));
    EXPECT_EQ(Opened(QSize(5000, 4000)), RoomOf(window).size());
}

// Qt limits dialogs to two thirds of the screen, which is less than these contents ask for.
TEST_F(WindowSizes, ADialogIsAsLargeAsItsContentsAsk) {
    const auto fill = [](QDialog& dialog) {
        auto* column = new QVBoxLayout(&dialog);
        column->setContentsMargins(0, 0, 0, 0);
        column->addWidget(new Contents({650, 600}, &dialog));
    };
    ASSERT_GT(650, window.screen()->availableSize().width() * 2 / 3);
    EXPECT_EQ(Opened(fill), QSize(650, 600));
}

TEST_F(WindowSizes, AKeptSizeIsNoLargerThanTheScreen) {
    outside.settings.Write(SettingsPort::Layer::User, "Windows", "frmAbout", "90000x90000");
    EXPECT_EQ(Opened(QSize(300, 200)), RoomOf(window).size());
    // The stored size still applies on a larger screen.
    EXPECT_EQ(Kept(), "90000x90000");
    outside.settings.Write(SettingsPort::Layer::User, "Windows", "frmAbout", "wide");
    EXPECT_EQ(Opened(QSize(300, 200)), QSize(300, 200));
}

// 15 twips are a pixel at 96 dots per inch.
TEST_F(WindowSizes, OnlyASizeThatTheBrewerChoseIsKept) {
    Opened(QSize(300, 200));
    EXPECT_EQ(Kept(), std::nullopt);
    Opened(QSize(300, 200), QSize(400, 250));
    EXPECT_EQ(Kept(), "6000x3750");
    EXPECT_EQ(Opened(QSize(300, 200)), QSize(400, 250));
}

TEST_F(WindowSizes, TheMainWindowFitsAtTheFirstStartAndLater) {
    const QRect room = RoomOf(window);
    const auto place = [&](const Settings& settings) {
        QMainWindow main;
        ApplyGeometry(main, settings, shell.Store());
        return QRect(main.pos(), main.size());
    };
    ASSERT_TRUE(room.width() < FirstSize(window).width());
    const QRect first = place(Settings());
    EXPECT_EQ(first.left(), room.left());
    EXPECT_EQ(first.size(), FirstSize(window).boundedTo(room.size()));
    EXPECT_TRUE(room.contains(first));
    Settings larger;
    larger.mainLeft = larger.mainTop = larger.mainWidth = larger.mainHeight = 60000;
    outside.settings.Write(SettingsPort::Layer::User, "Settings", "MainWidth", "60000");
    EXPECT_EQ(place(larger), room);
}

// The build runs this test on a desktop of two screens.
TEST_F(WindowSizes, TheMainWindowComesBackToTheScreenOnWhichItWasLeft) {
    if (QGuiApplication::screens().size() < 2) GTEST_SKIP() << "needs two screens";
    outside.settings.Write(SettingsPort::Layer::User, "Settings", "MainWidth", "9000");
    const QScreen& first = *QGuiApplication::screens()[0];
    const QScreen& second = *QGuiApplication::screens()[1];
    const double dots = first.logicalDotsPerInch();
    const auto place = [&](const QPoint& corner) {
        Settings settings;
        settings.mainLeft = TwipsOfPixels(corner.x(), dots),
        settings.mainTop = TwipsOfPixels(corner.y(), dots);
        settings.mainWidth = TwipsOfPixels(600, dots), settings.mainHeight = TwipsOfPixels(400, dots);
        QMainWindow main;
        ApplyGeometry(main, settings, shell.Store());
        return QRect(main.pos(), main.size());
    };
    EXPECT_EQ(place(second.geometry().topLeft() + QPoint(50, 60)),
              QRect(second.geometry().topLeft() + QPoint(50, 60), QSize(600, 400)));
    EXPECT_EQ(place(first.geometry().topLeft() + QPoint(50, 60)),
              QRect(first.geometry().topLeft() + QPoint(50, 60), QSize(600, 400)));
    // Nowhere, since a screen is gone.
    EXPECT_TRUE(first.geometry().contains(place(second.geometry().topRight() + QPoint(900, 60))));
}

TEST_F(WindowSizes, AMaximizedWindowKeepsThePlaceThatItHadBefore) {
    window.resize(700, 450);
    window.move(30, 40);
    QApplication::processEvents();
    ASSERT_EQ(window.pos(), QPoint(30, 40));
    window.showMaximized();
    QApplication::processEvents();
    Settings kept;
    KeepGeometry(window, kept, shell.Store());
    const double dots = window.screen()->logicalDotsPerInch();
    EXPECT_EQ(PixelsOfTwips(kept.mainLeft, dots), 30);
    EXPECT_EQ(PixelsOfTwips(kept.mainTop, dots), 40);
    EXPECT_EQ(PixelsOfTwips(kept.mainWidth, dots), 700);
    EXPECT_EQ(PixelsOfTwips(kept.mainHeight, dots), 450);
}

TEST(ScrollingContents, AreShownWholeWhereThereIsRoomAndScrollToTheFocus) {
    QWidget window;
    auto* frame = new QVBoxLayout(&window);
    auto* contents = new QWidget;
    auto* column = new QVBoxLayout(contents);
    std::vector<QLineEdit*> boxes;
    for (int i = 0; i < 20; ++i) column->addWidget(boxes.emplace_back(new QLineEdit(contents)));
    auto* scrolling = new ScrollingContents(contents, &window);
    frame->addWidget(scrolling);
    window.show();
    QApplication::setActiveWindow(&window);
    window.resize(window.sizeHint());
    QApplication::processEvents();
    EXPECT_FALSE(scrolling->verticalScrollBar()->isVisible());
    window.resize(window.width(), 200);
    QApplication::processEvents();
    ASSERT_EQ(window.height(), 200);
    EXPECT_TRUE(scrolling->verticalScrollBar()->isVisible());
    EXPECT_FALSE(scrolling->horizontalScrollBar()->isVisible());
    const auto isInSight = [&](const QLineEdit& box) {
        return scrolling->viewport()->rect().contains(
            QRect(box.mapTo(scrolling->viewport(), QPoint(0, 0)), box.size()));
    };
    EXPECT_FALSE(isInSight(*boxes.back()));
    // As by the access key of its label.
    boxes.back()->setFocus(Qt::ShortcutFocusReason);
    EXPECT_TRUE(isInSight(*boxes.back()));
    boxes.front()->setFocus(Qt::ShortcutFocusReason);
    EXPECT_TRUE(isInSight(*boxes.front()));
}

TEST(ScreenRoom, MovesBeforeItShrinks) {
    const QRect room(10, 20, 1000, 700);
    EXPECT_EQ(FittedInto({100, 100, 500, 400}, room), QRect(100, 100, 500, 400));
    EXPECT_EQ(FittedInto({900, 600, 500, 400}, room), QRect(510, 320, 500, 400));
    EXPECT_EQ(FittedInto({-50, 0, 500, 900}, room), QRect(10, 20, 500, 700));
}

}  // namespace
}  // namespace tw::test
