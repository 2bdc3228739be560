#include "tests/settings/page_scene.h"

#include <functional>
#include <sstream>

#include "platform/text.h"
#include "platform/unicode.h"
#include "settings/page_table.h"

namespace {

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

}  // namespace

TLine Trimmed(std::wstring_view text) { return TLine(Trim(text)); }

TLine Take(TLine& text, const wchar_t* separator) {
    const std::size_t end = text.find(separator);
    TLine head = Trimmed(text.substr(0, end));
    text = end == TLine::npos ? TLine() : Trimmed(text.substr(end + wcslen(separator)));
    return head;
}

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

TLines Parts(TLine rest, const wchar_t* separator) {
    TLines parts;
    while (!rest.empty()) parts.push_back(Take(rest, separator));
    return parts;
}

TRelease ReleaseOf(TLine text, std::uint32_t build) {
    const int level = std::stoi(Take(text, L"."));
    return {level, text.empty() ? build : Unsigned(text)};
}

TScene::TScene(const TPageDefinition& page, TCovered& covered, const TLine& level)
    : FBench(page), FCovered(covered) {
    FBench.Context.Release = ReleaseOf(level.empty() ? L"7" : level);
}

TScene::~TScene() { EXPECT_EQ(std::max(FNeededRestart, FBench.NeedsRestart()), FRestart) << "restart"; }

bool TScene::Run(TLine line, const TLines& below) {
    const TLine verb = Take(line, L" ");
    const auto step = kSteps.find(verb);
    if (step == kSteps.end()) return false;
    step->second(*this, line, below);
    return true;
}

void TScene::Act(const TLine& control, const TLine& state) {
    FCovered.ActedOn.insert(control);
    FBench.Act(control, state);
}

void TScene::Expect(const TLine& control, const TLine& rest) {
    SCOPED_TRACE(ToUtf8(control));
    TControl& c = FBench.Get<TControl>(control);
    if (rest == L"enabled" || rest == L"disabled") {
        EXPECT_EQ(c.Enabled(), rest == L"enabled");
    } else if (rest == L"visible" || rest == L"hidden") {
        const bool isSheet = c.Kind() == TComponentKind::TabSheet;
        EXPECT_EQ(isSheet ? static_cast<TTabSheet&>(c).TabVisible() : c.Visible(), rest == L"visible");
    } else if (rest.starts_with(L"called ")) {
        EXPECT_EQ(c.Caption(), rest.substr(7));
    } else if (rest.starts_with(L"because ")) {
        EXPECT_EQ(ReasonsFor(FBench.Context, control), rest == L"because nothing" ? L"" : rest.substr(8));
    } else {
        FCovered.Shown.insert(control);
        EXPECT_EQ(FBench.State(control), rest);
    }
}

TLines TScene::Changes(const TLine& control, const TLines& parts) {
    TLines changes;
    for (TLine part : parts) {
        if (part.starts_with(L'*')) part = control + part.substr(1);
        if (!Run(part, {})) changes.push_back(part);
    }
    return changes;
}

void TScene::ExpectChanges(TLines changes) {
    const auto prefs = std::stable_partition(changes.begin(), changes.end(), std::not_fn(IsPref));
    if (prefs != changes.end()) Prefs(*this, L"changed", {prefs, changes.end()});
    changes.erase(prefs, changes.end());
    EXPECT_EQ(FBench.Pending(), changes);
}

void TScene::AddPending(TScene& scene, TLine rest, const TLines& /*below*/) {
    const TRegistryPlace place = Place(Take(rest, L" = "));
    const TRegistryData value = Value(rest);
    scene.FBench.Context.Changes.Add({.Name = L"another page's",
                                      .RootKey = place.Root,
                                      .Key = place.Key,
                                      .ValueName = place.ValueName,
                                      .DataType = value.Type,
                                      .Value = value.Value});
}

void TScene::Answer(TScene& scene, TLine rest, const TLines& /*below*/) {
    auto& dialogs = scene.FBench.Fake.Dialogs;
    const TLine kind = Take(rest, L" ");
    if (kind == L"file") return dialogs.AnswerFile(rest);
    if (kind == L"color") return dialogs.AnswerColor(Unsigned(rest));
    if (kind != L"nothing") dialogs.Answer(kind == L"yes" ? TMessageAnswer::Yes : TMessageAnswer::No);
}

void TScene::Asked(TScene& scene, TLine rest, const TLines& /*below*/) {
    const auto& dialogs = scene.FBench.Fake.Dialogs;
    const TLine kind = Take(rest, L" ");
    ASSERT_FALSE(dialogs.Askers().empty());
    EXPECT_EQ(dialogs.Askers().back(), scene.FBench.Context.Form.Name());
    EXPECT_TRUE(kind == L"message" ? dialogs.Questions().back().Text == rest
                : kind == L"file"  ? dialogs.Filters().back() == rest
                                   : dialogs.InitialColors().back() == Unsigned(rest));
}

void TScene::Do(TScene& scene, TLine rest, const TLines& /*below*/) {
    TLine state = Take(rest, L" | ");
    const TLines controls = TakeControls(state);
    for (const TLine& control : controls) scene.Act(control, state);
    if (!rest.empty()) scene.ExpectChanges(scene.Changes(controls.front(), Parts(rest)));
}

void TScene::Firefox(TScene& scene, TLine rest, const TLines& /*below*/) {
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

void TScene::Prefs(TScene& scene, TLine rest, const TLines& below) {
    EXPECT_EQ(scene.FBench.Context.Firefox.FirefoxPrefLines(), below);
    if (rest.empty()) return;
    EXPECT_EQ(scene.FBench.Context.FirefoxChanged, rest == L"changed");
}

void TScene::Now(TScene& scene, TLine rest, const TLines& /*below*/) {
    const bool isMissing = rest.ends_with(L" missing");
    const TRegistryPlace place = Place(Take(rest, isMissing ? L" missing" : L" = "));
    const TRegistryData* stored = scene.FBench.Fake.Registry.Find(place);
    ASSERT_EQ(stored == nullptr, isMissing);
    if (isMissing) return;
    EXPECT_EQ(*stored, Value(rest));
}

void TScene::Service(TScene& scene, TLine rest, const TLines& /*below*/) {
    const TLine name = Take(rest, L" ");
    scene.FBench.Fake.Services.Put(name, {.State = rest == L"running"  ? TServiceState::Running
                                                   : rest == L"paused" ? TServiceState::Paused
                                                                       : TServiceState::Stopped});
}

const std::map<TLine, TScene::TStep> TScene::kSteps{
    {L"with",
     [](TScene& s, TLine rest, const TLines&) {
         for (const TPageDefinition* page : PageDefinitions())
             if (page->Tag == std::stoi(rest)) s.FBench.Add(*page);
     }},
    {L"level", [](TScene& s, TLine rest, const TLines&) { s.FBench.Context.Release = ReleaseOf(rest); }},
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
         for (const TLine& control : TakeControls(rest)) s.FBench.Preset(control, rest);
     }},
    {L"leave", [](TScene& s, TLine rest, const TLines&) { s.FBench.Get<TEdit>(rest).SetFocused(false); }},
    {L"apply",
     [](TScene& s, TLine, const TLines&) {
         s.FNeededRestart = std::max(s.FNeededRestart, s.FBench.Context.Changes.WriteAll().RestartNeeded);
     }},
    {L"expect",
     [](TScene& s, TLine rest, const TLines&) {
         for (const TLine& control : TakeControls(rest)) s.Expect(control, rest);
     }},
    {L"records", [](TScene& s, TLine, const TLines& below) { EXPECT_EQ(s.FBench.Pending(), below); }},
    {L"recorded",
     [](TScene& s, TLine rest, const TLines&) { EXPECT_EQ(s.FBench.Recorded, std::stoi(rest)); }},
    {L"asked", Asked},
    {L"histories", [](TScene& s, TLine rest,
                      const TLines&) { EXPECT_EQ(s.FBench.Fake.Shell.HistoryClearings(), std::stoi(rest)); }},
    {L"prefs", Prefs},
    {L"now", Now},
    {L"security",
     [](TScene& s, TLine rest, const TLines&) { EXPECT_EQ(s.FBench.Switches(L"wscsvc"), std::stoi(rest)); }},
    {L"firewall",
     [](TScene& s, TLine rest, const TLines&) { EXPECT_EQ(s.FBench.Switches(L"MpsSvc"), std::stoi(rest)); }},
    {L"restart", [](TScene& s, TLine, const TLines&) { s.FRestart = TRestart::Windows; }},
    {L"explorer", [](TScene& s, TLine, const TLines&) { s.FRestart = TRestart::Explorer; }},
};
