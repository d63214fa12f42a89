// The settings port on QSettings: the places where the platform keeps the settings of a user and of a
// machine, or an INI file. Every text is read back exactly as written: values are stored as strings, whatever
// they look like.
#pragma once

#include <QSettings>
#include <memory>

#include "platform/Ports.h"

namespace tw {

class QtSettings : public SettingsPort {
  public:
    // Uses the user's settings over the machine's.
    static std::unique_ptr<QtSettings> OfUser();
    // Uses an INI file instead of the user's settings, over the machine's. The file is created when the first
    // value is stored; a file that cannot be read counts as empty.
    static std::unique_ptr<QtSettings> OfFile(const std::string& path);

    std::optional<std::string> Read(Layer layer, std::string_view section, std::string_view key) override;
    // The file is updated when the program returns to its event loop, and when this object is destroyed.
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
