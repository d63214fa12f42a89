// tunwright-make-help FOLDER TARGET: builds the help, which is installed next to the program, from its
// sources. FOLDER contains contents.tsv, contexts.tsv, frame.html and the folder pages/ with the pages.
// Writes help.mdb, index_template.dat and OnlineHelp/ into TARGET, replacing what is there. Exit status: 0
// success, 1 failure (the reasons are on standard error), 2 wrong arguments.
#include <charconv>
#include <filesystem>
#include <iostream>
#include <map>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include "help/SystemTextFiles.h"
#include "platform/Error.h"
#include "store/Database.h"
#include "values/TabbedSheet.h"
#include "values/Text.h"

namespace {

namespace fs = std::filesystem;

using Row = std::vector<std::string>;

// There are no files of a brewer to protect.
tw::SystemTextFiles TextFiles() {
    static const tw::OwnFiles kNone;
    return tw::SystemTextFiles(kNone);
}

class Problems {
  public:
    void Add(const std::string& text) {
        std::cerr << text << '\n';
        found_ = true;
    }
    bool Found() const { return found_; }

  private:
    bool found_ = false;
};

// Returns the lines of a table below its header, split at tabs.
std::vector<Row> ReadTable(const fs::path& file, std::size_t columns, Problems& problems) {
    std::istringstream text(TextFiles().Read(file.string()));
    std::vector<Row> rows;
    for (const tw::SheetLine& line : tw::ReadTabbedSheet(text).lines) {
        Row row = line.Cells();
        if (row.size() != columns)
            problems.Add(file.string() + ":" + std::to_string(line.number) + ": there are " +
                         std::to_string(columns) + " columns");
        row.resize(columns);
        rows.push_back(std::move(row));
    }
    return rows;
}

bool IsWhole(const std::string& text) {
    int number = 0;
    const auto [end, failure] = std::from_chars(text.data(), text.data() + text.size(), number);
    return failure == std::errc() && end == text.data() + text.size();
}

std::string EscapeHtml(const std::string& text) {
    std::string escaped = tw::ReplaceAll(text, "&", "&amp;");
    return tw::ReplaceAll(escaped, "<", "&lt;");
}

// Appends the topics as nested lists, in the order of their numbers.
void AppendList(const std::map<int, std::vector<Row>>& children, int parent, std::string& html) {
    const auto found = children.find(parent);
    if (found == children.end()) return;
    html.append("<ul>\n");
    for (const Row& topic : found->second) {
        html.append("<li><a href=\"").append(topic[2]).append("\" target=\"page\">");
        html.append(EscapeHtml(topic[1])).append("</a>");
        AppendList(children, std::stoi(topic[0]), html);
        html.append("</li>\n");
    }
    html.append("</ul>\n");
}

struct Sources {
    std::vector<Row> topics;    // id, name, page, id of the parent or -1
    std::vector<Row> contexts;  // form, context, page
};

void CheckPages(const std::vector<Row>& rows, const fs::path& pages, Problems& problems) {
    for (const Row& row : rows)
        if (!fs::is_regular_file(pages / row[2])) problems.Add("there is no page '" + row[2] + "'");
}

// Checks that each topic comes after its parent, which rules out cycles.
void CheckTopics(const std::vector<Row>& topics, Problems& problems) {
    std::set<std::string> seen = {"-1"};
    for (const Row& topic : topics) {
        if (!IsWhole(topic[0]) || !seen.contains(topic[3]) || !seen.insert(topic[0]).second)
            problems.Add("the topic '" + topic[1] +
                         "' has no number of its own, or stands before its parent");
    }
}

void MakeDatabase(const Sources& sources, const std::string& file) {
    const auto database = tw::Database::CreateDatabase(file, "");
    tw::UnitOfWork unit(*database);
    database->ExecuteNative(
        "CREATE TABLE CONTEXT_HELP (FORM_NAME TEXT(50) COLLATE TWTEXT, FORM_CONTEXT TEXT(50) COLLATE TWTEXT,"
        " HELP_URL TEXT(255), PRIMARY KEY (FORM_NAME, FORM_CONTEXT)) WITHOUT ROWID;"
        "CREATE TABLE HELP_CONTENTS (TOPIC_ID LONG PRIMARY KEY, TOPIC_NAME TEXT(255),"
        " TOPIC_HELP_URL TEXT(255), PARENT_TOPIC_ID LONG);");
    for (const Row& row : sources.contexts)
        database->Execute("INSERT INTO CONTEXT_HELP VALUES (?, ?, ?)", {row[0], row[1], row[2]});
    for (const Row& row : sources.topics)
        database->Execute("INSERT INTO HELP_CONTENTS VALUES (?, ?, ?, ?)",
                          {std::stoi(row[0]), row[1], row[2], std::stoi(row[3])});
    unit.Commit();
}

int MakeHelp(const fs::path& folder, const fs::path& target) {
    Problems problems;
    const fs::path pages = folder / "pages";
    const Sources sources = {ReadTable(folder / "contents.tsv", 4, problems),
                             ReadTable(folder / "contexts.tsv", 3, problems)};
    CheckTopics(sources.topics, problems);
    CheckPages(sources.topics, pages, problems);
    CheckPages(sources.contexts, pages, problems);
    if (problems.Found()) return 1;

    std::map<int, std::vector<Row>> children;
    for (const Row& topic : sources.topics) children[std::stoi(topic[3])].push_back(topic);
    std::string list;
    AppendList(children, -1, list);
    tw::SystemTextFiles files = TextFiles();
    const std::string frame = tw::ReplaceAll(files.Read((folder / "frame.html").string()), "$CONTENTS", list);

    fs::remove_all(target / "OnlineHelp");
    fs::create_directories(target);
    fs::copy(pages, target / "OnlineHelp", fs::copy_options::recursive);
    files.Write((target / "index_template.dat").string(), frame);
    files.Write((target / "OnlineHelp" / "index.html").string(),
                tw::ReplaceAll(frame, "$START_PAGE", "home.html"));
    const fs::path part = target / "help.mdb.part";
    fs::remove(part);
    MakeDatabase(sources, part.string());
    fs::rename(part, target / "help.mdb");
    return 0;
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 3) {
        std::cerr << "usage: tunwright-make-help FOLDER TARGET\n";
        return 2;
    }
    try {
        return MakeHelp(argv[1], argv[2]);
    } catch (const tw::Error& error) {
        std::cerr << error.WithNumber() << '\n';
    } catch (const std::exception& error) {
        std::cerr << error.what() << '\n';
    }
    return 1;
}
