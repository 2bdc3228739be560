#include "platform/faults.h"

#include "platform/unicode.h"

EConvertError::EConvertError(const std::wstring& text)
    : std::runtime_error("'" + ToUtf8(text) + "' is not a valid integer value") {}
