// The tooltips of lists and trees, which show in full the texts that their columns cut off.
#pragma once

#include <QString>
#include <QTextDocument>

#include "platform/qt/QtText.h"

namespace tw {

// Returns all lines of the text. From a line that is too long for any screen, the middle is cut out. A name
// that looks like markup is shown literally.
inline QString NameTip(const QString& text) {
    constexpr qsizetype kLongest = 200;
    const QString tip = CutLines(text, kLongest);
    return Qt::mightBeRichText(tip) ? Qt::convertFromPlainText(tip) : tip;
}

}  // namespace tw
