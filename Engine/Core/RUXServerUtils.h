// Names of the engine's files and folders, and the pool of objects that requests make. Paths have backslashes
// and are in the system's code page.
#pragma once

#include <cstddef>
#include <memory>
#include <string>

namespace rux {

class TObject;

/// Folder of the host's executable, with its trailing backslash.
std::string GetExePath();
/// The folder of this engine's run. The doubled backslash in front of "RUX_" is kept: controllers compare the
/// path as it has always been. Asserts that the port is known.
std::string GetWorkDir();
std::string GetLogFileName();
/// Folder of the pictures, doubled backslash and no trailing one, as ever.
std::string GetPicDir();
/// "/UnExpectWindowPic/" where the folder of the pictures exists, else empty.
std::string GetPicUrlPrefix();

/// Gives an object to the pool of the oldest request; it lives until the request that is running has left the
/// stack. Asserts that there is a request. Answers the object's place.
std::size_t AddToObjectPool(std::unique_ptr<TObject> object);

}  // namespace rux
