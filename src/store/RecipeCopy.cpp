#include "store/RecipeCopy.h"

#include <algorithm>
#include <limits>
#include <sqlite3.h>

#include "platform/Error.h"
#include "store/RecipeFollowers.h"
#include "store/RowNames.h"
#include "values/Text.h"

namespace tw {
namespace {

// RECIPE_SUGARS is deliberately not copied, so that an exchange works as it always has.
const std::string kLineTables[] = {"RECIPE_ADJUNCTS", "RECIPE_GRAINS", "RECIPE_HOPS", "RECIPE_LOG",
                                   "RECIPE_SALTS"};

bool Is(const std::string& field, std::string_view name) {
    return field.size() == name.size() && CompareNoCase(field, name) == 0;
}

// Returns the name of a column for use in a statement. A file from elsewhere may have any name.
std::string ColumnName(const std::string& name) {
    const auto isWordChar = [](char c) {
        return c == '_' || (c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
    };
    const bool isWord = !name.empty() && (name[0] < '0' || name[0] > '9');
    if (isWord && std::ranges::all_of(name, isWordChar)) return name;
    if (name.empty() || name.find(']') != std::string::npos)
        throw Error("Recordset", "The field '" + name + "' cannot be copied.", SQLITE_ERROR);
    return "[" + name + "]";
}

// Returns the number in a field. Text stays text, since any column of a SQLite file may contain it.
SqlValue NumberOf(const Field& field) {
    if (std::holds_alternative<std::string>(field.Value())) return field.Text();
    // A 64-bit integer may have more digits than a double can hold.
    if (const auto whole = field.WholeNumber()) return *whole;
    return field.Number();
}

// Returns the field's value for a statement; nullopt for a type that cannot be written.
std::optional<SqlValue> CopyOf(const Field& field) {
    if (field.IsNull()) return Null();
    switch (field.Type()) {
        case FieldType::Binary:
            return std::nullopt;
        case FieldType::Boolean:
            return field.Boolean();
        case FieldType::Text:
        case FieldType::Memo:
        case FieldType::Date:
            return field.Text();
        default:
            return NumberOf(field);
    }
}

bool IsNumeric(FieldType type) {
    switch (type) {
        case FieldType::Boolean:
        case FieldType::Date:
        case FieldType::Text:
        case FieldType::Memo:
        case FieldType::Binary:
            return false;
        default:
            return true;
    }
}

// An INSERT being built. A column added without a value makes a statement that the store refuses.
class RowInsert {
  public:
    explicit RowInsert(const std::string& table) : columns_("INSERT INTO " + table + " (") {}

    void Add(std::string_view column, SqlValue value) {
        AddColumn(column);
        places_ += values_.empty() ? "?" : ", ?";
        values_.push_back(std::move(value));
    }
    void AddColumn(std::string_view name) {
        if (hasColumn_) columns_ += ", ";
        hasColumn_ = true;
        columns_ += name;
    }
    void Run(Database& database) const { database.Execute(columns_ + ") VALUES (" + places_ + ")", values_); }

  private:
    std::string columns_;
    std::string places_;
    SqlValues values_;
    bool hasColumn_ = false;
};

void AddField(RowInsert& insert, const std::string& table, const Field& field, CopyHost& host) {
    const std::string column = ColumnName(field.Name());
    if (auto value = CopyOf(field)) return insert.Add(column, std::move(*value));
    insert.AddColumn(column);
    host.DebugText("column " + field.Name() + " of table " + table + " is of type " +
                   std::to_string(static_cast<int>(field.Type())) + " (?)");
}

// Keeps the file in the state that it has at the start, and keeps its lock between the reads.
class ReadingUnit {
  public:
    explicit ReadingUnit(Database& database) : database_(database) { database_.ExecuteNative("BEGIN"); }
    ~ReadingUnit() {
        try {
            database_.ExecuteNative("COMMIT");
        } catch (const Error&) {
            // Nothing was written.
        }
    }
    ReadingUnit(const ReadingUnit&) = delete;
    ReadingUnit& operator=(const ReadingUnit&) = delete;

  private:
    Database& database_;
};

// Replaces one recipe by another, either completely or, if an exception ends it, not at all.
class Replacement {
  public:
    explicit Replacement(Database& database) : database_(database) {
        database_.ExecuteNative("SAVEPOINT replacement");
    }
    void Keep() { kept_ = true; }
    ~Replacement() {
        try {
            if (!kept_) database_.ExecuteNative("ROLLBACK TO replacement");
            database_.ExecuteNative("RELEASE replacement");
        } catch (const Error&) {
            // A disk error has undone the whole unit already.
        }
    }
    Replacement(const Replacement&) = delete;
    Replacement& operator=(const Replacement&) = delete;

  private:
    Database& database_;
    bool kept_ = false;
};

std::string NameKey(std::string_view name) {
    return Upper(Trim(name));
}

}  // namespace

void RecipeNames::Read(Database& database) {
    ids_.clear();
    for (Recordset rows = database.OpenRecordset("SELECT ID, NAME FROM RECIPES ORDER BY ID"); !rows.AtEnd();
         rows.MoveNext())
        if (!rows.Fields(0).IsNull() && !rows.Fields(1).IsNull())
            ids_.try_emplace(NameKey(rows.Fields(1).Text()), rows.Fields(0).Integer());
}

std::optional<std::int64_t> RecipeNames::Find(std::string_view name) const {
    const auto found = ids_.find(NameKey(name));
    if (found == ids_.end()) return std::nullopt;
    return found->second;
}

void RecipeNames::Put(std::string_view name, std::int64_t id) {
    ids_[NameKey(name)] = id;
}

std::string RecipeNames::FreeName(std::string_view name) const {
    constexpr std::size_t kMostDigits = 2;
    std::string_view base = Trim(name);
    int number = 2;
    const std::size_t open = base.rfind(" (");
    if (open != std::string_view::npos && base.ends_with(')')) {
        const std::string_view digits = base.substr(open + 2, base.size() - open - 3);
        if (!digits.empty() && digits.size() <= kMostDigits &&
            digits.find_first_not_of("0123456789") == std::string_view::npos) {
            number = std::stoi(std::string(digits)) + 1;
            base = base.substr(0, open);
        }
    }
    const auto numbered = [&] { return std::string(base) + " (" + std::to_string(number) + ")"; };
    while (Find(numbered())) ++number;
    return numbered();
}

int RecipeCopier::ExportRecipes(std::span<const std::string> names) {
    isImport_ = false;
    return CopyRecipes(names);
}

int RecipeCopier::ImportRecipes(std::span<const std::string> names, std::int64_t destFolderId,
                                StylesNotImported& stylesNotImported) {
    isImport_ = true;
    destFolderId_ = destFolderId;
    stylesNotImported_ = &stylesNotImported;
    stylesNotImported.clear();
    return CopyRecipes(names);
}

int RecipeCopier::CopyRecipes(std::span<const std::string> names) {
    copied_ = 0;
    UnitOfWork unit(Dest());
    std::optional<ReadingUnit> reading;
    if (isImport_) reading.emplace(file_);
    sourceNames_.Read(Source());
    destNames_.Read(Dest());
    int number = 0;
    for (const std::string& name : names) {
        if (!host_.Continue(name, number++, static_cast<int>(names.size()))) break;
        file_.MarkProgress();
        if (CopyRecipe(name) == Step::Stop) break;
    }
    unit.Commit();
    return copied_;
}

RecipeCopier::Step RecipeCopier::CopyRecipe(const std::string& name) {
    const std::optional<std::int64_t> sourceId = sourceNames_.Find(name);
    if (!sourceId) {
        const std::string title = isImport_ ? "Import File" : "Recipe Database";
        const bool goOn = host_.ContinueAfter("Recipe '" + name + "' does not exist in " + title + " !");
        return goOn ? Step::Next : Step::Stop;
    }
    // The main database holds its names trimmed; a name with blanks would never be found there again.
    const auto newName = ResolveName(std::string(isImport_ ? Trim(name) : std::string_view(name)));
    if (!newName) return Step::Stop;
    if (newName->empty()) return Step::Next;
    return CopyRows(*sourceId, destNames_.Find(*newName), *newName);
}

RecipeCopier::Step RecipeCopier::CopyRows(std::int64_t sourceId, std::optional<std::int64_t> oldId,
                                          const std::string& newName) {
    std::optional<Replacement> replacement;
    if (oldId) {
        replacement.emplace(Dest());
        if (isImport_) RecipeEnds(main_, *oldId, RecipeEnd::Overwritten);
        Dest().Execute("DELETE FROM RECIPES WHERE ID = ?", {*oldId});
        if (isImport_) RecipeEnded(main_, *oldId, RecipeEnd::Overwritten);
    }
    {
        const Recordset source = Source().OpenRecordset("SELECT * FROM RECIPES WHERE ID = ?", {sourceId});
        InsertRecipe(source, newName);
    }
    const std::optional<std::int64_t> newId = NewestInDest(newName);
    if (!newId) return host_.ContinueAfter("Unknown error inserting recipe !") ? Step::Next : Step::Stop;
    destNames_.Put(newName, *newId);
    for (const std::string& table : kLineTables) CopyLines(table, oldId, sourceId, *newId);
    if (isImport_) RecipeImported(main_, *newId);
    if (replacement) replacement->Keep();
    ++copied_;
    return Step::Next;
}

std::optional<std::string> RecipeCopier::ResolveName(std::string newName) {
    while (destNames_.Find(newName)) {
        const ConflictAnswer answer = host_.ResolveConflict(newName, destNames_.FreeName(newName));
        switch (answer.response) {
            case ConflictResponse::Overwrite:
                return newName;
            case ConflictResponse::Abort:
                return std::nullopt;
            case ConflictResponse::Skip:
                return std::string();
            case ConflictResponse::Rename:
                newName = Trim(answer.newName);
                break;
        }
    }
    return newName;
}

std::optional<std::int64_t> RecipeCopier::NewestInDest(const std::string& name) {
    std::optional<std::int64_t> id;
    for (Recordset rows = Dest().OpenRecordset("SELECT ID FROM RECIPES WHERE NAME = ?", {name});
         !rows.AtEnd(); rows.MoveNext())
        if (!rows.Fields(0).IsNull())
            id = std::max(id.value_or(std::numeric_limits<std::int64_t>::min()), rows.Fields(0).Integer());
    return id;
}

void RecipeCopier::InsertRecipe(const Recordset& source, const std::string& newName) {
    RowInsert insert("RECIPES");
    for (int i = 0; i < source.FieldCount(); ++i) {
        const Field field = source.Fields(i);
        if (Is(field.Name(), "ID")) continue;
        if (isImport_ && Is(field.Name(), "STYLE_NAME"))
            insert.Add("STYLE_ID", StyleIdOf(field.Text(), newName));
        else if (!isImport_ && Is(field.Name(), "STYLE_ID"))
            insert.Add("STYLE_NAME", NameById(main_, "STYLES", field.Integer()).value_or(""));
        else if (isImport_ && Is(field.Name(), "FOLDER_ID"))
            insert.Add(field.Name(), destFolderId_);
        else if (Is(field.Name(), "NAME"))
            insert.Add(field.Name(), newName);
        else
            AddField(insert, "RECIPES", field, host_);
    }
    insert.Run(Dest());
}

std::int64_t RecipeCopier::StyleIdOf(const std::string& style, const std::string& recipe) {
    if (style.empty()) return 0;
    const std::int64_t id = IdByName(main_, "STYLES", style);
    if (id >= 1) return id;
    const auto known = std::ranges::find(*stylesNotImported_, recipe, &StyleNotImported::recipe);
    if (known == stylesNotImported_->end())
        stylesNotImported_->push_back({recipe, style});
    else
        known->style = style;
    return 0;
}

void RecipeCopier::CopyLines(const std::string& table, std::optional<std::int64_t> oldId,
                             std::int64_t sourceId, std::int64_t newId) {
    if (oldId) Dest().Execute("DELETE FROM " + table + " WHERE RECIPE_ID = ?", {*oldId});
    for (Recordset rows = Source().OpenRecordset(
             "SELECT * FROM " + table + " WHERE RECIPE_ID = ? ORDER BY ROW_ID", {sourceId});
         !rows.AtEnd(); rows.MoveNext())
        InsertLine(table, rows, newId);
}

void RecipeCopier::InsertLine(const std::string& table, const Recordset& source, std::int64_t newId) {
    RowInsert insert(table);
    for (int i = 0; i < source.FieldCount(); ++i) {
        const Field field = source.Fields(i);
        if (Is(field.Name(), "RECIPE_ID") && IsNumeric(field.Type()))
            insert.Add(field.Name(), newId);
        else
            AddField(insert, table, field, host_);
    }
    insert.Run(Dest());
}

}  // namespace tw
