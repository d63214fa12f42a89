// Comparing a tree that operations have changed with one that has just been read.
#pragma once

#include "TreeTest.h"

namespace tw::test {

// Fails the test unless both hold the same nodes at the same places with the same names, icons and flags, and
// the first is in order and sound. Of siblings that sort alike the order is free, and so is that of "(None)"
// and the styles that sort before it.
void ExpectSameTree(TWTree& tree, TWTree& fresh);

}  // namespace tw::test
