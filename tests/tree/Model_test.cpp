// Performs thousands of random operations on a tree and on a plain model of it, and compares them.
#include <algorithm>
#include <gtest/gtest.h>
#include <map>
#include <random>

#include "TreeTest.h"
#include "values/Text.h"

namespace tw::test {
namespace {

// Stores every node by its key and its children as a list of keys. Nothing is cached between operations, and
// everything is done the slow way.
class PlainModel {
  public:
    struct Entry {
        std::string parent, name, icon;
        int rank = 0;
        std::vector<std::string> children;
    };

    bool SortsBehind(const Entry& a, const Entry& b) const {
        if (a.rank != b.rank) return a.rank > b.rank;
        if (a.icon != b.icon) return a.icon > b.icon;
        return Upper(a.name) > Upper(b.name);
    }
    void Add(const std::string& key, const Entry& entry) {
        entries[key] = entry;
        std::vector<std::string>& siblings = entries[entry.parent].children;
        auto place = siblings.begin();
        if (!sorted) place = siblings.end();
        while (place != siblings.end() && !SortsBehind(entries[*place], entry)) ++place;
        siblings.insert(place, key);
    }
    void Rename(const std::string& key, const std::string& name) {
        entries[key].name = name;
        if (sorted) Sort(entries[key].parent);
    }
    // An insertion sort, which keeps the order of equal nodes.
    void Sort(const std::string& parent) {
        std::vector<std::string>& list = entries[parent].children;
        for (std::size_t i = 1; i < list.size(); ++i)
            for (std::size_t k = i; k > 0 && SortsBehind(entries[list[k - 1]], entries[list[k]]); --k)
                std::swap(list[k - 1], list[k]);
    }
    void TakeOut(const std::string& key) { std::erase(entries[entries[key].parent].children, key); }
    void Move(const std::string& key, const std::string& to) {
        TakeOut(key);
        Entry entry = entries[key];
        entry.parent = to;
        Add(key, entry);
    }
    void Remove(const std::string& key) {
        TakeOut(key);
        Forget(key);
    }
    void Forget(const std::string& key) {
        const std::vector<std::string> children = entries[key].children;
        for (const std::string& child : children) Forget(child);
        entries.erase(key);
    }
    std::size_t SizeOf(const std::string& key) const {
        std::size_t size = 1;
        for (const std::string& child : entries.at(key).children) size += SizeOf(child);
        return size;
    }
    bool IsBelow(std::string key, const std::string& above) const {
        for (; !key.empty(); key = entries.at(key).parent)
            if (key == above) return true;
        return false;
    }
    void Write(Lines& lines, const std::string& key, std::size_t level) const {
        const Entry& entry = entries.at(key);
        lines.push_back(std::string(2 * level, ' ') + key + " " + entry.name);
        for (const std::string& child : entry.children) Write(lines, child, level + 1);
    }

    std::map<std::string, Entry> entries;
    bool sorted = true;
};

class Workout {
  public:
    explicit Workout(unsigned seed) : random_(seed) {
        tree.AddItem("root", "X:DB", "database", "database");
        model.entries["X:DB"] = {"", "root", "database", 0, {}};
    }

    void Step() {
        const unsigned choice = Below(100);
        if (choice < 40)
            Add();
        else if (choice < 65)
            Rename();
        else if (choice < 80)
            Move();
        else if (choice < 90)
            Remove();
        else if (choice < 92)
            Clear();
        else if (choice < 95)
            tree.SetSorted(model.sorted = Below(4) != 0);
        else if (choice < 97)
            Sort();
        else
            ChangeIcon();
    }
    void Check() const {
        Lines lines;
        model.Write(lines, "X:DB", 0);
        ASSERT_EQ(All(tree), lines);
        ExpectConsistent(tree);
    }

    TWTree tree;
    PlainModel model;

  private:
    // Larger subtrees are not removed, or the tree would never grow.
    static constexpr std::size_t kMostRemoved = 12;

    unsigned Below(std::size_t bound) { return static_cast<unsigned>(random_() % bound); }
    // Returns one of few names, so that many are equal.
    std::string Name() {
        static const char* const kNames[] = {"",  "a", "A",      "b",      "B", "_",     "ab",
                                             "z", "Z", "\u00e4", "\u00c4", "m", "stout", "Stout"};
        return kNames[Below(std::size(kNames))];
    }
    std::string AnyKey() {
        auto entry = model.entries.begin();
        std::advance(entry, Below(model.entries.size()));
        return entry->first;
    }
    std::string AnyFolder() {
        std::string key = AnyKey();
        return model.entries[key].rank == 2 ? model.entries[key].parent : key;
    }
    void Add() {
        static const char* const kIcons[] = {"folder closed", "style closed", "document", "sysfolder closed",
                                             "mine"};
        ++made_;
        const std::string parent = AnyFolder();
        const std::string key = "R:" + std::to_string(made_) + ":" + std::to_string(made_ % 4);
        const int rank = static_cast<int>(Below(3));
        const std::string name = Name(), icon = kIcons[Below(std::size(kIcons))];
        tree.Nodes(parent)->Children().AddItem(name, key, icon, icon, rank == 2, rank == 1);
        model.Add(key, {parent, name, icon, rank, {}});
    }
    void Rename() {
        const std::string key = AnyKey(), name = Name();
        if (key == "X:DB") return;
        tree.Nodes(key)->SetName(name);
        model.Rename(key, name);
    }
    void Move() {
        const std::string key = AnyKey(), to = AnyFolder();
        if (key == "X:DB" || model.IsBelow(to, key)) return;
        TWNode* const node = tree.Nodes(key);
        tree.Nodes(to)->Children().AddNode(node->Parent()->Children().RemoveNode(*node, true));
        model.Move(key, to);
    }
    void Remove() {
        const std::string key = AnyKey();
        if (key == "X:DB" || model.SizeOf(key) > kMostRemoved) return;
        TWNode* const node = tree.Nodes(key);
        node->Parent()->Children().RemoveNode(*node);
        model.Remove(key);
    }
    void Clear() {
        const std::string key = AnyKey();
        if (model.SizeOf(key) > kMostRemoved) return;
        tree.Nodes(key)->Clear();
        for (const std::string& child : std::vector(model.entries[key].children)) model.Remove(child);
    }
    void Sort() {
        const std::string key = AnyFolder();
        tree.Nodes(key)->Children().Sort();
        model.Sort(key);
    }
    void ChangeIcon() {
        const std::string key = AnyKey();
        tree.Nodes(key)->SetIconClosed("other");
        model.entries[key].icon = "other";
    }

    std::mt19937 random_;
    int made_ = 0;
};

TEST(TreeModel, AgreesThroughThousandsOfRandomOperations) {
    for (unsigned seed = 1; seed <= 8; ++seed) {
        Workout workout(seed);
        for (int step = 0; step < 3000; ++step) {
            workout.Step();
            if (step % 20 == 0) workout.Check();
            ASSERT_FALSE(testing::Test::HasFailure()) << "seed " << seed << " step " << step;
        }
        workout.Check();
        EXPECT_GT(workout.tree.Count(), 100U);
    }
}

}  // namespace
}  // namespace tw::test
