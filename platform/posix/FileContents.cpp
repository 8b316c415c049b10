#include "platform/posix/FileContents.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <atomic>
#include <cstdio>
#include <ctime>

#include "platform/shared/ServiceLimits.h"

namespace rux {
namespace {

constexpr mode_t NewFileMode = 0666;  // less what the process masks

struct TTemporaryFile {
    std::string Name;
    TFileDescriptor File;
};

TTemporaryFile MakeTemporaryBeside(const std::string& systemName) {
    static std::atomic<unsigned> counter{0};
    const std::string folder = systemName.substr(0, systemName.rfind('/') + 1);
    for (int i = 0; i < TemporaryNameAttempts; ++i) {
        std::string name =
            folder + ".rux-" + std::to_string(::getpid()) + "-" + std::to_string(counter.fetch_add(1));
        TFileDescriptor file(Retry(
            [&] { return ::open(name.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, NewFileMode); }));
        if (file || errno != EEXIST) return {std::move(name), std::move(file)};
    }
    return {};
}

/// The system stamps files with the time of its last tick; two contents of one tick would look the same.
void StampNow(int descriptor) {
    timespec times[2];
    ::clock_gettime(CLOCK_REALTIME, &times[0]);
    times[1] = times[0];
    ::futimens(descriptor, times);
}

}  // namespace

bool WriteAll(int descriptor, std::string_view bytes) {
    while (!bytes.empty()) {
        const ssize_t written = Retry([&] { return ::write(descriptor, bytes.data(), bytes.size()); });
        if (written <= 0) return false;
        bytes.remove_prefix(static_cast<std::size_t>(written));
    }
    return true;
}

TFileDescriptor OpenToRead(const std::string& systemName, std::size_t& size) {
    TFileDescriptor file(
        Retry([&] { return ::open(systemName.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC | O_NOCTTY); }));
    struct stat facts {};
    if (!file || ::fstat(file.Get(), &facts) != 0 || !S_ISREG(facts.st_mode)) return {};
    size = static_cast<std::size_t>(facts.st_size);
    return file;
}

std::optional<std::string> ReadUpTo(int descriptor, std::size_t size) {
    std::string bytes(size, '\0');
    std::size_t count = 0;
    while (count < size) {
        const ssize_t got = Retry([&] { return ::read(descriptor, bytes.data() + count, size - count); });
        if (got < 0) return std::nullopt;
        if (got == 0) break;
        count += static_cast<std::size_t>(got);
    }
    bytes.resize(count);
    return bytes;
}

bool ReplaceFile(const std::string& systemName, std::string_view bytes) {
    const TTemporaryFile temporary = MakeTemporaryBeside(systemName);
    if (!temporary.File) return false;
    const bool written = WriteAll(temporary.File.Get(), bytes);
    StampNow(temporary.File.Get());
    if (written && std::rename(temporary.Name.c_str(), systemName.c_str()) == 0) return true;
    ::unlink(temporary.Name.c_str());
    return false;
}

}  // namespace rux
