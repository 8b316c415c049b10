// Files of definitions, as bytes.
#include <cstdint>

#include "Engine/Core/RUXLimits.h"
#include "Engine/Registry/RUXXmlReader.h"
#include "fuzz/FuzzEngine.h"

namespace rux::fuzz {
namespace {

/// Depths grow by one at a time, and an error tells its place.
void Check(std::string_view bytes) {
    std::size_t before = 0;
    try {
        ReadXml("f", bytes, [&](const TXmlElement& element) {
            Demand(element.Depth >= 1 && element.Depth <= before + 1 && element.Depth <= XmlDepthLimit);
            Demand(!element.Name.empty() && (element.Depth > 1 || before == 0));
            before = element.Depth;
        });
    } catch (const EXMLError& error) {
        const std::string& text = error.Message();
        std::size_t at = 2;
        for (int numbers = 0; numbers < 2; ++numbers, ++at) {
            Demand(at < text.size() && text[at] >= '1' && text[at] <= '9');
            at = text.find(':', at);
            Demand(at != text.npos);
        }
        Demand(text.starts_with("f:") && text[at] == ' ' && at + 1 < text.size());
    }
}

}  // namespace
}  // namespace rux::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace rux;
    static const bool ready = (SetAnsiCodePage(LoadCodePage(936)), true);
    fuzz::Demand(ready);
    fuzz::Check({reinterpret_cast<const char*>(data), size});
    return 0;
}
