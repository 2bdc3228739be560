#include "settings/rights.h"

#include <algorithm>

#include "settings/page_model.h"
#include "settings/row_places.h"
#include "ui/spoken_name.h"

namespace {

bool MayChange(const TRegistry& registry, TRegistryPlace key) {
    while (registry.Check(key, TRegistryView::Native) == TReadStatus::KeyUnavailable) {
        TRawValue value;
        const bool isThere = registry.ReadRaw(key, value) != TReadStatus::KeyUnavailable;
        if (isThere || key.Key.empty()) return false;
        const std::size_t above = key.Key.rfind(L'\\');
        key.Key.resize(above == std::wstring::npos ? 0 : above);
    }
    return true;
}

}  // namespace

bool IsForAllUsers(const TTarget& target) {
    if (const auto* registry = std::get_if<TRegistryTarget>(&target))
        return registry->Root != TRootKey::CurrentUser;
    return std::holds_alternative<TServiceTarget>(target);
}

bool MayChange(const TSystem& system, const TTarget& target) {
    if (const auto* registry = std::get_if<TRegistryTarget>(&target))
        return MayChange(system.Registry, {registry->Root, registry->Key, {}});
    return !IsForAllUsers(target) || HasAdministratorRights(system);
}

bool HasAdministratorRights(const TSystem& system) {
    return MayChange(system.Registry, {TRootKey::LocalMachine, L"SOFTWARE", {}});
}

std::vector<std::wstring> ControlsForAllUsers(const TPageContext& context, const TPageDefinition& page) {
    std::vector<std::wstring> controls;
    for (const TLoader& loader : page.Loaders) {
        for (const TRow& row : loader) {
            if (!LevelsOf(row).Include(context.Release) || !IsForAllUsers(TargetsOf(row).front())) continue;
            for (std::wstring& control : ControlsOf(row)) controls.push_back(std::move(control));
        }
    }
    return controls;
}

void MarkControlsForAllUsers(const TPageContext& context, const TPageDefinition& page) {
    for (const std::wstring& name : ControlsForAllUsers(context, page)) {
        TControl& captioned = CaptionedBy(*context.Form.Find(name));
        std::wstring caption = captioned.Caption();
        if (caption.find(L'*') != std::wstring::npos) continue;
        caption.insert(caption.ends_with(L':') ? caption.size() - 1 : caption.size(), L" *");
        captioned.SetCaption(caption);
    }
}

std::wstring RightsLine(const TPageContext& context, const TPageDefinition& page) {
    const auto isShown = [&](const std::wstring& control) {
        return TPageModel::IsShown(*context.Form.Find(control));
    };
    if (HasAdministratorRights(context.System) ||
        std::ranges::none_of(ControlsForAllUsers(context, page), isShown))
        return {};
    return context.Captions[TCaption::NoRights];
}
