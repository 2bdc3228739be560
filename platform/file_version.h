// The version resource of a program file.
#pragma once

#include <array>

#include "platform/system.h"

struct TFileVersionRecord {
    std::wstring CompanyName;
    std::wstring FileDescription;
    std::wstring FileVersion;
    std::wstring InternalName;
    std::wstring LegalCopyright;
    std::wstring LegalTrademarks;
    std::wstring OriginalFileName;
    std::wstring ProductName;
    std::wstring ProductVersion;
    std::wstring Comments;
    std::array<std::uint32_t, 13> FixedFileInfo{};  ///< the words of VS_FIXEDFILEINFO
    std::wstring Extra;                             ///< the text of the key that was asked for
};

/// Reads the texts of the resource's first language. Texts that the resource lacks are empty. An empty `extraKey`
/// asks for no extra text. False, and `record` untouched, when there is no resource to read.
[[nodiscard]] bool GetFileVersionInfoRecord(const TSystem& system, const std::wstring& fileName,
                                            TFileVersionRecord& record, const std::wstring& extraKey);

/// A text of the resource by index: 0 Comments, 1 CompanyName, 2 FileDescription, 3 FileVersion, 4 InternalName,
/// 5 LegalCopyright, 6 LegalTrademarks, 7 OriginalFileName, 8 ProductName, 9 ProductVersion, 10 "WOW Version". Empty
/// for any other index, "Unknown" when there is no resource to read.
[[nodiscard]] std::wstring GetFileVersionField(const TSystem& system, const std::wstring& fileName,
                                               int index);
