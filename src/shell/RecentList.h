// The six slots of most recently used recipes at the foot of the File menu, with their two separators.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/SettingsStore.h"
#include "shell/CommandBar.h"

namespace tw {

class RecentList {
  public:
    explicit RecentList(CommandBar& commands) : commands_(commands) {}

    // Fills the slots from the store; gaps close up.
    void Load(const SettingsStore& store);
    // Writes the visible slots; values beyond the last visible one stay in the store, on purpose.
    void Store(const SettingsStore& store) const;
    void Add(std::string_view name);
    void Remove(std::string_view name);
    void Rename(std::string_view oldName, std::string_view newName);
    // The recipe's name behind a slot's caption, empty for a hidden slot.
    std::string NameOf(int slot) const;
    // The captions of the visible slots.
    std::vector<std::string> Captions() const;

  private:
    int Find(std::string_view name) const;
    void SetSlot(int slot, std::string_view name, bool visible);
    bool Visible(int slot) const;

    CommandBar& commands_;
};

}  // namespace tw
