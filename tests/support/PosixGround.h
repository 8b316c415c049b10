// Folders, processes and connections of Linux for tests.
#pragma once

#include <arpa/inet.h>
#include <signal.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <filesystem>
#include <functional>
#include <string>

#include "platform/SocketService.h"
#include "platform/posix/FileDescriptor.h"
#include "platform/posix/TreeDeletion.h"

namespace rux::test {

namespace fs = std::filesystem;

/// A folder for one test, open to every user.
class TTemporaryFolder {
 public:
    TTemporaryFolder() {
        Path = ::mkdtemp((fs::temp_directory_path() / "rux-test-XXXXXX").string().data());
        fs::permissions(Path, fs::perms::all);
    }
    ~TTemporaryFolder() { DeleteSystemTree(Path); }
    std::string Path;
};

inline TSocketHandle ConnectTo(const char* address, std::uint16_t port) {
    TFileDescriptor socket(::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0));
    sockaddr_in name{};
    name.sin_family = AF_INET;
    name.sin_port = htons(port);
    ::inet_pton(AF_INET, address, &name.sin_addr);
    const bool connected = ::connect(socket.Get(), reinterpret_cast<sockaddr*>(&name), sizeof name) == 0;
    return connected ? socket.Detach() : INVALID_SOCKET;
}

/// Another process; it runs `body`, whose answer is its exit code.
class TProcess {
 public:
    explicit TProcess(const std::function<int()>& body) : FId(::fork()) {
        if (FId == 0) ::_exit(body());
    }
    int ExitCode() {
        int status = 0;
        ::waitpid(FId, &status, 0);
        return WIFEXITED(status) ? WEXITSTATUS(status) : -WTERMSIG(status);
    }
    void Kill() { ::kill(FId, SIGKILL), ExitCode(); }

 private:
    pid_t FId;
};

}  // namespace rux::test
