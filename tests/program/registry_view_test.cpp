// Which of the two registries of 64-bit Windows the program uses: the one that Windows itself uses, though the 32-bit
// program would be led to the other.
#include <winternl.h>

#include <gtest/gtest.h>

#include "tests/program/program.h"

namespace {

using TRegistryView = TProgramTest;

constexpr const wchar_t* kRedirectedPolicies =
    L"Software\\Wow6432Node\\Microsoft\\Windows\\CurrentVersion\\Policies";
const TValuePlace kRedirectedNotice{
    HKEY_LOCAL_MACHINE, L"Software\\Wow6432Node\\Microsoft\\Windows\\CurrentVersion\\Policies\\Explorer",
    L"CDRAutoRun"};

/// Windows lets both views share their policies: the one key is a link to the other. While this lives, the 32-bit view
/// has policies of its own, so that it shows which view a program uses.
class TOwnPolicies {
  public:
    TOwnPolicies() {
        HKEY link = nullptr;
        if (RegOpenKeyExW(HKEY_LOCAL_MACHINE, kRedirectedPolicies, kOpenLink, KEY_ALL_ACCESS, &link) !=
            ERROR_SUCCESS)
            return;
        DWORD type = 0;
        wchar_t target[512];
        DWORD size = sizeof target;
        if (RegQueryValueExW(link, kLinkValue, nullptr, &type, reinterpret_cast<BYTE*>(target), &size) ==
                ERROR_SUCCESS &&
            type == REG_LINK) {
            FTarget.assign(target, size / sizeof(wchar_t));
            DeleteKey(link);
        }
        RegCloseKey(link);
    }
    ~TOwnPolicies() {
        RegDeleteKeyW(HKEY_LOCAL_MACHINE, kRedirectedNotice.Key);
        if (FTarget.empty()) return;
        RegDeleteKeyW(HKEY_LOCAL_MACHINE, kRedirectedPolicies);
        HKEY link = nullptr;
        RegCreateKeyExW(HKEY_LOCAL_MACHINE, kRedirectedPolicies, 0, nullptr, REG_OPTION_CREATE_LINK,
                        KEY_ALL_ACCESS, nullptr, &link, nullptr);
        RegSetValueExW(link, kLinkValue, 0, REG_LINK, reinterpret_cast<const BYTE*>(FTarget.data()),
                       static_cast<DWORD>(FTarget.size() * sizeof(wchar_t)));
        RegCloseKey(link);
    }
    TOwnPolicies(const TOwnPolicies&) = delete;
    TOwnPolicies& operator=(const TOwnPolicies&) = delete;

  private:
    static constexpr const wchar_t* kLinkValue = L"SymbolicLinkValue";
    static constexpr DWORD kOpenLink = 0x0008;  // REG_OPTION_OPEN_LINK

    /// Deletes the key itself where RegDeleteKey would delete what it links to.
    static void DeleteKey(HKEY key) {
        const auto ntDeleteKey = reinterpret_cast<NTSTATUS(NTAPI*)(HANDLE)>(
            reinterpret_cast<void*>(GetProcAddress(GetModuleHandleW(L"ntdll.dll"), "NtDeleteKey")));
        ntDeleteKey(key);
    }

    std::wstring FTarget;
};

TEST_F(TRegistryView, IsTheOneOfWindowsItself) {
    if (sizeof(void*) != 8) GTEST_SKIP() << "a 32-bit test does not see both registry views";
    const TOwnPolicies own;
    Store(kRedirectedNotice, Dword(0));
    ASSERT_EQ(Stored(kDiscNotice), std::nullopt) << "the two views are not apart";

    const TProgram program;
    const TMainWindow& window = program.Window();
    window.Click(kDriverItem);
    window.ChooseSheet(L"TabSheet_Drives_AutoPlay");
    const std::wstring box = L"Checkbox_Drives_AutoPlay_MonitorMediaChanges_Enable";
    EXPECT_TRUE(window.Checked(box)) << "it read the redirected value";
    window.Click(box);
    window.Click(box);
    (void)program.ApplyWithoutRestart();
    EXPECT_EQ(Stored(kDiscNotice), Dword(1));
    EXPECT_EQ(Stored(kRedirectedNotice), Dword(0)) << "it wrote the redirected value";
}

}  // namespace
