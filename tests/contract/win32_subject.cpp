#include <windows.h>
#include <shlwapi.h>

#include <filesystem>

#include "app/win32/dialogs_win32.h"
#include "platform/win32/win32_system.h"
#include "tests/contract/subject.h"

namespace {

/// Without any help of the code under test.
void EraseContractKeys() {
    for (const TContractKey& key : kContractKeys)
        SHDeleteKeyW(reinterpret_cast<HKEY>(static_cast<std::intptr_t>(static_cast<std::int32_t>(key.Root))),
                     key.Path + 1);
}

}  // namespace

struct TContractTest::TSubject {
    TWin32Dialogs Dialogs;
    TWin32System Windows{Dialogs};
    std::vector<std::wstring> ReadOnly;
    std::filesystem::path Folder = std::filesystem::temp_directory_path() / "contract-test";
};

TContractTest::TContractTest() : FSubject(std::make_unique<TSubject>()) {
    EraseContractKeys();
    std::filesystem::remove_all(FSubject->Folder);
    std::filesystem::create_directory(FSubject->Folder);
}

TContractTest::~TContractTest() {
    EraseContractKeys();
    for (const std::wstring& path : FSubject->ReadOnly)
        SetFileAttributesW(path.c_str(), FILE_ATTRIBUTE_NORMAL);
    std::filesystem::remove_all(FSubject->Folder);
}

TSystem& TContractTest::System() { return FSubject->Windows.System(); }
std::wstring TContractTest::Folder() { return FSubject->Folder.wstring(); }
void TContractTest::MakeFolder(const std::wstring& path) { std::filesystem::create_directory(path); }

void TContractTest::MakeReadOnly(const std::wstring& path) {
    SetFileAttributesW(path.c_str(), FILE_ATTRIBUTE_READONLY);
    FSubject->ReadOnly.push_back(path);
}

std::wstring TContractTest::VersionedFile() {
    wchar_t folder[MAX_PATH]{};
    GetSystemDirectoryW(folder, MAX_PATH);
    return std::wstring(folder) + L"\\shell32.dll";
}

std::wstring TContractTest::InstalledService() { return L"PlugPlay"; }
