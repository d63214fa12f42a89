// Compares a tree that operations have changed with one that has just been read.
#pragma once

#include "TreeTest.h"

namespace tw::test {

// Fails the test unless both trees have the same nodes in the same places, with the same names, icons and
// flags, and the first one is sorted and consistent. The order of siblings that compare equal is not checked,
// nor that of "(None)" and the styles that sort before it.
void ExpectSameTree(TWTree& tree, TWTree& fresh);

}  // namespace tw::test
