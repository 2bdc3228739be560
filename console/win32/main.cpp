// Program entry of the command line.
#include <exception>

#include "app/fault_log.h"
#include "base/win32/late_bound.h"
#include "console/command.h"
#include "console/win32/console_win32.h"
#include "platform/text.h"
#include "platform/win32/win32_system.h"
#include "settings/scratch_system.h"

extern "C" {
/// Arguments with * and ? stay what they are.
int _dowildcard = 0;  // NOLINT(bugprone-reserved-identifier): the name that the C library looks for
}

int wmain(int count, wchar_t** arguments) {
    SearchSystemFolderOnly();  // before anything else: most of Windows' own libraries are loaded at their first call
    TScratchDialogs dialogs;  // nobody is asked
    TWin32System platform(dialogs);
    TWin32Console console;
    try {
        return static_cast<int>(
            RunCommandLine(platform.System(), {arguments + 1, arguments + count}, console));
    } catch (const std::exception& fault) {
        TFaultLog(platform.System()).Add(std::current_exception());
        console.Complain(L"qtune: " + FromUtf8(fault.what()));
        return static_cast<int>(TExitStatus::Failed);
    }
}
