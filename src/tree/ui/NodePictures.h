// The pictures of folders, styles and recipes in trees and lists.
#pragma once

#include <QIcon>

#include "tree/NodeIcon.h"

namespace tw {

// Returns the icon; an empty one for None and Other.
QIcon NodePicture(NodeIcon icon);

}  // namespace tw
