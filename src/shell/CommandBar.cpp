#include "shell/CommandBar.h"

#include <algorithm>
#include <cassert>

namespace tw {
namespace {

constexpr int kPlacesInGroup = 10;

std::string PictureOf(const ToolButtonRow& button, bool enabled) {
    std::string picture(button.image);
    if (button.twin && !enabled) picture += "Transparent";
    return picture;
}

}  // namespace

CommandBar::CommandBar() {
    for (const TopMenuRow& menu : AllTopMenus())
        menus_.push_back({menu.first, menu.name, std::string(menu.caption), {}, {}});
    for (const CommandRow& row : AllCommandRows()) {
        const bool enabled = row.start != Start::Disabled;
        items_.push_back({row.id, row.name, std::string(row.caption), row.keys,
                          AllTopMenus()[static_cast<std::size_t>(MenuOf(row.id))].name, enabled,
                          row.start != Start::Hidden});
        if (row.button.key.empty()) continue;
        const std::string picture = PictureOf(row.button, enabled);
        buttons_.push_back({row.id, row.button.key, row.button.toolTip, picture, picture, row.name,
                            row.button.place / kPlacesInGroup, enabled});
    }
    std::ranges::sort(buttons_, {}, [](const ToolButton& button) { return RowOf(button.id).button.place; });
}

const ToolButton* CommandBar::ButtonOf(CommandId id) const {
    const auto found = std::ranges::find(buttons_, id, &ToolButton::id);
    return found == buttons_.end() ? nullptr : &*found;
}

const MenuItem* CommandBar::FindItem(std::string_view name) const {
    if (const auto id = FindCommandId(name)) return &Item(*id);
    const auto menu = std::ranges::find(menus_, name, &MenuItem::name);
    return menu == menus_.end() ? nullptr : &*menu;
}

const ToolButton* CommandBar::FindButton(std::string_view key) const {
    const auto found = std::ranges::find(buttons_, key, &ToolButton::key);
    return found == buttons_.end() ? nullptr : &*found;
}

void CommandBar::SetCaption(CommandId id, std::string_view caption) {
    MenuItem& item = ItemOf(id);
    if (item.caption == caption) return;
    item.caption = caption;
    if (observer_) observer_->MenuItemChanged(item);
}

void CommandBar::SetEnabled(CommandId id, bool enabled) {
    MenuItem& item = ItemOf(id);
    if (item.enabled == enabled) return;
    item.enabled = enabled;
    if (observer_) observer_->MenuItemChanged(item);
}

void CommandBar::SetVisible(CommandId id, bool visible) {
    MenuItem& item = ItemOf(id);
    if (item.visible == visible) return;
    item.visible = visible;
    if (observer_) observer_->MenuItemChanged(item);
}

void CommandBar::SetChecked(CommandId id, bool checked) {
    MenuItem& item = ItemOf(id);
    if (item.checked == checked) return;
    item.checked = checked;
    if (observer_) observer_->MenuItemChanged(item);
}

void CommandBar::SetButtonEnabled(CommandId id, bool enabled) {
    const auto button = std::ranges::find(buttons_, id, &ToolButton::id);
    assert(button != buttons_.end());
    if (button->enabled == enabled) return;
    button->enabled = enabled;
    button->image = PictureOf(RowOf(id).button, enabled);
    button->tag = button->image;
    if (observer_) observer_->ToolButtonChanged(*button);
}

void CommandBar::SetBothEnabled(CommandId id, bool enabled) {
    SetEnabled(id, enabled);
    SetButtonEnabled(id, enabled);
}

}  // namespace tw
