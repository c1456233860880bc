#include "kvopt/scripted/virtual_clock.h"

#include <gtest/gtest.h>

#include <string>

namespace kvopt {
namespace {

class VirtualClockTest : public testing::Test {
protected:
    void Start(const int& id, unsigned milliseconds, const std::string& name) {
        clock_.Start(&id, milliseconds,
                     [this, name] { ran_ += name + std::to_string(clock_.Now()) + ' '; });
    }

    VirtualClock clock_;
    std::string ran_;
    int a_ = 0;
    int b_ = 0;
};

TEST_F(VirtualClockTest, RunsATimerEachTimeItsIntervalHasPassed) {
    Start(a_, 100, "a");
    clock_.Advance(99);
    EXPECT_EQ(ran_, "");
    clock_.Advance(1);
    EXPECT_EQ(ran_, "a100 ");
    clock_.Advance(250);
    EXPECT_EQ(ran_, "a100 a200 a300 ");
    EXPECT_EQ(clock_.Now(), 350U);
}

TEST_F(VirtualClockTest, RunsTimersInTheOrderOfTheirTimeThenOfTheirStart) {
    Start(b_, 100, "b");
    Start(a_, 50, "a");
    clock_.Advance(100);
    EXPECT_EQ(ran_, "a50 b100 a100 ");
}

TEST_F(VirtualClockTest, StartsARunningTimerAnew) {
    Start(a_, 100, "old");
    clock_.Advance(60);
    Start(a_, 100, "new");
    clock_.Advance(60);
    EXPECT_EQ(ran_, "");
    clock_.Advance(40);
    EXPECT_EQ(ran_, "new160 ");
}

TEST_F(VirtualClockTest, LetsACallbackStopItsOwnTimer) {
    clock_.Start(&a_, 10, [this] {
        ran_ += "once ";
        clock_.Stop(&a_);
    });
    EXPECT_TRUE(clock_.IsRunning(&a_));
    clock_.Advance(100);
    EXPECT_EQ(ran_, "once ");
    EXPECT_FALSE(clock_.IsRunning(&a_));
}

TEST_F(VirtualClockTest, LetsACallbackStartAnotherTimerThatRunsInTheSameAdvance) {
    clock_.Start(&a_, 10, [this] {
        clock_.Stop(&a_);
        Start(b_, 5, "b");
    });
    clock_.Advance(15);
    EXPECT_EQ(ran_, "b15 ");
}

TEST_F(VirtualClockTest, TakesAnIntervalOfZeroAsOneMillisecond) {
    Start(a_, 0, "a");
    clock_.Advance(2);
    EXPECT_EQ(ran_, "a1 a2 ");
}

}  // namespace
}  // namespace kvopt
