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

    // Both must outlive the window. It takes the place and size of the settings.
    MainWindow(Shell& shell, Platform& platform);
    ~MainWindow() override;

    // What happens when the window first comes up: the splash, the test for another program on this desktop,
    // the settings, the database, and the import of file unless it is blank. False when the program is to end
    // at once: another one runs (the shell's DDE tells), or the database could not be opened; the box has
    // been shown and the window is closed then.
    bool StartUp(const std::string& databasePath, const std::string& file = {});

    // The window of the recipe in front, nullptr without one.
    RecipeWindow* ActiveWindow() const;

    // DocumentFrame
    bool RunCommand(CommandId command) override;
    void ShowEditMenu(const QPoint& globalPosition) override;
    GridColors Colors() const override;

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

    void ShowWelcome();
    void PlaceSubWindow(DocumentSubWindow& window);
    void PressButton(CommandId command);
    // Commits what is being edited before a command that needs it. False when an entry was refused.
    bool FlushBefore(CommandId command);
    // The focus that a command asks for once it has run.
    void FocusAfter(CommandId command);
    void FillWindowMenu();
    void TickDDE();
    DocumentSubWindow* WindowOf(const RecipeDocument& document) const;

    Shell& shell_;
    Platform& platform_;
    CommandMenus* menus_;
    DocumentArea* area_;
    QTimer* autoSaveTimer_;  // tmrAutoSave; it runs behind dialogs too
    QTimer* keepTimer_;
    QTimer* ddeTimer_;  // tmrProcessDDE; it runs only while commands wait
    ElidedLabel* notice_;
    bool exitGranted_ = false;
    bool changing_ = false;  // the shell is changing the windows; their signals are its echo
};

}  // namespace tw
