// The six slots of recently used recipes in the File menu, with their two separators.
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

    // Fills the slots from the store, skipping empty entries.
    void Load(const SettingsStore& store);
    // Stores the visible slots. Entries beyond the last visible slot stay in the store: the stored form must
    // not change.
    void Store(const SettingsStore& store) const;
    void Add(std::string_view name);
    void Remove(std::string_view name);
    void Rename(std::string_view oldName, std::string_view newName);
    // The name of the recipe in a slot; empty for a hidden slot.
    std::string NameOf(int slot) const;
    // Returns the captions of the visible slots.
    std::vector<std::string> Captions() const;

  private:
    int Find(std::string_view name) const;
    void SetSlot(int slot, std::string_view name, bool visible);
    bool Visible(int slot) const;

    CommandBar& commands_;
};

}  // namespace tw
