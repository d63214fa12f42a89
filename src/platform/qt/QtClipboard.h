// The clipboard port on the desktop's clipboard.
#pragma once

#include "platform/Ports.h"

namespace tw {

class QtClipboard final : public ClipboardPort {
  public:
    bool HasText() override;
    std::string Text() override;
    void SetText(std::string_view text) override;
};

}  // namespace tw
