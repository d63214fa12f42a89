// The program's event loop: an error that no routine has trapped is shown in a box, and the loop goes on.
#pragma once

#include <QApplication>

#include "platform/Ports.h"

namespace tw {

class Application final : public QApplication {
    Q_OBJECT
  public:
    Application(int& argc, char** argv);
    // The names and the version that Qt gives to settings and windows.
    static void SetIdentity();
    // Where errors are shown; must outlive the event loop.
    void SetMessages(MessagePort& messages) { messages_ = &messages; }

    bool notify(QObject* receiver, QEvent* event) override;

  private:
    MessagePort* messages_ = nullptr;
};

}  // namespace tw
