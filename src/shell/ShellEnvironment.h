// What the program around the recipes needs from its surroundings.
#pragma once

#include <string>

#include "help/Help.h"
#include "platform/Ports.h"
#include "platform/SaveFilePort.h"
#include "reports/PrinterPort.h"

namespace tw {

// The objects that it names must outlive the shell.
struct ShellEnvironment {
    Platform& platform;
    // The folder of the product's own files. New and corrected rows in its folder "catalogue" are copied into
    // the database when it is opened (store/CatalogueUpdate.h), but not into one in memory. Empty: not used.
    std::string programFolder = {};
    // Unsaved work is kept in files below this folder, separately for each database, but not for one in
    // memory. Empty: nothing is kept.
    std::string recoveryFolder = {};
    // True if the desktop measures in liters and kilograms: the suggestion of a first start.
    bool metricDesktop = false;
    // The source of the help pages; without it the help shows nothing.
    Help* help = nullptr;
    // Without a printer nothing is printed or previewed; without save files no PDF file is created.
    PrinterPort* printer = nullptr;
    SaveFilePort* saveFiles = nullptr;
};

}  // namespace tw
