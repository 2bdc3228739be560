// How long Apply takes for a thousand changes, side by side with what writes the same values without it:
//   bare loop    opens the key of each value, sets the value and closes the key: what a thousand settings cost at least
//   keys kept    opens each key once: what values that are written together could cost
//   reg import   Windows' own program for a file of such values, with its start
// All four write the same number of values into the same keys, in turn, and each one's values are read back.
//   apply_bench <rounds>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <fstream>

#include "app/win32/dialogs_win32.h"
#include "base/decimal.h"
#include "base/win32/handle.h"
#include "engine/sys_control.h"
#include "platform/win32/win32_system.h"
#include "tools/bench.h"

namespace {

constexpr int kValues = 1000;
constexpr int kValuesPerKey = 20;
constexpr wchar_t kRoot[] = L"Software\\QuilltuneBench";

std::vector<TRegistryPlace> Places() {
    std::vector<TRegistryPlace> places;
    for (int i = 0; i < kValues; ++i)
        places.push_back({TRootKey::CurrentUser,
                          std::wstring(kRoot) + L"\\Key" + DecimalText(i / kValuesPerKey),
                          L"Setting" + DecimalText(i)});
    return places;
}
const std::vector<TRegistryPlace> kPlaces = Places();

void Demand(bool done, const wchar_t* what) {
    if (!done) throw TAutomationError(what);
}

TKeyHandle Open(const TRegistryPlace& place) {
    HKEY key = nullptr;
    Demand(RegCreateKeyExW(HKEY_CURRENT_USER, place.Key.c_str(), 0, nullptr, REG_OPTION_NON_VOLATILE,
                           KEY_ALL_ACCESS, nullptr, &key, nullptr) == ERROR_SUCCESS,
           L"cannot open a key");
    return TKeyHandle(key);
}

void Set(HKEY key, const TRegistryPlace& place, DWORD data) {
    Demand(RegSetValueExW(key, place.ValueName.c_str(), 0, REG_DWORD, reinterpret_cast<const BYTE*>(&data),
                          sizeof data) == ERROR_SUCCESS,
           L"cannot set a value");
}

void ExpectWritten(DWORD data) {
    for (const TRegistryPlace& place : kPlaces) {
        DWORD read = 0;
        DWORD size = sizeof read;
        RegQueryValueExW(Open(place).Get(), place.ValueName.c_str(), nullptr, nullptr,
                         reinterpret_cast<BYTE*>(&read), &size);
        Demand(read == data, L"a value was not written");
    }
}

double Apply(TSystem& system, DWORD data) {
    TSysControl changes(system);
    for (const TRegistryPlace& place : kPlaces)
        changes.Add({.Name = place.ValueName,
                     .RootKey = place.Root,
                     .Key = L'\\' + place.Key + L'\\',
                     .ValueName = place.ValueName,
                     .DataType = TRegDataType::Dword,
                     .Value = static_cast<std::int32_t>(data)});
    const TStopwatch watch;
    changes.WriteAll();
    return watch.Milliseconds();
}

double BareLoop(DWORD data) {
    const TStopwatch watch;
    for (const TRegistryPlace& place : kPlaces) Set(Open(place).Get(), place, data);
    return watch.Milliseconds();
}

double KeysKept(DWORD data) {
    const TStopwatch watch;
    for (auto place = kPlaces.begin(); place != kPlaces.end();) {
        const TKeyHandle key = Open(*place);
        for (int i = 0; i < kValuesPerKey; ++i) Set(key.Get(), *place++, data);
    }
    return watch.Milliseconds();
}

double RegImport(DWORD data) {
    const std::string path = "quilltune-bench.reg";  // in the folder of the caller
    std::ofstream file(path);
    file << "REGEDIT4\n";
    for (int i = 0; i < kValues; ++i) {
        if (i % kValuesPerKey == 0)
            file << "\n[HKEY_CURRENT_USER\\Software\\QuilltuneBench\\Key" << i / kValuesPerKey << "]\n";
        file << "\"Setting" << i << "\"=dword:" << std::hex << data << std::dec << '\n';
    }
    file.close();
    std::wstring command = L"reg.exe import quilltune-bench.reg";
    STARTUPINFOW startup{};
    startup.cb = sizeof startup;
    PROCESS_INFORMATION process{};
    const TStopwatch watch;
    Demand(CreateProcessW(nullptr, command.data(), nullptr, nullptr, FALSE, DETACHED_PROCESS, nullptr,
                          nullptr, &startup, &process),
           L"cannot start reg.exe");
    WaitForSingleObject(process.hProcess, kPatience);
    const double time = watch.Milliseconds();
    CloseHandle(process.hThread);
    CloseHandle(process.hProcess);
    std::remove(path.c_str());
    return time;
}

}  // namespace

int wmain(int count, wchar_t** arguments) {
    if (count != 2) return 2;
    const int rounds = std::max(1, static_cast<int>(std::wcstol(arguments[1], nullptr, 10)));
    TWin32Dialogs dialogs;
    TWin32System system(dialogs);
    const std::pair<const char*, std::function<double(DWORD)>> others[] = {
        {"bare loop", BareLoop}, {"keys kept", KeysKept}, {"reg import", RegImport}};
    std::vector<double> own;
    std::array<std::vector<double>, std::size(others)> times;
    std::array<std::vector<double>, std::size(others)> ratios;
    try {
        DWORD data = 0;
        for (int round = -1; round < rounds; ++round) {  // the first round creates the keys
            const double apply = Apply(system.System(), ++data);
            ExpectWritten(data);
            if (round >= 0) own.push_back(apply);
            for (std::size_t i = 0; i < std::size(others); ++i) {
                const double time = others[i].second(++data);
                ExpectWritten(data);
                if (round < 0) continue;
                times[i].push_back(time);
                ratios[i].push_back(apply / time);
            }
        }
    } catch (const TAutomationError& fault) {
        std::fprintf(stderr, "%s\n", fault.what());
        return 1;
    }
    (void)system.System().Registry.DeleteKey(TRootKey::CurrentUser, kRoot);
    std::printf("medians of %d rounds\n", rounds);
    std::printf("Apply of %d changes      %7.1f ms\n", kValues, Median(own));
    for (std::size_t i = 0; i < std::size(others); ++i)
        std::printf("  beside %-10s       %7.1f ms   ratio %6.2f\n", others[i].first, Median(times[i]),
                    Median(ratios[i]));
    return 0;
}
