#include "catalogue/ObjectNavigator.h"

#include <algorithm>

namespace tw {

bool ObjectNavigator::IsGrainView() const {
    return std::ranges::any_of(list_.Rows(), &ListRow::isGroup);
}

int ObjectNavigator::Find(int start, int step) const {
    for (int row = start; row >= 0 && row < list_.Count(); row += step)
        if (!list_.Row(row).isGroup && !list_.Row(row).isFolder) return row;
    return ListTable::kNoRow;
}

std::string ObjectNavigator::MoveTo(int row) {
    if (row == ListTable::kNoRow || !list_.Select(row)) return {};
    return list_.Row(row).key;
}

}  // namespace tw
