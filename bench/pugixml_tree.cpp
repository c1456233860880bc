// The tree of a saved plot with bare pugixml: the same names, types and values, as attributes.

#include <nlohmann/json.hpp>
#include <pugixml.hpp>
#include <sstream>
#include <stdexcept>

#include "bench/saved_tree.h"
#include "bench/tree_library.h"

namespace kvopt::bench {
namespace {

/// Hangs a section of the JSON text in below a node.
void AddSection(pugi::xml_node node, const nlohmann::json& section) {
    if (section.contains("name")) {
        node.append_attribute("name") = section["name"].get<std::string>().c_str();
    }
    if (section.contains("number")) {
        node.append_attribute("number") = section["number"].get<int>();
    }
    for (const auto& key : section.value("keys", nlohmann::json::array())) {
        pugi::xml_node child = node.append_child("key");
        child.append_attribute("name") = key[0].get<std::string>().c_str();
        child.append_attribute("type") = key[1].get<std::string>().c_str();
        child.append_attribute("value") = key[2].get<std::string>().c_str();
    }
    for (const auto& inner : section.value("sections", nlohmann::json::array())) {
        AddSection(node.append_child("section"), inner);
    }
}

struct PugixmlTree {
    using Tree = pugi::xml_document;

    static Tree Make(int factors) {
        Tree tree;
        AddSection(tree.append_child("section"),
                   nlohmann::json::parse(SavedTreeOf(factors).Text()));
        return tree;
    }
    static std::string Print(const Tree& tree) {
        std::ostringstream text;
        tree.save(text, " ");
        return text.str();
    }
    static Tree Parse(const std::string& text) {
        Tree tree;
        if (!tree.load_buffer(text.data(), text.size())) {
            throw std::runtime_error("the tree was not read");
        }
        return tree;
    }
    static void Save(const Tree& tree, const std::string& path) { WriteFile(path, Print(tree)); }
    static Tree Load(const std::string& path) { return Parse(ReadFile(path)); }
};

[[maybe_unused]] const bool isAdded = AddTreeLibrary<PugixmlTree>("pugixml");

}  // namespace
}  // namespace kvopt::bench
