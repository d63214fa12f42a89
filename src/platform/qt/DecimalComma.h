// The decimal comma of the brewer's desktop, as typed into boxes that take a quantity. The program itself
// knows numbers with a point alone, so the comma becomes one in the box: what is stored, and what the core
// reads, is the text that the brewer sees.
#pragma once

#include <QString>

class QLineEdit;

namespace tw {

// Returns a typed text with each decimal comma replaced by a point, if QLocale writes the comma so; the text
// itself otherwise. A decimal comma has a digit behind it, no letter before its number, and no other comma or
// point in its number: there is no mark for thousands, so "1.000,5" stays and is refused like any text that
// is not a number. A remark, from the first "(" on, stays as well. The length does not change.
QString WithDecimalPoint(const QString& text);

// Shows the text that the brewer is typing into a box with decimal points, and returns it. A comma at the
// cursor counts although its digit is yet to come, so that no key makes a text which is not the beginning of
// a number. The cursor stays where it is. Call it when the text has been edited.
QString TypedQuantity(QLineEdit& box);

}  // namespace tw
