#include "host/windows/testhost/Fixture.h"

#include <windows.h>

#include <commctrl.h>

#include "host/windows/common/AnsiText.h"
#include "host/windows/testhost/Dialogs.h"
#include "host/windows/testhost/UserInterface.h"

namespace rux {

namespace {

RECT Row(int top, int height = 20) {
    return {10, top, 200, top + height};
}

HTREEITEM AddNode(HWND tree, HTREEITEM parent, const char* text) {
    std::string bytes = Ansi(text);
    TVINSERTSTRUCTA insert{};
    insert.hParent = parent;
    insert.hInsertAfter = TVI_LAST;
    insert.item.mask = TVIF_TEXT;
    insert.item.pszText = bytes.data();
    return reinterpret_cast<HTREEITEM>(
        SendMessageA(tree, TVM_INSERTITEMA, 0, reinterpret_cast<LPARAM>(&insert)));
}

void AddTree(HWND dialog) {
    const HWND tree = AddControl(dialog, WC_TREEVIEWA, "", Row(160, 80));
    const HTREEITEM a = AddNode(tree, TVI_ROOT, "a"), b = AddNode(tree, a, "b");
    AddNode(tree, b, "c");
    AddNode(tree, a, "B");
    AddNode(tree, AddNode(tree, TVI_ROOT, "丁"), "c");
    AddNode(tree, TVI_ROOT, "e f");
}

/// A window of a class that nobody knows, with a button on it; above its siblings.
void AddCanvas(HWND dialog) {
    WNDCLASSA type{};
    type.lpfnWndProc = &DefWindowProcA;
    type.hInstance = GetModuleHandleA(nullptr);
    type.lpszClassName = "Canvas";
    RegisterClassA(&type);
    const HWND canvas = AddControl(dialog, type.lpszClassName, "画布", Row(250, 50));
    AddControl(canvas, "Button", "深处", Row(0), 9);
}

void AddItems(HWND list, UINT add, UINT choose) {
    for (const char* text : {"第一", "第二"})
        SendMessageA(list, add, 0, reinterpret_cast<LPARAM>(Ansi(text).c_str()));
    SendMessageA(list, choose, 1, 0);
}

void Build(HWND dialog) {
    AddControl(dialog, "Button", "保 存", Row(10), 7);
    EnableWindow(AddControl(dialog, "Button", "停用", Row(40), 8), FALSE);
    AddControl(dialog, "Edit", "", Row(70));
    AddControl(dialog, "Static", "标签", Row(100));
    const DWORD keepsTexts = CBS_DROPDOWNLIST | CBS_HASSTRINGS;
    AddItems(AddControl(dialog, "ComboBox", "", Row(130, 100), 0, keepsTexts), CB_ADDSTRING, CB_SETCURSEL);
    AddTree(dialog);
    AddCanvas(dialog);
    AddControl(dialog, "Static", "面板", Row(340));
    AddItems(AddControl(dialog, "ListBox", "", {210, 10, 380, 100}), LB_ADDSTRING, LB_SETCURSEL);
}

}  // namespace

void OpenFixture() {
    INITCOMMONCONTROLSEX all{sizeof all, ICC_TREEVIEW_CLASSES};
    InitCommonControlsEx(&all);
    const auto orphan = [](HWND dialog) { AddControl(dialog, "Button", "孤儿", Row(0)); };
    OpenDialog({"", {0, 600, 100, 700}, orphan, {}});
    const auto note = [](HWND, WPARAM command) { Note("command " + std::to_string(command)); };
    OpenDialog({"原生", {500, 100, 900, 500}, &Build, note});
}

}  // namespace rux
