#include "exchange/ExchangeLimits.h"

#include "platform/Error.h"

namespace tw {
namespace {

constexpr int kRefused = 321;

}  // namespace

void RefuseFile(const std::string& message) {
    throw Error("Import", message, kRefused);
}

void RefuseRecords() {
    RefuseFile("The file has more than 100,000 recipes and ingredients. Export them in several files.");
}

}  // namespace tw
