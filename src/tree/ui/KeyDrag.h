// Drag and drop of objects within and between lists and trees, by their keys.
#pragma once

#include <QMimeData>
#include <QStringList>
#include <functional>
#include <string>
#include <vector>

class QAbstractItemView;

namespace tw {

// What a list or a tree does when objects are dragged over its entries. With empty functions it accepts none.
struct KeyDrag {
    using Keys = std::vector<std::string>;
    std::function<bool(const Keys& keys, const std::string& target)> canDrop;
    std::function<void(const Keys& keys, const std::string& target)> drop;

    explicit operator bool() const { return static_cast<bool>(canDrop); }
};

// Returns the only MIME type that lists and trees accept.
QStringList KeyMimeTypes();
// Returns a new object, which the caller owns.
QMimeData* MimeOfKeys(const KeyDrag::Keys& keys);
// Returns the keys in data; empty if it is nullptr or of another type.
KeyDrag::Keys KeysOf(const QMimeData* data);

// Enables dragging from a view and dropping onto its entries, but not between them.
void AcceptKeys(QAbstractItemView& view);
// Lets the brewer drag those objects from the view; returns when they have been dropped or the drag is over.
void StartKeyDrag(QAbstractItemView& view, const KeyDrag::Keys& keys);
// Calls drag.drop for the objects in data after the drag has ended, because it may show message boxes. Not
// called if context has been destroyed by then.
void DropLater(QObject& context, const KeyDrag& drag, const QMimeData* data, std::string target);

}  // namespace tw
