// The request text: splitting, arguments, targets.
#include <cstdint>

#include "Engine/Core/RUXClasses.h"
#include "Engine/Request/RUXRequestText.h"
#include "fuzz/FuzzEngine.h"
#include "rtl/Text.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace rux;
    using namespace rux::fuzz;
    FuzzEngine();
    const std::string utf8(reinterpret_cast<const char*>(data), size);
    // Once as it comes, and once as the wire brings it.
    for (const std::string& url : {utf8, Utf8ToAnsi(DecodeURL(utf8))}) {
        TRequestText request;
        try {
            ParseURL(url, request);
        } catch (const ERUX_URL_ParseError&) {
            continue;
        }
        Demand(request.Locator.size() + request.MethodName.size() <= url.size());
        Demand(request.IsFind == SameText(request.MethodName, "Find"));
        GetLocatorTarget(request.Locator);
        std::size_t bytes = 0;
        for (const std::string& arg : request.Args) {
            const std::string text = ArgumentText(arg);
            Demand(text.size() <= arg.size());
            bytes += text.size();
            if (IsNamedArgument(arg)) NamedArgument(request.Args, arg.substr(0, arg.find(':')));
        }
        Demand(bytes <= url.size());
    }
    return 0;
}
