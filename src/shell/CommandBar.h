// The commands of the whole program as plain data: menu items and toolbar buttons with their captions and
// states. The main window shows them; every change goes to the observer.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tw {

struct MenuItem {
    std::string name;      // control name, such as "mnuFileNew"; a separator has a name too
    std::string caption;   // "&" marks the access key; "-" for a separator
    std::string shortcut;  // "Ctrl+N", empty for none
    std::string
        menu;  // the top-level menu it stands in: "mnuFile", "mnuEdit", "mnuTools", "mnuWindow", "mnuHelp"
    bool enabled = true;
    bool visible = true;
    bool checked = false;
    bool IsSeparator() const { return caption == "-"; }
};

struct ToolButton {
    std::string key;
    std::string toolTip;
    std::string image;  // name of the image shown
    std::string tag;    // keeps the name of the present image, so that a change of icon set keeps the state
    std::string menuItem;  // the menu item whose action a click runs
    int group = 0;         // buttons of one group stand together
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
    // nullptr for an unknown name or key. FindItem knows the top-level menus too.
    const MenuItem* FindItem(std::string_view name) const;
    const ToolButton* FindButton(std::string_view key) const;

    // Each touches nothing if there is no change. REQUIRES: the name or key exists.
    void SetCaption(std::string_view name, std::string_view caption);
    void SetEnabled(std::string_view name, bool enabled);
    void SetVisible(std::string_view name, bool visible);
    void SetChecked(std::string_view name, bool checked);
    void SetButtonEnabled(std::string_view key, bool enabled);
    // The button and its image: the plain name, or the greyed twin named with "Transparent" behind it.
    void SetButtonWithTwin(std::string_view key, bool enabled);

  private:
    void SetButton(ToolButton& button, bool enabled, bool twin);
    MenuItem& Item(std::string_view name);
    ToolButton& Button(std::string_view key);

    std::vector<MenuItem> menus_;
    std::vector<MenuItem> items_;
    std::vector<ToolButton> buttons_;
    CommandObserver* observer_ = nullptr;
};

}  // namespace tw
