#include "settings/net/prefs_text.h"

#include <algorithm>

#include "platform/text.h"
#include "settings/net/prefs_lexer.h"

namespace {

constexpr wchar_t kBlank = L' ';

constexpr std::wstring_view kLineEnd = L"\r\n";

bool IsLineEnd(wchar_t c) { return c == L'\r' || c == L'\n'; }
bool IsCode(wchar_t c) { return c > L' '; }

/// White space with at least one comment, up to the last comment or line end in it.
struct TRemark {
    std::size_t At;  ///< the place of the blank that stands for it among the code
    std::wstring_view Text;
};

/// A text as the splitter sees it: without line breaks, and with a blank in place of each remark.
class TCode {
  public:
    /// `text` outlives the object.
    explicit TCode(std::wstring_view text) : FText(text) {
        FCode.reserve(text.size());
        std::size_t at = 0;
        for (TPrefsLexer lexer(text); lexer.Next(); at += lexer.Text().size()) Add(lexer, at);
        EndWhiteSpace(text.size());
    }

    [[nodiscard]] std::wstring_view Code() const { return FCode; }
    [[nodiscard]] const std::vector<TRemark>& Remarks() const { return FRemarks; }
    /// Whether the semicolon before that place of the code ends nothing because it is quoted.
    [[nodiscard]] bool IsQuoted(std::size_t end) const {
        return std::ranges::binary_search(FQuotedEnds, end);
    }
    /// Counting quotes errs behind quotations that end with a semicolon or a backslash, and then cuts later ones in two.
    /// That may not happen to files that people have written comments into, nor because of a folder as the home page.
    [[nodiscard]] bool KeepsValuesWhole() const {
        return !FRemarks.empty() || FCode.find(L"\\\\\"") != std::wstring::npos;
    }
    /// Whether the text ends within a comment that has lost its end.
    [[nodiscard]] bool EndsInComment() const { return FEndsInComment; }

  private:
    void Add(const TPrefsLexer& lexer, std::size_t at) {
        const std::wstring_view part = lexer.Text();
        if (lexer.Part() == TPrefsPart::Comment) {
            FCommentEnd = at + part.size();
            FHasComment = true;
            FEndsInComment = part.starts_with(L"/*") && (part.size() < 4 || !part.ends_with(L"*/"));
        } else if (lexer.Part() == TPrefsPart::Quotation) {
            EndWhiteSpace(at);
            std::size_t end = FCode.size();
            AddWithoutLineEnds(part);
            while ((end = FCode.find(L';', end)) != std::wstring::npos) FQuotedEnds.push_back(++end);
            FWhiteSpace = at + part.size();
        } else {
            const auto begin = static_cast<std::size_t>(std::ranges::find_if(part, IsCode) - part.begin());
            const auto rest =
                static_cast<std::size_t>(part.rend() - std::find_if(part.rbegin(), part.rend(), IsCode));
            if (rest > 0) {
                EndWhiteSpace(at + begin);
                AddWithoutLineEnds(part.substr(begin, rest - begin));
                FWhiteSpace = at + rest;
            }
        }
    }

    /// The white space and the comments since the last code end here.
    void EndWhiteSpace(std::size_t end) {
        if (FHasComment) {
            const std::wstring_view space = FText.substr(FCommentEnd, end - FCommentEnd);
            const std::size_t remarkEnd = FCommentEnd + (space.find_last_of(kLineEnd) + 1);  // npos is -1
            FRemarks.push_back({FCode.size(), FText.substr(FWhiteSpace, remarkEnd - FWhiteSpace)});
            FCode += kBlank;
            FWhiteSpace = remarkEnd;
            FHasComment = false;
        }
        AddWithoutLineEnds(FText.substr(FWhiteSpace, end - FWhiteSpace));
        FWhiteSpace = end;
    }

    void AddWithoutLineEnds(std::wstring_view text) {
        for (;;) {
            const auto length =
                static_cast<std::size_t>(std::ranges::find_if(text, IsLineEnd) - text.begin());
            FCode += text.substr(0, length);
            if (length == text.size()) return;
            text.remove_prefix(length + 1);
        }
    }

    std::wstring_view FText;
    std::wstring FCode;
    std::vector<TRemark> FRemarks;
    std::vector<std::size_t> FQuotedEnds;
    std::size_t FWhiteSpace = 0;  ///< where in the text the white space begins that is being passed
    std::size_t FCommentEnd = 0;  ///< of the last comment
    bool FHasComment = false;     ///< there is one in that white space
    bool FEndsInComment = false;
};

/// Where the first "user_pref(" begins; 0 when there is none. It may have blanks before its parenthesis.
std::size_t FirstStatement(std::wstring_view code) {
    constexpr std::wstring_view kStatement = L"user_pref";
    for (std::size_t at = 0; (at = code.find(kStatement, at)) != std::wstring_view::npos; ++at)
        if (Trim(code.substr(at + kStatement.size())).starts_with(L'(')) return at;
    return 0;
}

/// Where the statement that begins at `begin` ends, behind its semicolon; `begin` when no semicolon follows.
std::size_t StatementEnd(const TCode& code, std::size_t begin) {
    std::size_t end = begin;
    const auto takePiece = [&] {
        const std::size_t semicolon = code.Code().find(L';', end);
        if (semicolon == std::wstring_view::npos) return std::wstring_view();
        const std::wstring_view piece = code.Code().substr(end, semicolon + 1 - end);
        end = semicolon + 1;
        return piece;
    };
    std::wstring_view piece = takePiece();
    if (HasOpenQuote(piece)) {
        do piece = takePiece();
        while (!piece.empty() && !HasOpenQuote(piece));
    }
    if (code.KeepsValuesWhole())
        while (code.IsQuoted(end) && !takePiece().empty()) {
        }
    return end;
}

/// How much of a remark behind a statement is on the statement's line: up to the line's end, or nothing when the line goes
/// on with code.
std::size_t NoteLength(std::wstring_view remark, bool isLast) {
    std::size_t length = 0;
    for (TPrefsLexer lexer(remark); lexer.Next(); length += lexer.Text().size()) {
        const std::wstring_view part = lexer.Text();
        if (lexer.Part() == TPrefsPart::Comment ? IsLineEnd(part.back())
                                                : std::ranges::any_of(part, IsLineEnd))
            return length + (lexer.Part() == TPrefsPart::Comment ? part.size() : LineLength(part));
    }
    return isLast ? length : 0;
}

/// Puts code and remarks together again.
class TEntries {
  public:
    explicit TEntries(const TCode& code) : FCode(code), FRemark(code.Remarks().begin()) {}

    /// Drops the code up to there.
    void Skip(std::size_t end) {
        for (; HasRemarkBefore(end); ++FRemark) FEntry += FRemark->Text;
        FBegin = end;
    }
    /// Ends the entry with the code up to there.
    void Take(std::size_t end) {
        TakeNote();
        for (; HasRemarkBefore(end); FBegin = (FRemark++)->At + 1) {
            FEntry += FCode.Code().substr(FBegin, FRemark->At - FBegin);
            FEntry += FRemark->Text;
        }
        FEntry += FCode.Code().substr(FBegin, end - FBegin);
        FBegin = end;
        Entries.push_back(std::move(FEntry));
        FEntry.clear();
    }
    void TakeTail() {
        TakeNote();
        Skip(FCode.Code().size());
        if (!Trim(FEntry).empty()) Entries.push_back(std::move(FEntry));
        if (FCode.EndsInComment()) Entries.back() += L"*/";
    }

    std::vector<std::wstring> Entries;

  private:
    [[nodiscard]] bool HasRemarkBefore(std::size_t end) const {
        return FRemark != FCode.Remarks().end() && FRemark->At < end;
    }
    /// Gives what follows the last statement on its line to that statement's entry.
    void TakeNote() {
        if (Entries.empty() || !HasRemarkBefore(FBegin + 1)) return;
        std::wstring_view remark = (FRemark++)->Text;
        const bool isLast = Trim(FCode.Code().substr(++FBegin)).empty();
        const std::wstring_view note = remark.substr(0, NoteLength(remark, isLast));
        if (!Trim(note).empty()) Entries.back() += note;
        FEntry = remark.substr(note.size());
    }

    const TCode& FCode;
    std::vector<TRemark>::const_iterator FRemark;  ///< the first that has no entry yet
    std::size_t FBegin = 0;                        ///< of the code that has no entry yet
    std::wstring FEntry;                           ///< the beginning of the next one
};

}  // namespace

bool HasOpenQuote(std::wstring_view text) {
    bool open = false;
    for (std::size_t i = 1; i < text.size(); ++i) {
        if (text[i] == L'"' && text[i - 1] != L'\\') open = !open;
    }
    return open;
}

std::vector<std::wstring> SplitPrefs(std::wstring_view text, const std::function<void()>& onStatement) {
    const TCode code(text);
    TEntries entries(code);
    std::size_t begin = FirstStatement(code.Code());
    entries.Skip(begin);
    for (std::size_t end = 0; (end = StatementEnd(code, begin)) != begin; begin = end) {
        entries.Take(end);
        onStatement();
    }
    entries.TakeTail();
    return std::move(entries.Entries);
}

std::wstring JoinPrefs(const std::vector<std::wstring>& entries) {
    std::wstring text;
    for (const std::wstring& entry : entries) {
        text += entry;
        if (entry.empty() || !IsLineEnd(entry.back())) text += kLineEnd;
    }
    return text;
}
