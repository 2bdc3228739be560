// How long the command line takes to answer, side by side with what Windows has to ask for one value.
//   command_bench <qtune.exe> <pairs>
#include <cstdio>
#include <cstdlib>

#include "tools/bench.h"

namespace {

/// From the start of a program until its end; what it says is not kept.
double TimeOf(std::wstring commandLine) {
    SECURITY_ATTRIBUTES inherited{sizeof inherited, nullptr, TRUE};
    const HANDLE nowhere = CreateFileW(L"NUL", GENERIC_WRITE, 0, &inherited, OPEN_EXISTING, 0, nullptr);
    STARTUPINFOW startup{};
    startup.cb = sizeof startup;
    startup.dwFlags = STARTF_USESTDHANDLES;
    startup.hStdOutput = startup.hStdError = nowhere;
    PROCESS_INFORMATION process{};
    const TStopwatch watch;
    const BOOL starts = CreateProcessW(nullptr, commandLine.data(), nullptr, nullptr, TRUE, CREATE_NO_WINDOW,
                                       nullptr, nullptr, &startup, &process);
    CloseHandle(nowhere);
    if (!starts) throw TAutomationError(L"cannot start " + commandLine);
    WaitForSingleObject(process.hProcess, INFINITE);
    const double time = watch.Milliseconds();
    CloseHandle(process.hThread);
    CloseHandle(process.hProcess);
    return time;
}

}  // namespace

int wmain(int count, wchar_t** arguments) {
    if (count != 3) return 2;
    const std::wstring qtune = L"\"" + std::wstring(arguments[1]) + L"\"";
    const int pairs = std::max(1, static_cast<int>(std::wcstol(arguments[2], nullptr, 10)));
    try {
        for (const wchar_t* command : {L"get NTFS_SaveLastVisitData", L"list"}) {
            std::vector<double> own;
            std::vector<double> ratio;
            for (int i = -1; i < pairs; ++i) {  // the first pair warms up
                const double other = TimeOf(
                    L"reg.exe query HKLM\\System\\CurrentControlSet\\Control\\FileSystem /v "
                    L"NtfsDisableLastAccessUpdate");
                const double time = TimeOf(qtune + L" " + command);
                if (i < 0) continue;
                own.push_back(time);
                ratio.push_back(time / other);
            }
            std::printf("qtune %-28ls %7.1f ms, beside reg query %5.2f\n", command, Median(own),
                        Median(ratio));
        }
    } catch (const TAutomationError& fault) {
        std::fprintf(stderr, "%s\n", fault.what());
        return 1;
    }
    return 0;
}
