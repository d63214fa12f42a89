// Checks files against beerxml.xsd with xmllint, which is a package that the tests need: where it is missing,
// every check fails.
#pragma once

#include <array>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <map>
#include <pugixml.hpp>
#include <set>
#include <string>
#include <unistd.h>

namespace tw::test {

// The tags that the schema knows in each type of element, which is called as the tag is.
using SchemaTags = std::map<std::string, std::set<std::string>, std::less<>>;

inline SchemaTags TagsOfSchema(const std::string& path) {
    SchemaTags tags;
    pugi::xml_document schema;
    schema.load_file(path.c_str());
    const pugi::xml_node root = schema.document_element();
    tags["RECIPES"] = {"RECIPE"};
    for (const pugi::xml_node type : root.children("xs:complexType"))
        for (const pugi::xml_node element : type.first_child().children("xs:element"))
            tags[type.attribute("name").value()].insert(element.attribute("name").value());
    return tags;
}

// Removes attributes and unknown tags, which the standard tells readers to pass over: no schema of XSD 1.0
// can allow them beside known tags in any order.
inline void RemoveUnknown(pugi::xml_node element, const SchemaTags& tags) {
    element.remove_attributes();
    const auto known = tags.find(element.name());
    if (known == tags.end()) return;
    pugi::xml_node next;
    for (pugi::xml_node child = element.first_child(); child; child = next) {
        next = child.next_sibling();
        if (child.type() == pugi::node_element && !known->second.contains(child.name()))
            element.remove_child(child);
        else if (child.type() == pugi::node_element)
            RemoveUnknown(child, tags);
    }
}

// Returns what is wrong but cannot be said in a schema.
inline std::string ConditionErrors(const pugi::xml_document& document) {
    std::string errors;
    const auto expectNone = [&](const char* path, const char* what) {
        if (document.select_node(path)) errors += std::string(what) + "\n";
    };
    expectNone("//RECIPE[TYPE!='Extract' and not(EFFICIENCY)]", "A recipe needs EFFICIENCY.");
    expectNone("//RECIPE[TYPE!='Extract' and not(MASH)]", "A recipe needs MASH.");
    expectNone("//MASH_STEP[TYPE='Infusion' and not(INFUSE_AMOUNT)]", "An infusion needs INFUSE_AMOUNT.");
    return errors;
}

// Returns everything that is wrong with a text as a BeerXML file of recipes; empty if it is valid.
inline std::string XmlSchemaErrors(const std::string& xml) {
    const std::string schema = std::string(EXCHANGE_TESTS) + "/beerxml.xsd";
    pugi::xml_document document;
    if (!document.load_string(xml.c_str())) return "The text is not well-formed.";
    RemoveUnknown(document.document_element(), TagsOfSchema(schema));
    std::string errors = ConditionErrors(document);

    std::string folder = "/tmp/tunwright-schema-XXXXXX";
    if (mkdtemp(folder.data()) == nullptr) return "No folder for a copy of the file can be made.";
    const std::string whole = folder + "/whole.xml";
    const std::string known = folder + "/known.xml";
    std::ofstream(whole, std::ios::binary) << xml;
    document.save_file(known.c_str());
    // The whole text is only to be well-formed.
    const std::string command = "{ xmllint --noout '" + whole + "' && xmllint --noout --schema '" + schema +
                                "' '" + known + "'; } 2>&1 || echo FAILED";
    if (FILE* const output = popen(command.c_str(), "r")) {
        std::array<char, 4096> buffer{};
        std::string text;
        while (const std::size_t size = std::fread(buffer.data(), 1, buffer.size(), output))
            text.append(buffer.data(), size);
        pclose(output);
        if (text.find("FAILED") != std::string::npos || text.find("validates") == std::string::npos)
            errors += text;
    } else {
        errors += "xmllint cannot be run.";
    }
    unlink(whole.c_str());
    unlink(known.c_str());
    rmdir(folder.c_str());
    return errors;
}

}  // namespace tw::test
