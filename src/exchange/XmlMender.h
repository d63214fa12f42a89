// Puts the tags of a file into an order that is well-formed, as they were meant.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "exchange/MendLog.h"
#include "exchange/XmlLookahead.h"
#include "exchange/XmlText.h"
#include "exchange/XmlTokens.h"
#include "exchange/XmlVocabulary.h"

namespace tw {

// Goes through a text once. Decides at each tag what was meant by the tags of BeerXML, by what stands open,
// by the next tag, and, where these leave a doubt, by the next tag of the same name and by the indentation.
class XmlMender {
  public:
    // The text is valid UTF-8 without forbidden characters.
    XmlMender(std::string_view text, Findings& findings);
    // Call it once.
    std::string Mend();

  private:
    // The blanks before a tag; nothing if it does not begin its line.
    using Indent = std::optional<std::string_view>;

    struct Element {
        const KnownTag* known = nullptr;  // nullptr if the tag is none of BeerXML
        std::string_view name;            // as it is written out
        bool isLower = false;             // has small letters in the file
        bool hasText = false;             // not only blanks
        std::size_t line = 0;
        std::size_t begin = 0;     // where its opening tag begins in out_
        std::size_t children = 0;  // elements in it
        Indent indent;             // its own
        Indent inner;              // of the first element in it
        KnownTags has;             // the tags of its children

        bool Is(TagKind kind) const { return known != nullptr && known->kind == kind; }
    };
    using Place = std::optional<std::size_t>;  // an index in open_; nothing for the top of the file

    void Take(const XmlToken& token);
    void TakeText(const XmlToken& token);
    void TakeComment(const XmlToken& token);
    void TakeDoctype(const XmlToken& token);
    void TakeOpen(const XmlToken& tag);
    void TakeClose(const XmlToken& tag);
    void TakeTagAsText(const XmlToken& tag);
    void LeaveOut(const XmlToken& token);

    bool IsTextInLeaf(const XmlToken& tag, const KnownTag* known);
    bool ClosesWithoutSlash(const XmlToken& tag, const KnownTag* known);
    bool IsClosedBehind(const XmlToken& tag, const Element& element);
    bool IsClosedItself(const XmlToken& tag, const KnownTag* known);
    Place HolderOf(const XmlToken& tag, const KnownTag* known);
    bool Suits(std::size_t index, const KnownTag* known, bool isBeside) const;
    Place BesideOf(const XmlToken& tag);
    bool IsWantedFurtherOut(std::size_t index, const KnownTag& known) const;
    bool MayFollowAsRoot(const KnownTag& known) const;
    Indent IndentOf(std::size_t offset) const;

    Place IndexOf(std::string_view name) const;
    bool Fits(const XmlToken& next, Place place) const;
    Place EndedBy(const XmlToken& tag, Place open);
    void RenameIfMeant(const XmlToken& tag);

    void Push(const XmlToken& tag, const KnownTag* known);
    void CheckLimits(const KnownTag* known);
    void NoteRoot(const KnownTag* known, std::size_t line);
    void NoteCase(std::string_view name, const KnownTag* known, std::size_t line);
    void WriteClose();
    void CloseUnclosed(std::size_t count);
    void EndCutOff();
    void WrapRoots();

    std::string_view text_;
    std::string out_;
    MendLog log_;
    XmlText writer_;
    XmlTokens tokens_;
    XmlLookahead lookahead_;
    std::vector<Element> open_;
    bool isBalanced_ = false;  // nothing is wrong with the tags
    bool endsWhole_ = false;   // the file ends with the closing tag of its first element
    bool isCutOff_ = false;
    bool saidOutside_ = false;  // of the text since the last root
    bool hasRecords_ = false;
    std::size_t tags_ = 0;
    std::size_t records_ = 0;
    std::size_t otherCase_ = 0;
    std::size_t otherCaseLine_ = 0;
    std::size_t roots_ = 0;
    std::size_t rootsBegin_ = 0;         // where the first root begins in out_
    std::size_t rootsEnd_ = 0;           // where the last root ends
    const KnownTag* rootTag_ = nullptr;  // of all roots; nullptr if they differ
};

}  // namespace tw
