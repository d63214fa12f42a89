#include "exchange/ExchangeLimits.h"

#include "platform/Error.h"

namespace tw {
namespace {

constexpr int kRefused = 321;

}  // namespace

void RefuseFile(const std::string& message) {
    throw Error("Import", message, kRefused);
}

}  // namespace tw
