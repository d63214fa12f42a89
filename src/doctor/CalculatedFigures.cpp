#include "doctor/CalculatedFigures.h"

#include "calc/BeerColor.h"
#include "calc/Figures.h"
#include "platform/Error.h"

namespace tw {
namespace {

std::optional<double> ColorOf(const RecipeRecord& record) {
    if (record.txtColor.Empty()) return std::nullopt;
    return HCUToSRM(record.gridGrain.Total(GrainCol::Hcu) + record.gridExtract.Total(GrainCol::Hcu));
}

std::optional<double> AlcoholOf(const RecipeRecord& record) {
    if (record.txtABV.Empty()) return std::nullopt;
    return ComputeAlcohol(record.txtOG.Value(), record.txtFG.Value()).byVolume;
}

// Returns what read returns; nothing if the figure cannot be calculated.
template <class Read>
std::optional<double> IfCalculable(Read read) {
    try {
        return read();
    } catch (const Error&) {
        return std::nullopt;
    }
}

}  // namespace

StatedFigures CalculatedFigures(const RecipeRecord& record) {
    const auto valueOf = [](const TextBox& box) {
        return box.Empty() ? std::nullopt : std::optional(box.Value());
    };
    return {valueOf(record.txtOG), valueOf(record.txtFG), IfCalculable([&] { return AlcoholOf(record); }),
            valueOf(record.txtIBU), IfCalculable([&] { return ColorOf(record); })};
}

std::optional<double> BitternessWithoutForm(const RecipeRecord& record) {
    if (record.txtIBU.Empty()) return std::nullopt;
    const Grid& hops = record.gridHops;
    double ibu = 0;
    for (int row = Grid::FixedRows(); row < hops.EndOfData(); ++row) {
        const auto form = static_cast<std::size_t>(hops.Number(row, HopCol::Form));
        const double factor = form < kHopForms.size() ? kHopForms[form].factor : 1;
        ibu += hops.Number(row, HopCol::Ibu) / factor;
    }
    return ibu;
}

}  // namespace tw
