#include "platform/headless/windows/HMessageNames.h"

#include <iterator>

namespace rux {

namespace {

struct TMessageName {
    unsigned Number;
    const char* Name;
};

constexpr TMessageName Names[] = {
    {WM_SETTEXT, "WM_SETTEXT"},
    {WM_GETTEXT, "WM_GETTEXT"},
    {WM_CLOSE, "WM_CLOSE"},
    {WM_COPYDATA, "WM_COPYDATA"},
    {WM_KEYDOWN, "WM_KEYDOWN"},
    {WM_KEYUP, "WM_KEYUP"},
    {WM_CHAR, "WM_CHAR"},
    {WM_SYSKEYDOWN, "WM_SYSKEYDOWN"},
    {WM_SYSKEYUP, "WM_SYSKEYUP"},
    {WM_COMMAND, "WM_COMMAND"},
    {WM_MOUSEMOVE, "WM_MOUSEMOVE"},
    {WM_LBUTTONDOWN, "WM_LBUTTONDOWN"},
    {WM_LBUTTONUP, "WM_LBUTTONUP"},
    {WM_LBUTTONDBLCLK, "WM_LBUTTONDBLCLK"},
    {WM_RBUTTONDOWN, "WM_RBUTTONDOWN"},
    {WM_RBUTTONUP, "WM_RBUTTONUP"},
    {CN_COMMAND, "CN_COMMAND"},
};

std::string NameOf(unsigned message) {
    for (const TMessageName& row : Names)
        if (row.Number == message) return row.Name;
    return std::to_string(message);
}

std::string DescribeParam(unsigned message, LParam lParam) {
    if (message >= WM_MOUSEMOVE && message <= WM_RBUTTONDBLCLK) {
        const TPoint p = PointOfParam(lParam);
        return std::to_string(p.X) + "," + std::to_string(p.Y);
    }
    if (message == WM_SETTEXT && lParam) return reinterpret_cast<const char*>(lParam);
    if (message == WM_GETTEXT || message == WM_COPYDATA) return "buffer";
    return std::to_string(lParam);
}

}  // namespace

std::string DescribeMessage(unsigned message, WParam wParam, LParam lParam) {
    return NameOf(message) + " " + std::to_string(wParam) + " " + DescribeParam(message, lParam);
}

}  // namespace rux
