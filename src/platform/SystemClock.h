// The machine's own clock behind the clock port.
#pragma once

#include "platform/Ports.h"

namespace tw {

class SystemClock : public ClockPort {
  public:
    DateTime Now() override;
};

}  // namespace tw
