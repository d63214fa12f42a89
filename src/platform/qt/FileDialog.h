// The desktop's file dialog in place of the one that FileDialogModel describes.
#pragma once

#include <QFileDialog>

#include "platform/FileDialogModel.h"

namespace tw {

class FileDialog final : public QFileDialog {
    Q_OBJECT
  public:
    // model must outlive the dialog.
    FileDialog(FileDialogModel& model, QWidget* parent);
};

}  // namespace tw
