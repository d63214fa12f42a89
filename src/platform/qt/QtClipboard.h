// The clipboard port on the desktop's clipboard.
#pragma once

#include "platform/Ports.h"

namespace tw {

// Other programs of this desktop end lines with a line feed. Text read has carriage return and line feed at
// the end of each line, text written a line feed. A block of cells (tabs between cells, a carriage return
// behind each row) is also offered as a table in HTML and as tab-separated values.
class QtClipboard final : public ClipboardPort {
  public:
    bool HasText() override;
    std::string Text() override;
    void SetText(std::string_view text) override;
};

}  // namespace tw
