// The state of the commands of the main window (commands/Commands.h): what its menus and its toolbar show
// now. The window shows it; every change goes to the observer.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "commands/Commands.h"

namespace tw {

struct MenuItem {
    CommandId id;               // of a top-level menu that of its first item
    std::string_view name;      // control name; a separator has a name too
    std::string caption;        // "&" marks the access key; "-" for a separator
    std::string_view shortcut;  // "Ctrl+N", empty for none
    std::string_view menu;      // the control name of the top-level menu it stands in
    bool enabled = true;
    bool visible = true;
    bool checked = false;
    bool IsSeparator() const { return caption == kSeparator; }
};

struct ToolButton {
    CommandId id;  // what a click runs
    std::string_view key;
    std::string_view toolTip;
    std::string image;  // name of the image shown
    std::string tag;    // keeps the name of the present image, so that a change of icon set keeps the state
    std::string_view menuItem;  // control name of the command's menu item
    int group = 0;              // buttons of one group stand together
    bool enabled = true;
};

class CommandObserver {
  public:
    virtual ~CommandObserver() = default;
    virtual void MenuItemChanged(const MenuItem&) {}
    virtual void ToolButtonChanged(const ToolButton&) {}
};

class CommandBar {
  public:
    // All items and buttons in their start state.
    CommandBar();
    void SetObserver(CommandObserver* observer) { observer_ = observer; }

    // The top-level menus from left to right; their own menu is empty.
    const std::vector<MenuItem>& Menus() const { return menus_; }
    // The items in the order of the menus.
    const std::vector<MenuItem>& Items() const { return items_; }
    const std::vector<ToolButton>& Buttons() const { return buttons_; }
    const MenuItem& Item(CommandId id) const { return items_[static_cast<std::size_t>(id)]; }
    // nullptr for a command without a button.
    const ToolButton* ButtonOf(CommandId id) const;
    // By the names that scripts use; nullptr for an unknown name or key. FindItem knows the top-level menus
    // too.
    const MenuItem* FindItem(std::string_view name) const;
    const ToolButton* FindButton(std::string_view key) const;

    // Each touches nothing, and tells nobody, if there is no change.
    void SetCaption(CommandId id, std::string_view caption);
    // The menu item alone.
    void SetEnabled(CommandId id, bool enabled);
    void SetVisible(CommandId id, bool visible);
    void SetChecked(CommandId id, bool checked);
    // The button alone, with its picture where it has a greyed twin. REQUIRES: the command has a button.
    void SetButtonEnabled(CommandId id, bool enabled);
    // The menu item, then the button. REQUIRES: the command has a button.
    void SetBothEnabled(CommandId id, bool enabled);

  private:
    MenuItem& ItemOf(CommandId id) { return items_[static_cast<std::size_t>(id)]; }

    std::vector<MenuItem> menus_;
    std::vector<MenuItem> items_;  // in the order of their ids
    std::vector<ToolButton> buttons_;
    CommandObserver* observer_ = nullptr;
};

}  // namespace tw
