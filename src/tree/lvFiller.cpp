// The lists of nodes: folders, styles and recipes.
#include "tree/lvFiller.h"

#include <algorithm>
#include <map>

#include "store/ObjectKeys.h"
#include "tree/ListFormats.h"
#include "tree/TWNodes.h"
#include "values/Text.h"

namespace tw {
namespace {

enum Column {
    Name,
    Size,
    Type,
    Modified,
    Created,
    Batches,
    BatchSize,
    OriginalGravity,
    FinishedGravity,
    Alcohol,
    Color,
    Bitterness,
    Carbonation,
    WaterProfile,
    Columns
};

// What the rows show of a table, for the statements that read many rows at once.
constexpr const char* kFolderFields = "ID, CREATED_WHEN, MODIFIED_WHEN FROM FOLDERS";
constexpr const char* kStyleFields =
    "ID, CREATED_WHEN, MODIFIED_WHEN, WATER_PROFILE, OG_LO, OG_HI, FG_LO, FG_HI, ABV_LO, ABV_HI, COLOR_LO, "
    "COLOR_HI, IBU_LO, IBU_HI, CO2_LO, CO2_HI FROM STYLES";
constexpr const char* kRecipeFields =
    "ID, CREATED_WHEN, MODIFIED_WHEN, NUMBATCHES, FV, FV_DATA, TV, TV_DATA, OG, OG_DATA, FG, FG_DATA, ABV, "
    "COLOR, IBU, CO2_VOLS, TRG_PROFILE_NAME FROM RECIPES";

std::string& Cell(ListRow& row, Column column) {
    return row.cells[static_cast<std::size_t>(column)];
}

std::string SizeOf(TWNode& node) {
    return std::to_string(node.HasChildren() ? node.Children().Count() : 0);
}

// The row of a node without what the database knows of it.
ListRow BlankRow(const TWNode& node) {
    ListRow row;
    row.key = node.Key();
    row.cells.assign(Columns, std::string(kNoNumber));
    row.icon = IconOf(node.IconClosed());
    if (!node.Name().empty()) Cell(row, Name) = node.Name();
    Cell(row, Modified) = Cell(row, Created) = kNoDate;
    return row;
}

bool IsSystemFolder(std::string_view key) {
    return key.starts_with("X:") || key == kAllRecipesKey || key == kRecipeFoldersKey ||
           key == kAllStylesKey || key == kStyleFoldersKey;
}

ListRow FolderRow(TWNode& node) {
    ListRow row = BlankRow(node);
    row.isFolder = true;
    Cell(row, Size) = SizeOf(node);
    Cell(row, Type) = IsSystemFolder(row.key)     ? "System Folder"
                      : row.key.starts_with("G:") ? "Style Folder"
                                                  : "Recipe Folder";
    return row;
}

ListRow StyleRow(TWNode& node) {
    ListRow row = BlankRow(node);
    Cell(row, Size) = SizeOf(node);
    Cell(row, Type) = "Style";
    return row;
}

ListRow RecipeRow(const TWNode& node) {
    ListRow row = BlankRow(node);
    Cell(row, Type) = "Recipe";
    return row;
}

void ShowDates(ListRow& row, const Recordset& object) {
    Cell(row, Modified) = ListDate(object.Fields("MODIFIED_WHEN"));
    Cell(row, Created) = ListDate(object.Fields("CREATED_WHEN"));
}

void ShowStyle(ListRow& row, const Recordset& style) {
    const auto range = [&](const char* low, const char* high, std::string_view pattern) {
        return ListRange(style.Fields(low), style.Fields(high), pattern);
    };
    ShowDates(row, style);
    Cell(row, OriginalGravity) = range("OG_LO", "OG_HI", kGravityPattern);
    Cell(row, FinishedGravity) = range("FG_LO", "FG_HI", kGravityPattern);
    Cell(row, Alcohol) = range("ABV_LO", "ABV_HI", kAlcoholPattern);
    Cell(row, Color) = range("COLOR_LO", "COLOR_HI", kColorPattern);
    Cell(row, Bitterness) = range("IBU_LO", "IBU_HI", kBitternessPattern);
    Cell(row, Carbonation) = range("CO2_LO", "CO2_HI", kCarbonationPattern);
    Cell(row, WaterProfile) = ListText(style.Fields("WATER_PROFILE"));
}

// The number behind a typed text, with a unit; without the text nothing is shown.
std::string TypedFigure(const Field& typed, const Field& figure, std::string_view pattern,
                        std::string_view unit) {
    if (IsBlank(typed.Text())) return std::string(kNoNumber);
    const std::string text = ListNumber(figure, pattern);
    return text == kNoNumber ? text : text + std::string(unit);
}

void ShowRecipe(ListRow& row, const Recordset& recipe) {
    const auto typed = [&](const char* text, const char* figure, std::string_view pattern,
                           std::string_view unit) {
        return TypedFigure(recipe.Fields(text), recipe.Fields(figure), pattern, unit);
    };
    ShowDates(row, recipe);
    Cell(row, Batches) = ListText(recipe.Fields("NUMBATCHES"));
    Cell(row, BatchSize) = recipe.Fields("FV").Text().empty() ? typed("TV", "TV_DATA", "", " gals")
                                                              : typed("FV", "FV_DATA", "", " gals");
    Cell(row, OriginalGravity) = typed("OG", "OG_DATA", kGravityPattern, "");
    Cell(row, FinishedGravity) = typed("FG", "FG_DATA", kGravityPattern, "");
    Cell(row, Alcohol) = ListText(recipe.Fields("ABV"));
    // The blank before the "(" stays: intended.
    std::string color = recipe.Fields("COLOR").Text();
    color.resize(std::min(color.find('('), color.size()));
    if (!color.empty()) Cell(row, Color) = std::move(color);
    const std::string bitterness = recipe.Fields("IBU").Text();
    if (!bitterness.empty()) Cell(row, Bitterness) = bitterness + " IBUs";
    Cell(row, Carbonation) = ListText(recipe.Fields("CO2_VOLS"));
    Cell(row, WaterProfile) = ListText(recipe.Fields("TRG_PROFILE_NAME"));
}

using Show = void (*)(ListRow&, const Recordset&);

// What one object's row shows beyond its node; nothing when the database does not hold it.
void ShowOne(Database& database, const std::string& sql, ListRow& row, Show show) {
    const Recordset object = database.OpenRecordset(sql);
    if (!object.AtEnd()) show(row, object);
}

// The rows of one kind of object, to be read together.
class Batch {
  public:
    Batch(const char* fields, const char* condition, Show show)
        : fields_(fields), condition_(condition), show_(show) {}

    void Add(std::int64_t id, std::size_t row) { rows_[id] = row; }

    void Read(Database& database, std::vector<ListRow>& rows) const {
        constexpr std::size_t kIdsInAStatement = 500;
        std::string ids;
        std::size_t count = 0, left = rows_.size();
        for (const auto& [id, row] : rows_) {
            ids.append(ids.empty() ? "" : ",").append(std::to_string(id));
            --left;
            if (++count < kIdsInAStatement && left > 0) continue;
            ReadSome(database, ids, rows);
            ids.clear();
            count = 0;
        }
    }

  private:
    void ReadSome(Database& database, const std::string& ids, std::vector<ListRow>& rows) const {
        for (Recordset objects = database.OpenRecordset(std::string("SELECT ") + fields_ + " WHERE ID IN (" +
                                                        ids + ")" + condition_);
             !objects.AtEnd(); objects.MoveNext()) {
            const auto found = rows_.find(objects.Fields(0).Integer());
            if (found != rows_.end()) show_(rows[found->second], objects);
        }
    }

    const char* fields_;
    const char* condition_;
    Show show_;
    std::map<std::int64_t, std::size_t> rows_;
};

bool IsBefore(const TWNode* a, const TWNode* b) {
    return a->Compare(*b) < 0;
}

bool BelongsToStyles(const TWNode& node) {
    const std::string key = node.Key();
    return node.IsStyle() || key == kByStyleKey || key.starts_with("G:");
}

}  // namespace

void lvFiller::SetUpExplorerColumns(ListTable& list) {
    using enum ListColumnKind;
    list.SetColumns({{"Name", Text},
                     {"Size", Number},
                     {"Type", Text},
                     {"Modified When", Date},
                     {"Created When", Date},
                     {"Number of Batches", Number},
                     {"Batch Size", Number},
                     {"Original Gravity", Number},
                     {"Finished Gravity", Number},
                     {"Alcohol Content", Number},
                     {"Color", Number},
                     {"Bitterness", Number},
                     {"Carbonation", Number},
                     {"Water Profile", Text}});
}

void lvFiller::FillByKey(ListTable& list, std::string_view key, bool showStyles) const {
    TWNode* const parent = tree_.Nodes(key);
    if (parent == nullptr || !parent->HasChildren()) return list.Clear();
    std::vector<TWNode*> nodes;
    for (const auto& child : parent->Children())
        if (showStyles || !BelongsToStyles(*child)) nodes.push_back(child.get());
    if (!std::ranges::is_sorted(nodes, IsBefore)) std::ranges::stable_sort(nodes, IsBefore);

    std::vector<ListRow> rows;
    rows.reserve(nodes.size());
    Batch recipeFolders(kFolderFields, " AND NOT STYLE", ShowDates);
    Batch styleFolders(kFolderFields, " AND STYLE", ShowDates);
    Batch styles(kStyleFields, "", ShowStyle), recipes(kRecipeFields, "", ShowRecipe);
    for (TWNode* const node : nodes) {
        rows.push_back(node->IsDocument() ? RecipeRow(*node)
                       : node->IsStyle()  ? StyleRow(*node)
                                          : FolderRow(*node));
        const std::string& rowKey = rows.back().key;
        const std::int64_t id = IdOfKey(rowKey);
        if (id <= 0) continue;
        Batch& batch = node->IsDocument()         ? recipes
                       : node->IsStyle()          ? styles
                       : rowKey.starts_with("G:") ? styleFolders
                                                  : recipeFolders;
        batch.Add(id, rows.size() - 1);
    }
    for (const Batch* batch : {&recipeFolders, &styleFolders, &styles, &recipes})
        batch->Read(database_, rows);
    list.SetRows(std::move(rows));
}

void lvFiller::AddFolderRow(ListTable& list, TWNode& folder) const {
    ListRow row = FolderRow(folder);
    const std::int64_t id = IdOfKey(row.key);
    if (id > 0)
        ShowOne(
            database_,
            "SELECT CREATED_WHEN, MODIFIED_WHEN, NULL AS CHILDREN_MODIFIED_WHEN FROM FOLDERS WHERE ID = " +
                std::to_string(id) + (row.key.starts_with("G:") ? " AND STYLE" : " AND NOT STYLE"),
            row, ShowDates);
    list.Add(std::move(row));
}

void lvFiller::AddStyleRow(ListTable& list, TWNode& style) const {
    ListRow row = StyleRow(style);
    const std::int64_t id = IdOfKey(row.key);
    if (id > 0) ShowOne(database_, "SELECT * FROM STYLES WHERE ID = " + std::to_string(id), row, ShowStyle);
    list.Add(std::move(row));
}

void lvFiller::AddRecipeRow(ListTable& list, TWNode& recipe) const {
    ListRow row = RecipeRow(recipe);
    const std::int64_t id = IdOfKey(row.key);
    if (id > 0) ShowOne(database_, "SELECT * FROM RECIPES WHERE ID = " + std::to_string(id), row, ShowRecipe);
    list.Add(std::move(row));
}

}  // namespace tw
