#include "settings/net/security_switches.h"

#include <algorithm>
#include <iterator>

#include "engine/reg_value.h"
#include "platform/service_control.h"
#include "settings/page_context.h"
#include "settings/store.h"
#include "ui/controls.h"

namespace {

constexpr int kVista = kSinceVista.First;
constexpr int kXp = kSinceXp.First;

bool Runs(const TPageContext& context, const wchar_t* service) {
    return QueryServiceRunning(context.System, service) == TServiceAnswer::Running;
}

constexpr int kSecurityCenter = 0;
constexpr int kFirewall = 1;

void RecordService(TPageContext& context, int service, TComponent& box) {
    context.Changes.Switch({.Service = kSecurityServices[service],
                            .Order = service,
                            .On = static_cast<TCheckBox&>(box).Checked(),
                            .Setting = context.Setting});
}

constexpr std::int32_t kUpdatesOff = 1;
constexpr std::int32_t kUpdateKinds[] = {0, 2, 3, 4};  // "AUOptions" of each item of the list

}  // namespace

bool HasFirewall(const TPageContext& context) {
    return context.WindowsLevel >= kVista || (context.WindowsLevel == kXp && Runs(context, L"SharedAccess"));
}

void LoadSecurityCenter(TPageContext& context, const TSpecialRow& row) {
    auto& box = *context.Form.Find<TCheckBox>(row.Controls[0]);
    if (!HasFirewall(context)) box.SetEnabled(false);
    box.SetChecked(Runs(context, kSecurityServices[kSecurityCenter]));
}

void RecordSecurityCenter(TPageContext& context, const TSpecialRow& /*row*/, TComponent& sender) {
    RecordService(context, kSecurityCenter, sender);
}

void LoadFirewall(TPageContext& context, const TSpecialRow& row) {
    auto& box = *context.Form.Find<TCheckBox>(row.Controls[0]);
    if (context.WindowsLevel >= kVista) return box.SetChecked(Runs(context, kSecurityServices[kFirewall]));
    const auto value = Stored(context, row.Value);
    box.SetChecked(!value || AsInteger(*value) == 1);
}

void RecordFirewall(TPageContext& context, const TSpecialRow& row, TComponent& sender) {
    if (context.WindowsLevel >= kVista)
        RecordService(context, kFirewall, sender);
    else
        RecordNumber(context, sender.Name(), row.Value, static_cast<TCheckBox&>(sender).Checked() ? 1 : 0);
}

void LoadAutoUpdate(TPageContext& context, const TSpecialRow& row) {
    auto& box = *context.Form.Find<TCheckBox>(row.Controls[0]);
    auto& list = *context.Form.Find<TComboBox>(row.Controls[1]);
    const auto value = Stored(context, row.Value);
    if (!value) return list.SetEnabled(box.Checked());
    const auto number = AsInteger(*value);
    const bool on = number != kUpdatesOff;
    box.SetChecked(on);
    list.SetEnabled(on);
    const auto* kind = std::find(std::begin(kUpdateKinds), std::end(kUpdateKinds), number);
    if (kind != std::end(kUpdateKinds)) list.SetItemIndex(static_cast<int>(kind - kUpdateKinds));
}

void RecordAutoUpdate(TPageContext& context, const TSpecialRow& row, TComponent& /*sender*/) {
    constexpr const wchar_t* kChangeName = L"CHKAutoupdate";
    const bool on = context.Form.Find<TCheckBox>(row.Controls[0])->Checked();
    auto& list = *context.Form.Find<TComboBox>(row.Controls[1]);
    list.SetEnabled(on);
    const auto kind = static_cast<std::size_t>(list.ItemIndex());
    if (!on)
        RecordNumber(context, kChangeName, row.Value, kUpdatesOff);
    else if (kind < std::size(kUpdateKinds))
        RecordNumber(context, kChangeName, row.Value, kUpdateKinds[kind]);
}
