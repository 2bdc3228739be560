#include "app/win32/single_instance.h"

TSingleInstance::TSingleInstance() {
    FMutex = CreateMutexW(nullptr, TRUE, L"_Vandrel_Quilltune_");
    FAlreadyRunning = GetLastError() == ERROR_ALREADY_EXISTS;
}

TSingleInstance::~TSingleInstance() {
    if (FMutex != nullptr) CloseHandle(FMutex);
}

void TSingleInstance::BringOtherForward(const wchar_t* windowClass) {
    const HWND window = FindWindowW(windowClass, nullptr);
    if (window == nullptr) return;
    if (IsIconic(window)) PostMessageW(window, WM_SYSCOMMAND, SC_RESTORE, 0);
    SetForegroundWindow(window);
    SendMessageW(window, kComeForward, 0, 0);
}
