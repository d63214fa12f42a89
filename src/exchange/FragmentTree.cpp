#include "exchange/FragmentTree.h"

#include <optional>
#include <pugixml.hpp>
#include <string_view>

#include "exchange/AsciiCase.h"
#include "values/Json.h"
#include "values/Text.h"

namespace tw {
namespace {

constexpr std::string_view kNameTag = "NAME";

// Gives a record its name as its value.
void ShowName(FragmentNode& record) {
    if (!record.value.empty()) return;
    for (const FragmentNode& child : record.children)
        if (EqualAscii(child.name, kNameTag)) {
            record.value = child.value;
            return;
        }
}

// False if the element is nested too deeply, counted in levels.
bool ReadElement(const pugi::xml_node& element, int levels, FragmentNode& node) {
    if (levels == 0) return false;
    node.name = element.name();
    for (const pugi::xml_attribute& attribute : element.attributes())
        node.children.push_back({attribute.name(), std::string(Trim(attribute.value()))});
    for (const pugi::xml_node& child : element.children()) {
        if (child.type() == pugi::node_element) {
            if (!ReadElement(child, levels - 1, node.children.emplace_back())) return false;
        } else if (child.type() == pugi::node_pcdata || child.type() == pugi::node_cdata) {
            node.value += child.value();
        }
    }
    node.value = Trim(node.value);
    ShowName(node);
    return true;
}

std::optional<FragmentNode> ReadXml(const std::string& text) {
    pugi::xml_document document;
    if (!document.load_buffer(text.data(), text.size(), pugi::parse_default, pugi::encoding_utf8))
        return std::nullopt;
    const pugi::xml_node root = document.document_element();
    for (pugi::xml_node other = root.next_sibling(); other; other = other.next_sibling())
        if (other.type() == pugi::node_element) return std::nullopt;
    FragmentNode node;
    if (!ReadElement(root, kMostFragmentLevels, node)) return std::nullopt;
    return node;
}

// Returns the text of a value that holds no others.
std::string ScalarText(const Json& value) {
    const std::string* const text = value.AsText();
    return text ? std::string(Trim(*text)) : DumpJson(value);
}

bool IsScalar(const Json* value) {
    return value && !value->AsObject() && !value->AsArray();
}

// Returns the text of an object that is nothing but a number with its unit.
std::optional<std::string> AmountText(const Json& value) {
    const Json* const amount = value.Find("value");
    const Json* const unit = value.Find("unit");
    const Json::Object* const members = value.AsObject();
    if (members == nullptr || members->size() != 2 || !IsScalar(amount) || !IsScalar(unit)) return std::nullopt;
    return ScalarText(*amount) + " " + ScalarText(*unit);
}

// The reader of JSON keeps to the same depth.
static_assert(kMostJsonDepth <= kMostFragmentLevels);

FragmentNode ReadValue(std::string name, const Json& value) {
    FragmentNode node{std::move(name)};
    if (const Json::Array* const array = value.AsArray()) {
        for (const Json& element : *array)
            node.children.push_back(ReadValue(std::to_string(node.children.size() + 1), element));
    } else if (const Json::Object* const object = value.AsObject()) {
        if (auto amount = AmountText(value)) {
            node.value = std::move(*amount);
            return node;
        }
        for (const JsonMember& member : *object)
            node.children.push_back(ReadValue(member.name, member.value));
        ShowName(node);
    } else {
        node.value = ScalarText(value);
    }
    return node;
}

std::optional<FragmentNode> ReadJson(const std::string& text) {
    try {
        return ReadValue("recipe", ParseJson(text).value);
    } catch (const Error&) {
        return std::nullopt;
    }
}

}  // namespace

FragmentNode ReadFragment(const CarriedFragment& fragment) {
    std::optional<FragmentNode> node;
    if (fragment.format == kCarriedBeerXml) node = ReadXml(fragment.content);
    if (fragment.format == kCarriedBeerJson) node = ReadJson(fragment.content);
    return node ? std::move(*node) : FragmentNode{"text", std::string(Trim(fragment.content))};
}

}  // namespace tw
