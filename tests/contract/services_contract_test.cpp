#include "platform/service_control.h"
#include "tests/contract/subject.h"

namespace {

constexpr std::uint32_t kManagerConnect = 0x0001;  // SC_MANAGER_CONNECT
constexpr std::uint32_t kQueryAndAsk = 0x0084;     // SERVICE_QUERY_STATUS | SERVICE_INTERROGATE

class TServicesContract : public TContractTest {
  protected:
    ~TServicesContract() override { Services.Close(Manager); }

    TServiceManager& Services = System().Services;
    const TServiceHandle Manager = Services.OpenManager(kManagerConnect);
};

TEST_F(TServicesContract, UnknownServicesAndWrongHandlesFail) {
    ASSERT_NE(Manager, TServiceHandle::None);
    EXPECT_EQ(Services.OpenNamedService(Manager, L"Vandrel-No-Such-Service", kQueryAndAsk),
              TServiceHandle::None);
    EXPECT_EQ(Services.OpenNamedService(TServiceHandle::None, InstalledService(), kQueryAndAsk),
              TServiceHandle::None);
    for (const TServiceHandle wrong : {TServiceHandle::None, Manager}) {
        auto state = TServiceState::Paused;
        EXPECT_FALSE(Services.QueryState(wrong, state));
        EXPECT_FALSE(Services.Control(wrong, TServiceControl::Interrogate, state));
        EXPECT_FALSE(Services.Control(wrong, TServiceControl::Stop, state));
        EXPECT_FALSE(Services.Start(wrong));
        EXPECT_FALSE(Services.ChangeStartType(wrong, TServiceStartType::Manual));
        auto startType = TServiceStartType::Disabled;
        EXPECT_FALSE(Services.QueryStartType(wrong, startType));
        EXPECT_EQ(startType, TServiceStartType::Disabled);
        EXPECT_EQ(state, TServiceState::Paused);
    }
    Services.Close(TServiceHandle::None);
}

TEST_F(TServicesContract, TheManagerCanBeOpenedByManyAtATime) {
    Services.Close(Services.OpenManager(kManagerConnect));
    const TServiceHandle another = Services.OpenManager(kManagerConnect);
    for (const TServiceHandle manager : {Manager, another}) {
        const TServiceHandle service = Services.OpenNamedService(manager, InstalledService(), kQueryAndAsk);
        EXPECT_NE(service, TServiceHandle::None);
        Services.Close(service);
    }
    Services.Close(another);
}

TEST_F(TServicesContract, AnInstalledServiceAnswersUnlessItIsStopped) {
    std::wstring name = InstalledService();
    for (wchar_t& c : name) c |= 0x20;  // small letters
    const TServiceHandle service = Services.OpenNamedService(Manager, name, kQueryAndAsk);
    ASSERT_NE(service, TServiceHandle::None);
    auto queried = TServiceState::Paused;
    auto answered = TServiceState::Paused;
    ASSERT_TRUE(Services.QueryState(service, queried));
    const bool stopped = queried == TServiceState::Stopped;
    EXPECT_EQ(Services.Control(service, TServiceControl::Interrogate, answered), !stopped);
    EXPECT_EQ(answered, stopped ? TServiceState::Paused : queried);
    EXPECT_EQ(Services.OpenNamedService(service, name, kQueryAndAsk), TServiceHandle::None);
    Services.Close(service);
    EXPECT_EQ(ReadServiceStatus(System(), name).value().Runs, queried == TServiceState::Running);
    EXPECT_EQ(ReadServiceStatus(System(), L"Vandrel-No-Such-Service"), std::nullopt);
}

}  // namespace
