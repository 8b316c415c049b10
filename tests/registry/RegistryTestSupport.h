// An engine over files in memory, and live objects of no application.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <atomic>
#include <map>
#include <memory>
#include <mutex>
#include <optional>
#include <string>

#include "Engine/Core/RUXEngineState.h"
#include "Engine/Core/RUXServerUtils.h"
#include "platform/headless/HeadlessPlatform.h"
#include "platform/posix/CodePages.h"
#include "platform/posix/PosixPlatform.h"

namespace rux::test {

/// Touches no disk.
class TMemoryFiles final : public TPosixFiles {
 public:
    struct TFile {
        std::string Bytes;
        std::int64_t Stamp = 0;
    };
    /// Every write fails; every read of a file that is there fails.
    bool ReadOnly = false, Locked = false;
    std::atomic<int> Writes{0};

    void Put(const std::string& name, std::string_view bytes, std::int64_t stamp) {
        const std::lock_guard lock(FLock);
        FFiles[name] = {std::string(bytes), stamp};
    }
    TFile Get(const std::string& name) {
        const std::lock_guard lock(FLock);
        return FFiles[name];
    }
    std::string Content(const std::string& name) { return Get(name).Bytes; }

    bool ForceDirectories(const std::string&) override { return true; }
    bool DeleteFile(const std::string&) override { return true; }
    std::optional<std::string> ReadFile(const std::string& name) override {
        const TFile file = Get(name);
        return Locked || file.Stamp == 0 ? std::nullopt : std::optional(file.Bytes);
    }
    bool WriteFile(const std::string& name, std::string_view bytes) override {
        if (!ReadOnly) Put(name, bytes, 1000 + ++Writes);
        return !ReadOnly;
    }
    std::int64_t LastWriteTime(const std::string& name) override { return Get(name).Stamp; }
    std::unique_ptr<TAppendFile> OpenAppend(const std::string& name) override {
        return std::make_unique<TAppender>(*this, name);
    }

 private:
    struct TAppender final : TAppendFile {
        TAppender(TMemoryFiles& files, std::string name) : Files(files), Name(std::move(name)) {}
        bool Write(std::string_view bytes) override {
            Files.Put(Name, Files.Content(Name).append(bytes), 1);
            return true;
        }
        TMemoryFiles& Files;
        const std::string Name;
    };
    std::mutex FLock;
    std::map<std::string, TFile> FFiles;
};

class TThing final : public TObject {
 public:
    explicit TThing(const TClass& type) : FType(type) {}
    const TClass& ClassType() const override { return FType; }
    void* Facet(TFacetId) override { return nullptr; }
    std::uint64_t RefNumber() const override { return 1; }
    bool GetProp(TName, TPropValue&) override { return false; }

 private:
    const TClass& FType;
};

/// A library beside an application; an engine is not part of it.
class THostTest : public testing::Test {
 protected:
    static void SetUpTestSuite() { SetAnsiCodePage(LoadCodePage(936)); }

    static TKernelFacts Facts() {
        TKernelFacts facts;
        facts.ModuleName = "C:\\App\\App.exe";
        facts.LibraryName = "C:\\App\\RUX.dll";
        return facts;
    }

    TPosixPlatform Posix{Facts()};
    TMemoryFiles Files;
    THeadlessPlatform Desktop{Posix.Kernel, *Posix.Clock, Posix.Sockets, Files};
};

class TRegistryTest : public THostTest {
 protected:
    TRegistryTest() { State.ServerPort = 8083; }

    /// The last class of a chain that is written from the root down.
    const TClass& Chain(std::string_view names) {
        const TClass* type = nullptr;
        while (!names.empty()) {
            const std::string_view name = names.substr(0, names.find(' '));
            type = &Desktop.Toolkit().Classes().Define(name, type);
            names.remove_prefix(std::min(name.size() + 1, names.size()));
        }
        return *type;
    }
    std::string Log() { return Files.Content(GetLogFileName()); }

    TEngineState State{Desktop.Platform()};
};

inline constexpr const char* ClassFile = "C:\\App\\RUX.classgroup.ini";
inline constexpr const char* MethodFile = "C:\\App\\RUX.methodgroup.ini";

}  // namespace rux::test
