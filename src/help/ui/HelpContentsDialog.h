// The window of the help's contents (frmHelpContents): the tree of topics, with the name of the selected
// topic below.
#pragma once

#include <QDialog>

#include "help/HelpContentsModel.h"

class QLabel;
class QTreeWidget;
class QTreeWidgetItem;

namespace tw {

class HelpContentsDialog final : public QDialog {
    Q_OBJECT
  public:
    // The model must outlive the dialog.
    HelpContentsDialog(HelpContentsModel& model, QWidget* parent);

  protected:
    void reject() override;
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void Fill();
    void Follow(const QTreeWidgetItem* item);
    void ShowPage();

    HelpContentsModel& model_;
    QTreeWidget* tree_;
    QLabel* selected_;
};

}  // namespace tw
