#include "kvopt/stores/registry.h"

#include <utility>

#include "kvopt/text/kv_std_string.h"
#include "stores/user_folder.h"

namespace kvopt {
namespace {

std::shared_ptr<Registry>& Installed() {
    static std::shared_ptr<Registry> registry = std::make_shared<Registry>();
    return registry;
}

SectionPath ToPath(const std::string& path) {
    SectionPath steps;
    for (std::string& name : KvStdString::Split(path, "\\")) {
        steps.push_back({std::move(name), 0});
    }
    return steps;
}

}  // namespace

Registry::Registry() : Registry(OpenUserFile("registry.ini")) {}
Registry::Registry(std::unique_ptr<IniFileSection> store)
    : store_(store ? std::move(store) : std::make_unique<IniFileSection>()) {}
Registry::~Registry() = default;

Registry* Registry::Instance() {
    return Installed().get();
}

std::shared_ptr<Registry> Registry::Install(std::shared_ptr<Registry> registry) {
    return std::exchange(Installed(),
                         registry ? std::move(registry) : std::make_shared<Registry>());
}

std::unique_ptr<ConfigurationSection> Registry::GetKey(const std::string& path) {
    return store_->Descend(ToPath(path));
}

std::vector<std::string> Registry::SubKeys(const std::string& path) const {
    return store_->Descend(ToPath(path))->SectionNames();
}

void Registry::DeleteKey(const std::string& path) {
    SectionPath steps = ToPath(path);
    if (steps.empty()) {
        return;
    }
    const std::string name = steps.back().name;
    steps.pop_back();
    store_->Descend(steps)->RemoveSections(name.c_str());
    store_->Flush();
}

}  // namespace kvopt
