#include "kvopt/plotargs/report_override_options.h"

namespace kvopt {

ReportOverRideOptions::ReportOverRideOptions() = default;
ReportOverRideOptions::~ReportOverRideOptions() = default;

ReportOverRideOptions* ReportOverRideOptions::Instance() {
    static ReportOverRideOptions instance;
    return &instance;
}

void ReportOverRideOptions::Clear() {
    axes_.clear();
    constants_.clear();
}

}  // namespace kvopt
