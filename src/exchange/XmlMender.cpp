#include "exchange/XmlMender.h"

#include <algorithm>

#include "exchange/AsciiCase.h"
#include "exchange/ExchangeLimits.h"
#include "values/Utf8.h"

namespace tw {
namespace {

constexpr std::string_view kHeader = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>";
constexpr std::string_view kWrapper = "RECORD_SETS";
constexpr std::size_t kMostTags = 4'000'000;
constexpr std::size_t kMostUnclosed = 100'000;

std::string Quoted(std::string_view name) {
    return "\"" + std::string(name) + "\"";
}

// True if the last closing tag is that of the first element.
bool EndsWhole(std::string_view text) {
    constexpr int kMostBefore = 1000;
    XmlTokens tokens(text);
    XmlToken first = tokens.Next();
    for (int i = 0; i < kMostBefore && first.kind != XmlTokenKind::Open; ++i) first = tokens.Next();
    const std::size_t close = text.rfind("</");
    return first.kind == XmlTokenKind::Open && close != std::string_view::npos &&
           EqualAscii(FrontName(text.substr(close + 2)), first.name);
}

[[noreturn]] void RefuseDepth() {
    RefuseFile(
        "The tags of the file are nested more than " + std::to_string(kMostExchangeDepth) +
        " deep. It is no file with recipes, or it was damaged on its way: export or download it again.");
}

[[noreturn]] void RefuseTags() {
    RefuseFile("The file has more than 4,000,000 tags. Export the recipes in several files.");
}

}  // namespace

XmlMender::XmlMender(std::string_view text, Findings& findings)
    : text_(text), log_(text, findings), writer_(out_, log_), tokens_(text), lookahead_(text) {}

std::string XmlMender::Mend() {
    const XmlSurvey survey = Survey(text_, kMostUnclosed, kMostTags);
    if (survey.depth > kMostUnclosed) RefuseDepth();
    if (survey.tags > kMostTags) RefuseTags();
    isBalanced_ = survey.balanced;
    endsWhole_ = EndsWhole(text_);
    out_.reserve(text_.size() + text_.size() / 16 + kHeader.size());
    out_ = kHeader;
    for (XmlToken token = tokens_.Next(); token.kind != XmlTokenKind::End; token = tokens_.Next())
        if (token.cutOff)
            isCutOff_ = true;
        else
            Take(token);
    if (roots_ == 0)
        RefuseFile("The file has no tags of BeerXML. It is no file with recipes, or it is empty.");
    EndCutOff();
    WrapRoots();
    if (otherCase_ > 0)
        log_.AddAtLine(FindingCode::TagCase, Severity::Repaired, otherCaseLine_, [&] {
            return otherCase_ == 1
                       ? std::string("A tag is not written in capital letters; it was read as if it were.")
                       : std::to_string(otherCase_) +
                             " tags are not written in capital letters; they were read as if they were.";
        });
    return std::move(out_);
}

void XmlMender::Take(const XmlToken& token) {
    switch (token.kind) {
        case XmlTokenKind::Text:
        case XmlTokenKind::LessThan:
        case XmlTokenKind::CData:
            return TakeText(token);
        case XmlTokenKind::Open:
            return TakeOpen(token);
        case XmlTokenKind::Close:
            return TakeClose(token);
        case XmlTokenKind::Comment:
            return TakeComment(token);
        case XmlTokenKind::Doctype:
            return TakeDoctype(token);
        case XmlTokenKind::Instruction:
            log_.CountFaults(1);
            return writer_.AppendLineBreaks(text_.substr(token.begin, token.end - token.begin));
        case XmlTokenKind::End:
            return;
    }
}

void XmlMender::TakeText(const XmlToken& token) {
    const std::string_view text = text_.substr(token.begin, token.end - token.begin);
    const bool isBlank = token.kind == XmlTokenKind::Text && IsXmlBlank(text);
    if (open_.empty()) {
        if (isBlank)
            out_.append(text);
        else
            LeaveOut(token);
        return;
    }
    open_.back().hasText = open_.back().hasText || !isBlank;
    if (token.kind == XmlTokenKind::Text) {
        writer_.Append(text, token.begin);
    } else if (token.kind == XmlTokenKind::CData) {
        writer_.AppendLiteral(token.content);
    } else {
        log_.CountFaults(text.size());
        writer_.AppendLiteral(text);
        log_.Repaired(FindingCode::BareLessThan, token.begin,
                      [] { return "\"<\" that begins no tag was kept as text."; });
    }
}

// Text outside of all elements has no place in XML.
void XmlMender::LeaveOut(const XmlToken& token) {
    const std::string_view text = text_.substr(token.begin, token.end - token.begin);
    writer_.AppendLineBreaks(text);
    log_.CountFaults(1);
    if (saidOutside_) return;
    saidOutside_ = true;
    log_.Repaired(FindingCode::Wrapped, token.begin, [&] {
        constexpr std::size_t kShown = 40;
        std::string_view shown = text;
        while (IsXmlBlank(shown.front())) shown.remove_prefix(1);
        shown = shown.substr(0, shown.find_first_of("\r\n"));
        shown = shown.substr(0, CodePointOffset(shown, kShown));
        return "Text outside of the records was left out: " + Quoted(shown) + ".";
    });
}

void XmlMender::TakeComment(const XmlToken& token) {
    const std::string_view text = text_.substr(token.begin, token.end - token.begin);
    const bool isSound =
        token.closed && token.content.find("--") == std::string_view::npos && !token.content.ends_with('-');
    if (isSound) {
        out_.append(text);
        return;
    }
    log_.CountFaults(1);
    writer_.AppendLineBreaks(text);
}

void XmlMender::TakeDoctype(const XmlToken& token) {
    writer_.AppendLineBreaks(text_.substr(token.begin, token.end - token.begin));
    log_.Repaired(FindingCode::Doctype, token.begin,
                  [] { return "The DOCTYPE was left out; nothing of it was used."; });
}

void XmlMender::TakeTagAsText(const XmlToken& tag) {
    // Its attributes may hold "<" as well.
    for (std::size_t begin = tag.begin; begin < tag.end;) {
        const std::size_t end = std::min(text_.find('<', begin + 1), tag.end);
        out_ += "&lt;";
        writer_.Append(text_.substr(begin + 1, end - begin - 1), begin + 1);
        begin = end;
    }
    open_.back().hasText = true;
    log_.Repaired(FindingCode::BareLessThan, tag.begin, [&] {
        return "The tag " + Quoted(tag.name) + " in the text of " + std::string(open_.back().name) +
               " was kept as text.";
    });
}

void XmlMender::TakeOpen(const XmlToken& tag) {
    const KnownTag* known = FindTag(tag.name);
    if (!open_.empty() && open_.back().Is(TagKind::Leaf)) {
        if (ClosesWithoutSlash(tag, known)) {
            log_.Repaired(FindingCode::MisspeltClose, tag.begin, [&] {
                return "The tag " + Quoted(tag.name) + " was read as \"/" + std::string(tag.name) + "\".";
            });
            WriteClose();
            return;
        }
        if (IsTextInLeaf(tag, known)) return TakeTagAsText(tag);
    }
    if (!open_.empty()) {
        const Place holder = HolderOf(tag, known);
        CloseUnclosed(open_.size() - (holder ? *holder + 1 : 0));
    }
    Push(tag, known);
}

void XmlMender::Push(const XmlToken& tag, const KnownTag* known) {
    CheckLimits(known);
    Element element;
    element.known = known;
    element.name = known != nullptr ? known->name : tag.name;
    element.isLower = HasSmallLetter(tag.name);
    element.line = log_.LineAt(tag.begin);
    element.begin = out_.size();
    element.indent = IndentOf(tag.begin);
    NoteCase(tag.name, known, element.line);
    NoteRoot(known, element.line);
    if (!open_.empty()) {
        if (++open_.back().children == 1) open_.back().inner = element.indent;
        if (known != nullptr) open_.back().has.set(known->number);
    }
    (out_ += '<').append(element.name);
    writer_.AppendAttributes(tag.content, element.name, tag.begin);
    if (!tag.closed)
        log_.Repaired(FindingCode::UnclosedTag, tag.begin,
                      [&] { return "The tag " + Quoted(tag.name) + " lacked its \">\"."; });
    if (tag.selfClosing) {
        out_ += "/>";
        if (open_.empty()) rootsEnd_ = out_.size();
    } else {
        out_ += '>';
        open_.push_back(element);
    }
}

void XmlMender::CheckLimits(const KnownTag* known) {
    const bool isWrapped = !open_.empty() && open_.front().name == kWrapper;
    if (open_.size() >= kMostExchangeDepth + (isWrapped ? 1 : 0)) RefuseDepth();
    if (++tags_ > kMostTags) RefuseTags();
    if (known != nullptr && known->kind == TagKind::Record && ++records_ > kMostExchangeRecords)
        RefuseFile("The file has more than 100,000 recipes and ingredients. Export them in several files.");
}

void XmlMender::NoteRoot(const KnownTag* known, std::size_t line) {
    const bool isRecord = known != nullptr && known->kind == TagKind::Record;
    if (open_.empty()) {
        saidOutside_ = false;
        if (++roots_ == 1) {
            rootsBegin_ = out_.size();
            rootTag_ = known;
        } else if (rootTag_ != known) {
            rootTag_ = nullptr;
        }
        if (roots_ == 2)
            log_.AddAtLine(FindingCode::SeveralRoots, Severity::Repaired, line, [] {
                return "The file has several elements one after another, where XML wants one; all were read.";
            });
        if (roots_ == 1 && isRecord && known->name == "RECIPE")
            log_.AddAtLine(FindingCode::RecipeAsRoot, Severity::Note, line,
                           [] { return "The recipe stands without the tag RECIPES around it."; });
    }
    if (hasRecords_ || known == nullptr || known->kind == TagKind::Leaf) return;
    hasRecords_ = true;
    if (!open_.empty())
        log_.AddAtLine(FindingCode::Wrapped, Severity::Note, open_.front().line, [&] {
            return "The records stand in a tag that BeerXML does not know, " + Quoted(open_.front().name) +
                   ".";
        });
}

void XmlMender::NoteCase(std::string_view name, const KnownTag* known, std::size_t line) {
    if (known == nullptr || known->name == name) return;
    if (++otherCase_ == 1) otherCaseLine_ = line;
}

void XmlMender::WriteClose() {
    ((out_ += "</").append(open_.back().name)) += '>';
    open_.pop_back();
    if (open_.empty()) rootsEnd_ = out_.size();
}

// Closes elements whose closing tags are missing.
void XmlMender::CloseUnclosed(std::size_t count) {
    for (; count > 0; --count) {
        log_.AddAtLine(FindingCode::UnclosedTag, Severity::Repaired, open_.back().line, [&] {
            return "The tag " + std::string(open_.back().name) + " was not closed; it was closed where " +
                   (open_.back().Is(TagKind::Leaf) ? "the next tag begins." : "it has to end.");
        });
        WriteClose();
    }
}

// Ends what the end of the file cuts off. A figure or a text may have lost its end; it would be wrong as it
// stands and is left out, as is an element of which nothing else is left.
void XmlMender::EndCutOff() {
    if (open_.empty() && !isCutOff_) return;
    std::string lost;
    const std::string inner = open_.empty() ? std::string() : std::string(open_.back().name);
    while (!open_.empty()) {
        const Element& last = open_.back();
        const bool isLost = open_.size() > 1 && (last.Is(TagKind::Leaf) || last.children == 0);
        if (isLost) {
            if (lost.empty()) lost = last.name;
            out_.resize(last.begin);
            open_.pop_back();
            --open_.back().children;
        } else {
            WriteClose();
        }
    }
    log_.Add(FindingCode::Truncated, Severity::Suspicious, text_.size(), [&] {
        std::string sentence = inner.empty() ? "The file ends within a tag"
                                             : "The file ends before its element " + inner + " does";
        sentence +=
            lost.empty() ? "; something may be missing." : "; its unfinished " + lost + " was left out.";
        return sentence;
    });
}

// Puts an element around several roots.
void XmlMender::WrapRoots() {
    if (roots_ < 2) return;
    std::string name(kWrapper);
    if (rootTag_ != nullptr && rootTag_->kind == TagKind::Record) name = SetOf(*rootTag_);
    out_.insert(rootsEnd_, "</" + name + ">");
    out_.insert(rootsBegin_, "<" + name + ">");
}

}  // namespace tw
