// The findings of an import, the worst first; those folded into one can be unfolded (treeFindings).
#pragma once

#include <QTreeWidget>
#include <vector>

#include "doctor/FindingList.h"

namespace tw {

class FindingTree final : public QTreeWidget {
    Q_OBJECT
  public:
    explicit FindingTree(QWidget* parent);

    void ShowFindings(const std::vector<FoldedFinding>& findings);
};

}  // namespace tw
