// The settings: texts by section and key, the user's layer over the machine's.
#pragma once

#include <string>
#include <string_view>

#include "platform/Ports.h"

namespace tw {

class SettingsStore {
  public:
    // port must outlive the store.
    explicit SettingsStore(SettingsPort& port) : port_(port) {}

    // Returns the user's text, else the machine's, else fallback. A value of more than 255 bytes counts
    // as missing.
    std::string GetSetting(std::string_view section, std::string_view key, std::string_view fallback) const;
    // Stores the text for the user or, if machineWide, for the machine and only if that fails for the user.
    // Reports no error if nothing could be written.
    void SaveSetting(std::string_view section, std::string_view key, std::string_view value,
                     bool machineWide) const;
    // Deletes the user's text, so that the machine's text or the default applies again.
    void ForgetSetting(std::string_view section, std::string_view key) const;

  private:
    SettingsPort& port_;
};

}  // namespace tw
