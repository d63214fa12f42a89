#include "platform/SettingsStore.h"

#include <optional>

namespace tw {
namespace {

// Values are read into a buffer of 256 bytes that includes the terminator.
constexpr std::size_t kLongestValue = 255;

}  // namespace

std::string SettingsStore::GetSetting(std::string_view section, std::string_view key,
                                      std::string_view fallback) const {
    for (const auto layer : {SettingsPort::Layer::User, SettingsPort::Layer::Machine}) {
        std::optional<std::string> value = port_.Read(layer, section, key);
        if (value && value->size() <= kLongestValue) return std::move(*value);
    }
    return std::string(fallback);
}

void SettingsStore::SaveSetting(std::string_view section, std::string_view key, std::string_view value,
                                bool machineWide) const {
    if (machineWide && port_.Write(SettingsPort::Layer::Machine, section, key, value)) return;
    port_.Write(SettingsPort::Layer::User, section, key, value);
}

void SettingsStore::ForgetSetting(std::string_view section, std::string_view key) const {
    port_.Remove(SettingsPort::Layer::User, section, key);
}

}  // namespace tw
