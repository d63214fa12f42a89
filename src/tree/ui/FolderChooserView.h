// The widget in which a folder is chosen, made and renamed.
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
    // REQUIRES: the chooser lives for as long.
    FolderChooserView(FolderChooser& chooser, QWidget* parent);
    // Shows what has been set on the chooser: the kind of folders, the alignment, the lock.
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
