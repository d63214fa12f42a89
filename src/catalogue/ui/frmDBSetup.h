// The window of database setup.
#pragma once

#include <QDialog>
#include <memory>

#include "catalogue/DBSetupModel.h"

class QBoxLayout;
class QComboBox;
class QPushButton;

namespace tw {

class ListPane;

class frmDBSetup final : public QDialog {
    Q_OBJECT
  public:
    frmDBSetup(DBSetupModel& model, QWidget* parent);
    // The window of a DBSetupModel. REQUIRES: model is one.
    static std::unique_ptr<QDialog> Make(DialogModel& model, QWidget* parent);

  protected:
    // Insert and Delete in the list.
    bool eventFilter(QObject* object, QEvent* event) override;
    void reject() override;

  private:
    void AddHead(QBoxLayout& column);
    QBoxLayout* MakeButtons();
    void Press(const char* button);
    void ShowState();

    DBSetupModel& model_;
    ListPane* items_;
    QComboBox* catalogues_ = nullptr;
    QPushButton* edit_ = nullptr;
    QPushButton* delete_ = nullptr;
};

}  // namespace tw
