// The clock port on the machine's own clock.
#pragma once

#include "platform/Ports.h"

namespace tw {

class SystemClock : public ClockPort {
  public:
    DateTime Now() override;
};

}  // namespace tw
