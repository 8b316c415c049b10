#include "host/sample/OrdersCenter.h"

#include <string>
#include <string_view>

#include "platform/headless/toolkit/HForm.h"
#include "platform/headless/toolkit/HMenus.h"
#include "platform/headless/toolkit/HStrings.h"
#include "platform/toolkit/ComCtrls.h"
#include "platform/toolkit/Controls.h"
#include "platform/toolkit/StdCtrls.h"
#include "rtl/CodePage.h"
#include "rtl/Numbers.h"

namespace rux {

namespace {

class TCenter {
 public:
    explicit TCenter(HComponent& form) : FForm(form) {}

    void ShowDepartment(std::string_view verb) const {
        TObject* node = Facet<TCustomTreeView>("tvDepartments").Selected();
        if (node) Tell(verb, Cast<TTreeNode>(node).Text());
    }
    void ShowOrder(std::string_view verb) const {
        TObject* item = Facet<TCustomListView>("lvOrders").Selected();
        if (item) Tell(verb, Cast<TListItem>(item).Caption());
    }
    void CountStatuses() const {
        auto& list = Facet<TCustomListBox>("lstStatus");
        int count = 0;
        for (int i = 0; i < list.Items().Count(); ++i) count += list.Selected(i) ? 1 : 0;
        SetPanel(1, IntToStr(count) + Ansi(" 种状态"));
    }
    void ShowCustomer() const { Tell("客户", Facet<TControl>("cmbCustomer").Text()); }
    void ShowPage() const {
        TObject* page = Facet<TPageControl>("pcDetail").ActivePage();
        if (page) Tell("页面", Cast<TControl>(page).Text());
    }
    /// With the archive there is no period to choose.
    bool MayChangePeriod() const { return !Facet<TCustomCheckBox>("chkArchive").Checked(); }
    void ShowPeriod() const {
        auto& tabs = Facet<TCustomTabControl>("tcPeriod");
        const std::string period = tabs.Tabs().Get(tabs.TabIndex());
        dynamic_cast<HControl&>(Named("lblPeriod")).SetText(period + Ansi("的订单"));
    }
    void ShowLock() const {
        Tell(dynamic_cast<HMenuItem&>(Named("mniLock")).Checked() ? "已锁定" : "已解锁", "");
    }
    void Tell(std::string_view verb, const std::string& what) const {
        SetPanel(0, Ansi(verb) + (what.empty() ? "" : " " + what));
    }
    void Close() const { dynamic_cast<HCustomForm&>(FForm).Close(); }

 private:
    HComponent& Named(std::string_view name) const { return *FForm.FindComponent(name); }
    template <class T>
    T& Facet(std::string_view name) const {
        return Cast<T>(&Named(name));
    }
    void SetPanel(std::size_t index, const std::string& text) const {
        TPropValue panels;
        Named("stbCenter").GetProp(InternName("Panels"), panels);
        HObject& panel = *dynamic_cast<HCollection&>(*panels.Object).Items().at(index);
        panel.SetProp(InternName("Text"), HStringValue(text));
    }

    HComponent& FForm;
};

}  // namespace

void AttachCenterCode(HComponent& root) {
    const TCenter center(root);
    const auto define = [&](std::string_view method, auto code) {
        root.DefineMethod(method, [center, code](HObject&, HEventArgs&) { code(center); });
    };
    define("tvDepartmentsChange", [](const TCenter& c) { c.ShowDepartment("部门"); });
    define("tvDepartmentsDblClick", [](const TCenter& c) { c.ShowDepartment("打开"); });
    define("lvOrdersClick", [](const TCenter& c) { c.ShowOrder("订单"); });
    define("lvOrdersDblClick", [](const TCenter& c) { c.ShowOrder("查看"); });
    define("lstStatusClick", [](const TCenter& c) { c.CountStatuses(); });
    define("clbColumnsClickCheck", [](const TCenter& c) { c.Tell("显示列已更改", ""); });
    define("cmbCustomerChange", [](const TCenter& c) { c.ShowCustomer(); });
    define("pcDetailChange", [](const TCenter& c) { c.ShowPage(); });
    define("tcPeriodChange", [](const TCenter& c) { c.ShowPeriod(); });
    define("mniViewClick", [](const TCenter& c) { c.ShowOrder("查看"); });
    define("mniLockClick", [](const TCenter& c) { c.ShowLock(); });
    define("mniNewClick", [](const TCenter& c) { c.Tell("新建订单", ""); });
    define("mniHideClick", [](const TCenter& c) { c.Close(); });
    root.DefineMethod("tcPeriodChanging",
                      [center](HObject&, HEventArgs& args) { args.Allow = center.MayChangePeriod(); });
    root.DefineMethod("mniExportClick", [center](HObject& sender, HEventArgs&) {
        center.Tell("已导出", dynamic_cast<HMenuItem&>(sender).Caption());
    });
}

}  // namespace rux
