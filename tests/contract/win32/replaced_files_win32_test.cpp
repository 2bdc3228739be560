// What the real file system knows of a file beside its bytes, put there behind the adapter's back.
#include <windows.h>

#include <atomic>

#include <gmock/gmock.h>

#include "base/win32/handle.h"
#include "tests/contract/subject.h"

namespace {

using testing::ElementsAre;

class TReplacedFilesWin32 : public TContractTest {
  protected:
    TReplacedFilesWin32() { EXPECT_TRUE(Replace("old")); }

    bool Replace(std::string_view text) { return System().Files.Replace(File, {text.begin(), text.end()}); }
    std::string Text(const std::wstring& path) {
        const auto bytes = System().Files.Read(path).value_or(TBytes());
        return {bytes.begin(), bytes.end()};
    }
    std::vector<std::wstring> Names() { return System().Files.List(Folder(), L"*"); }

    const std::wstring File = Folder() + L"\\user.js";
    const std::wstring Other = Folder() + L"\\other.js";
};

/// Holds the file open, with others allowed that much.
TFileHandle Hold(const std::wstring& path, DWORD share) {
    return TFileHandle(CreateFileW(path.c_str(), GENERIC_READ, share, nullptr, OPEN_EXISTING, 0, nullptr));
}

TEST_F(TReplacedFilesWin32, ReplacingKeepsAttributesAndLinks) {
    constexpr DWORD kAttributes = FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_ARCHIVE;
    ASSERT_TRUE(SetFileAttributesW(File.c_str(), kAttributes));
    EXPECT_TRUE(Replace("new"));
    EXPECT_EQ(GetFileAttributesW(File.c_str()), kAttributes);

    ASSERT_TRUE(CreateHardLinkW(Other.c_str(), File.c_str(), nullptr));
    EXPECT_TRUE(Replace("a longer one"));
    EXPECT_TRUE(Replace("newer"));
    EXPECT_EQ(Text(Other), "newer");
    EXPECT_EQ(Names().size(), 2U);
}

TEST_F(TReplacedFilesWin32, ReplacingKeepsRights) {
    const auto part = [this](SECURITY_INFORMATION which) {
        TBytes bytes(1024);
        DWORD size = 0;
        EXPECT_TRUE(GetFileSecurityW(File.c_str(), which, bytes.data(), 1024, &size));
        return bytes;
    };
    TBytes owner = part(OWNER_SECURITY_INFORMATION);
    PSID user = nullptr;
    BOOL isDefault = FALSE;
    ASSERT_TRUE(GetSecurityDescriptorOwner(owner.data(), &user, &isDefault));
    alignas(ACL) BYTE buffer[256];
    auto* list = reinterpret_cast<ACL*>(buffer);
    ASSERT_TRUE(InitializeAcl(list, sizeof buffer, ACL_REVISION));
    ASSERT_TRUE(AddAccessAllowedAce(list, ACL_REVISION, GENERIC_ALL, user));
    SECURITY_DESCRIPTOR ownerAlone;
    ASSERT_TRUE(InitializeSecurityDescriptor(&ownerAlone, SECURITY_DESCRIPTOR_REVISION));
    ASSERT_TRUE(SetSecurityDescriptorDacl(&ownerAlone, TRUE, list, FALSE));
    const TBytes usual = part(DACL_SECURITY_INFORMATION);
    ASSERT_TRUE(SetFileSecurityW(File.c_str(), DACL_SECURITY_INFORMATION, &ownerAlone));
    const TBytes before = part(DACL_SECURITY_INFORMATION);
    ASSERT_NE(before, usual);
    EXPECT_TRUE(Replace("new"));
    EXPECT_EQ(part(DACL_SECURITY_INFORMATION), before);
}

TEST_F(TReplacedFilesWin32, NothingIsLeftBeside) {
    {
        const TFileHandle reader = Hold(File, FILE_SHARE_READ);
        EXPECT_FALSE(Replace("new")) << "another program lets nobody write";
    }
    EXPECT_EQ(Text(File), "old");
    EXPECT_THAT(Names(), ElementsAre(L"user.js"));
    {
        const TFileHandle reader = Hold(File, FILE_SHARE_READ | FILE_SHARE_WRITE);
        EXPECT_TRUE(Replace("new")) << "it need not be moved away";
    }
    // What a killed program leaves.
    ASSERT_TRUE(CopyFileW(File.c_str(), (File + L".quilltune-new").c_str(), FALSE));
    EXPECT_TRUE(Replace("newer"));
    EXPECT_EQ(Text(File), "newer");
    EXPECT_THAT(Names(), ElementsAre(L"user.js"));
}

/// Looks for the file all the time.
struct TWatch {
    std::wstring File;
    std::atomic<bool> Ends = false;
    int Missing = 0;

    static DWORD WINAPI Run(void* parameter) {
        for (auto& watch = *static_cast<TWatch*>(parameter); !watch.Ends;)
            if (GetFileAttributesW(watch.File.c_str()) == INVALID_FILE_ATTRIBUTES) ++watch.Missing;
        return 0;
    }
};

TEST_F(TReplacedFilesWin32, AFileIsThereAtEveryMoment) {
    TWatch watch{File};
    const TWaitableHandle thread(CreateThread(nullptr, 0, TWatch::Run, &watch, 0, nullptr));
    ASSERT_TRUE(thread.IsValid());
    for (int i = 0; i < 300; ++i) EXPECT_TRUE(Replace("new"));
    watch.Ends = true;
    WaitForSingleObject(thread.Get(), INFINITE);
    EXPECT_EQ(watch.Missing, 0) << "an end in between would lose the name";
}

}  // namespace
