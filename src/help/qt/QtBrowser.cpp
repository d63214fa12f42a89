#include "help/qt/QtBrowser.h"

#include <QDesktopServices>
#include <QFileInfo>
#include <QUrl>

#include "platform/qt/QtText.h"

namespace tw {

int QtBrowser::Open(const std::string& file) {
    const QFileInfo page(ToQt(file));
    if (!page.isFile()) return kFileNotFoundCode;
    if (!page.isReadable()) return kAccessDeniedCode;
    return QDesktopServices::openUrl(QUrl::fromLocalFile(page.absoluteFilePath())) ? kOpenedCode
                                                                                   : kNoProgramCode;
}

}  // namespace tw
