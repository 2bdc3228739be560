#include "settings/rows.h"

#include <algorithm>

#include "settings/row_kinds.h"
#include "ui/component.h"

namespace {

/// Marks the changes that are recorded in a scope. Scopes nest: a special row may use another row.
class TRecordingScope {
  public:
    TRecordingScope(TPageContext& context, const std::wstring& setting, TRestart restartNeeded)
        : FContext(context),
          FOuter(std::exchange(context.Setting, setting)),
          FOuterNeeded(context.RestartNeeded) {
        context.RestartNeeded = std::max(context.RestartNeeded, restartNeeded);
    }
    ~TRecordingScope() {
        FContext.Setting = FOuter;
        FContext.RestartNeeded = FOuterNeeded;
    }
    TRecordingScope(const TRecordingScope&) = delete;
    TRecordingScope& operator=(const TRecordingScope&) = delete;

  private:
    TPageContext& FContext;
    std::wstring FOuter;
    TRestart FOuterNeeded;
};

using TNames = std::vector<std::wstring>;

TNames Controls(const TRadioPairRow& row) { return {row.First, row.Second}; }
TNames Controls(const TColorRow& row) { return {row.Button, row.Swatch}; }
TNames Controls(const TProgramRow& row) { return {row.Button}; }
TNames Controls(const TSpecialRow& row) { return {row.Controls.begin(), row.Controls.end()}; }
TNames Controls(const TNumberRow& row) {
    TNames names{row.Control};
    if (row.Edit != nullptr) names.emplace_back(row.Edit);
    return names;
}
TNames Controls(const TSwitchRow& row) {
    TNames names{row.On};
    if (row.Off != nullptr) names.emplace_back(row.Off);
    names.insert(names.end(), row.Amount.begin(), row.Amount.end());
    return names;
}
TNames Controls(const TListsRow& row) {
    TNames names;
    for (const TBitsList& list : row.Lists) names.emplace_back(list.Control);
    return names;
}
template <typename T>
TNames Controls(const T& row) {
    return {row.Control};
}

using TPlaces = std::vector<TPlace>;

TPlaces Places(const TSpecialRow& row) { return {row.Places.begin(), row.Places.end()}; }
TPlaces Places(const TFieldsRow& row) {
    TPlaces places;
    if (row.Records) places.push_back(row.Value);
    for (const TBoxField& field : row.Fields) places.push_back(field.Value);
    return places;
}
template <typename T>
TPlaces Places(const T& row) {
    TPlaces places{row.Value};
    if constexpr (requires { row.Further->Value; })
        if (row.Further) places.push_back(row.Further->Value);
    if constexpr (requires { row.Further.front(); })
        for (const TBoxFurther& further : row.Further) places.push_back(further.Value);
    if constexpr (requires { row.Policy; })
        if (row.Policy != nullptr) places.push_back(ExplorerPolicy(row.Policy));
    return places;
}

}  // namespace

std::vector<std::wstring> ControlsOf(const TRow& row) {
    return std::visit([](const auto& kind) { return Controls(kind); }, row);
}

std::vector<TPlace> PlacesOf(const TRow& row) {
    return std::visit([](const auto& kind) { return Places(kind); }, row);
}

std::set<std::wstring> TouchedBy(const TRow& row) {
    std::set<std::wstring> touched;
    const auto add = [&](const wchar_t* name) {
        if (name != nullptr) touched.insert(name);
    };
    std::visit(
        [&](const auto& kind) {
            if constexpr (requires { kind.Enables; }) std::ranges::for_each(kind.Enables, add);
            if constexpr (requires { kind.OnClick; })
                if (kind.OnClick != nullptr) std::ranges::for_each(kind.OnClick->Enables, add);
            if constexpr (requires { kind.Toggles; }) add(kind.Toggles);
            if constexpr (requires { kind.FirstShows; }) {
                add(kind.FirstShows);
                add(kind.SecondShows);
            }
            if constexpr (requires { kind.Fields; })
                for (const TBoxField& field : kind.Fields) add(field.Edit);
            if constexpr (requires { kind.Button; }) {
                if constexpr (requires { kind.Edit; }) add(kind.Edit);
            }
        },
        row);
    return touched;
}

TLevels LevelsOf(const TRow& row) {
    return std::visit([](const auto& kind) { return kind.Levels; }, row);
}

TLevels LoadedOn(const TRow& row) {
    return std::visit([](const auto& kind) { return kind.Levels & kind.LoadedOn; }, row);
}

TRestart RestartOf(const TRow& row) {
    return std::visit([](const auto& kind) { return kind.Restart; }, row);
}

void LoadRow(TPageContext& context, const TRow& row) {
    if (!LoadedOn(row).Include(context.Release)) return;
    std::visit([&](const auto& kind) { Load(context, kind); }, row);
}

void RecordRow(TPageContext& context, const TRow& row, TComponent& sender) {
    if (!LevelsOf(row).Include(context.Release)) return;
    const auto names = ControlsOf(row);
    if (std::find(names.begin(), names.end(), sender.Name()) == names.end()) return;
    std::visit(
        [&](const auto& kind) {
            const TRecordingScope recording(context, sender.Name(), kind.Restart);
            RecordFrom(context, kind, sender);
        },
        row);
}
