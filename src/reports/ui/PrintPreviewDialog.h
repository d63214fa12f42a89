// The window of the print preview (frmPrintPreview).
#pragma once

#include <QDialog>
#include <QHash>

#include "reports/PrintPreviewModel.h"

class QBoxLayout;
class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QScrollArea;

namespace tw {

class PreviewPage;

class PrintPreviewDialog final : public QDialog {
    Q_OBJECT
  public:
    // The model must outlive the dialog.
    PrintPreviewDialog(PrintPreviewModel& model, QWidget* parent);
    ~PrintPreviewDialog() override;

  protected:
    void reject() override;
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;
    bool eventFilter(QObject* object, QEvent* event) override;

  private:
    QBoxLayout* ToolRow();
    QBoxLayout* PageRow();
    void AddKeys();
    QPushButton* AddButton(QBoxLayout& row, const char* name, const QString& caption, const QString& tip);
    QComboBox* AddList(QBoxLayout& row, const char* name, const QString& caption, const QStringList& entries);
    void Press(const QString& button);
    void Enter(const QString& control, const QString& text);
    void ShowModel();
    bool TurnByKey(int key);

    PrintPreviewModel& model_;
    QHash<QString, QPushButton*> buttons_;
    QComboBox *paper_ = nullptr, *zoom_ = nullptr;
    QLineEdit* pageNumber_ = nullptr;
    QLabel* pages_ = nullptr;
    QScrollArea* area_ = nullptr;
    PreviewPage* page_ = nullptr;
};

}  // namespace tw
