#include "PlainObjects.h"

#include <algorithm>

#include "values/Text.h"

namespace tw::test {
namespace {

using Id = PlainObjects::Id;

// Returns the parts of a key, such as "F", "12", "3" of "F:12:3".
Lines Fields(const std::string& key) {
    Lines fields = {""};
    for (const char c : key) {
        if (c == ':')
            fields.emplace_back();
        else
            fields.back().push_back(c);
    }
    return fields;
}

Id IdOf(const std::string& key) {
    const Lines fields = Fields(key);
    if (fields.size() < 2 || fields[1].empty()) return -1;
    for (const char c : fields[1])
        if (c < '0' || c > '9') return -1;
    return std::stoll(fields[1]);
}

char KindOf(const std::string& key) {
    return key.empty() ? ' ' : key[0];
}

bool IsIn(const std::string& key, const Lines& keys) {
    return std::ranges::find(keys, key) != keys.end();
}

bool IsTheBrewers(const std::string& key) {
    if (IsIn(key, {"F:0", "F:-1", "G:0", "G:-1"}) || key.substr(0, 4) == "S:0:") return false;
    return std::string("FGRS").find(KindOf(key)) != std::string::npos;
}

bool SameText(const std::optional<std::string>& stored, const std::string& name) {
    return stored && Upper(*stored) == Upper(name);
}

std::string WordOf(char kind) {
    return kind == 'F' ? "recipe folder" : kind == 'G' ? "style folder" : kind == 'R' ? "recipe" : "style";
}

std::string KeyOf(char kind, Id id) {
    return std::string(1, kind) + ":" + std::to_string(id);
}

}  // namespace

bool PlainObjects::Say(const std::string& title, const std::string& text) {
    boxes.emplace_back("[" + title + "] " + text);
    return false;
}

bool PlainObjects::SayMissing(const std::string& title, const std::string& what) {
    return Say(title, "DB_IO\r\nThere is no such " + what + ". (5)");
}

bool PlainObjects::FolderShows(char kind, std::optional<Id> id) const {
    for (std::size_t steps = 0; id && steps <= folders.size(); ++steps) {
        if (*id == 0) return true;
        const auto found = folders.find(*id);
        if (found == folders.end() || found->second.style != (kind == 'G')) return false;
        id = found->second.parent;
    }
    return false;
}

std::string PlainObjects::ParentOf(const std::string& key) const {
    if (IsIn(key, {"F:-1", "F:0", "X:STYLE"})) return "X:DB";
    if (IsIn(key, {"G:-1", "G:0"})) return "X:STYLE";
    if (key == "S:0:0") return "G:-1";
    if (key == "S:0:1") return "G:0";
    const char kind = KindOf(key);
    const Id id = IdOf(key);
    if ((kind == 'F' || kind == 'G') && id > 0 && key == KeyOf(kind, id) && FolderShows(kind, id))
        return KeyOf(kind, *folders.at(id).parent);
    const Lines fields = Fields(key);
    if (fields.size() != 3 || fields[2].size() != 1) return "";
    const char copy = fields[2][0];
    if (kind == 'S' && styles.contains(id)) {
        if (copy == '0') return "G:-1";
        const auto folder = styles.at(id).folder;
        return copy == '1' && FolderShows('G', folder) ? KeyOf('G', *folder) : "";
    }
    if (kind != 'R' || !recipes.contains(id)) return "";
    const Item& recipe = recipes.at(id);
    if (copy == '0') return "F:-1";
    if (copy == '3') return FolderShows('F', recipe.folder) ? KeyOf('F', *recipe.folder) : "";
    if ((copy != '1' && copy != '2') || !recipe.style) return "";
    const std::string style = KeyOf('S', *recipe.style) + (copy == '1' ? ":0" : ":1");
    return Shows(style) ? style : "";
}

std::string PlainObjects::ShownName(char kind, Id id) const {
    if (const auto found = typed.find({kind, id}); found != typed.end()) return found->second;
    if (kind == 'R') return recipes.at(id).name.value_or("");
    if (kind == 'S') return styles.at(id).name.value_or("");
    return folders.at(id).name.value_or("");
}

bool PlainObjects::FolderTaken(char kind, Id parent, const std::string& name) const {
    return std::ranges::any_of(folders, [&](const auto& entry) {
        const Folder& folder = entry.second;
        return folder.style == (kind == 'G') && folder.parent == parent &&
               SameText(folder.name, std::string(Trim(name)));
    });
}

void PlainObjects::Touch(char kind, const std::string& folderKey) {
    const auto found = folders.find(IdOf(folderKey));
    if (found != folders.end() && found->second.style == (kind == 'G')) found->second.touched = true;
}

bool PlainObjects::Move(const std::string& source, const std::string& dest) {
    bool below = source == dest;
    if (Shows(source) && Shows(dest))
        for (std::string at = dest; !at.empty(); at = ParentOf(at)) below = below || at == source;
    if (below)
        return Say("Could not move folder", "The destination folder is a sub-folder of the source folder");
    const char from = KindOf(source);
    const char to = KindOf(dest);
    const bool fits = (from == 'F' && to == 'F') || (from == 'G' && to == 'G') ||
                      (from == 'R' && to == 'F') || (from == 'R' && to == 'S') || (from == 'S' && to == 'G');
    if (!fits || !IsTheBrewers(source) || IsIn(dest, {"F:-1", "G:-1"}))
        return Say("Could not move object", "Invalid Destination");
    if (from == to) return MoveFolder(from, IdOf(source), IdOf(dest));
    if (to == 'S') return SetStyle(IdOf(source), IdOf(dest));
    return MoveItem(from, IdOf(source), IdOf(dest));
}

bool PlainObjects::MoveFolder(char kind, Id id, Id dest) {
    if (id <= 0 || !FolderShows(kind, id) || !FolderShows(kind, dest))
        return SayMissing("Error moving " + WordOf(kind), WordOf(kind));
    Folder& folder = folders.at(id);
    if (folder.parent == dest) return false;
    if (FolderTaken(kind, dest, ShownName(kind, id)))
        return Say("Could not move " + WordOf(kind),
                   "The destination folder already contains a folder with that name");
    Touch(kind, KeyOf(kind, *folder.parent));
    Touch(kind, KeyOf(kind, dest));
    folder.parent = dest;
    return true;
}

bool PlainObjects::MoveItem(char kind, Id id, Id folder) {
    const std::string title = kind == 'R' ? "Error moving recipe to folder" : "Error moving style";
    const char folderKind = kind == 'R' ? 'F' : 'G';
    auto& items = kind == 'R' ? recipes : styles;
    if (!items.contains(id)) return SayMissing(title, WordOf(kind));
    if (!FolderShows(folderKind, folder)) return SayMissing(title, WordOf(folderKind));
    const std::string above = ParentOf(KeyOf(kind, id) + (kind == 'R' ? ":3" : ":1"));
    if (above == KeyOf(folderKind, folder)) return false;
    Touch(folderKind, above);
    Touch(folderKind, KeyOf(folderKind, folder));
    items.at(id).folder = folder;
    if (kind == 'R') notices.emplace_back("moved " + ShownName('R', id) + " " + std::to_string(folder));
    return true;
}

bool PlainObjects::SetStyle(Id recipe, Id style) {
    const std::string title = "Error moving recipe to style";
    if (!recipes.contains(recipe)) return SayMissing(title, "recipe");
    if (style != 0 && !styles.contains(style)) return SayMissing(title, "style");
    recipes.at(recipe).style = style;
    notices.emplace_back("new style " + ShownName('R', recipe) + " " + std::to_string(style));
    return true;
}

bool PlainObjects::Rename(const std::string& key, const std::string& name) {
    if (!IsTheBrewers(key)) return Say("Could not rename object", "Invalid Object");
    const char kind = KindOf(key);
    const Id id = IdOf(key);
    const std::string word = WordOf(kind);
    const bool isFolder = kind == 'F' || kind == 'G';
    auto& items = kind == 'R' ? recipes : styles;
    if (isFolder ? id <= 0 || !FolderShows(kind, id) : !items.contains(id))
        return SayMissing("Error renaming " + word, word);
    const std::string trimmed(Trim(name));
    if (trimmed.empty()) return Say("Could not rename " + word, "You must type a name");
    const std::string old = ShownName(kind, id);
    const bool taken = isFolder ? FolderTaken(kind, *folders.at(id).parent, name)
                                : std::ranges::any_of(items, [&](const auto& item) {
                                      return SameText(item.second.name, trimmed);
                                  });
    if (taken && Upper(trimmed) != Upper(Trim(old)))
        return Say("Could not rename " + word,
                   std::string("A ") + (isFolder ? "folder" : word) + " with that name already exists");
    const std::string suffix = kind == 'R' ? ":3" : kind == 'S' ? ":1" : "";
    Touch(kind == 'R' || kind == 'F' ? 'F' : 'G', ParentOf(KeyOf(kind, id) + suffix));
    (isFolder ? folders.at(id).name : items.at(id).name) = trimmed;
    typed[{kind, id}] = name;
    if (kind == 'R') notices.emplace_back("renamed " + old + " to " + name);
    if (kind == 'S') notices.emplace_back("style renamed " + std::to_string(id) + " to " + name);
    return true;
}

void PlainObjects::Remove(const std::string& key) {
    const char kind = KindOf(key);
    const Id id = IdOf(key);
    if (!IsTheBrewers(key)) return;
    if (kind == 'F' || kind == 'G') {
        if (id <= 0 || !FolderShows(kind, id)) return;
        RemoveFolder(kind, id);
    } else {
        if (!(kind == 'R' ? recipes : styles).contains(id)) return;
        RemoveItem(kind, id);
    }
    notices.emplace_back("deletion ended");
}

void PlainObjects::RemoveFolder(char kind, Id id) {
    const auto all = folders;
    for (const auto& [child, folder] : all)
        if (folder.style == (kind == 'G') && folder.parent == id) RemoveFolder(kind, child);
    const char itemKind = kind == 'F' ? 'R' : 'S';
    const auto items = kind == 'F' ? recipes : styles;
    for (const auto& [item, row] : items)
        if (row.folder == id) RemoveItem(itemKind, item);
    folders.erase(id);
    typed.erase({kind, id});
    if (kind == 'F') notices.emplace_back("folder deleted " + std::to_string(id));
}

void PlainObjects::RemoveItem(char kind, Id id) {
    if (kind == 'R') {
        notices.emplace_back("deleted " + ShownName('R', id));
        recipes.erase(id);
    } else {
        for (const auto& [recipe, row] : std::map(recipes))
            if (row.style == id) SetStyle(recipe, 0);
        notices.emplace_back("style deleted " + std::to_string(id));
        styles.erase(id);
    }
    typed.erase({kind, id});
}

bool PlainObjects::ChildShows(const std::string& parentKey, const std::string& name) const {
    const auto shows = [&](char kind, Id id, const std::string& suffix) {
        return ParentOf(KeyOf(kind, id) + suffix) == parentKey && ShownName(kind, id) == name;
    };
    for (const auto& [id, folder] : folders)
        if (shows(folder.style ? 'G' : 'F', id, "")) return true;
    for (const auto& [id, style] : styles)
        if (shows('S', id, ":1")) return true;
    for (const auto& [id, recipe] : recipes)
        if (shows('R', id, ":3")) return true;
    return parentKey == "G:0" && name == "(None)";
}

std::string PlainObjects::Create(const std::string& parentKey, const std::string& name) {
    const char kind = KindOf(parentKey);
    if ((kind != 'F' && kind != 'G') || IsIn(parentKey, {"F:-1", "G:-1"})) {
        Say("Could not create new folder", "Invalid Parent Object");
        return "";
    }
    const Id parent = IdOf(parentKey);
    if (!FolderShows(kind, parent)) {
        SayMissing("Error creating new " + WordOf(kind), WordOf(kind));
        return "";
    }
    std::string text(Trim(name));
    if (text.empty()) {
        text = "New Folder";
        for (int i = 2; ChildShows(KeyOf(kind, parent), text); ++i)
            text = "New Folder (" + std::to_string(i) + ")";
    }
    if (FolderTaken(kind, parent, text)) {
        Say("Could not create new " + WordOf(kind), "A folder with that name already exists");
        return "";
    }
    folders[++lastFolder] = {parent, text, kind == 'G', true};
    return KeyOf(kind, lastFolder);
}

}  // namespace tw::test
