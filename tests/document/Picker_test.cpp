// The way from a style or a cell to its catalogue and back.
#include <gmock/gmock.h>

#include "DocumentTest.h"

