#include "help/AssistantModel.h"

#include <algorithm>

namespace tw {
namespace {

std::string WithoutMark(std::string_view caption) {
    std::string text(caption);
    std::erase(text, '&');
    return text;
}

}  // namespace

AssistantModel::AssistantModel(bool showAtStartup) : FormModel(kFormName), showAtStartup_(showAtStartup) {
    AddControls({CheckBox("chkShowAtStartup", showAtStartup_)});
    for (const AssistantLink& link : kAssistantLinks) {
        const std::string name(link.name);
        if (link.original) AddControls({{"lbl" + name, [&link] { return WithoutMark(link.caption); }}});
        for (const char* const kind : {"img", "lbl"})
            AddButtons({{kind + name, [this, &link] { Follow(link); }}});
    }
    AddButtons({{"cmdOK", [this] { Close(); }}});
}

void AssistantModel::Follow(const AssistantLink& link) {
    chosen_ = link.command;
    Close();
}

}  // namespace tw
