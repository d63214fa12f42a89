// The desktop's dialog that asks for the name of a file.
#pragma once

#include <QFileDialog>

#include "platform/FileDialogModel.h"

namespace tw {

class FileDialog final : public QFileDialog {
    Q_OBJECT
  public:
    FileDialog(FileDialogModel& model, QWidget* parent);
};

}  // namespace tw
