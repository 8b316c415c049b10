// The classes that the process has registered, so that streams find them by name.
#pragma once

#include <map>
#include <mutex>
#include <string>
#include <string_view>

#include "platform/headless/code/HCodeSpace.h"
#include "platform/toolkit/Classes.h"

namespace rux {

/// Any thread.
class HRegisteredClasses {
 public:
    /// Exports the registration from the run-time package, where it takes the class reference: a TClass*.
    explicit HRegisteredClasses(HCodeSpace& code);
    ~HRegisteredClasses();
    HRegisteredClasses(const HRegisteredClasses&) = delete;
    HRegisteredClasses& operator=(const HRegisteredClasses&) = delete;

    /// Calls the export, as packages do. Registering a class again is nothing; EFilerError when another one
    /// has its name, compared without case. The class must live as long as this.
    void RegisterClass(const TClass& aClass);
    /// nil for none.
    const TClass* GetClass(std::string_view name);

 private:
    void Add(const TClass* aClass);

    HCodeSpace& FCode;
    TCodeAddress FExport = 0;
    std::mutex FLock;
    std::map<std::string, const TClass*> FByName;  // in lower case
};

}  // namespace rux
