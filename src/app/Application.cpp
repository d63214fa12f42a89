#include "app/Application.h"

#include "platform/Error.h"
#include "shell/Version.h"

namespace tw {

Application::Application(int& argc, char** argv) : QApplication(argc, argv) {
    SetIdentity();
}

void Application::SetIdentity() {
    setOrganizationName(QStringLiteral("Quillon Labs"));
    setApplicationName(QStringLiteral("Tunwright"));
    setApplicationVersion(
        QLatin1String(kProgramVersion.data(), static_cast<qsizetype>(kProgramVersion.size())));
    QGuiApplication::setDesktopFileName(QStringLiteral("tunwright"));
}

bool Application::notify(QObject* receiver, QEvent* event) {
    std::string text;
    try {
        return QApplication::notify(receiver, event);
    } catch (const Error& error) {
        text = error.WithNumber();
    } catch (const std::exception& error) {
        text = error.what();
    }
    if (messages_) messages_->ShowMessage("Error", text);
    return true;
}

}  // namespace tw
