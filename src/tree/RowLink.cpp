#include "tree/RowLink.h"

#include <cmath>

namespace tw {

std::optional<std::int64_t> LinkOf(const Recordset& rows, int index) {
    constexpr double kExact = 9007199254740992.0;  // 2^53, beyond which a double skips whole numbers
    try {
        const Value value = rows.Fields(index).Value();
        const double* const number = std::get_if<double>(&value);
        if (number == nullptr || std::abs(*number) > kExact || *number != std::trunc(*number))
            return std::nullopt;
        return static_cast<std::int64_t>(*number);
    } catch (const Error&) {
        return std::nullopt;  // infinite: only a foreign program stores that
    }
}

}  // namespace tw
