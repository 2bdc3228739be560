#include "settings/net/user_logon_page.h"

#include "tests/settings/page_bench.h"

namespace {

TEST(TUserLogonPage, NoDebuggerLearnsThePassword) {
    constexpr const wchar_t* kPassword = L"Edit_UserLogin_AutoLogin_LoginInfo_Password";
    TPageBench bench(UserLogonPage());
    bench.Act(kPassword, L"secret");
    bench.Act(L"Checkbox_UserLogin_AutoLogin_ActiveAutoLogin", L"on");
    bench.Context.Changes.WriteAll();
    EXPECT_TRUE(bench.Fake.Shell.DebugTexts().empty());
}

}  // namespace
