#include "kvopt/constants/kivex_list_interface.h"

#include <utility>

namespace kvopt {

KivexListInterface::KivexListInterface(std::string name)
    : BaseWorksheetInterface(std::move(name)) {}

KivexListInterface::~KivexListInterface() = default;

}  // namespace kvopt
