// The catalogue of interfaces, and virtual controls under an adapter.
#include "AdapterTestSupport.h"
#include "Engine/Adapters/RUXTestAdapter.h"
#include "Engine/Core/RUXUtils.h"
#include "Engine/Request/RUXTestFramework.h"
#include "Engine/Virtual/RUXVirtualControls.h"

namespace rux::test {

namespace {

constexpr const TInterfaceInfo* All[] = {
    &IControl::Info,  &IEdit::Info,         &IButton::Info,      &IMenu::Info,      &IPopupMenu::Info,
    &ILabel::Info,    &IForm::Info,         &IToolBar::Info,     &IStatusBar::Info, &ITreeView::Info,
    &IList::Info,     &IOutlookBar::Info,   &IPageControl::Info, &IListBox::Info,   &ICheckListBox::Info,
    &IListView::Info, &IComboControl::Info, &IComboBox::Info,    &ICheckBox::Info,  &IRadioButton::Info,
    &IToolKit::Info,  &IMatrix::Info,       &IGrid::Info,
};

std::string DumpOf(const TInterfaceInfo& info) {
    std::string text(info.Name);
    text += "(" + std::string(info.Parent ? info.Parent->Name : "") + "):";
    for (const TIntfMethEntry& method : info.Methods) {
        text += " " + std::string(method.Name) + "(";
        for (std::size_t i = 0; i < method.ParamCount; ++i)
            text += (i ? ", " : "") + std::string(method.Params[i].Name) + " " +
                    std::string(method.Params[i].Info->Name);
        text += ")";
        if (method.ResultType) text.append(" ").append(method.ResultType->Name);
    }
    return text + "\n";
}

TEST(Interfaces, AreTheOnesThatControllersKnow) {
    EXPECT_EQ(DumpOf(IEdit::Info),
              "IEdit(IControl): GetText() string SetText(S string) ReadOnly() Boolean\n");
    std::string catalogue;
    for (const TInterfaceInfo* info : All) catalogue += DumpOf(*info);
    std::uint64_t hash = 0xCBF29CE484222325;
    for (const char c : catalogue) hash = (hash ^ static_cast<unsigned char>(c)) * 0x100000001B3;
    EXPECT_EQ(hash, 7112987259235990018u)
        << "The catalogue changed; when that is meant, this is the new one:\n"
        << catalogue;
}

class TProbeAdapter final
    : public TAdapterOf<TBaseVirtualControlAdapter, "TProbeAdapter", "TVirtualWindow", IPopupMenu> {
 public:
    using TAdapterOf::TAdapterOf;
};

TEST_F(TAdapterTest, VirtualWindowLivesWithItsRequest) {
    const HWnd handle = static_cast<HWinControl*>(Find("F"))->Handle();
    const std::string error = ErrorOf([&] { CreateVirtualControl<TVirtualWindow>(handle); });
    EXPECT_EQ(error.substr(0, error.rfind(' ')),
              "EAssertionFailed: Assertion failure (Engine/Core/RUXServerUtils.cpp, line");

    const auto request = MakeIntf<TTestRequest>("");
    Engine.RequestStack.Add(request);
    TVirtualWindow& window = CreateVirtualControl<TVirtualWindow>(handle);
    EXPECT_EQ(request->GetObjectPool().Count(), 1u);
    EXPECT_NE(window.RefNumber(), CreateVirtualControl<TVirtualWindow>(handle).RefNumber());

    std::string chain;
    for (const TClass* type = &window.ClassType(); type; type = type->Parent()) chain += type->Name() + " ";
    EXPECT_EQ(chain, "TVirtualWindow TVirtualWinControl TBaseVirtualControl TPersistent TObject ");
    const auto facts = [&] {
        const auto adapter = MakeIntf<TProbeAdapter>(&window);
        return GetPropValue(&window, "caption") + "|" + GetPropValue(&window, "Name") + "|" +
               GetPropValue(&window, "Hint") + "|" + (adapter->Enabled() ? "enabled" : "disabled");
    };
    EXPECT_EQ(facts(), "One form|Oneform||enabled");
    Desktop.Desktop().EnableWindow(handle, false);
    EXPECT_EQ(facts(), "One form|Oneform||disabled");
    Desktop.Desktop().DestroyWindow(handle);
    EXPECT_EQ(facts(), "|||disabled");
}

TEST_F(TAdapterTest, WhatIsNoControlHasTheCommonMethodsAlone) {
    const auto adapter = MakeIntf<TProbeAdapter>(Find("Item"));
    EXPECT_TRUE(adapter->Enabled());
    EXPECT_EQ(ErrorOf([&] { adapter->RightClick(); }), "EAdapterException: 当前控件不支持鼠标右键方法.");
    EXPECT_EQ(ErrorOf([&] { adapter->ReadOnly(); }),
              "ERUXException: 服务器没有处理控件TMenuItem类型的ReadOnly调用");
    EXPECT_EQ(ErrorOf([] { RaiseAdapterErrorFmt("%s at %d", {"Row", 7}); }), "EAdapterException: Row at 7");
}

}  // namespace

}  // namespace rux::test
