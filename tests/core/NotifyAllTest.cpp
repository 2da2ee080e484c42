#include "core/platform/NotifyAll.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

namespace tarnic {
namespace {

using Handler = std::function<void(int)>;

TEST(NotifyAll, CallsEveryHandlerInOrderWithTheArguments) {
    std::vector<std::string> calls;
    const std::vector<Handler> handlers{
        [&](int value) { calls.push_back("a" + std::to_string(value)); },
        [&](int value) { calls.push_back("b" + std::to_string(value)); }};
    notifyAll(handlers, 7);
    EXPECT_EQ(calls, (std::vector<std::string>{"a7", "b7"}));
}

TEST(NotifyAll, AHandlerInstalledWhileNotifyingIsCalledToo) {
    std::vector<Handler> handlers;
    std::vector<std::string> calls;
    // Enough installs to make the vector grow and move its elements under the running handler.
    handlers.push_back([&](int value) {
        calls.push_back("first");
        for (int i = 0; i < 64; ++i) {
            handlers.push_back([&calls, i](int) {
                if (i == 63) {
                    calls.push_back("last installed");
                }
            });
        }
        calls.push_back("first still runs " + std::to_string(value));
    });
    notifyAll(handlers, 1);
    EXPECT_EQ(calls, (std::vector<std::string>{"first", "first still runs 1", "last installed"}));
    EXPECT_EQ(handlers.size(), 65u);
}

TEST(NotifyAll, EmptyHandlersAreSkipped) {
    int called = 0;
    const std::vector<Handler> handlers{Handler(), [&](int) { ++called; }};
    notifyAll(handlers, 0);
    EXPECT_EQ(called, 1);
}

struct Listener {
    std::function<void(const std::string&)> onEvent;
    std::function<void()> settled;
};

TEST(NotifyAll, MemberHandlersOfEveryListener) {
    std::vector<std::string> calls;
    std::vector<Listener> listeners{
        {[&](const std::string& event) { calls.push_back("one " + event); }, {}},
        {{}, [&] { calls.push_back("two settled"); }},
        {[&](const std::string& event) { calls.push_back("three " + event); },
         [&] { calls.push_back("three settled"); }}};
    notifyAllOf(listeners, &Listener::onEvent, std::string("press"));
    notifyAllOf(listeners, &Listener::settled);
    EXPECT_EQ(calls, (std::vector<std::string>{"one press", "three press", "two settled",
                                               "three settled"}));
}

} // namespace
} // namespace tarnic
