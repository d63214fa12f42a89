#include <cmath>
#include <optional>
#include <sqlite3.h>
#include <utility>
#include <vector>

#include "store/Database.h"
#include "store/SqliteHandle.h"
#include "values/Hash.h"
#include "values/NumberText.h"
#include "values/Text.h"
#include "values/Utf8.h"

namespace tw {
namespace {

std::string_view ColumnText(sqlite3_stmt* statement, int column) {
    // The text must be requested before its length, since the request may change its encoding.
    const unsigned char* const text = sqlite3_column_text(statement, column);
    if (text == nullptr) return {};
    return {reinterpret_cast<const char*>(text),
            static_cast<std::size_t>(sqlite3_column_bytes(statement, column))};
}

bool IsNumeric(int storage) {
    return storage == SQLITE_INTEGER || storage == SQLITE_FLOAT;
}

struct TypeName {
    std::string_view name;
    FieldType type;
};

// The first six types are those of the program's own tables (see Schema) and are found fastest.
constexpr TypeName kTypeNames[] = {
    {"TEXT", FieldType::Text},       {"DOUBLE", FieldType::Double},     {"INTEGER", FieldType::Long},
    {"BOOLEAN", FieldType::Boolean}, {"DATETIME", FieldType::Date},     {"LONGTEXT", FieldType::Memo},
    {"VARCHAR", FieldType::Text},    {"CHAR", FieldType::Text},         {"MEMO", FieldType::Memo},
    {"BYTE", FieldType::Byte},       {"SMALLINT", FieldType::Integer},  {"LONG", FieldType::Long},
    {"INT", FieldType::Long},        {"CURRENCY", FieldType::Currency}, {"SINGLE", FieldType::Single},
    {"REAL", FieldType::Double},     {"NUMERIC", FieldType::Numeric},   {"FLOAT", FieldType::Float},
};

// An expression has no declared type; it has the type of its value.
FieldType ValueType(int storage) {
    if (storage == SQLITE_INTEGER) return FieldType::Long;
    if (storage == SQLITE_FLOAT) return FieldType::Double;
    return FieldType::Text;
}

// Returns a hash that is equal for names that differ only in case; 0 for all names with non-ASCII characters.
std::uint32_t NameHash(std::string_view name) {
    constexpr unsigned char kLowerCase = 0x20;
    std::uint32_t hash = kEmptyHash32;
    for (const char c : name) {
        if (!IsAscii(c)) return 0;
        hash = Hash32(static_cast<unsigned char>(c) | kLowerCase, hash);
    }
    return hash;
}

[[noreturn]] void Raise(const std::string& description, int number) {
    throw Error(kRecordsetSource, description, number);
}

}  // namespace

FieldType FieldTypeOf(std::string_view declared) {
    for (const TypeName& known : kTypeNames)
        if (declared == known.name) return known.type;
    const std::string_view word = Trim(declared.substr(0, declared.find('(')));
    for (const TypeName& known : kTypeNames)
        if (CompareNoCase(word, known.name) == 0) return known.type;
    return FieldType::Binary;
}

const std::string& Field::Name() const {
    return *name_;
}

FieldType Field::Type() const {
    return type_;
}

bool Field::IsNull() const {
    return sqlite3_column_type(statement_, column_) == SQLITE_NULL;
}

Value Field::Value() const {
    const int storage = sqlite3_column_type(statement_, column_);
    if (storage == SQLITE_NULL) return Null{};
    if (!IsNumeric(storage)) return std::string(ColumnText(statement_, column_));
    if (type_ == FieldType::Boolean) return Boolean();
    return Number();
}

std::string Field::Text() const {
    const int storage = sqlite3_column_type(statement_, column_);
    if (!IsNumeric(storage)) return std::string(ColumnText(statement_, column_));
    if (type_ == FieldType::Boolean) return Boolean() ? "TRUE" : "FALSE";
    // A 64-bit integer may have more digits than a double can hold.
    if (storage == SQLITE_INTEGER) return std::to_string(sqlite3_column_int64(statement_, column_));
    return NumberText(Number());
}

double Field::Number() const {
    const int storage = sqlite3_column_type(statement_, column_);
    if (IsNumeric(storage)) return Finite(sqlite3_column_double(statement_, column_));
    return ReadNumber(ColumnText(statement_, column_)).value_or(0);
}

std::int64_t Field::Integer() const {
    if (sqlite3_column_type(statement_, column_) == SQLITE_INTEGER)
        return sqlite3_column_int64(statement_, column_);
    constexpr double kLimit = 9223372036854775808.0;  // 2^63
    const double number = std::trunc(Number());
    if (number < -kLimit || number >= kLimit) RaiseOverflow();
    return static_cast<std::int64_t>(number);
}

std::optional<std::int64_t> Field::WholeNumber() const {
    const int storage = sqlite3_column_type(statement_, column_);
    if (storage == SQLITE_INTEGER) return sqlite3_column_int64(statement_, column_);
    constexpr double kExact = 9007199254740992.0;  // 2^53, beyond which a double skips whole numbers
    const double number = storage == SQLITE_FLOAT ? sqlite3_column_double(statement_, column_) : 0.5;
    if (!(std::abs(number) <= kExact) || number != std::trunc(number)) return std::nullopt;
    return static_cast<std::int64_t>(number);
}

bool Field::Boolean() const {
    return Number() != 0;
}

// The compiled statement, and the names of its fields once one has been requested.
struct Recordset::Impl {
    explicit Impl(CompiledStatement prepared) : statement(prepared.Get()), compiled_(std::move(prepared)) {}

    void Step();
    const std::vector<std::string>& Names();
    // Returns the index of the field of that name, or -1.
    int Find(std::string_view name);
    // REQUIRES: the column exists.
    FieldType TypeOf(int column);

  private:
    bool Same(int column, std::string_view name, std::uint32_t hash) const;
    std::string_view TableOf(int column) const;
    // Prefixes the table to every field name that occurs more than once.
    void QualifySharedNames();

  public:
    sqlite3_stmt* statement;
    bool atEnd = true;

  private:
    CompiledStatement compiled_;
    std::vector<std::string> names_;
    std::vector<std::uint32_t> hashes_;
    std::vector<std::optional<FieldType>>
        declared_;  // by column; nullopt for an expression; empty until needed
};

void Recordset::Impl::Step() {
    const int result = sqlite3_step(statement);
    atEnd = result != SQLITE_ROW;
    if (result != SQLITE_ROW && result != SQLITE_DONE)
        RaiseStoreError(sqlite3_db_handle(statement), kRecordsetSource);
}

std::string_view Recordset::Impl::TableOf(int column) const {
    const char* const table = sqlite3_column_table_name(statement, column);
    return table == nullptr ? std::string_view() : std::string_view(table);
}

bool Recordset::Impl::Same(int column, std::string_view name, std::uint32_t hash) const {
    const auto index = static_cast<std::size_t>(column);
    return hashes_[index] == hash && CompareNoCase(names_[index], name) == 0;
}

const std::vector<std::string>& Recordset::Impl::Names() {
    if (!names_.empty()) return names_;
    const int count = sqlite3_column_count(statement);
    names_.reserve(static_cast<std::size_t>(count));
    hashes_.reserve(static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i) {
        const char* const name = sqlite3_column_name(statement, i);
        names_.emplace_back(name == nullptr ? "" : name);
        hashes_.push_back(NameHash(names_.back()));
    }
    QualifySharedNames();
    return names_;
}

void Recordset::Impl::QualifySharedNames() {
    const int count = static_cast<int>(names_.size());
    std::vector<int> shared;
    for (int i = 1; i < count; ++i) {
        const auto index = static_cast<std::size_t>(i);
        for (int k = 0; k < i; ++k) {
            if (!Same(k, names_[index], hashes_[index])) continue;
            shared.push_back(k);
            shared.push_back(i);
            break;
        }
    }
    for (const int column : shared) {
        const auto index = static_cast<std::size_t>(column);
        const std::string_view table = TableOf(column);
        // With three fields of one name, the first is in the list twice.
        if (table.empty() || hashes_[index] != NameHash(sqlite3_column_name(statement, column))) continue;
        names_[index] = std::string(table) + "." + names_[index];
        hashes_[index] = NameHash(names_[index]);
    }
}

int Recordset::Impl::Find(std::string_view name) {
    const int count = static_cast<int>(Names().size());
    const std::uint32_t hash = NameHash(name);
    for (int i = 0; i < count; ++i)
        if (Same(i, name, hash)) return i;
    const std::size_t dot = name.find('.');
    if (dot == std::string_view::npos) return -1;
    const std::string_view own = name.substr(dot + 1);
    const std::uint32_t ownHash = NameHash(own);
    for (int i = 0; i < count; ++i)
        if (Same(i, own, ownHash) && CompareNoCase(TableOf(i), name.substr(0, dot)) == 0) return i;
    return -1;
}

FieldType Recordset::Impl::TypeOf(int column) {
    if (declared_.empty()) {
        for (int i = 0; i < sqlite3_column_count(statement); ++i) {
            const char* const declared = sqlite3_column_decltype(statement, i);
            declared_.push_back(declared == nullptr ? std::nullopt : std::optional(FieldTypeOf(declared)));
        }
    }
    const std::optional<FieldType> type = declared_[static_cast<std::size_t>(column)];
    return type ? *type : ValueType(sqlite3_column_type(statement, column));
}

Recordset::Recordset(std::unique_ptr<Impl> impl) : impl_(std::move(impl)) {
    impl_->Step();
}
Recordset::Recordset(Recordset&&) noexcept = default;
Recordset& Recordset::operator=(Recordset&&) noexcept = default;
Recordset::~Recordset() = default;

bool Recordset::AtEnd() const {
    return !impl_ || impl_->atEnd;
}

void Recordset::MoveNext() {
    if (AtEnd()) Raise("No current record.", SQLITE_MISUSE);
    impl_->Step();
}

void Recordset::MoveFirst() {
    if (!impl_) Raise("The recordset is closed.", SQLITE_MISUSE);
    sqlite3_reset(impl_->statement);
    impl_->Step();
}

void Recordset::Close() {
    impl_.reset();
}

int Recordset::FieldCount() const {
    return impl_ ? sqlite3_column_count(impl_->statement) : 0;
}

Field Recordset::Fields(int index) const {
    if (AtEnd()) Raise("No current record.", SQLITE_MISUSE);
    const std::string& name = FieldName(index);
    return {impl_->statement, index, &name, impl_->TypeOf(index)};
}

Field Recordset::Fields(std::string_view name) const {
    if (AtEnd()) Raise("No current record.", SQLITE_MISUSE);
    const int index = impl_->Find(name);
    if (index < 0) Raise("Item not found in this collection: '" + std::string(name) + "'.", SQLITE_RANGE);
    return Fields(index);
}

const std::string& Recordset::FieldName(int index) const {
    if (index < 0 || index >= FieldCount()) Raise("Item not found in this collection.", SQLITE_RANGE);
    return impl_->Names()[static_cast<std::size_t>(index)];
}

FieldType Recordset::TypeOf(int index) const {
    if (index < 0 || index >= FieldCount()) Raise("Item not found in this collection.", SQLITE_RANGE);
    return impl_->TypeOf(index);
}

Recordset Database::OpenRecordset(std::string_view sql, const SqlValues& values) {
    return Recordset(std::make_unique<Recordset::Impl>(Prepare(sql, values, true)));
}

}  // namespace tw
