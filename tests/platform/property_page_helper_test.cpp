#include "kvopt/platform/property_page_helper.h"

#include <gtest/gtest.h>

#include <memory>

#include "kvopt/platform/property_page_listener.h"

namespace kvopt {
namespace {

class CountingListener : public PropertyPageListener {
public:
    void OnDisconnect() override { ++disconnects; }
    bool IsIgnoreListenerUpdates() const override { return ignores; }
    void ListenerUpdate() override { ++updates; }
    int disconnects = 0;
    int updates = 0;
    bool ignores = false;
};

TEST(PropertyPageHelper, IsConnectedWhileAListenerIsAttached) {
    BasePropertyPageHelper helper;
    EXPECT_EQ(helper.Connected(), 0);
    {
        CountingListener listener;
        listener.ConnectTo(&helper);
        EXPECT_EQ(helper.Connected(), 1);
        EXPECT_EQ(listener.ConnectedHelper(), &helper);
        listener.ConnectTo(&helper);
        EXPECT_EQ(listener.disconnects, 0);
    }
    EXPECT_EQ(helper.Connected(), 0) << "the listener died";
}

TEST(PropertyPageHelper, TellsItsListenerWhenItDies) {
    CountingListener listener;
    {
        BasePropertyPageHelper helper;
        listener.ConnectTo(&helper);
    }
    EXPECT_EQ(listener.disconnects, 1);
    EXPECT_EQ(listener.ConnectedHelper(), nullptr);
}

TEST(PropertyPageHelper, HasOneListenerAtATime) {
    BasePropertyPageHelper helper;
    BasePropertyPageHelper other;
    CountingListener first;
    CountingListener second;
    first.ConnectTo(&helper);
    second.ConnectTo(&helper);
    EXPECT_EQ(first.disconnects, 1);
    EXPECT_EQ(first.ConnectedHelper(), nullptr);
    second.ConnectTo(&other);
    EXPECT_EQ(second.disconnects, 1);
    EXPECT_EQ(helper.Connected(), 0);
    EXPECT_EQ(other.Connected(), 1);
    second.ConnectTo(nullptr);
    EXPECT_EQ(other.Connected(), 0);
    EXPECT_EQ(second.disconnects, 2);
}

TEST(PropertyPageHelper, UpdatesItsListenerUnlessThatIgnoresUpdates) {
    BasePropertyPageHelper helper;
    EXPECT_TRUE(helper.Update());
    CountingListener listener;
    listener.ConnectTo(&helper);
    EXPECT_TRUE(helper.Update());
    EXPECT_EQ(listener.updates, 1);
    listener.ignores = true;
    EXPECT_TRUE(helper.Update());
    EXPECT_EQ(listener.updates, 1);
}

TEST(PropertyPageHelper, CountsItsUpdates) {
    BasePropertyPageHelper helper;
    helper.AddUpdate();
    helper.AddUpdate();
    EXPECT_EQ(helper.UpdateCount(), 2);
    helper.RemoveUpdate();
    EXPECT_TRUE(helper.IsChanged());
    helper.RemoveUpdate();
    helper.RemoveUpdate();
    EXPECT_EQ(helper.UpdateCount(), 0);
    EXPECT_FALSE(helper.IsChanged());
}

TEST(PropertyPageListener, DoesNothingByItself) {
    PropertyPageListener listener;
    EXPECT_FALSE(listener.IsIgnoreListenerUpdates());
    auto helper = std::make_unique<BasePropertyPageHelper>();
    listener.ConnectTo(helper.get());
    EXPECT_TRUE(helper->Update());
    helper.reset();
    EXPECT_EQ(listener.ConnectedHelper(), nullptr);
}

}  // namespace
}  // namespace kvopt
