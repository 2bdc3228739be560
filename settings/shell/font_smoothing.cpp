#include "settings/shell/font_smoothing.h"

#include "settings/page_context.h"
#include "settings/store.h"
#include "ui/controls.h"

// Special because one list stands for two system parameters, and because the type came with Windows XP.

namespace {

constexpr std::uint32_t kGetSmoothing = 0x4A;        // SPI_GETFONTSMOOTHING
constexpr std::uint32_t kSetSmoothing = 0x4B;        // SPI_SETFONTSMOOTHING
constexpr std::uint32_t kGetSmoothingType = 0x200A;  // SPI_GETFONTSMOOTHINGTYPE
constexpr std::uint32_t kSetSmoothingType = 0x200B;  // SPI_SETFONTSMOOTHINGTYPE

// The types' numbers are those of the list's items.
constexpr int kOff = 0;
constexpr int kStandard = 1;   // FE_FONTSMOOTHINGSTANDARD
constexpr int kClearType = 2;  // FE_FONTSMOOTHINGCLEARTYPE

}  // namespace

void LoadFontSmoothing(TPageContext& context, const TSpecialRow& row) {
    auto& list = *context.Form.Find<TComboBox>(row.Controls[0]);
    const bool on = ReadSwitch(context, kGetSmoothing);
    const auto type = static_cast<int>(ReadParameter(context, kGetSmoothingType));
    if (!on) return list.SetItemIndex(kOff);
    if (!kSinceXp.Include(context.WindowsLevel)) return list.SetItemIndex(kStandard);
    if (type == kStandard || type == kClearType) list.SetItemIndex(type);
}

void RecordFontSmoothing(TPageContext& context, const std::wstring& changeName, const TComboBox& list) {
    const int type = list.ItemIndex();
    RecordParameter(context, changeName, kSetSmoothing, type != kOff ? 1 : 0, 0U);
    if (!kSinceXp.Include(context.WindowsLevel) || type <= kOff) return;
    RecordParameter(context, changeName + L"1", kSetSmoothingType, 0,
                    static_cast<std::uint32_t>(type == kStandard ? kStandard : kClearType));
}
