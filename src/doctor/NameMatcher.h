// Finds the catalogue's entry that another program's ingredient or style is, under whatever name that program
// has it. Without a brewer to ask, it answers only where there is no doubt between two entries.
#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "store/CatalogueKind.h"
#include "store/Database.h"

namespace tw {

// How an entry was found, the surest first.
enum class MatchedBy : std::uint8_t {
    Name,    // the entry's own name, ignoring case
    Folded,  // the same, ignoring accents, blanks and punctuation
    Code,    // laboratory and product code of a yeast; guide, number and letter of a style
    Alias,   // a name under which the catalogue knows the entry, too
    Words,   // the same words in another order or spelling
    Core,    // the same words but for origin and supplier
    Near     // a slip of one or two letters
};

struct CatalogueMatch {
    std::string name;  // of the entry
    MatchedBy by;
    // True if the entry's own name was meant, so that it may replace the other spelling.
    bool IsOwnName() const { return by == MatchedBy::Name || by == MatchedBy::Folded; }
};

// An ingredient or style as a file describes it. What the file does not say is empty.
struct NameSought {
    std::string_view name{};
    std::string_view origin{};    // of an ingredient: "US", "Germany"
    std::string_view supplier{};  // maltster, laboratory, or guide of a style
    std::string_view code{};      // of a product, or number and letter of a style: "18B"
};

class NameMatcher {
  public:
    // Reads a list of the catalogue when it is first asked for, and keeps it. REQUIRES: database outlives
    // this object.
    explicit NameMatcher(Database& database);
    ~NameMatcher();
    NameMatcher(const NameMatcher&) = delete;
    NameMatcher& operator=(const NameMatcher&) = delete;

    // Returns the entry, nullopt if there is none or if it could be several. Raises the store's errors.
    std::optional<CatalogueMatch> Find(CatalogueKind kind, const NameSought& sought);
    // Forgets the lists, after the catalogue has changed.
    void Forget();

  private:
    class List;
    static std::optional<CatalogueMatch> FindIn(const List& list, const NameSought& sought);

    Database& database_;
    std::array<std::unique_ptr<List>, kCatalogueKinds> lists_;
    std::unordered_map<std::string, std::optional<CatalogueMatch>> found_;
};

}  // namespace tw
