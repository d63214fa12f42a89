#include "help/AssistantModel.h"

#include <algorithm>

namespace tw {
namespace {

constexpr std::string_view kCheckBox = "chkShowAtStartup";
constexpr std::size_t kKindLength = 3;

// The link of a picture or a label, nullptr for another control.
const AssistantLink* LinkOf(std::string_view control) {
    if (!control.starts_with("img") && !control.starts_with("lbl")) return nullptr;
    const auto* const link =
        std::ranges::find(kAssistantLinks, control.substr(kKindLength), &AssistantLink::name);
    return link == std::end(kAssistantLinks) ? nullptr : link;
}

std::string WithoutMark(std::string_view caption) {
    std::string text(caption);
    std::erase(text, '&');
    return text;
}

}  // namespace

std::vector<DialogControl> AssistantModel::Controls() const {
    std::vector<DialogControl> controls = {{std::string(kCheckBox), showAtStartup_ ? "yes" : "no"}};
    for (const AssistantLink& link : kAssistantLinks)
        controls.push_back({"lbl" + std::string(link.name), WithoutMark(link.caption)});
    return controls;
}

bool AssistantModel::SetControl(std::string_view name, std::string_view text) {
    if (name != kCheckBox || (text != "yes" && text != "no")) return false;
    showAtStartup_ = text == "yes";
    return true;
}

bool AssistantModel::Press(std::string_view button) {
    const AssistantLink* const link = LinkOf(button);
    if (!link && button != "cmdOK") return false;
    if (link) chosen_ = link->menuItem;
    open_ = false;
    return true;
}

}  // namespace tw
