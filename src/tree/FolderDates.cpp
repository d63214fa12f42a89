#include "tree/FolderDates.h"

#include "tree/NodeKey.h"

namespace tw {

std::string FolderDates::Now() const {
    return DateText(clock_.Now());
}

void FolderDates::Touch(FolderKind kind, std::int64_t id) {
    database_.Execute("UPDATE FOLDERS SET MODIFIED_WHEN = ? WHERE " + FolderCondition(kind) + " AND ID = ?",
                      {Now(), id});
}

void FolderDates::TouchFolderOf(FolderKind kind, const std::string& key) {
    const std::string parentKey = tree_.ParentOf(key);
    if (!parentKey.empty()) Touch(kind, IdOfKey(parentKey));
}

}  // namespace tw
