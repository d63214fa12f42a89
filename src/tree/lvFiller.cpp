// The lists of nodes: folders, styles and recipes.
#include "tree/lvFiller.h"

#include <algorithm>
#include <array>
#include <map>
#include <optional>
#include <span>

#include "tree/ListFormats.h"
#include "tree/NodeKey.h"
#include "tree/RowFacts.h"
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
    // In windows only.
    InFolder,
    OfStyle,
    Columns
};
static_assert(InFolder == lvFiller::kFolderColumn && Columns == lvFiller::kWindowColumns);

// A column, and how windows show it: what a brewer looks for first stands at the left.
struct ColumnRow {
    const char* title;
    ListColumnKind kind = ListColumnKind::Text;
    const char* caption = "";
    int place = ListColumn::kNoPlace;
};

using enum ListColumnKind;

constexpr std::array<ColumnRow, Columns> kColumns = {{
    {"Name", Text, "", 0},
    {"Size", Number},
    {"Type", Text},
    {"Modified When", Date, "Changed", 6},
    {"Created When", Date, "Created"},
    {"Number of Batches", Number, "Batches"},
    {"Batch Size", Number},
    {"Original Gravity", Number, "OG", 3},
    {"Finished Gravity", Number, "FG"},
    {"Alcohol Content", Number, "ABV"},
    {"Color", Number, "", 5},
    {"Bitterness", Number, "IBU", 4},
    {"Carbonation", Number, "CO2"},
    {"Water Profile", Text},
    {"Folder", Text, "", 1},
    {"Style", Text, "", 2},
}};

std::vector<ListColumn> FirstColumns(std::size_t count) {
    std::vector<ListColumn> columns;
    for (const ColumnRow& row : std::span(kColumns).first(count)) {
        ListColumn column{row.title, row.kind};
        column.caption = row.caption;
        column.place = row.place;
        columns.push_back(std::move(column));
    }
    return columns;
}

// The shown fields of a row, looked up by name once for all rows of a recordset.
template <std::size_t kCount>
using FieldNames = std::array<std::string_view, kCount>;

template <std::size_t kCount>
class ShownFields {
  public:
    ShownFields(const Recordset& rows, const FieldNames<kCount>& names) : rows_(rows) {
        for (std::size_t i = 0; i < kCount; ++i)
            while (CompareNoCase(rows.FieldName(places_[i]), names[i]) != 0) ++places_[i];
    }
    Field operator[](std::size_t field) const { return rows_.Fields(places_[field]); }

  private:
    const Recordset& rows_;
    std::array<int, kCount> places_{};
};

enum DateField { ModifiedWhen, CreatedWhen, DateFields };
constexpr FieldNames<DateFields> kFolderNames = {"MODIFIED_WHEN", "CREATED_WHEN"};

enum StyleField {
    StyleWater = DateFields,
    OgLow,
    OgHigh,
    FgLow,
    FgHigh,
    AbvLow,
    AbvHigh,
    ColorLow,
    ColorHigh,
    IbuLow,
    IbuHigh,
    Co2Low,
    Co2High,
    StyleFields
};
constexpr FieldNames<StyleFields> kStyleNames = {
    "MODIFIED_WHEN", "CREATED_WHEN", "WATER_PROFILE", "OG_LO",  "OG_HI",  "FG_LO",  "FG_HI", "ABV_LO",
    "ABV_HI",        "COLOR_LO",     "COLOR_HI",      "IBU_LO", "IBU_HI", "CO2_LO", "CO2_HI"};

enum RecipeField {
    NumBatches = DateFields,
    Fv,
    FvData,
    Tv,
    TvData,
    Og,
    OgData,
    Fg,
    FgData,
    Abv,
    RecipeColor,
    Ibu,
    Co2Vols,
    TargetWater,
    RecipeFields
};
constexpr FieldNames<RecipeFields> kRecipeNames = {
    "MODIFIED_WHEN", "CREATED_WHEN", "NUMBATCHES", "FV",  "FV_DATA", "TV",  "TV_DATA",  "OG",
    "OG_DATA",       "FG",           "FG_DATA",    "ABV", "COLOR",   "IBU", "CO2_VOLS", "TRG_PROFILE_NAME"};

std::string& Cell(ListRow& row, Column column) {
    return row.cells[static_cast<std::size_t>(column)];
}

std::string SizeOf(TWNode& node) {
    return std::to_string(node.HasChildren() ? node.Children().Count() : 0);
}

// Returns the row of a node, without the data that only the database has.
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
    return IsGroupKey(key) || key == kAllRecipesKey || key == kRecipeFoldersKey || key == kAllStylesKey ||
           key == kStyleFoldersKey;
}

ListRow FolderRow(TWNode& node) {
    ListRow row = BlankRow(node);
    row.isFolder = true;
    Cell(row, Size) = SizeOf(node);
    Cell(row, Type) = IsSystemFolder(row.key)     ? "System Folder"
                      : IsStyleFolderKey(row.key) ? "Style Folder"
                                                  : "Recipe Folder";
    return row;
}

ListRow StyleRow(TWNode& node) {
    ListRow row = BlankRow(node);
    Cell(row, Size) = SizeOf(node);
    Cell(row, Type) = "Style";
    return row;
}

ListRow RecipeRow(const TWNode& node, const TWTree& tree) {
    ListRow row = BlankRow(node);
    Cell(row, Type) = "Recipe";
    const TWNode* const copy = tree.Nodes(RecipeKey(IdOfKey(row.key), kCopyOfStyle));
    const TWNode* const style = copy ? copy->Parent() : nullptr;
    if (style && style->Key() != kNoStyleKey) Cell(row, OfStyle) = style->Name();
    return row;
}

template <class Fields>
void ShowDates(ListRow& row, const Fields& object) {
    Cell(row, Modified) = ListDate(object[ModifiedWhen]);
    Cell(row, Created) = ListDate(object[CreatedWhen]);
}

void ShowFolder(ListRow& row, const ShownFields<DateFields>& folder) {
    ShowDates(row, folder);
}

void ShowStyle(ListRow& row, const ShownFields<StyleFields>& style) {
    ShowDates(row, style);
    Cell(row, OriginalGravity) = ListRange(style[OgLow], style[OgHigh], kGravityPattern);
    Cell(row, FinishedGravity) = ListRange(style[FgLow], style[FgHigh], kGravityPattern);
    Cell(row, Alcohol) = ListRange(style[AbvLow], style[AbvHigh], kAlcoholPattern);
    Cell(row, Color) = ListRange(style[ColorLow], style[ColorHigh], kColorPattern);
    Cell(row, Bitterness) = ListRange(style[IbuLow], style[IbuHigh], kBitternessPattern);
    Cell(row, Carbonation) = ListRange(style[Co2Low], style[Co2High], kCarbonationPattern);
    Cell(row, WaterProfile) = ListText(style[StyleWater]);
}

// Returns the number that belongs to a typed text, with its unit; blanks if that text is blank.
std::string TypedFigure(const std::string& typed, const Field& figure, std::string_view pattern,
                        std::string_view unit) {
    if (IsBlank(typed)) return std::string(kNoNumber);
    const std::string text = ListNumber(figure, pattern);
    return text == kNoNumber ? text : text + std::string(unit);
}

void ShowRecipe(ListRow& row, const ShownFields<RecipeFields>& recipe) {
    ShowDates(row, recipe);
    Cell(row, Batches) = ListText(recipe[NumBatches]);
    const std::string finalVolume = recipe[Fv].Text();
    Cell(row, BatchSize) = finalVolume.empty() ? TypedFigure(recipe[Tv].Text(), recipe[TvData], "", " gals")
                                               : TypedFigure(finalVolume, recipe[FvData], "", " gals");
    Cell(row, OriginalGravity) = TypedFigure(recipe[Og].Text(), recipe[OgData], kGravityPattern, "");
    Cell(row, FinishedGravity) = TypedFigure(recipe[Fg].Text(), recipe[FgData], kGravityPattern, "");
    Cell(row, Alcohol) = ListText(recipe[Abv]);
    // The blank before the "(" stays, on purpose: existing scripts compare the cell.
    std::string color = recipe[RecipeColor].Text();
    color.resize(std::min(color.find('('), color.size()));
    if (!color.empty()) Cell(row, Color) = std::move(color);
    const std::string bitterness = recipe[Ibu].Text();
    if (!bitterness.empty()) Cell(row, Bitterness) = bitterness + " IBUs";
    Cell(row, Carbonation) = ListText(recipe[Co2Vols]);
    Cell(row, WaterProfile) = ListText(recipe[TargetWater]);
}

template <std::size_t kCount>
using Show = void (*)(ListRow&, const ShownFields<kCount>&);

// Shows the data of one object in its row, if the database contains it. id is the parameter of sql.
template <std::size_t kCount>
void ShowOne(Database& database, std::string_view sql, std::int64_t id, const FieldNames<kCount>& names,
             ListRow& row, Show<kCount> show) {
    const Recordset object = database.OpenRecordset(sql, {id});
    if (!object.AtEnd()) show(row, ShownFields<kCount>(object, names));
}

// The rows of one kind of object, which are read together.
template <std::size_t kCount>
class Batch {
  public:
    Batch(const char* table, const char* condition, const FieldNames<kCount>& names, Show<kCount> show)
        : table_(table), condition_(condition), names_(names), show_(show) {}

    void Add(std::int64_t id, std::size_t row) { rows_[id] = row; }

    void Read(Database& database, std::vector<ListRow>& rows) const {
        constexpr std::size_t kIdsInAStatement = 500;
        SqlValues ids;
        std::size_t left = rows_.size();
        for (const auto& [id, row] : rows_) {
            ids.emplace_back(id);
            --left;
            if (ids.size() < kIdsInAStatement && left > 0) continue;
            ReadSome(database, ids, rows);
            ids.clear();
        }
    }

  private:
    void ReadSome(Database& database, const SqlValues& ids, std::vector<ListRow>& rows) const {
        std::string sql = "SELECT ID";
        for (const std::string_view name : names_) sql.append(", ").append(name);
        sql.append(" FROM ").append(table_).append(" WHERE ID IN (?");
        for (std::size_t id = 1; id < ids.size(); ++id) sql.append(",?");
        Recordset objects = database.OpenRecordset(sql.append(")").append(condition_), ids);
        if (objects.AtEnd()) return;
        const ShownFields<kCount> fields(objects, names_);
        for (; !objects.AtEnd(); objects.MoveNext()) {
            const auto found = rows_.find(objects.Fields(0).Integer());
            if (found != rows_.end()) show_(rows[found->second], fields);
        }
    }

    const char* table_;
    const char* condition_;
    const FieldNames<kCount>& names_;
    Show<kCount> show_;
    std::map<std::int64_t, std::size_t> rows_;
};

// True if the node has a row in the database under that id: not for system folders and "(None)".
bool HasRow(const TWNode& node, std::int64_t id) {
    if (node.IsDocument()) return id != kNoId;
    return node.IsStyle() ? id != 0 && id != kNoId : id > 0;
}

bool IsBefore(const TWNode* a, const TWNode* b) {
    return a->Compare(*b) < 0;
}

bool BelongsToStyles(const TWNode& node) {
    const std::string key = node.Key();
    return node.IsStyle() || key == kByStyleKey || IsStyleFolderKey(key);
}

}  // namespace

void lvFiller::SetUpExplorerColumns(ListTable& list) {
    list.SetColumns(FirstColumns(InFolder));
}

void lvFiller::SetUpWindowColumns(ListTable& list, bool showFolder) {
    std::vector<ListColumn> columns = FirstColumns(Columns);
    columns[InFolder].hidden = !showFolder;
    list.SetColumns(std::move(columns));
}

void lvFiller::FillByKey(ListTable& list, std::string_view key, bool showStyles) const {
    TWNode* const parent = tree_.Nodes(key);
    if (parent == nullptr || !parent->HasChildren()) return list.Clear();
    std::vector<TWNode*> nodes;
    for (const auto& child : parent->Children())
        if (showStyles || !BelongsToStyles(*child)) nodes.push_back(child.get());
    if (!std::ranges::is_sorted(nodes, IsBefore)) std::ranges::stable_sort(nodes, IsBefore);
    FillNodes(list, nodes);
}

void lvFiller::FillNodes(ListTable& list, const std::vector<TWNode*>& nodes) const {
    std::vector<ListRow> rows;
    rows.reserve(nodes.size());
    Batch<DateFields> recipeFolders("FOLDERS", " AND NOT STYLE", kFolderNames, ShowFolder);
    Batch<DateFields> styleFolders("FOLDERS", " AND STYLE", kFolderNames, ShowFolder);
    Batch<StyleFields> styles("STYLES", "", kStyleNames, ShowStyle);
    Batch<RecipeFields> recipes("RECIPES", "", kRecipeNames, ShowRecipe);
    std::optional<RowFacts> styleFacts;
    for (TWNode* const node : nodes) {
        rows.push_back(node->IsDocument() ? RecipeRow(*node, tree_)
                       : node->IsStyle()  ? StyleRow(*node)
                                          : FolderRow(*node));
        if (node->IsStyle()) {
            if (!styleFacts) styleFacts.emplace(database_, CatalogueKind::Style);
            styleFacts->AddTo(rows.back());
        }
        const std::string& rowKey = rows.back().key;
        const std::int64_t id = IdOfKey(rowKey);
        if (!HasRow(*node, id)) continue;
        const std::size_t place = rows.size() - 1;
        if (node->IsDocument())
            recipes.Add(id, place);
        else if (node->IsStyle())
            styles.Add(id, place);
        else
            (IsStyleFolderKey(rowKey) ? styleFolders : recipeFolders).Add(id, place);
    }
    recipeFolders.Read(database_, rows);
    styleFolders.Read(database_, rows);
    styles.Read(database_, rows);
    recipes.Read(database_, rows);
    list.SetRows(std::move(rows));
}

void lvFiller::AddFolderRow(ListTable& list, TWNode& folder) const {
    ListRow row = FolderRow(folder);
    const std::int64_t id = IdOfKey(row.key);
    if (HasRow(folder, id))
        ShowOne(database_,
                std::string("SELECT CREATED_WHEN, MODIFIED_WHEN, NULL AS CHILDREN_MODIFIED_WHEN FROM FOLDERS "
                            "WHERE ID = ?") +
                    (IsStyleFolderKey(row.key) ? " AND STYLE" : " AND NOT STYLE"),
                id, kFolderNames, row, ShowFolder);
    list.Add(std::move(row));
}

void lvFiller::AddStyleRow(ListTable& list, TWNode& style) const {
    ListRow row = StyleRow(style);
    RowFacts(database_, CatalogueKind::Style).AddTo(row);
    const std::int64_t id = IdOfKey(row.key);
    if (HasRow(style, id))
        ShowOne(database_, "SELECT * FROM STYLES WHERE ID = ?", id, kStyleNames, row, ShowStyle);
    list.Add(std::move(row));
}

void lvFiller::AddRecipeRow(ListTable& list, TWNode& recipe) const {
    ListRow row = RecipeRow(recipe, tree_);
    const std::int64_t id = IdOfKey(row.key);
    if (HasRow(recipe, id))
        ShowOne(database_, "SELECT * FROM RECIPES WHERE ID = ?", id, kRecipeNames, row, ShowRecipe);
    list.Add(std::move(row));
}

}  // namespace tw
