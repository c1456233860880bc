#include "kvopt/stores/user_profile.h"

#include <utility>

#include "stores/user_folder.h"

namespace kvopt {
namespace {

std::shared_ptr<UserProfile>& Installed() {
    static std::shared_ptr<UserProfile> profile = std::make_shared<UserProfile>();
    return profile;
}

}  // namespace

UserProfile::UserProfile() : UserProfile(OpenUserFile("profile.ini")) {}
UserProfile::UserProfile(std::unique_ptr<IniFileSection> store)
    : store_(store ? std::move(store) : std::make_unique<IniFileSection>()) {}
UserProfile::~UserProfile() = default;

UserProfile* UserProfile::Instance() {
    return Installed().get();
}

std::shared_ptr<UserProfile> UserProfile::Install(std::shared_ptr<UserProfile> profile) {
    return std::exchange(Installed(),
                         profile ? std::move(profile) : std::make_shared<UserProfile>());
}

int UserProfile::GetProfileInteger(const std::string& section, const std::string& key,
                                   int fallback) const {
    store_->SetSection(section.c_str());
    return store_->ReadKeyOr(key.c_str(), fallback);
}

void UserProfile::WriteProfileInteger(const std::string& section, const std::string& key,
                                      int value) {
    store_->SetSection(section.c_str());
    store_->WriteKey(key.c_str(), value);
    store_->Flush();
}

}  // namespace kvopt
