// Makes random edits in the editors and database setup, and compares the result with a plain map
// of what must be stored.
#include <map>
#include <random>

#include "EditorTest.h"
#include "catalogue/DatabaseSetupModel.h"
#include "values/NumberText.h"
#include "values/Text.h"

namespace tw::test {
namespace {

constexpr int kSteps = 3000;

struct PlainGrain {
    std::string name, type;  // the type, in the case in which it was first typed
    std::string low, high;   // "NULL" for none
};

class RandomGrains : public EditorTest {
  protected:
    template <class Range>
    const auto& OneOf(const Range& from) {
        return from[std::uniform_int_distribution<std::size_t>(0, std::size(from) - 1)(random)];
    }
    // Returns the name in another case, sometimes with outer blanks.
    std::string Varied(const std::string& text) {
        const std::string_view ways[] = {text, text};
        std::string varied(OneOf(ways));
        if (random() % 2 == 0) varied = Upper(varied);
        return random() % 3 == 0 ? " " + varied + " " : varied;
    }
    bool TypeInUse(const std::string& type) const {
        for (const auto& [key, grain] : plain)
            if (SameName(grain.type, type)) return true;
        return false;
    }
    std::string StoredType(const std::string& typed) {
        const std::string trimmed(Trim(typed));
        const auto known = types.find(Upper(trimmed));
        return trimmed.empty() ? "" : known == types.end() ? trimmed : known->second;
    }
    void DropUnusedTypes() {
        std::erase_if(types, [&](const auto& type) { return !TypeInUse(type.second); });
    }
    void Store(const std::string& opened);
    void Drop(const std::string& name);
    void ExpectSame();

    std::mt19937 random{20240309};
    std::map<std::string, PlainGrain> plain;   // by name in upper case
    std::map<std::string, std::string> types;  // by name in upper case
};

constexpr const char* kNames[] = {"Pale", "O'at", "Black", "\"Odd\"", "[x]", "Größe"};
constexpr const char* kTypes[] = {"", "Base", "Roa'sted", "Caramel"};
constexpr const char* kFigures[] = {"", "36", "37.25", "0", " ", "bad", "-3"};

void RandomGrains::Store(const std::string& opened) {
    const bool exists = plain.contains(Upper(opened));
    const auto editor = Open(CatalogueKind::Grain, exists ? opened : "");
    PlainGrain grain = exists ? plain[Upper(opened)] : PlainGrain{"", "", "NULL", "NULL"};
    const std::string name = Varied(OneOf(kNames)), type = Varied(OneOf(kTypes));
    editor->SetControl("Text1", name);
    editor->SetControl("Combo1", type);
    for (auto [control, end] :
         {std::pair("gridInfo(0,0)", &grain.low), std::pair("gridInfo(0,1)", &grain.high)}) {
        const std::string figure = OneOf(kFigures);
        editor->SetControl(control, figure);
        if (IsBlank(figure))
            *end = "NULL";
        else if (const std::optional<double> number = ReadNumber(figure); number && *number >= 0)
            *end = NumberText(*number);
    }
    editor->Press("cmdOK");
    const std::string trimmed(Trim(name)), key = Upper(trimmed);
    if (plain.contains(key) && key != (exists ? Upper(opened) : "")) return;  // the name of another grain
    if (grain.low == "NULL") grain.low = grain.high;
    if (grain.high == "NULL") grain.high = grain.low;
    grain.name = trimmed;
    grain.type = StoredType(type);
    if (!grain.type.empty()) types.emplace(Upper(grain.type), grain.type);
    if (exists) plain.erase(Upper(opened));
    plain[key] = grain;
    DropUnusedTypes();
}

void RandomGrains::Drop(const std::string& name) {
    DatabaseSetupModel setup(context);
    setup.Choose(CatalogueKind::Grain);
    ASSERT_EQ(setup.ShowName(name), plain.contains(Upper(name)));
    if (!plain.contains(Upper(name))) return;
    outside.messages.answers.push_back(Answer::Yes);
    setup.Press("cmdDelete");
    plain.erase(Upper(name));
    DropUnusedTypes();
    // The list without the deleted row equals one that is read again.
    DatabaseSetupModel fresh(context);
    fresh.Choose(CatalogueKind::Grain);
    ASSERT_EQ(setup.Items().Count(), fresh.Items().Count());
    for (int row = 0; row < fresh.Items().Count(); ++row)
        ASSERT_EQ(setup.Items().Row(row).cells, fresh.Items().Row(row).cells);
}

void RandomGrains::ExpectSame() {
    Lines expected, expectedTypes;
    for (const auto& [key, grain] : plain)
        expected.push_back(grain.name + "|" + (grain.type.empty() ? "NULL" : grain.type) + "|" + grain.low +
                           "|" + grain.high);
    for (const auto& [key, type] : types) expectedTypes.push_back(type);
    ASSERT_THAT(
        Select("SELECT NAME, (SELECT T.NAME FROM GRAIN_TYPES AS T WHERE T.ID = GRAIN_TYPE), PPG_LO, PPG_HI "
               "FROM GRAINS"),
        testing::UnorderedElementsAreArray(expected));
    ASSERT_THAT(Select("SELECT NAME FROM GRAIN_TYPES"), testing::UnorderedElementsAreArray(expectedTypes));
}

TEST_F(RandomGrains, StoreWhatAPlainMapWouldHold) {
    for (int step = 0; step < kSteps && !HasFatalFailure(); ++step) {
        const std::string name = OneOf(kNames);
        if (random() % 4 == 0)
            Drop(name);
        else
            Store(name);
        if (!HasFatalFailure()) ExpectSame();
    }
}

}  // namespace
}  // namespace tw::test
