#include "tests/settings/page_script.h"

#include <algorithm>
#include <fstream>
#include <functional>
#include <map>
#include <memory>
#include <sstream>

#include "platform/text.h"
#include "platform/unicode.h"
#include "settings/page_table.h"
#include "settings/shell/desktop_icons.h"
#include "tests/settings/page_bench.h"

namespace {

using TLine = std::wstring;
using TLines = std::vector<TLine>;

TLine Trimmed(std::wstring_view text) { return TLine(Trim(text)); }

/// The text up to the separator, which is taken off with it; the whole text when there is none.
TLine Take(TLine& text, const wchar_t* separator) {
    const std::size_t end = text.find(separator);
    TLine head = Trimmed(text.substr(0, end));
    text = end == TLine::npos ? TLine() : Trimmed(text.substr(end + wcslen(separator)));
    return head;
}

/// The controls that a line begins with, with commas between them.
TLines TakeControls(TLine& rest) {
    TLines controls;
    for (bool more = true; more;) {
        TLine control = Take(rest, L" ");
        more = control.ends_with(L',');
        if (more) control.pop_back();
        controls.push_back(control);
    }
    return controls;
}

TLines Parts(TLine rest) {
    TLines parts;
    while (!rest.empty()) parts.push_back(Take(rest, L" | "));
    return parts;
}

bool IsPref(const TLine& change) { return change.starts_with(L"user_pref("); }

std::uint32_t Unsigned(const TLine& text) { return static_cast<std::uint32_t>(std::stoul(text, nullptr, 0)); }

TRegistryData Value(const TLine& text) {
    if (text.starts_with(L'"')) return String(text.substr(1, text.size() - 2).c_str());
    if (text == L"other") return {};
    if (!text.starts_with(L"hex")) return Number(std::stoi(text, nullptr, 0));
    TBytes bytes;
    std::wistringstream digits(text.substr(3));
    for (TLine byte; digits >> byte;)
        bytes.push_back(static_cast<std::uint8_t>(std::stoul(byte, nullptr, 16)));
    return Bytes(bytes);
}

TRegistryPlace Place(const TLine& text) {
    const std::size_t key = text.find(L'\\');
    const std::size_t name = std::min(text.rfind(L'['), text.size());
    const TLine root = text.substr(0, key);
    return {root == L"HKLM"   ? TRootKey::LocalMachine
            : root == L"HKCU" ? TRootKey::CurrentUser
            : root == L"HKU"  ? TRootKey::Users
                              : TRootKey::ClassesRoot,
            text.substr(key, name - key),
            name == text.size() ? TLine() : text.substr(name + 1, text.size() - name - 2)};
}

class TScene {
  public:
    explicit TScene(const TPageDefinition& page) : FBench(page) { FBench.Context.WindowsLevel = 7; }
    ~TScene() { EXPECT_EQ(FNeededRestart || FBench.NeedsRestart(), FRestart) << "restart"; }
    TScene(const TScene&) = delete;
    TScene& operator=(const TScene&) = delete;

    TPageBench& Bench() { return FBench; }

    /// False when the line does not begin with a verb.
    bool Run(TLine line, const TLines& below) {
        const TLine verb = Take(line, L" ");
        const auto step = kSteps.find(verb);
        if (step == kSteps.end()) return false;
        step->second(*this, line, below);
        return true;
    }

    void Expect(const TLine& control, const TLine& rest) {
        SCOPED_TRACE(ToUtf8(control));
        TControl& c = FBench.Get<TControl>(control);
        if (rest == L"enabled" || rest == L"disabled") {
            EXPECT_EQ(c.Enabled(), rest == L"enabled");
        } else if (rest == L"visible" || rest == L"hidden") {
            const bool isSheet = c.Kind() == TComponentKind::TabSheet;
            EXPECT_EQ(isSheet ? static_cast<TTabSheet&>(c).TabVisible() : c.Visible(), rest == L"visible");
        } else if (rest.starts_with(L"called ")) {
            EXPECT_EQ(c.Caption(), rest.substr(7));
        } else {
            EXPECT_EQ(FBench.State(control), rest);
        }
    }

    /// The changes among the parts of a line, with the control's name for *; the parts that are verbs run.
    TLines Changes(const TLine& control, const TLines& parts) {
        TLines changes;
        for (TLine part : parts) {
            if (part.starts_with(L'*')) part = control + part.substr(1);
            if (!Run(part, {})) changes.push_back(part);
        }
        return changes;
    }

    /// Expects them to be all that are pending and, when some are Firefox preferences, all of these.
    void ExpectChanges(TLines changes) {
        const auto prefs = std::stable_partition(changes.begin(), changes.end(), std::not_fn(IsPref));
        if (prefs != changes.end()) Prefs(*this, L"changed", {prefs, changes.end()});
        changes.erase(prefs, changes.end());
        EXPECT_EQ(FBench.Pending(), changes);
    }

  private:
    using TStep = void (*)(TScene&, TLine, const TLines&);

    static void AddPending(TScene& scene, TLine rest, const TLines& /*below*/) {
        const TRegistryPlace place = Place(Take(rest, L" = "));
        const TRegistryData value = Value(rest);
        scene.FBench.Context.Changes.Add({.Name = L"another page's",
                                          .RootKey = place.Root,
                                          .Key = place.Key,
                                          .ValueName = place.ValueName,
                                          .DataType = value.Type,
                                          .Value = value.Value});
    }

    static void Answer(TScene& scene, TLine rest, const TLines& /*below*/) {
        auto& dialogs = scene.FBench.Fake.Dialogs;
        const TLine kind = Take(rest, L" ");
        if (kind == L"file") return dialogs.AnswerFile(rest);
        if (kind == L"color") return dialogs.AnswerColor(Unsigned(rest));
        if (kind != L"nothing") dialogs.Answer(kind == L"yes" ? TMessageAnswer::Yes : TMessageAnswer::No);
    }

    static void Asked(TScene& scene, TLine rest, const TLines& /*below*/) {
        const auto& dialogs = scene.FBench.Fake.Dialogs;
        const bool isFile = Take(rest, L" ") == L"file";
        ASSERT_FALSE(isFile ? dialogs.Filters().empty() : dialogs.InitialColors().empty());
        EXPECT_TRUE(isFile ? dialogs.Filters().back() == rest
                           : dialogs.InitialColors().back() == Unsigned(rest));
    }

    static void Do(TScene& scene, TLine rest, const TLines& /*below*/) {
        TLine state = Take(rest, L" | ");
        const TLines controls = TakeControls(state);
        for (const TLine& control : controls) scene.FBench.Act(control, state);
        if (!rest.empty()) scene.ExpectChanges(scene.Changes(controls.front(), Parts(rest)));
    }

    static void Firefox(TScene& scene, TLine rest, const TLines& /*below*/) {
        constexpr const wchar_t* kProduct =
            L"Software\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\Mozilla Firefox (3.6)";
        TFakeSystem& fake = scene.FBench.Fake;
        const bool isInstalled = rest != L"none";
        scene.FUserFile = rest.empty() || !isInstalled ? "" : scene.FUserFile + ToUtf8(rest) + "\n";
        fake.Files.PutText(L"C:\\Mozilla\\profiles.ini", "[Profile0]\nIsRelative=1\nPath=p\n");
        fake.Files.PutText(L"C:\\Mozilla\\p\\user.js", scene.FUserFile);
        if (isInstalled) return fake.Registry.PutKey(TRootKey::LocalMachine, kProduct);
        static_cast<void>(fake.Registry.DeleteKey(TRootKey::LocalMachine, kProduct));
    }

    static void Prefs(TScene& scene, TLine rest, const TLines& below) {
        EXPECT_EQ(scene.FBench.Context.Firefox.FirefoxPrefLines(), below);
        if (rest.empty()) return;
        EXPECT_EQ(scene.FBench.Context.FirefoxChanged, rest == L"changed");
    }

    static void Now(TScene& scene, TLine rest, const TLines& /*below*/) {
        const bool isMissing = rest.ends_with(L" missing");
        const TRegistryPlace place = Place(Take(rest, isMissing ? L" missing" : L" = "));
        const TRegistryData* stored = scene.FBench.Fake.Registry.Find(place);
        ASSERT_EQ(stored == nullptr, isMissing);
        if (isMissing) return;
        EXPECT_EQ(*stored, Value(rest));
    }

    static void Service(TScene& scene, TLine rest, const TLines& /*below*/) {
        const TLine name = Take(rest, L" ");
        scene.FBench.Fake.Services.Put(name, {.State = rest == L"running"  ? TServiceState::Running
                                                       : rest == L"paused" ? TServiceState::Paused
                                                                           : TServiceState::Stopped});
    }

    static const std::map<TLine, TStep> kSteps;

    TPageBench FBench;
    std::string FUserFile;
    bool FRestart = false;
    bool FNeededRestart = false;  ///< for what was written already
};

const std::map<TLine, TScene::TStep> TScene::kSteps{
    {L"level", [](TScene& s, TLine rest, const TLines&) { s.FBench.Context.WindowsLevel = std::stoi(rest); }},
    {L"stored",
     [](TScene& s, TLine rest, const TLines&) {
         const TRegistryPlace place = Place(Take(rest, L" = "));
         s.FBench.Fake.Registry.Put(place, Value(rest));
     }},
    {L"denied",
     [](TScene& s, TLine rest, const TLines&) {
         const TRegistryPlace place = Place(rest);
         s.FBench.Fake.Registry.DenyAccess(place.Root, place.Key);
     }},
    {L"pending", AddPending},
    {L"parameter",
     [](TScene& s, TLine rest, const TLines&) {
         const std::uint32_t action = Unsigned(Take(rest, L" = "));
         if (rest.starts_with(L"hex"))
             return s.FBench.Fake.Parameters.Put(action, std::get<TBytes>(Value(rest).Value));
         s.FBench.Fake.Parameters.PutNumber(action, Unsigned(rest));
     }},
    {L"service", Service},
    {L"firefox", Firefox},
    {L"answer", Answer},
    {L"load", [](TScene& s, TLine, const TLines&) { s.FBench.Load(); }},
    {L"do", Do},
    {L"preset",
     [](TScene& s, TLine rest, const TLines&) {
         const TLoadingScope loading(s.FBench.Context);
         for (const TLine& control : TakeControls(rest)) s.FBench.Act(control, rest);
     }},
    {L"leave", [](TScene& s, TLine rest, const TLines&) { s.FBench.Get<TEdit>(rest).SetFocused(false); }},
    {L"apply", [](TScene& s, TLine,
                  const TLines&) { s.FNeededRestart |= s.FBench.Context.Changes.WriteAll().RestartNeeded; }},
    {L"expect",
     [](TScene& s, TLine rest, const TLines&) {
         for (const TLine& control : TakeControls(rest)) s.Expect(control, rest);
     }},
    {L"records", [](TScene& s, TLine, const TLines& below) { EXPECT_EQ(s.FBench.Pending(), below); }},
    {L"recorded",
     [](TScene& s, TLine rest, const TLines&) { EXPECT_EQ(s.FBench.Recorded, std::stoi(rest)); }},
    {L"asked", Asked},
    {L"prefs", Prefs},
    {L"now", Now},
    {L"security",
     [](TScene& s, TLine rest, const TLines&) { EXPECT_EQ(s.FBench.Switches(L"wscsvc"), std::stoi(rest)); }},
    {L"firewall",
     [](TScene& s, TLine rest, const TLines&) { EXPECT_EQ(s.FBench.Switches(L"MpsSvc"), std::stoi(rest)); }},
    {L"restart", [](TScene& s, TLine, const TLines&) { s.FRestart = true; }},
};

void RunShows(const TPageDefinition& page, const TLine& control, const TLine& shows, const TLine& stored,
              const TLine& level) {
    SCOPED_TRACE(ToUtf8(stored));
    for (const bool before : {false, true}) {
        TScene scene(page);
        TPageBench& bench = scene.Bench();
        if (!level.empty()) bench.Context.WindowsLevel = std::stoi(level);
        const bool isBox = bench.Get<TControl>(control).Kind() == TComponentKind::CheckBox;
        if (isBox) bench.Preset(control, before);
        const TLine kept = bench.State(control);
        if (!stored.ends_with(L" missing") && !scene.Run(stored, {})) scene.Run(L"stored " + stored, {});
        bench.Load();
        scene.Expect(control, shows == L"kept" ? kept : shows);
        EXPECT_TRUE(bench.Pending().empty() && bench.Recorded == 0 && !bench.Context.FirefoxChanged)
            << "loading records nothing";
        if (!isBox) break;
    }
}

void RunShows(const TPageDefinition& page, const TLine& control, const TLine& place, TLine cases) {
    if (cases.empty()) throw std::invalid_argument("no case");
    for (TLine level; !cases.empty();) {
        TLine part = Take(cases, L" | ");
        const TLine value = Take(part, L" -> ");
        if (value.starts_with(L"level "))
            level = value.substr(6);
        else
            RunShows(page, control, part, place + (value == L"missing" ? L" " : L" = ") + value, level);
    }
}

void RunShows(const TPageDefinition& page, TLine rest) {
    TLine state = Take(rest, L" | ");
    const TLines controls = TakeControls(state);
    const TLine place = Take(rest, L" | ");
    for (const TLine& control : controls)
        state.empty() ? RunShows(page, control, place, rest) : RunShows(page, control, state, place, rest);
}

void RunWrites(const TPageDefinition& page, const TLine& control, const TLine& state, const TLines& parts) {
    SCOPED_TRACE(ToUtf8(state));
    TScene scene(page);
    TPageBench& bench = scene.Bench();
    const TLines changes = scene.Changes(control, parts);
    if (bench.Get<TControl>(control).Kind() == TComponentKind::CheckBox)
        bench.Preset(control, state == L"off");
    bench.Act(control, state);
    scene.ExpectChanges(changes);
    EXPECT_EQ(bench.Context.FirefoxChanged, std::ranges::any_of(changes, IsPref));
    EXPECT_GE(bench.Recorded, 1) << "Apply is to be enabled";
}

void RunWrites(const TPageDefinition& page, TLine rest) {
    TLine state = Take(rest, L" | ");
    const TLine control = Take(state, L" ");
    TLines parts = Parts(rest);
    if (!state.empty()) return RunWrites(page, control, state, parts);
    const auto first = std::stable_partition(
        parts.begin(), parts.end(), [](const TLine& part) { return part.find(L" -> ") == TLine::npos; });
    const TLines cases(first, parts.end());
    if (cases.empty()) throw std::invalid_argument("no case");
    parts.erase(first, parts.end());
    const TLine change = parts[0];
    for (TLine part : cases) {
        state = Take(part, L" -> ");
        parts[0] = change + L" = " + part;
        RunWrites(page, control, state, parts);
    }
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
        if (verb == L"let") {
            const TLine name = Take(rest, L" = ");
            FNames[name] = rest;
        } else if (verb == L"page") {
            const int tag = std::stoi(Take(rest, L" "));
            for (const TPageDefinition* page : PageDefinitions())
                if (page->Tag == tag) FPage = page;
            EXPECT_EQ(FPage->LoadsEveryVisit, rest == L"every visit");
        } else if (verb == L"shows") {
            RunShows(*FPage, rest);
        } else if (verb == L"writes") {
            RunWrites(*FPage, rest);
        } else {
            if (!FScene) FScene = std::make_unique<TScene>(*FPage);
            if (!FScene->Run(whole, below)) throw std::invalid_argument("no such verb");
        }
    }
    void EndScene() { FScene = nullptr; }

  private:
    TLine Named(TLine line) const {
        for (const auto& [name, text] : FNames) {
            const TLine mark = L'<' + name + L'>';
            for (std::size_t at = 0; (at = line.find(mark, at)) != TLine::npos;)
                line.replace(at, mark.size(), text);
        }
        return line;
    }

    const TPageDefinition* FPage = &DesktopIcons();
    std::unique_ptr<TScene> FScene;
    std::map<TLine, TLine> FNames;
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
}
