#include "document/RecipeOptions.h"

namespace tw {
namespace {

EditValue OptionAt(const OptionGroup& group, int index) {
    return EditValue::OfText(group.Options()[static_cast<std::size_t>(index)]);
}

}  // namespace

bool RecipeOptions::Choose(std::string_view option) {
    OptionGroup* const group = recipe_.record.FindOptionGroup(option);
    const int index = group ? group->IndexOf(option) : -1;
    if (index < 0) return false;
    const int before = group->Selected();
    if (index == before) return true;
    group->Select(index);
    try {
        RunChain(*group);
    } catch (const Error&) {
        group->Select(before);
        RunChain(*group);
        throw;
    }
    recipe_.recorder.RecordEdit(group->Name(), OptionAt(*group, before), OptionAt(*group, index),
                                {ControlType::OptionGroup, ChangeType::Selection});
    recipe_.MarkChanged();
    if (group->Id() == OptionId::Packaging) focus_.RefreshRowCommands();
    return true;
}

void RecipeOptions::RunChain(const OptionGroup& group) {
    if (group.Id() == OptionId::IbuMethod)
        recipe_.calculator.IbuMethodChosen();
    else
        recipe_.calculator.PackagingChosen();
}

void RecipeOptions::ChooseDefaults(int ibuMethod, int packaging) {
    const auto choose = [](OptionGroup& group, int index) {
        if (index >= 0 && index < static_cast<int>(group.Options().size())) group.Select(index);
    };
    choose(recipe_.record.grpIBUMethod, ibuMethod);
    choose(recipe_.record.grpPkgMethod, packaging);
}

}  // namespace tw
