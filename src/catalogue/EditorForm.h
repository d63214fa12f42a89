// The differences between the editors of the catalogue: their tables, controls, ranges and words.
#pragma once

#include <span>
#include <string_view>

#include "tree/lvFiller.h"

namespace tw {

// How the text of a cell is read, and the unit of the stored number.
enum class CellCheck {
    Gravity,      // specific gravity; degrees Plato are converted
    Number,       // a plain number
    Share,        // percent without an upper limit
    Bitterness,   // IBU
    Carbonation,  // volumes of CO2
    Percent,      // 0 to 100 percent, with the messages of ValidatePercent
    Temperature,  // degrees Fahrenheit, with the messages of ValidateTemperature
};

// One row of gridInfo.
struct RangeRow {
    std::string_view caption;
    CellCheck check;
    // The word in "Please enter a valid {word}", for the checks without messages of their own.
    std::string_view word;
    // The columns of the table; high is empty if the row has a single value.
    std::string_view low, high;
    // The colour scale of the number, if it is a colour.
    enum class Color { None, Lovibond, Srm } color = Color::None;
    // The unit of the stored number, if the caption does not name it.
    std::string_view unit = {};
};

// Where the value of a column comes from.
enum class ColumnSource {
    Kind,         // for GRAIN: true for a grain, false for an extract
    Name,         // Text1
    GrainType,    // the ID in GRAIN_TYPES of the type in Combo1
    Text2,        // the text of Text2
    Description,  // txtDesc
    TypeNumber,   // the number of the word in Combo1
    Combo2,       // the text of Combo2
};

struct FormColumn {
    std::string_view column;
    ColumnSource source;
};

// How a blank cell is stored.
enum class BlankCell {
    LeftOut,  // as NULL; a range with one blank end gets the other value at both ends
    Null,
    Zero,
};

struct EditorForm {
    CatalogueKind catalogue;
    std::string_view formName;
    std::string_view table;
    // The words in "{kind} name cannot be blank." and "A {duplicate} named '...' already exists."
    std::string_view kind, duplicate;
    std::string_view title;
    // Captions of the controls, without colons; empty if the form does not have the control.
    std::string_view name, text2, combo1, combo2, description, ranges;
    // The columns in the order of an INSERT; those of the ranges follow last.
    std::span<const FormColumn> columns;
    std::span<const RangeRow> rows;
    BlankCell blank;
};

const EditorForm& FormOf(CatalogueKind catalogue);
// All forms, one per catalogue, in the order of CatalogueKind. Two catalogues may share a form name.
std::span<const EditorForm> EditorForms();

}  // namespace tw
