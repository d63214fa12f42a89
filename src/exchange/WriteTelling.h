// What writing one recipe into a file of another format has to tell the brewer.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "exchange/ForeignTelling.h"

namespace tw {

// What occurs in many lines is told once.
class WriteTelling {
  public:
    // formatName is "BeerXML".
    WriteTelling(Findings& findings, std::string recipe, std::string_view formatName)
        : telling_(findings, std::move(recipe)), formatName_(formatName) {}

    void Tell(Severity severity, FindingCode code, std::string_view place, std::string text) const {
        telling_.Tell(severity, code, place, std::move(text));
    }
    // Each notes a field by its path: "HOP/ALPHA".
    void NoteFilled(const std::string& path) { AddOnce(filled_, path); }
    void NoteDropped(const std::string& path) { AddOnce(dropped_, path); }
    void NoteRespelled(const std::string& path) { AddOnce(respelled_, path); }
    void NoteTwice(const std::string& path) { AddOnce(twice_, path); }
    // Notes facts for which the format has no field.
    void NoteLost(const std::vector<std::string>& what);
    // Tells of everything noted.
    void End() const;

  private:
    static void AddOnce(std::vector<std::string>& list, const std::string& text);

    ForeignTelling telling_;
    std::string_view formatName_;
    std::vector<std::string> filled_, dropped_, respelled_, twice_, lost_;
};

}  // namespace tw
