// Native windows in a search: the walk against one that goes level by level, and what a finder tells.
#include <random>
#include <set>

#include "Engine/Core/RUXUtils.h"
#include "Engine/Locator/RUXCommonLocator.h"
#include "Engine/Registry/RUXTypeRegistry.h"
#include "Engine/Request/RUXTestFramework.h"
#include "Engine/Virtual/RUXVirtualStdCtrls.h"
#include "LocatorTestSupport.h"
#include "rtl/Numbers.h"
#include "tests/rtl/TestCodePage.h"

namespace rux::test {

namespace {

class TNativeWalkTest : public TLocatorTest {
 protected:
    TNativeWalkTest() { Engine.RequestStack.Add(MakeIntf<TTestRequest>("")); }

    HWnd Add(HWnd parent, std::string_view className, std::string_view text = {}) {
        HCreateParams params;
        params.ClassName = className;
        params.Text = Ansi(text);
        params.Style = WS_VISIBLE | (parent ? WS_CHILD : WS_POPUP);
        params.Parent = parent;
        params.Rect = {1, 2, 30, 40};
        return Desktop.Desktop().CreateWindowA(params);
    }
    /// From now on the toolkit takes the window for that control's.
    void Mark(HWnd window, const HControl& control) {
        const TAtom atom =
            Desktop.Desktop().GlobalAddAtomA("Delphi" + IntToHex8(Kernel.GetCurrentProcessId()));
        Desktop.Desktop().SetPropA(window, atom, control.RefNumber());
    }
    HControl& AddPanel(HCustomForm& form, HWinControl* parent) {
        auto panel = Kit().MakeAs<HControl>("TPanel");
        panel->SetName("p" + std::to_string(++FPanels));
        panel->SetBounds({1, 1 + 50 * FPanels, 40, 40 + 50 * FPanels});
        auto& kept = static_cast<HControl&>(form.Own(std::move(panel)));
        if (parent) kept.SetParent(parent);
        return kept;
    }

    // The plain version: every window fills its own list of all below it and goes into each of them.
    struct TPlain {
        std::vector<std::string> Names;
        std::set<std::uint64_t> Ids;
        bool Add(std::uint64_t id, const std::string& name) {
            if (!Ids.insert(id).second) return false;
            Names.push_back(name);
            return true;
        }
    };
    static const char* ClassFor(const std::string& windowClass) {
        for (const auto& [own, virtualClass] :
             {std::pair{"Button", "TVirtualButton"}, std::pair{"EDIT", "TVirtualEdit"},
              std::pair{"ComboBox", "TVirtualCombobox"}, std::pair{"SysTreeView32", "TVirtualTreeView"}})
            if (windowClass == own) return virtualClass;
        return nullptr;
    }
    void WalkToolkit(TObject* object, TPlain& found) {
        TSolviLocatorParser parser(&Kit().Application(), true);
        const auto list = MakeIntf<TCommonLocator>(parser);
        const TIntf<IFindAdapter> finder = Engine.Registry->CreateFindAdapter(object);
        finder->FindChildren(*list);
        for (int i = 0; i < list->GetCount(); ++i)
            found.Add(list->GetItem(i)->GetID(), NameOf(list->GetItem(i)->GetObject()));
    }
    void WalkPlain(HWnd window, TPlain& found) {
        std::vector<HWnd> below;
        Desktop.Desktop().EnumChildWindows(window, [&](HWnd child) {
            below.push_back(child);
            return true;
        });
        for (const HWnd child : below) {
            const std::string windowClass = Desktop.Desktop().GetClassNameA(child);
            if (TObject* object = FindVclControl(child)) {
                if (Cast<TControl>(object).Parent()) continue;
                const TIntf<IFindAdapter> finder = Engine.Registry->CreateFindAdapter(object);
                if (!finder->IsVisible()) continue;
                found.Add(finder->GetID(), NameOf(object));
                WalkToolkit(object, found);
            } else if (const char* name = ClassFor(windowClass)) {
                if (!Desktop.Desktop().IsWindowVisible(child)) continue;
                found.Add(child, name);
                WalkPlain(child, found);
            }
        }
    }
    static std::vector<std::string> NamesOf(ICommonLocator& list) {
        std::vector<std::string> names;
        for (int i = 0; i < list.GetCount(); ++i) names.push_back(NameOf(list.GetItem(i)->GetObject()));
        return names;
    }
    static std::set<std::uint64_t> IdsOf(ICommonLocator& list) {
        std::set<std::uint64_t> ids;
        for (int i = 0; i < list.GetCount(); ++i) ids.insert(list.GetItem(i)->GetID());
        return ids;
    }
    /// What the assertion names that the call fails, without its line.
    static std::string Failure(const std::function<void()>& call) {
        const std::string text = Raised(call);
        return text.substr(0, text.find(','));
    }

 private:
    int FPanels = 0;
};

}  // namespace

TEST_F(TNativeWalkTest, GivesWhatAWalkThroughTheLevelsGives) {
    std::mt19937 random;
    const auto pick = [&](int from, int to) { return std::uniform_int_distribution<int>(from, to)(random); };
    HCustomForm& form = Load("object F: TForm end");
    TSolviLocatorParser parser(&Kit().Application(), true);
    std::size_t natives = 0, controls = 0, repeats = 0;
    for (unsigned seed = 1; seed <= 150; ++seed) {
        random.seed(seed);
        const HWnd top = Add(0, "#32770", "top");
        std::vector<HWnd> windows{top};
        std::vector<HWinControl*> panels;
        for (int i = 0; i < 16; ++i) {
            static const char* const classes[] = {"Button", "EDIT", "ComboBox", "SysTreeView32", "Canvas"};
            const int count = static_cast<int>(windows.size());
            const int parent = pick(0, 3) ? count - 1 : pick(0, count - 1);
            const HWnd window = Add(windows[static_cast<std::size_t>(parent)], classes[pick(0, 4)]);
            windows.push_back(window);
            if (pick(0, 12) == 0) Desktop.Desktop().SetWindowVisible(window, false);
            if (pick(0, 3)) continue;
            // Some share a control, some have a parent, some hold others that are marked, too.
            HWinControl* above = panels.empty() || pick(0, 1) ? nullptr : panels[0];
            HControl& panel = !panels.empty() && pick(0, 3) == 0 ? *panels.back() : AddPanel(form, above);
            panel.SetVisible(pick(0, 5) > 0);
            panels.push_back(&dynamic_cast<HWinControl&>(panel));
            Mark(window, panel);
        }
        TPlain plain;
        WalkPlain(top, plain);
        const auto list = MakeIntf<TCommonLocator>(parser);
        TVirtualWindow window(top);
        Engine.Registry->CreateFindAdapter(&window)->FindChildren(*list);
        ASSERT_EQ(NamesOf(*list), plain.Names) << seed;
        ASSERT_EQ(IdsOf(*list), plain.Ids) << seed;
        controls += panels.size();

        // The step down: what stands below each of those found, in their order.
        TPlain below;
        for (int i = 0; i < list->GetCount(); ++i) {
            TObject* object = list->GetItem(i)->GetObject();
            const bool native = Is<TBaseVirtualControl>(object);
            const std::size_t before = below.Names.size();
            if (native)
                WalkPlain(list->GetItem(i)->GetID(), below);
            else
                WalkToolkit(object, below);
            natives += native;
            repeats += native && below.Names.size() == before;
        }
        ASSERT_EQ(NamesOf(*list->FindChildrenOf()), below.Names) << seed;
        Desktop.Desktop().DestroyWindow(top);
    }
    // The generator must not wear out.
    EXPECT_GT(natives, 600u);
    EXPECT_GT(controls, 300u);
    EXPECT_GT(repeats, 300u);
}

// A window more must not double what a search costs.
TEST_F(TNativeWalkTest, ChainOfNestedWindows) {
    HWnd window = Add(0, "#32770", "top");
    for (int i = 0; i < 2000; ++i) window = Add(window, "Static");
    Add(window, "Button", "last");
    for (const char* locator : {"last", "top/last", "//last", "Static//last"})
        EXPECT_EQ(Locate(locator, false), "TVirtualButton ") << locator;
    EXPECT_EQ(Locate("Static/#2000", false), "TVirtualButton ");
}

TEST_F(TNativeWalkTest, WhatAFinderTells) {
    const HWnd top = Add(0, "#32770", "top"), titled = Add(top, "edit", "A b"), bare = Add(top, "EDIT");
    const HWnd hidden = Add(top, "Button", "h"), tree = Add(top, "systreeview32");
    Desktop.Desktop().SetWindowVisible(hidden, false);
    Desktop.Desktop().EnableWindow(bare, false);
    TVirtualWindow window(top);
    const auto facts = [&](HWnd handle) {
        for (int i = 0; i < window.GetChildCount(); ++i) {
            const TIntf<IFindAdapter> finder = Engine.Registry->CreateFindAdapter(window.GetChild(i));
            if (finder->GetID() != handle) continue;
            const TRect r = finder->GetBounds();
            std::string matches;
            for (const char* text : {"ab", "A B", "a", "A", "Edi", "edit", "Edit", "SysTree", "Button"})
                for (const bool part : {false, true})
                    if (finder->IsMatch({text, part})) matches += std::string(part ? " *" : " ") + text;
            return finder->GetClassName() + "|" + finder->GetCaption() + "|" + finder->GetContent() + "|" +
                   finder->GetPropValue("Name") + "|" + (finder->IsVisible() ? "seen" : "unseen") + "|" +
                   (finder->IsEnabled() ? "on" : "off") + "|" + std::to_string(r.Left) + "," +
                   std::to_string(r.Bottom) + matches;
        }
        return std::string("none");
    };
    EXPECT_EQ(facts(titled), "TVirtualEdit|A b||Ab|seen|on|2,42 ab A B *A *Edi edit Edit *Edit");
    EXPECT_EQ(facts(bare), "TVirtualEdit|Edit|||seen|off|2,42 *Edi edit Edit *Edit");
    EXPECT_EQ(facts(hidden), "TVirtualButton|h||h|unseen|on|2,42 Button *Button");
    EXPECT_EQ(facts(tree), "TVirtualTreeView|SysTreeView32|||seen|on|2,42 *SysTree");
    // What was there is still told of when it has gone.
    Desktop.Desktop().DestroyWindow(titled);
    EXPECT_EQ(facts(titled), "TVirtualEdit|Edit|||unseen|off|0,0 *Edi edit Edit *Edit");
    EXPECT_EQ(window.GetChildCount(), 4);
    EXPECT_THROW(window.GetChild(4), EAssertionFailed);
    EXPECT_THROW(window.GetChild(-1), EAssertionFailed);
    EXPECT_EQ(TVirtualWinControl(0).GetChildCount(), 0);

    // An object of the application's whose class has such a name is none of ours.
    const HWnd below = Add(top, "Thing");
    EXPECT_EQ(TVirtualWindow(top).GetChildCount(), 3);
    struct TVirtualThing : TVirtualClassOf<TVirtualWinControl, "TVirtualThing"> {
        using TVirtualClassOf::TVirtualClassOf;
    };
    EXPECT_THROW(VirtualCast<TVirtualThing>(&window), EAccessViolation);
    Engine.VirtualClasses->Register<TVirtualThing>();
    TVirtualWindow again(top);
    EXPECT_EQ(again.GetChildCount(), 4);
    EXPECT_EQ(VirtualCast<TVirtualThing>(again.GetChild(3)).Handle(), below);
    EXPECT_EQ(Failure([&] { Engine.VirtualClasses->Register<TVirtualThing>(); }),
              "EAssertionFailed: Assertion failure (Engine/Virtual/RUXVirtualControls.cpp");
    Engine.RequestStack.Clear();
    TVirtualWindow late(top);
    EXPECT_EQ(Failure([&] { late.GetChildCount(); }),
              "EAssertionFailed: Assertion failure (Engine/Core/RUXServerUtils.cpp");
}

}  // namespace rux::test
