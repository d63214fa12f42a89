// The widget in which a folder is chosen, created or renamed.
#pragma once

#include <QWidget>

#include "tree/FolderChooser.h"

class QLabel;
class QPushButton;

namespace tw {

class TreePane;

class FolderChooserView final : public QWidget {
    Q_OBJECT
  public:
    // REQUIRES: chooser outlives the widget.
    FolderChooserView(FolderChooser& chooser, QWidget* parent);
    // Updates the widget from the chooser: the kind of folders, the alignment, and whether it is locked.
    void ShowState();

  private:
    void CreateFolder();
    bool Rename(const QString& name);

    FolderChooser& chooser_;
    QLabel* label_;
    TreePane* tree_;
    QPushButton* newFolder_;
    QPushButton* rename_;
};

}  // namespace tw
