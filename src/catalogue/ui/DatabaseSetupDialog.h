// The dialog window of database setup.
#pragma once

#include <QDialog>

#include "catalogue/DatabaseSetupModel.h"

class QBoxLayout;
class QComboBox;
class QPushButton;

namespace tw {

class GuidesLabel;
class ListPane;

class DatabaseSetupDialog final : public QDialog {
    Q_OBJECT
  public:
    DatabaseSetupDialog(DatabaseSetupModel& model, QWidget* parent);

  protected:
    // Handles Insert and Delete wherever the focus is, except that Delete in a text box edits the text.
    bool eventFilter(QObject* object, QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void reject() override;

  private:
    void AddHead(QBoxLayout& column);
    QBoxLayout* MakeButtons();
    // False if the key has no function here.
    bool TakeKey(const QKeyEvent& key);
    void Press(const char* button);
    void ShowState();

    DatabaseSetupModel& model_;
    ListPane* items_;
    QComboBox* catalogues_ = nullptr;
    QPushButton* edit_ = nullptr;
    QPushButton* delete_ = nullptr;
    GuidesLabel* guides_ = nullptr;
};

}  // namespace tw
