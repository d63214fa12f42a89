// The dialog that opens, saves or deletes recipes (frmOpenSave).
#pragma once

#include <QDialog>
#include <map>
#include <string>

#include "shell/OpenSaveModel.h"
#include "tree/BrowseView.h"

class QBoxLayout;
class QComboBox;
class QLabel;
class QLineEdit;
class QToolButton;

namespace tw {

class NodeListPane;

class OpenSaveDialog final : public QDialog {
    Q_OBJECT
  public:
    // settings contains how such a window was last left. REQUIRES: model and settings outlive the window.
    OpenSaveDialog(OpenSaveModel& model, SettingsPort& settings, QWidget* parent);

  protected:
    void done(int result) override;
    void reject() override;
    void keyPressEvent(QKeyEvent* event) override;
    bool eventFilter(QObject* object, QEvent* event) override;

  private:
    QLayout* MakeFolderRow();
    void MakeList();
    QLayout* MakeNameRows();
    void AddButton(QBoxLayout& row, const char* name, const char* icon, const QString& tip);
    void AddKey(QWidget& widget, const QKeySequence& key, const std::string& command);
    void Press(const std::string& command);
    void Run(PopupChoice choice);
    void OpenRow();
    // Shows the present state of the model; closes the dialog once the model is closed.
    void ShowState();
    void ShowFolders();
    void ShowPopup(const QPoint& place);
    void SearchFor(const QString& text);
    void MoveChoice(int step);

    OpenSaveModel& model_;
    SettingsStore settings_;
    BrowseView view_, opened_;  // as it is now, and as it was when the window opened
    QComboBox* folders_;
    NodeListPane* list_;
    QLineEdit* name_;
    QLineEdit* find_;
    QLabel* found_;
    std::map<std::string, QToolButton*> buttons_;
    bool showing_ = false;
};

}  // namespace tw
