// The file in which recipes travel between brewers (*.TWR): a database of the recipe tables alone, with
// styles by their names.
#pragma once

#include <memory>
#include <string_view>

#include "platform/TargetFile.h"
#include "store/Database.h"

namespace tw {

// The locale text that the file is created with.
inline constexpr std::string_view kExchangeLocale = ";LANGID=0x0409;CP=1252;COUNTRY=0";

// Makes in file every table of main whose name begins with RECIPE, in any case: the same columns in their
// order with their rules, and the same indexes. RECIPES.STYLE_ID alone becomes STYLE_NAME, a text of 50
// characters, empty where none is given; an index over the one goes over the other. Raises the store's error.
// REQUIRES: file holds none of the tables.
void CreateExchangeTables(Database& main, Database& file);

// A recipe file that an export makes, or adds to. It is worked on in memory and written as a whole, so that
// the file of that name is the old one until then.
class ExchangeCopy {
  public:
    // A new one with the tables of main. Raises the store's error.
    explicit ExchangeCopy(Database& main);
    // What an older file holds, which no other program can change while this lives. Raises the store's error.
    explicit ExchangeCopy(std::unique_ptr<Database> old);

    Database& Contents() { return *contents_; }
    // Puts it in the place of the file, if there is one, and of what a crash has left beside that. Raises an
    // error when that fails, or when another program writes the file: it is as it was then. REQUIRES: no unit
    // of work is open on the contents.
    void Save(const TargetFile& target) const;

  private:
    std::unique_ptr<Database> old_;  // nullptr for a new one
    std::unique_ptr<Database> contents_;
};

}  // namespace tw
