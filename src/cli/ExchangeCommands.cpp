// Commands on recipe files.
#include <cstdint>
#include <filesystem>
#include <limits>
#include <optional>
#include <string>
#include <vector>

#include "cli/Command.h"
#include "doctor/CarriedFields.h"
#include "store/CarriedData.h"
#include "store/RecipeRows.h"

namespace tw {
namespace {

std::vector<std::string> TakeNames(Arguments& arguments) {
    std::vector<std::string> names;
    while (!arguments.AtEnd()) names.push_back(arguments.Word("NAME"));
    return names;
}

void Export(Session& session, Arguments& arguments) {
    const bool isNew = arguments.TakeWord("new");
    const std::string file = arguments.Word("FILE");
    const std::vector<std::string> names = TakeNames(arguments);
    session.Program().Opened()->files.ExportRecipes(file, !isNew, names);
}

void Import(Session& session, Arguments& arguments) {
    const int folderId = arguments.Integer("FOLDERID", 0, std::numeric_limits<int>::max());
    const std::string file = arguments.Word("FILE");
    std::optional<std::vector<std::string>> names;
    if (!arguments.AtEnd()) names = TakeNames(arguments);
    Shell& program = session.Program();
    std::error_code failure;
    // Every import by an unquoted path ignores a missing file silently, so this one does too.
    if (std::filesystem::exists(file, failure)) program.Opened()->files.ImportRecipes(file, folderId, names);
}

std::string OrDash(const std::string& text) {
    return text.empty() ? "-" : text;
}

void Print(Session& session, const Findings& findings) {
    for (const Finding& finding : findings.All())
        session.Out().Line(std::string(WordOf(finding.severity)) + "\t" + std::string(WordOf(finding.code)) +
                           "\t" + EscapeText(finding.recipe) + "\t" + EscapeText(finding.place) + "\t" +
                           EscapeText(finding.text));
}

void ExportAs(Session& session, Arguments& arguments) {
    const std::string word = arguments.Word("beerxml|beerjson");
    const std::string file = arguments.Word("FILE");
    const std::vector<std::string> names = TakeNames(arguments);
    if (word != "beerxml" && word != "beerjson") throw ScriptError("no format '" + word + "'");
    const ExchangeFormat format = word == "beerxml" ? ExchangeFormat::BeerXml : ExchangeFormat::BeerJson;
    try {
        const auto findings = session.Program().Opened()->doctor.Export(format, file, names);
        if (findings) Print(session, *findings);
    } catch (const Error& error) {
        session.Messages().ShowMessage("Error", error.Description());
    }
}

void Doctor(Session& session, Arguments& arguments) {
    const std::string file = arguments.Word("FILE");
    arguments.End();
    Diagnosis diagnosis;
    try {
        diagnosis = session.Program().Opened()->doctor.Examine(file);
    } catch (const Error& error) {
        return session.Messages().ShowMessage("Error", error.Description());
    }
    Print(session, diagnosis.findings);
    for (const ExaminedFigures& figures : diagnosis.figures) {
        std::string line = "figures\t" + EscapeText(figures.recipe);
        for (const ExaminedFigures::Pair& pair : figures.pairs)
            line.append("\t")
                .append(pair.word)
                .append("\t")
                .append(OrDash(pair.stated))
                .append("\t")
                .append(OrDash(pair.calculated));
        session.Out().Line(line);
    }
}

void Remedy(Session& session, Arguments& arguments) {
    const std::string word = arguments.Word("WORD");
    arguments.End();
    if (!session.Program().Opened()->doctor.Remedy(word)) throw ScriptError("no remedy '" + word + "'");
}

void FileSql(Session& session, Arguments& arguments) {
    const std::string file = arguments.Word("FILE");
    const std::string text = arguments.Text();
    RunSql(session, *Database::OpenDatabase(file, false), text);
}

void Carried(Session& session, Arguments& arguments) {
    const std::string name = arguments.LastName("NAME");
    Database& database = *session.Program().Opened()->data.database;
    const std::optional<std::int64_t> id = RecipeId(database, name);
    if (!id) return session.Messages().ShowMessage("Error", "Recipe '" + name + "' no longer exists!");
    for (const CarriedFragment& fragment : CarriedData(database).Of(*id)) {
        session.Out().Line(EscapeText(fragment.format) + "\t" + EscapeText(fragment.source) + "\t" +
                           EscapeText(fragment.imported));
        for (const CarriedField& field : ReadCarriedFields({&fragment, 1}))
            session.Out().Line(std::string(static_cast<std::size_t>(field.level) * 2, ' ') +
                               EscapeText(field.Line()));
    }
}

constexpr Command kCommands[] = {
    {"export", "[new] FILE NAME...", "copies recipes into a recipe file", Export},
    {"import", "FOLDERID FILE [NAME...]", "copies recipes of a recipe file into a folder", Import},
    {"carried", "NAME", "what a recipe carries from another program, as a tree", Carried},
    {"exportas", "beerxml|beerjson FILE NAME...", "writes recipes for other brewing programs", ExportAs},
    {"doctor", "FILE", "examines a file of another brewing program", Doctor},
    {"remedy", "WORD", "chooses a remedy for the next import of such a file", Remedy},
    {"filesql", "FILE TEXT", "runs a statement on a recipe file", FileSql},
};

}  // namespace

std::span<const Command> CommandsOfExchange() {
    return kCommands;
}

}  // namespace tw
