#include <windows.h>

#include <filesystem>

#include "platform/win32/win32_system.h"
#include "tests/contract/subject.h"
#include "ui/win32/dialogs_win32.h"

namespace {

/// Deletes a key with everything below it, without any help of the code under test.
void Erase(HKEY parent, const wchar_t* name) {
    HKEY key = nullptr;
    if (RegOpenKeyExW(parent, name, 0, KEY_READ, &key) != ERROR_SUCCESS) return;
    wchar_t child[256];
    while (RegEnumKeyW(key, 0, child, 256) == ERROR_SUCCESS) Erase(key, child);
    RegCloseKey(key);
    ASSERT_EQ(RegDeleteKeyW(parent, name), ERROR_SUCCESS);
}

void EraseContractKeys() {
    for (const TContractKey& key : kContractKeys)
        Erase(reinterpret_cast<HKEY>(static_cast<std::intptr_t>(static_cast<std::int32_t>(key.Root))),
              key.Path + 1);
}

}  // namespace

struct TContractTest::TSubject {
    TWin32Dialogs Dialogs;
    TWin32System Windows{Dialogs};
    std::filesystem::path Folder = std::filesystem::temp_directory_path() / "contract-test";
};

TContractTest::TContractTest() : FSubject(std::make_unique<TSubject>()) {
    EraseContractKeys();
    std::filesystem::remove_all(FSubject->Folder);
    std::filesystem::create_directory(FSubject->Folder);
}

TContractTest::~TContractTest() {
    EraseContractKeys();
    std::filesystem::remove_all(FSubject->Folder);
}

TSystem& TContractTest::System() { return FSubject->Windows.System(); }
std::wstring TContractTest::Folder() { return FSubject->Folder.wstring(); }
void TContractTest::MakeFolder(const std::wstring& path) { std::filesystem::create_directory(path); }

std::wstring TContractTest::VersionedFile() {
    wchar_t folder[MAX_PATH]{};
    GetSystemDirectoryW(folder, MAX_PATH);
    return std::wstring(folder) + L"\\shell32.dll";
}

std::wstring TContractTest::InstalledService() { return L"PlugPlay"; }
