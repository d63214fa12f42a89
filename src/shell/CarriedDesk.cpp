#include "shell/CarriedDesk.h"

#include "doctor/CarriedDataModel.h"
#include "store/CarriedData.h"
#include "store/RecipeRows.h"

namespace tw {

// By name, because an import may have replaced the stored recipe of an open document.
std::optional<std::int64_t> CarriedDesk::ActiveId() const {
    const RecipeDocument* const active = documents_.Active();
    if (active == nullptr || active->OrigName().empty()) return std::nullopt;
    return RecipeId(*data_.database, active->OrigName());
}

bool CarriedDesk::ActiveCarries() const {
    const CarriedData carried(*data_.database);
    if (!carried.IsThere()) return false;
    try {
        const std::optional<std::int64_t> id = ActiveId();
        return id && carried.IsCarriedFor(*id);
    } catch (const Error&) {
        return false;
    }
}

void CarriedDesk::Show() {
    const std::optional<std::int64_t> id = ActiveId();
    if (!id) return;
    CarriedDataModel dialog(*data_.database, *id, documents_.Active()->OrigName(), data_.platform.messages,
                            data_.platform.clipboard);
    data_.platform.dialogs.ShowModal(dialog);
    states_.CheckEnableCarried();
}

}  // namespace tw
