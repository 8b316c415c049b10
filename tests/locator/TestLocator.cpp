// The locator language over live forms.
#include <random>

#include "Engine/Core/RUXUtils.h"
#include "Engine/Locator/RUXCommonLocator.h"
#include "Engine/Locator/RUXFormFindAdapters.h"
#include "LocatorTestSupport.h"

namespace rux::test {

namespace {

constexpr std::string_view FormText =
    R"(object Main: TForm Left = 0 Top = 0 ClientWidth = 600 ClientHeight = 400
  Caption = '主窗口' BorderStyle = bsNone
  object lblName: TLabel Left = 10 Top = 10 Width = 50 Height = 13 Caption = '姓名' end
  object lblWide: TLabel Left = 10 Top = 40 Width = 50 Height = 13 Caption = 'O K' end
  object edtName: TEdit Left = 80 Top = 10 Width = 100 Height = 20 Text = '张三' end
  object edtFar: TEdit Left = 300 Top = 12 Width = 100 Height = 20 Text = '李四' end
  object edtBelow: TEdit Left = 80 Top = 40 Width = 100 Height = 20 Hint = '第二行' end
  object Panel1: TPanel Left = 0 Top = 100 Width = 300 Height = 200 Caption = ' '
    object btnOk: TButton Left = 10 Top = 10 Width = 75 Height = 25 Caption = '确定' end
    object Inner: TPanel Left = 100 Top = 0 Width = 200 Height = 200
      object btnDeep: TButton Left = 10 Top = 10 Width = 75 Height = 25 Caption = '确定' end
    end
  end
  object Hidden: TPanel Left = 0 Top = 300 Width = 300 Height = 50 Visible = False
    object btnUnseen: TButton Caption = '看不见' end
  end
  object under: TButton Left = 400 Top = 200 Width = 50 Height = 20 Caption = '下面' end
  object over: TButton Left = 390 Top = 190 Width = 90 Height = 60 Caption = '上面' end
  object gone: TButton Left = -75 Top = 350 Width = 75 Height = 20 Caption = '出去' end
end)";

}  // namespace

TEST_F(TLocatorTest, Language) {
    Load(FormText);
    const struct {
        const char *Locator, *Part, *Exact;
    } rows[] = {
        // Upper controls come before lower ones, each followed by what it holds. A control behind another one
        // is
        // not there, nor one left of the edge, nor what is on an invisible one.
        {"", "Main over Panel1 Inner btnDeep btnOk edtBelow edtFar edtName lblWide lblName ", nullptr},
        {"姓名>?TEdit", "edtName ", "edtName "},
        {"?TEdit#2", "edtFar ", "edtFar "},
        {"?TEdit#$", "edtBelow ", "edtBelow "},
        {"?Edit", "edtBelow edtFar edtName ", "edtBelow edtFar edtName "},
        {"?tedit", "edtBelow edtFar edtName ", "edtBelow edtFar edtName "},
        {"确定", "btnDeep btnOk ", "btnDeep btnOk "},
        {"Panel1/确定", "btnDeep btnOk ", "btnDeep btnOk "},  // a caption of blanks is none: the name counts
        {"Inner/?TButton", "btnDeep ", "btnDeep "},
        {"Panel1/", "Inner btnDeep btnOk ", "Inner btnDeep btnOk "},
        {"ok", "", "lblWide "},  // a part minds case, the whole does not; blanks never count
        {"OK", "lblWide ", "lblWide "},
        {"第二行", "edtBelow ", "edtBelow "},  // the hint of an edit without text
        {"edtName", "", ""},                   // a caption or text hides the name
        {"张三_?TEdit", "edtBelow ", "edtBelow "},
        {"李四<?TEdit", "edtName ", "edtName "},
        {"主窗口/?TLabel", "lblWide lblName ", "lblWide lblName "},
        {"?TControl", "", ""},  // a class word without a group is a name, not an ancestor
        {"看不见", "", ""},
        {"确定?", "", ""},  // an empty class text matches empty class names only
        {"确定/#1", "ERUX_NotFoundError: 一共只有0个符合条件的控件，不能找到第1个!", nullptr},
        {"?TEdit#4", "ERUX_NotFoundError: 一共只有3个符合条件的控件，不能找到第4个!", nullptr},
        {"?TEdit#$1", "edtName ", "edtName "},  // hexadecimal, as numbers are read
        {"?TEdit#x", "EConvertError: 'x' is not a valid integer value", nullptr},
        {"?TEdit#0", "EAssertionFailed", "EAssertionFailed"},
        {"?TMemo#$", "EAssertionFailed", "EAssertionFailed"},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(Locate(row.Locator), Ansi(row.Part)) << row.Locator;
        if (!row.Exact) continue;
        EXPECT_EQ(Locate(row.Locator, false), Ansi(row.Exact)) << row.Locator;
    }
}

TEST_F(TLocatorTest, WhatASearchSees) {
    HCustomForm& main = Load(FormText);
    main.HControl::SetText("");
    EXPECT_EQ(Locate("Main"), "Main ");  // without a title the name is the form's content
    EXPECT_EQ(Locate("main", false), "Main ");

    HCustomForm& second = Load(
        "object Second: TForm Caption = 'S' object b: TButton Caption = '确定' Width = 9 Height = 9 end end");
    EXPECT_EQ(Locate("确定"), "b btnDeep btnOk ");  // the top-most form first
    Kit().Desktop().EnableWindow(main.Handle(), false);
    EXPECT_EQ(Locate("确定"), "b ");  // as under a modal form
    Kit().Desktop().EnableWindow(second.Handle(), false);
    EXPECT_EQ(Locate(""), "");  // the fall-back is disabled, too
    Kit().Desktop().EnableWindow(main.Handle(), true);

    // A panel that fills its parent hides what lies below it, unless it is the lowest of all.
    auto& inner = dynamic_cast<HControl&>(*main.FindComponent("Inner"));
    inner.SetBounds({0, 0, 300, 200});
    EXPECT_EQ(Locate("确定"), "btnDeep ");
    dynamic_cast<HWinControl&>(*main.FindComponent("btnOk")).BringToFront();
    EXPECT_EQ(Locate("确定"), "btnOk btnDeep ");

    second.Free();
    main.Free();
    Load("object Frame: TForm FormStyle = fsMDIForm end");
    Kit().App().SetMainForm(Kit().Forms().front());
    Load(
        "object One: TForm FormStyle = fsMDIChild Caption = '1' object b1: TButton Caption = 'x' Width = 9 "
        "Height = 9 end end");
    Load(
        "object Two: TForm FormStyle = fsMDIChild Caption = '2' object b2: TButton Caption = 'x' Width = 9 "
        "Height = 9 end end");
    EXPECT_EQ(Locate(""), "Frame Two b2 One ");  // the inactive child itself, and nothing on it
}

TEST_F(TLocatorTest, FailuresAreLoggedWithWhatWasSearched) {
    Load(
        "object F: TForm Caption = '窗' object e: TEdit Width = 9 Height = 9 end object p: TPanel Hint = 'h' "
        "Left = 20 Width = 9 Height = 9 end end");
    EXPECT_EQ(Locate("#2#x").substr(0, 13), "EConvertError");
    EXPECT_EQ(Locate("/////////////////////////////////>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>>").substr(0, 13),
              "ERUXException");
    const std::string line = "Locate Error:\r\nTForm:窗\r\nTPanel:\r\nTEdit:\r\n";
    const std::string stamp = "error - 2008-3-5 9:00:00: ";
    EXPECT_EQ(Log(), stamp + line + stamp + line);
}

TEST_F(TLocatorTest, PropertiesByName) {
    HCustomForm& form = Load(R"(object F: TForm Tag = -3 BorderStyle = bsDialog Font.Name = 'Tahoma'
        object e: TEdit ReadOnly = True Anchors = [akTop, akLeft] end object t: TMyOwn Value = 1.5 Mark = $1F end end)");
    const auto prop = [&](std::string_view component, std::string_view name) {
        TControlFindAdapter finder(component == "F" ? &form : form.FindComponent(component));
        try {
            return finder.GetPropValue(name);
        } catch (const EAssertionFailed& error) {
            return error.Message().substr(0, error.Message().find(" ("));
        }
    };
    EXPECT_EQ(prop("F", "tag"), "-3");
    EXPECT_EQ(prop("F", "BorderStyle"), "bsDialog");
    EXPECT_EQ(prop("F", "Font. Name "), "Tahoma");
    EXPECT_EQ(prop("F", "Font"), "TForm.Font");  // an object is no text
    EXPECT_EQ(prop("F", "NoSuchThing"), "");
    EXPECT_EQ(prop("e", "ReadOnly"), "True");
    EXPECT_EQ(prop("e", "Anchors"), "akLeft,akTop");
    EXPECT_EQ(prop("t", "Value"), "1.5");
    EXPECT_EQ(prop("t", "Mark"), "31");
}

TEST_F(TLocatorTest, ListsHoldEachThingOnce) {
    HCustomForm& form = Load("object F: TForm object a: TLabel end object b: TLabel end end");
    TSolviLocatorParser parser(&Kit().Application(), true);
    const auto list = MakeIntf<TCommonLocator>(parser);
    const auto finder = [&](std::string_view name) -> TIntf<IFindAdapter> {
        return MakeIntf<TControlFindAdapter>(form.FindComponent(name));
    };
    EXPECT_EQ(list->AddUnique(nullptr), -1);
    EXPECT_EQ(list->AddUnique(finder("a")), 0);
    EXPECT_EQ(list->AddUnique(finder("b")), 1);
    EXPECT_EQ(list->AddUnique(finder("a")), -1);  // another finder over the same thing
    EXPECT_THROW(list->GetItem(2), EAssertionFailed);
    EXPECT_THROW(TSolviLocatorParser(nullptr, true), EAssertionFailed);
}

// Shapes that hold: many siblings, a bushy tree, a chain that no stack could follow. A quadratic step would
// not come back within the test's time.
TEST_F(TLocatorTest, LargeShapes) {
    const auto build = [&](int count, const std::function<int(int)>& parentOf) {
        auto form = Kit().MakeAs<HCustomForm>("TForm");
        form->SetBounds({0, 0, 1000, 1000});
        auto& kept = static_cast<HCustomForm&>(Kit().App().Own(std::move(form)));
        kept.SetName("F");
        std::vector<HWinControl*> made{&kept};
        for (int i = 1; i <= count; ++i) {
            auto panel = Kit().MakeAs<HWinControl>("TPanel");
            panel->SetName("c" + std::to_string(i));
            panel->SetBounds({i % 300 * 3 + 1, i / 300 * 3 + 1, i % 300 * 3 + 3, i / 300 * 3 + 3});
            auto& child = static_cast<HWinControl&>(kept.Own(std::move(panel)));
            child.SetParent(made[static_cast<std::size_t>(parentOf(i))]);
            made.push_back(&child);
        }
        kept.Show();
        return &kept;
    };
    const struct {
        int Count;
        std::function<int(int)> ParentOf;
        const char *Locator, *Found;
    } rows[] = {
        {100000, [](int) { return 0; }, "c77777", "c77777 "},
        {100000, [](int) { return 0; }, "?TPanel#$/", ""},
        {30000, [](int) { return 0; }, "?TPanel>c29999", "c29999 "},
        {20000, [](int i) { return (i - 1) / 10; }, "c19999", "c19999 "},
        {20000, [](int i) { return (i - 1) / 10; }, "//c19999", "c19999 "},
        {20000, [](int i) { return i - 1; }, "c20000", "c20000 "},
        {20000, [](int i) { return i - 1; }, "///c20000", "c20000 "},
    };
    for (const auto& row : rows) {
        HCustomForm* form = build(row.Count, row.ParentOf);
        EXPECT_EQ(Locate(row.Locator, false), row.Found) << row.Count << " " << row.Locator;
        form->Free();
        Desktop.Desktop().EmptyGraveyard();
    }
}

}  // namespace rux::test
