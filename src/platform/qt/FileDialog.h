// The desktop's dialog that asks for the name of a file.
#pragma once

#include <QFileDialog>
#include <memory>

#include "platform/FileDialogModel.h"

namespace tw {

class FileDialog final : public QFileDialog {
    Q_OBJECT
  public:
    FileDialog(FileDialogModel& model, QWidget* parent);
    // The window of a FileDialogModel. REQUIRES: model is one.
    static std::unique_ptr<QDialog> Make(DialogModel& model, QWidget* parent);
};

}  // namespace tw
