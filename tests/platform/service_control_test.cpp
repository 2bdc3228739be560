#include "platform/service_control.h"

#include <new>
#include <utility>

#include <gmock/gmock.h>

#include "tests/fakes/fake_system.h"

namespace {

using testing::ElementsAre;
using enum TServiceState;

class TServiceControlTest : public testing::Test {
  protected:
    TServiceControlTest() {
        Fake.Clock.OnSleep = [this](std::uint32_t time) { Calls.push_back("sleep " + std::to_string(time)); };
        Fake.Clock.OnProcessMessages = [this] { Calls.emplace_back("messages"); };
    }
    ~TServiceControlTest() override { EXPECT_EQ(Services.OpenHandles(), 0U); }

    bool Start(TFakeService service) {
        Services.Put(L"s", service);
        return StartServiceByName(Fake.System, L"s");
    }
    bool Stop(TFakeService service) {
        Services.Put(L"s", service);
        return StopServiceByName(Fake.System, L"s");
    }

    TFakeSystem Fake;
    TFakeServiceManager& Services = Fake.Services;
    std::vector<std::string>& Calls = Services.Calls;
};

TEST_F(TServiceControlTest, CallsAndWaitsInTheirOrder) {
    EXPECT_TRUE(Start({.StartType = TServiceStartType::Disabled, .PendingQueries = 1}));
    EXPECT_THAT(std::exchange(Calls, {}),
                ElementsAre("manager F003F", "open s F01FF", "type 2", "start", "query", "sleep 500",
                            "messages", "sleep 500", "query", "sleep 500", "messages"));
    EXPECT_TRUE(Stop({.State = Running, .PendingQueries = 1}));
    EXPECT_THAT(Calls, ElementsAre("manager F003F", "open s F01FF", "type 4", "control 1", "sleep 1000",
                                   "query", "messages", "sleep 1000", "query", "messages"));
}

TEST_F(TServiceControlTest, AServiceThatTakesVeryLongIsWaitedFor) {
    EXPECT_TRUE(Start({.PendingQueries = 2000}));
    EXPECT_TRUE(Stop({.State = Running, .PendingQueries = 2000}));
}

TEST_F(TServiceControlTest, OnlyTheStateAskedForIsASuccess) {
    for (const TServiceState state : {Stopped, StopPending, ContinuePending, PausePending, Paused})
        EXPECT_FALSE(Start({.StartsInto = state})) << static_cast<int>(state);
    for (const TServiceState state : {StartPending, Running, ContinuePending, PausePending, Paused})
        EXPECT_FALSE(Stop({.State = Running, .StopsInto = state})) << static_cast<int>(state);
}

TEST_F(TServiceControlTest, AServiceThatIsThereAlreadyOnlyChangesItsStartType) {
    EXPECT_FALSE(Start({.State = Running}));
    EXPECT_EQ(Calls.back(), "start");
    EXPECT_EQ(Services.Service(L"s").StartType, TServiceStartType::Automatic);
    EXPECT_FALSE(Stop({}));
    EXPECT_EQ(Calls.back(), "control 1");
    EXPECT_EQ(Services.Service(L"s").StartType, TServiceStartType::Disabled);
}

/// Whatever fails, the calls go on as long as they make sense.
TEST_F(TServiceControlTest, EveryCallMayFail) {
    const struct {
        const char* Failing;
        bool Starts;  ///< a service whose start type cannot be changed starts nevertheless
        bool Stops;
        TServiceAnswer Answer;
        const char* LastOfStart;
        const char* LastOfStop;
    } cases[] = {
        {"manager", false, false, TServiceAnswer::Unknown, "start", "control 1"},
        {"open", false, false, TServiceAnswer::Unknown, "start", "control 1"},
        {"type", true, true, TServiceAnswer::Running, "messages", "messages"},
        {"start", false, true, TServiceAnswer::Running, "start", "messages"},
        {"control", true, false, TServiceAnswer::Silent, "messages", "control 1"},
        {"query", false, false, TServiceAnswer::Running, "query", "query"},
    };
    for (const auto& each : cases) {
        SCOPED_TRACE(each.Failing);
        Services.Failing = each.Failing;
        EXPECT_EQ(Start({}), each.Starts);
        EXPECT_EQ(Calls.back(), each.LastOfStart);
        EXPECT_EQ(Stop({.State = Running}), each.Stops);
        EXPECT_EQ(Calls.back(), each.LastOfStop);
        Services.Put(L"s", {.State = Running});
        EXPECT_EQ(QueryServiceRunning(Fake.System, L"s"), each.Answer);
    }
}

TEST_F(TServiceControlTest, AFaultWhileWaitingIsAnAnswer) {
    Fake.Clock.OnProcessMessages = [] { throw std::bad_alloc(); };
    EXPECT_FALSE(Start({}));
    EXPECT_FALSE(Stop({.State = Running}));
}

TEST_F(TServiceControlTest, AQueryAsksTheServiceItself) {
    EXPECT_EQ(QueryServiceRunning(Fake.System, L"nobody"), TServiceAnswer::Unknown);
    EXPECT_THAT(std::exchange(Calls, {}), ElementsAre("manager F003F", "open nobody 80000000"));
    for (const TServiceState state :
         {Stopped, StartPending, StopPending, Running, ContinuePending, PausePending, Paused}) {
        Services.Put(L"s", {.State = state});
        EXPECT_EQ(QueryServiceRunning(Fake.System, L"s"), state == Stopped   ? TServiceAnswer::Silent
                                                          : state == Running ? TServiceAnswer::Running
                                                                             : TServiceAnswer::Unknown);
        EXPECT_EQ(Calls.back(), "control 4");
    }
}

}  // namespace
