// The main window: menus, toolbar, and the area with the windows of the open recipes.
#pragma once

#include <QMainWindow>
#include <QTimer>

#include "document/ui/DocumentFrame.h"
#include "shell/Shell.h"

namespace tw {

class CommandMenus;
class DocumentArea;
class DocumentSubWindow;
class ElidedLabel;
class RecipeWindow;

class MainWindow final : public QMainWindow, private ShellView, private DocumentFrame {
    Q_OBJECT
  public:
    static constexpr const char* kFormName = "frmMain";

    // Both arguments must outlive the window, which takes its position and size from the settings.
    MainWindow(Shell& shell, Platform& platform);
    ~MainWindow() override;

    // Runs the start-up once the window is shown: the splash, the test for another instance on this desktop,
    // the settings, the database, and the import of file unless it is blank. False if the program must end at
    // once: another instance is running (Shell::Instance), or the database could not be opened. The
    // message has been shown then, and the window is closed or hidden.
    bool StartUp(const std::string& databasePath, const std::string& file = {});

    // Returns the window of the active recipe, or nullptr.
    RecipeWindow* ActiveWindow() const;

    // DocumentFrame
    bool RunCommand(CommandId command) override;
    void ShowEditMenu(const QPoint& globalPosition, QAction* first) override;
    GridColors Colors() const override;
    TypingUnits Units() const override;
    bool ShowsFigures() const override;
    void HideFigures() override;

  protected:
    void closeEvent(QCloseEvent* event) override;
    void changeEvent(QEvent* event) override;

  private:
    // ShellView
    void DocumentOpened(RecipeDocument& document) override;
    void DocumentClosing(RecipeDocument& document) override;
    void DocumentActivated(RecipeDocument* document) override;
    void DocumentRenamed(const RecipeDocument& document) override;
    void AutoSaveSwitched(bool on) override;
    void UnsavedWorkWaits() override;
    void NoticeChanged(const std::string& notice) override;
    void SayBriefly(const std::string& text) override;
    bool IsMinimized(const RecipeDocument& document) const override;
    bool IsDialogOpen() const override;
    void BringToFront() override;
    void OutsideCommandsWait() override;
    void CloseMainWindow() override;
    void ArrangeDocuments(Arrangement arrangement) override;
    void ToolbarIconsChanged() override;
    void ToolbarButtonStyleChanged() override;
    void GridColorsChanged(const RecipeDocument& document) override;
    void FigureStripSwitched() override;

    void ShowWelcome();
    // Shows the caption of a recipe and whether it has changes to save.
    static void ShowCaption(DocumentSubWindow& window);
    // Tells assistive programs which recipe is in front.
    void SpeakTitle();
    void PlaceSubWindow(DocumentSubWindow& window);
    void ShowInState(DocumentSubWindow& window);
    void PressButton(CommandId command);
    // Commits a pending entry before a command that requires that. False if the entry was refused.
    bool FlushBefore(CommandId command);
    // Sets the focus as the command requires once it has run.
    void FocusAfter(CommandId command);
    void FillWindowMenu();
    void TickDDE();
    DocumentSubWindow* WindowOf(const RecipeDocument& document) const;

    Shell& shell_;
    Platform& platform_;
    CommandMenus* menus_;
    DocumentArea* area_;
    QTimer* autoSaveTimer_;  // tmrAutoSave; it runs even while a dialog is open
    QTimer* keepTimer_;
    QTimer* commandsTimer_;  // tmrProcessDDE; it runs only while commands are queued
    ElidedLabel* notice_;
    bool exitGranted_ = false;
    bool changing_ = false;  // true while the shell changes the windows, whose signals are then ignored
};

}  // namespace tw
