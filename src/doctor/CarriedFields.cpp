#include "doctor/CarriedFields.h"

#include "exchange/FragmentTree.h"

namespace tw {
namespace {

void Append(FragmentNode& node, CarriedField field, std::vector<CarriedField>& fields) {
    field.name = std::move(node.name);
    field.value = std::move(node.value);
    const CarriedField below{{}, {}, field.fragment, field.level + 1, static_cast<int>(fields.size())};
    fields.push_back(std::move(field));
    for (FragmentNode& child : node.children) Append(child, below, fields);
}

}  // namespace

std::string CarriedField::Line() const {
    return value.empty() ? name : name + ": " + value;
}

std::vector<CarriedField> ReadCarriedFields(std::span<const CarriedFragment> fragments) {
    std::vector<CarriedField> fields;
    for (std::size_t i = 0; i < fragments.size(); ++i) {
        FragmentNode root = ReadFragment(fragments[i]);
        Append(root, {{}, {}, i}, fields);
    }
    return fields;
}

std::string BranchText(std::span<const CarriedField> fields, std::size_t index) {
    const int top = fields[index].level;
    std::string text;
    do {
        const auto indent = static_cast<std::size_t>(fields[index].level - top) * 2;
        text.append(indent, ' ').append(fields[index].Line()).append("\r\n");
    } while (++index < fields.size() && fields[index].level > top);
    return text;
}

}  // namespace tw
