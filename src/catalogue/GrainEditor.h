// The editor of grains and extracts (frmGrain). It inserts a new type with the first grain of that type, and
// deletes a type with the last.
#pragma once

#include "catalogue/CatalogueEditor.h"

namespace tw {

class GrainEditor final : public CatalogueEditor {
  public:
    // catalogue is Grain or Extract, but a row keeps its own kind when it is loaded: names are unique
    // across both.
    GrainEditor(CatalogueKind catalogue, const CatalogueContext& context);

    // True for a grain, false for an extract.
    bool Grain() const { return Form().catalogue == CatalogueKind::Grain; }

  private:
    void ClearOwn() override;
    void ReadOwn(const Recordset& row) override;
    bool Write(const std::string& name) override;
    void Applied() override { FillTypes(); }
    SqlValue OwnValue(ColumnSource source) const override;
    void BeforeWrite() override;
    void AfterWrite() override;
    // Fills the list with the existing types and keeps the text.
    void FillTypes();

    std::int64_t storedType_ = 0;  // GRAIN_TYPES.ID of the stored row, 0 for none
    std::int64_t newType_ = 0;     // GRAIN_TYPES.ID of the row being written, 0 for none
};

// Deletes the type if no grain or extract uses it any more. Does nothing for 0, which means no type.
void RemoveUnusedType(Database& database, std::int64_t type);

}  // namespace tw
