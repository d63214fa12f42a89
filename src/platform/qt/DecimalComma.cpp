#include "platform/qt/DecimalComma.h"

#include <QLineEdit>
#include <QLocale>
#include <algorithm>

namespace tw {
namespace {

constexpr QChar kComma = u',';
constexpr QChar kPoint = u'.';

// The digits that the program reads: QChar::isDigit knows those of other scripts, too.
bool IsDigit(QChar c) {
    return c >= u'0' && c <= u'9';
}

bool IsMark(QChar c) {
    return c == kComma || c == kPoint;
}

// Returns the end of the digits and marks from place on.
qsizetype NumberEnd(const QString& text, qsizetype place) {
    while (place < text.size() && (IsDigit(text[place]) || IsMark(text[place]))) ++place;
    return place;
}

// Replaces the comma of the number from begin to end if it is a decimal comma.
void ReplaceComma(QString& text, qsizetype begin, qsizetype end) {
    if (begin > 0 && text[begin - 1].isLetter()) return;
    const auto number = QStringView(text).mid(begin, end - begin);
    const qsizetype comma = number.indexOf(kComma);
    if (comma < 0 || comma + 1 == number.size()) return;
    if (std::count_if(number.begin(), number.end(), IsMark) == 1) text[begin + comma] = kPoint;
}

}  // namespace

QString WithDecimalPoint(const QString& text) {
    if (QLocale().decimalPoint() != QString(kComma)) return text;
    QString changed = text;
    const qsizetype remark = text.indexOf(u'(');
    const qsizetype end = remark < 0 ? text.size() : remark;
    for (qsizetype place = 0; place < end; ++place) {
        const qsizetype numberEnd = NumberEnd(text, place);
        if (numberEnd == place) continue;
        ReplaceComma(changed, place, numberEnd);
        place = numberEnd;
    }
    return changed;
}

QString TypedQuantity(QLineEdit& box) {
    const int cursor = box.cursorPosition();
    // Any digit will do for the one that may follow.
    QString text = WithDecimalPoint(box.text().insert(cursor, u'0'));
    text.remove(cursor, 1);
    if (text == box.text()) return text;
    box.setText(text);
    box.setCursorPosition(cursor);
    return text;
}

}  // namespace tw
