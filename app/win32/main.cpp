// Program entry.
#include "app/main_window.h"
#include "app/win32/dialogs_win32.h"
#include "app/win32/fault_hooks.h"
#include "app/win32/file_argument.h"
#include "app/win32/single_instance.h"
#include "base/win32/late_bound.h"
#include "platform/win32/win32_system.h"
#include "ui/win32/form_window.h"
#include "ui/win32/png_decoder.h"

int WINAPI wWinMain(HINSTANCE instance, HINSTANCE /*previous*/, PWSTR commandLine, int showCommand) {
    SearchSystemFolderOnly();  // before anything else: most of Windows' own libraries are loaded at their first call
    constexpr const wchar_t* kMainWindowClass = L"TQuilltune_FormMain";
    const std::wstring file = *commandLine == L'\0' ? std::wstring() : FileArgument();
    const TSingleInstance single;
    if (single.AlreadyRunning()) {
        TSingleInstance::BringOtherForward(kMainWindowClass, file);
        return 0;
    }
    INITCOMMONCONTROLSEX controls{sizeof controls, ICC_STANDARD_CLASSES | ICC_BAR_CLASSES | ICC_TAB_CLASSES |
                                                       ICC_UPDOWN_CLASS | ICC_LISTVIEW_CLASSES};
    InitCommonControlsEx(&controls);

    TWin32Dialogs dialogs;
    TWin32System platform(dialogs);
    TSystem& system = platform.System();
    TFaultLog faultLog(system);
    const TFaultHooks hooks(faultLog);
    TQuilltune_FormMain form(system);
    form.Notices = PngNotices;
    // Faults show no dialog and do not end the program.
    TFormWindow& window = TFormWindow::Attach(
        form, instance, [&faultLog](const std::exception_ptr& fault) { faultLog.Add(fault); });
    TFileRequests requests;
    requests.OpenFile = [&form](const std::wstring& path) { form.OpenFile(path); };
    window.OnMessage = [&](UINT message, LPARAM lParam) {
        if (message != TSingleInstance::kComeForward)
            return requests.HandleMessage(window.Handle(), message, lParam);
        window.ComeForward();
        return true;
    };
    window.Show(showCommand);
    if (!file.empty()) requests.Add(window.Handle(), file);
    return window.Run();
}
