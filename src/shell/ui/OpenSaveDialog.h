// The open and save dialog (frmOpenSave) as one list of the stored recipes with a name box.
#pragma once

#include <QDialog>
#include <memory>

#include "shell/OpenSaveModel.h"

class QLineEdit;
class QListWidget;

namespace tw {

class OpenSaveDialog final : public QDialog {
    Q_OBJECT
  public:
    OpenSaveDialog(OpenSaveModel& model, QWidget* parent);
    // The window of an OpenSaveModel. REQUIRES: model is one.
    static std::unique_ptr<QDialog> Make(DialogModel& model, QWidget* parent);

  protected:
    void reject() override;
    bool eventFilter(QObject* object, QEvent* event) override;

  private:
    void MakeList();
    void NameTyped(const QString& text);
    void Accept();

    OpenSaveModel& model_;
    QLineEdit* name_;
    QListWidget* list_;
};

}  // namespace tw
