// What the program around the recipes stands on.
#pragma once

#include <string>

#include "help/Help.h"
#include "platform/Ports.h"
#include "platform/SaveFilePort.h"
#include "reports/PrinterPort.h"

namespace tw {

// What it names must outlive the shell.
struct ShellEnvironment {
    Platform& platform;
    // Where the product's own files lie. What is new or corrected in its folder "catalogue" comes into the
    // database when it is opened (store/CatalogueUpdate.h), never into one in memory. Empty: not used.
    std::string programFolder = {};
    // Unsaved work is kept in files below this folder, apart for each database, but for one in memory. Empty:
    // nothing is kept.
    std::string recoveryFolder = {};
    // Where the pages of the help come from. Without it the help shows nothing.
    Help* help = nullptr;
    // Paper. Without a printer nothing is printed or previewed, without save files no PDF file is made.
    PrinterPort* printer = nullptr;
    SaveFilePort* saveFiles = nullptr;
};

}  // namespace tw
