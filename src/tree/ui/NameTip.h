// The tips of lists and trees, which show in full what their columns cut.
#pragma once

#include <QString>

#include "platform/qt/QtText.h"

namespace tw {

// Every line of the text, but for the middle of one that no screen has room for. A name may look like markup;
// it is shown letter for letter.
inline QString NameTip(const QString& text) {
    constexpr qsizetype kLongest = 200;
    const QString tip = CutLines(text, kLongest);
    return Qt::mightBeRichText(tip) ? Qt::convertFromPlainText(tip) : tip;
}

}  // namespace tw
