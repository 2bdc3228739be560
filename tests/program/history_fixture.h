// Tests of what Apply leaves in the history, and of what comes from there or from a file.
#pragma once

#include <windows.h>

#include <functional>

#include "tests/program/registry_snapshot.h"

inline constexpr const wchar_t* kHistoryClass = L"TQuilltune_FormHistory";
inline constexpr const wchar_t* kPreviewClass = L"TQuilltune_FormPreview";

/// Of the environment.
inline std::wstring Variable(const wchar_t* name) {
    wchar_t text[MAX_PATH]{};
    GetEnvironmentVariableW(name, text, MAX_PATH);
    return text;
}

inline std::wstring HistoryFolder() {
    return Variable(L"APPDATA") + L"\\Vandrel\\Orbicare V4\\Quilltune\\History";
}

inline std::string FileBytes(const std::wstring& path) {
    std::string bytes;
    const HANDLE file =
        CreateFileW(path.c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr);
    if (file == INVALID_HANDLE_VALUE) return bytes;
    DWORD size = GetFileSize(file, nullptr);
    bytes.resize(size);
    ReadFile(file, bytes.data(), size, &size, nullptr);
    CloseHandle(file);
    return bytes;
}

inline void PutFile(const std::wstring& path, const std::string& bytes) {
    const HANDLE file = CreateFileW(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr);
    if (file == INVALID_HANDLE_VALUE) throw TAutomationError(L"cannot write " + path);
    DWORD written = 0;
    WriteFile(file, bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr);
    CloseHandle(file);
}

/// A folder with all above it.
inline void MakeFolder(const std::wstring& path) {
    for (std::size_t end = path.find(L'\\', 3); end != std::wstring::npos; end = path.find(L'\\', end + 1))
        CreateDirectoryW(path.substr(0, end).c_str(), nullptr);
    CreateDirectoryW(path.c_str(), nullptr);
}

/// The names of the files in the history.
inline std::vector<std::wstring> Entries(const wchar_t* pattern = L"*.reg") {
    std::vector<std::wstring> names;
    WIN32_FIND_DATAW found;
    const HANDLE search = FindFirstFileW((HistoryFolder() + L"\\" + pattern).c_str(), &found);
    if (search == INVALID_HANDLE_VALUE) return names;
    do names.push_back(found.cFileName);
    while (FindNextFileW(search, &found));
    FindClose(search);
    return names;
}

/// Begins with an empty history, and puts the registry back as it was.
class THistoryTest : public TProgramTest {
  protected:
    using TRows = std::vector<std::vector<std::wstring>>;

    THistoryTest() { ClearHistory(); }
    ~THistoryTest() override { Restore(FBegin); }

    static void ClearHistory() {
        // What is being written when a program is killed lies there too.
        for (const std::wstring& entry : Entries(L"*"))
            DeleteFileW((HistoryFolder() + L"\\" + entry).c_str());
        DeleteFileW(HistoryFolder().c_str());
    }

    /// Answers whatever is asked so that nothing more happens.
    static void AnswerAll(const TMainWindow& window) {
        while (const auto box = window.Question())
            for (const int answer : {IDNO, IDCANCEL, IDOK})
                if (box->Offers(answer)) {
                    box->Answer(answer);
                    break;
                }
    }

    /// Presses a button, does `meanwhile` while that is handled, and says No or OK to all that follows, until it is done.
    static void CarryOut(
        const TMainWindow& window, const wchar_t* button, const TMainWindow& main,
        const std::function<void()>& meanwhile = [] {}) {
        static bool done;
        done = false;
        SendMessageCallbackW(
            window.Find(button), BM_CLICK, 0, 0, [](HWND, UINT, ULONG_PTR, LRESULT) { done = true; }, 0);
        meanwhile();
        EXPECT_TRUE(WaitUntil([&] {
            AnswerAll(main);
            MSG message;
            PeekMessageW(&message, nullptr, 0, 0, PM_NOREMOVE);  // calls back
            return done;
        }));
    }

    /// Undoes the newest entry.
    static void Undo(const TMainWindow& window) {
        window.Click(L"Button_History");
        const TMainWindow history = TMainWindow::WaitFor(window.Process(), kHistoryClass);
        CarryOut(history, L"Button_History_Undo", window, [&] {
            TMainWindow::WaitFor(window.Process(), kPreviewClass).Click(L"Button_Preview_Apply");
        });
        history.Click(L"Button_History_Close");
    }

    TSnapshot FBegin = RegistrySnapshot();
};
