// Tests of commands from other programs with the real main window.
#include "GuiTest.h"

namespace tw::test {
namespace {

class OutsideCommands : public GuiTest {
  protected:
    QTimer& Timer() { return *window.findChild<QTimer*>(QStringLiteral("tmrProcessDDE")); }
    // Makes the timer tick now.
    void Tick() { QMetaObject::invokeMethod(&Timer(), "timeout", Qt::DirectConnection); }
    // Receives a command whose only effect is the message box below.
    void Receive() { shell.Instance().Receive(ChannelMessage::Commands, "[import(\"/no/a.twr\")]"); }
    const std::string box =
        "[Invalid Import File] An error occurred trying to import a file:\r\n  /NO/A.TWR\r\nThis file could "
        "not "
        "be found.";
};

TEST_F(OutsideCommands, AreWorkedOffByATimerThatRestsOtherwise) {
    EXPECT_EQ(Timer().interval(), 250);
    EXPECT_FALSE(Timer().isActive());
    Receive();
    EXPECT_TRUE(Timer().isActive());
    EXPECT_EQ(outside.messages.TakeLog(), Strings{});
    Tick();
    EXPECT_EQ(outside.messages.TakeLog(), Strings{box});
    EXPECT_FALSE(Timer().isActive());
}

TEST_F(OutsideCommands, WaitForADialogToClose) {
    QDialog dialog(&window);
    dialog.setModal(true);
    dialog.show();
    Receive();
    Tick();
    EXPECT_EQ(outside.messages.TakeLog(), Strings{});
    EXPECT_TRUE(Timer().isActive());
    dialog.hide();
    Tick();
    EXPECT_EQ(outside.messages.TakeLog(), Strings{box});
}

TEST_F(OutsideCommands, WaitForAnOpenMenu) {
    auto& menu = *window.findChild<QMenu*>(QStringLiteral("mnuEdit"));
    menu.popup(window.mapToGlobal(QPoint(0, 0)));
    Receive();
    Tick();
    EXPECT_EQ(outside.messages.TakeLog(), Strings{});
    menu.hide();
    Tick();
    EXPECT_EQ(outside.messages.TakeLog(), Strings{box});
}

TEST_F(OutsideCommands, RunWhileARecipeIsOpen) {
    NewRecipe();
    Receive();
    Tick();
    EXPECT_EQ(outside.messages.TakeLog(), Strings{box});
}

TEST_F(OutsideCommands, WaitWhileTheTimerIsOff) {
    shell.Instance().SetTicking(false);
    Receive();
    Tick();
    EXPECT_EQ(outside.messages.TakeLog(), Strings{});
    shell.Instance().SetTicking(true);
    Tick();
    EXPECT_EQ(outside.messages.TakeLog(), Strings{box});
}

TEST_F(OutsideCommands, BringAMinimisedWindowBackAsItWas) {
    window.showMaximized();
    window.setWindowState(window.windowState() | Qt::WindowMinimized);
    shell.Instance().Receive(ChannelMessage::Commands, "Activate");
    EXPECT_FALSE(window.isMinimized());
    EXPECT_TRUE(window.isMaximized());
    EXPECT_TRUE(window.isVisible());
}

TEST_F(OutsideCommands, AreDroppedWhenTheProgramEnds) {
    Receive();
    EXPECT_TRUE(window.close());
    Tick();
    EXPECT_EQ(outside.messages.TakeLog(), Strings{});
    EXPECT_FALSE(Timer().isActive());
}

TEST(StartWithAFile, ImportsItAndThenTakesWhatCameFromOutside) {
    RecordingPlatform outside;
    Shell shell({outside.platform});
    MainWindow window(shell, outside.platform);
    shell.Instance().Receive(ChannelMessage::Commands, "[IMPORT(\"/no/b\")]");
    shell.Instance().TickDDE();
    EXPECT_EQ(outside.messages.TakeLog(), Strings{});
    ASSERT_TRUE(window.StartUp(":memory:", " \"/no/a\" "));
    EXPECT_EQ(
        outside.messages.TakeLog(),
        Strings{"[Invalid Import File] An error occurred trying to import a file:\r\n  /no/a\r\nThis file "
                "could not be found."});
    shell.Instance().TickDDE();
    EXPECT_EQ(
        outside.messages.TakeLog(),
        Strings{"[Invalid Import File] An error occurred trying to import a file:\r\n  /NO/B\r\nThis file "
                "could not be found."});
}

class BusyChannel : public ChannelPort {
  public:
    bool Initialize() override { return true; }
    bool CreateLock() override { return true; }
    bool TakeLock() override { return true; }
    void ReleaseLock() override {}
    Name Register(ChannelReceiver&) override { return Name::HeldByOther; }
    void Unregister() override {}
    Sent Send(ChannelMessage, std::string_view, int) override { return Sent::Taken; }
};

TEST(SecondStart, EndsBeforeItTouchesAnything) {
    RecordingPlatform outside;
    BusyChannel channel;
    Shell shell({outside.platform});
    MainWindow window(shell, outside.platform);
    window.show();
    shell.Instance().SetChannel(&channel);
    EXPECT_FALSE(window.StartUp("/no/such/database.mdb"));
    EXPECT_TRUE(shell.Instance().HandedOver());
    EXPECT_FALSE(window.isVisible());
    EXPECT_EQ(
        outside.messages.TakeLog(),
        Strings{"[Already Running] Another instance of Tunwright is already running.\r\nOnly one instance "
                "can run at a time."});
    EXPECT_EQ(outside.settings.written, Strings{});
}

}  // namespace
}  // namespace tw::test
