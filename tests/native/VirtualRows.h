// Requests to the dialog of native controls that the tests of native windows have, in the order in which they
// are sent: what is answered, and what the windows are told.
#pragma once

#include <string>
#include <vector>

namespace rux::test {

struct TVirtualRow {
    std::string Request;
    /// The status, and the text behind a line feed if there is one.
    std::string Answer;
    /// What the desktop in memory tells of it.
    std::string Journal = {};
    /// True where only the desktop in memory answers so: what the toolkit has, and what a real tree does.
    bool InMemory = false;
};

inline std::vector<TVirtualRow> VirtualRows() {
    const std::string press = "send Button WM_LBUTTONDOWN 1 0,0; send Button WM_LBUTTONUP 0 0,0";
    const auto read = [](const std::string& name, int room) {
        return "send " + name + " 14 0 0; send " + name + " WM_GETTEXT " + std::to_string(room) + " buffer";
    };
    // Through the levels to 3 behind 2, and over to 5 and 6.
    const std::string go = "focus r0 ", toC = go + "t1 c1 t2 c2 t3", to5 = toC + " c3 n3 n2 t4 c4 n4 n1 t5",
                      to7 = to5 + " c5 t6 c6 n6 n5 t7", all = to7 + " c7 n7 show0";
    const std::string noNode = "517\n没有找到要选择的节点：";
    return {
        // By caption, by class word, by virtual class, by group.
        {"保存$Click", "212", press + "; command 7"},
        {"?TVirtualButton#1$Click", "212", press + "; command 7"},
        {"Edit$GetText", "211", read("Edit", 1)},
        {"Edit$SetText(S:新文)", "212", "send Edit WM_SETTEXT 0 新文; command 50331648"},
        {"新文?Edit$GetText", "211\n新文", read("Edit", 5)},
        {"?TVirtualEdit$GetText", "211\n新文", read("Edit", 5)},
        {"标签?Label$GetText", "211\n标签", read("Static", 5)},
        {"Combobox$GetText", "211\n第二", read("ComboBox", 5)},
        {"?ComboBox$GetText", "211\n第二", read("ComboBox", 5)},
        {"原生/保存>?TVirtualButton$Find", "211\nFalse"},
        {"保存_?TVirtualEdit$GetText", "211\n新文", read("Edit", 5)},
        {"Button$Find",
         "516\nButton找到了3个符合条件的控件，它们分别是：\r\n类名: TVirtualButton 标题：保 存 内容："
         "\r\n类名: TVirtualButton 标题：停用 内容：\r\n类名: TVirtualButton 标题：深处 内容："},
        // What is searched, and what is not.
        {"孤儿$Find", "211\nFalse"},
        {"画布$Find", "211\nFalse"},
        {"深处$Click", "212", press},
        {"无父$Find", "517\nTPanel没有找到适配器", {}, true},  // found
        {"原生/无父/面板钮$Find", "211\nTrue", {}, true},
        {"?TVirtualWindow$Find",
         "516\n?TVirtualWindow找到了2个符合条件的控件，它们分别是：\r\n类名: TVirtualWindow 标题：原生 内容："
         "\r\n类名: TVirtualWindow 标题：App 内容："},
        // Refusals.
        {"停用?Button$Click", "517\n控件[Button]方法[Click]不可用"},
        {"保存$RightClick", "517\n当前控件不支持鼠标右键方法."},
        {"原生$DbClick", "517\n当前控件不支持鼠标双击方法."},
        // Paths in a tree.
        {"SysTreeView32$GetCount", "211\n7", "count0"},
        // A tree selects its first node when it gets the focus.
        {"?TreeView$Selected", "211\na", "focus ^0 t1"},
        {"?TVirtualTreeView$Select(A/c)", "212", go + "t1 " + toC.substr(go.size()) + " show3 select3"},
        {"?TreeView$Selected", "211\nc", "focus ^0 t3"},
        {"?TreeView$GetText", "211\nc", "focus ^0 t3"},
        // Of two that are equal the first; a blank separates, and quotes keep it.
        {"?TreeView$Select(B)", "212", go + "t1 c1 t2 show2 select2"},
        {"?TreeView$Select(e f)", noNode + "e f", all},
        {"?TreeView$Select(\"\"e f\"\")", "212", to7 + " show7 select7"},
        // The search of an element begins at the node before it, and goes beside it as well as below.
        {"?TreeView$Select(丁/e/)", noNode + "丁/e/", to5 + " t5 c5 t6 c6 n6 n5 t7 c7 n7 show0"},
        {"?TreeView$Select(b/B/b)", "212", go + "t1 c1 t2 t2 t2 show2 select2"},
        {"?TreeView$Select(\"\")", "212", go + "show1 select1"},
        {"?TreeView$SetExpand(丁)", "212", to5 + " show5 expand5"},
        {"?TreeView$Click(c)", "212",
         toC + " show3 rect3; cursor 575,322; post SysTreeView32 WM_LBUTTONDOWN 0 62,40; "
               "post SysTreeView32 WM_LBUTTONUP 0 62,40"},
        {"?TreeView$SetText(c,new)", "212", toC + " show3 set3=new"},
        {"?TreeView$Selected", "211\nnew", "focus ^0 t3"},
        {"?TreeView$Click(x)", noNode + "x", all + " rect0"},
        // A window itself.
        {"原生$GetInfo",
         "211\n原生\r\nother:保 存\r\nother:停用\r\nother:新文\r\nother:标签\r\n"
         "other:第二\r\nother:画布\r\nother:深处\r\nTPanel:面板"},
        {"原生$Active", "212", "focus"},
        {"原生$Close", "212", "send #32770 WM_CLOSE 0 0; close #32770 原生"},
        {"原生$Find", "211\nFalse"},
    };
}

}  // namespace rux::test
