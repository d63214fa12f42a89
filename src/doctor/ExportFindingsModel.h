// The window that tells how an exported file differs from its recipes (frmExportFindings).
#pragma once

#include <string>
#include <vector>

#include "doctor/FindingList.h"
#include "exchange/Finding.h"
#include "platform/FormModel.h"

namespace tw {

// lblFile names the file. treeFindings contains the folded findings, each as "severity: text" and a line
// feed. cmdOK closes the window.
class ExportFindingsModel final : public FormModel {
  public:
    static constexpr const char* kFormName = "frmExportFindings";

    // file is the name of the exported file without its folder.
    ExportFindingsModel(const std::string& file, const Findings& findings);

    const std::string& FileText() const { return fileText_; }
    const std::vector<FoldedFinding>& Lines() const { return lines_; }

  private:
    std::string fileText_;
    std::vector<FoldedFinding> lines_;
};

}  // namespace tw
