#include "platform/service_control.h"

#include <cstdio>
#include <new>
#include <utility>

#include <gmock/gmock.h>

#include "tests/fakes/fake_system.h"

namespace {

using testing::ElementsAre;
using TCalls = std::vector<std::string>;

/// Writes down every call that reaches the service manager.
class TTracedServices : public TFakeServiceManager {
  public:
    explicit TTracedServices(TCalls& calls) : FCalls(calls) {}

    [[nodiscard]] TServiceHandle OpenManager(std::uint32_t access) override {
        Note("manager", access);
        return TFakeServiceManager::OpenManager(access);
    }
    [[nodiscard]] TServiceHandle OpenNamedService(TServiceHandle manager, const std::wstring& name,
                                                  std::uint32_t access) override {
        Note("service " + std::string(name.begin(), name.end()), access);
        return TFakeServiceManager::OpenNamedService(manager, name, access);
    }
    [[nodiscard]] bool QueryState(TServiceHandle service, TServiceState& state) override {
        FCalls.emplace_back("query");
        return TFakeServiceManager::QueryState(service, state);
    }
    [[nodiscard]] bool Control(TServiceHandle service, TServiceControl control,
                               TServiceState& state) override {
        Note("control", static_cast<std::uint32_t>(control));
        return TFakeServiceManager::Control(service, control, state);
    }
    [[nodiscard]] bool Start(TServiceHandle service) override {
        FCalls.emplace_back("start");
        return TFakeServiceManager::Start(service);
    }
    [[nodiscard]] bool ChangeStartType(TServiceHandle service, TServiceStartType startType) override {
        Note("start type", static_cast<std::uint32_t>(startType));
        return TFakeServiceManager::ChangeStartType(service, startType);
    }

  private:
    void Note(std::string call, std::uint32_t number) {
        char digits[9];
        std::snprintf(digits, sizeof digits, "%X", number);
        FCalls.push_back(std::move(call) + ' ' + digits);
    }

    TCalls& FCalls;
};

/// Writes down how the time goes by.
class TTracedClock : public TFakeClock {
  public:
    explicit TTracedClock(TCalls& calls) : FCalls(calls) {}

    void Sleep(std::uint32_t milliseconds) override {
        FCalls.push_back("sleep " + std::to_string(milliseconds));
    }
    void ProcessMessages() override {
        FCalls.emplace_back("messages");
        TFakeClock::ProcessMessages();
    }

  private:
    TCalls& FCalls;
};

class TServiceControlTest : public testing::Test {
  protected:
    TServiceControlTest() = default;
    ~TServiceControlTest() override {
        EXPECT_EQ(Services.OpenHandles(), 0U);
        EXPECT_EQ(Services.WrongCloses(), 0);
    }

    TCalls Calls;
    TTracedServices Services{Calls};
    TTracedClock Clock{Calls};
    TFakeSystem Fake;
    TSystem System{Fake.Registry, Fake.Parameters, Services,     Fake.Shell,
                   Fake.Files,    Fake.Windows,    Fake.Dialogs, Clock};
};

TEST_F(TServiceControlTest, StartingWaitsHalfASecondBeforeAndAfterTheMessages) {
    Services.Put(L"wscsvc", {.StartType = TServiceStartType::Disabled, .PendingQueries = 1});
    EXPECT_TRUE(StartServiceByName(System, L"wscsvc"));
    EXPECT_THAT(Calls, ElementsAre("manager F003F", "service wscsvc F01FF", "start type 2", "start",  //
                                   "query", "sleep 500", "messages", "sleep 500",                     //
                                   "query", "sleep 500", "messages"));
    EXPECT_EQ(Services.Service(L"wscsvc").StartType, TServiceStartType::Automatic);
}

TEST_F(TServiceControlTest, StoppingWaitsASecondBeforeEveryLook) {
    Services.Put(L"MpsSvc", {.State = TServiceState::Running, .PendingQueries = 1});
    EXPECT_TRUE(StopServiceByName(System, L"MpsSvc"));
    EXPECT_THAT(Calls, ElementsAre("manager F003F", "service MpsSvc F01FF", "start type 4", "control 1",
                                   "sleep 1000", "query", "messages", "sleep 1000",  //
                                   "query", "messages"));
    EXPECT_EQ(Services.Service(L"MpsSvc").StartType, TServiceStartType::Disabled);
}

TEST_F(TServiceControlTest, AServiceThatTakesVeryLongIsWaitedFor) {
    constexpr int kPasses = 2000;
    int messages = 0;
    Clock.OnProcessMessages = [&] { ++messages; };
    Services.Put(L"slow", {.PendingQueries = kPasses});
    EXPECT_TRUE(StartServiceByName(System, L"slow"));
    EXPECT_EQ(std::exchange(messages, 0), kPasses + 1);
    EXPECT_TRUE(StopServiceByName(System, L"slow"));
    EXPECT_EQ(messages, kPasses + 1);
}

TEST_F(TServiceControlTest, OnlyTheStateAskedForIsASuccess) {
    using enum TServiceState;
    for (const TServiceState state : {Stopped, StopPending, ContinuePending, PausePending, Paused}) {
        Services.Put(L"s", {.StartsInto = state});
        EXPECT_FALSE(StartServiceByName(System, L"s")) << static_cast<int>(state);
    }
    for (const TServiceState state : {StartPending, Running, ContinuePending, PausePending, Paused}) {
        Services.Put(L"s", {.State = Running, .StopsInto = state});
        EXPECT_FALSE(StopServiceByName(System, L"s")) << static_cast<int>(state);
    }
}

TEST_F(TServiceControlTest, AServiceThatIsThereAlreadyOnlyChangesItsStartType) {
    Services.Put(L"running", {.State = TServiceState::Running});
    EXPECT_FALSE(StartServiceByName(System, L"running"));
    EXPECT_EQ(Calls.back(), "start");
    EXPECT_EQ(Services.Service(L"running").StartType, TServiceStartType::Automatic);

    Services.Put(L"stopped", {});
    EXPECT_FALSE(StopServiceByName(System, L"stopped"));
    EXPECT_EQ(Calls.back(), "control 1");
    EXPECT_EQ(Services.Service(L"stopped").StartType, TServiceStartType::Disabled);
}

/// Whatever fails, the calls go on as long as they make sense.
TEST_F(TServiceControlTest, EveryCallMayFail) {
    using enum TServiceCall;
    const struct {
        TServiceCall Failing;
        bool Starts;  ///< a service whose start type cannot be changed starts nevertheless
        bool Stops;
        TServiceAnswer Answer;
        const char* LastOfStart;
        const char* LastOfStop;
    } cases[] = {
        {OpenManager, false, false, TServiceAnswer::Unknown, "start", "control 1"},
        {OpenNamedService, false, false, TServiceAnswer::Unknown, "start", "control 1"},
        {ChangeStartType, true, true, TServiceAnswer::Running, "messages", "messages"},
        {Start, false, true, TServiceAnswer::Running, "start", "messages"},
        {Control, true, false, TServiceAnswer::Silent, "messages", "control 1"},
        {QueryState, false, false, TServiceAnswer::Running, "query", "query"},
    };
    for (const auto& each : cases) {
        SCOPED_TRACE(static_cast<int>(each.Failing));
        Services.Put(L"off", {});
        Services.Put(L"on", {.State = TServiceState::Running});
        Services.Fail(each.Failing);
        EXPECT_EQ(QueryServiceRunning(System, L"on"), each.Answer);
        EXPECT_EQ(StartServiceByName(System, L"off"), each.Starts);
        EXPECT_EQ(Calls.back(), each.LastOfStart);
        EXPECT_EQ(StopServiceByName(System, L"on"), each.Stops);
        EXPECT_EQ(Calls.back(), each.LastOfStop);
        EXPECT_EQ(Services.OpenHandles(), 0U);
        Services.Fail(each.Failing, false);
    }
}

TEST_F(TServiceControlTest, AFaultWhileWaitingIsAnAnswer) {
    Clock.OnProcessMessages = [] { throw std::bad_alloc(); };
    Services.Put(L"off", {});
    EXPECT_FALSE(StartServiceByName(System, L"off"));
    Services.Put(L"on", {.State = TServiceState::Running});
    EXPECT_FALSE(StopServiceByName(System, L"on"));
}

TEST_F(TServiceControlTest, AQueryAsksTheServiceItself) {
    using enum TServiceState;
    EXPECT_EQ(QueryServiceRunning(System, L"nobody"), TServiceAnswer::Unknown);
    EXPECT_THAT(std::exchange(Calls, {}), ElementsAre("manager F003F", "service nobody 80000000"));
    for (const TServiceState state :
         {Stopped, StartPending, StopPending, Running, ContinuePending, PausePending, Paused}) {
        Services.Put(L"s", {.State = state});
        const auto answer = state == Stopped   ? TServiceAnswer::Silent
                            : state == Running ? TServiceAnswer::Running
                                               : TServiceAnswer::Unknown;
        EXPECT_EQ(QueryServiceRunning(System, L"s"), answer) << static_cast<int>(state);
        EXPECT_THAT(std::exchange(Calls, {}),
                    ElementsAre("manager F003F", "service s 80000000", "control 4"));
    }
}

}  // namespace
