#include "platform/win32/toolkit/WBridgeFamily.h"

#include "rtl/Text.h"

namespace rux {

RUXValue WFlag(bool value) {
    RUXValue made{};
    made.Kind = RUX_KIND_ENUMERATION;
    made.Ordinal = value ? 1 : 0;
    return made;
}

RUXValue WInteger(int value) {
    RUXValue made{};
    made.Kind = RUX_KIND_INTEGER;
    made.Ordinal = value;
    return made;
}

RUXValue WText(const std::string& text) {
    RUXValue made{};
    made.Kind = RUX_KIND_STRING;
    made.Text = text.c_str();
    made.TextLength = static_cast<std::uint32_t>(text.size());
    return made;
}

RUXValue WObject(const TObject* object) {
    RUXValue made{};
    made.Kind = RUX_KIND_CLASS;
    made.Object = object ? static_cast<RUXRef>(object->RefNumber()) : 0;
    return made;
}

int WLines::IndexOf(const std::string& text) {
    const int count = Count();
    for (int i = 0; i < count; ++i)
        if (AnsiSameText(Get(i), text)) return i;
    return -1;
}

std::unique_ptr<WBridgeFamily> MakeBridgeFamily(const WHandle& handle, const TClass& type) {
    for (const auto make : {&MakeListFamily, &MakeTreeFamily, &MakePageFamily})
        if (std::unique_ptr<WBridgeFamily> made = make(handle, type)) return made;
    return nullptr;
}

}  // namespace rux
