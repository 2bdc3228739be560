// How long Firefox's preference files take: loading one with and without a look at the messages at every statement, beside
// reading its lines and no more; a visit of the page; a click there. Natively files are in memory and there are no
// messages; on Windows both are real.
//   prefs_bench [FOLDER]      FOLDER is where Windows gets the files
#include <cstdio>

#include "settings/net/firefox_page.h"
#include "settings/page.h"
#include "tests/fakes/fake_system.h"
#include "tools/measure.h"
#include "ui/containers.h"
#include "ui/controls.h"

#ifdef _WIN32
#include "platform/win32/clock_win32.h"
#include "platform/win32/files_win32.h"
using TBenchFiles = TWin32Files;
using TBenchClock = TWin32Clock;
#else
using TBenchFiles = TFakeFiles;
using TBenchClock = TFakeClock;
#endif

namespace {

constexpr int kRounds = 9;
constexpr std::size_t kMegabyte = 1'000'000;

/// Statements of about a hundred bytes, as Firefox writes them.
std::string PrefsFile(std::size_t size) {
    std::string text = "# Mozilla User Preferences\r\n\r\n";
    for (int i = 0; text.size() < size; ++i)
        text += "user_pref(\"extensions.sample" + std::to_string(i) +
                ".lastUpdate\", \"{\\\"when\\\": 1200000000; \\\"from\\\": \\\"https://mirror\\\"}\");\r\n";
    return text + "user_pref(\"browser.blink_allowed\", true);\r\n";
}

class TPrefsBench {
  public:
    explicit TPrefsBench(const std::wstring& folder) : FFolder(folder) {
#ifndef _WIN32
        FFiles.PutFolder(folder);
#endif
        FFake.Registry.PutKey(TRootKey::LocalMachine,
                              L"Software\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\Mozilla Firefox");
        Write(L"\\profiles.ini", "[Profile0]\nPath=" + std::string(folder.begin(), folder.end()) + "\n");
        FForm.Build(FForm, Notebook(L"Notebook", {}));
        FPage =
            std::make_unique<TPage>(FirefoxPage(), FContext, *FForm.Find(L"Notebook"), [](TComponent&) {});
    }

    void Measure(std::size_t size) {
        Write(L"\\user.js", PrefsFile(size));
        std::vector<double> load;
        std::vector<double> messages;
        std::vector<double> lines;
        std::vector<double> visit;
        std::vector<double> click;
        for (int round = -1; round < kRounds; ++round) {  // the first one warms up
            const double quiet = Load(FQuiet);
            const double full = Load(FSystem);
            const double reader = ReadLines();
            const double visited = Time([&] { FPage->Load(); });
            auto& box = *FForm.Find<TCheckBox>(L"CheckBox_Firefox_Common_DynamicText_ProhibitFlashing");
            const double clicked = Time([&] { box.SetChecked(!box.Checked()); });
            if (FFirefox.GetFirefoxPref(L"\"browser.blink_allowed\"") != L"false")
                std::puts("the click was lost");
            if (round < 0) continue;
            load.push_back(full);
            messages.push_back(full / quiet);
            lines.push_back(full / reader);
            visit.push_back(visited);
            click.push_back(clicked);
        }
        std::printf(
            "%2zu MB: load %7.2f ms (%4.0f MB/s), %.2f times without messages, %.2f times a line reader; "
            "page visit %7.2f ms, click %.3f ms\n",
            size / kMegabyte, Median(load), static_cast<double>(size) / 1000 / Median(load), Median(messages),
            Median(lines), Median(visit), Median(click));
    }

  private:
    template <typename TAction>
    static double Time(const TAction& action) {
        const TStopwatch watch;
        action();
        return watch.Milliseconds();
    }
    void Write(const std::wstring& name, const std::string& text) {
        if (!FFiles.Replace(FFolder + name, {text.begin(), text.end()})) std::puts("cannot write");
    }
    double Load(TSystem& system) const {
        TFirefoxPrefs prefs(system, FFolder + L'\\');
        return Time([&] { prefs.LoadFirefoxPrefs(); });
    }
    double ReadLines() const {
        std::vector<std::string> lines;
        return Time([&] {
            const auto bytes = FFiles.Read(FFolder + L"\\user.js").value();
            for (auto begin = bytes.begin(); begin != bytes.end();) {
                const auto end = std::find(begin, bytes.end(), '\n');
                lines.emplace_back(begin, end);
                begin = end == bytes.end() ? end : end + 1;
            }
        });
    }

    std::wstring FFolder;
    TFakeSystem FFake;
    TBenchFiles FFiles;
    TBenchClock FClock;
    TSystem FSystem{FFake.Registry, FFake.Parameters, FFake.Services, FFake.Shell,
                    FFiles,         FFake.Windows,    FFake.Dialogs,  FClock};
    TSystem FQuiet{FFake.Registry, FFake.Parameters, FFake.Services, FFake.Shell,
                   FFiles,         FFake.Windows,    FFake.Dialogs,  FFake.Clock};
    TForm FForm{L"Form", L"TForm"};
    TSysControl FChanges{FSystem};
    TFirefoxPrefs FFirefox{FSystem, FFolder + L'\\'};
    TPageContext FContext{.System = FSystem, .Form = FForm, .Changes = FChanges, .Firefox = FFirefox};
    std::unique_ptr<TPage> FPage;
};

}  // namespace

int main(int count, char** arguments) {
    const std::string folder = count > 1 ? arguments[1] : "C:\\Firefox";
    TPrefsBench bench({folder.begin(), folder.end()});
    for (const std::size_t megabytes : {1, 5, 20}) bench.Measure(megabytes * kMegabyte);
    return 0;
}
