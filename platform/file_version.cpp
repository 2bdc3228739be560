#include "platform/file_version.h"

#include <span>

#include "base/decimal.h"

namespace {

using TByteSpan = std::span<const std::uint8_t>;

struct TVersionText {
    const wchar_t* Name;
    std::wstring TFileVersionRecord::*Field;
};

/// In the order of GetFileVersionField's index.
constexpr TVersionText kTexts[] = {
    {L"Comments", &TFileVersionRecord::Comments},
    {L"CompanyName", &TFileVersionRecord::CompanyName},
    {L"FileDescription", &TFileVersionRecord::FileDescription},
    {L"FileVersion", &TFileVersionRecord::FileVersion},
    {L"InternalName", &TFileVersionRecord::InternalName},
    {L"LegalCopyright", &TFileVersionRecord::LegalCopyright},
    {L"LegalTrademarks", &TFileVersionRecord::LegalTrademarks},
    {L"OriginalFileName", &TFileVersionRecord::OriginalFileName},
    {L"ProductName", &TFileVersionRecord::ProductName},
    {L"ProductVersion", &TFileVersionRecord::ProductVersion},
};
constexpr int kRecordCount = static_cast<int>(std::size(kTexts));

/// The 16-bit number with the low byte first as four hexadecimal digits.
std::wstring WordText(TByteSpan word) { return HexText(word[1], 2) + HexText(word[0], 2); }

/// Where the texts of the first language are, with trailing delimiter; nothing when no language is given.
std::optional<std::wstring> TextFolder(const TVersionResource& resource) {
    const auto translation = resource.Block(L"\\VarFileInfo\\Translation");
    if (!translation || translation->size() < 4) return std::nullopt;
    const TByteSpan bytes(*translation);
    return L"\\StringFileInfo\\" + WordText(bytes.first(2)) + WordText(bytes.subspan(2, 2)) + L'\\';
}

std::uint32_t Dword(TByteSpan bytes) {
    std::uint32_t number = 0;
    for (std::size_t i = 4; i-- > 0;) number = number << 8 | bytes[i];
    return number;
}

}  // namespace

bool GetFileVersionInfoRecord(const TSystem& system, const std::wstring& fileName, TFileVersionRecord& record,
                              const std::wstring& extraKey) {
    const auto resource = system.Windows.OpenVersionResource(fileName);
    if (!resource) return false;
    record = {};
    if (const auto folder = TextFolder(*resource)) {
        for (const TVersionText& text : kTexts)
            record.*text.Field = resource->Text(*folder + text.Name).value_or(L"");
        if (!extraKey.empty()) record.Extra = resource->Text(*folder + extraKey).value_or(L"");
    }
    auto& words = record.FixedFileInfo;
    if (const auto block = resource->Block(L"\\"); block && block->size() >= sizeof(words)) {
        for (std::size_t i = 0; i < words.size(); ++i) words[i] = Dword(TByteSpan(*block).subspan(4 * i, 4));
    }
    return true;
}

std::wstring GetFileVersionField(const TSystem& system, const std::wstring& fileName, int index) {
    TFileVersionRecord record;
    if (!GetFileVersionInfoRecord(system, fileName, record, L"WOW Version")) return L"Unknown";
    if (index == kRecordCount) return record.Extra;
    return index >= 0 && index < kRecordCount ? record.*kTexts[index].Field : L"";
}
