#include "kvopt/stores/store_trouble.h"

#include <cstdio>
#include <utility>

namespace kvopt {
namespace {

void PrintTrouble(const StoreTrouble& trouble) {
    const std::string moved = trouble.movedTo.empty() ? "" : " (moved to " + trouble.movedTo + ")";
    std::fprintf(stderr, "kvopt: %s%s\n", trouble.reason.c_str(), moved.c_str());
}

StoreTroubleHandler& Handler() {
    // Never destroyed: stores that are released when the process ends may still have to tell.
    static auto* const handler = new StoreTroubleHandler(PrintTrouble);
    return *handler;
}

}  // namespace

StoreTroubleHandler SetStoreTroubleHandler(StoreTroubleHandler handler) {
    return std::exchange(Handler(), handler ? std::move(handler) : PrintTrouble);
}

void TellStoreTrouble(const StoreTrouble& trouble) {
    Handler()(trouble);
}

}  // namespace kvopt
