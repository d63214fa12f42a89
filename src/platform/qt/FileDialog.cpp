#include "platform/qt/FileDialog.h"

#include "platform/qt/QtText.h"

namespace tw {

FileDialog::FileDialog(FileDialogModel& model, QWidget* parent) : QFileDialog(parent) {
    const FileDialogModel::Options& options = model.Settings();
    const bool saves = options.kind == FileDialogModel::Kind::Save;
    setObjectName(ToQt(model.FormName()));
    setWindowTitle(ToQt(options.title));
    setAcceptMode(saves ? AcceptSave : AcceptOpen);
    setFileMode(saves ? AnyFile : options.several ? ExistingFiles : ExistingFile);
    setOption(DontConfirmOverwrite, !options.askToReplace);
    setNameFilter(ToQt(options.filterName));
    setDefaultSuffix(ToQt(options.extension));
    connect(this, &QFileDialog::filesSelected, this, [&model](const QStringList& files) {
        std::vector<std::string> names;
        for (const QString& file : files)
            if (!file.isEmpty()) names.push_back(FromQt(file));
        if (!names.empty()) model.Take(std::move(names));
    });
}

}  // namespace tw
