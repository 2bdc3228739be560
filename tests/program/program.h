// The program under test: a running copy of it, and the places of the settings that its pages show.
#pragma once

#include <gtest/gtest.h>

#include "tests/program/registry_values.h"
#include "tools/automation.h"

/// The folder with the program, from the environment variable QUILLTUNE_DIR, without a trailing backslash.
[[nodiscard]] std::wstring ProgramFolder();

/// A started process; killed at the latest when it goes.
class TProcess {
  public:
    /// Starts the program.
    TProcess();
    ~TProcess();
    TProcess(const TProcess&) = delete;
    TProcess& operator=(const TProcess&) = delete;

    [[nodiscard]] HANDLE Handle() const { return FHandle; }
    [[nodiscard]] DWORD Id() const { return FId; }
    /// Waits until it ends by itself; throws when it does not.
    DWORD ExitCode() const;

  private:
    HANDLE FHandle = nullptr;
    DWORD FId = 0;
};

/// The program, started and ready for use.
class TProgram : public TProcess {
  public:
    TProgram() : FWindow(TMainWindow::WaitFor(Id())) { FWindow.WaitReady(); }

    [[nodiscard]] const TMainWindow& Window() const { return FWindow; }

    /// Presses Apply, which must carry out the changes without a question.
    void Apply() const;
    /// What a question said.
    struct TAsked {
        std::wstring Title;
        std::wstring Text;
    };
    /// Presses Apply, which must ask whether to restart Windows; answers No.
    TAsked ApplyWithoutRestart() const;

  private:
    TMainWindow FWindow;
};

// The values behind the Driver page …
inline const TValuePlace kEnableUdma{
    HKEY_LOCAL_MACHINE,
    L"SYSTEM\\CurrentControlSet\\Control\\Class\\{4D36E96A-E325-11CE-BFC1-08002BE10318}\\0000",
    L"EnableUDMA66"};
inline constexpr const wchar_t* kFileSystemKey = L"SYSTEM\\CurrentControlSet\\Control\\FileSystem";
inline const TValuePlace kLastAccess{HKEY_LOCAL_MACHINE, kFileSystemKey, L"NtfsDisableLastAccessUpdate"};
inline const TValuePlace kShortNames{HKEY_LOCAL_MACHINE, kFileSystemKey, L"NtfsDisable8dot3NameCreation"};
inline constexpr const wchar_t* kExplorerPolicies =
    L"Software\\Microsoft\\Windows\\CurrentVersion\\Policies\\Explorer";
inline const TValuePlace kSpaceChecks{HKEY_CURRENT_USER, kExplorerPolicies, L"NoLowDiskSpaceChecks"};
inline const TValuePlace kDiscNotice{HKEY_LOCAL_MACHINE, kExplorerPolicies, L"CDRAutoRun"};
inline const TValuePlace kDiscDriver{HKEY_LOCAL_MACHINE, L"SYSTEM\\CurrentControlSet\\Services\\Cdrom",
                                     L"Autorun"};
inline const TValuePlace kAutoPlayMask{HKEY_CURRENT_USER, kExplorerPolicies, L"NoDriveTypeAutoRun"};
// … and behind the Memory and Cache page.
inline constexpr const wchar_t* kMemoryKey =
    L"SYSTEM\\CurrentControlSet\\Control\\Session Manager\\Memory Management";
inline const TValuePlace kPagingExecutive{HKEY_LOCAL_MACHINE, kMemoryKey, L"DisablePagingExecutive"};
inline const TValuePlace kClearPageFile{HKEY_LOCAL_MACHINE, kMemoryKey, L"ClearPageFileAtShutdown"};
inline const TValuePlace kSystemCache{HKEY_LOCAL_MACHINE, kMemoryKey, L"LargeSystemCache"};

inline const std::vector<TValuePlace> kSettingPlaces = {
    kEnableUdma, kLastAccess,   kShortNames,      kSpaceChecks,   kDiscNotice,
    kDiscDriver, kAutoPlayMask, kPagingExecutive, kClearPageFile, kSystemCache};

inline constexpr const wchar_t* kDriverItem = L"RzGroup_Communication.Items[3]";
inline constexpr const wchar_t* kMemoryItem = L"RzGroup_Communication.Items[4]";

// Wine's settings for the program: the Windows that it plays ("win2k", "win7", …; without effect on Windows itself),
// and whether windows are handed over to a window manager. Where there is none, as on a virtual display, Wine waits for
// it for two seconds whenever a window closes.
inline const TValuePlace kPlayedVersion{HKEY_CURRENT_USER, L"Software\\Wine\\AppDefaults\\Quilltune.exe",
                                        L"Version"};
inline const TValuePlace kWindowManaged{
    HKEY_CURRENT_USER, L"Software\\Wine\\AppDefaults\\Quilltune.exe\\X11 Driver", L"Managed"};

/// A test that begins with none of those values stored, and puts the found ones back.
class TProgramTest : public testing::Test {
  protected:
    TProgramTest() {
        StoreAll(std::nullopt);
        Store(kWindowManaged, Text(L"N"));
    }

    /// Stores the same value in the places of all settings.
    void StoreAll(const std::optional<TStoredValue>& value) const {
        for (const TValuePlace& place : kSettingPlaces) Store(place, value);
    }

  private:
    TValueKeeper FKeeper{kSettingPlaces};
    TValueKeeper FWineKeeper{{kPlayedVersion, kWindowManaged}};
};
