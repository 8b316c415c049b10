// The library's life in a process: loaded and freed in every situation, and nothing left behind.
#include <gtest/gtest.h>

#include "HostProcess.h"

namespace rux::test {

namespace {

constexpr const char *Nothing = "nothing$Find", *Waits = "?Button%231$Find?WaitForWindow=never";

HMODULE Load() {
    return ::LoadLibraryA(LibraryName);
}

void Press(const char* button) {
    const HWND frame = ::FindWindowA("Frame", nullptr);
    ::PostMessageA(::FindWindowExA(frame, nullptr, "Button", button), BM_CLICK, 0, 0);
}

/// What the loader is asked to do must be done in this time, whatever is open.
void Free(HMODULE library) {
    const DWORD start = ::GetTickCount();
    EXPECT_TRUE(::FreeLibrary(library));
    EXPECT_LT(::GetTickCount() - start, 5000u);
}
void FreeForGood(HMODULE library) {
    Free(library);
    EXPECT_TRUE(AwaitUnloaded());
}

class TLibrary : public testing::Test {
 protected:
    /// Loads the library and waits until it answers.
    HMODULE LoadAndServe() {
        const HMODULE library = Load();
        EXPECT_NE(library, nullptr);
        Port = FindPort();
        EXPECT_EQ(Ask(Port, Nothing), "211 False");
        return library;
    }
    THostThread Host;
    std::uint16_t Port = 0;
};

}  // namespace

TEST_F(TLibrary, LeavesNothingBehind) {
    const TTraces before = LookAt(Host);
    // The first load brings modules of the network and others, which keep a thread of their own.
    const unsigned most = CountThreads() + 1;
    std::uint16_t last = 0;
    for (int round = 0; round < 20; ++round) {
        const HMODULE library = LoadAndServe();
        // The mutexes stay with the process: whoever is loaded again passes over the port.
        EXPECT_EQ(Port, last == 0 ? Port : last + 1);
        last = Port;
        const TTraces during = LookAt(Host);
        EXPECT_NE(during.WindowProc, before.WindowProc);
        EXPECT_EQ(during.ShowWindowBytes[0], 0xE9);
        FreeForGood(library);
        EXPECT_FALSE(Listens(Port));
        EXPECT_TRUE(AwaitThreads(most));
        EXPECT_EQ(LookAt(Host), before) << "round " << round;
    }
}

// A thread that has only just been made cannot begin while the loader unloads.
TEST_F(TLibrary, FreedBeforeItsThreadsBegin) {
    const TTraces before = LookAt(Host);
    const unsigned most = CountThreads() + 1;
    for (int round = 0; round < 20; ++round) Free(Load());
    EXPECT_TRUE(AwaitUnloaded());
    EXPECT_TRUE(AwaitThreads(most));
    EXPECT_EQ(LookAt(Host), before);
}

TEST_F(TLibrary, FreedWithOpenConnections) {
    const HMODULE library = LoadAndServe();
    TConnection idle(Port), half(Port), kept(Port), waiting(Port);
    half.SendBytes("GET /nothing$Fi");
    kept.Send(Nothing);
    EXPECT_EQ(kept.Answer(), "211 False");
    // Its call has returned; it waits for a window that never comes.
    waiting.Send(Waits);
    EXPECT_EQ(waiting.Answer(1), "no answer");
    FreeForGood(library);
    for (TConnection* connection : {&idle, &half, &kept, &waiting}) EXPECT_TRUE(connection->AwaitClosed());
}

// While the application is inside the library the library stays, serves on, and goes when that comes out.
TEST_F(TLibrary, FreedInAMessageBox) {
    const TTraces before = LookAt(Host);
    const HMODULE library = LoadAndServe();
    EXPECT_EQ(Ask(Port, "Go$Click?PopupWindow"), "213 Box");
    Free(library);
    EXPECT_NE(::GetModuleHandleA(LibraryName), nullptr);
    EXPECT_EQ(Ask(Port, Nothing), "211 False");
    ::PostMessageA(THostThread::AwaitBox(), WM_CLOSE, 0, 0);
    EXPECT_TRUE(AwaitUnloaded());
    EXPECT_FALSE(Listens(Port));
    EXPECT_EQ(LookAt(Host), before);
}

TEST_F(TLibrary, LoadedInAMessageBox) {
    Press("Go");
    ASSERT_NE(THostThread::AwaitBox(), nullptr);
    const HMODULE library = LoadAndServe();
    EXPECT_EQ(Ask(Port, "Box/text$Find"), "211 True");
    EXPECT_EQ(Ask(Port, "Box/?TVirtualButton%231$Click"), "212 ");
    FreeForGood(library);
}

// Nobody handles what is queued: the user-interface thread is busy with something else for good.
TEST_F(TLibrary, FreedWhileTheApplicationHangs) {
    const HMODULE library = LoadAndServe();
    Press("Hang");
    TConnection waiting(Port);
    waiting.Send(Nothing);
    EXPECT_EQ(waiting.Answer(1), "no answer");
    FreeForGood(library);
    EXPECT_TRUE(waiting.AwaitClosed());
    Host.Release();
    // What was queued for the old library means nothing to the next one.
    const HMODULE again = LoadAndServe();
    FreeForGood(again);
}

TEST_F(TLibrary, ExportsTheServerEntriesAlone) {
    const HMODULE library = LoadAndServe();
    const auto address = [&](const char* name) {
        return reinterpret_cast<void*>(::GetProcAddress(library, name));
    };
    for (const char* name :
         {"DllCanUnloadNow", "DllGetClassObject", "DllRegisterServer", "DllUnregisterServer"})
        EXPECT_NE(address(name), nullptr) << name;
    for (WORD ordinal = 1; ordinal < 100; ++ordinal)
        EXPECT_EQ(address(MAKEINTRESOURCEA(ordinal)) != nullptr, ordinal <= 4) << ordinal;
    const auto getClassObject =
        reinterpret_cast<HRESULT(WINAPI*)(const GUID&, const GUID&, void**)>(address("DllGetClassObject"));
    void* object = &Port;
    EXPECT_EQ(getClassObject(GUID{}, GUID{}, &object), static_cast<HRESULT>(0x80040111));
    EXPECT_EQ(object, nullptr);
    Free(library);
}

// ------------------------------------------------------------------------------------------ other processes

// The box of the host check is closed from here; the process ends itself.
TEST(LibraryScenes, AHostWithoutTheToolkitEnds) {
    const auto closeBox = [](DWORD) {
        HWND box = nullptr;
        for (int i = 0; i < 1000 && !box; ++i, ::Sleep(10)) box = ::FindWindowA("#32770", "RUX");
        ASSERT_NE(box, nullptr);
        // The text stands in the code page, or in question marks where that has no Chinese.
        wchar_t text[64] = {};
        ::GetWindowTextW(::GetDlgItem(box, 0xFFFF), text, 64);
        const std::wstring expected =
            ::GetACP() == 936 ? L"目标程序必须使用 Delphi 2006/2007 编译" : L"???????? Delphi 2006/2007 ??";
        EXPECT_EQ(std::wstring(text), expected);
        ::PostMessageA(box, WM_CLOSE, 0, 0);
    };
    EXPECT_EQ(RunScene("no-toolkit", closeBox), 254u);
}

TEST(LibraryScenes, ExitsAndRefusals) {
    EXPECT_EQ(RunScene("exit-with-request"), 7u);
    EXPECT_EQ(RunScene("exit-in-box"), 8u);
    EXPECT_EQ(RunScene("no-windows"), 9u);
    EXPECT_EQ(RunScene("shared-run-time"), 10u);
}

/// What a process of its own does; its exit code.
unsigned PlayScene(const std::string& scene) {
    if (scene == "no-toolkit") {
        ::CreateWindowA("TApplication", "", WS_POPUP, 0, 0, 0, 0, nullptr, nullptr, nullptr, nullptr);
        Load();
        return 1;
    }
    if (scene == "no-windows") {
        ::LoadLibraryA("vcl100.bpl");
        return Load() == nullptr && ::GetModuleHandleA(LibraryName) == nullptr ? 9 : 1;
    }
    if (scene == "shared-run-time" && !::LoadLibraryA("libgcc_s_dw2-1.dll")) return 2;
    static THostThread host;
    const HMODULE library = Load();
    const std::uint16_t port = FindPort();
    // The first answer is an exception of the library's, raised and caught in it.
    if (Ask(port, "?Button$Find").substr(0, 3) != "516") return 3;
    if (scene == "shared-run-time") return ::FreeLibrary(library) && AwaitUnloaded() ? 10 : 4;
    static TConnection waiting(port);
    if (scene == "exit-in-box") {
        waiting.Send("Go$Click?IgnorePopupWindow");
        if (!THostThread::AwaitBox()) return 5;
        ::ExitProcess(8);
    }
    waiting.Send(Waits);
    waiting.Answer(1);
    ::ExitProcess(7);
}

}  // namespace rux::test

int main(int argc, char** argv) {
    WSADATA data;
    ::WSAStartup(MAKEWORD(2, 2), &data);
    const std::string sign = "--scene=", first = argc > 1 ? argv[1] : "";
    if (first.substr(0, sign.size()) == sign)
        return static_cast<int>(rux::test::PlayScene(first.substr(sign.size())));
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
