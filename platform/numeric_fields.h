// Bounded numeric fields: edits that hold a number between two bounds. They behave alike on every page: while the
// user types, a number above the maximum becomes the maximum; when the focus leaves, a number below the minimum or no
// text at all becomes the minimum; and every change is handed to the page.
#pragma once

#include <span>
#include <string_view>

#include "ui/form.h"

struct TNumericField {
    const wchar_t* Edit;
    const wchar_t* Paired;  ///< the sender that the page is told of: the edit's up-down, or the edit itself
    int Min;
    int Max;
    const wchar_t* PageHandler;  ///< the shared change handler of the page that the edit lies on
    bool FiltersKeys = false;    ///< typed characters other than digits and Backspace are discarded
    bool IsPositive = false;     ///< a number of 0 or less becomes 1 while the user types
};

/// Every bounded numeric field of the program.
[[nodiscard]] std::span<const TNumericField> NumericFields();

/// Gives the bounded numeric fields of one page, as far as the form has them, their behaviour, and lets only digits be
/// typed into them. To be called before the form's native window exists. `changed` is the page's shared handler.
///
/// Changes that come from elsewhere while the edit has no focus are not looked at. A text that is no 32-bit number
/// stays as it is, and the edit's event throws an EConvertError.
void BindNumericFields(const TForm& form, std::wstring_view pageHandler, const TNotifyEvent& changed);
