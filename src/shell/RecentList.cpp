#include "shell/RecentList.h"

#include "shell/Settings.h"
#include "values/Text.h"

namespace tw {
namespace {

std::string KeyOf(int slot) {
    return "File" + std::to_string(slot);
}

// The length of the text before the name in a caption: "&", a digit and a blank.
constexpr std::size_t kCaptionLead = 3;

}  // namespace

bool RecentList::Visible(int slot) const {
    return commands_.Item(RecentCommand(slot)).visible;
}

std::string RecentList::NameOf(int slot) const {
    if (slot < 0 || slot >= kRecentSlots) return {};
    const MenuItem& item = commands_.Item(RecentCommand(slot));
    if (!item.visible || item.caption.size() < kCaptionLead) return {};
    return ReplaceAll(std::string_view(item.caption).substr(kCaptionLead), "&&", "&");
}

void RecentList::SetSlot(int slot, std::string_view name, bool visible) {
    const CommandId item = RecentCommand(slot);
    commands_.SetCaption(
        item, name.empty() ? "" : "&" + std::to_string(slot + 1) + " " + ReplaceAll(name, "&", "&&"));
    commands_.SetVisible(item, visible);
}

int RecentList::Find(std::string_view name) const {
    for (int slot = 0; slot < kRecentSlots; ++slot) {
        if (Visible(slot) && SameName(NameOf(slot), name)) return slot;
    }
    return -1;
}

void RecentList::Load(const SettingsStore& store) {
    int next = 0;
    for (int i = 0; i < kRecentSlots; ++i) {
        const std::string name = store.GetSetting(kMruSection, KeyOf(i), "");
        if (!name.empty()) SetSlot(next++, name, true);
    }
    while (next < kRecentSlots) SetSlot(next++, "", false);
}

void RecentList::Store(const SettingsStore& store) const {
    int next = 0;
    for (int slot = 0; slot < kRecentSlots; ++slot) {
        if (Visible(slot)) store.SaveSetting(kMruSection, KeyOf(next++), NameOf(slot), false);
    }
}

void RecentList::Add(std::string_view name) {
    name = Trim(name);
    const int found = Find(name);
    if (found == 0) return;
    if (Visible(0)) {
        for (int slot = found > 0 ? found : kRecentSlots - 1; slot > 0; --slot) {
            SetSlot(slot, NameOf(slot - 1), Visible(slot - 1));
        }
    }
    SetSlot(0, name, true);
    // The lower separator, FileBar7, is left hidden until the next start: scripts can query its state.
    commands_.SetVisible(CommandId::FileBar5, true);
}

void RecentList::Remove(std::string_view name) {
    const int found = Find(name);
    if (found < 0) return;
    for (int slot = found; slot < kRecentSlots - 1; ++slot) {
        SetSlot(slot, NameOf(slot + 1), Visible(slot + 1));
    }
    SetSlot(kRecentSlots - 1, "", false);
    commands_.SetVisible(CommandId::FileBar5, Visible(0));
}

void RecentList::Rename(std::string_view oldName, std::string_view newName) {
    const int found = Find(oldName);
    if (found >= 0) SetSlot(found, Trim(newName), true);
}

std::vector<std::string> RecentList::Captions() const {
    std::vector<std::string> captions;
    for (int slot = 0; slot < kRecentSlots; ++slot) {
        if (Visible(slot)) captions.push_back(commands_.Item(RecentCommand(slot)).caption);
    }
    return captions;
}

}  // namespace tw
