// Objects that are dragged within and between lists and trees, by their keys.
#pragma once

#include <QMimeData>
#include <QStringList>
#include <functional>
#include <string>
#include <vector>

class QAbstractItemView;

namespace tw {

// What a list or a tree does with objects that are dragged over its entries. Empty functions take none.
struct KeyDrag {
    using Keys = std::vector<std::string>;
    std::function<bool(const Keys& keys, const std::string& target)> canDrop;
    std::function<void(const Keys& keys, const std::string& target)> drop;

    explicit operator bool() const { return static_cast<bool>(canDrop); }
};

// The one type of data that they take.
QStringList KeyMimeTypes();
// REQUIRES: the caller owns the result.
QMimeData* MimeOfKeys(const KeyDrag::Keys& keys);
// Empty for data of another type.
KeyDrag::Keys KeysOf(const QMimeData* data);

// Makes a view take what is dragged: onto its entries, never between them.
void AcceptKeys(QAbstractItemView& view);
// Lets the brewer drag those objects from the view; returns when they have been let go.
void StartKeyDrag(QAbstractItemView& view, const KeyDrag::Keys& keys);
// Drops them as soon as the drag is over, since boxes may come up.
void DropLater(QObject& context, const KeyDrag& drag, const QMimeData* data, std::string target);

}  // namespace tw
