// The numbers by which rows refer to each other.
#pragma once

#include <cstdint>
#include <optional>

#include "store/Database.h"

namespace tw {

// The number in that field of the present row, which links it to another row. Nothing for NULL and for what
// is no whole number: that names no row.
std::optional<std::int64_t> LinkOf(const Recordset& rows, int index);

}  // namespace tw
