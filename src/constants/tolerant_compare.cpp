#include "constants/tolerant_compare.h"

#include <cmath>

namespace kvopt {

int CompareTolerantly(double a, double b, double tolerance) {
    int exponent = 0;
    std::frexp(std::fabs(a) > std::fabs(b) ? a : b, &exponent);
    const double allowed = std::ldexp(tolerance, exponent);
    const double difference = a - b;
    if (difference > allowed) {
        return 1;
    }
    return difference < -allowed ? -1 : 0;
}

}  // namespace kvopt
