// The file in which brewers exchange recipes (*.TWR): a database with only the recipe tables, in which styles
// are given by name.
#pragma once

#include <memory>
#include <string_view>

#include "platform/TargetFile.h"
#include "store/Database.h"

namespace tw {

// The locale text of an exchange file, for Database::CreateDatabase.
inline constexpr std::string_view kExchangeLocale = ";LANGID=0x0409;CP=1252;COUNTRY=0";

// Creates in file every table of main whose name begins with RECIPE, in any case: the same columns in the
// same order with their rules, and the same indexes. Only RECIPES.STYLE_ID is replaced by STYLE_NAME, a text
// of 50 characters that is empty by default, in the indexes as well. Raises the store's error. REQUIRES: file
// has none of these tables.
void CreateExchangeTables(Database& main, Database& file);

// The content of a recipe file that an export creates or adds to. It is edited in memory and written as a
// whole, so until then the file on the disk stays the old one.
class ExchangeCopy {
  public:
    // A new file with the tables of main. Raises the store's error.
    explicit ExchangeCopy(Database& main);
    // The content of an existing file, which no other program can change while this object lives. Raises the
    // store's error.
    explicit ExchangeCopy(std::unique_ptr<Database> old);

    Database& Contents() { return *contents_; }
    // Replaces the file, if there is one, and deletes what a crash has left beside it. Raises Error, leaving
    // the file unchanged, if that fails or if another program is writing the file. REQUIRES: no unit of work
    // is open on the contents.
    void Save(const TargetFile& target) const;

  private:
    std::unique_ptr<Database> old_;  // nullptr for a new file
    std::unique_ptr<Database> contents_;
};

}  // namespace tw
