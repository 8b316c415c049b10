#include "host/sample/OrdersWindows.h"

#include "platform/headless/native/HMessageBox.h"
#include "platform/headless/native/HNativeCombo.h"
#include "platform/headless/native/HNativeFactory.h"
#include "platform/headless/native/HNativeTree.h"
#include "rtl/CodePage.h"

namespace rux {

namespace {

constexpr TRect ExportPlace{360, 240, 720, 520};
constexpr TRect LabelPlace{12, 12, 92, 32}, NamePlace{100, 10, 340, 32}, FormatLabelPlace{12, 40, 92, 60},
    FormatPlace{100, 38, 340, 60}, FolderPlace{12, 68, 340, 204}, OkPlace{180, 216, 255, 241},
    CancelPlace{265, 216, 340, 241};

class TExportDialog {
 public:
    TExportDialog(HDesktop& desktop, HWnd owner) : FDesktop(desktop) {
        HDialogTraits traits;
        // What stands in the fields is gone with the dialog.
        traits.Proc = [this](HWnd, unsigned message, WParam wParam, LParam) {
            if (message == WM_COMMAND && wParam == IDOK) FChoice = Read();
            return false;
        };
        FDialog = CreateNativeDialog(desktop, Ansi("导出"), ExportPlace, owner, std::move(traits));
        Add("Static", "文件名:", LabelPlace);
        FName = Add("Edit", "", NamePlace);
        Add("Static", "格式:", FormatLabelPlace);
        FFormat = Add("ComboBox", "", FormatPlace);
        for (const char* format : {"CSV", "XML"})
            Send(FFormat, HNativeCombo::CB_ADDSTRING, 0, reinterpret_cast<LParam>(format));
        Send(FFormat, HNativeCombo::CB_SETCURSEL, 0, 0);
        FFolder = Add("SysTreeView32", "", FolderPlace);
        const HTreeItem server = Node(TVI_ROOT, "服务器");
        const HTreeItem orders = Node(server, "订单");
        for (const char* year : {"2008", "2009"}) Node(orders, year);
        Node(TVI_ROOT, "本机");
        Add("Button", "确定", OkPlace, IDOK);
        Add("Button", "取消", CancelPlace, IDCANCEL);
    }

    std::string Run() {
        RunNativeDialog(FDesktop, FDialog);
        return FChoice;
    }

 private:
    LResult Send(HWnd window, unsigned message, WParam wParam, LParam lParam) {
        return FDesktop.Notify(window, message, wParam, lParam);
    }
    HWnd Add(const char* className, std::string_view text, const TRect& place, unsigned id = 0) {
        return CreateNativeWindow(FDesktop, className, Ansi(text), WS_CHILD | WS_VISIBLE, FDialog, place, id);
    }
    HTreeItem Node(HTreeItem parent, std::string_view text) {
        std::string bytes = Ansi(text);
        TTVInsert insert;
        insert.Parent = parent;
        insert.Item.Mask = TVIF_TEXT;
        insert.Item.Text = bytes.data();
        return static_cast<HTreeItem>(Send(FFolder, TVM_INSERTITEMA, 0, reinterpret_cast<LParam>(&insert)));
    }
    std::string Folder() {
        char text[64] = {};
        TTVItem item;
        item.Mask = TVIF_TEXT;
        item.Item = static_cast<HTreeItem>(Send(FFolder, TVM_GETNEXTITEM, TVGN_CARET, 0));
        item.Text = text;
        item.TextMax = sizeof text;
        Send(FFolder, TVM_GETITEMA, 0, reinterpret_cast<LParam>(&item));
        return text;
    }
    std::string Read() {
        return FDesktop.GetWindowTextA(FName) + " " + FDesktop.GetWindowTextA(FFormat) + " " + Folder();
    }

    HDesktop& FDesktop;
    HWnd FDialog = 0, FName = 0, FFormat = 0, FFolder = 0;
    std::string FChoice;
};

}  // namespace

void ShowStock(HToolkit& kit) {
    RunMessageBox(kit.Desktop(), Ansi("螺栓 M8 只剩 12 件。"), Ansi("库存"), kit.Desktop().GetActiveWindow());
}

std::string AskForExport(HToolkit& kit) {
    return TExportDialog(kit.Desktop(), kit.Desktop().GetActiveWindow()).Run();
}

}  // namespace rux
