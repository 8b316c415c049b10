#include "host/sample/Orders.h"

#include <memory>

#include "host/sample/OrdersCenter.h"
#include "host/sample/OrdersWindows.h"
#include "platform/headless/toolkit/HButtons.h"
#include "platform/headless/toolkit/HEdits.h"
#include "platform/headless/toolkit/HForm.h"
#include "rtl/CodePage.h"
#include "rtl/Numbers.h"

namespace rux {

namespace {

template <class T>
T& Find(HComponent& root, std::string_view name) {
    return dynamic_cast<T&>(*root.FindComponent(name));
}

HCustomForm& FormOf(HObject& sender) {
    auto& control = dynamic_cast<HControl&>(sender);
    return *control.ParentForm();
}

HCustomForm& FormNamed(HToolkit& kit, std::string_view name) {
    return dynamic_cast<HCustomForm&>(*kit.App().FindComponent(name));
}

std::string TextOf(HComponent& root, std::string_view name) {
    return Find<HControl>(root, name).Text();
}

void SetState(HCustomForm& form, std::string_view text) {
    Find<HControl>(form, "txtState").SetText(Ansi(text));
}

/// A line in the log window, whether or not it is shown.
void Log(HCustomForm& form, std::string_view text) {
    auto& memo = Find<HCustomMemo>(FormNamed(form.Kit(), "LogForm"), "mmoLog");
    memo.SetText(memo.Text() + Ansi(text) + "\r\n");
}

void Calculate(HCustomForm& form) {
    // A quantity that is no number raises here, as it would in the real thing.
    const double total = StrToInt(TextOf(form, "edtQuantity")) * StrToFloat(TextOf(form, "edtPrice"));
    Find<HCustomEdit>(form, "edtTotal").SetText(FormatFloat4(total));
    SetState(form, "金额已计算");
}

void ChooseCustomer(HCustomForm& form) {
    HCustomForm& picker = FormNamed(form.Kit(), "CustomerForm");
    if (picker.ShowModal() != mrOk) {
        SetState(form, "没有选择客户");
        return;
    }
    Find<HCustomEdit>(form, "edtCustomer").SetText(TextOf(picker, "edtPick"));
    SetState(form, "已选择客户");
}

void Export(HCustomForm& form) {
    const std::string chosen = AskForExport(form.Kit());
    SetState(form, "没有导出");
    if (!chosen.empty()) Find<HControl>(form, "txtState").SetText(Ansi("已导出 ") + chosen);
}

/// As an application does that first asks its server: the form comes when the button's code is long over.
void ChooseLater(HCustomForm& form) {
    HDesktop& desktop = form.Kit().Desktop();
    const auto timer = std::make_shared<unsigned>(0);
    *timer = desktop.SetTimer(300, [&form, &desktop, timer] {
        desktop.KillTimer(*timer);
        ChooseCustomer(form);
    });
}

void Save(HCustomForm& form, std::string_view what) {
    Log(form, what);
    SetState(form, what);
}

using TFormCode = void (*)(HCustomForm& form);

void Define(HComponent& root, std::string_view method, TFormCode code) {
    root.DefineMethod(method, [code](HObject& sender, HEventArgs&) { code(FormOf(sender)); });
}

void AttachMain(HComponent& root) {
    Define(root, "btnCalculateClick", Calculate);
    Define(root, "btnChooseClick", ChooseCustomer);
    Define(root, "btnSaveOrderClick", [](HCustomForm& form) { Save(form, "订单已保存"); });
    Define(root, "btnSaveCustomerClick", [](HCustomForm& form) { Save(form, "客户资料已保存"); });
    Define(root, "btnApproveClick", [](HCustomForm& form) { Save(form, "订单已审核"); });
    Define(root, "btnLogClick", [](HCustomForm& form) { FormNamed(form.Kit(), "LogForm").Show(); });
    Define(root, "btnImportClick", [](HCustomForm&) { StrToInt("abc"); });
    Define(root, "btnStockClick", [](HCustomForm& form) { ShowStock(form.Kit()); });
    Define(root, "btnExportClick", Export);
    Define(root, "btnLaterClick", ChooseLater);
    Define(root, "btnCenterClick",
           [](HCustomForm& form) { FormNamed(form.Kit(), "OrderCenterForm").Show(); });
    Define(root, "lblHelpClick", [](HCustomForm& form) { SetState(form, "帮助尚未编写"); });
    Define(root, "btnPinClick", [](HCustomForm& form) { SetState(form, "窗口已固定"); });
    Define(root, "edtCustomerChange", [](HCustomForm& form) { SetState(form, "客户已更改"); });
    Define(root, "chkUrgentClick", [](HCustomForm& form) {
        SetState(form, Find<HCustomCheckBox>(form, "chkUrgent").IsChecked() ? "加急订单" : "普通订单");
    });
    Define(root, "chkMayApproveClick", [](HCustomForm& form) {
        Find<HControl>(form, "btnApprove")
            .SetEnabled(Find<HCustomCheckBox>(form, "chkMayApprove").IsChecked());
    });
    Define(root, "PaymentClick", [](HCustomForm& form) {
        SetState(form, Find<HRadioButton>(form, "rbCash").IsChecked() ? "现金付款" : "转账付款");
    });
}

void AttachLog(HComponent& root) {
    Define(root, "btnClearLogClick",
           [](HCustomForm& form) { Find<HCustomMemo>(form, "mmoLog").SetText(""); });
    Define(root, "btnHideLogClick", [](HCustomForm& form) { form.Close(); });
}

}  // namespace

void AttachOrdersCode(HComponent& root) {
    if (root.PlainName() == "OrdersForm") AttachMain(root);
    if (root.PlainName() == "LogForm") AttachLog(root);
    if (root.PlainName() == "OrderCenterForm") AttachCenterCode(root);
}

}  // namespace rux
