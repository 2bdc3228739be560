#include "settings/net/prefs_text.h"

#include <algorithm>
#include <utility>

#include "platform/text.h"
#include "settings/net/prefs_lexer.h"

namespace {

constexpr char kBlank = ' ';

/// White space with at least one comment, up to the last comment or line end in it.
struct TRemark {
    std::size_t Begin;
    std::size_t End;
};

/// A text and its code, which is what the splitter sees: the text without line breaks, and with a blank in place of each
/// remark. Places in the code are those in the text.
class TCode {
  public:
    /// `text` outlives the object.
    explicit TCode(std::string_view text) : FText(text) {
        std::size_t at = 0;
        for (TPrefsLexer lexer(text); lexer.Next(); at += lexer.Text().size()) Add(lexer, at);
        EndWhiteSpace(text.size());
        FKeepsValuesWhole = !FRemarks.empty() || (!FQuotedEnds.empty() && HasEscapedBackslash());
    }

    [[nodiscard]] std::string_view Text() const { return FText; }
    [[nodiscard]] std::string_view Text(const TRemark& remark) const {
        return FText.substr(remark.Begin, remark.End - remark.Begin);
    }
    [[nodiscard]] const std::vector<TRemark>& Remarks() const { return FRemarks; }
    /// The places behind the semicolons that end nothing because they are quoted.
    [[nodiscard]] const std::vector<std::size_t>& QuotedEnds() const { return FQuotedEnds; }
    /// Counting quotes errs behind quotations that end with a semicolon or a backslash, and then cuts later ones in two.
    /// That may not happen to files that people have written comments into, nor because of a folder as the home page.
    [[nodiscard]] bool KeepsValuesWhole() const { return FKeepsValuesWhole; }
    /// Whether the text ends within a comment that has lost its end.
    [[nodiscard]] bool EndsInComment() const { return FEndsInComment; }
    /// The character of the code before that place, which lies behind `begin` and the last remark; `otherwise` when there
    /// is none behind `begin`.
    [[nodiscard]] char Before(std::size_t place, std::size_t begin, char otherwise) const {
        while (place > begin && IsLineEnd(FText[place - 1])) --place;
        return place > begin ? FText[place - 1] : otherwise;
    }

  private:
    void Add(const TPrefsLexer& lexer, std::size_t at) {
        const std::string_view part = lexer.Text();
        if (lexer.Part() == TPrefsPart::Comment) {
            FCommentEnd = at + part.size();
            FHasComment = true;
            FEndsInComment = part.starts_with("/*") && (part.size() < 4 || !part.ends_with("*/"));
        } else if (lexer.Part() == TPrefsPart::Quotation) {
            EndWhiteSpace(at);
            for (std::size_t end = 0; (end = part.find(';', end)) != std::string_view::npos;)
                FQuotedEnds.push_back(at + ++end);
            FCodeEnd = at + part.size();
        } else {
            const auto begin = std::ranges::find_if_not(part, IsBlank) - part.begin();
            const auto rest = part.rend() - std::find_if_not(part.rbegin(), part.rend(), IsBlank);
            if (rest == 0) return;
            EndWhiteSpace(at + static_cast<std::size_t>(begin));
            FCodeEnd = at + static_cast<std::size_t>(rest);
        }
    }

    /// The white space and the comments since the last code end here.
    void EndWhiteSpace(std::size_t end) {
        if (!std::exchange(FHasComment, false)) return;
        const std::string_view space = FText.substr(FCommentEnd, end - FCommentEnd);
        // npos is -1.
        FRemarks.push_back({FCodeEnd, FCommentEnd + (space.find_last_of(kPrefsLineEnd) + 1)});
    }

    [[nodiscard]] bool HasEscapedBackslash() const {
        for (std::size_t at = 0; (at = FText.find('"', at)) != std::string_view::npos; ++at) {
            std::size_t begin = at;
            const auto takeLast = [&] {
                while (begin > 0 && IsLineEnd(FText[begin - 1])) --begin;
                return begin > 0 ? FText[--begin] : kBlank;
            };
            const char last = takeLast();
            if (last == '\\' && takeLast() == last) return true;
        }
        return false;
    }

    std::string_view FText;
    std::vector<TRemark> FRemarks;
    std::vector<std::size_t> FQuotedEnds;
    std::size_t FCodeEnd = 0;     ///< where the white space begins that is being passed
    std::size_t FCommentEnd = 0;  ///< of the last comment
    bool FHasComment = false;     ///< there is one in that white space
    bool FEndsInComment = false;
    bool FKeepsValuesWhole = false;
};

/// Where the first "user_pref(" begins; 0 when there is none. It may have blanks before its parenthesis.
std::size_t FirstStatement(const TCode& code) {
    constexpr std::string_view kStatement = "user_pref";
    std::size_t begin = 0;
    std::size_t matched = 0;
    auto remark = code.Remarks().begin();
    for (std::size_t at = 0; at < code.Text().size();) {
        const std::size_t place = at;
        char c = code.Text()[at++];
        if (remark != code.Remarks().end() && remark->Begin == place) {
            c = kBlank;
            at = (remark++)->End;
        } else if (IsLineEnd(c)) {
            continue;
        }
        if (matched == kStatement.size()) {
            if (c == '(') return begin;
            if (IsBlank(c)) continue;
        }
        if (matched == kStatement.size() || c != kStatement[matched]) matched = 0;
        if (c != kStatement[matched]) continue;
        if (matched++ == 0) begin = place;
    }
    return 0;
}

/// Goes through the code piece by piece, each up to its semicolon.
class TPieces {
  public:
    TPieces(const TCode& code, std::size_t begin)
        : FCode(code),
          FRemark(std::ranges::lower_bound(code.Remarks(), begin, {}, &TRemark::Begin)),
          FQuotedEnd(code.QuotedEnds().begin()),
          FEnd(begin) {}

    /// The next statement; false when no semicolon follows.
    [[nodiscard]] bool NextStatement() {
        if (!Next()) return false;
        if (FIsOpen)
            while (Next() && !FIsOpen) {
            }
        if (FCode.KeepsValuesWhole())
            while (IsQuoted() && Next()) {
            }
        return true;
    }
    /// Where it ends, behind its semicolon.
    [[nodiscard]] std::size_t End() const { return FEnd; }

  private:
    [[nodiscard]] bool Next() {
        auto remark = FRemark;
        std::size_t begin = FEnd;
        char before = '\\';  // a quote that comes first does not count either
        for (bool isOpen = false;; begin = (remark++)->End, before = kBlank) {
            const std::string_view text = FCode.Text().substr(
                0, remark == FCode.Remarks().end() ? std::string_view::npos : remark->Begin);
            const std::size_t semicolon = text.find(';', begin);
            const std::string_view piece = text.substr(0, semicolon);
            for (std::size_t at = begin; (at = piece.find('"', at)) != std::string_view::npos; ++at)
                if (FCode.Before(at, begin, before) != '\\') isOpen = !isOpen;
            if (semicolon != std::string_view::npos) {
                FEnd = semicolon + 1;
                FRemark = remark;
                FIsOpen = isOpen;
                return true;
            }
            if (remark == FCode.Remarks().end()) return false;
        }
    }

    /// Whether the last semicolon is quoted.
    [[nodiscard]] bool IsQuoted() {
        while (FQuotedEnd != FCode.QuotedEnds().end() && *FQuotedEnd < FEnd) ++FQuotedEnd;
        return FQuotedEnd != FCode.QuotedEnds().end() && *FQuotedEnd == FEnd;
    }

    const TCode& FCode;
    std::vector<TRemark>::const_iterator FRemark;         ///< the first behind FEnd
    std::vector<std::size_t>::const_iterator FQuotedEnd;  ///< all before it lie before FEnd
    std::size_t FEnd;
    bool FIsOpen = false;  ///< the quotes of the last piece that count are odd in number
};

/// How much of a remark behind a statement is on the statement's line: up to the line's end, or nothing when the line goes
/// on with code.
std::size_t NoteLength(std::string_view remark, bool isLast) {
    std::size_t length = 0;
    for (TPrefsLexer lexer(remark); lexer.Next(); length += lexer.Text().size()) {
        const std::string_view part = lexer.Text();
        if (lexer.Part() == TPrefsPart::Comment ? IsLineEnd(part.back()) : FindLineEnd(part) < part.size())
            return length + (lexer.Part() == TPrefsPart::Comment ? part.size() : LineLength(part));
    }
    return isLast ? length : 0;
}

/// Pieces of a text put together: part of that text as long as each of them follows there on the one before.
class TJoined {
  public:
    void Add(std::string_view piece) {
        if (piece.empty()) return;
        if (Text().empty())
            FPart = piece;
        else if (FOwn.empty() && FPart.data() + FPart.size() == piece.data())
            FPart = {FPart.data(), FPart.size() + piece.size()};
        else
            (FOwn.empty() ? FOwn = FPart : FOwn) += piece;
    }
    [[nodiscard]] std::string_view Text() const { return FOwn.empty() ? FPart : FOwn; }
    void MoveTo(TPrefEntries& entries) {
        if (FOwn.empty())
            entries.Add(FPart);
        else
            entries.Append(std::move(FOwn));
    }

  private:
    std::string_view FPart;
    std::string FOwn;
};

/// Puts code and remarks together again.
class TEntryMaker {
  public:
    explicit TEntryMaker(const TCode& code) : FCode(code), FRemark(code.Remarks().begin()) {}

    /// Drops the code up to there.
    void Skip(std::size_t end) {
        for (; HasRemarkBefore(end); ++FRemark) FEntry.Add(FCode.Text(*FRemark));
        FBegin = end;
    }
    /// Ends the entry with the code up to there.
    void Take(std::size_t end) {
        TakeNote();
        for (; HasRemarkBefore(end); FBegin = (FRemark++)->End) {
            AddCode(FRemark->Begin);
            FEntry.Add(FCode.Text(*FRemark));
        }
        AddCode(end);
        FBegin = end;
        EndEntry();
    }
    [[nodiscard]] TPrefEntries TakeTail() {
        TakeNote();
        Skip(FCode.Text().size());
        if (!Trim(FEntry.Text()).empty()) EndEntry();
        if (FCode.EndsInComment()) FLast.Add("*/");
        if (!FLast.Text().empty()) FLast.MoveTo(FEntries);
        return std::move(FEntries);
    }

  private:
    [[nodiscard]] bool HasRemarkBefore(std::size_t end) const {
        return FRemark != FCode.Remarks().end() && FRemark->Begin < end;
    }
    void AddCode(std::size_t end) {
        std::string_view code = FCode.Text().substr(FBegin, end - FBegin);
        while (!code.empty() && IsLineEnd(code.front())) code.remove_prefix(1);
        if (!HasLineEnd(code)) return FEntry.Add(code);
        while (!code.empty()) {
            const std::size_t length = FindLineEnd(code);
            FEntry.Add(code.substr(0, length));
            code.remove_prefix(std::min(length + 1, code.size()));
        }
    }
    void EndEntry() {
        if (!FLast.Text().empty()) FLast.MoveTo(FEntries);
        FLast = std::exchange(FEntry, {});
    }
    /// Gives what follows the last statement on its line to that statement's entry.
    void TakeNote() {
        if (FLast.Text().empty() || !HasRemarkBefore(FBegin + 1)) return;
        FBegin = FRemark->End;
        const std::string_view remark = FCode.Text(*FRemark++);
        const bool isLast = std::ranges::all_of(FCode.Text().substr(FBegin), IsBlank);
        const std::string_view note = remark.substr(0, NoteLength(remark, isLast));
        if (!Trim(note).empty()) FLast.Add(note);
        FEntry.Add(remark.substr(note.size()));
    }

    const TCode& FCode;
    std::vector<TRemark>::const_iterator FRemark;  ///< the first that has no entry yet
    std::size_t FBegin = 0;                        ///< of the code that has no entry yet
    TJoined FEntry;                                ///< the beginning of the next one
    TJoined FLast;                                 ///< the last one, which may get a note yet
    TPrefEntries FEntries;                         ///< those before
};

}  // namespace

TPrefEntries SplitPrefs(std::string_view text, const std::function<void()>& onStatement) {
    const TCode code(text);
    TEntryMaker entries(code);
    const std::size_t begin = FirstStatement(code);
    entries.Skip(begin);
    for (TPieces pieces(code, begin); pieces.NextStatement();) {
        entries.Take(pieces.End());
        onStatement();
    }
    return entries.TakeTail();
}

std::string JoinPrefs(const TPrefEntries& entries) {
    std::string text;
    for (std::size_t i = 0; i < entries.Count(); ++i) {
        const std::string_view entry = entries[i];
        text += entry;
        if (!entry.empty() && !IsLineEnd(entry.back())) text += kPrefsLineEnd;
    }
    return text;
}
