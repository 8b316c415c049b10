// What belongs to the process and its threads: names, stacks, failures.
#include <array>
#include <atomic>
#include <set>
#include <thread>
#include <vector>

#include "rtl/Names.h"
#include "rtl/Stack.h"
#include "rtl/Text.h"
#include "tests/rtl/TestCodePage.h"

namespace rux::test {
namespace {

using std::string;

/// Names are for good, so each run of a test needs its own.
string FreshName(string stem) {
    static int runs = 0;
    return stem + "Run" + std::to_string(++runs);
}

TEST(Names, AreEqualWithoutCaseAndKeepTheirFirstSpelling) {
    const string first = FreshName("Caption");
    EXPECT_FALSE(FindName(first));
    const TName caption = InternName(first);
    const string& spelling = NameText(caption);
    EXPECT_EQ(InternName(UpperCase(first)), caption);
    EXPECT_EQ(FindName(LowerCase(first)), caption);
    EXPECT_EQ(InternName(first + "_").Id, caption.Id + 1);
    for (int i = 0; i < 1000; ++i) InternName(first + std::to_string(i));
    EXPECT_EQ(spelling, first);
    EXPECT_EQ(&NameText(caption), &spelling);
    EXPECT_FALSE(InternName(""));
    EXPECT_EQ(NameText(TName{}) + NameText(TName{0xFFFFFFFF}), "");
}

TEST(Names, ThreadsAgree) {
    constexpr std::size_t count = 3000;
    const string stem = FreshName("shared");
    std::array<std::vector<TName>, 4> seen;
    std::atomic<std::size_t> ready{0};
    std::vector<std::thread> threads;
    for (std::vector<TName>& mine : seen) {
        threads.emplace_back([&mine, &stem, &ready] {
            for (++ready; ready < 4;) std::this_thread::yield();
            for (std::size_t i = 0; i < count; ++i) {
                const string name = stem + std::to_string(i);
                const TName id = InternName(name);
                mine.push_back(FindName(UpperCase(name)) == id && NameText(id) == name ? id : TName{});
            }
        });
    }
    for (std::thread& thread : threads) thread.join();
    std::set<std::uint32_t> ids;
    for (const TName id : seen[0]) ids.insert(id.Id);
    EXPECT_EQ(ids.size(), count);
    EXPECT_EQ(*ids.rbegin() - *ids.begin(), count - 1);
    EXPECT_EQ(ids.count(0), 0u);
    for (const auto& other : seen) EXPECT_EQ(other, seen[0]);
}

std::size_t Descend(std::size_t depth, std::size_t limit) {
    volatile char frame[1024];
    frame[depth % sizeof frame] = 1;
    CheckStack();
    return depth == limit ? depth : Descend(depth + 1, limit) + frame[depth % sizeof frame] - 1;
}

/// Tells the calling thread that its stack ends `bytes` further down.
void NarrowStack(std::size_t bytes) {
    SetStackLimit(reinterpret_cast<std::uintptr_t>(__builtin_frame_address(0)) - bytes);
}

TEST(Stack, EndlessRecursionIsAFailureLikeAnyOther) {
    constexpr std::size_t unreachable = 1'000'000;
    string raised;
    std::size_t shallow = 0, room = 0;
    std::thread([&] {
        NarrowStack(1024 * 1024);
        room = StackRoom();
        raised = Raised([] { Descend(0, unreachable); });
        shallow = Descend(0, 20);
    }).join();
    EXPECT_EQ(raised, "EStackOverflow: Stack overflow");
    EXPECT_EQ(shallow, 20u);
    EXPECT_LE(room, 1024u * 1024);
    EXPECT_GT(room, 1000u * 1024);
}

TEST(Stack, EachThreadHasItsOwnLimit) {
    std::size_t untold = 0, exhausted = 1;
    std::thread([&] {
        NarrowStack(8 * 1024 * 1024);
        std::thread([&] { untold = StackRoom(); }).join();
        SetStackLimit(UINTPTR_MAX);
        exhausted = StackRoom();
    }).join();
    EXPECT_GE(untold, 256u * 1024);
    EXPECT_LE(untold, 1024u * 1024);
    EXPECT_EQ(exhausted, 0u);
}

TEST(Exceptions, CarryClassAndText) {
    EXPECT_EQ(Raised([] { Assert(false, "100%s", "Engine/A.cpp", 12); }),
              "EAssertionFailed: 100%s (Engine/A.cpp, line 12)");
    EXPECT_EQ(Raised([] { Assert(true); }), "nothing");
    const string here = Raised([] { Assert(false); });
    EXPECT_EQ(here.substr(0, here.find(',')),
              "EAssertionFailed: Assertion failure (tests/rtl/TestProcess.cpp");
    EXPECT_EQ(Raised([] { RaiseNilAccess(); }),
              "EAccessViolation: Access violation at address 00000000. Read of address 00000000");
}

}  // namespace
}  // namespace rux::test
