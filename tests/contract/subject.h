// What the contract suite runs against: the fakes, or the real Windows.
#pragma once

#include <gtest/gtest.h>

#include "platform/system.h"

/// A key for the tests alone. It does not exist when a test begins, below any of the roots: HKEY_CLASSES_ROOT
/// itself, and the key "Software" of the others.
struct TContractKey {
    TRootKey Root;
    const wchar_t* Path;
};
inline constexpr TContractKey kContractKeys[] = {
    {TRootKey::CurrentUser, L"\\Software\\Vandrel-Contract-Test"},
    {TRootKey::LocalMachine, L"\\Software\\Vandrel-Contract-Test"},
    {TRootKey::ClassesRoot, L"\\Vandrel-Contract-Test"},
    {TRootKey::Users, L"\\.DEFAULT\\Software\\Vandrel-Contract-Test"},
    {TRootKey::CurrentConfig, L"\\Software\\Vandrel-Contract-Test"},
};
inline constexpr TContractKey kUserKey = kContractKeys[0];

class TContractTest : public testing::Test {
  public:
    TContractTest();
    ~TContractTest() override;
    TContractTest(const TContractTest&) = delete;
    TContractTest& operator=(const TContractTest&) = delete;

  protected:
    /// The system under test.
    TSystem& System();
    /// A folder, empty when the test begins; no trailing delimiter.
    std::wstring Folder();
    void MakeFolder(const std::wstring& path);
    void MakeReadOnly(const std::wstring& path);
    /// A file with a version resource in at least one language.
    std::wstring VersionedFile();
    /// Key name of a service that is installed.
    std::wstring InstalledService();

  private:
    struct TSubject;
    std::unique_ptr<TSubject> FSubject;
};
