// Fills the lists in which folders, styles, recipes and the rows of the catalogue are shown.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "store/CatalogueKind.h"
#include "store/Database.h"
#include "tree/ListTable.h"
#include "tree/TWTree.h"

namespace tw {

// A cell that has no value shows blanks: one in the columns of dates, two in all others. What cannot be read,
// such as a row that is gone, is shown as far as it can be.
class lvFiller {
  public:
    // REQUIRES: both live for as long; tree was made from database.
    lvFiller(Database& database, const TWTree& tree) : database_(database), tree_(tree) {}

    // The columns of recipes and folders, "Name" to "Water Profile"; the list is empty then.
    static void SetUpExplorerColumns(ListTable& list);

    // A row for each child of the node of that key, in the order of TWNode::Compare; the rows' keys are those
    // of the nodes. Without showStyles what belongs to the styles is left out. An unknown key leaves the list
    // empty. REQUIRES, as for those below: the list has the columns of the explorer.
    void FillByKey(ListTable& list, std::string_view key, bool showStyles) const;
    // A row for each of those nodes, in their order.
    void FillNodes(ListTable& list, const std::vector<TWNode*>& nodes) const;

    // The rows of single nodes, behind all others. FillByKey gives the same rows from fewer statements.
    void AddFolderRow(ListTable& list, TWNode& folder) const;
    // "(None)" too.
    void AddStyleRow(ListTable& list, TWNode& style) const;
    void AddRecipeRow(ListTable& list, TWNode& recipe) const;

    // The rows of a catalogue under its own columns, sorted by name; their keys are their names. They carry
    // their codes and other names, as the styles among the nodes do. Grains and
    // extracts stand in groups: a group row with the name of each type that has some, in the order of the
    // types, and behind the groups those without a type, under no group row.
    //
    // The styles directly in that folder; for -1 all styles.
    void FillStyles(ListTable& list, std::int64_t folderId) const;
    // The same behind the folders directly in that folder, under their node keys.
    void FillStylesAndFolders(ListTable& list, std::int64_t folderId) const;
    void FillGrains(ListTable& list, bool grain) const;
    void FillHops(ListTable& list) const;
    void FillYeast(ListTable& list) const;
    void FillWaterProfiles(ListTable& list) const;
    void FillSalts(ListTable& list) const;
    void FillSugars(ListTable& list) const;
    // One of those; of the styles the folders and styles at the root.
    void Fill(ListTable& list, CatalogueKind catalogue) const;

  private:
    void FillIons(ListTable& list, const char* nameTitle, CatalogueKind kind, const char* unit) const;

    Database& database_;
    const TWTree& tree_;
};

}  // namespace tw
