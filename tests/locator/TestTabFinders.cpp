// Pages and tabs in a search: which are entered, which are only named, which have no object of their own.
#include "Engine/Adapters/RUXInterface.h"
#include "Engine/Registry/RUXTypeRegistry.h"
#include "Engine/Request/RUXTestFramework.h"
#include "LocatorTestSupport.h"

namespace rux::test {

namespace {

class TTabFinderTest : public TLocatorTest {
 protected:
    /// Virtual tabs live as long as a request.
    TTabFinderTest() { Engine.RequestStack.Add(MakeIntf<TTestRequest>("")); }
    ~TTabFinderTest() override { Engine.RequestStack.Clear(); }

    TIntf<IFindAdapter> Only(std::string_view locator) {
        TSolviLocatorParser parser(&Kit().Application(), false);
        return parser.Locate(Ansi(locator))->GetItem(0);
    }
    std::string Place(std::string_view locator) {
        const TRect r = Only(locator)->GetBounds();
        return std::to_string(r.Left) + "," + std::to_string(r.Top) + "-" + std::to_string(r.Right) + "," +
               std::to_string(r.Bottom);
    }
    void Click(std::string_view locator) {
        TObject* object = Only(locator)->GetObject();
        const auto adapter = Engine.Registry->FindAdapterClass(&object->ClassType())->Make(object);
        dynamic_cast<IButton&>(*adapter).Click();
    }
};

}  // namespace

TEST_F(TTabFinderTest, PagesAreNamedAndOneIsEntered) {
    HCustomForm& form =
        Load(R"(object F: TForm Left = 100 Top = 50 Width = 600 Height = 400 BorderStyle = bsNone
  object Stray: TTabSheet Left = 300 Visible = True Width = 9 Height = 9
    object b5: TButton Caption = 'stray' Width = 9 Height = 9 end end
  object Flats: TFlatPageControl Top = 300 Width = 90 Height = 90
    object F1: TFlatTabSheet Caption = 'eins' end object F2: TFlatTabSheet Caption = 'zwei' end end
  object Flat: TFlatPageControl Left = 100 Top = 300 Width = 90 Height = 90
    object F3: TFlatTabSheet Caption = 'drei' object b4: TButton Caption = 'sole' Width = 9 Height = 9 end
    end end
  object Tbx: TTBXPageControl Top = 200 Width = 90 Height = 90 ShowTabs = 0
    object T1: TTabSheet Caption = 'uno' end object T2: TTabSheet Caption = 'due' end end
  object Bare: TPageControl Top = 100 Width = 90 Height = 90 ActivePage = B2
    object B1: TTabSheet Caption = 'un' TabVisible = False end
    object B2: TTabSheet Caption = 'deux' TabVisible = False
      object b3: TButton Caption = 'bare' Width = 9 Height = 9 end end end
  object Pages: TPageControl Left = 10 Top = 10 Width = 200 Height = 80
    object P1: TTabSheet Caption = 'first' object b1: TButton Caption = 'in' Width = 9 Height = 9 end end
    object P2: TTabSheet Caption = 'other' object b2: TButton Caption = 'out' Width = 9 Height = 9 end end
    object P3: TTabSheet Caption = 'gone' TabVisible = False end
    object P4: TTabSheet Caption = 'last' end end end)");
    // The one page of a flat control is activated by the search.
    EXPECT_EQ(Locate(""), "F Pages P1 b1 P2 P4 Bare B2 b3 Tbx T1 Flat F3 b4 Flats Stray ");
    const std::string warning = "warn - TFlatPageControl: 没用默认的激活页面.\r\n";
    EXPECT_EQ(Log(), warning + warning);
    const struct {
        const char *Locator, *Names;
    } rows[] = {
        {"in", "b1 "},
        {"out", ""},
        {"other", "P2 "},
        {"gone", ""},
        {"last", "P4 "},
        {"first", "Pages P1 "},
        {"sole", "b4 "},
        {"?TTabSheet", "P2 P4 Stray "},
        {"first|other", "Pages "},
        {"other/out", ""},
        {"due", ""},
        {"deux", "B2 "},
        {"un|deux", "Bare "},
        {"drei", "Flat F3 "},
    };
    for (const auto& row : rows) EXPECT_EQ(Locate(row.Locator, false), row.Names) << row.Locator;
    EXPECT_EQ(Place("last"), "186,62-218,82");
    // A page that is not shown adds nothing, and says so whatever the list holds.
    TSolviLocatorParser parser(&Kit().Application(), false);
    const TIntf<ICommonLocator> list = parser.Locate("other");
    EXPECT_EQ(list->GetItem(0)->FindChildren(*list), 0);
    form.FindComponent("Flats")->SetProp(InternName("ActivePage"), HObjectValue(form.FindComponent("F2")));
    form.FindComponent("Tbx")->SetProp(InternName("ShowTabs"), HIntegerValue(1));
    EXPECT_EQ(Locate(""), "F Pages P1 b1 P2 P4 Bare B2 b3 Tbx T1 T2 Flat F3 b4 Flats F2 F1 Stray ");
    EXPECT_EQ(Place("?TFlatTabSheet"), "102,352-136,372");
}

TEST_F(TTabFinderTest, TabsWithoutObjects) {
    HCustomForm& form =
        Load(R"(object F: TForm Left = 100 Top = 50 Width = 600 Height = 400 BorderStyle = bsNone
  object Image: TTBXImageTabSet Top = 200 Width = 90 Height = 20 TabIndex = 0 OnChange = X
    TabItems = <item Caption = 'i 1' end item Caption = 'i 2' end> end
  object Set1: TTabSet Left = 10 Top = 100 Width = 90 Height = 20 TabIndex = 1 OnChange = X OnClick = X
    Tabs.Strings = ('s1' 's2' 's3') end
  object Book: TTabbedNotebook Left = 300 Width = 90 Height = 90
    object N1: TTabPage Caption = 'n1' end object N2: TTabPage Caption = 'n2' end end
  object Strip: TTabControl Left = 10 Top = 10 Width = 200 Height = 80 TabIndex = 1 OnChanging = X OnChange = X
    Tabs.Strings = ('a b' 'c' 'd') object e: TButton Caption = 'below' Width = 9 Height = 9 end end end)");
    const char *tab = "TVirtualTabControlTab ", *image = "TTBXImageVirtualTab ", *set = "TVirtualTab ";
    EXPECT_EQ(Locate(""), "F Strip e " + std::string(tab) + tab + "Book N1 " + tab + "Set1 " + set + set +
                              "Image " + image);
    const struct {
        const char* Locator;
        std::string Names;
    } rows[] = {
        {"c", ""},  // the selected one has no object
        {"d", tab},
        {"\"ab\"|c/?TVirtualTabControlTab#2", tab},
        {"\"ab\"|c", "Strip "},  // as its list is written
        {"ab|c", ""},
        {"?TVirtualTab", std::string(set) + set},
        {"s1|s2", "Set1 "},
        {"i1|i2", "Image "},
        {"below", "e "},
    };
    for (const auto& row : rows) EXPECT_EQ(Locate(row.Locator, false), row.Names) << row.Locator;
    // In the control's own coordinates, and told apart by the control's number.
    EXPECT_EQ(Place("d"), "52,2-72,22");
    EXPECT_EQ(Only("d")->GetID(), form.FindComponent("Strip")->RefNumber() + 6);
    EXPECT_FALSE(Only("d")->IsVisible());
    std::string journal;
    Desktop.Desktop().Journal().SetSink(
        HAllEntries, [&](HEntry, std::string_view line) { journal += std::string(line) + "; "; });
    for (const char* locator : {"d", "s3", "i2", "n2"}) Click(locator);
    Desktop.Desktop().Journal().SetSink(0, nullptr);
    EXPECT_EQ(journal,
              "event F.Strip OnChanging X; event F.Strip OnChange X; event F.Set1 OnChange X; "
              "event F.Set1 OnClick X; event F.Image OnChange X; ");
    EXPECT_EQ(Locate("?TTabPage"), "N2 ");
    EXPECT_EQ(Locate("c", false), tab);
}

}  // namespace rux::test
