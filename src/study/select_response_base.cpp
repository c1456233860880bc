#include "kvopt/study/select_response_base.h"

#include "kvopt/stores.h"

namespace kvopt {

namespace {

constexpr const char* kSection = "SelectedResponses";
constexpr const char* kEntry = "Response";

}  // namespace

SelectResponseBase::SelectResponseBase(ResponseType type) : type_(type) {}

SelectResponseBase::~SelectResponseBase() = default;

bool SelectResponseBase::UseMultipleResponses() const {
    return false;
}

void SelectResponseBase::SetSelResponses(const std::vector<std::string>& responses) {
    selected_ = responses;
    if (!UseMultipleResponses() && selected_.size() > 1) {
        selected_.resize(1);
    }
}

void SelectResponseBase::SetResponse(const std::string& response) {
    selected_.clear();
    if (!response.empty()) {
        selected_.push_back(response);
    }
}

std::vector<std::string> SelectResponseBase::GetSelResponses() const {
    return selected_;
}

void SelectResponseBase::GetSelResponses(std::vector<std::string>& responses) const {
    responses = GetSelResponses();
}

std::string SelectResponseBase::GetResponse() const {
    const std::vector<std::string> selected = GetSelResponses();
    return selected.empty() ? std::string() : selected.front();
}

bool SelectResponseBase::NextResponse() {
    return false;
}

bool SelectResponseBase::IsAllowEmptyResponses() const {
    return false;
}

bool SelectResponseBase::GetSpecialAvailable(std::vector<std::string>& /*items*/,
                                             std::string& /*type*/) const {
    return false;
}

void SelectResponseBase::WriteSection(ConfigurationSection* section,
                                      const std::vector<std::string>& responses, bool allSelected,
                                      ResponseType type) {
    const auto own = section->GetSection(kSection);
    own->Clear();
    own->WriteKey("AllSelected", allSelected);
    own->WriteKey("Type", static_cast<int>(type));
    int number = 0;
    for (const std::string& response : responses) {
        own->GetIndexedSection(kEntry, ++number)->WriteKey("Name", response);
    }
}

bool SelectResponseBase::ReadSection(const ConfigurationSection* section,
                                     std::vector<std::string>& responses, bool& allSelected,
                                     ResponseType& type) {
    const auto own = section != nullptr ? section->GetSection(kSection) : nullptr;
    if (own == nullptr) {
        return false;
    }
    own->ReadKey("AllSelected", allSelected);
    const int number = own->ReadKeyOr("Type", static_cast<int>(type));
    if (number >= Ordinary && number <= Special) {
        type = static_cast<ResponseType>(number);
    }
    responses.clear();
    if (allSelected) {
        return true;
    }
    const int count = own->CountSections(kEntry);
    for (int entry = 1; entry <= count; ++entry) {
        const auto child = own->GetIndexedSection(kEntry, entry);
        std::string name;
        if (child != nullptr && child->ReadKey("Name", name)) {
            responses.push_back(name);
        }
    }
    return true;
}

}  // namespace kvopt
