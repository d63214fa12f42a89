#include "shell/OpenedDatabase.h"

#include <string_view>
#include <utility>

#include "store/Schema.h"

namespace tw {
namespace {

constexpr std::string_view kInMemory = ":memory:";

}  // namespace

OpenedDatabase::OpenedDatabase(std::unique_ptr<Database> opened, Platform& ports, ObjectListener& listener,
                               std::function<void()> treeRead)
    : platform(ports),
      database(std::move(opened)),
      tree(database.get()),
      treeObjects(tree, std::move(treeRead)),
      objects(*database, treeObjects, ports.messages, ports.clock, listener) {}

bool OpenedDatabase::IsInMemory(const std::string& path) {
    return path == kInMemory;
}

std::unique_ptr<Database> OpenedDatabase::Open(const std::string& path) {
    return IsInMemory(path) ? CreateMainDatabaseInMemory() : OpenMainDatabase(path);
}

}  // namespace tw
