// The program's event loop. An error that no routine has caught is shown in a message box, and the
// loop continues.
#pragma once

#include <QApplication>

#include "platform/Ports.h"

namespace tw {

class Application final : public QApplication {
    Q_OBJECT
  public:
    Application(int& argc, char** argv);
    // Sets the names and the version that Qt uses for settings and windows.
    static void SetIdentity();
    // Sets where errors are shown; messages must outlive the event loop.
    void SetMessages(MessagePort& messages) { messages_ = &messages; }

    bool notify(QObject* receiver, QEvent* event) override;

  private:
    MessagePort* messages_ = nullptr;
};

}  // namespace tw
