// Faults with a name of their own. The fault log writes the name, so it is part of what the outside world sees.
#pragma once

#include <stdexcept>
#include <string>

/// A text that should have been a number.
class EConvertError : public std::runtime_error {
  public:
    /// `text` is the text that is none.
    explicit EConvertError(const std::wstring& text);
};
