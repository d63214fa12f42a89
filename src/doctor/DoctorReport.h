// The text of what was found in files of other programs, for a reader of another day.
#pragma once

#include <string>
#include <vector>

#include "doctor/DoctorFiles.h"
#include "doctor/FindingList.h"
#include "platform/DateTime.h"

namespace tw {

// Returns the findings and figures by file and by recipe, behind the lines of an import if there was one, in
// UTF-8 with the line ends of text reports.
std::string DoctorReport(const std::vector<DoctorFile>& files, const std::vector<FindingLine>& imported,
                         const DateTime& when);

}  // namespace tw
