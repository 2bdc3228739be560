// The data of a value as registry files have them: "text", dword:00000001, hex:01,02 and hex(7):41,00.
#pragma once

#include "engine/reg_file_text.h"

struct TRegFileData {
    TRawValue Value;
    bool IsBytes = false;  ///< written as such, whatever the type
};

/// Whether values of the type are text: REG_SZ, REG_EXPAND_SZ, REG_MULTI_SZ.
[[nodiscard]] bool IsTextType(std::uint32_t type);

/// Takes data and what follows them in their line; nothing when they are broken. Only those of a value go on over lines.
[[nodiscard]] std::optional<TRegFileData> TakeRegData(TRegFileText& text, TRegFileText::TQuotes place);

/// Whether registry editors, when they are given the text in bytes, add the NUL that it lacks.
[[nodiscard]] bool LacksEnd(const TRawValue& value);

/// The data in the shortest form from which they can be read again to the byte. `width` is how long a line becomes before
/// its bytes go on in another one; 0 = as long as it must.
void AppendRegData(std::wstring& line, const TRawValue& value, std::size_t width);
