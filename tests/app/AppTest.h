// A separate desktop for one test: a runtime folder and a home folder that no other
// program on this machine uses.
#pragma once

#include <QDeadlineTimer>
#include <QEventLoop>
#include <QTemporaryDir>
#include <QTimer>
#include <functional>
#include <gtest/gtest.h>
#include <string>

namespace tw::test {

inline constexpr int kDeadlineMilliseconds = 120000;

// Processes events until done, which is called after each of them, returns true. Returns false when
// the deadline has passed.
inline bool RunUntil(const std::function<bool()>& done) {
    QEventLoop loop;
    bool late = false;
    QTimer deadline;
    deadline.setSingleShot(true);
    QObject::connect(&deadline, &QTimer::timeout, &loop, [&] { late = true; });
    deadline.start(kDeadlineMilliseconds);
    while (!done() && !late) loop.processEvents(QEventLoop::WaitForMoreEvents);
    return !late;
}

class AppTest : public testing::Test {
  protected:
    void SetUp() override {
        ASSERT_TRUE(folder_.isValid());
        for (const char* name :
             {"XDG_RUNTIME_DIR", "HOME", "XDG_CONFIG_HOME", "XDG_CACHE_HOME", "XDG_DATA_HOME"})
            qputenv(name, folder_.path().toUtf8());
        for (const char* name : {"DISPLAY", "WAYLAND_DISPLAY"}) qunsetenv(name);
    }

    std::string File(const std::string& name) const { return folder_.path().toStdString() + "/" + name; }
    // Returns where the programs of this desktop keep their locks and their socket.
    std::string Runtime(const std::string& name = {}) const { return File("tunwright/" + name); }

  private:
    QTemporaryDir folder_;
};

}  // namespace tw::test
