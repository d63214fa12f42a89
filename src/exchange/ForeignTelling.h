// What is odd about one recipe of a foreign file, or about everything in it outside of recipes: findings with
// the recipe's name, tags that the format does not have, and paths of what has no place here.
#pragma once

#include <cstddef>
#include <functional>
#include <map>
#include <set>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "exchange/ForeignFigure.h"
#include "exchange/ForeignWords.h"

namespace tw {

class ForeignTelling {
  public:
    // recipe is its name, as in a Finding.
    ForeignTelling(Findings& findings, std::string recipe)
        : findings_(findings), recipe_(std::move(recipe)) {}

    void Tell(Severity severity, FindingCode code, std::string_view place, std::string text) const;
    void TellFigure(std::string_view place, std::string_view field, std::string_view text,
                    const ForeignFigure& figure, FigureUnit unit) const;
    // Tells of a word that is not spelled as in the format's list. readAs is what it means for a reader,
    // empty if nothing.
    void TellWord(std::string_view place, std::string_view field, std::string_view word,
                  std::span<const std::string_view> list, std::string_view readAs) const;
    // Tells of fields in one finding; nothing if there are none. what begins the sentence.
    void TellFields(Severity severity, FindingCode code, std::string_view place, std::string_view what,
                    const std::vector<std::string>& fields) const;

    // Notes a tag or key that the format does not have.
    void NoteUnknown(std::string_view tag);
    // Tells of all of them in one finding. formatName is "BeerXML".
    void TellUnknown(std::string_view formatName) const;

    // Notes the path of something that no structure takes. Of two orders of a path the first counts.
    void KeepAside(std::string path, std::ptrdiff_t order) { keptAside_.try_emplace(std::move(path), order); }
    // Returns the noted paths by their orders.
    std::vector<std::string> KeptAside() const;

  private:
    Findings& findings_;
    std::string recipe_;
    std::map<std::string, std::ptrdiff_t> keptAside_;
    std::vector<std::string> unknownTags_;
    std::set<std::string, std::less<>> knownUnknown_;  // the same for look-up
};

}  // namespace tw
