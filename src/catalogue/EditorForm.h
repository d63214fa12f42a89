// What tells the editors of the catalogue from each other: their tables, controls, ranges and words.
#pragma once

#include <span>
#include <string_view>

#include "tree/lvFiller.h"

namespace tw {

// How the text of a cell is read.
enum class CellCheck {
    Gravity,      // specific gravity or degrees Plato
    Number,       // a plain number
    Share,        // percent, without an upper limit
    Bitterness,   // IBU
    Carbonation,  // volumes of CO2
    Percent,      // 0 to 100 percent, with the messages of ValidatePercent
    Temperature,  // stored in degrees Fahrenheit, with the messages of ValidateTemperature
};

// One row of gridInfo.
struct RangeRow {
    std::string_view caption;
    CellCheck check;
    // Of "Please enter a valid {word}", for the checks without messages of their own.
    std::string_view word;
    // The columns of the table; a row of one value has no high one.
    std::string_view low, high;
    // Whether the row is a colour, and in what.
    enum class Color { None, Lovibond, Srm } color = Color::None;
    // Of what is stored, where the caption does not say it.
    std::string_view unit = {};
};

// What a column of the table is written from.
enum class ColumnSource {
    Kind,         // GRAIN: whether it is a grain, not an extract
    Name,         // Text1
    GrainType,    // the row of GRAIN_TYPES that Combo1 names
    Text2,        //
    Description,  // txtDesc
    TypeNumber,   // the number of Combo1's word
    Combo2,       //
};

struct FormColumn {
    std::string_view column;
    ColumnSource source;
};

// What a blank cell is stored as.
enum class BlankCell {
    LeftOut,  // NULL; a range with one end filled has it at both
    Null,
    Zero,
};

struct EditorForm {
    CatalogueKind catalogue;
    std::string_view formName;
    std::string_view table;
    // "{kind} name cannot be blank."; "A {duplicate} named '...' already exists."
    std::string_view kind, duplicate;
    std::string_view title;
    // Captions of the controls, without their colons; empty where the form has no such control.
    std::string_view name, text2, combo1, combo2, description, ranges;
    // In the order of an INSERT, but for the ranges, which come last.
    std::span<const FormColumn> columns;
    std::span<const RangeRow> rows;
    BlankCell blank;
};

const EditorForm& FormOf(CatalogueKind catalogue);
// One for each catalogue; two catalogues may share a form.
std::span<const EditorForm> EditorForms();

}  // namespace tw
