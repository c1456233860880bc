// The tree of a saved plot to its text and back with bare pugixml: the same names, types and
// values, as attributes.

#include <nlohmann/json.hpp>
#include <pugixml.hpp>
#include <sstream>

#include "bench/saved_tree.h"
#include "bench/sizes.h"

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

void FillTree(pugi::xml_document& tree, int factors) {
    AddSection(tree.append_child("section"), nlohmann::json::parse(SavedTreeOf(factors).Text()));
}

std::string Print(const pugi::xml_document& tree) {
    std::ostringstream text;
    tree.save(text, " ");
    return text.str();
}

void PrintTreeWithPugixml(benchmark::State& state) {
    pugi::xml_document tree;
    FillTree(tree, static_cast<int>(state.range(0)));
    for (auto _ : state) {
        benchmark::DoNotOptimize(Print(tree));
    }
    state.SetComplexityN(state.range(0));
}
BENCHMARK(PrintTreeWithPugixml)->Name("PrintTree/pugixml")->Apply(ForEachSize);

void ParseTreeWithPugixml(benchmark::State& state) {
    pugi::xml_document tree;
    FillTree(tree, static_cast<int>(state.range(0)));
    const std::string text = Print(tree);
    for (auto _ : state) {
        pugi::xml_document read;
        if (!read.load_buffer(text.data(), text.size())) {
            state.SkipWithError("the tree was not read");
            break;
        }
    }
    state.SetComplexityN(state.range(0));
}
BENCHMARK(ParseTreeWithPugixml)->Name("ParseTree/pugixml")->Apply(ForEachSize);

}  // namespace
}  // namespace kvopt::bench
