// The program under test: a running copy of it, and the places of the settings that its pages show.
#pragma once

#include <gtest/gtest.h>

#include "tools/automation.h"

/// Where a value lives.
struct TValuePlace {
    HKEY Root;
    const wchar_t* Key;
    const wchar_t* Name;
};

/// A value: its type (REG_…) and its bytes.
using TStoredValue = std::pair<DWORD, std::vector<BYTE>>;

[[nodiscard]] TStoredValue Dword(DWORD number);
[[nodiscard]] TStoredValue Text(const std::wstring& text);

/// The stored value; nothing when it or its key is missing.
[[nodiscard]] std::optional<TStoredValue> Stored(const TValuePlace& place);
/// Stores a value, creating the key, or deletes it.
void Store(const TValuePlace& place, const std::optional<TStoredValue>& value);

/// Puts values back when it goes.
class TValueKeeper {
  public:
    explicit TValueKeeper(const std::vector<TValuePlace>& places) {
        for (const TValuePlace& place : places) FKept.emplace_back(place, Stored(place));
    }
    ~TValueKeeper() {
        for (const auto& [place, value] : FKept) Store(place, value);
    }
    TValueKeeper(const TValueKeeper&) = delete;
    TValueKeeper& operator=(const TValueKeeper&) = delete;

  private:
    std::vector<std::pair<TValuePlace, std::optional<TStoredValue>>> FKept;
};

/// The folder with the program, from the environment variable QUILLTUNE_DIR, without a trailing backslash.
[[nodiscard]] std::wstring ProgramFolder();

/// A started process; killed at the latest when it goes.
class TProcess {
  public:
    /// Starts the program with these arguments.
    explicit TProcess(const std::wstring& arguments = {});
    ~TProcess();
    TProcess(const TProcess&) = delete;
    TProcess& operator=(const TProcess&) = delete;

    [[nodiscard]] DWORD Id() const { return FId; }
    [[nodiscard]] bool IsRunning() const { return WaitForSingleObject(FHandle, 0) != WAIT_OBJECT_0; }
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

// Settings of the Driver page.
inline constexpr const wchar_t* kUdmaBox = L"Checkbox_Drives_Common_Enable";  // needs a restart
inline const TValuePlace kEnableUdma{
    HKEY_LOCAL_MACHINE,
    L"SYSTEM\\CurrentControlSet\\Control\\Class\\{4D36E96A-E325-11CE-BFC1-08002BE10318}\\0000",
    L"EnableUDMA66"};
inline const TValuePlace kLastAccess{HKEY_LOCAL_MACHINE, L"SYSTEM\\CurrentControlSet\\Control\\FileSystem",
                                     L"NtfsDisableLastAccessUpdate"};

inline constexpr const wchar_t* kDriverItem = L"RzGroup_Communication.Items[3]";
inline constexpr const wchar_t* kMemoryItem = L"RzGroup_Communication.Items[4]";

// Wine's settings for the program: the Windows that it plays ("win2k", "win7", …; without effect on Windows itself),
// and whether windows are handed over to a window manager. Where there is none, as on a virtual display, Wine waits for
// it for two seconds whenever a window closes.
inline const TValuePlace kPlayedVersion{HKEY_CURRENT_USER, L"Software\\Wine\\AppDefaults\\Quilltune.exe",
                                        L"Version"};
inline const TValuePlace kWindowManaged{
    HKEY_CURRENT_USER, L"Software\\Wine\\AppDefaults\\Quilltune.exe\\X11 Driver", L"Managed"};

/// A test that begins with none of those settings stored, and puts the found ones back.
class TProgramTest : public testing::Test {
  protected:
    TProgramTest() {
        Store(kEnableUdma, std::nullopt);
        Store(kLastAccess, std::nullopt);
        Store(kWindowManaged, Text(L"N"));
    }

  private:
    TValueKeeper FKeeper{{kEnableUdma, kLastAccess, kPlayedVersion, kWindowManaged}};
};
