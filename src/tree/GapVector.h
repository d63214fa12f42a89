// A list in one block of memory whose free places stand together where it was last changed, so that changes
// side by side move nothing but what lies between them: ten thousand removals from front to back cost one
// pass.
#pragma once

#include <algorithm>
#include <compare>
#include <cstddef>
#include <iterator>
#include <span>
#include <utility>
#include <vector>

namespace tw {

// REQUIRES: an Item is made from nothing and moved without an error.
template <typename Item>
class GapVector {
  public:
    // Reads only. Valid until the list changes.
    class Iterator {
      public:
        using iterator_category = std::random_access_iterator_tag;
        using value_type = Item;
        using difference_type = std::ptrdiff_t;
        using pointer = const Item*;
        using reference = const Item&;

        Iterator() = default;
        Iterator(const GapVector& list, std::size_t index) : list_(&list), index_(index) {}
        reference operator*() const { return (*list_)[index_]; }
        pointer operator->() const { return &(*list_)[index_]; }
        reference operator[](difference_type by) const { return *(*this + by); }
        Iterator& operator++() { return *this += 1; }
        Iterator& operator--() { return *this -= 1; }
        Iterator operator++(int) { return std::exchange(*this, *this + 1); }
        Iterator operator--(int) { return std::exchange(*this, *this - 1); }
        Iterator& operator+=(difference_type by) {
            index_ += static_cast<std::size_t>(by);
            return *this;
        }
        Iterator& operator-=(difference_type by) { return *this += -by; }
        friend Iterator operator+(Iterator at, difference_type by) { return at += by; }
        friend Iterator operator+(difference_type by, Iterator at) { return at += by; }
        friend Iterator operator-(Iterator at, difference_type by) { return at -= by; }
        friend difference_type operator-(const Iterator& a, const Iterator& b) {
            return static_cast<difference_type>(a.index_ - b.index_);
        }
        // REQUIRES: both are of one list.
        friend bool operator==(const Iterator& a, const Iterator& b) { return a.index_ == b.index_; }
        friend auto operator<=>(const Iterator& a, const Iterator& b) { return a.index_ <=> b.index_; }

      private:
        const GapVector* list_ = nullptr;
        std::size_t index_ = 0;
    };

    std::size_t Count() const { return places_.size() - Gap(); }
    bool IsEmpty() const { return Count() == 0; }
    // REQUIRES: index is below Count.
    const Item& operator[](std::size_t index) const { return places_[PlaceOf(index)]; }
    Iterator begin() const { return {*this, 0}; }
    Iterator end() const { return {*this, Count()}; }

    // Makes room for count items in all.
    void Reserve(std::size_t count) {
        if (count <= places_.size()) return;
        std::vector<Item> places(count);
        std::move(places_.begin(), At(gapBegin_), places.begin());
        std::move(At(gapEnd_), places_.end(), places.end() - (places_.end() - At(gapEnd_)));
        gapEnd_ += count - places_.size();
        places_ = std::move(places);
    }
    // Makes room for one item more, and for others to come.
    void ReserveOne() {
        if (Gap() == 0) Reserve(Count() + Count() / 2 + 3);
    }
    // Puts the item before the one at index, or at the end. REQUIRES: index is at most Count.
    const Item& Insert(std::size_t index, Item&& item) {
        ReserveOne();
        MoveGap(index);
        return places_[gapBegin_++] = std::move(item);
    }
    // REQUIRES: index is below Count.
    Item TakeOut(std::size_t index) {
        MoveGap(index);
        return std::move(places_[gapEnd_++]);
    }
    // All items side by side, to change their order. Valid until the list changes.
    std::span<Item> InOneRow() {
        MoveGap(Count());
        return std::span(places_).first(Count());
    }

  private:
    std::size_t Gap() const { return gapEnd_ - gapBegin_; }
    std::size_t PlaceOf(std::size_t index) const { return index < gapBegin_ ? index : index + Gap(); }
    auto At(std::size_t place) { return places_.begin() + static_cast<std::ptrdiff_t>(place); }
    void MoveGap(std::size_t index) {
        const std::size_t gap = Gap();
        if (index < gapBegin_)
            std::move_backward(At(index), At(gapBegin_), At(gapEnd_));
        else if (index > gapBegin_)
            std::move(At(gapEnd_), At(index + gap), At(gapBegin_));
        gapBegin_ = index;
        gapEnd_ = index + gap;
    }

    std::vector<Item> places_;
    std::size_t gapBegin_ = 0;  // the free places, from here
    std::size_t gapEnd_ = 0;    // to before here
};

}  // namespace tw
