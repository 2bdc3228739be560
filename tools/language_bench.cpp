// How long a language file takes to load, and then to look up every text in it once, beside SimpleIni and inih, which read
// the same bytes from memory and answer without regard to case as well. All three are measured in turn.
#define SI_CONVERT_ICU  // the only converter that Debian's package has
#include <INIReader.h>
#include <SimpleIni.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <functional>
#include <string>

#include "base/decimal.h"
#include "platform/language.h"
#include "tests/fakes/fake_system.h"

namespace {

constexpr int kRounds = 9;
constexpr std::size_t kMegabyte = 1'000'000;
constexpr std::size_t kSizes[] = {kMegabyte, 10 * kMegabyte};
constexpr std::size_t kKeysPerSection = 700;  // about as many as the main window has
constexpr std::size_t kStride = 7919;         // look-ups go through the file in no order

struct TKey {
    std::string Section;
    std::string Name;
};

/// A language file of that many bytes and what can be looked up in it.
struct TSample {
    std::string Text = "\xEF\xBB\xBF";
    std::vector<TKey> Keys;

    explicit TSample(std::size_t size) {
        std::string section;
        while (Text.size() < size) {
            const std::string number = std::to_string(Keys.size());
            if (Keys.size() % kKeysPerSection == 0) {
                section = "Scanner_Form" + number;
                Text += "\r\n[" + section + "]\r\n";
            }
            Keys.push_back({section, "Checkbox_Page_Sheet_Group_Item" + number + ".Caption"});
            Text += Keys.back().Name + "=The caption of the check box, &" + number + " of many\r\n";
        }
    }
    [[nodiscard]] const TKey& Key(std::size_t i) const { return Keys[i * kStride % Keys.size()]; }
};

struct TTimes {
    double Load = 0;
    double LookUps = 0;
    std::size_t Found = 0;  ///< characters
};

double Milliseconds(const std::function<void()>& what) {
    const auto start = std::chrono::steady_clock::now();
    what();
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count();
}

TTimes Own(const TSample& sample) {
    TFakeSystem fake;
    fake.Files.PutText(L"C:\\Language\\English.lng", sample.Text);
    std::vector<std::pair<std::wstring, std::wstring>> keys;
    for (std::size_t i = 0; i < sample.Keys.size(); ++i) {
        const auto& [section, name] = sample.Key(i);
        keys.emplace_back(std::wstring(section.begin(), section.end()),
                          std::wstring(name.begin(), name.end()));
    }
    TExtIniFile file;
    TTimes times;
    times.Load = Milliseconds([&] { (void)file.LoadFromFile(fake.System, L"C:\\Language\\English.lng"); });
    times.LookUps = Milliseconds([&] {
        for (const auto& [section, name] : keys) times.Found += file.ReadString(section, name, {}).size();
    });
    return times;
}

TTimes SimpleIni(const TSample& sample) {
    CSimpleIniA file(true);
    TTimes times;
    times.Load = Milliseconds([&] { (void)file.LoadData(sample.Text); });
    times.LookUps = Milliseconds([&] {
        for (std::size_t i = 0; i < sample.Keys.size(); ++i)
            times.Found +=
                std::string(file.GetValue(sample.Key(i).Section.c_str(), sample.Key(i).Name.c_str(), ""))
                    .size();
    });
    return times;
}

TTimes Inih(const TSample& sample) {
    TTimes times;
    std::optional<INIReader> file;
    times.Load = Milliseconds([&] { file.emplace(sample.Text.data(), sample.Text.size()); });
    times.LookUps = Milliseconds([&] {
        for (std::size_t i = 0; i < sample.Keys.size(); ++i)
            times.Found += file->Get(sample.Key(i).Section, sample.Key(i).Name, "").size();
    });
    return times;
}

double Median(std::vector<double> values) {
    std::ranges::sort(values);
    return values[values.size() / 2];
}

/// One line of the report: what a step takes, and how many times the other's time that is.
void Print(std::size_t size, const char* what, double TTimes::*step,
           const std::vector<std::array<TTimes, 3>>& rounds) {
    std::vector<double> own;
    std::vector<double> simpleIni;
    std::vector<double> inih;
    for (const auto& each : rounds) {
        own.push_back(each[0].*step);
        simpleIni.push_back(each[0].*step / each[1].*step);
        inih.push_back(each[0].*step / each[2].*step);
    }
    std::printf("language file %2zu MB, %-8s %7.1f ms   / SimpleIni %5.2f   / inih %5.2f\n", size / kMegabyte,
                what, Median(own), Median(simpleIni), Median(inih));
}

}  // namespace

int main() {
    for (const std::size_t size : kSizes) {
        const TSample sample(size);
        std::vector<std::array<TTimes, 3>> rounds;
        for (int round = 0; round < kRounds; ++round) {
            const auto& times = rounds.emplace_back(std::array{Own(sample), SimpleIni(sample), Inih(sample)});
            if (times[0].Found != times[1].Found || times[0].Found != times[2].Found)
                return std::puts("the three find different texts"), 1;
        }
        Print(size, "load", &TTimes::Load, rounds);
        Print(size, "look-ups", &TTimes::LookUps, rounds);
    }
    return 0;
}
