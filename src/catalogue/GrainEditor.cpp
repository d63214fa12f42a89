#include "catalogue/GrainEditor.h"

#include "values/Text.h"

namespace tw {

GrainEditor::GrainEditor(CatalogueKind catalogue, const CatalogueContext& context)
    : CatalogueEditor(catalogue, context) {
    FillTypes();
}

void GrainEditor::FillTypes() {
    EditorList& types = TypeList();
    types.entries.clear();
    types.freeText = true;
    for (Recordset rows = Store().OpenRecordset(std::string("SELECT * FROM GRAIN_TYPES WHERE ") +
                                                (Grain() ? "GRAIN" : "NOT GRAIN") + " ORDER BY ID");
         !rows.AtEnd(); rows.MoveNext())
        types.entries.push_back(rows.Fields("NAME").Text());
}

void GrainEditor::ClearOwn() {
    FillTypes();
    storedType_ = 0;
}

void GrainEditor::ReadOwn(const Recordset& row) {
    SetForm(row.Fields("GRAIN").Boolean() ? CatalogueKind::Grain : CatalogueKind::Extract);
    FillTypes();
    storedType_ = row.Fields("GRAIN_TYPE").Integer();
    const Recordset type = Store().OpenRecordset("SELECT NAME FROM GRAIN_TYPES WHERE ID = ?", {storedType_});
    if (!type.AtEnd()) TypeList().text = type.Fields(0).Text();
}

bool GrainEditor::Write(const std::string& name) {
    if (!CatalogueEditor::Write(name)) return false;
    // The row may be given another type and saved again before the form closes.
    storedType_ = newType_;
    return true;
}

SqlValue GrainEditor::OwnValue(ColumnSource source) const {
    if (source == ColumnSource::Kind) return Grain();
    return newType_;
}

void GrainEditor::BeforeWrite() {
    newType_ = 0;
    const std::string name(Trim(TypeList().text));
    if (name.empty()) return;
    const auto find = [&] {
        const Recordset rows =
            Store().OpenRecordset("SELECT * FROM GRAIN_TYPES WHERE NAME = ? AND GRAIN = ?", {name, Grain()});
        if (rows.AtEnd()) return false;
        newType_ = rows.Fields("ID").Integer();
        return true;
    };
    if (find()) return;
    Store().Execute("INSERT INTO GRAIN_TYPES (NAME, GRAIN) VALUES (?, ?)", {name, Grain()});
    find();
}

void GrainEditor::AfterWrite() {
    if (storedType_ != newType_) RemoveUnusedType(Store(), storedType_);
}

void RemoveUnusedType(Database& database, std::int64_t type) {
    if (type <= 0) return;
    Recordset count =
        database.OpenRecordset("SELECT COUNT(GRAIN_TYPE) FROM GRAINS WHERE GRAIN_TYPE = ?", {type});
    const bool used = count.Fields(0).Integer() >= 1;
    count.Close();
    if (!used) database.Execute("DELETE FROM GRAIN_TYPES WHERE ID = ?", {type});
}

}  // namespace tw
