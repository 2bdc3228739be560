#include "console/value.h"

#include <utility>

#include "base/decimal.h"

namespace {

std::wstring Quoted(const std::wstring& text) {
    std::wstring quoted = L"\"";
    const auto escape = [&](std::uint32_t unit) {
        quoted += L"\\u";
        for (int shift = 12; shift >= 0; shift -= 4) quoted += L"0123456789abcdef"[unit >> shift & 0xF];
    };
    constexpr std::uint32_t kFirstSupplementary = 0x10000;
    for (const wchar_t c : text) {
        const auto unit = static_cast<char32_t>(c);
        if (c == L'"' || c == L'\\') {
            quoted += {L'\\', c};
        } else if (c >= L' ' && c <= L'~') {
            quoted += c;
        } else if (unit < kFirstSupplementary) {
            escape(unit);
        } else {
            escape(0xD800 + ((unit - kFirstSupplementary) >> 10));
            escape(0xDC00 + (unit & 0x3FF));
        }
    }
    return quoted + L'"';
}

template <typename T, typename TWords>
std::wstring Joined(const std::vector<T>& elements, const wchar_t* between, const TWords& words) {
    std::wstring joined;
    for (const T& element : elements) {
        if (&element != &elements.front()) joined += between;
        joined += words(element);
    }
    return joined;
}

/// What stands in one line.
struct TLine {
    std::wstring operator()(const TValue& value) const { return std::visit(*this, value.Content); }
    std::wstring operator()(bool yes) const { return yes ? L"yes" : L"no"; }
    std::wstring operator()(std::int64_t number) const { return DecimalText(number); }
    std::wstring operator()(std::wstring text) const {
        for (wchar_t& c : text)
            if (c < L' ') c = L' ';
        return text;
    }
    std::wstring operator()(const TList& list) const { return Joined(list, L", ", *this); }
    std::wstring operator()(const TRecord& record) const {
        std::wstring line;
        bool isFirst = true;
        for (const TField& field : record) {
            if (!field.InText) continue;
            if (!std::exchange(isFirst, false)) line += L'\t';
            line += (*this)(field.Value);
        }
        return line;
    }
};

struct TJson {
    std::wstring operator()(const TValue& value) const { return std::visit(*this, value.Content); }
    std::wstring operator()(bool yes) const { return yes ? L"true" : L"false"; }
    std::wstring operator()(std::int64_t number) const { return DecimalText(number); }
    std::wstring operator()(const std::wstring& text) const { return Quoted(text); }
    std::wstring operator()(const TField& field) const {
        return Quoted(field.Name) + L':' + (*this)(field.Value);
    }
    std::wstring operator()(const TList& list) const { return L'[' + Joined(list, L",", *this) + L']'; }
    std::wstring operator()(const TRecord& record) const { return L'{' + Joined(record, L",", *this) + L'}'; }
};

}  // namespace

std::wstring JsonOf(const TValue& value) { return TJson()(value); }

std::vector<std::wstring> LinesOf(const TValue& value) {
    std::vector<std::wstring> lines;
    if (const auto* list = std::get_if<TList>(&value.Content)) {
        for (const TValue& element : *list) lines.push_back(TLine()(element));
    } else if (const auto* record = std::get_if<TRecord>(&value.Content)) {
        for (const TField& field : *record) {
            const std::wstring name = std::wstring(field.Name) + L'\t';
            const auto* elements = std::get_if<TList>(&field.Value.Content);
            if (elements == nullptr) lines.push_back(name + TLine()(field.Value));
            for (std::size_t i = 0; elements != nullptr && i < elements->size(); ++i)
                lines.push_back(name + TLine()((*elements)[i]));
        }
    } else {
        lines.push_back(TLine()(value));
    }
    return lines;
}
