// The rules of folders, styles and recipes on plain maps: only the rows are stored, and the place of an entry
// is determined anew each time.
#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <utility>

#include "TreeTest.h"

namespace tw::test {

class PlainObjects {
  public:
    using Id = std::int64_t;
    struct Folder {
        std::optional<Id> parent;
        std::optional<std::string> name;
        bool style = false;
        bool touched = false;
    };
    // A style has no style.
    struct Item {
        std::optional<std::string> name;
        std::optional<Id> folder, style;
    };
    std::map<Id, Folder> folders;
    std::map<Id, Item> styles, recipes;
    Id lastFolder = 0;  // the highest id ever given
    // The names as typed, by kind and id, if the tree shows them with outer blanks.
    std::map<std::pair<char, Id>, std::string> typed;
    // The messages, as "[title] text", and the notices.
    Lines boxes, notices;

    bool Move(const std::string& source, const std::string& dest);
    bool Rename(const std::string& key, const std::string& name);
    void Remove(const std::string& key);
    std::string Create(const std::string& parentKey, const std::string& name);

    // Returns the key of the parent; empty if the tree does not show the entry.
    std::string ParentOf(const std::string& key) const;
    bool Shows(const std::string& key) const { return key == "X:DB" || !ParentOf(key).empty(); }

  private:
    bool Say(const std::string& title, const std::string& text);
    bool SayMissing(const std::string& title, const std::string& what);
    bool FolderShows(char kind, std::optional<Id> id) const;
    bool FolderTaken(char kind, Id parent, const std::string& name) const;
    std::string ShownName(char kind, Id id) const;
    void Touch(char kind, const std::string& folderKey);
    bool MoveFolder(char kind, Id id, Id dest);
    bool MoveItem(char kind, Id id, Id folder);
    bool SetStyle(Id recipe, Id style);
    void RemoveFolder(char kind, Id id);
    void RemoveItem(char kind, Id id);
    bool ChildShows(const std::string& parentKey, const std::string& name) const;
};

}  // namespace tw::test
