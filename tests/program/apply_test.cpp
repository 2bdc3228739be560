// Apply, OK and Cancel, the restart question, and what the registry refuses.
#include <cstring>

#include <gtest/gtest.h>

#include "tests/program/program.h"

namespace {

using TApply = TProgramTest;

constexpr const wchar_t* kVisitBox = L"Checkbox_Drives_Common_NTFS_SaveLastVisitData";
constexpr const wchar_t* kShortNameBox = L"Checkbox_Drives_Common_NTFS_SaveShortName";
constexpr const wchar_t* kUdmaBox =
    L"Checkbox_Drives_Common_Enable";  // a change for which Windows must restart

TEST_F(TApply, AsksForARestartOnlyAfterANewChangeThatNeedsIt) {
    const TProgram program;
    const TMainWindow& window = program.Window();
    window.Click(kDriverItem);
    for (int i = 0; i < 2; ++i) {
        window.Click(kUdmaBox);
        const TProgram::TAsked asked = program.ApplyWithoutRestart();
        EXPECT_EQ(asked.Title, L"Quilltune");
        EXPECT_EQ(asked.Text, L"Need to restart Windows to take effect, restart now?");
        // The answer No settles it, for other changes at least.
        window.Click(kVisitBox);
        program.Apply();
    }
    EXPECT_EQ(Stored(kEnableUdma), Dword(0));
    EXPECT_EQ(Stored(kLastAccess), Dword(0));
}

TEST_F(TApply, TheRestartQuestionComesAfterTheWriting) {
    const TProgram program;
    const TMainWindow& window = program.Window();
    window.Click(kDriverItem);
    window.Click(kUdmaBox);
    window.Click(L"Button_OK");
    const TMessageBox question = window.WaitForQuestion();
    EXPECT_EQ(Stored(kEnableUdma), Dword(1));
    EXPECT_TRUE(question.Offers(IDYES));
    EXPECT_FALSE(IsWindowEnabled(window.Handle()));
    question.Answer(IDNO);
    EXPECT_EQ(program.ExitCode(), 0u);
}

TEST_F(TApply, CancelAndClosingWriteNothing) {
    struct TWay {
        const char* Name;
        void (*Take)(const TMainWindow& window);
    };
    for (const TWay& way : {
             TWay{"the Cancel button", [](const TMainWindow& window) { window.Click(L"Button_Cancel"); }},
             TWay{"the Escape key", [](const TMainWindow& window) { window.Press(VK_ESCAPE); }},
             TWay{"closing the window", [](const TMainWindow& window) { window.Close(); }},
         }) {
        SCOPED_TRACE(way.Name);
        const TProgram program;
        program.Window().Click(kDriverItem);
        program.Window().Click(kUdmaBox);
        program.Window().Click(kVisitBox);
        way.Take(program.Window());
        EXPECT_EQ(program.ExitCode(), 0u);
        EXPECT_EQ(Stored(kEnableUdma), std::nullopt);
        EXPECT_EQ(Stored(kLastAccess), std::nullopt);
    }
}

TEST_F(TApply, OkAndEnterWriteAndClose) {
    struct TWay {
        const char* Name;
        void (*Take)(const TMainWindow& window);
    };
    for (const TWay& way : {
             TWay{"the OK button", [](const TMainWindow& window) { window.Click(L"Button_OK"); }},
             TWay{"the Enter key", [](const TMainWindow& window) { window.Press(VK_RETURN); }},
         }) {
        SCOPED_TRACE(way.Name);
        Store(kLastAccess, std::nullopt);
        const TProgram program;
        program.Window().Click(kDriverItem);
        program.Window().Click(kVisitBox);
        way.Take(program.Window());
        EXPECT_EQ(program.ExitCode(), 0u);
        EXPECT_EQ(Stored(kLastAccess), Dword(1));
    }
}

TEST_F(TApply, PassesOverAKeyWithoutRights) {
    Store(kLastAccess, Dword(1));
    Store(kShortNames, Dword(1));
    Store(kEnableUdma, Dword(1));
    const TReadOnlyKey readOnly(HKEY_LOCAL_MACHINE, kFileSystemKey);
    if (!readOnly.Effective()) GTEST_SKIP() << "this system grants full access to every key";

    const TProgram program;
    const TMainWindow& window = program.Window();
    window.Click(kDriverItem);
    // What cannot be opened for full access shows as missing; the rest of the page is loaded.
    EXPECT_TRUE(window.Checked(kVisitBox));
    EXPECT_TRUE(window.Checked(kUdmaBox));
    EXPECT_TRUE(window.Checked(L"Checkbox_Drives_DiskSpace_SpaceWarn_ShowWarn"));

    window.Click(kVisitBox);
    window.Click(kVisitBox);
    window.Click(kUdmaBox);
    (void)program.ApplyWithoutRestart();
    EXPECT_EQ(Stored(kLastAccess), Dword(1)) << "no right to write it";
    EXPECT_EQ(Stored(kEnableUdma), Dword(0)) << "what follows is written";
}

/// While it lives, Windows refuses the process every write of a registry value, though keys open: the function that
/// asks the system for it answers "access denied" instead. For a process of the test's own bitness.
class TRefusedWrites {
  public:
    explicit TRefusedWrites(HANDLE process) : FProcess(process) {
        // System libraries lie at the same address in all processes; compared to be sure.
        std::uint8_t found[sizeof kRefusal]{};
        SIZE_T done = 0;
        FEffective = ReadProcessMemory(FProcess, FTarget, found, sizeof found, &done) != FALSE &&
                     std::memcmp(found, FTarget, sizeof found) == 0 && Write(kRefusal);
        std::memcpy(FOriginal, found, sizeof found);
    }
    ~TRefusedWrites() {
        if (FEffective) Write(FOriginal);
    }
    TRefusedWrites(const TRefusedWrites&) = delete;
    TRefusedWrites& operator=(const TRefusedWrites&) = delete;

    [[nodiscard]] bool Effective() const { return FEffective; }

  private:
#ifdef _WIN64
    static constexpr std::uint8_t kRefusal[] = {0xB8, 0x22, 0x00,
                                                0x00, 0xC0, 0xC3};  // mov eax, C0000022h; ret
#else
    static constexpr std::uint8_t kRefusal[] = {0xB8, 0x22, 0x00, 0x00, 0xC0, 0xC2, 0x18, 0x00};  // …; ret 24
#endif

    bool Write(const std::uint8_t* code) const {
        DWORD protection = 0;
        if (!VirtualProtectEx(FProcess, FTarget, sizeof kRefusal, PAGE_EXECUTE_READWRITE, &protection))
            return false;
        SIZE_T done = 0;
        const BOOL written = WriteProcessMemory(FProcess, FTarget, code, sizeof kRefusal, &done);
        VirtualProtectEx(FProcess, FTarget, sizeof kRefusal, protection, &protection);
        return written != FALSE && done == sizeof kRefusal;
    }

    HANDLE FProcess;
    void* FTarget = reinterpret_cast<void*>(GetProcAddress(GetModuleHandleW(L"ntdll.dll"), "NtSetValueKey"));
    std::uint8_t FOriginal[sizeof kRefusal]{};
    bool FEffective = false;
};

TEST_F(TApply, KeepsAllChangesWhenOneIsRefused) {
    const TProgram program;
    const TMainWindow& window = program.Window();
    window.Click(kDriverItem);
    window.Click(kVisitBox);
    window.Click(kShortNameBox);
    {
        const TRefusedWrites refused(program.Handle());
        if (!refused.Effective()) GTEST_SKIP() << "the program is not of the test's bitness";
        program.Apply();  // says nothing
        EXPECT_EQ(Stored(kLastAccess), std::nullopt);
        EXPECT_EQ(Stored(kShortNames), std::nullopt);
    }
    // The next Apply tries them all again.
    window.Click(kUdmaBox);
    (void)program.ApplyWithoutRestart();
    EXPECT_EQ(Stored(kLastAccess), Dword(1));
    EXPECT_EQ(Stored(kShortNames), Dword(0));
    EXPECT_EQ(Stored(kEnableUdma), Dword(1));
}

}  // namespace
