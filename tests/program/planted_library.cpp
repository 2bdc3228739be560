// A library that somebody has put beside the program: when it is loaded it leaves a file, its own name with ".loaded".
#include <windows.h>

extern "C" BOOL WINAPI DllMain(HINSTANCE library, DWORD reason, void* /*reserved*/) {
    if (reason != DLL_PROCESS_ATTACH) return TRUE;
    wchar_t path[MAX_PATH + 10]{};
    GetModuleFileNameW(library, path, MAX_PATH);
    lstrcatW(path, L".loaded");
    CloseHandle(CreateFileW(path, GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr));
    return TRUE;
}
