// The program with windows.
#include <QDir>
#include <QStandardPaths>
#include <QTimer>
#include <algorithm>
#include <cstdio>
#include <string_view>

#include "app/Application.h"
#include "app/DialogWindows.h"
#include "app/Pictures.h"
#include "app/PrintedMessages.h"
#include "app/ProgramOptions.h"
#include "document/ui/RangeBar.h"
#include "document/ui/RecipeWindow.h"
#include "help/SystemTextFiles.h"
#include "help/qt/QtBrowser.h"
#include "platform/ErrorBox.h"
#include "platform/SettingsFile.h"
#include "platform/SystemClock.h"
#include "platform/qt/ColorChooser.h"
#include "platform/qt/DesktopColors.h"
#include "platform/qt/LocalChannel.h"
#include "platform/qt/ProgramStyle.h"
#include "platform/qt/QtClipboard.h"
#include "platform/qt/QtDialogs.h"
#include "platform/qt/QtMessages.h"
#include "platform/qt/QtSaveFile.h"
#include "platform/qt/QtSettings.h"
#include "platform/qt/QtText.h"
#include "reports/qt/QtPrinters.h"
#include "shell/Shell.h"
#include "shell/ui/Icons.h"
#include "shell/ui/MainWindow.h"
#include "tools/ui/ToolAccessibility.h"

namespace tw {
namespace {

std::string DatabaseOf(const ProgramOptions& options) {
    if (!options.database.isEmpty()) return FromQt(options.database);
    return Shell::DatabasePath(FromQt(QCoreApplication::applicationDirPath()));
}

// False, after a message, if the settings file named on the command line cannot be used.
bool SettingsFileIsFine(const ProgramOptions& options, MessagePort& messages) {
    if (options.settings.isEmpty()) return true;
    try {
        CheckSettingsFile(FromQt(options.settings), DatabaseOf(options));
        return true;
    } catch (const Error& error) {
        messages.ShowMessage("Fatal Error", error.Description());
        return false;
    }
}

void OpenRecipes(MainWindow& window, Shell& shell, MessagePort& messages, const ProgramOptions& options) {
    for (const QString& name : options.open)
        RunShowingErrors(messages, [&] { shell.Opened()->recipes.OpenByName(FromQt(name)); });
    RecipeWindow* document = window.ActiveWindow();
    if (document && options.tab >= 0 && options.tab < kTabs) document->ShowTab(static_cast<Tab>(options.tab));
}

// Returns the exit code of a run that only takes pictures.
int Photograph(MainWindow& window, Shell& shell, QtDialogs& dialogs, const ProgramOptions& options) {
    bool ok = true;
    TakeSize(window, options.size);
    if (!options.picture.isEmpty()) ok &= TakePicture(window, shell, options.picture);
    if (!options.pictures.isEmpty()) ok &= TakeAllPictures(window, shell, dialogs, options.pictures);
    if (!ok) std::fputs("tunwright: a picture could not be written\n", stderr);
    return ok ? EXIT_SUCCESS : EXIT_FAILURE;
}

// Answers --help and --version even where there is no display.
void AnswerWithoutDisplay(int argc, char** argv) {
    const auto asks = [](std::string_view word) {
        return word == "--help" || word == "-h" || word == "--help-all" || word == "--version" ||
               word == "-v";
    };
    if (std::none_of(argv, argv + argc, asks)) return;
    const QCoreApplication application(argc, argv);
    Application::SetIdentity();
    ReadOptions(QCoreApplication::arguments());
}

// False if windows are invisible: a message box or dialog would then wait forever.
bool HasScreen() {
    const QString platform = QGuiApplication::platformName();
    return platform != QLatin1String("offscreen") && platform != QLatin1String("minimal");
}

bool HasDisplay() {
    for (const char* name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"})
        if (!qEnvironmentVariableIsEmpty(name)) return true;
    return false;
}

ShellEnvironment EnvironmentFor(Platform& platform, const std::string& programFolder, bool photographing) {
    ShellEnvironment environment{platform, programFolder};
    environment.metricDesktop = QLocale().measurementSystem() == QLocale::MetricSystem;
    // A picture keeps no unsaved work.
    if (!photographing)
        environment.recoveryFolder = FromQt(
            QStandardPaths::writableLocation(QStandardPaths::AppDataLocation) + QStringLiteral("/unsaved"));
    return environment;
}

int Run(int argc, char** argv) {
    AnswerWithoutDisplay(argc, argv);
    if (!HasDisplay()) {
        std::fputs(
            "tunwright: there is no display here. Start it on a desktop, or set QT_QPA_PLATFORM=offscreen.\n",
            stderr);
        return EXIT_FAILURE;
    }
    Application application(argc, argv);
    const ProgramOptions options = ReadOptions(QCoreApplication::arguments());
    ProgramStyle::Install();
    QApplication::setWindowIcon(ProgramIcon());
    const bool photographing = !options.picture.isEmpty() || !options.pictures.isEmpty();
    QtMessages boxes;
    PrintedMessages printed;
    MessagePort& messages = photographing || !HasScreen() ? static_cast<MessagePort&>(printed) : boxes;
    application.SetMessages(messages);
    InstallRangeBarAccessibility();
    InstallToolAccessibility();
    if (!SettingsFileIsFine(options, messages)) return EXIT_FAILURE;
    const std::unique_ptr<QtSettings> settings =
        options.settings.isEmpty() ? QtSettings::OfUser() : QtSettings::OfFile(FromQt(options.settings));
    QtDialogs dialogs(*settings);
    QtColorChooser colorChooser;
    RegisterDialogWindows(dialogs, colorChooser, *settings);
    SystemClock clock;
    QtClipboard clipboard;
    Platform platform{messages, dialogs, *settings, clock, clipboard};
    // Destroyed after the shell, so that the next program waits until this one has closed its files.
    LocalChannel channel(DesktopName());
    const std::string programFolder = FromQt(QCoreApplication::applicationDirPath());
    Shell shell(EnvironmentFor(platform, programFolder, photographing));
    if (!photographing) shell.Instance().SetChannel(&channel);
    QtBrowser browser;
    SystemTextFiles files(shell.Own());
    Help help(programFolder, messages, browser, files);
    dialogs.SetHelp([&shell](const std::string& form, int tab) {
        shell.Helping().ShowContextHelp(form, tab > 0 ? TabContext(tab) : std::string(kWholeWindow));
    });
    QtPrinters printers(shell.Own());
    QtSaveFile saveFiles;
    shell.Environment().help = &help;
    shell.Environment().printer = &printers;
    shell.Environment().saveFiles = &saveFiles;
    MainWindow window(shell, platform);
    DesktopColors colors;
    window.show();
    if (!window.StartUp(DatabaseOf(options), FromQt(options.file)))
        return shell.Instance().HandedOver() ? EXIT_SUCCESS : EXIT_FAILURE;
    OpenRecipes(window, shell, messages, options);
    if (photographing) return Photograph(window, shell, dialogs, options);
    colors.Follow();
    // Runs inside the event loop, so that closing the main window behind the assistant ends the program.
    if (HasScreen()) QTimer::singleShot(0, &window, [&shell] { shell.ShowAssistantAtStartup(); });
    return QApplication::exec();
}

}  // namespace
}  // namespace tw

int main(int argc, char** argv) {
    return tw::Run(argc, argv);
}
