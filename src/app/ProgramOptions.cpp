#include "app/ProgramOptions.h"

#include <QCommandLineParser>
#include <QFileInfo>

namespace tw {
namespace {

QString Absolute(const QString& path) {
    return path.isEmpty() || path == QLatin1String(":memory:") ? path : QFileInfo(path).absoluteFilePath();
}

// A path that is not a file stays as typed, since the message about the missing file shows it.
QString AbsoluteIfFile(const QString& path) {
    return QFileInfo(path).isFile() ? QFileInfo(path).absoluteFilePath() : path;
}

}  // namespace

ProgramOptions ReadOptions(const QStringList& arguments) {
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("Formulates, calculates and files beer recipes."));
    parser.addHelpOption();
    parser.addVersionOption();
    const QCommandLineOption database(QStringLiteral("database"),
                                      QStringLiteral("Uses this database in place of Tunwright.mdb."),
                                      QStringLiteral("FILE"));
    const QCommandLineOption settings(QStringLiteral("settings"),
                                      QStringLiteral("Keeps the settings in this file."),
                                      QStringLiteral("FILE"));
    const QCommandLineOption open(
        QStringLiteral("open"), QStringLiteral("Opens the recipe of that name; can be given several times."),
        QStringLiteral("NAME"));
    const QCommandLineOption tab(QStringLiteral("tab"), QStringLiteral("Shows this tab, 0 to 8."),
                                 QStringLiteral("N"), QStringLiteral("0"));
    const QCommandLineOption picture(QStringLiteral("picture"),
                                     QStringLiteral("Writes a picture of the main window and ends."),
                                     QStringLiteral("FILE"));
    const QCommandLineOption pictures(QStringLiteral("pictures"),
                                      QStringLiteral("Writes pictures of all windows and ends."),
                                      QStringLiteral("FOLDER"));
    const QCommandLineOption size(QStringLiteral("size"),
                                  QStringLiteral("Takes pictures of a main window of this size, in pixels."),
                                  QStringLiteral("WIDTHxHEIGHT"));
    parser.addOptions({database, settings, open, tab, picture, pictures, size});
    parser.addPositionalArgument(QStringLiteral("FILE"), QStringLiteral("Imports the recipes of this file."),
                                 QStringLiteral("[FILE]"));
    parser.process(arguments);
    ProgramOptions options;
    options.database = Absolute(parser.value(database));
    options.settings = Absolute(parser.value(settings));
    // The arguments are the parts of one path that may contain spaces.
    options.file = AbsoluteIfFile(parser.positionalArguments().join(QLatin1Char(' ')).trimmed());
    options.open = parser.values(open);
    options.tab = parser.value(tab).toInt();
    const QStringList sides = parser.value(size).split(QLatin1Char('x'));
    if (sides.size() == 2) options.size = QSize(sides[0].toInt(), sides[1].toInt());
    options.picture = Absolute(parser.value(picture));
    options.pictures = Absolute(parser.value(pictures));
    return options;
}

}  // namespace tw
