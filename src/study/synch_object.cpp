#include "kvopt/study/synch_object.h"

namespace kvopt {

SynchObject::~SynchObject() = default;

}  // namespace kvopt
