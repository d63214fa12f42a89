// The store of settings: text values by section and key, the user's layer over the machine's.
#pragma once

#include <string>
#include <string_view>

#include "platform/Ports.h"

namespace tw {

class SettingsStore {
  public:
    explicit SettingsStore(SettingsPort& port) : port_(port) {}

    // The stored text, the user's before the machine's, or fallback. A value of over 255 bytes reads as not
    // present.
    std::string GetSetting(std::string_view section, std::string_view key, std::string_view fallback) const;
    // Stores the text for the user; with machineWide for the machine and, if that fails, for the user. A
    // store that cannot be written ends silently.
    void SaveSetting(std::string_view section, std::string_view key, std::string_view value,
                     bool machineWide) const;
    // Forgets the user's text, so that the machine's or the default counts again.
    void ForgetSetting(std::string_view section, std::string_view key) const;

  private:
    SettingsPort& port_;
};

}  // namespace tw
