// The window of the picker of one row of a catalogue.
#pragma once

#include <QDialog>

#include "tree/LvShowModel.h"

class QPushButton;
class QSplitter;

namespace tw {

class ListPane;

class frmLvShow final : public QDialog {
    Q_OBJECT
  public:
    frmLvShow(LvShowModel& model, QWidget* parent);

  protected:
    void reject() override;

  private:
    int FirstWidth() const;
    void AddFolders(QSplitter& splitter);
    QLayout* MakeButtons();
    void Press(const char* button);
    void ShowButtons();

    LvShowModel& model_;
    ListPane* items_;
    QPushButton* ok_ = nullptr;
    QPushButton* view_ = nullptr;
};

}  // namespace tw
