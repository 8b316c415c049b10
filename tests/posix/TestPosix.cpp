// What is Linux's own.
#include <fcntl.h>
#include <sys/mman.h>
#include <sys/resource.h>

#include <atomic>
#include <chrono>
#include <climits>
#include <fstream>

#include <gtest/gtest.h>

#include "platform/posix/CodePages.h"
#include "platform/posix/ManualClock.h"
#include "platform/posix/PosixEvent.h"
#include "platform/posix/PosixPlatform.h"
#include "platform/posix/SystemNames.h"
#include "rtl/Exceptions.h"
#include "support/PosixGround.h"

namespace rux::test {

constexpr std::uint32_t Day = 86400000;

TEST(PosixMutexes, OneOfManyMakesItInAFolderThatIsOpenToEveryone) {
    const TTemporaryFolder folder;
    const std::string objectFolder = folder.Path + "/objects";
    TManualClock clock;
    std::vector<std::unique_ptr<TNamedObjects>> objects;
    for (int i = 0; i < 8; ++i) objects.push_back(std::make_unique<TNamedObjects>(objectFolder));
    TPosixThreads threads(clock, WorkerStackSize);
    for (int round = 0; round < 50; ++round) {
        std::atomic<int> made{0};
        for (const auto& each : objects)
            threads.Start([&] { made += each->CreateMutex(std::to_string(round)); });
        threads.WaitForAll();
        EXPECT_EQ(made, 1) << round;
    }
    EXPECT_EQ(fs::status(objectFolder).permissions(), fs::perms::all | fs::perms::sticky_bit);
}

TEST(PosixMutexes, AMutexIsThereAsLongAsTheLastProcessThatHoldsIt) {
    const TTemporaryFolder folder;
    TNamedObjects own(folder.Path);
    auto second = std::make_unique<TNamedObjects>(folder.Path);
    TProcess first([&] {
        TNamedObjects objects(folder.Path);
        objects.CreateMutex("a");
        return ::pause();
    });
    while (!own.OpenMutex("a")) ::usleep(1000);
    EXPECT_FALSE(second->CreateMutex("a"));
    first.Kill();
    EXPECT_TRUE(own.OpenMutex("a"));
    second.reset();
    EXPECT_FALSE(own.OpenMutex("a"));
    EXPECT_TRUE(own.CreateMutex("a") && !TNamedObjects(folder.Path).CreateMutex("a"));
}

TEST(PosixKernel, TellsWhatTheHostToldIt) {
    TManualClock clock;
    std::string debug;
    TPosixKernel kernel(clock, {.Modules = {"vcl100.bpl", "Own.dll"},
                                .DebugSink = [&](const std::string& text) { debug += text + ";"; }});
    EXPECT_TRUE(kernel.HasModule("VCL100.BPL") && kernel.HasModule("own.dll") && !kernel.HasModule("own"));
    kernel.OutputDebugStringA("a");
    EXPECT_EQ(debug, "a;");
    TProcess process([&] {
        kernel.ExitProcess(7);
        return 0;
    });
    EXPECT_EQ(process.ExitCode(), 7);
    TPosixKernel huge(clock, {.ThreadStackSize = std::size_t{1} << 60});
    EXPECT_THROW(huge.StartThread([] {}), EOSError);
}

TEST(PosixKernel, CountsPrivateMemory) {
    TManualClock clock;
    TPosixKernel kernel(clock, {});
    constexpr std::size_t size = std::size_t{64} << 20;
    const auto before = kernel.GetPagefileUsage();
    void* const memory = ::mmap(nullptr, size, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    const auto after = kernel.GetPagefileUsage();
    ::munmap(memory, size);
    ASSERT_TRUE(before && after);
    EXPECT_GE(*after, *before + size);
    EXPECT_LT(*after, *before + 2 * size);
}

TEST(PosixClocks, AManualClockMovesWhenTold) {
    TManualClock clock(40000.5, 60);
    clock.Advance(Day / 2);
    EXPECT_EQ(clock.Now(), 40001);
    EXPECT_EQ(clock.BiasMinutes(), 60);
    TPosixEvent event(clock);
    TPosixThreads threads(clock, WorkerStackSize);
    const auto waiter = threads.Start([&] { event.WaitFor(Day); });
    clock.WaitUntilWaiters(1);
    clock.Set(39999);
    EXPECT_EQ(clock.Now(), 39999);
    EXPECT_EQ(clock.TickCount(), Day / 2);
    clock.WaitUntilWaiters(1);
    clock.Set(40000);
    EXPECT_EQ(waiter->WaitFor(WaitForever), TWaitResult::Signalled);
    EXPECT_EQ(clock.TickCount(), Day / 2 + Day);
}

TEST(PosixClocks, TheSystemClockGivesLocalTime) {
    TProcess process([] {
        ::setenv("TZ", "XXX-5:45", 1);
        TSystemClock clock;
        const auto seconds = [] {
            const auto now = std::chrono::system_clock::now().time_since_epoch();
            return std::chrono::duration<double>(now).count();
        };
        for (int i = 0; i < 100; ++i) {
            const double before = seconds(), now = (clock.Now() - 25569) * 86400 - 345 * 60;
            if (clock.BiasMinutes() != 345 || now < before - 0.002 || now > seconds() + 0.002) return 1;
        }
        return 0;
    });
    EXPECT_EQ(process.ExitCode(), 0);
}

TEST(PosixClocks, WaitsOfTheSystemClockEndWhenTheyMay) {
    TSystemClock clock;
    TPosixEvent event(clock);
    TPosixThreads threads(clock, WorkerStackSize);
    threads.Start([&] { event.SetEvent(); });
    EXPECT_EQ(event.WaitFor(Day), TWaitResult::Signalled);
    EXPECT_EQ(event.WaitFor(1), TWaitResult::TimedOut);
    int ends[2];
    ASSERT_EQ(::pipe(ends), 0);
    const TFileDescriptor out(ends[0]), in(ends[1]);
    pollfd entry{out.Get(), POLLIN, 0};
    EXPECT_EQ(clock.Poll({&entry, 1}, 0), 0);
    EXPECT_EQ(clock.Poll({&entry, 1}, clock.DeadlineAfter(1)), 0);
    threads.Start([&] { EXPECT_EQ(::write(in.Get(), "x", 1), 1); });
    EXPECT_EQ(clock.Poll({&entry, 1}, clock.DeadlineAfter(Day)), 1);
    EXPECT_EQ(clock.Poll({&entry, 1}, NoDeadline), 1);
    threads.WaitForAll();
}

TEST(PosixFiles, NamesOnDiskAreUtf8) {
    SetAnsiCodePage(LoadCodePage(936));
    const TTemporaryFolder folder;
    TPosixFiles files;
    EXPECT_TRUE(files.WriteFile(NameFromSystem(folder.Path) + "\\" + Ansi("誠"), "x"));
    EXPECT_TRUE(fs::exists(folder.Path + "/誠"));
    EXPECT_EQ(SystemName("\\\\a\\" + Ansi("錦") + "\\\\b/c\\"), "/a/錦/b/c/");
    EXPECT_EQ(NameFromSystem("/a/錦"), "\\a\\" + Ansi("錦"));
    ::mkfifo((folder.Path + "/pipe").c_str(), 0666);
    EXPECT_EQ(files.ReadFile(NameFromSystem(folder.Path) + "\\pipe"), std::nullopt);
    EXPECT_EQ(files.OpenAppend(NameFromSystem(folder.Path) + "\\pipe"), nullptr);
}

TEST(PosixFiles, ATreeGoesWithoutWhatItsLinksLeadTo) {
    const TTemporaryFolder folder;
    const fs::path tree = folder.Path + "/tree", outside = folder.Path + "/outside";
    fs::create_directories(tree / "a/b");
    fs::create_directories(outside);
    std::ofstream(outside / "kept") << "x";
    fs::create_directory_symlink(outside, tree / "a/link");
    fs::create_symlink("nowhere", tree / "a/b/dangling");
    fs::create_directory_symlink(outside, folder.Path + "/top");
    EXPECT_TRUE(DeleteSystemTree(tree));
    EXPECT_TRUE(DeleteSystemTree(folder.Path + "/top/"));
    EXPECT_FALSE(DeleteSystemTree(outside / "kept"));
    EXPECT_FALSE(fs::exists(tree));
    EXPECT_TRUE(fs::exists(outside / "kept"));
}

TEST(PosixFiles, ATreeMayBeDeeperThanAnyPath) {
    const TTemporaryFolder folder;
    ::mkdir((folder.Path + "/deep").c_str(), 0777);
    TFileDescriptor at(::open((folder.Path + "/deep").c_str(), O_RDONLY | O_DIRECTORY));
    for (int i = 0; i < PATH_MAX / 7; ++i) {
        ASSERT_EQ(::mkdirat(at.Get(), "folder", 0777), 0);
        at = TFileDescriptor(::openat(at.Get(), "folder", O_RDONLY | O_DIRECTORY));
    }
    ::close(::openat(at.Get(), "file", O_WRONLY | O_CREAT, 0666));
    TProcess process([&] {
        const rlimit few{64, 64};
        return ::setrlimit(RLIMIT_NOFILE, &few) == 0 && DeleteSystemTree(folder.Path + "/deep") ? 0 : 1;
    });
    EXPECT_EQ(process.ExitCode(), 0);
    EXPECT_FALSE(fs::exists(folder.Path + "/deep"));
}

TEST(PosixFiles, ReadOnlyEntriesGoAndFailuresStay) {
    if (::geteuid() != 0) GTEST_SKIP() << "needs to make files of two users";
    const TTemporaryFolder folder;
    const fs::path tree = folder.Path + "/tree";
    TProcess process([&] {
        if (::setuid(65534) != 0) return 9;
        fs::create_directories(tree / "shut/inner");
        std::ofstream(tree / "shut/inner/file") << "x";
        fs::permissions(tree / "shut/inner/file", fs::perms::owner_read);
        fs::permissions(tree / "shut/inner", fs::perms::owner_read);
        fs::permissions(tree / "shut", fs::perms::none);
        return 0;
    });
    ASSERT_EQ(process.ExitCode(), 0);
    fs::create_directories(tree / "foreign");
    std::ofstream(tree / "foreign/file") << "x";
    TProcess second([&] { return ::setuid(65534) == 0 && !DeleteSystemTree(tree) ? 0 : 1; });
    EXPECT_EQ(second.ExitCode(), 0);
    EXPECT_FALSE(fs::exists(tree / "shut"));
    EXPECT_TRUE(fs::exists(tree / "foreign/file"));
}

TEST(PosixCodePages, OthersAreKnownByTheirNumbers) {
    using TRanges = std::vector<std::pair<unsigned, unsigned>>;
    const TRanges none, most{{0x81, 0xFE}}, twice{{0x81, 0x9F}, {0xE0, 0xFC}};
    const struct {
        unsigned Number, Place;
        char16_t Unit;
        const TRanges& Leads;
    } rows[] = {{1252, 0x80, 0x20AC, none},  {1251, 0xC0, u'А', none}, {1251, 0x98, 0x98, none},
                {932, 0x889F, u'亜', twice}, {932, 0xB1, u'ｱ', twice}, {949, 0xB0A1, u'가', most},
                {950, 0xA4A4, u'中', most}};
    for (const auto& row : rows) {
        const TCodePageTables page = LoadCodePage(row.Number);
        EXPECT_EQ(page.ToWide[row.Place], row.Unit) << row.Number;
        EXPECT_EQ(page.FromWide[row.Unit], row.Place) << row.Number;
        for (unsigned b = 0; b < 256; ++b) {
            bool lead = false;
            for (const auto& [first, last] : row.Leads) lead = lead || (first <= b && b <= last);
            EXPECT_EQ(page.Lead[b], lead) << row.Number << " " << b;
        }
    }
    try {
        LoadCodePage(4711);
        ADD_FAILURE() << "nothing was raised";
    } catch (const Exception& error) {
        EXPECT_EQ(error.Message(), "Unknown code page 4711");
    }
}

}  // namespace rux::test
