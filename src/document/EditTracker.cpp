#include "document/EditTracker.h"

#include <algorithm>
#include <array>
#include <cstring>

#include "values/Text.h"

namespace tw {

std::string_view ChangeTypeName(ChangeType type) {
    static constexpr auto kNames = std::to_array<std::string_view>(
        {"Typing", "Selection", "Cut", "Delete", "Paste", "Abort", "Insert Row", "Delete Row", "Calculation",
         "Sort", "Resize Recipe", "Adjust Strength", "Adjust Bitterness", "Adjust Carbonation"});
    const auto index = static_cast<std::size_t>(type);
    return index < kNames.size() ? kNames[index] : std::string_view();
}

EditValue EditValue::OfText(std::string_view text) {
    const auto size = static_cast<std::uint32_t>(text.size());
    Text block(new char[sizeof size + text.size()]);
    std::memcpy(block.get(), &size, sizeof size);
    if (size > 0) std::memcpy(block.get() + sizeof size, text.data(), text.size());
    EditValue value;
    value.value_ = std::move(block);
    return value;
}

EditValue EditValue::OfTextAndNumber(std::string_view text, CellValue number) {
    EditValue value;
    value.value_ = std::make_unique<TextAndNumber>(TextAndNumber{std::string(text), number});
    return value;
}

EditValue EditValue::OfNumber(double number) {
    EditValue value;
    value.value_ = number;
    return value;
}

EditValue EditValue::OfBoolean(bool boolean) {
    EditValue value;
    value.value_ = boolean;
    return value;
}

EditValue EditValue::OfOrder(std::vector<int> order) {
    EditValue value;
    value.value_ = std::make_unique<std::vector<int>>(std::move(order));
    return value;
}

std::string_view EditValue::AsText() const {
    if (const auto* const cell = std::get_if<std::unique_ptr<TextAndNumber>>(&value_)) return (*cell)->text;
    const Text* const block = std::get_if<Text>(&value_);
    if (!block) return {};
    std::uint32_t size = 0;
    std::memcpy(&size, block->get(), sizeof size);
    return {block->get() + sizeof size, size};
}

double EditValue::AsNumber() const {
    const double* const number = std::get_if<double>(&value_);
    return number ? *number : 0;
}

const CellValue* EditValue::OwnNumber() const {
    const auto* const cell = std::get_if<std::unique_ptr<TextAndNumber>>(&value_);
    return cell ? &(*cell)->number : nullptr;
}

bool EditValue::AsBoolean() const {
    const bool* const boolean = std::get_if<bool>(&value_);
    return boolean && *boolean;
}

std::vector<int> EditValue::AsOrder() const {
    const Order* const order = std::get_if<Order>(&value_);
    return order ? **order : std::vector<int>();
}

bool EditValue::SameAs(const EditValue& other) const {
    if (value_.index() != other.value_.index()) return false;
    if (OwnNumber() && *OwnNumber() != *other.OwnNumber()) return false;
    if (IsText()) return AsText() == other.AsText();
    if (const Order* const order = std::get_if<Order>(&value_))
        return std::is_sorted((*order)->begin(), (*order)->end());
    return AsNumber() == other.AsNumber() && AsBoolean() == other.AsBoolean();
}

EditTracker& EditTracker::operator=(EditTracker&& other) noexcept {
    if (this == &other) return *this;
    Cleanup();
    controlName_ = other.controlName_;
    oldValue_ = std::move(other.oldValue_);
    newValue_ = std::move(other.newValue_);
    next_ = std::move(other.next_);
    selection_ = other.selection_;
    row_ = other.row_;
    col_ = other.col_;
    controlIndex_ = other.controlIndex_;
    controlType_ = other.controlType_;
    changeType_ = other.changeType_;
    tabNumber_ = other.tabNumber_;
    return *this;
}

EditTracker::~EditTracker() {
    Cleanup();
}

void EditTracker::Cleanup() {
    while (next_) next_ = std::move(next_->next_);
}

void EditTracker::SetControlID(const std::string& name, int index) {
    controlName_ = &name;
    controlIndex_ = static_cast<std::int16_t>(index);
}

std::string EditTracker::GetControlID() const {
    if (!controlName_) return {};
    return controlIndex_ < 0 ? *controlName_ : *controlName_ + "(" + std::to_string(controlIndex_) + ")";
}

TextSpan ChangedSpan(std::string_view oldText, std::string_view newText) {
    const auto inCharacter = [](std::string_view text, std::size_t at) {
        return at < text.size() && IsContinuationByte(text[at]);
    };
    const std::size_t common = std::min(oldText.size(), newText.size());
    std::size_t begin = 0;
    while (begin < common && oldText[begin] == newText[begin]) ++begin;
    while (begin > 0 && (inCharacter(oldText, begin) || inCharacter(newText, begin))) --begin;
    std::size_t oldEnd = oldText.size(), newEnd = newText.size();
    while (oldEnd > begin && newEnd > begin && oldText[oldEnd - 1] == newText[newEnd - 1]) --oldEnd, --newEnd;
    while (inCharacter(oldText, oldEnd) || inCharacter(newText, newEnd)) ++oldEnd, ++newEnd;
    const auto count = [](std::string_view text) { return static_cast<std::int32_t>(CodePointCount(text)); };
    return {count(newText.substr(0, begin)), count(oldText.substr(begin, oldEnd - begin)),
            count(newText.substr(begin, newEnd - begin))};
}

void EditTracker::SetLocation(int row, int col) {
    row_ = row;
    col_ = static_cast<std::int16_t>(col);
}

void EditTracker::SetValues(EditValue oldValue, EditValue newValue) {
    oldValue_ = std::move(oldValue);
    newValue_ = std::move(newValue);
}

EditTracker* EditTracker::AddNext(EditTracker edit) {
    next_ = std::make_unique<EditTracker>(std::move(edit));
    return next_.get();
}

void EditTracker::Absorb(EditTracker& earlier) {
    oldValue_ = std::move(earlier.oldValue_);
    selection_.oldStart = earlier.selection_.oldStart;
    selection_.oldLength = earlier.selection_.oldLength;
}

}  // namespace tw
