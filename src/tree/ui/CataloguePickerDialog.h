// The dialog in which one row of a catalogue is chosen.
#pragma once

#include <QDialog>

#include "tree/CataloguePickerModel.h"

class QPushButton;
class QSplitter;

namespace tw {

class ListPane;

class CataloguePickerDialog final : public QDialog {
    Q_OBJECT
  public:
    CataloguePickerDialog(CataloguePickerModel& model, QWidget* parent);

  protected:
    void reject() override;

  private:
    int FirstWidth() const;
    void AddFolders(QSplitter& splitter);
    QLayout* MakeButtons();
    void Press(const char* button);
    void ShowButtons();

    CataloguePickerModel& model_;
    ListPane* items_;
    QPushButton* ok_ = nullptr;
    QPushButton* view_ = nullptr;
};

}  // namespace tw
