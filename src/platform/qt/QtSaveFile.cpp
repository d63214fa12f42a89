#include "platform/qt/QtSaveFile.h"

#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QStandardPaths>
#include <QStringList>

#include "platform/qt/QtText.h"

namespace tw {

QString QtFilter(const std::string& filter) {
    const QStringList parts = ToQt(filter).split(QLatin1Char('|'), Qt::SkipEmptyParts);
    QStringList filters;
    for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
        const QString name = parts[i].left(parts[i].indexOf(QLatin1String(" (")));
        QStringList patterns;
        for (const QString& pattern : parts[i + 1].split(QLatin1Char(';'))) {
            if (pattern == QLatin1String("*.*")) {
                patterns << QStringLiteral("*");
                continue;
            }
            patterns << pattern;
            if (pattern.toLower() != pattern) patterns << pattern.toLower();
        }
        filters << name + QStringLiteral(" (") + patterns.join(QLatin1Char(' ')) + QLatin1Char(')');
    }
    return filters.join(QStringLiteral(";;"));
}

QString StartFolder(const std::string& folder) {
    for (const QString& start :
         {ToQt(folder), QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation)})
        if (!start.isEmpty() && QDir(start).exists()) return start;
    return QDir::homePath();
}

std::optional<std::string> QtSaveFile::AskSaveFile(const SaveFileRequest& request) {
    QFileDialog dialog(QApplication::activeWindow(), ToQt(request.title));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setFileMode(QFileDialog::AnyFile);
    dialog.setNameFilter(QtFilter(request.filter));
    dialog.setDefaultSuffix(ToQt(request.extension));
    dialog.setDirectory(StartFolder(request.folder));
    if (!request.name.empty()) dialog.selectFile(ToQt(request.name));
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return std::nullopt;
    return FromQt(dialog.selectedFiles().constFirst());
}

}  // namespace tw
