// Faults that end the process. Each happens in a process of its own; the log is what remains.
#include "app/win32/fault_hooks.h"

#include <filesystem>
#include <fstream>

#include <gmock/gmock.h>

#include "platform/win32/files_win32.h"
#include "tests/fakes/fake_system.h"
#include "ui/controls.h"
#include "ui/design.h"
#include "ui/win32/form_window.h"

namespace {

using testing::HasSubstr;

void WriteToNowhere() {
    volatile ULONG_PTR address = 0x10;
    *reinterpret_cast<volatile int*>(address) = 1;
}

/// Deeper than any stack.
int Recurse(int depth) {
    volatile char frame[4096];
    frame[0] = 1;
    return depth == 0 ? 0 : Recurse(depth - 1) + frame[0];
}

void ThrowUncaught() {
    try {
        throw std::out_of_range("nobody catches this");
    } catch (...) {
        std::terminate();
    }
}

DWORD WINAPI Click(void* button) {
    return static_cast<DWORD>(SendMessageW(static_cast<HWND>(button), BM_CLICK, 0, 0));
}

/// In a handler that Windows calls on behalf of another thread; it hides such faults from the filter.
void ClickOnFault() {
    TForm form(L"Form", L"TFaultTestForm");
    form.Build(form, Button(L"Button", L"Button"));
    auto* button = form.Find<TButton>(L"Button");
    button->OnClick = [](TComponent&) { WriteToNowhere(); };
    TFormWindow::Attach(form, GetModuleHandleW(nullptr), {}).Show(SW_SHOWNOACTIVATE);
    const HWND window = dynamic_cast<TWindowPeer*>(button->Peer())->Handle();
    const TWaitableHandle clicks(CreateThread(nullptr, 0, Click, window, 0, nullptr));
    while (MsgWaitForMultipleObjects(0, nullptr, FALSE, 5000, QS_ALLINPUT) == WAIT_OBJECT_0) {
        MSG message;
        while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) DispatchMessageW(&message);
    }
}

class FaultHooksDeathTest : public testing::Test {
  protected:
    FaultHooksDeathTest() { std::filesystem::create_directories(Folder); }
    ~FaultHooksDeathTest() override { std::filesystem::remove_all(Folder); }

    /// What the process of a fault does.
    void Run(void (*fault)()) {
        Fake.Windows.SetProgramFile((Folder / "program.exe").wstring());
        TFaultLog log(System);
        const TFaultHooks hooks(log);
        fault();
    }
    /// The log, which is then deleted.
    std::string TakeLog() {
        std::ifstream file(Folder / "Error_Log.txt", std::ios::binary);
        std::string text{std::istreambuf_iterator<char>(file), {}};
        file.close();
        std::filesystem::remove(Folder / "Error_Log.txt");
        return text;
    }

    std::filesystem::path Folder = std::filesystem::temp_directory_path() / "fault-hooks-test";
    TFakeSystem Fake;
    TWin32Files Files;
    TSystem System{Fake.Registry, Fake.Parameters, Fake.Services, Fake.Shell,
                   Files,         Fake.Windows,    Fake.Dialogs,  Fake.Clock};
};

TEST_F(FaultHooksDeathTest, AFaultIsLoggedBeforeTheProcessEnds) {
    const struct {
        void (*Fault)();
        DWORD Code;
        const char* Line;
    } cases[] = {
        {WriteToNowhere, EXCEPTION_ACCESS_VIOLATION,
         "Exception Type=EAccessViolation\r\nError Message=Access violation at address "},
        {ClickOnFault, EXCEPTION_ACCESS_VIOLATION, "Exception Type=EAccessViolation\r\n"},
        {[] { RaiseException(EXCEPTION_INT_DIVIDE_BY_ZERO, 0, 0, nullptr); }, EXCEPTION_INT_DIVIDE_BY_ZERO,
         "Exception Type=EDivByZero\r\n"},
        {[] { Recurse(1'000'000); }, EXCEPTION_STACK_OVERFLOW, "Exception Type=EStackOverflow\r\n"},
        {[] { RaiseException(0xE1234567, EXCEPTION_NONCONTINUABLE, 0, nullptr); }, 0xE1234567,
         "Exception Type=EExternalException\r\nError Message=External exception E1234567 at address "},
        {ThrowUncaught, 3, "Exception Type=std::out_of_range\r\nError Message=nobody catches this\r\n"},
    };
    for (const auto& each : cases) {
        EXPECT_EXIT(Run(each.Fault), testing::ExitedWithCode(static_cast<int>(each.Code)), "");
        EXPECT_THAT(TakeLog(), HasSubstr(each.Line));
    }
}

}  // namespace
