#include "document/CatalogueLookup.h"

#include "store/CatalogueNames.h"

namespace tw {
namespace {

std::optional<double> NumberOf(const Field& field) {
    if (field.IsNull()) return std::nullopt;
    return field.Number();
}

struct Catalogue {
    CellNames names;
    CatalogueKind kind;
};

constexpr Catalogue kCatalogues[] = {
    {CellNames::Grains, CatalogueKind::Grain}, {CellNames::Extracts, CatalogueKind::Extract},
    {CellNames::Hops, CatalogueKind::Hop},     {CellNames::PitchedYeast, CatalogueKind::Yeast},
    {CellNames::Waters, CatalogueKind::Water}, {CellNames::Salts, CatalogueKind::Salt},
    {CellNames::Sugars, CatalogueKind::Sugar},
};

Ions IonsIn(const Recordset& row) {
    Ions ions;
    for (int ion = 0; ion < kIons; ++ion) ions[static_cast<std::size_t>(ion)] = row.Fields(ion + 1).Number();
    return ions;
}

FigureRange RangeIn(const Recordset& row, std::string_view low, std::string_view high) {
    return {NumberOf(row.Fields(low)), NumberOf(row.Fields(high))};
}

}  // namespace

std::optional<CatalogueKind> CatalogueOf(CellNames list) {
    for (const Catalogue& catalogue : kCatalogues)
        if (catalogue.names == list) return catalogue.kind;
    return std::nullopt;
}

std::optional<CellNames> CellNamesOf(CatalogueKind kind) {
    for (const Catalogue& catalogue : kCatalogues)
        if (catalogue.kind == kind) return catalogue.names;
    return std::nullopt;
}

NameList CatalogueLookup::Names(CellNames list) const {
    if (const auto kind = CatalogueOf(list)) return CatalogueNames(database_).NamesOf(*kind);
    NameList names;
    if (list == CellNames::UsedAdjuncts)
        for (Recordset rows =
                 database_.OpenRecordset("SELECT DISTINCT NAME FROM RECIPE_ADJUNCTS ORDER BY NAME");
             !rows.AtEnd(); rows.MoveNext())
            names.Add(rows.Fields(0).Text());
    return names;
}

NameList CatalogueLookup::StyleNames(std::span<const std::string> names) const {
    return CatalogueNames(database_).WithOtherNames(CatalogueKind::Style, names);
}

bool CatalogueLookup::Knows(CatalogueKind kind, std::string_view name) const {
    return CatalogueNames(database_).RowOf(kind, name).has_value();
}

// Returns the name of the row that typed means, or typed itself if there is none.
std::string CatalogueLookup::RowName(CatalogueKind kind, std::string_view typed) const {
    return CatalogueNames(database_).RowOf(kind, typed).value_or(std::string(typed));
}

std::optional<FermentableFigures> CatalogueLookup::Fermentable(CatalogueKind kind,
                                                               std::string_view name) const {
    std::string sql = "SELECT NAME, (PPG_LO+PPG_HI)/2, (COLOR_LO+COLOR_HI)/2 FROM GRAINS WHERE NAME = ?";
    sql.append(kind == CatalogueKind::Grain ? " AND GRAIN" : " AND NOT GRAIN");
    const Recordset row = database_.OpenRecordset(sql, {RowName(kind, name)});
    if (row.AtEnd()) return std::nullopt;
    return FermentableFigures{NumberOf(row.Fields(1)), NumberOf(row.Fields(2))};
}

std::optional<HopFigures> CatalogueLookup::Hop(std::string_view name) const {
    const Recordset row = database_.OpenRecordset("SELECT NAME, (AA_LO+AA_HI)/2 FROM HOPS WHERE NAME = ?",
                                                  {RowName(CatalogueKind::Hop, name)});
    if (row.AtEnd()) return std::nullopt;
    return HopFigures{NumberOf(row.Fields(1))};
}

std::optional<SugarFigures> CatalogueLookup::Sugar(std::string_view name) const {
    const Recordset row =
        database_.OpenRecordset("SELECT NAME, (FERMENT_LO+FERMENT_HI)/2 FROM SUGARS WHERE NAME = ?",
                                {RowName(CatalogueKind::Sugar, name)});
    if (row.AtEnd()) return std::nullopt;
    return SugarFigures{NumberOf(row.Fields(1))};
}

std::optional<YeastFigures> CatalogueLookup::Yeast(std::string_view name) const {
    const Recordset row = database_.OpenRecordset("SELECT NAME, (AA_LO+AA_HI)/2 FROM YEAST WHERE NAME = ?",
                                                  {RowName(CatalogueKind::Yeast, name)});
    if (row.AtEnd()) return std::nullopt;
    return YeastFigures{NumberOf(row.Fields(1))};
}

std::optional<Ions> CatalogueLookup::IonsOf(CatalogueKind kind, std::string_view name) const {
    std::string sql = "SELECT NAME, CA, CO3, CL, MG, NA, SO4 FROM ";
    sql.append(TableOf(kind)).append(" WHERE NAME = ?");
    const Recordset row = database_.OpenRecordset(sql, {RowName(kind, name)});
    if (row.AtEnd()) return std::nullopt;
    return IonsIn(row);
}

std::optional<Ions> CatalogueLookup::Water(std::string_view name) const {
    return IonsOf(CatalogueKind::Water, name);
}

std::optional<Ions> CatalogueLookup::Salt(std::string_view name) const {
    return IonsOf(CatalogueKind::Salt, name);
}

std::vector<SaltIons> CatalogueLookup::Salts() const {
    std::vector<SaltIons> salts;
    for (Recordset rows = database_.OpenRecordset("SELECT NAME, CA, CO3, CL, MG, NA, SO4 FROM SALTS");
         !rows.AtEnd(); rows.MoveNext())
        salts.push_back({rows.Fields(0).Text(), IonsIn(rows)});
    return salts;
}

std::vector<StyleName> CatalogueLookup::Styles() const {
    std::vector<StyleName> styles;
    for (Recordset rows = database_.OpenRecordset("SELECT NAME, ID FROM STYLES ORDER BY 1"); !rows.AtEnd();
         rows.MoveNext())
        styles.push_back({rows.Fields(1).Integer(), rows.Fields(0).Text()});
    return styles;
}

std::optional<StyleFigures> CatalogueLookup::Style(std::int64_t id) const {
    // Id 0 means no style, even if a row has that id.
    const Recordset row = database_.OpenRecordset("SELECT * FROM STYLES WHERE ID <> 0 AND ID = ?", {id});
    if (row.AtEnd()) return std::nullopt;
    StyleFigures style{RangeIn(row, "OG_LO", "OG_HI"),
                       RangeIn(row, "FG_LO", "FG_HI"),
                       RangeIn(row, "ABV_LO", "ABV_HI"),
                       RangeIn(row, "COLOR_LO", "COLOR_HI"),
                       RangeIn(row, "IBU_LO", "IBU_HI"),
                       RangeIn(row, "CO2_LO", "CO2_HI"),
                       std::nullopt};
    const Field profile = row.Fields("WATER_PROFILE");
    if (!profile.IsNull()) style.waterProfile = profile.Text();
    return style;
}

std::optional<std::string> CatalogueLookup::StyleNamed(std::string_view typed) const {
    return CatalogueNames(database_).RowOf(CatalogueKind::Style, typed);
}

}  // namespace tw
