// What only the real registry can hold or refuse, put there behind the adapter's back.
#include <windows.h>
#include <aclapi.h>

#include <gmock/gmock.h>

#include "base/win32/handle.h"
#include "tests/contract/subject.h"

namespace {

class TRegistryWin32 : public TContractTest {
  protected:
    TRegistry& Registry() { return System().Registry; }

    static TKeyHandle Key(const std::wstring& below = {}) {
        HKEY key = nullptr;
        EXPECT_EQ(RegCreateKeyExW(HKEY_CURRENT_USER, (kUserKey.Path + 1 + below).c_str(), 0, nullptr, 0,
                                  KEY_ALL_ACCESS, nullptr, &key, nullptr),
                  0);
        return TKeyHandle(key);
    }
    static TRegistryPlace Place(const std::wstring& below = {}) {
        return {kUserKey.Root, kUserKey.Path + below, L"v"};
    }
};

TEST_F(TRegistryWin32, TextIsStoredWithItsNulUnlessItsBytesHaveNone) {
    BYTE stored[8];
    const auto bytes = [&] {
        DWORD size = sizeof(stored);
        EXPECT_EQ(RegQueryValueExW(Key().Get(), L"v", nullptr, nullptr, stored, &size), 0);
        return TBytes(stored, stored + size);
    };
    ASSERT_EQ(Registry().Write(Place(), {TRegDataType::String, L"ab"}), TWriteStatus::Done);
    EXPECT_EQ(bytes(), (TBytes{'a', 0, 'b', 0, 0, 0}));
    TBytes text{'a', 0, 'b', 0, 0};  // with one more behind it that does not count
    text.pop_back();
    ASSERT_EQ(Registry().WriteRaw(Place(), {REG_SZ, text}), TWriteStatus::Done);
    EXPECT_EQ(bytes(), text);
}

/// Gives everybody these rights to the key and no others.
void Allow(HKEY key, DWORD rights) {
    SID_IDENTIFIER_AUTHORITY world = SECURITY_WORLD_SID_AUTHORITY;
    BYTE everyone[SECURITY_MAX_SID_SIZE];
    InitializeSid(everyone, &world, 1);
    *GetSidSubAuthority(everyone, 0) = SECURITY_WORLD_RID;
    alignas(ACL) BYTE buffer[256];
    const auto acl = reinterpret_cast<ACL*>(buffer);
    ASSERT_TRUE(InitializeAcl(acl, sizeof(buffer), ACL_REVISION));
    ASSERT_TRUE(AddAccessAllowedAce(acl, ACL_REVISION, rights, everyone));
    SECURITY_DESCRIPTOR descriptor;
    ASSERT_TRUE(InitializeSecurityDescriptor(&descriptor, SECURITY_DESCRIPTOR_REVISION));
    ASSERT_TRUE(SetSecurityDescriptorDacl(&descriptor, TRUE, acl, FALSE));
    EXPECT_EQ(RegSetKeySecurity(key, DACL_SECURITY_INFORMATION, &descriptor), ERROR_SUCCESS);
}

TEST_F(TRegistryWin32, AKeyForReadingOnlyIsUnavailable) {
    const TRegistryPlace place = Place(L"\\Guarded");
    ASSERT_EQ(Registry().Write(place, {TRegDataType::Dword, 1}), TWriteStatus::Done);
    const TKeyHandle key = Key(L"\\Guarded");
    Allow(key.Get(), KEY_READ | WRITE_DAC);

    TRegistryData data;
    EXPECT_EQ(Registry().Read(place, data), TReadStatus::KeyUnavailable);
    EXPECT_EQ(Registry().Check(place, TRegistryView::Native), TReadStatus::KeyUnavailable);
    EXPECT_EQ(Registry().Write(place, {TRegDataType::Dword, 2}), TWriteStatus::KeyUnavailable);
    EXPECT_EQ(Registry().DeleteValue(place), TWriteStatus::KeyUnavailable);
    EXPECT_EQ(Registry().DeleteKey(place.Root, place.Key), TWriteStatus::KeyUnavailable);
    EXPECT_EQ(Registry().DeleteKey(kUserKey.Root, kUserKey.Path), TWriteStatus::Refused);
    EXPECT_THAT(Registry().SubKeys(place.Root, place.Key), testing::IsEmpty());
    EXPECT_EQ(Registry().WriteRaw(place, {}), TWriteStatus::KeyUnavailable);
    TRawValue raw;
    EXPECT_EQ(Registry().ReadRaw(place, raw), TReadStatus::Found);
    EXPECT_THAT(Registry().ValueNames(place.Root, place.Key), testing::ElementsAre(L"v"));

    Allow(key.Get(), KEY_ALL_ACCESS);
    ASSERT_EQ(Registry().Read(place, data), TReadStatus::Found);
    EXPECT_EQ(data, (TRegistryData{TRegDataType::Dword, 1}));
}

/// A 32-bit process on 64-bit Windows works on the registry of Windows, not on its own part of it.
TEST_F(TRegistryWin32, WorksOnTheNativeView) {
    constexpr TRootKey kRoot = TRootKey::LocalMachine;
    constexpr wchar_t kPath[] = L"Software\\Vandrel-View-Test";
    const auto exists = [&](const wchar_t* path, REGSAM view) {
        HKEY key = nullptr;
        const LONG error = RegOpenKeyExW(HKEY_LOCAL_MACHINE, path, 0, KEY_READ | view, &key);
        const TKeyHandle closes(error == ERROR_SUCCESS ? key : nullptr);
        return closes.IsValid();
    };
    ASSERT_FALSE(exists(kPath, KEY_WOW64_64KEY));
    ASSERT_EQ(Registry().Write({kRoot, kPath, L"v"}, {TRegDataType::Dword, 1}), TWriteStatus::Done);
    ASSERT_EQ(Registry().Write({kRoot, kPath + std::wstring(L"\\Sub"), L"v"}, {}), TWriteStatus::Done);
    EXPECT_TRUE(exists(kPath, KEY_WOW64_64KEY));
    EXPECT_FALSE(exists(kPath, KEY_WOW64_32KEY));
    EXPECT_FALSE(exists(L"Software\\Wow6432Node\\Vandrel-View-Test", KEY_WOW64_64KEY));

    TRegistryData data;
    EXPECT_EQ(Registry().Read({kRoot, kPath, L"v"}, data), TReadStatus::Found);
    const bool redirected = System().Windows.IsWow64();
    EXPECT_EQ(Registry().Check({kRoot, kPath, L"v"}, TRegistryView::Native), TReadStatus::Found);
    EXPECT_EQ(Registry().Check({kRoot, kPath, L"v"}, TRegistryView::Process),
              redirected ? TReadStatus::KeyUnavailable : TReadStatus::Found);
    EXPECT_THAT(Registry().SubKeys(kRoot, kPath), testing::ElementsAre(L"Sub"));
    EXPECT_EQ(Registry().DeleteKey(kRoot, kPath), TWriteStatus::Done);
    EXPECT_FALSE(exists(kPath, KEY_WOW64_64KEY));
}

}  // namespace
