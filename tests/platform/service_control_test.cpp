#include "platform/service_control.h"

#include <algorithm>
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

/// From every state to every other, with nothing done that is not necessary.
TEST_F(TServiceControlTest, RestoresAnyStartTypeAndState) {
    const auto changes = [this] {
        return std::ranges::count_if(std::exchange(Calls, {}), [](const std::string& call) {
            return call.starts_with("type") || call.starts_with("start") || call.starts_with("control");
        });
    };
    for (unsigned types = 0; types < 25; ++types) {
        for (const TServiceState state : {Stopped, Running, Paused}) {
            for (const bool runs : {false, true}) {
                const TServiceStatus wanted{TServiceStartType{types / 5}, runs};
                Services.Put(
                    L"s", {.State = state, .StartType = TServiceStartType{types % 5}, .PendingQueries = 2});
                EXPECT_TRUE(RestoreService(Fake.System, L"s", wanted));
                EXPECT_EQ(ReadServiceStatus(Fake.System, L"s"), wanted);
                const bool isDetour = types == 24 && runs && state == Stopped;  // from disabled to disabled
                EXPECT_EQ(changes(),
                          (types / 5 != types % 5) + (runs != (state == Running)) + (isDetour ? 2 : 0))
                    << types << ' ' << static_cast<int>(state) << runs;
                EXPECT_TRUE(RestoreService(Fake.System, L"s", wanted));
                EXPECT_EQ(changes(), 0);
            }
        }
    }
}

TEST_F(TServiceControlTest, ARestorationEndsWhateverTheServiceDoes) {
    const TServiceStatus automatic{TServiceStartType::Automatic, true};
    const TServiceStatus disabled{TServiceStartType::Disabled, false};
    // On its way already: it is not started or stopped twice.
    for (const auto& wanted : {automatic, disabled}) {
        const TServiceState state = wanted.Runs ? StartPending : StopPending;
        Services.Put(L"s", {.State = state, .Next = wanted.Runs ? Running : Stopped, .QueriesLeft = 3});
        EXPECT_TRUE(RestoreService(Fake.System, L"s", wanted));
        EXPECT_THAT(Calls, testing::Not(testing::Contains(testing::AnyOf("start", "control 1"))));
    }
    std::uint32_t waited = 0;
    Fake.Clock.OnSleep = [&](std::uint32_t time) { waited += time; };
    for (const TServiceState stuck : {StartPending, StopPending, ContinuePending, PausePending})
        for (const auto& wanted : {automatic, disabled}) {
            Services.Put(L"s", {.State = stuck});
            EXPECT_FALSE(RestoreService(Fake.System, L"s", wanted));
            EXPECT_EQ(Services.Service(L"s").StartType, wanted.StartType);
            EXPECT_EQ(std::exchange(waited, 0), 60'000u);
        }
    for (const auto& service : {TFakeService{.StartsInto = Paused}, {.PendingQueries = 10'000}}) {
        Services.Put(L"s", service);
        EXPECT_FALSE(RestoreService(Fake.System, L"s", automatic));
    }
    EXPECT_FALSE(RestoreService(Fake.System, L"nobody", disabled));
    for (const char* failing : {"manager", "open", "type", "start", "query", "config"}) {
        Services.Failing = failing;
        Services.Put(L"s", {});
        EXPECT_FALSE(RestoreService(Fake.System, L"s", automatic)) << failing;
    }
}

TEST_F(TServiceControlTest, AFaultWhileWaitingIsAnAnswer) {
    Fake.Clock.OnProcessMessages = [] { throw std::bad_alloc(); };
    Services.Put(L"s", {.PendingQueries = 1});
    EXPECT_FALSE(RestoreService(Fake.System, L"s", {TServiceStartType::Automatic, true}));
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
