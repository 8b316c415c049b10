#include <atomic>

#include "contract/BoundaryContract.h"
#include "rtl/Exceptions.h"
#include "rtl/Stack.h"

namespace rux::test {

using enum TWaitResult;

static int Recurse(int depth) {
    CheckStack();
    volatile int here = depth;  // what no optimiser turns into a loop
    if (depth > 0) here = here + Recurse(depth - 1);
    return here;
}

TEST_P(BoundaryContract, AnEventKeepsOneSignalForOneWaiter) {
    const auto event = Kernel.CreateEventA();
    EXPECT_EQ(event->WaitFor(0), TimedOut);
    event->SetEvent();
    event->SetEvent();
    EXPECT_EQ(event->WaitFor(WaitForever), Signalled);
    EXPECT_EQ(event->WaitFor(0), TimedOut);

    const auto wait = [&] { return event->WaitFor(Long); };
    TBackground<TWaitResult> one(Kernel, wait), other(Kernel, wait);
    Platform->WaitUntilWaiters(2, 0);
    event->SetEvent();
    Platform->Advance(Long);
    EXPECT_EQ((std::multiset{one.Result(), other.Result()}), (std::multiset{Signalled, TimedOut}));
}

TEST_P(BoundaryContract, AnEventMayBeFreedByWhomItWakes) {
    for (int i = 0; i < 200; ++i) {
        auto event = Kernel.CreateEventA();
        TEvent* const raw = event.get();
        TBackground<int> setter(Kernel, [raw] {
            raw->SetEvent();
            return 0;
        });
        EXPECT_EQ(event->WaitFor(WaitForever), Signalled);
        event.reset();
    }
}

TEST_P(BoundaryContract, EveryKindOfWaitTakesItsTimeFromTheClock) {
    std::uint16_t port = 0;
    const auto listener = Listener(port);
    TConnection line = Connection(), block = Connection();
    const auto event = Kernel.CreateEventA(), gate = Kernel.CreateEventA();
    const auto sleeper = Kernel.StartThread([&] { gate->WaitFor(WaitForever); });
    char bytes[4];
    const std::function<int()> waits[] = {
        [&] { return static_cast<int>(event->WaitFor(Long)); },
        [&] { return static_cast<int>(sleeper->WaitFor(Long)); },
        [&] { return Kernel.Sleep(Long), 5; },
        [&] { return listener->CanRead(Long) ? 1 : listener->LastError(); },
        [&] { return line.Socket->RecvString(Long, 10), line.Socket->LastError(); },
        [&] { return block.Socket->RecvBufferEx(bytes, 4, Long), block.Socket->LastError(); }};
    std::vector<std::unique_ptr<TBackground<int>>> running;
    for (const auto& wait : waits) running.push_back(std::make_unique<TBackground<int>>(Kernel, wait));
    Platform->WaitUntilWaiters(std::size(waits), Long);
    Platform->Advance(Long - Margin);
    Platform->WaitUntilWaiters(std::size(waits), Long);
    for (const auto& wait : running) EXPECT_FALSE(wait->Ended());
    Platform->Advance(Margin);
    std::vector<int> results;
    for (const auto& wait : running) results.push_back(wait->Result());
    const int timedOut = static_cast<int>(TimedOut);
    EXPECT_EQ(results, (std::vector{timedOut, timedOut, 5, 0, WSAETIMEDOUT, WSAETIMEDOUT}));
    gate->SetEvent();
    sleeper->WaitFor(WaitForever);
}

TEST_P(BoundaryContract, AThreadHasEndedOnceItsCapturesAreGone) {
    const auto inDestructor = Kernel.CreateEventA(), gate = Kernel.CreateEventA();
    const auto leave = [&](int* number) {
        inDestructor->SetEvent();
        gate->WaitFor(WaitForever);
        delete number;
    };
    auto thread = Kernel.StartThread([held = std::shared_ptr<int>(new int, leave)] {});
    inDestructor->WaitFor(WaitForever);
    EXPECT_FALSE(thread->Ended());
    EXPECT_EQ(thread->WaitFor(0), TimedOut);
    gate->SetEvent();
    EXPECT_EQ(thread->WaitFor(WaitForever), Signalled);
    EXPECT_TRUE(thread->Ended());
    EXPECT_EQ(thread->WaitFor(0), Signalled);
}

TEST_P(BoundaryContract, WhatLeavesABodyEndsThatThreadOnly) {
    EXPECT_EQ(Kernel.StartThread([] { throw Exception("x"); })->WaitFor(WaitForever), Signalled);
    EXPECT_EQ(Kernel.StartThread([] { throw 1; })->WaitFor(WaitForever), Signalled);
    std::atomic<int> done{0};
    const auto begun = Kernel.CreateEventA(), gate = Kernel.CreateEventA();
    // The handle is dropped at once.
    Kernel.StartThread([&] { begun->SetEvent(), gate->WaitFor(WaitForever), ++done; });
    begun->WaitFor(WaitForever);
    gate->SetEvent();
    Platform->WaitForAllThreads();
    EXPECT_EQ(done, 1);
}

TEST_P(BoundaryContract, ThreadsKnowTheEndOfTheirStack) {
    const std::uintptr_t here = Kernel.GetCurrentThreadId();
    TBackground<std::string> deep(Kernel, [&]() -> std::string {
        if (Kernel.GetCurrentThreadId() == here) return "same thread";
        try {
            return std::to_string(Recurse(100000000));
        } catch (const EStackOverflow& error) {
            return error.Message();
        }
    });
    EXPECT_EQ(deep.Result(), "Stack overflow");
}

TEST_P(BoundaryContract, MutexesAreFoundByTheirWholeName) {
    const std::string name = "{CB35D3B5-7016}.4440";
    EXPECT_FALSE(Kernel.OpenMutexA(name));
    EXPECT_EQ(Kernel.GetLastError(), 2u);
    EXPECT_TRUE(Kernel.CreateMutexA(name));
    EXPECT_EQ(Kernel.GetLastError(), 0u);
    EXPECT_FALSE(Kernel.CreateMutexA(name));
    EXPECT_EQ(Kernel.GetLastError(), 183u);
    EXPECT_TRUE(Kernel.OpenMutexA(name));
    for (const char* other : {"{CB35D3B5-7016}.444", "Global\\{CB35D3B5-7016}.4440", "{cb35d3b5-7016}.4440",
                              "Global%5C{CB35D3B5-7016}.4440", "..", ""}) {
        EXPECT_FALSE(Kernel.OpenMutexA(other)) << other;
        EXPECT_TRUE(Kernel.CreateMutexA(other)) << other;
    }
    EXPECT_FALSE(Kernel.CreateMutexA(std::string(300, '\\')));
}

TEST_P(BoundaryContract, AMappingGivesItsFirstBytes) {
    const std::string name = "RUX.{09491275-8671}.77", bytes("\1\0\0\0\2\0\0\0\3\0\0\0rest", 16);
    constexpr std::size_t page = 4096;
    EXPECT_EQ(Kernel.ReadFileMapping(name, 12), std::nullopt);
    Platform->PublishMapping(name, bytes);
    EXPECT_EQ(Kernel.ReadFileMapping(name, 0), "");
    EXPECT_EQ(Kernel.ReadFileMapping(name, 12), bytes.substr(0, 12));
    EXPECT_EQ(Kernel.ReadFileMapping(name, 16), bytes);
    EXPECT_EQ(Kernel.ReadFileMapping(name, page), bytes + std::string(page - 16, '\0'));
    EXPECT_EQ(Kernel.ReadFileMapping(name, page + 1), std::nullopt);
    EXPECT_EQ(Kernel.ReadFileMapping(name, SIZE_MAX), std::nullopt);
    EXPECT_EQ(Kernel.ReadFileMapping(name + "8", 12), std::nullopt);
    EXPECT_EQ(Kernel.ReadFileMapping(name + std::string("\0x", 2), 12), std::nullopt);
    Platform->RemoveMapping(name);
    EXPECT_EQ(Kernel.ReadFileMapping(name, 12), std::nullopt);
}

TEST_P(BoundaryContract, AMappingMayVanishWhileItIsRead) {
    const std::string name = "RUX.{09491275-8671}.78", bytes(1000, 'x');
    std::atomic<bool> stop{false};
    TBackground<int> reader(Kernel, [&] {
        int strange = 0;
        while (!stop)
            strange += Kernel.ReadFileMapping(name, bytes.size()).value_or(bytes).size() != bytes.size();
        return strange;
    });
    for (int i = 0; i < 300; ++i) {
        Platform->PublishMapping(name, bytes);
        Platform->RemoveMapping(name);
    }
    stop = true;
    EXPECT_EQ(reader.Result(), 0);
}

}  // namespace rux::test
