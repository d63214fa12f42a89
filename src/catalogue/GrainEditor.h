// The editor of grains and extracts (frmGrain): its types come and go with the grains that have them.
#pragma once

#include "catalogue/CatalogueEditor.h"

namespace tw {

class GrainEditor final : public CatalogueEditor {
  public:
    // catalogue is that of the grains or that of the extracts. A row that turns out to be of the other kind
    // stays of its kind: names are unique across both.
    GrainEditor(CatalogueKind catalogue, const CatalogueContext& context);

    // Whether it is a grain, not an extract.
    bool Grain() const { return Form().catalogue == CatalogueKind::Grain; }

  private:
    void ClearOwn() override;
    void ReadOwn(const Recordset& row) override;
    bool Write(const std::string& name) override;
    void Applied() override { FillTypes(); }
    SqlValue OwnValue(ColumnSource source) const override;
    void BeforeWrite() override;
    void AfterWrite() override;
    // Lists the types that there are; what stands in the box stays.
    void FillTypes();

    std::int64_t storedType_ = 0;  // GRAIN_TYPES.ID of the row as it is stored, 0 for none
    std::int64_t newType_ = 0;     // of the row being written
};

// Takes the type away when no grain or extract has it any more; 0 is no type.
void RemoveUnusedType(Database& database, std::int64_t type);

}  // namespace tw
