// The command line options.
#pragma once

#include <QSize>
#include <QStringList>

namespace tw {

struct ProgramOptions {
    QString database;  // empty: Tunwright.mdb in the program's folder
    QString settings;  // empty: the user's settings
    QStringList open;  // names of recipes to open
    QString file;      // a recipe file to import: the remaining arguments, joined to one path
    int tab = 0;       // index of the tab to show, from 0
    QString picture;   // file for a picture of the main window, after which the program ends
    QString pictures;  // folder for pictures of all windows, after which the program ends
    QSize size;        // of the main window in pictures, in pixels; empty: the default size
};

// Reads the arguments. Paths are made absolute, because the program leaves the folder in which it was
// started; a recipe file that does not exist keeps the path as typed. Ends the process, with a message, for
// an unknown option, --help and --version.
ProgramOptions ReadOptions(const QStringList& arguments);

}  // namespace tw
