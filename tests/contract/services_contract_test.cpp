#include "tests/contract/subject.h"

namespace {

constexpr std::uint32_t kManagerConnect = 0x0001;  // SC_MANAGER_CONNECT
constexpr std::uint32_t kQueryAndAsk = 0x0084;     // SERVICE_QUERY_STATUS | SERVICE_INTERROGATE

class TServicesContract : public TContractTest {
  public:
    TServicesContract() : FManager(Services().OpenManager(kManagerConnect)) {}
    ~TServicesContract() override { Services().Close(FManager); }
    TServicesContract(const TServicesContract&) = delete;
    TServicesContract& operator=(const TServicesContract&) = delete;

  protected:
    TServiceManager& Services() { return System().Services; }
    [[nodiscard]] TServiceHandle Manager() const { return FManager; }

    /// Every call fails on the handle and touches nothing.
    void ExpectNoService(TServiceHandle handle) {
        auto state = TServiceState::Paused;
        EXPECT_FALSE(Services().QueryState(handle, state));
        EXPECT_FALSE(Services().Control(handle, TServiceControl::Interrogate, state));
        EXPECT_FALSE(Services().Control(handle, TServiceControl::Stop, state));
        EXPECT_FALSE(Services().Start(handle));
        EXPECT_FALSE(Services().ChangeStartType(handle, TServiceStartType::Manual));
        EXPECT_EQ(state, TServiceState::Paused);
    }

  private:
    TServiceHandle FManager;
};

TEST_F(TServicesContract, UnknownServicesAndWrongHandlesFail) {
    ASSERT_NE(Manager(), TServiceHandle::None);
    const TServiceHandle unknown =
        Services().OpenNamedService(Manager(), L"Vandrel-No-Such-Service", kQueryAndAsk);
    EXPECT_EQ(unknown, TServiceHandle::None);
    EXPECT_EQ(Services().OpenNamedService(TServiceHandle::None, InstalledService(), kQueryAndAsk),
              TServiceHandle::None);
    ExpectNoService(TServiceHandle::None);
    ExpectNoService(Manager());
    Services().Close(TServiceHandle::None);
}

TEST_F(TServicesContract, AnInstalledServiceAnswersUnlessItIsStopped) {
    std::wstring name = InstalledService();
    for (wchar_t& c : name) c = c >= L'a' && c <= L'z' ? static_cast<wchar_t>(c - L'a' + L'A') : c;
    const TServiceHandle service = Services().OpenNamedService(Manager(), name, kQueryAndAsk);
    ASSERT_NE(service, TServiceHandle::None);
    auto queried = TServiceState::Paused;
    auto answered = TServiceState::Paused;
    ASSERT_TRUE(Services().QueryState(service, queried));
    EXPECT_EQ(Services().Control(service, TServiceControl::Interrogate, answered),
              queried != TServiceState::Stopped);
    EXPECT_EQ(answered, queried == TServiceState::Stopped ? TServiceState::Paused : queried);
    EXPECT_EQ(Services().OpenNamedService(service, name, kQueryAndAsk), TServiceHandle::None);
    Services().Close(service);
}

}  // namespace
