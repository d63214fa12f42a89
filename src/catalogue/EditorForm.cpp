#include "catalogue/EditorForm.h"

#include <array>
#include <cstddef>

namespace tw {
namespace {

using enum CellCheck;
using Color = RangeRow::Color;

constexpr RangeRow kStyleRows[] = {
    {"Original Gravity", Gravity, "OG value", "OG_LO", "OG_HI"},
    {"Finished Gravity", Gravity, "FG value", "FG_LO", "FG_HI"},
    {"Alcohol (% by volume)", Share, "ABV value", "ABV_LO", "ABV_HI"},
    {"Color (SRM)", Number, "Color value", "COLOR_LO", "COLOR_HI", Color::Srm},
    {"Bitterness (IBU)", Bitterness, "IBU value", "IBU_LO", "IBU_HI"},
    {"Carbonation (Volumes of CO2)", Carbonation, "CO2 value", "CO2_LO", "CO2_HI"},
};
constexpr RangeRow kGrainRows[] = {
    {"Per Pound Gravity", Number, "PPG value", "PPG_LO", "PPG_HI", Color::None, "points"},
    {"Color (Lovibond)", Number, "Color value", "COLOR_LO", "COLOR_HI", Color::Lovibond},
};
constexpr RangeRow kHopRows[] = {{"Alpha Acids %", Percent, "", "AA_LO", "AA_HI"}};
constexpr RangeRow kYeastRows[] = {
    {"Apparent Attenuation", Percent, "", "AA_LO", "AA_HI", Color::None, "%"},
    {"Optimal Temperature", Temperature, "", "TEMP_LO", "TEMP_HI", Color::None, "°F"},
};
constexpr RangeRow kSugarRows[] = {{"Fermentable %", Percent, "", "FERMENT_LO", "FERMENT_HI"}};
constexpr RangeRow kProfileRows[] = {
    {"Calcium (PPM)", Number, "numeric value", "CA", ""},
    {"Carbonate (PPM)", Number, "numeric value", "CO3", ""},
    {"Chloride (PPM)", Number, "numeric value", "CL", ""},
    {"Magnesium (PPM)", Number, "numeric value", "MG", ""},
    {"Sodium (PPM)", Number, "numeric value", "NA", ""},
    {"Sulfate (PPM)", Number, "numeric value", "SO4", ""},
};
constexpr RangeRow kSaltRows[] = {
    {"Calcium (PPM/Gal/g)", Number, "numeric value", "CA", ""},
    {"Carbonate (PPM/Gal/g)", Number, "numeric value", "CO3", ""},
    {"Chloride (PPM/Gal/g)", Number, "numeric value", "CL", ""},
    {"Magnesium (PPM/Gal/g)", Number, "numeric value", "MG", ""},
    {"Sodium (PPM/Gal/g)", Number, "numeric value", "NA", ""},
    {"Sulfate (PPM/Gal/g)", Number, "numeric value", "SO4", ""},
};

// StyleEditor writes the name, the folder and the dates of a style.
constexpr FormColumn kStyleColumns[] = {{"DESCR", ColumnSource::Description},
                                        {"TYPE", ColumnSource::TypeNumber},
                                        {"WATER_PROFILE", ColumnSource::Combo2}};
constexpr FormColumn kGrainColumns[] = {{"GRAIN", ColumnSource::Kind},
                                        {"NAME", ColumnSource::Name},
                                        {"GRAIN_TYPE", ColumnSource::GrainType},
                                        {"DESCR", ColumnSource::Description}};
constexpr FormColumn kHopColumns[] = {
    {"NAME", ColumnSource::Name}, {"USAGE", ColumnSource::Text2}, {"DESCR", ColumnSource::Description}};
constexpr FormColumn kYeastColumns[] = {{"NAME", ColumnSource::Name},
                                        {"DESCR", ColumnSource::Text2},
                                        {"FLOC", ColumnSource::Combo2},
                                        {"FULL_DESCR", ColumnSource::Description},
                                        {"TYPE", ColumnSource::TypeNumber}};
constexpr FormColumn kPlainColumns[] = {{"NAME", ColumnSource::Name}, {"DESCR", ColumnSource::Description}};

constexpr std::array<EditorForm, kCatalogueKinds> kForms = {{
    {CatalogueKind::Style, "frmStyle", TableOf(CatalogueKind::Style), "Style", "style", "Style Details",
     "Style Name", "", "Style Type", "Water Profile", "Description", "Style Ranges", kStyleColumns,
     kStyleRows, BlankCell::Null},
    {CatalogueKind::Grain, "frmGrain", TableOf(CatalogueKind::Grain), "Grain", "grain or extract",
     "Grain Details", "Grain Name", "", "Grain Type", "", "Description", "Grain Ranges", kGrainColumns,
     kGrainRows, BlankCell::LeftOut},
    {CatalogueKind::Extract, "frmGrain", TableOf(CatalogueKind::Extract), "Extract", "grain or extract",
     "Extract Details", "Extract Name", "", "Extract Type", "", "Description", "Extract Ranges",
     kGrainColumns, kGrainRows, BlankCell::LeftOut},
    {CatalogueKind::Hop, "frmHop", TableOf(CatalogueKind::Hop), "Hop", "hop variety", "Hop Details",
     "Hop Name", "Usage", "", "", "Description", "Hop Ranges", kHopColumns, kHopRows, BlankCell::LeftOut},
    {CatalogueKind::Yeast, "frmYeast", TableOf(CatalogueKind::Yeast), "Yeast", "yeast", "Yeast Details",
     "Yeast Name", "Short Description", "Yeast Type", "Flocculation", "Full Description", "Yeast Ranges",
     kYeastColumns, kYeastRows, BlankCell::LeftOut},
    {CatalogueKind::Water, "frmWater", TableOf(CatalogueKind::Water), "Profile", "Profile", "Profile Info",
     "Profile Name", "", "", "", "Description", "Ions", kPlainColumns, kProfileRows, BlankCell::Zero},
    {CatalogueKind::Salt, "frmWater", TableOf(CatalogueKind::Salt), "Treatment Salt", "Treatment Salt",
     "Treatment Salt Info", "Treatment Salt Name", "", "", "", "Description", "Ions", kPlainColumns,
     kSaltRows, BlankCell::Zero},
    {CatalogueKind::Sugar, "frmPrimingSugar", TableOf(CatalogueKind::Sugar), "Sugar", "priming sugar",
     "Priming Sugar Details", "Sugar Name", "", "", "", "Description", "Sugar Ranges", kPlainColumns,
     kSugarRows, BlankCell::LeftOut},
}};

}  // namespace

const EditorForm& FormOf(CatalogueKind catalogue) {
    return kForms[static_cast<std::size_t>(catalogue)];
}

std::span<const EditorForm> EditorForms() {
    return kForms;
}

}  // namespace tw
