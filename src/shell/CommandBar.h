// The present state of the commands of the main window (commands/Commands.h), as its menus and toolbar show
// it. Every change is reported to the observer.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "commands/Commands.h"

namespace tw {

struct MenuItem {
    CommandId id;               // for a top-level menu, the id of its first item
    std::string_view name;      // control name; separators have one too
    std::string caption;        // "&" marks the access key; "-" for a separator
    std::string_view shortcut;  // such as "Ctrl+N"; empty for none
    std::string_view menu;      // control name of the top-level menu that contains the item
    bool enabled = true;
    bool visible = true;
    bool checked = false;
    bool IsSeparator() const { return caption == kSeparator; }
};

struct ToolButton {
    CommandId id;  // the command that a click runs
    std::string_view key;
    std::string_view toolTip;
    std::string image;          // name of the displayed image
    std::string tag;            // the same name, kept so that the state survives a change of icon set
    std::string_view menuItem;  // control name of the command's menu item
    int group = 0;              // buttons of the same group are adjacent
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
    // Creates all items and buttons in their initial state.
    CommandBar();
    void SetObserver(CommandObserver* observer) { observer_ = observer; }

    // Returns the top-level menus from left to right; their own menu field is empty.
    const std::vector<MenuItem>& Menus() const { return menus_; }
    // Returns the items in the order of the menus.
    const std::vector<MenuItem>& Items() const { return items_; }
    const std::vector<ToolButton>& Buttons() const { return buttons_; }
    const MenuItem& Item(CommandId id) const { return items_[static_cast<std::size_t>(id)]; }
    // Returns nullptr for a command without a button.
    const ToolButton* ButtonOf(CommandId id) const;
    // Find by the names that scripts use, and return nullptr for an unknown name or key. FindItem also finds
    // top-level menus.
    const MenuItem* FindItem(std::string_view name) const;
    const ToolButton* FindButton(std::string_view key) const;

    // Each of these setters notifies the observer only if the state changes.
    void SetCaption(CommandId id, std::string_view caption);
    // Changes only the menu item.
    void SetEnabled(CommandId id, bool enabled);
    void SetVisible(CommandId id, bool visible);
    void SetChecked(CommandId id, bool checked);
    // Changes only the button, and its image if that has a greyed twin. REQUIRES: the command has a button.
    void SetButtonEnabled(CommandId id, bool enabled);
    // Changes the menu item, then the button. REQUIRES: the command has a button.
    void SetBothEnabled(CommandId id, bool enabled);

  private:
    MenuItem& ItemOf(CommandId id) { return items_[static_cast<std::size_t>(id)]; }

    std::vector<MenuItem> menus_;
    std::vector<MenuItem> items_;  // in the order of CommandId
    std::vector<ToolButton> buttons_;
    CommandObserver* observer_ = nullptr;
};

}  // namespace tw
