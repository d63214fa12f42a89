// A vector whose unused space is a gap at the position of the last change. Changes near that position move
// only the items in between: removing ten thousand items from front to back costs one pass.
#pragma once

#include <algorithm>
#include <compare>
#include <cstddef>
#include <iterator>
#include <span>
#include <utility>
#include <vector>

namespace tw {

// REQUIRES: an Item can be default-constructed and moved without exceptions.
template <typename Item>
class GapVector {
  public:
    // A read-only iterator, valid until the list changes.
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
        // REQUIRES: both are of the same list.
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

    // Reserves space for count items in total.
    void Reserve(std::size_t count) {
        if (count <= places_.size()) return;
        std::vector<Item> places(count);
        std::move(places_.begin(), At(gapBegin_), places.begin());
        std::move(At(gapEnd_), places_.end(), places.end() - (places_.end() - At(gapEnd_)));
        gapEnd_ += count - places_.size();
        places_ = std::move(places);
    }
    // Reserves space for at least one more item, with growth in steps.
    void ReserveOne() {
        if (Gap() == 0) Reserve(Count() + Count() / 2 + 3);
    }
    // Inserts the item before the one at index, or at the end. REQUIRES: index is at most Count.
    const Item& Insert(std::size_t index, Item&& item) {
        ReserveOne();
        MoveGap(index);
        return places_[gapBegin_++] = std::move(item);
    }
    // Removes the item and returns it. REQUIRES: index is below Count.
    Item TakeOut(std::size_t index) {
        MoveGap(index);
        return std::move(places_[gapEnd_++]);
    }
    // Returns all items in contiguous memory, to change their order. Valid until the list changes.
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
    std::size_t gapBegin_ = 0;  // the gap begins here
    std::size_t gapEnd_ = 0;    // and ends before here
};

}  // namespace tw
