// Questions and choosers that interrupt the user. An interface, so that tests can answer them.
#pragma once

#include <optional>
#include <string>

#include "ui/color.h"

enum class TMessageButtons { Ok, YesNo };
enum class TMessageIcon { None, Question };
enum class TMessageAnswer { Ok, Yes, No };

class TForm;

/// Every dialog belongs to the form that asks: it lies above that form, which waits for the answer.
class TDialogs {
  public:
    virtual ~TDialogs() = default;

    /// A standard message box, titled as the form. Of Yes and No, No is the default.
    virtual TMessageAnswer Message(const TForm& asker, const std::wstring& text, TMessageButtons buttons,
                                   TMessageIcon icon) = 0;

    /// The system's open-file dialog. `filter` is "caption|patterns|caption|patterns". Nothing when cancelled.
    [[nodiscard]] virtual std::optional<std::wstring> OpenFile(const TForm& asker,
                                                               const std::wstring& filter) = 0;

    /// The system's dialog that asks where to save a file, `suggestedName` entered at first; it asks before an existing
    /// one is chosen. A name without extension gets that of the filter's first pattern. Nothing when cancelled.
    [[nodiscard]] virtual std::optional<std::wstring> SaveFile(const TForm& asker, const std::wstring& filter,
                                                               const std::wstring& suggestedName) = 0;

    /// The system's colour dialog, `initial` chosen at first. Nothing when cancelled.
    [[nodiscard]] virtual std::optional<TColor> PickColor(const TForm& asker, TColor initial) = 0;
};
