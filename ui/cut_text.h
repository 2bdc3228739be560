// Texts that are longer than their place.
#pragma once

#include <functional>
#include <string>

inline constexpr wchar_t kEllipsis = L'\u2026';

/// The text, or when it does not fit, as many of its words as do with an ellipsis behind them. Whatever fits must fit
/// with words left out, too.
[[nodiscard]] std::wstring CutAtWord(const std::wstring& text,
                                     const std::function<bool(const std::wstring& text)>& fits);

/// The text, or when it does not fit, as much of its beginning as does with an ellipsis before its end that says most: of a
/// place in the registry the value, of another text what stands there in brackets.
[[nodiscard]] std::wstring CutInside(const std::wstring& text,
                                     const std::function<bool(const std::wstring& text)>& fits);
