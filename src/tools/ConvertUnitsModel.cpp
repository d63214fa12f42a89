#include "tools/ConvertUnitsModel.h"

#include "platform/Error.h"
#include "platform/ScopeGuard.h"
#include "values/NumberText.h"
#include "values/QuantityParsers.h"
#include "values/Text.h"

namespace tw {
namespace {

constexpr int kDecimals = 6;

std::string BoxName(int box) {
    return "Text" + std::to_string(box + 1);
}

// Reads a number with an optional fraction; ignores the text behind it.
std::optional<double> ReadQuantity(std::string_view text) {
    std::string_view rest = Trim(text);
    const std::string_view token = GetToken(rest);
    return ParseMixedNumber(token, rest);
}

bool IsNumber(std::string_view text) {
    try {
        return ReadQuantity(text).has_value();
    } catch (const Error&) {
        return true;
    }
}

}  // namespace

std::optional<QuantityKind> FindKind(std::string_view name) {
    for (int i = 0; i < kQuantityKinds; ++i)
        if (SameName(KindName(static_cast<QuantityKind>(i)), name)) return static_cast<QuantityKind>(i);
    return std::nullopt;
}

ConvertUnitsModel::ConvertUnitsModel(MessagePort& messages) : FormModel(kFormName), messages_(messages) {
    AddControls({
        {"cmbType", [this] { return std::string(KindName(kind_)); },
         [this](std::string_view name) { return ChooseKind(name); }},
        {"labelType", [] { return std::string("Unit Type"); }},
    });
    for (int box = 0; box < kBoxes; ++box) {
        const auto enter = [this, box](std::string_view text) {
            Enter(box, text);
            return true;
        };
        AddControls({{BoxName(box), [this, box] { return Text(box); }, enter,
                      [this, box] { return box < BoxCount(); }}});
    }
    AddButtons({{"cmdClose", [this] { Close(); }}});
}

void ConvertUnitsModel::SetKind(QuantityKind kind) {
    if (kind == kind_) return;
    kind_ = kind;
    texts_.fill({});
}

bool ConvertUnitsModel::ConvertFromBox(int box) {
    if (converting_) return true;
    const ScopedValue converting(converting_, true);
    const std::string& text = Text(box);
    try {
        if (IsBlank(text)) {
            EmptyOthers(box);
        } else if (const std::optional<double> value = ReadQuantity(text)) {
            FillOthers(box, *value);
        } else {
            messages_.ShowMessage("Error", "Invalid numeric value!");
            return false;
        }
    } catch (const Error&) {
        // A zero denominator, or a number beyond a double: the conversion ends here without a message.
    }
    return true;
}

bool ConvertUnitsModel::Enter(int box, std::string_view text) {
    texts_[static_cast<std::size_t>(box)] = text;
    return ConvertFromBox(box);
}

void ConvertUnitsModel::TypeInto(int box, std::string_view text) {
    if (!IsBlank(text) && !IsNumber(text) && IsNumber(std::string(Trim(text)) + '1'))
        texts_[static_cast<std::size_t>(box)] = text;
    else
        Enter(box, text);
}

void ConvertUnitsModel::EmptyOthers(int box) {
    for (int other = 0; other < BoxCount(); ++other)
        if (other != box) texts_[static_cast<std::size_t>(other)].clear();
}

void ConvertUnitsModel::FillOthers(int box, double value) {
    // All are computed before the first is written, so that an error leaves no mixture.
    const std::vector<double> values = ConvertToAllUnits(kind_, box, value);
    for (int other = 0; other < BoxCount(); ++other) {
        const auto at = static_cast<std::size_t>(other);
        if (other != box) texts_[at] = FormatQuantity(values[at], kDecimals).text;
    }
}

bool ConvertUnitsModel::ChooseKind(std::string_view name) {
    const std::optional<QuantityKind> kind = FindKind(name);
    if (kind) SetKind(*kind);
    return kind.has_value();
}

}  // namespace tw
