// The minimum for starting any program with windows: a bare main window with menus, a tool bar, an area for
// several documents and a status bar, without any function.
#include <QApplication>
#include <QMainWindow>
#include <QMdiArea>
#include <QMenuBar>
#include <QStatusBar>
#include <QToolBar>

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    QMainWindow window;
    window.setWindowTitle(QStringLiteral("Bare window"));
    for (int m = 0; m < 5; ++m) {
        QMenu* const menu = window.menuBar()->addMenu(QStringLiteral("Menu %1").arg(m));
        for (int i = 0; i < 12; ++i) menu->addAction(QStringLiteral("Item %1").arg(i));
    }
    QToolBar* const bar = window.addToolBar(QStringLiteral("Commands"));
    for (int i = 0; i < 17; ++i) bar->addAction(QStringLiteral("B%1").arg(i));
    window.setCentralWidget(new QMdiArea);
    window.statusBar()->showMessage(QStringLiteral("Ready"));
    window.resize(1000, 700);
    window.show();
    return QApplication::exec();
}
