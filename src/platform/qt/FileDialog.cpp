#include "platform/qt/FileDialog.h"

#include "platform/qt/QtText.h"

namespace tw {

FileDialog::FileDialog(FileDialogModel& model, QWidget* parent) : QFileDialog(parent) {
    const FileDialogModel::Options& options = model.Settings();
    const bool saves = options.kind == FileDialogModel::Kind::Save;
    setObjectName(ToQt(model.FormName()));
    setWindowTitle(ToQt(options.title));
    setAcceptMode(saves ? AcceptSave : AcceptOpen);
    setFileMode(saves ? AnyFile : ExistingFile);
    setOption(DontConfirmOverwrite, !options.askToReplace);
    setNameFilter(ToQt(options.filterName));
    setDefaultSuffix(ToQt(options.extension));
    connect(this, &QFileDialog::fileSelected, this, [&model](const QString& file) {
        if (!file.isEmpty()) model.Take(FromQt(file));
    });
}

}  // namespace tw
