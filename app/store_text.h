#pragma once

#include <string>

namespace kvopt {
struct StoreTrouble;
}

/// Trouble of a store as one sentence for a person: which file, what happened to it, why.
std::string DescribeTrouble(const kvopt::StoreTrouble& trouble);
