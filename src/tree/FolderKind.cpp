#include "tree/FolderKind.h"

#include "tree/NodeKey.h"

namespace tw {

std::string FolderKey(FolderKind kind, std::int64_t id) {
    return kind == FolderKind::Styles ? StyleFolderKey(id) : RecipeFolderKey(id);
}

std::string FolderWord(FolderKind kind) {
    return kind == FolderKind::Styles ? "style folder" : "recipe folder";
}

std::string FolderCondition(FolderKind kind) {
    return kind == FolderKind::Styles ? "STYLE" : "NOT STYLE";
}

}  // namespace tw
