// The lists of the catalogues.
#include <algorithm>
#include <optional>
#include <utility>

#include "calc/BeerColor.h"
#include "tree/ListFormats.h"
#include "tree/NodeKey.h"
#include "tree/RowFacts.h"
#include "tree/TWNodes.h"
#include "tree/lvFiller.h"

namespace tw {
namespace {

using enum ListColumnKind;

// Returns the row of the current record, with its name as key and first cell.
ListRow NamedRow(const Recordset& rows, std::string_view nameField) {
    ListRow row;
    row.key = rows.Fields(nameField).Text();
    row.cells = {ListText(rows.Fields(nameField))};
    return row;
}

std::string Range(const Recordset& rows, const char* low, const char* high, std::string_view pattern = {}) {
    return ListRange(rows.Fields(low), rows.Fields(high), pattern);
}

// Fills the list with a row for each record, sorted by name.
template <class MakeCells>
void FillTable(Database& database, ListTable& list, CatalogueKind kind, MakeCells addCells) {
    const RowFacts facts(database, kind);
    std::vector<ListRow> filled;
    for (Recordset rows = database.OpenRecordset("SELECT * FROM " + std::string(TableOf(kind)));
         !rows.AtEnd(); rows.MoveNext()) {
        ListRow row = NamedRow(rows, "NAME");
        addCells(row.cells, rows);
        facts.AddTo(row);
        filled.push_back(std::move(row));
    }
    list.SetRows(std::move(filled));
    list.Sort(0);
}

std::vector<ListRow> StyleRows(Database& database, std::int64_t folderId) {
    // The system folder contains all styles.
    const bool all = folderId == -1;
    const RowFacts facts(database, CatalogueKind::Style);
    std::vector<ListRow> styles;
    for (Recordset rows =
             all ? database.OpenRecordset("SELECT * FROM STYLES")
                 : database.OpenRecordset("SELECT * FROM STYLES WHERE FOLDER_ID = ?", {folderId});
         !rows.AtEnd(); rows.MoveNext()) {
        ListRow row = NamedRow(rows, "NAME");
        row.icon = NodeIcon::StyleClosed;
        if (const auto srm = MiddleOf(rows.Fields("COLOR_LO"), rows.Fields("COLOR_HI")))
            row.hcu = SRMToHCU(std::max(*srm, 0.0));
        row.cells.insert(
            row.cells.end(),
            {ListTypeName(rows.Fields("TYPE")), Range(rows, "OG_LO", "OG_HI", kGravityPattern),
             Range(rows, "FG_LO", "FG_HI", kGravityPattern), Range(rows, "ABV_LO", "ABV_HI", kAlcoholPattern),
             Range(rows, "COLOR_LO", "COLOR_HI", kColorPattern),
             Range(rows, "IBU_LO", "IBU_HI", kBitternessPattern),
             Range(rows, "CO2_LO", "CO2_HI", kCarbonationPattern), ListText(rows.Fields("WATER_PROFILE"))});
        facts.AddTo(row);
        styles.push_back(std::move(row));
    }
    return styles;
}

void SetUpStyleColumns(ListTable& list) {
    list.SetColumns({{"Style Name", Text},
                     {"Type", Text},
                     {"OG", Number, false, "original gravity"},
                     {"FG", Number, false, "finished gravity"},
                     {"ABV", Number, false, "alcohol, % by volume"},
                     {"Color", Number, true, "SRM"},
                     {"IBU", Number, false, "bitterness"},
                     {"CO2", Number, false, "volumes of carbon dioxide"},
                     {"Water Profile", Text}});
}

ListRow GrainRow(const Recordset& rows, int group, const RowFacts& facts) {
    ListRow row = NamedRow(rows, "GRAINS.NAME");
    row.group = group;
    // The colour of a wort of one pound in one gallon: its colour units are the malt's degrees Lovibond.
    if (const auto lovibond = MiddleOf(rows.Fields("COLOR_LO"), rows.Fields("COLOR_HI")))
        row.hcu = std::max(*lovibond, 0.0);
    row.cells.insert(row.cells.end(),
                     {Range(rows, "PPG_LO", "PPG_HI"), Range(rows, "COLOR_LO", "COLOR_HI", kColorPattern)});
    facts.AddTo(row);
    return row;
}

}  // namespace

void lvFiller::FillStyles(ListTable& list, std::int64_t folderId) const {
    SetUpStyleColumns(list);
    list.SetRows(StyleRows(database_, folderId));
    list.Sort(0);
}

void lvFiller::FillStylesAndFolders(ListTable& list, std::int64_t folderId) const {
    SetUpStyleColumns(list);
    std::vector<ListRow> rows;
    TWNode* const parent = tree_.Nodes(StyleFolderKey(folderId));
    if (parent != nullptr && parent->HasChildren())
        for (const auto& child : parent->Children()) {
            if (child->IsStyle() || child->IsDocument()) continue;
            ListRow row;
            row.key = child->Key();
            row.cells = {std::string(child->Name()), "Style Folder"};
            row.icon = IconOf(child->IconClosed());
            row.isFolder = true;
            rows.push_back(std::move(row));
        }
    for (ListRow& style : StyleRows(database_, folderId)) rows.push_back(std::move(style));
    list.SetRows(std::move(rows));
    list.Sort(0);
}

void lvFiller::FillGrains(ListTable& list, bool grain) const {
    list.SetColumns({{grain ? "Grain Name" : "Extract Name", Text},
                     {"PPG", Number, false, "gravity points per pound per gallon"},
                     {"Color", Number, true, "degrees Lovibond"}});
    const std::string kind = grain ? "GRAINS.GRAIN" : "NOT GRAINS.GRAIN";
    const RowFacts facts(database_, CatalogueKind::Grain);
    std::vector<ListRow> filled;
    std::optional<std::string> type;
    int group = 0;
    for (Recordset rows = database_.OpenRecordset("SELECT * FROM GRAINS, GRAIN_TYPES WHERE " + kind +
                                                  " AND GRAINS.GRAIN_TYPE = GRAIN_TYPES.ID"
                                                  " ORDER BY GRAINS.GRAIN_TYPE, GRAINS.NAME");
         !rows.AtEnd(); rows.MoveNext()) {
        std::string name = rows.Fields("GRAIN_TYPES.NAME").Text();
        if (type != name) {
            ListRow heading;
            heading.cells = {name};
            heading.isGroup = true;
            heading.group = ++group;
            filled.push_back(std::move(heading));
            type = std::move(name);
        }
        filled.push_back(GrainRow(rows, group, facts));
    }
    ++group;
    for (Recordset rows = database_.OpenRecordset(
             "SELECT * FROM GRAINS WHERE " + kind +
             " AND (GRAIN_TYPE IS NULL OR NOT GRAIN_TYPE IN (SELECT ID FROM GRAIN_TYPES)) ORDER BY NAME");
         !rows.AtEnd(); rows.MoveNext())
        filled.push_back(GrainRow(rows, group, facts));
    list.SetRows(std::move(filled));
}

void lvFiller::FillHops(ListTable& list) const {
    list.SetColumns({{"Hop Variety Name", Text}, {"Alpha Acids %", Number}, {"Usage", Text}});
    FillTable(database_, list, CatalogueKind::Hop,
              [](std::vector<std::string>& cells, const Recordset& rows) {
                  cells.push_back(Range(rows, "AA_LO", "AA_HI"));
                  cells.push_back(ListText(rows.Fields("USAGE")));
              });
}

void lvFiller::FillYeast(ListTable& list) const {
    list.SetColumns({{"Yeast Name", Text},
                     {"Description", Text},
                     {"Type", Text},
                     {"Flocculation", Text},
                     {"Attenuation", Number, false, "apparent, in %"},
                     {"Temperature", Number, false, "degrees Fahrenheit"}});
    FillTable(
        database_, list, CatalogueKind::Yeast, [](std::vector<std::string>& cells, const Recordset& rows) {
            cells.insert(cells.end(), {ListText(rows.Fields("DESCR")), ListTypeName(rows.Fields("TYPE")),
                                       ListText(rows.Fields("FLOC")), Range(rows, "AA_LO", "AA_HI"),
                                       Range(rows, "TEMP_LO", "TEMP_HI")});
        });
}

void lvFiller::FillIons(ListTable& list, const char* nameTitle, CatalogueKind kind, const char* unit) const {
    std::vector<ListColumn> columns = {{nameTitle, Text}};
    for (const char* ion : {"Calcium", "Carbonate", "Chloride", "Magnesium", "Sodium", "Sulfate"})
        columns.push_back({ion, Number, false, unit});
    list.SetColumns(std::move(columns));
    FillTable(database_, list, kind, [](std::vector<std::string>& cells, const Recordset& rows) {
        for (const char* ion : {"CA", "CO3", "CL", "MG", "NA", "SO4"})
            cells.push_back(ListNumber(rows.Fields(ion), {}));
    });
}

void lvFiller::FillWaterProfiles(ListTable& list) const {
    FillIons(list, "Water Profile Name", CatalogueKind::Water, "PPM");
}

void lvFiller::FillSalts(ListTable& list) const {
    FillIons(list, "Treatment Salt Name", CatalogueKind::Salt, "PPM per gram in a gallon");
}

void lvFiller::FillSugars(ListTable& list) const {
    list.SetColumns({{"Priming Sugar Name", Text}, {"Fermentable %", Number}});
    FillTable(database_, list, CatalogueKind::Sugar,
              [](std::vector<std::string>& cells, const Recordset& rows) {
                  cells.push_back(Range(rows, "FERMENT_LO", "FERMENT_HI"));
              });
}

void lvFiller::Fill(ListTable& list, CatalogueKind catalogue) const {
    switch (catalogue) {
        case CatalogueKind::Style:
            return FillStylesAndFolders(list, 0);
        case CatalogueKind::Grain:
            return FillGrains(list, true);
        case CatalogueKind::Extract:
            return FillGrains(list, false);
        case CatalogueKind::Hop:
            return FillHops(list);
        case CatalogueKind::Yeast:
            return FillYeast(list);
        case CatalogueKind::Sugar:
            return FillSugars(list);
        case CatalogueKind::Water:
            return FillWaterProfiles(list);
        case CatalogueKind::Salt:
            return FillSalts(list);
    }
}

}  // namespace tw
