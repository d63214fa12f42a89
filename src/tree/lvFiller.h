// Fills lists with folders, styles, recipes and the rows of the catalogue.
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

// A cell without a value contains blanks: one in a date column, else two. If something cannot be read, such
// as a row that has been deleted, the rest is still shown.
class lvFiller {
  public:
    // REQUIRES: database and tree outlive the object; tree was created from database.
    lvFiller(Database& database, const TWTree& tree) : database_(database), tree_(tree) {}

    // Sets the columns for recipes and folders, "Name" to "Water Profile", and empties the list.
    static void SetUpExplorerColumns(ListTable& list);
    // Sets the columns that windows show, and empties the list. The same ones are followed by "Folder", which
    // is hidden unless showFolder is true and left blank by the functions below, and by a recipe's "Style".
    static void SetUpWindowColumns(ListTable& list, bool showFolder);
    static constexpr int kFolderColumn = 14;
    static constexpr int kWindowColumns = 16;

    // Fills the list with a row for each child of the node of that key, in the order of TWNode::Compare; the
    // keys of the rows are those of the nodes. Leaves out what belongs to the styles unless showStyles is
    // true. Empties the list if key is unknown. REQUIRES, here and for the functions below: the list has the
    // columns of the explorer.
    void FillByKey(ListTable& list, std::string_view key, bool showStyles) const;
    // Fills the list with a row for each of those nodes, in their order.
    void FillNodes(ListTable& list, const std::vector<TWNode*>& nodes) const;

    // Append the row of a single node. FillByKey creates the same rows with fewer statements.
    void AddFolderRow(ListTable& list, TWNode& folder) const;
    // The style may also be "(None)".
    void AddStyleRow(ListTable& list, TWNode& style) const;
    void AddRecipeRow(ListTable& list, TWNode& recipe) const;

    // The functions below set the columns of a catalogue and fill the list with its rows, sorted by name; the
    // keys of the rows are their names. The rows include codes and other names, as do styles among the nodes.
    // Grains and extracts are grouped: each type that has any is a group row with its name, in the order of
    // the types, and those without a type follow the groups without a group row.
    //
    // FillStyles shows the styles directly in that folder; for -1 all styles.
    void FillStyles(ListTable& list, std::int64_t folderId) const;
    // Shows the folders directly in that folder, with their node keys, followed by its styles.
    void FillStylesAndFolders(ListTable& list, std::int64_t folderId) const;
    void FillGrains(ListTable& list, bool grain) const;
    void FillHops(ListTable& list) const;
    void FillYeast(ListTable& list) const;
    void FillWaterProfiles(ListTable& list) const;
    void FillSalts(ListTable& list) const;
    void FillSugars(ListTable& list) const;
    // Fills the list with one of those catalogues; for styles, with the folders and styles of the root.
    void Fill(ListTable& list, CatalogueKind catalogue) const;

  private:
    void FillIons(ListTable& list, const char* nameTitle, CatalogueKind kind, const char* unit) const;

    Database& database_;
    const TWTree& tree_;
};

}  // namespace tw
