#include "platform/FormModel.h"

#include <algorithm>
#include <cassert>
#include <iterator>
#include <utility>

namespace tw {
namespace {

template <class Row>
void Append(std::vector<Row>& rows, std::vector<Row> more) {
    for (Row& row : more) {
        assert(std::ranges::find(rows, row.name, &Row::name) == rows.end());
        rows.push_back(std::move(row));
    }
}

std::string YesNo(bool yes) {
    return yes ? "yes" : "no";
}

bool IsThere(const FormControl& control) {
    return !control.isThere || control.isThere();
}

}  // namespace

FormControl TextEntry(std::string name, std::string& text) {
    return {std::move(name), [&text] { return text; },
            [&text](std::string_view entry) {
                text = entry;
                return true;
            }};
}

FormControl CheckBox(std::string name, bool& checked) {
    return {std::move(name), [&checked] { return YesNo(checked); },
            [&checked](std::string_view entry) {
                if (entry != "yes" && entry != "no") return false;
                checked = entry == "yes";
                return true;
            }};
}

FormControl OptionButton(std::string name, std::function<bool()> isChosen, std::function<void()> choose) {
    return {std::move(name), [isChosen = std::move(isChosen)] { return YesNo(isChosen()); },
            [choose = std::move(choose)](std::string_view entry) {
                if (entry != "yes") return false;
                choose();
                return true;
            }};
}

void FormButtons::Add(std::vector<FormButton> buttons) {
    Append(buttons_, std::move(buttons));
}

const FormButton* FormButtons::Find(std::string_view name) const {
    const auto found = std::ranges::find(buttons_, name, &FormButton::name);
    return found == buttons_.end() ? nullptr : &*found;
}

bool FormButtons::Press(std::string_view name) const {
    const FormButton* const button = Find(name);
    if (button == nullptr) return false;
    if (!button->isEnabled || button->isEnabled()) button->press();
    return true;
}

bool FormButtons::IsEnabled(std::string_view name) const {
    const FormButton* const button = Find(name);
    return button != nullptr && (!button->isEnabled || button->isEnabled());
}

void FormModel::AddControls(std::vector<FormControl> controls) {
    Append(controls_, std::move(controls));
}

std::vector<DialogControl> FormModel::Controls() const {
    std::vector<DialogControl> shown;
    for (const FormControl& control : controls_)
        if (control.show && IsThere(control)) shown.push_back({control.name, control.show()});
    return shown;
}

const FormControl* FormModel::Find(std::string_view control) const {
    const auto found = std::ranges::find(controls_, control, &FormControl::name);
    return found != controls_.end() && IsThere(*found) ? &*found : nullptr;
}

std::string FormModel::Text(std::string_view control) const {
    const FormControl* const found = Find(control);
    return found != nullptr && found->show ? found->show() : std::string();
}

bool FormModel::SetControl(std::string_view name, std::string_view text) {
    const FormControl* const found = Find(name);
    return found != nullptr && found->take && found->take(text);
}

void FormModel::Accept() {
    accepted_ = true;
    Close();
}

}  // namespace tw
