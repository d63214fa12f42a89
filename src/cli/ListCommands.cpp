// Commands on the lists of the windows: the contents of a folder, the catalogues and the picker.
#include <algorithm>
#include <array>
#include <string>
#include <vector>

#include "cli/Command.h"
#include "cli/ScriptFormat.h"
#include "store/CatalogueNames.h"
#include "tree/CataloguePickerModel.h"
#include "tree/lvFiller.h"
#include "values/Text.h"

namespace tw {
namespace {

// Reads "COLUMN; COLUMN..." and returns the indexes of these columns, or of all columns if titles is blank.
// Raises ScriptError for an unknown column.
std::vector<int> TakeColumns(const ListTable& list, std::string_view titles) {
    std::vector<int> columns;
    if (IsBlank(titles)) {
        for (int col = 0; col < static_cast<int>(list.Columns().size()); ++col) columns.push_back(col);
        return columns;
    }
    for (bool more = true; more;) {
        const std::size_t end = titles.find(';');
        const std::string_view title = Trim(titles.substr(0, end));
        const int column = list.ColumnOf(title);
        if (column < 0) throw ScriptError("the list has no column '" + std::string(title) + "'");
        columns.push_back(column);
        more = end != std::string_view::npos;
        if (more) titles.remove_prefix(end + 1);
    }
    return columns;
}

void PrintList(Session& session, const ListTable& list, std::string_view titles) {
    const std::vector<int> columns = TakeColumns(list, titles);
    std::string line;
    const auto print = [&](auto textOf) {
        line.clear();
        for (std::size_t i = 0; i < columns.size(); ++i)
            line.append(i > 0 ? "\t" : "").append(EscapeText(textOf(static_cast<std::size_t>(columns[i]))));
        session.Out().Line(line);
    };
    print([&](std::size_t col) { return std::string_view(list.Columns()[col].title); });
    for (const ListRow& row : list.Rows())
        print([&](std::size_t col) { return std::string_view(row.cells[col]); });
}

lvFiller FillerOf(Session& session) {
    Shell& program = session.Program();
    return {*program.DB(), program.Opened()->data.tree};
}

void List(Session& session, Arguments& arguments) {
    const std::string key = arguments.Word("KEY");
    const std::string columns = arguments.Text();
    if (!session.Program().Opened()->data.tree.NodeExists(key))
        throw ScriptError("there is no entry '" + key + "' in the tree");
    ListTable list;
    lvFiller::SetUpExplorerColumns(list);
    FillerOf(session).FillByKey(list, key, true);
    PrintList(session, list, columns);
}

void PrintCatalogue(Session& session, Arguments& arguments) {
    const CatalogueKind catalogue = TakeCatalogue(arguments);
    const std::string columns = arguments.Text();
    ListTable list;
    FillerOf(session).Fill(list, catalogue);
    PrintList(session, list, columns);
}

void PickFrom(Session& session, Arguments& arguments) {
    const auto type = static_cast<CatalogueKind>(arguments.Integer("TYPE", 0, kCatalogueKinds - 1));
    const std::string name = arguments.Word("NAME");
    const std::string button = arguments.Word("BUTTON");
    arguments.End();
    RecipeDocument& document = session.Document();
    session.Dialogs().AnswerNextWith([&](DialogModel& dialog) {
        for (const DialogControl& control : dialog.Controls())
            if (control.name == "lvItems") session.Out().Text(control.text);
        if (button == "Close") return dialog.CloseBox();
        const bool isOff = !dialog.IsEnabled(button);
        if (!dialog.Press(button)) throw ScriptError("the picker has no button '" + button + "'");
        if (isOff) session.Out().Line("off");
    });
    session.Program().Opened()->services.PickFromCatalogue(document, type, name);
}

// The words that name a list: "yeast", or "hop" and "variety".
struct ListWords {
    CatalogueKind kind{};
    std::string_view first, second;
};

constexpr ListWords SplitWords(CatalogueKind kind) {
    const std::string_view word = WordOf(kind);
    const std::size_t blank = word.find(' ');
    if (blank == std::string_view::npos) return {kind, word, {}};
    return {kind, word.substr(0, blank), word.substr(blank + 1)};
}

constexpr auto kListWords = [] {
    std::array<ListWords, kCatalogueKinds> all;
    std::ranges::transform(kSetupOrder, all.begin(), SplitWords);
    return all;
}();

std::string PluralOf(std::string_view word) {
    if (word.ends_with('y')) return std::string(word.substr(0, word.size() - 1)) + "ies";
    return std::string(word) + "s";
}

// True if a text is the word or its plural, in any case.
bool Means(std::string_view text, std::string_view word) {
    return !word.empty() && (SameName(text, word) || SameName(text, PluralOf(word)));
}

// Takes the name of a list as TakeCatalogue does, or as one says it: "hops", "hop varieties", "Salt".
CatalogueKind TakeList(Arguments& arguments) {
    const std::string list = arguments.Word("LIST");
    for (const ListWords& words : kListWords) {
        if (Means(list, words.second)) return words.kind;
        if (!Means(list, words.first)) continue;
        if (!words.second.empty() && !arguments.TakeWord(words.second))
            arguments.TakeWord(PluralOf(words.second));
        return words.kind;
    }
    throw ScriptError("there is no list '" + list + "'");
}

void Match(Session& session, Arguments& arguments) {
    const CatalogueKind list = TakeList(arguments);
    const NameList names = CatalogueNames(*session.Program().DB()).NamesOf(list);
    for (const FoundName& found : names.Find(arguments.Text())) session.Out().Text(names.Name(found.index));
}

constexpr Command kCommands[] = {
    {"list", "KEY [COLUMN; COLUMN...]", "what stands directly below an entry of the tree, as a list", List},
    {"catalogue", "WORD [COLUMN; COLUMN...]", "a catalogue as a list, by its word", PrintCatalogue},
    {"pickfrom", "TYPE \"NAME\" BUTTON", "the picker of a catalogue (0 to 7): its choice goes to the recipe",
     PickFrom},
    {"match", "LIST TEXT", "the names of a catalogue that fit a typed text, best first", Match},
};

}  // namespace

CatalogueKind TakeCatalogue(Arguments& arguments) {
    const std::string first = arguments.Word("WORD");
    for (const ListWords& words : kListWords)
        if (words.first == first && (words.second.empty() || arguments.TakeWord(words.second)))
            return words.kind;
    throw ScriptError("'" + first + "' begins the name of no catalogue");
}

std::span<const Command> CommandsOnLists() {
    return kCommands;
}

}  // namespace tw
