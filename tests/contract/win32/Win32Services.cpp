// The services of Windows in real time, and what is Windows's own.

#include <array>
#include <ctime>

#include "contract/BoundaryContract.h"
#include "platform/win32/Win32Clock.h"
#include "platform/win32/Win32FileNames.h"
#include "platform/win32/Win32Files.h"
#include "platform/win32/Win32Kernel.h"
#include "platform/win32/Win32Locale.h"
#include "platform/win32/Win32NamedObjects.h"
#include "platform/win32/Win32Sockets.h"
#include "rtl/Exceptions.h"
// After the boundary.
#include "platform/win32/Headers.h"

namespace rux::test {
namespace {

/// A running program; none when it cannot be started.
TWin32Handle Start(std::string line, const char* folder = nullptr) {
    STARTUPINFOA start{};
    start.cb = sizeof start;
    PROCESS_INFORMATION made{};
    if (!::CreateProcessA(nullptr, line.data(), nullptr, nullptr, FALSE, 0, nullptr, folder, &start, &made))
        return {};
    ::CloseHandle(made.hThread);
    return TWin32Handle(made.hProcess);
}

class TWin32UnderTest final : public TPlatformUnderTest {
 public:
    TWin32UnderTest() : TPlatformUnderTest(FKernel, FSockets, FFiles, 1000, 500) {
        char folder[MAX_PATH];
        ::GetTempPathA(sizeof folder, folder);
        FFolder = folder + std::string("rux-test-") + std::to_string(::GetCurrentProcessId());
        FFiles.ForceDirectories(FFolder);
    }
    ~TWin32UnderTest() override { FFiles.DeleteTree(FFolder); }
    std::uint64_t Tick() override { return FClock.TickCount(); }
    void Advance(std::uint64_t milliseconds) override { ::Sleep(static_cast<DWORD>(milliseconds)); }
    void WaitUntilWaiters(std::size_t, std::uint64_t) override { ::Sleep(60); }
    void WaitForAllThreads() override { FKernel.WaitForAllThreads(); }
    std::string Folder() const override { return FFolder; }
    void MakeReadOnly(const std::string& name) override {
        ::SetFileAttributesA(name.c_str(), FILE_ATTRIBUTE_READONLY);
    }
    void PublishMapping(const std::string& name, std::string_view bytes) override {
        TWin32Handle mapping(::CreateFileMappingA(INVALID_HANDLE_VALUE, nullptr, PAGE_READWRITE, 0,
                                                  static_cast<DWORD>(bytes.size()), name.c_str()));
        void* const view = ::MapViewOfFile(mapping.Get(), FILE_MAP_WRITE, 0, 0, bytes.size());
        bytes.copy(static_cast<char*>(view), bytes.size());
        ::UnmapViewOfFile(view);
        FMappings[name] = std::move(mapping);
    }
    void RemoveMapping(const std::string& name) override { FMappings.erase(name); }
    TSocketHandle Connect(std::uint16_t port) override;
    TLocaleFacts Locale() const override { return LoadLocaleFacts(); }

 private:
    TWin32Clock FClock;
    TWin32Kernel FKernel;
    TWin32Sockets FSockets{500};
    TWin32Files FFiles;
    std::string FFolder;
    std::map<std::string, TWin32Handle> FMappings;
};

TSocketHandle TWin32UnderTest::Connect(std::uint16_t port) {
    const SOCKET made = ::socket(AF_INET, SOCK_STREAM, 0);
    sockaddr_in name{};
    name.sin_family = AF_INET;
    name.sin_port = htons(port);
    name.sin_addr.s_addr = ::inet_addr("127.0.0.1");
    if (::connect(made, reinterpret_cast<sockaddr*>(&name), sizeof name) == 0)
        return static_cast<TSocketHandle>(made);
    ::closesocket(made);
    return -1;
}

std::unique_ptr<TPlatformUnderTest> MakeWin32() {
    SetAnsiCodePage(LoadSystemCodePage());
    return std::make_unique<TWin32UnderTest>();
}

std::string Formatted(decltype(&::GetDateFormatA) format, const SYSTEMTIME& moment) {
    char text[64] = "";
    format(LOCALE_USER_DEFAULT, 0, &moment, nullptr, text, sizeof text);
    return text;
}

}  // namespace

INSTANTIATE_TEST_SUITE_P(Win32, BoundaryContract, testing::Values(&MakeWin32));

TEST(Win32Clock, TicksGoOnWhereTheSystemsStartAgain) {
    TWideTick tick;
    const std::pair<std::uint32_t, std::uint64_t> rows[] = {
        {0xF0000000, 0xF0000000},  {0xFFFFFFFF, 0xFFFFFFFF},  {5, 0x100000005},          {3, 0x100000005},
        {0x7FFFFFFF, 0x17FFFFFFF}, {0xFFFFFFFE, 0x1FFFFFFFE}, {0xFFFFFFF0, 0x1FFFFFFFE}, {0, 0x200000000}};
    for (const auto& [system, wide] : rows) EXPECT_EQ(tick.Widen(system), wide) << std::hex << system;
}

TEST(Win32Clock, LocalTimeIsGreenwichAndTheBias) {
    TWin32Clock clock;
    const auto before = static_cast<double>(std::time(nullptr));
    const double now = (clock.Now() - 25569) * 86400 - clock.BiasMinutes() * 60;
    EXPECT_GE(now, before - 0.01);
    EXPECT_LE(now, before + 5);
    const std::uint64_t start = clock.TickCount();
    ::Sleep(100);
    EXPECT_GE(clock.TickCount(), start + 80);
}

TEST(Win32Kernel, KnowsItsModulesAndItsMemory) {
    TWin32Kernel kernel;
    EXPECT_EQ(kernel.GetModuleName(), kernel.GetLibraryName());
    EXPECT_TRUE(kernel.GetModuleName().find('\\') != std::string::npos &&
                kernel.GetModuleName().ends_with(".exe"));
    EXPECT_TRUE(kernel.HasModule("KERNEL32.dll") && !kernel.HasModule("vcl100.bpl"));
    constexpr std::size_t size = std::size_t{32} << 20;
    const auto before = kernel.GetPagefileUsage();
    void* const memory = ::VirtualAlloc(nullptr, size, MEM_COMMIT, PAGE_READWRITE);
    std::fill_n(static_cast<char*>(memory), size, 'x');
    const auto after = kernel.GetPagefileUsage();
    ::VirtualFree(memory, 0, MEM_RELEASE);
    ASSERT_TRUE(before && after);
    EXPECT_GE(*after, *before + size);
}

TEST(Win32Kernel, AMutexIsTheSystemsAndThereAsLongAsTheLastWhoHoldsIt) {
    TWin32Kernel kernel;
    constexpr const char* name = "{CB35D3B5-7016}.4441";
    TWin32Handle foreign(::CreateMutexA(nullptr, FALSE, name));
    EXPECT_TRUE(kernel.OpenMutexA(name));
    foreign.Close();
    EXPECT_FALSE(kernel.OpenMutexA(name));
    foreign = TWin32Handle(::CreateMutexA(nullptr, FALSE, name));
    EXPECT_FALSE(kernel.CreateMutexA(name));
    foreign.Close();
    EXPECT_TRUE(TWin32Handle(::OpenMutexA(SYNCHRONIZE, FALSE, name)));
}

TEST(Win32Kernel, BytesOfAMappingThatAreNotThereAreNoFault) {
    const TWin32Handle mapping(::CreateFileMappingA(INVALID_HANDLE_VALUE, nullptr,
                                                    PAGE_READWRITE | SEC_RESERVE, 0, 4096, "RUX.reserved"));
    ASSERT_TRUE(mapping);
    EXPECT_EQ(ReadNamedMapping("RUX.reserved", 12), std::nullopt);
}

TEST(Win32Files, RootsAreKnownHoweverTheyAreSpelt) {
    for (const char* root : {"C:\\", "C:/", "\\", "\\\\", "C:\\x\\..", "\\.\\", "\\\\server\\share",
                             "\\\\server\\share\\", "\\\\?\\C:\\", "C:\\x\\..\\.."})
        EXPECT_TRUE(IsRoot(root)) << root;
    for (const char* other : {"C:\\x", "\\x", "\\\\server\\share\\x", "x"})
        EXPECT_FALSE(IsRoot(other)) << other;
    const std::array<const char*, 2> parents[] = {{"C:\\a\\\\b\\", "C:\\a"},
                                                  {"C:\\a", "C:\\"},
                                                  {"C:\\", "C:\\"},
                                                  {"C:a", "C:"},
                                                  {"a", ""},
                                                  {"\\a\\b", "\\a"},
                                                  {"\\\\s\\share\\a", "\\\\s\\share\\"},
                                                  {"\\\\s\\share", "\\\\s\\share"}};
    for (const auto& [name, parent] : parents) EXPECT_EQ(ParentFolder(name), parent) << name;
}

TEST(Win32Files, AFileThatIsBeingReadIsReplacedWhenItsReaderIsDone) {
    const auto platform = MakeWin32();
    const std::string name = platform->Folder() + "\\x";
    ASSERT_TRUE(platform->Files.WriteFile(name, "old"));
    TWin32Handle reader(
        ::CreateFileA(name.c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr));
    EXPECT_FALSE(platform->Files.WriteFile(name, "lost"));
    TBackground<bool> writer(platform->Kernel, [&] { return platform->Files.WriteFile(name, "new"); });
    ::Sleep(60);
    reader.Close();
    EXPECT_TRUE(writer.Result());
    EXPECT_EQ(platform->Files.ReadFile(name), "new");
    WIN32_FIND_DATAA left;
    EXPECT_EQ(::FindFirstFileA((platform->Folder() + "\\~*").c_str(), &left), INVALID_HANDLE_VALUE)
        << left.cFileName;
}

TEST(Win32Files, ATreeGoesWithoutWhatItsLinksLeadTo) {
    const auto platform = MakeWin32();
    TFileService& files = platform->Files;
    const std::string folder = platform->Folder(), kept = folder + "\\outside\\kept";
    files.ForceDirectories(folder + "\\tree\\a");
    files.ForceDirectories(folder + "\\outside");
    ASSERT_TRUE(files.WriteFile(kept, "x"));
    // Windows's own way, and that of systems which only look like it.
    for (const char* line :
         {"cmd /c mklink /J tree\\a\\link outside >nul 2>nul", "Z:\\bin\\ln -s ../../outside tree/a/link"})
        ::WaitForSingleObject(Start(line, folder.c_str()).Get(), 30000);
    const std::string through = folder + "\\tree\\a\\link\\kept";
    // The end of a program that is none of Windows is not told.
    for (int i = 0; i < 100 && !files.FileExists(through); ++i) ::Sleep(20);
    if (!files.FileExists(through)) GTEST_SKIP() << "no links to folders here";
    // Windows removes the link; Wine 8 tries to remove the folder behind it, which is not empty.
    EXPECT_EQ(files.DeleteTree(folder + "\\tree"), !files.DirectoryExists(folder + "\\tree"));
    EXPECT_TRUE(files.FileExists(kept));
    EXPECT_FALSE(files.DeleteTree(kept));
}

TEST(Win32Locale, DatesLookAsTheSystemWritesThem) {
    SetAnsiCodePage(LoadSystemCodePage());
    SetLocaleFacts(LoadLocaleFacts());
    for (const TDateTime value : {39512.378553, 45657.0, 36526.999988, 40000.5}) {
        const TDateParts parts = DecodeDateTime(value);
        SYSTEMTIME moment{};
        moment.wYear = static_cast<WORD>(parts.Year), moment.wMonth = static_cast<WORD>(parts.Month);
        moment.wDay = static_cast<WORD>(parts.Day), moment.wHour = static_cast<WORD>(parts.Hour);
        moment.wMinute = static_cast<WORD>(parts.Minute), moment.wSecond = static_cast<WORD>(parts.Second);
        EXPECT_EQ(DateToStr(value), Formatted(&::GetDateFormatA, moment));
        EXPECT_EQ(TimeToStr(value), Formatted(&::GetTimeFormatA, moment));
    }
    SetLocaleFacts({});
    EXPECT_EQ(TranslateDatePicture("gg yyyy'g'M/d"), "yyyy'g'M/d");
    EXPECT_THROW(LoadSystemCodePage(65001), Exception);
    EXPECT_THROW(LoadSystemCodePage(4711), Exception);
}

}  // namespace rux::test
