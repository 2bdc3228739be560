// The main window over a faked system, and a user's hand on it.
#pragma once

#include <memory>
#include <optional>

#include <gtest/gtest.h>

#include "app/main_window.h"
#include "tests/fakes/fake_system.h"

class TMainWindow : public testing::Test {
  protected:
    static constexpr const wchar_t* kLastAccess = L"Checkbox_Drives_Common_NTFS_SaveLastVisitData";
    static constexpr const wchar_t* kUdma = L"Checkbox_Drives_Common_Enable";
    static constexpr const wchar_t* kBlink = L"CheckBox_Firefox_Common_DynamicText_ProhibitFlashing";
    static constexpr const wchar_t* kDriverItem = L"RzGroup_Communication.Items[3]";
    static inline const TRegistryPlace kLastAccessValue{TRootKey::LocalMachine,
                                                        L"System\\CurrentControlSet\\Control\\FileSystem",
                                                        L"NtfsDisableLastAccessUpdate"};

    /// Creates the window on a Windows of that version.
    void Create(std::uint32_t major, std::uint32_t minor) {
        Fake.Windows.SetVersion({.PlatformId = 2, .Major = major, .Minor = minor});
        Fake.Shell.PutFolder(TSpecialFolder::AppData, L"C:\\Users\\Me\\AppData");
        Window = std::make_unique<TQuilltune_FormMain>(Fake.System);
    }
    /// Creates and shows it, and lets the timers tick until it is ready.
    void Open(std::uint32_t major = 6, std::uint32_t minor = 1) {
        Create(major, minor);
        Window->Show();
        Tick(L"Timer_Click");
        Tick(L"Timer_Loading");
    }
    /// Makes an installed Firefox whose profile holds the preferences.
    void InstallFirefox(std::string_view prefs) {
        Fake.Registry.PutKey(TRootKey::LocalMachine,
                             L"Software\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\Mozilla Firefox");
        const std::wstring firefox = L"C:\\Users\\Me\\AppData\\Mozilla\\Firefox\\";
        Fake.Files.PutText(firefox + L"profiles.ini", "[Profile0]\nIsRelative=1\nPath=a\n");
        Fake.Files.PutText(firefox + L"a\\user.js", prefs);
    }
    void Tick(const wchar_t* timer) { Get<TTimer>(timer).Tick(); }
    void Click(const wchar_t* item) { Get<TCategoryItem>(item).Click(); }
    void Press(const wchar_t* button) { Get<TButton>(button).Click(); }
    /// Presses Apply, which is enabled by a recorded change.
    void Apply() {
        Window->Find(L"Button_Apply")->SetEnabled(true);
        Press(L"Button_Apply");
    }
    void Toggle(const wchar_t* box) { Get<TCheckBox>(box).SetChecked(!Get<TCheckBox>(box).Checked()); }
    bool Enabled(const wchar_t* name) { return Window->Find(name)->Enabled(); }
    std::optional<std::int32_t> LastAccess() const {
        const TRegistryData* data = Fake.Registry.Find(kLastAccessValue);
        return data == nullptr ? std::nullopt : std::optional(std::get<std::int32_t>(data->Value));
    }
    /// The marks that the pages set, which later pages reach through their own context.
    TPageContext& Marks() { return const_cast<TPageContext&>(Window->Context()); }

    template <typename T>
    T& Get(const wchar_t* name) {
        return *Window->Find<T>(name);
    }

    TFakeSystem Fake;
    std::unique_ptr<TQuilltune_FormMain> Window;
};
