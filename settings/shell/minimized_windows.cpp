#include "settings/shell/minimized_windows.h"

#include "settings/page_context.h"
#include "settings/store.h"
#include "ui/controls.h"

// Special because three lists make up one number, which is a field of a structure (MINIMIZEDMETRICS) whose other
// fields must stay as they are.

namespace {

constexpr std::uint32_t kGetMinimizedMetrics = 0x2B;
constexpr std::uint32_t kSetMinimizedMetrics = 0x2C;

// cbSize, iWidth, iHorzGap, iVertGap and iArrange, of 32 bits each.
constexpr std::size_t kSize = 20;
constexpr std::size_t kArrange = 16;

// The bits of iArrange, as documented for MINIMIZEDMETRICS.
constexpr std::uint8_t kStartRight = 0x01;  // ARW_STARTRIGHT
constexpr std::uint8_t kStartTop = 0x02;    // ARW_STARTTOP
constexpr std::uint8_t kUpOrDown = 0x04;    // ARW_UP, ARW_DOWN
constexpr std::uint8_t kHide = 0x08;        // ARW_HIDE

// One name for all pages, so that the list changed last wins.
constexpr const wchar_t* kChangeName = L"Cmblocal";

std::vector<std::uint8_t> MinimizedMetrics(const TPageContext& context) {
    std::vector<std::uint8_t> metrics(kSize);
    metrics[0] = kSize;
    if (!context.System.Parameters.Get(kGetMinimizedMetrics, kSize, metrics)) metrics[kArrange] = kHide;
    return metrics;
}

TComboBox& List(const TPageContext& context, const TSpecialRow& row, std::size_t index) {
    return *context.Form.Find<TComboBox>(row.Controls[index]);
}

}  // namespace

void LoadMinimizedWindows(TPageContext& context, const TSpecialRow& row) {
    const std::uint8_t arrange = MinimizedMetrics(context)[kArrange];
    const int direction = (arrange & kUpOrDown) != 0 ? 2 : 1;
    List(context, row, 0).SetItemIndex((arrange & kHide) != 0 ? 0 : direction);
    List(context, row, 1).SetItemIndex((arrange & kStartRight) != 0 ? 1 : 0);
    List(context, row, 2).SetItemIndex((arrange & kStartTop) != 0 ? 0 : 1);
}

void RecordMinimizedWindows(TPageContext& context, const TSpecialRow& row, TComponent& /*sender*/) {
    const int arrangement = List(context, row, 0).ItemIndex();
    std::uint8_t arrange = 0;
    if (arrangement <= 0) arrange |= kHide;
    if (arrangement == 2) arrange |= kUpOrDown;
    if (List(context, row, 1).ItemIndex() == 1) arrange |= kStartRight;
    if (List(context, row, 2).ItemIndex() == 0) arrange |= kStartTop;
    std::vector<std::uint8_t> metrics = MinimizedMetrics(context);
    metrics[kArrange] = arrange;
    RecordParameter(context, kChangeName, kSetMinimizedMetrics, kSize, metrics);
}
