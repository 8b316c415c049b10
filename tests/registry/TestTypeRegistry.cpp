#include "Engine/Registry/RUXTypeRegistry.h"

#include "RegistryTestSupport.h"
#include "rtl/CodePage.h"

namespace rux::test {

namespace {

/// Says who made it and for what.
class TNamedFinder final : public TInterfacedObject<IFindAdapter, int> {
 public:
    TNamedFinder(std::string_view name, TObject* instance) : FName(name), FInstance(instance) {}
    std::uint64_t GetID() override { return 0; }
    std::string GetCaption() override { return FName; }
    TRect GetBounds() override { return {}; }
    const std::string& GetClassName() override { return FName; }
    bool IsMatch(const TTextMatcher&) override { return false; }
    std::string GetContent() override { return {}; }
    bool IsVisible() override { return false; }
    bool IsEnabled() override { return false; }
    TObject* GetObject() override { return FInstance; }
    int FindChildren(ICommonLocator&) override { return 0; }
    std::string GetPropValue(std::string_view) override { return {}; }

 private:
    const std::string FName;
    TObject* const FInstance;
};

template <TClassNameLiteral Name>
TFinderEntry Finder(std::string_view controlClass, std::string_view second = {}) {
    return {Name.Text, controlClass, second, [](TObject* instance) {
                return TIntf<IFindAdapter>(MakeIntf<TNamedFinder>(Name.Text, instance));
            }};
}

TAdapterEntry Adapter(std::string_view name, std::string_view controlClass) {
    return {name, controlClass, nullptr, nullptr};
}

std::string NameOf(const TIntf<IFindAdapter>& finder) {
    return finder ? finder->GetClassName() : "-";
}

using TypeRegistry = TRegistryTest;
using EngineState = THostTest;

}  // namespace

TEST_F(EngineState, OneEngineStandsAtATime) {
    for (int i = 0; i < 2; ++i) {
        EXPECT_FALSE(EngineStands());
        EXPECT_THROW(Engine(), EAssertionFailed);
        const TEngineState state(Desktop.Platform());
        EXPECT_THROW(TEngineState{Desktop.Platform()}, EAssertionFailed);
        EXPECT_EQ(&Engine(), &state);
        EXPECT_EQ(&Platform(), &Desktop.Platform());
    }
    EXPECT_FALSE(EngineStands());
}

TEST_F(TypeRegistry, NearestAncestorByNameAndFirstOfTies) {
    TTypeRegistry& registry = *State.Registry;
    for (const TAdapterEntry& entry :
         {Adapter("Item", "TTBCustomItem"), Adapter("Edit", "TCustomEdit"), Adapter("TabSet", "TTabSet"),
          Adapter("Combo", "TTBXComboBoxItem"), Adapter("Late", "TTabSet"), Adapter("edit", "TMemo")})
        registry.RegisterAdapter(entry);
    EXPECT_EQ(registry.Adapters().size(), 5u);

    const TClass& inherited = Chain("TObject TControl TCustomEdit TEdit TAppEdit TAppNameEdit");
    EXPECT_EQ(ClassLevel(&inherited, "tcustomEDIT"), 3);
    EXPECT_EQ(ClassLevel(&inherited, "TAppNameEdit"), 0);
    EXPECT_EQ(ClassLevel(&inherited, "TMemo"), 2147483647);
    EXPECT_EQ(ClassDistance(&inherited, "TMemo", NoFinderMatch), -1);
    EXPECT_EQ(ClassLevel(nullptr, "TObject"), 2147483647);

    const std::pair<const char*, const char*> rows[] = {
        {"TObject TControl TCustomEdit TEdit TAppEdit TAppNameEdit", "Edit"},
        {"tCUSTOMedit", "Edit"},  // a class of that name, related to nothing
        {"TObject TTabSet TAppTabs", "TabSet"},
        {"TObject TTBCustomItem TTBXCustomItem TTBXComboBoxItem", "Combo"},
        {"TObject TTBCustomItem TTBXCustomItem TTBXComboBoxItem TAppCombo", "Combo"},
        {"TObject TTBCustomItem TTBXCustomItem", "Item"},
    };
    for (int round = 0; round < 2; ++round)
        for (const auto& [chain, expected] : rows) {
            const TAdapterEntry* found = registry.FindAdapterClass(&Chain(chain));
            ASSERT_NE(found, nullptr) << chain;
            EXPECT_EQ(found->Name, expected) << chain;
        }
    ASSERT_NE(registry.FindNamedAdapter("LATE"), nullptr);
    EXPECT_EQ(registry.FindNamedAdapter("LATE")->Name, "Late");
    EXPECT_EQ(registry.FindNamedAdapter("Edits"), nullptr);
    EXPECT_EQ(Log(), "");
}

TEST_F(TypeRegistry, EveryQuestionForAClassWithoutAdapterIsLogged) {
    TTypeRegistry& registry = *State.Registry;
    const TClass& stranger = Chain("TObject TStranger");
    const std::string line = "error - " + Ansi("找不到支持类TStranger的适配器!") + "\r\n";
    EXPECT_EQ(registry.FindAdapterClass(&stranger), nullptr);
    EXPECT_EQ(registry.FindAdapterClass(&stranger), nullptr);
    EXPECT_EQ(Log(), line + line);
    // What was remembered gives way to a unit that comes later.
    registry.RegisterAdapter(Adapter("Any", "TObject"));
    EXPECT_NE(registry.FindAdapterClass(&stranger), nullptr);
    EXPECT_EQ(Log(), line + line);
}

TEST_F(TypeRegistry, FindersByDistanceByNameAndByASecondRoot) {
    TTypeRegistry& registry = *State.Registry;
    registry.RegisterFindAdapter(Finder<"NoType">(""));
    registry.RegisterFindAdapter(Finder<"Control">("TControl"));
    registry.RegisterFindAdapter(Finder<"Item">("TTBCustomItem"));
    registry.RegisterFindAdapter(Finder<"MenuItem">("TTBCustomItem"));
    registry.RegisterFindAdapter(Finder<"Grid">("TRecordGrid", "TDBRecordGrid"));
    registry.RegisterFindAdapter(Finder<"ITEM">("TStrings"));
    EXPECT_EQ(registry.Finders().size(), 5u);

    const std::pair<const char*, const char*> rows[] = {
        {"TObject TControl TLabel", "Control"},
        {"TObject TTBCustomItem TTBXItem", "Item"},
        {"TObject TControl TRecordGrid", "Grid"},
        {"TObject TControl TDBRecordGrid TAppGrid", "Grid"},
        {"TObject TDBRecordGrid TControl TRecordGrid", "Grid"},
        {"TObject TStrings", "-"},
    };
    for (int round = 0; round < 2; ++round)
        for (const auto& [chain, expected] : rows) {
            TThing thing(Chain(chain));
            EXPECT_EQ(NameOf(registry.CreateFindAdapter(&thing)), expected) << chain;
        }
    TThing thing(Chain("TObject TStrings"));
    EXPECT_EQ(NameOf(registry.CreateNamedFindAdapter(&thing, "menuITEM")), "MenuItem");
    EXPECT_EQ(NameOf(registry.CreateNamedFindAdapter(&thing, "NoType")), "NoType");
    EXPECT_EQ(registry.CreateNamedFindAdapter(&thing, "item")->GetObject(), &thing);
    EXPECT_EQ(NameOf(registry.CreateNamedFindAdapter(&thing, "")), "-");
    EXPECT_EQ(NameOf(registry.CreateFindAdapter(nullptr)), "-");
    EXPECT_TRUE(IsClassByName(&thing, "tstrings"));
    EXPECT_FALSE(IsClassByName(&thing, "TControl"));
    EXPECT_FALSE(IsClassByName(nullptr, "TObject"));
    EXPECT_EQ(Log(), "");
}

}  // namespace rux::test
