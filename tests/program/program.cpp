#include "tests/program/program.h"

#include <shlwapi.h>

TStoredValue Dword(DWORD number) {
    const auto* bytes = reinterpret_cast<const BYTE*>(&number);
    return {REG_DWORD, {bytes, bytes + sizeof number}};
}
TStoredValue Text(const std::wstring& text) {
    const auto* bytes = reinterpret_cast<const BYTE*>(text.c_str());
    return {REG_SZ, {bytes, bytes + (text.size() + 1) * sizeof(wchar_t)}};
}

std::optional<TStoredValue> Stored(const TValuePlace& place) {
    BYTE data[1024];
    DWORD size = sizeof data;
    DWORD type = 0;
    if (SHGetValueW(place.Root, place.Key, place.Name, &type, data, &size) != ERROR_SUCCESS)
        return std::nullopt;
    return TStoredValue{type, {data, data + size}};
}

void Store(const TValuePlace& place, const std::optional<TStoredValue>& value) {
    if (!value && !Stored(place)) return;
    const DWORD error = value ? SHSetValueW(place.Root, place.Key, place.Name, value->first,
                                            value->second.data(), static_cast<DWORD>(value->second.size()))
                              : SHDeleteValueW(place.Root, place.Key, place.Name);
    if (error != ERROR_SUCCESS) throw TAutomationError(L"storing fails: error " + std::to_wstring(error));
}

std::wstring ProgramFolder() {
    wchar_t folder[MAX_PATH];
    const DWORD length = GetEnvironmentVariableW(L"QUILLTUNE_DIR", folder, MAX_PATH);
    if (length == 0 || length >= MAX_PATH)
        throw TAutomationError(L"QUILLTUNE_DIR does not name the program's folder");
    return {folder, length};
}

TProcess::TProcess(const std::wstring& arguments) {
    const std::wstring file = ProgramFolder() + L"\\Quilltune.exe";
    std::wstring commandLine = L"\"" + file + L"\" " + arguments;
    STARTUPINFOW startup{};
    startup.cb = sizeof startup;
    PROCESS_INFORMATION process{};
    if (!CreateProcessW(file.c_str(), commandLine.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr,
                        &startup, &process))
        throw TAutomationError(L"cannot start " + file + L": error " + std::to_wstring(GetLastError()));
    CloseHandle(process.hThread);
    FHandle = process.hProcess;
    FId = process.dwProcessId;
}

TProcess::~TProcess() {
    // The next copy must not find this one's window, so its end is waited for.
    TerminateProcess(FHandle, 1);
    WaitForSingleObject(FHandle, kPatience);
    CloseHandle(FHandle);
}

DWORD TProcess::ExitCode() const {
    if (WaitForSingleObject(FHandle, kPatience) != WAIT_OBJECT_0)
        throw TAutomationError(L"the program does not end");
    DWORD code = 0;
    GetExitCodeProcess(FHandle, &code);
    return code;
}

void TProgram::Apply() const {
    FWindow.Click(L"Button_Apply");
    const bool done = WaitUntil([this] { return !FWindow.Enabled(L"Button_Apply") || FWindow.Question(); });
    if (const auto box = FWindow.Question()) throw TAutomationError(L"Apply asks: " + box->Text());
    if (!done) throw TAutomationError(L"Apply does not end");
}

TProgram::TAsked TProgram::ApplyWithoutRestart() const {
    FWindow.Click(L"Button_Apply");
    const TMessageBox box = FWindow.WaitForQuestion();
    if (!box.Offers(IDNO)) throw TAutomationError(L"no question to answer with No: " + box.Text());
    TAsked asked{box.Title(), box.Text()};
    box.Answer(IDNO);
    if (!WaitUntil([this] { return !FWindow.Enabled(L"Button_Apply"); }))
        throw TAutomationError(L"Apply does not end");
    return asked;
}
