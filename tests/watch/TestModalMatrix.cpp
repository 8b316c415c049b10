// Nine ways of windows to come up against nine ways of asking, whoever plays the scenes.
#include <gtest/gtest.h>

#include <array>

#include "watch/Scene.h"

namespace rux::test {

namespace {

constexpr const char* Options[] = {
    "",
    "?PopupWindow",
    "?PopupWindow=bOX",
    "?PopupWindow=o.*",
    "?PopupWindow=Save",
    "?CloseUnExpactPopupWindow",
    "?WaitForWindow=^B.x$",
    "?WaitForWindow=^Save$",
    "?IgnorePopupWindow",
};

using TCells = std::array<std::string_view, std::size(Options)>;

struct TRow {
    std::string_view Situation;
    TCells Cells;
    /// How many requests are below on the stack when the call is popped.
    int Below = 0;
};

// When, answer | window, picture of its size and its colours | next request | stack when popped, what is left
constexpr std::string_view Told = "W 213 窗体弹出 Box | up | ok | StactCount:0",
                           Kept = "W 213 窗体弹出 Box | up | ok | stays, left 1",
                           Report = "W 519 非预期窗体 window | up, picture | ok | StactCount:0",
                           Closed = "W 519 非预期窗体 window | gone, picture | ok | StactCount:0",
                           Carried = "W 519 非预期窗体 window+carried | up, picture | ok | StactCount:0",
                           CarriedClosed =
                               "W 519 非预期窗体 window+carried | gone, picture | ok | StactCount:0",
                           Over = "R 212 成功 | up | ok | StactCount:0",
                           Hour = "H 212 成功 | up | ok | stays, left 1";

/// A modal window during the call.
constexpr TCells Modal = {
    Report, Told, Told, Told, Report, Closed, Told, Hour, "E 212 成功 | up | ok | StactCount:0"};

constexpr TRow Matrix[] = {
    {"message box", Modal},
    {"modal form", Modal},
    // The call that opened the form is below on the stack.
    {"box on a modal form", Modal, 1},
    // Without an option that keeps it on the stack the call is over, and nobody is to blame.
    {"box after the call",
     {Over, Over, Over, Over, "R 212 成功 | up, picture | ok, 520 前节点执行异常 +carried | StactCount:0",
      Over, Told, Hour, Over}},
    {"exception in the send", Modal},
    // It is the failed call's own text that it carries. The failure takes WaitForWindow back; a window that
    // PopupWindow expects leaves the call on the stack for good, since its end never comes.
    {"exception that leaves the call",
     {Carried, Kept, Kept, Kept, Carried, CarriedClosed, Carried, Carried,
      "H 517 其他错误 'abc' is not a valid integer value | up | ok | stays, left 1"}},
    {"box closed by the application", Modal},
    // The call is over before its window is looked at, and is ended by the pump of the report: then the
    // report finds nobody waiting, though the answer has not left yet. An MDI child closes by minimising.
    {"MDI child",
     {Carried, Told, Told, Told, Carried, Carried, Told, Hour, "W 212 成功 | up | ok | StactCount:0"}},
    {"box on a second thread", Modal},
};

class TModalMatrix : public testing::TestWithParam<int> {};

}  // namespace

TEST_P(TModalMatrix, Row) {
    const TRow& row = Matrix[GetParam()];
    if (const std::string why = WhyNot(row.Situation); !why.empty())
        GTEST_SKIP() << row.Situation << ": " << why;
    for (std::size_t i = 0; i < std::size(Options); ++i) {
        SCOPED_TRACE(std::string(row.Situation) + " " + Options[i]);
        std::string cell(row.Cells[i]);
        if (row.Below && cell.ends_with("StactCount:0")) cell.back() = static_cast<char>('0' + row.Below);
        EXPECT_EQ(PlayScene(row.Situation, Options[i], cell[0]), SeenOf(cell));
    }
}

INSTANTIATE_TEST_SUITE_P(All, TModalMatrix, testing::Range(0, static_cast<int>(std::size(Matrix))));

}  // namespace rux::test
