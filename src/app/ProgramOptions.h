// The words of the command line.
#pragma once

#include <QSize>
#include <QStringList>

namespace tw {

struct ProgramOptions {
    QString database;  // empty: Tunwright.mdb in the program's folder
    QString settings;  // empty: the user's
    QStringList open;  // names of recipes
    QString file;      // a recipe file to import: what is left of the command line, as one path
    int tab = 0;
    QString picture;   // a file for a picture of the main window; the program ends then
    QString pictures;  // a folder for pictures of all windows; the program ends then
    QSize size;        // of the main window in pictures; empty: the usual one
};

// Reads the words. Paths of files that exist are absolute, since the program leaves the folder that it was
// started in. Ends the process with a message for an unknown option, --help and --version.
ProgramOptions ReadOptions(const QStringList& arguments);

}  // namespace tw
