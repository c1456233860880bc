// The tree of a saved plot to its text and back, and through a file, beside bare nlohmann-json on
// the same text.

#include "bench/saved_tree.h"

#include <nlohmann/json.hpp>

#include "bench/bench_study.h"
#include "bench/tree_library.h"

namespace kvopt::bench {

ConfigurationStore SavedTreeOf(int factors) {
    ConfigurationStore store;
    PlotOf(StudyOf(factors))->WriteSection(store.Root().get());
    return store;
}

namespace {

struct OwnTree {
    using Tree = ConfigurationStore;

    static Tree Make(int factors) { return SavedTreeOf(factors); }
    static std::string Print(const Tree& tree) { return tree.Text(); }
    static Tree Parse(const std::string& text) {
        return ConfigurationStore::Parse(text, "plot.json");
    }
    static void Save(Tree& tree, const std::string& path) { tree.Save(path); }
    static Tree Load(const std::string& path) { return ConfigurationStore::Load(path); }
};

struct NlohmannTree {
    using Tree = nlohmann::json;

    static Tree Make(int factors) { return Parse(SavedTreeOf(factors).Text()); }
    static std::string Print(const Tree& tree) { return tree.dump(1); }
    static Tree Parse(const std::string& text) { return nlohmann::json::parse(text); }
    static void Save(const Tree& tree, const std::string& path) { WriteFile(path, Print(tree)); }
    static Tree Load(const std::string& path) { return Parse(ReadFile(path)); }
};

[[maybe_unused]] const bool areAdded =
    AddTreeLibrary<OwnTree>("kvopt") && AddTreeLibrary<NlohmannTree>("nlohmann-json");

}  // namespace
}  // namespace kvopt::bench
