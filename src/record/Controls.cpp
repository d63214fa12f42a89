#include "record/Controls.h"

#include <algorithm>

#include "values/Text.h"

namespace tw {
namespace {

const std::string kNoText;

}  // namespace

void TextBox::SetText(std::string_view text) {
    if (text_ == text) return;
    text_ = text;
    if (link_->observer) link_->observer->TextBoxChanged(*this);
}

TextSelection TextBox::Selection() const {
    const int count = static_cast<int>(CodePointCount(text_));
    const int start = std::clamp(selection_.start, 0, count);
    return {start, std::clamp(selection_.length, 0, count - start)};
}

void TextBox::Select(TextSelection selection) {
    if (selection_ == selection) return;
    selection_ = selection;
    if (link_->observer) link_->observer->TextSelectionChanged(*this);
}

void Label::SetText(std::string_view text) {
    if (text_ == text) return;
    text_ = text;
    if (link_->observer) link_->observer->LabelChanged(*this);
}

void Button::SetEnabled(bool enabled) {
    if (enabled_ == enabled) return;
    enabled_ = enabled;
    if (link_->observer) link_->observer->ButtonChanged(*this);
}

const std::string& ListBox::Text() const {
    return selected_ < 0 ? kNoText : entries_[static_cast<std::size_t>(selected_)].text;
}

void ListBox::SetEntries(std::vector<Entry> entries, int selected) {
    entries_ = std::move(entries);
    selected_ = selected;
    if (link_->observer) link_->observer->ListChanged(*this);
}

void ListBox::Select(int index) {
    if (selected_ == index) return;
    selected_ = index;
    if (link_->observer) link_->observer->ListChanged(*this);
}

int ListBox::IndexOf(std::int64_t itemData) const {
    const auto found = std::find_if(entries_.begin(), entries_.end(),
                                    [&](const Entry& e) { return e.itemData == itemData; });
    return found == entries_.end() ? -1 : static_cast<int>(found - entries_.begin());
}

int OptionGroup::IndexOf(std::string_view option) const {
    const auto found = std::find(options_.begin(), options_.end(), option);
    return found == options_.end() ? -1 : static_cast<int>(found - options_.begin());
}

void OptionGroup::Select(int index) {
    if (selected_ == index) return;
    selected_ = index;
    if (link_->observer) link_->observer->OptionChanged(*this);
}

}  // namespace tw
