#include "tests/settings/page_script.h"

#include <fstream>
#include <memory>

#include "platform/unicode.h"
#include "settings/page_table.h"
#include "settings/shell/desktop_icons.h"
#include "tests/settings/page_scene.h"

namespace {

bool IsBox(const TControl& control) {
    return control.Kind() == TComponentKind::CheckBox || control.Kind() == TComponentKind::RadioButton;
}
bool IsNumber(const TControl& control) {
    return control.Kind() == TComponentKind::TrackBar || control.Kind() == TComponentKind::UpDown;
}
bool IsSetting(const TControl& control) {
    return IsBox(control) || IsNumber(control) || control.Kind() == TComponentKind::ComboBox;
}

/// The verb that puts a value at a place of any kind; empty for a missing one.
TLine Stored(const TLine& place, const TLine& value) {
    const bool isMissing = value == L"missing";
    if (place.starts_with(L"pref "))
        return isMissing ? L"firefox" : L"firefox user_pref(" + place.substr(5) + L", " + value + L");";
    if (isMissing) return {};
    if (place.starts_with(L"parameter ")) return place.substr(0, place.find(L',')) + L" = " + value;
    return L"stored " + place + L" = " + value;
}

/// The change that writes it.
TLine Written(const TLine& name, const TLine& place, const TLine& value) {
    if (place.starts_with(L"pref ")) return L"user_pref(" + place.substr(5) + L", " + value + L");";
    if (value == L"deleted") return name + L"-: delete " + place;
    if (value == L"key deleted") return name + L"-: delete " + place.substr(0, place.rfind(L'['));
    if (!place.starts_with(L"parameter ")) return name + L": " + place + L" = " + value;
    TLine call = place.substr(place.find(L',') + 2);
    return name + L": parameter " + call.replace(call.find(L'#'), 1, value);
}

class TScript {
  public:
    /// One line, with those set in below it.
    void Run(const TLine& line, TLines below) {
        for (TLine& inner : below) inner = Named(inner);
        TLine rest = Named(line);
        SCOPED_TRACE(ToUtf8(rest));
        const TLine whole = rest;
        const TLine verb = Take(rest, L" ");
        if (const auto step = kLines.find(verb); step != kLines.end()) return (this->*step->second)(rest);
        if (!FScene) FScene = std::make_unique<TScene>(*FPage, FCovered);
        if (!FScene->Run(whole, below)) throw std::invalid_argument("no such verb");
    }
    void EndScene() { FScene = nullptr; }

    /// Every control that stands for something is looked at and acted on.
    void ExpectComplete() {
        TScene scene(*FPage, FCovered);
        std::set<TLine> parts;  // edits that are an up-down's
        for (const TControl* control : Controls(scene))
            if (control->Kind() == TComponentKind::UpDown)
                if (const auto* edit = static_cast<const TUpDown*>(control)->Associate())
                    parts.insert(edit->Name());
        for (const TControl* control : Controls(scene)) {
            const TLine& name = control->Name();
            const bool isEdit = control->Kind() == TComponentKind::Edit && !parts.contains(name);
            if (IsSetting(*control) || isEdit)
                EXPECT_TRUE(FCovered.Shown.contains(name))
                    << "no line says what is stored when it shows what: " << ToUtf8(name);
            if (IsSetting(*control) || isEdit || control->Kind() == TComponentKind::Button)
                EXPECT_TRUE(FCovered.ActedOn.contains(name))
                    << "no line says what its use writes: " << ToUtf8(name);
        }
    }

  private:
    void Let(TLine rest) {
        const TLine name = Take(rest, L" = ");
        FNames[name] = rest;
    }

    void Page(TLine rest) {
        const int tag = std::stoi(Take(rest, L" "));
        for (const TPageDefinition* page : PageDefinitions())
            if (page->Tag == tag) FPage = page;
        EXPECT_EQ(FPage->LoadsEveryVisit, rest == L"every visit");
    }

    void Shows(TLine rest) {
        TLine state = Take(rest, L" | ");
        TLines found = Parts(rest);
        TLine level;
        if (found.back().find_first_not_of(L"0123456789.") == TLine::npos) {
            level = found.back();
            found.pop_back();
        }
        for (const TLine& control : TakeControls(state)) ExpectShown(control, state, found, level);
    }

    void Writes(TLine rest) {
        TLine state = Take(rest, L" | ");
        const TLine control = Take(state, L" ");
        ExpectWritten(control, state, Parts(rest), {});
    }

    void Setting(TLine rest) {
        const TLine control = Take(rest, L" | ");
        std::vector<std::pair<TLine, TLine>> places{{L"*", Take(rest, L" | ")}};
        TLines parts = Parts(rest);
        TLines restarts;
        for (const wchar_t* word : {L"restart", L"explorer"})
            if (std::erase(parts, word) != 0) restarts.emplace_back(word);
        TLine level;
        for (TLine part : parts) {
            TLine value = part;
            const TLine word = Take(value, L" ");
            if (word == L"level") {
                level = value;
            } else if (word == L"as") {
                places[0].first = value;
            } else if (word == L"and") {
                const TLine name = Take(value, L": ");
                places.emplace_back(name, value);
            } else {
                const bool isBoth = part.find(L" <-> ") != TLine::npos;
                const bool isWritten = isBoth || part.find(L" <- ") != TLine::npos;
                const TLines values = Parts(Take(part, isBoth      ? L" <-> "
                                                       : isWritten ? L" <- "
                                                                   : L" -> "),
                                            L", ");
                if (part.empty()) throw std::invalid_argument("no case");
                if (isBoth || !isWritten)
                    for (const TLine& each : values)
                        ExpectShown(control, part, {Stored(places[0].second, each)}, level);
                if (!isWritten) continue;
                TLines changes;
                for (const auto& [name, place] : places) changes.push_back(Written(name, place, values[0]));
                changes.insert(changes.end(), restarts.begin(), restarts.end());
                ExpectWritten(control, part, changes, level);
                for (const bool populated : {false, true})
                    EXPECT_EQ(LeftAfter(control, part, level, 1, populated),
                              LeftAfter(control, part, level, 3, populated));
            }
        }
    }

    /// What is stored after so many clicks on a box, which shows the state then, and Apply.
    std::vector<std::wstring> LeftAfter(const TLine& control, const TLine& state, const TLine& level,
                                        int clicks, bool populated) {
        const TLine opposite = state == L"on" ? L"off" : L"on";
        TScene scene(*FPage, FCovered, level);
        TPageBench& bench = scene.Bench();
        if (bench.Get<TControl>(control).Kind() != TComponentKind::CheckBox) return {};
        if (populated) {
            TScene other(*FPage, FCovered, level);
            for (const TLine& each : {state, opposite, state}) other.Bench().Act(control, each);
            other.IgnoreRestart();
            for (const TRegRecor& record : other.Bench().Context.Changes.Pending()) {
                bench.Fake.Registry.Put({record.RootKey, record.Key, record.ValueName}, String(L"found"));
                bench.Fake.Registry.Put({record.RootKey, record.Key, L"beside"}, Number(1));
                bench.Fake.Registry.Put({record.RootKey, record.Key + L"\\below", L"beside"}, Number(1));
            }
        }
        bench.Preset(control, opposite);
        for (; clicks > 0; --clicks) bench.Act(control, clicks % 2 == 0 ? opposite : state);
        bench.Context.Changes.WriteAll();
        return bench.Fake.Registry.Lines();
    }

    void Presses(TLine rest) {
        const TLine button = Take(rest, L" | ");
        TLine level;
        std::vector<std::pair<TLine, TLine>> states;
        for (TLine part : Parts(rest)) {
            const TLine state = Take(part, L" ");
            if (state == L"level")
                level = part;
            else
                for (const TLine& control : TakeControls(part)) states.emplace_back(control, state);
        }
        TScene scene(*FPage, FCovered, level);
        TPageBench& bench = scene.Bench();
        for (const auto& [control, state] : states) BringElsewhere(bench, control, state);
        std::map<TLine, TLine> others;
        for (const TControl* control : Controls(scene))
            if (IsSetting(*control) && control->Kind() != TComponentKind::RadioButton)
                others[control->Name()] = bench.State(control->Name());
        scene.Act(button, {});
        for (const auto& [control, state] : states) {
            EXPECT_EQ(bench.State(control), state) << ToUtf8(control);
            others.erase(control);
        }
        for (const auto& [control, state] : others) EXPECT_EQ(bench.State(control), state) << ToUtf8(control);
        scene.IgnoreRestart();
    }

    void Offered(TLine rest) {
        const TLines ranges = TakeControls(rest);
        for (const TLine& control : TakeControls(rest)) {
            for (std::size_t i = 0; i < kReleaseCount; ++i) {
                const bool isOffered =
                    std::ranges::any_of(ranges, [&](const TLine& range) { return IsIn(i, range); });
                SCOPED_TRACE(testing::Message() << "level " << TRelease::At(i).Level() << ", release " << i);
                LoadedOn(i).Expect(control, isOffered ? L"visible" : L"hidden");
            }
        }
    }

    /// The page on a release of Windows where nothing is stored; only to be looked at.
    TScene& LoadedOn(std::size_t release) {
        std::unique_ptr<TScene>& scene = FLoaded[release];
        if (scene == nullptr) {
            scene = std::make_unique<TScene>(*FPage, FCovered);
            scene->Bench().Context.Release = TRelease::At(release);
            scene->Bench().Load();
        }
        return *scene;
    }

    static bool IsIn(std::size_t release, TLine range) {
        const bool isOne = range.find(L'-') == TLine::npos;
        const TLine first = Take(range, L"-");
        const TLine last = isOne ? first : range;
        return ReleaseOf(first, 0).Index() <= release && (last.empty() || release <= ReleaseOf(last).Index());
    }

    void Names(TLine rest) {
        const TLine control = Take(rest, L" | ");
        for (TLine caption : Parts(rest)) {
            for (const TLine& level : TakeControls(caption)) {
                TScene scene(*FPage, FCovered, level);
                scene.Bench().Load();
                scene.Expect(control, L"called " + caption);
            }
        }
    }

    void ExpectShown(const TLine& control, const TLine& shows, const TLines& found, const TLine& level) {
        SCOPED_TRACE(ToUtf8(found[0] + L' ' + level));
        FCovered.Shown.insert(control);
        for (const bool before : {false, true}) {
            TScene scene(*FPage, FCovered, level);
            TPageBench& bench = scene.Bench();
            const bool isBox = IsBox(bench.Get<TControl>(control));
            if (before && !isBox) break;
            if (isBox && !before) BringElsewhere(bench, control, L"on");
            if (before) bench.Preset(control, L"on");
            const TLine kept = bench.State(control);
            for (const TLine& each : found)
                if (!each.empty() && !scene.Run(each, {})) scene.Run(L"stored " + each, {});
            bench.Load();
            scene.Expect(control, shows == L"kept" ? kept : shows);
            EXPECT_TRUE(bench.Pending().empty() && bench.Recorded == 0 && !bench.Context.FirefoxChanged)
                << "loading records nothing";
            EXPECT_FALSE(bench.Context.Loading);
        }
    }

    void ExpectWritten(const TLine& control, const TLine& state, const TLines& parts, const TLine& level) {
        SCOPED_TRACE(ToUtf8(state + L' ' + level));
        TScene scene(*FPage, FCovered, level);
        TPageBench& bench = scene.Bench();
        const TLines changes = scene.Changes(control, parts);
        if (IsBox(bench.Get<TControl>(control))) BringElsewhere(bench, control, state);
        scene.Act(control, state);
        scene.ExpectChanges(changes);
        const bool isFirefox = std::ranges::any_of(
            changes, [](const TLine& change) { return change.starts_with(L"user_pref("); });
        EXPECT_EQ(bench.Context.FirefoxChanged, isFirefox);
        EXPECT_GE(bench.Recorded, 1) << "Apply is to be enabled";
    }

    /// A state other than that one.
    static void BringElsewhere(TPageBench& bench, const TLine& name, const TLine& state) {
        const TLoadingScope loading(bench.Context);
        auto& control = bench.Get<TControl>(name);
        if (control.Kind() == TComponentKind::RadioButton) {
            for (const TControl* sibling : control.Parent()->Children())
                if (sibling != &control && sibling->Kind() == control.Kind())
                    bench.Act(sibling->Name(), L"on");
        } else if (IsBox(control)) {
            bench.Act(name, state == L"on" ? L"off" : L"on");
        } else if (IsNumber(control)) {
            const auto& range = static_cast<TRangeControl&>(control);
            bench.Act(name,
                      std::to_wstring(std::to_wstring(range.Max()) == state ? range.Min() : range.Max()));
        } else {
            bench.Act(name, state == L"0" ? L"1" : L"0");
        }
    }

    static std::vector<const TControl*> Controls(TScene& scene) {
        std::vector<const TControl*> controls;
        for (const auto& component : scene.Bench().Context.Form.Components())
            if (const auto* control = dynamic_cast<const TControl*>(component.get()))
                controls.push_back(control);
        return controls;
    }

    TLine Named(TLine line) const {
        for (const auto& [name, text] : FNames) {
            const TLine mark = L'<' + name + L'>';
            for (std::size_t at = 0; (at = line.find(mark, at)) != TLine::npos;)
                line.replace(at, mark.size(), text);
        }
        return line;
    }

    static const std::map<TLine, void (TScript::*)(TLine)> kLines;

    const TPageDefinition* FPage = &DesktopIcons();
    TScene::TCovered FCovered;
    std::map<std::size_t, std::unique_ptr<TScene>> FLoaded;  ///< by the index of the release
    std::unique_ptr<TScene> FScene;
    std::map<TLine, TLine> FNames{{L"IS 0", L"0 <-> on | 1, 2 <-> off"},
                                  {L"IS 1", L"1 <-> on | 0, 2 <-> off"},
                                  {L"NOT 0", L"1, 2 <-> on | 0 <-> off"},
                                  {L"NOT 1", L"0, 2 <-> on | 1 <-> off"}};
};

const std::map<TLine, void (TScript::*)(TLine)> TScript::kLines{
    {L"let", &TScript::Let},         {L"page", &TScript::Page},       {L"shows", &TScript::Shows},
    {L"writes", &TScript::Writes},   {L"setting", &TScript::Setting}, {L"presses", &TScript::Presses},
    {L"offered", &TScript::Offered}, {L"names", &TScript::Names},
};

}  // namespace

void RunPageScript(const std::string& path) {
    std::ifstream file(path);
    ASSERT_TRUE(file.is_open());
    TLines lines;
    for (std::string line; std::getline(file, line);) lines.emplace_back(line.begin(), line.end());
    lines.emplace_back();  // ends the last scene
    TScript script;
    for (std::size_t i = 0; i < lines.size(); ++i) {
        const testing::ScopedTrace trace(path.c_str(), static_cast<int>(i) + 1, "");
        const TLine line = Trimmed(lines[i]);
        if (line.empty()) script.EndScene();
        if (line.empty() || line[0] == L'#') continue;
        TLines below;
        while (lines[i + 1].starts_with(L' ')) below.push_back(Trimmed(lines[++i]));
        try {
            script.Run(line, below);
        } catch (const std::exception& fault) {
            ADD_FAILURE() << fault.what();
        }
    }
    script.ExpectComplete();
}
