#include "app/Pictures.h"

#include <QApplication>
#include <QDialog>
#include <QDir>
#include <QTabWidget>

#include "app/PrintedMessages.h"
#include "document/CannotUndo.h"
#include "document/DetailWindows.h"
#include "document/ui/frmDocument.h"
#include "platform/qt/Appearance.h"
#include "platform/qt/QtDialogs.h"
#include "shell/AboutModel.h"
#include "shell/OptionsModel.h"
#include "shell/Shell.h"
#include "shell/ui/MainGeometry.h"
#include "shell/ui/frmMain.h"

namespace tw {
namespace {

constexpr const char* kTabFiles[kTabs] = {"general",     "grains",   "extracts", "hops", "water",
                                          "carbonation", "adjuncts", "log",      "notes"};

bool SaveWidget(QWidget& widget, const QString& file) {
    // Layouts and late events settle first.
    for (int i = 0; i < 3; ++i) QApplication::processEvents();
    return widget.grab().save(file, "PNG");
}

bool SaveDialog(QtDialogs& dialogs, DialogModel& model, QWidget& parent, const QString& file) {
    const std::unique_ptr<QDialog> dialog = dialogs.Make(model, &parent);
    dialog->show();
    return SaveWidget(*dialog, file);
}

// Every tab of the options.
bool SaveOptions(QtDialogs& dialogs, Shell& shell, QWidget& parent, const QString& prefix) {
    PrintedMessages messages;
    OptionsModel model(shell, messages);
    const std::unique_ptr<QDialog> dialog = dialogs.Make(model, &parent);
    dialog->show();
    auto& tabs = *dialog->findChild<QTabWidget*>();
    bool ok = true;
    for (int tab = 0; tab < tabs.count(); ++tab) {
        tabs.setCurrentIndex(tab);
        ok &= SaveWidget(*dialog, QStringLiteral("%1options-%2.png").arg(prefix).arg(tab));
    }
    return ok;
}

bool SaveDialogs(frmMain& window, Shell& shell, QtDialogs& dialogs, const QString& prefix) {
    AboutModel about;
    bool ok = SaveDialog(dialogs, about, window, prefix + QStringLiteral("about.png"));
    CannotUndoModel cannotUndo;
    ok &= SaveDialog(dialogs, cannotUndo, window, prefix + QStringLiteral("cannot-undo.png"));
    ok &= SaveOptions(dialogs, shell, window, prefix);
    if (RecipeDocument* document = shell.ActiveDocument()) {
        DetailsModel strength = StrengthDetailsOf(*document), volume = FinalVolDetailsOf(*document),
                     hops = HopDetailsOf(*document);
        ok &= SaveDialog(dialogs, strength, window, prefix + QStringLiteral("strength.png"));
        ok &= SaveDialog(dialogs, volume, window, prefix + QStringLiteral("volume.png"));
        ok &= SaveDialog(dialogs, hops, window, prefix + QStringLiteral("bitterness.png"));
    }
    return ok;
}

// A picture does not depend on the screen it is taken at, or on the sizes that somebody has stored.
void TakeUsualSize(frmMain& window) {
    window.setWindowState(Qt::WindowNoState);
    window.resize(FirstSize(window));
    QApplication::processEvents();
    if (frmDocument* document = window.ActiveWindow()) document->parentWidget()->showMaximized();
}

}  // namespace

bool TakePicture(frmMain& window, const QString& file) {
    TakeUsualSize(window);
    return SaveWidget(window, file);
}

bool TakeAllPictures(frmMain& window, Shell& shell, QtDialogs& dialogs, const QString& folder) {
    bool ok = QDir().mkpath(folder);
    TakeUsualSize(window);
    for (const bool dark : {false, true}) {
        QApplication::setPalette(dark ? DarkPalette() : LightPalette());
        const QString prefix = folder + (dark ? QStringLiteral("/dark-") : QStringLiteral("/light-"));
        frmDocument* document = window.ActiveWindow();
        if (!document) ok &= SaveWidget(window, prefix + QStringLiteral("empty.png"));
        for (int tab = 0; document && tab < kTabs; ++tab) {
            document->ShowTab(static_cast<Tab>(tab));
            ok &= SaveWidget(window, prefix + QLatin1String(kTabFiles[tab]) + QStringLiteral(".png"));
        }
        ok &= SaveDialogs(window, shell, dialogs, prefix);
    }
    return ok;
}

}  // namespace tw
