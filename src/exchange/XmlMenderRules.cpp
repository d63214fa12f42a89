// Where a tag belongs in a damaged file.
#include <algorithm>

#include "exchange/AsciiCase.h"
#include "exchange/HtmlWords.h"
#include "exchange/XmlMender.h"

namespace tw {
// An unknown element that the end of the file may have cut off counts as closed if it holds no text.
bool XmlMender::IsClosedBehind(const XmlToken& tag, const Element& element) {
    if (isBalanced_) return true;
    if (EqualAscii(element.name, tag.name)) return false;
    const XmlNext next = lookahead_.NextOf(element.name, tag.end);
    if (next != XmlNext::None || element.known != nullptr) return next == XmlNext::Closes;
    return !element.hasText && !endsWhole_;
}

// True if the opening tag seems to have a closing one, which may be misspelt.
bool XmlMender::IsClosedItself(const XmlToken& tag, const KnownTag* known) {
    if (tag.selfClosing || isBalanced_) return true;
    if (lookahead_.NextOf(tag.name, tag.end) == XmlNext::Closes) return true;
    if (known != nullptr) return false;
    const XmlToken& next = lookahead_.NextTag(tokens_, tag.end);
    return next.kind == XmlTokenKind::Close && Resembles(next.name, tag.name);
}

// A field holds no elements of BeerXML. Only where both it and the tag are closed in due course, the file
// really has one in the other.
bool XmlMender::IsTextInLeaf(const XmlToken& tag, const KnownTag* known) {
    if (known == nullptr && IsHtmlTag(tag.name)) return true;
    const Element& leaf = open_.back();
    const bool isLeafClosed = IsClosedBehind(tag, leaf);
    const bool isClosed = IsClosedItself(tag, known);
    const bool hasSmallLetter = HasSmallLetter(tag.name);
    if (isLeafClosed) {
        const bool isWord = known != nullptr ? hasSmallLetter && !leaf.isLower : hasSmallLetter;
        return isWord || !isClosed;
    }
    if (known == nullptr) {
        const Indent indent = IndentOf(tag.begin);
        return !isClosed && (!indent || indent != leaf.indent);
    }
    const bool isHeld = std::ranges::any_of(
        open_, [&](const Element& each) { return each.known != nullptr && MayHold(*each.known, *known); });
    return !isClosed && !isHeld && !MayBeRoot(*known);
}

// "<NAME>Cascade<NAME>", "<NAME>Cascade<NAME/>".
bool XmlMender::ClosesWithoutSlash(const XmlToken& tag, const KnownTag* known) {
    if (isBalanced_ || known == nullptr || known != open_.back().known || !open_.back().hasText) return false;
    const XmlToken& next = lookahead_.NextTag(tokens_, tag.end);
    const bool isClosedItself = next.kind == XmlTokenKind::Close && EqualAscii(next.name, tag.name);
    return !isClosedItself && IsXmlBlank(text_.substr(tag.end, next.begin - tag.end));
}

XmlMender::Indent XmlMender::IndentOf(std::size_t offset) const {
    constexpr std::size_t kMost = 256;
    std::size_t begin = offset;
    while (begin > 0 && offset - begin < kMost && (text_[begin - 1] == ' ' || text_[begin - 1] == '\t'))
        --begin;
    const bool beginsLine = begin == 0 || text_[begin - 1] == '\n' || text_[begin - 1] == '\r';
    return beginsLine ? Indent(text_.substr(begin, offset - begin)) : std::nullopt;
}

// Returns the innermost open element that has the indentation of the tag, if what stands in it has another.
// A file that may be cut off says nothing about an element of which no other tag follows.
XmlMender::Place XmlMender::BesideOf(const XmlToken& tag) {
    const Indent indent = IndentOf(tag.begin);
    if (!indent) return std::nullopt;
    for (std::size_t i = open_.size(); i-- > 0;) {
        const Element& each = open_[i];
        if (each.indent != indent || !each.inner || each.inner == indent) continue;
        const bool maybeCut = !endsWhole_ && lookahead_.NextOf(each.name, tag.end) == XmlNext::None;
        return maybeCut ? Place() : i;
    }
    return std::nullopt;
}

// True if an element around that of the index may hold the tag and has none yet.
bool XmlMender::IsWantedFurtherOut(std::size_t index, const KnownTag& known) const {
    return std::any_of(
        open_.begin(), open_.begin() + static_cast<std::ptrdiff_t>(index), [&](const Element& each) {
            return each.known != nullptr && MayHold(*each.known, known) && !each.has.test(known.number);
        });
}

// True if the tag is certainly meant to stand in that open element, if the element is still open.
bool XmlMender::Suits(std::size_t index, const KnownTag* known, bool isBeside) const {
    const Element& element = open_[index];
    if (element.Is(TagKind::Leaf)) return false;
    if (element.known == nullptr) return index == 0;
    if (known == nullptr) return element.Is(TagKind::Record) && !isBeside;
    if (!MayHold(*element.known, *known)) return false;
    const bool isDoubtful = element.Is(TagKind::Record) && (isBeside || element.has.test(known->number));
    return !isDoubtful || !IsWantedFurtherOut(index, *known);
}

// True if the tag may be a root behind the one that is open: a set, or one more record of that kind.
bool XmlMender::MayFollowAsRoot(const KnownTag& known) const {
    return known.kind == TagKind::Set || (known.kind == TagKind::Record && &known == open_.front().known);
}

// Returns the open element in which the tag belongs. Those within it were not closed: an element is left
// before its end only if no closing tag of its name comes before the next opening one.
XmlMender::Place XmlMender::HolderOf(const XmlToken& tag, const KnownTag* known) {
    const std::size_t last = open_.size() - 1;
    if (isBalanced_) return last;
    const Place beside = BesideOf(tag);
    const Indent indent = IndentOf(tag.begin);
    for (std::size_t i = open_.size(); i-- > 0;) {
        const bool isBeside = beside && i >= *beside && open_[i].inner != indent;
        if (Suits(i, known, isBeside) || IsClosedBehind(tag, open_[i])) return i;
    }
    if (known != nullptr && MayFollowAsRoot(*known)) return std::nullopt;
    if (!open_[last].Is(TagKind::Leaf)) return last;
    return last == 0 ? Place() : last - 1;
}

XmlMender::Place XmlMender::IndexOf(std::string_view name) const {
    for (std::size_t i = open_.size(); i-- > 0;)
        if (EqualAscii(open_[i].name, name)) return i;
    return std::nullopt;
}

// True if the next tag is right where that element is the innermost one.
bool XmlMender::Fits(const XmlToken& next, Place place) const {
    const bool opens = next.kind == XmlTokenKind::Open;
    const KnownTag* known = opens ? FindTag(next.name) : nullptr;
    if (!place) return next.kind == XmlTokenKind::End || (known != nullptr && MayFollowAsRoot(*known));
    const Element& element = open_[*place];
    if (next.kind == XmlTokenKind::Close) return EqualAscii(next.name, element.name);
    if (!opens || element.Is(TagKind::Leaf)) return false;
    if (element.known == nullptr) return true;
    return known != nullptr ? MayHold(*element.known, *known) : element.Is(TagKind::Record);
}

// Returns the element that a closing tag ends, which need not be the innermost one, nor have that name.
// Nothing if it ends none. open is the element of that name, if one is open.
XmlMender::Place XmlMender::EndedBy(const XmlToken& tag, Place open) {
    const std::size_t last = open_.size() - 1;
    const auto around = [](std::size_t index) { return index == 0 ? Place() : index - 1; };
    const auto resembles = [&](std::size_t index) {
        return tag.name.empty() || Resembles(tag.name, open_[index].name);
    };
    const XmlToken& next = lookahead_.NextTag(tokens_, tag.end);
    if (open && Fits(next, around(*open))) return open;
    const bool resemblesLast = resembles(last);
    if (resemblesLast && Fits(next, around(last))) return last;
    if (Fits(next, last)) return std::nullopt;
    if (open) return open;
    if (resemblesLast) return last;
    for (std::size_t i = last; i-- > 0;)
        if (resembles(i)) return i;
    if (open_[last].Is(TagKind::Leaf) && Fits(next, around(last))) return last;
    return std::nullopt;
}

// "<NMAE>Cascade</NAME>": the opening tag was the misspelt one.
void XmlMender::RenameIfMeant(const XmlToken& tag) {
    constexpr std::size_t kLongest = 65'536;
    Element& element = open_.back();
    const KnownTag* known = FindTag(tag.name);
    if (element.known != nullptr || known == nullptr || known->kind != TagKind::Leaf) return;
    if (open_.size() < 2 || element.children > 0 || out_.size() - element.begin > kLongest) return;
    Element& around = open_[open_.size() - 2];
    if (around.known == nullptr || !MayHold(*around.known, *known)) return;
    out_.replace(element.begin + 1, element.name.size(), known->name);
    element.name = known->name;
    around.has.set(known->number);
}

void XmlMender::TakeClose(const XmlToken& tag) {
    const auto stray = [&] {
        log_.Repaired(FindingCode::StrayClose, tag.begin, [&] {
            return "The tag \"/" + std::string(tag.name) + "\" closes nothing; it was left out.";
        });
    };
    if (open_.empty()) return stray();
    const KnownTag* known = FindTag(tag.name);
    const Place open = IndexOf(tag.name);
    const Element& last = open_.back();
    const bool isInLeaf = last.Is(TagKind::Leaf);
    const bool isHtml = isInLeaf && !open && known == nullptr && IsHtmlTag(tag.name);
    if (isHtml && !Resembles(tag.name, last.name)) return TakeTagAsText(tag);
    const bool isRight = open == open_.size() - 1;
    const Place ended = isRight ? open : EndedBy(tag, open);
    if (!ended) {
        const bool isWord = HasSmallLetter(tag.name) && (known == nullptr || !last.isLower);
        return isInLeaf && (isHtml || isWord) ? TakeTagAsText(tag) : stray();
    }
    CloseUnclosed(open_.size() - 1 - *ended);
    const bool isMisspelt = ended != open;
    if (isMisspelt || !tag.closed)
        log_.Repaired(FindingCode::MisspeltClose, tag.begin, [&] {
            const std::string meant(open_.back().name);
            return isMisspelt ? "The tag \"/" + std::string(tag.name) + "\" was read as \"/" + meant + "\"."
                              : "The tag \"/" + meant + "\" lacked its \">\".";
        });
    if (isMisspelt)
        RenameIfMeant(tag);
    else
        NoteCase(tag.name, known, log_.LineAt(tag.begin));
    WriteClose();
}

}  // namespace tw
