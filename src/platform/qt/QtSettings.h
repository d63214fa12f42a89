// The settings store on QSettings: where each platform keeps a user's and a machine's settings, or an INI
// file. Any text comes back letter for letter: values are stored as strings, whatever they look like.
#pragma once

#include <QSettings>
#include <memory>

#include "platform/Ports.h"

namespace tw {

class QtSettings : public SettingsPort {
  public:
    // The user's settings over the machine's.
    static std::unique_ptr<QtSettings> OfUser();
    // The INI file in place of the user's settings, over the machine's. The file is made by the first value
    // that is stored; one that cannot be read is empty.
    static std::unique_ptr<QtSettings> OfFile(const std::string& path);

    std::optional<std::string> Read(Layer layer, std::string_view section, std::string_view key) override;
    // The file is brought up to date when the program returns to its event loop, and when this object goes.
    bool Write(Layer layer, std::string_view section, std::string_view key, std::string_view value) override;
    void Remove(Layer layer, std::string_view section, std::string_view key) override;

    std::vector<std::string> Files() const override;

  private:
    explicit QtSettings(std::unique_ptr<QSettings> user);
    QSettings& Of(Layer layer) { return layer == Layer::User ? *user_ : *machine_; }

    std::unique_ptr<QSettings> user_;
    std::unique_ptr<QSettings> machine_;
};

}  // namespace tw
