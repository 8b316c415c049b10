// Live objects of a toolkit that attached by the executable's table.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <thread>
#include <tuple>

#include "platform/toolkit/ComCtrls.h"
#include "platform/toolkit/Controls.h"
#include "platform/toolkit/ExtraCtrls.h"
#include "platform/toolkit/Forms.h"
#include "platform/toolkit/Menus.h"
#include "platform/toolkit/ShellCtrls.h"
#include "platform/toolkit/StdCtrls.h"
#include "platform/win32/Headers.h"
#include "platform/win32/Win32Thunks.h"
#include "platform/win32/toolkit/WToolkit.h"
#include "tests/rtl/TestCodePage.h"
#include "windows/toolkit/FakeApplication.h"

extern "C" const uint32_t LayoutInC[4];

extern "C" __declspec(dllexport) const RUXTable* RUX_CALL RUXToolkitTable() {
    return rux::fake::App ? rux::fake::App->Exported : nullptr;
}

namespace rux {
namespace {

using namespace fake;
using test::Raised;

struct TAttached : testing::Test {
    TFakeApplication& App = NewApplication(::GetCurrentThreadId());
    TWin32Thunks Thunks;
    WToolkit Kit{Thunks};
    TApplication& Application = Cast<TApplication>(&Kit.Application());
    TObject* Of(RUXRef ref) { return Kit.ObjectOfProp(ref); }
    /// A new object of that class, with these values.
    RUXRef New(std::string_view className, std::map<int, TValue> values = {}) {
        RUXClass type = 0;
        while (Classes[type].first != className) ++type;
        const RUXRef ref = 0x1000 + 16 * static_cast<RUXRef>(App.Objects.size());
        App.Objects[ref] = {type, ref, 0, std::move(values)};
        return ref;
    }
    TValue& Value(RUXRef ref, int what) { return App.Objects[ref].Values[what]; }
    template <class T>
    T& As(RUXRef ref) {
        return Cast<T>(Of(ref));
    }
};

const std::string Nil = "EAccessViolation: Access violation at address 00000000. Read of address 00000000";

int DebugTexts = 0;
LONG CALLBACK CountDebugText(EXCEPTION_POINTERS* raised) {
    if (raised->ExceptionRecord->ExceptionCode == 0x40010006) ++DebugTexts;
    return EXCEPTION_CONTINUE_SEARCH;
}

TEST(ToolkitTable, IsLaidOutAsInTheOtherLanguage) {
    const uint32_t here[] = {sizeof(RUXTable), sizeof(RUXValue), offsetof(RUXValue, Real),
                             offsetof(RUXTable, Invoke)};
    EXPECT_TRUE(std::equal(std::begin(here), std::end(here), LayoutInC));
}

TEST(ToolkitTable, IsRefusedOrTaken) {
    TFakeApplication& app = NewApplication(::GetCurrentThreadId());
    const std::tuple<const char*, void (*)(RUXTable&), bool> rows[] = {
        {"as it should be", [](RUXTable&) {}, true},
        {"longer", [](RUXTable& t) { t.Size += 4; }, true},
        {"no list", [](RUXTable& t) { t.ListProperties = nullptr; }, true},
        {"younger", [](RUXTable& t) { ++t.Version; }, false},
        {"too small", [](RUXTable& t) { t.Size -= 4; }, false},
        {"no Application", [](RUXTable& t) { t.Application = nullptr; }, false},
        {"no Invoke", [](RUXTable& t) { t.Invoke = nullptr; }, false},
    };
    const auto handler = ::AddVectoredExceptionHandler(1, &CountDebugText);
    const auto isTaken = [] {
        TWin32Thunks thunks;
        WToolkit kit(thunks);
        EXPECT_TRUE(Is<TApplication>(&kit.Application()));
        const bool known = kit.ObjectOfProp(FormRef) != nullptr;
        EXPECT_EQ(kit.CustomFormCount(), known ? 1 : 0);
        EXPECT_EQ(kit.Application().RefNumber() == AppRef, known);
        return known;
    };
    const RUXTable whole = app.Table;
    for (const auto& [what, change, taken] : rows) {
        app.Table = whole;
        change(app.Table);
        DebugTexts = 0;
        EXPECT_EQ(isTaken(), taken) << what;
        EXPECT_EQ(DebugTexts, taken ? 0 : 1) << what;
    }
    app.Exported = nullptr;
    EXPECT_FALSE(isTaken());
    EXPECT_EQ(DebugTexts, 1);  // of the row before
    ::RemoveVectoredExceptionHandler(handler);
}

TEST_F(TAttached, ClassesAreChainsOfNames) {
    std::string chain;
    for (const TClass* type = &Of(EditRef)->ClassType(); type; type = type->Parent()) {
        EXPECT_EQ(type, Kit.Classes().Find(type->Name()));
        chain += type->Name() + " ";
    }
    EXPECT_EQ(chain, "TCustomEdit TWinControl TControl TComponent TPersistent TObject ");
    EXPECT_EQ(Raised([&] { As<TCustomForm>(EditRef); }), Nil);
    EXPECT_EQ(Raised([&] { As<TControl>(MenuRef); }), Nil);
}

TEST_F(TAttached, ReadsValuesPlacesAndOthers) {
    auto& edit = As<TControl>(EditRef);
    EXPECT_EQ(As<TComponent>(EditRef).Name() + edit.Text(), "Edit1\xD6\xD0 text");
    EXPECT_TRUE(edit.Visible() && !edit.Enabled() && As<TCustomEdit>(EditRef).ReadOnly());
    EXPECT_EQ(edit.BoundsRect(), (TRect{EditRef, RUX_BOUNDS, EditRef + 10, RUX_BOUNDS + 10}));
    EXPECT_EQ(edit.ClientRect().Top, RUX_CLIENT);
    EXPECT_EQ(edit.ClientOrigin(), (TPoint{EditRef, RUX_CLIENT_ORIGIN}));
    EXPECT_TRUE(edit.Parent() == Of(FormRef) && edit.PopupMenu() == Of(MenuRef));
    EXPECT_EQ(As<TControl>(ButtonRef).PopupMenu(), nullptr);
    EXPECT_EQ(As<TComponent>(FormRef).Owner(), &Kit.Application());
    EXPECT_EQ(As<TWinControl>(EditRef).Handle(), HWnd{0x80000031});
    EXPECT_TRUE(As<TWinControl>(CheckRef).HandleAllocated());
    auto& form = As<TCustomForm>(FormRef);
    EXPECT_TRUE(form.FormStyle() == TFormStyle::MDIForm && form.Modal() && form.Active());
    auto& window = As<TWinControl>(FormRef);
    EXPECT_TRUE(form.MDIChildCount() == 0 && window.ControlCount() == 5);
    EXPECT_EQ(window.Controls(1), Of(CheckRef));
    EXPECT_EQ(Raised([&] { window.Controls(5); }), "EListError: List index out of bounds (5)");
    EXPECT_EQ(Kit.CustomForms(0), Of(FormRef));
    EXPECT_EQ(Kit.ActiveForm(), Application.MainForm());
    EXPECT_EQ(As<TDateTimePicker>(DateRef).Date(), 39512);
    EXPECT_TRUE(As<TRadioButton>(RadioRef).Checked());
    EXPECT_EQ(Raised([&] { As<TControl>(ButtonRef).Visible(); }), Nil);  // nothing of the kind
}

TEST_F(TAttached, ListsAndMenus) {
    const RUXRef box = New("TCheckListBox", {{RUX_INDEX, {1}}}),
                 view = New("TShellListView", {{RUX_VIEW_STYLE, {3}}});
    auto& list = As<TCustomListBox>(box);
    EXPECT_TRUE(list.ItemIndex() == 1 && list.Selected(1) && !list.Selected(0) &&
                As<TCheckListBox>(box).Checked(1));
    EXPECT_EQ(list.Items().Get(0) + " " + std::to_string(list.Items().IndexOf("9.1")), "9.0 1");
    EXPECT_EQ(list.ItemRect(1), (TRect{RUX_ENTRY, 1, RUX_ENTRY + 1, 2}));
    EXPECT_EQ(list.ItemRect(2), TRect());
    EXPECT_EQ(Raised([&] { list.Items().Get(2); }), "EStringListError: List index out of bounds (2)");
    list.SetItemIndex(0);
    As<TCheckListBox>(box).SetChecked(1, true);
    EXPECT_EQ(App.Log.back(), std::to_string(box) + ":13.1=1");
    EXPECT_EQ(Value(box, RUX_INDEX).Ordinal, 0);
    auto& combo = As<TShellComboBox>(New("TShellComboBox"));
    combo.SetPath("C:\\a");
    EXPECT_EQ(combo.Path(), "C:\\a");
    auto& items = As<TCustomListView>(view);
    EXPECT_TRUE(items.ViewStyle() == TViewStyle::Report && items.Count() == 2 && !items.Selected());
    EXPECT_EQ(items.ColumnCaption(1) + As<TShellListView>(view).FolderDisplayName(0), "10.111.0");
    EXPECT_TRUE(items.RectVisible({static_cast<int>(view), 3, static_cast<int>(view) + 1, 4}) &&
                !items.RectVisible({0, 0, 1, 1}));
    const RUXRef item = New("TListItem", {{RUX_TEXT, {0, 0, "one"}}, {RUX_CHECKED, {1}}});
    EXPECT_EQ(As<TListItem>(item).Caption() + As<TListItem>(item).SubItems().Get(1), "one9.1");
    EXPECT_EQ(As<TListItem>(item).DisplayRect(TDisplayCode::Label).Top, RUX_ITEM + 2);
    EXPECT_EQ(As<TPopupMenu>(MenuRef).Items(), Of(NodeRef));
    const RUXRef menu = New("TMenuItem", {{RUX_ENABLED, {}}, {RUX_VISIBLE, {1}}, {RUX_INDEX, {4}}});
    auto& entry = As<TMenuItem>(menu);
    EXPECT_TRUE(!entry.Enabled() && entry.Visible() && entry.MenuIndex() == 4 &&
                entry.Items(0) == Of(NodeRef));
}

TEST_F(TAttached, TreesAndPages) {
    auto& tree = As<TCustomTreeView>(TreeRef);
    EXPECT_TRUE(tree.Count() == 2 && tree.Item(0) == tree.GetFirstNode() && !tree.Selected());
    tree.SetSelected(Of(NodeRef));
    char text[] = "new";
    TTVItem edited;
    edited.Text = text, edited.Param = NodeRef;
    tree.Edit(edited);
    EXPECT_EQ(Value(NodeRef, RUX_EDITED_TEXT).Text, "new");
    As<TRichTreeView>(TreeRef).SetNodeChecked(Of(NodeRef), true);
    EXPECT_EQ(Value(NodeRef, RUX_CHECKED_BY_TREE).Ordinal, 1);
    auto& node = As<TTreeNode>(NodeRef);
    EXPECT_TRUE(node.Text() == "root" && node.Level() == 2 && node.DisplayRect(true).Top == RUX_NODE_TEXT);
    As<TRichTreeNode>(NodeRef).SetCheckState(2);
    EXPECT_EQ(As<TRichTreeNode>(NodeRef).CheckState(), 2);
    auto& pages = As<TTBXPageControl>(New("TTBXPageControl", {{RUX_TAB_FLAG, {1}}, {RUX_CAN_CHANGE, {1}}}));
    EXPECT_EQ(pages.TabFlag(), 1);
    const RUXRef tabs = New("TPageControl", {{RUX_CAN_CHANGE, {}}, {RUX_INDEX, {1}}});
    EXPECT_FALSE(As<TCustomTabControl>(tabs).CanChange());
    As<TCustomTabControl>(tabs).Change();
    EXPECT_EQ(App.Log.back(), std::to_string(tabs) + ":9");
    EXPECT_TRUE(As<TPageControl>(tabs).ActivePage() == Of(NodeRef) &&
                As<TPageControl>(tabs).PageCount() == 2);
    EXPECT_TRUE(As<TTabSheet>(New("TTabSheet", {{RUX_TAB_VISIBLE, {1}}})).TabVisible());
    EXPECT_EQ(As<TTBXStatusBar>(New("TTBXStatusBar")).PanelText(1), "9.1");
    EXPECT_EQ(As<TTabSet>(New("TTabSet")).Tabs().Get(0), "9.0");
    EXPECT_EQ(Raised([&] { As<TTabSet>(tabs); }), Nil);
}

TEST_F(TAttached, SetsAndInvokes) {
    As<TCustomEdit>(EditRef).SetText(std::string("a\0b", 3));
    EXPECT_EQ(As<TControl>(EditRef).Text(), std::string("a\0b", 3));
    As<TCustomCheckBox>(CheckRef).SetChecked(true);
    EXPECT_TRUE(As<TCustomCheckBox>(CheckRef).Checked());
    As<TDateTimePicker>(DateRef).SetDateTime(2.5);
    EXPECT_EQ(App.Objects[DateRef].Values[RUX_DATE_TIME].Real, 2.5);
    As<TControl>(ButtonRef).Click();
    As<TControl>(ButtonRef).CallOnClick();
    As<TWinControl>(EditRef).SetFocus();
    As<TWinControl>(FormRef).BringToFront();
    As<TCustomForm>(FormRef).UpdateActions();
    Application.ProcessMessages();
    EXPECT_EQ(App.Log, (std::vector<std::string>{"80:1", "80:2", "48:3", "32:4", "32:5", "0:6"}));
}

TEST_F(TAttached, PublishedPropertiesHaveTheirKinds) {
    TObject* edit = Of(EditRef);
    TPropValue value;
    for (int kind = 0; kind < RUX_KIND_COUNT; ++kind) {
        // Known because the class lists it: nobody else has this name.
        ASSERT_TRUE(edit->GetProp(FindName("kind" + std::to_string(kind)), value)) << kind;
        EXPECT_EQ(static_cast<int>(value.Kind), kind);
        EXPECT_EQ(value.Object, kind == RUX_KIND_CLASS ? Of(FormRef) : nullptr) << kind;
        EXPECT_TRUE(value.Ordinal == -7 && value.Real == 1.5 && value.Text == "told") << kind;
    }
    ASSERT_TRUE(edit->GetProp(FindName("Kind99"), value));
    EXPECT_EQ(value.Kind, TTypeKind::Unknown);
    EXPECT_FALSE(edit->GetProp(InternName("Another"), value));
    EXPECT_FALSE(edit->GetProp(TName{}, value));
}

TEST_F(TAttached, TheDeadHaveNoOperations) {
    TPropValue value;
    TObject* old = Of(ButtonRef);
    EXPECT_TRUE(old == Of(ButtonRef) && old->RefNumber() == ButtonRef);
    const TFakeObject button = App.Objects[ButtonRef];
    // Who has the address next: nobody, another button, another class where lives are not counted.
    for (int after = 0; after < 3; ++after) {
        App.Objects.erase(ButtonRef);
        if (after == 1) App.Objects[ButtonRef] = {fcButton, button.Life + 1};
        if (after == 2) App.Objects[ButtonRef] = {fcEdit, button.Life};
        TObject* now = Of(ButtonRef);
        EXPECT_TRUE(now != old && (now == nullptr) == (after == 0)) << after;
        EXPECT_EQ(Raised([&] { Cast<TControl>(old); }), Nil) << after;
        EXPECT_FALSE(old->GetProp(FindName("Kind1"), value)) << after;
    }
    auto& edit = As<TControl>(EditRef);
    App.Objects.erase(EditRef);
    EXPECT_EQ(Raised([&] { edit.Text(); }), Nil);
    EXPECT_TRUE(!Of(0) && !Of(0xDEAD));
}

TEST_F(TAttached, ForgetsTheDeadWhenThereAreMany) {
    const auto fill = [&](RUXRef from, RUXRef count) {
        for (RUXRef ref = from; ref < from + count; ++ref) App.Objects[ref] = {fcButton, ref}, Of(ref);
    };
    fill(0x1000, 1000);
    App.Objects.clear();
    EXPECT_EQ(Kit.ForgetDead(), 1000u);  // not worth a look yet
    fill(0x9000, 1500);
    EXPECT_EQ(Kit.ForgetDead(), 1500u);
    TObject* kept = Of(0x9000);
    fill(0x1000, 1400);
    App.Objects.erase(0x1000);
    EXPECT_EQ(Kit.ForgetDead(), 2900u);  // fewer than twice as many as last time
    fill(0x2000, 200);
    App.Objects.erase(App.Objects.upper_bound(0x9000), App.Objects.end());
    EXPECT_EQ(Kit.ForgetDead(), 1600u);
    EXPECT_EQ(Of(0x9000), kept);
}

TEST_F(TAttached, ForgetsTheDeadWhenTheLastCallHasLeft) {
    for (RUXRef ref = 0x1000; ref < 0x2000; ++ref) App.Objects[ref] = {fcButton, ref}, Of(ref);
    TObject* held = Of(0x1000);
    const auto call = [](TWndProc f) { ::CallWindowProcA(reinterpret_cast<WNDPROC>(f), nullptr, 0, 0, 0); };
    const TWndProc inner = Thunks.MakeWindowProc([](HWnd, unsigned, WParam, LParam) { return LResult{0}; });
    call(Thunks.MakeWindowProc([&](HWnd, unsigned, WParam, LParam) {
        App.Objects.clear();
        call(inner);
        EXPECT_EQ(held->RefNumber(), 0x1000u);
        return LResult{0};
    }));
    EXPECT_EQ(Kit.ForgetDead(), 0u);
}

TEST_F(TAttached, ErrorsOfTheApplicationComeAsTheirOwn) {
    App.Fails = true;
    const auto failing = [&](const char* name, const char* message) {
        App.Failure = {name, message};
        return Raised([&] { As<TControl>(ButtonRef).Click(); });
    };
    EXPECT_EQ(failing("EInvalidOperation", "Cannot focus"), "EInvalidOperation: Cannot focus");
    EXPECT_EQ(failing("EMyOwn", ""), "EMyOwn: ");
    EXPECT_EQ(failing("", ""), "Exception: The toolkit failed without an error");
    App.Failure = {"EABORT", "quiet"};
    EXPECT_THROW(Application.ProcessMessages(), EAbort);
}

TEST_F(TAttached, TheApplicationAnswersAnyThreadAndReportsErrors) {
    App.State.Terminated = 1;
    std::thread([&] {
        EXPECT_TRUE(Application.Terminated());
        EXPECT_EQ(Application.Handle(), HWnd{0x1234});
        Thunks.Report(EOSError("unheard"));  // no box of the application on another thread
    }).join();
    EXPECT_EQ(Kit.MainThreadId(), ::GetCurrentThreadId());
    Thunks.Report(EConvertError("heard"));
    Thunks.Report(EAbort("silent"));
    Thunks.Report(std::exception());
    EXPECT_EQ(App.Log, (std::vector<std::string>{"EConvertError|heard", "Exception|std::exception"}));
}

}  // namespace
}  // namespace rux
