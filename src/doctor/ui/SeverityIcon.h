// The shapes by which findings of each severity are told apart without a colour.
#pragma once

#include <QIcon>

#include "exchange/Finding.h"

namespace tw {

// Returns the icon of a severity: a ring for a note, a tick for what was repaired, a wave for what was
// approximated, a bar for what was not carried, a triangle for what is suspicious, a cross for what was
// refused. It is drawn in the colours of the present palette.
QIcon SeverityIcon(Severity severity);

}  // namespace tw
