// The toolkit's root: class references by name, live objects, published properties.
#pragma once

#include <bitset>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "rtl/Exceptions.h"
#include "rtl/Names.h"

namespace rux {

/// Names of toolkit classes whose operations the engine uses. The position is a bit in TClass; the list may
/// be extended at its end at will.
enum class TFacetId : std::uint8_t {
    Application,
    Component,
    Control,
    WinControl,
    CustomForm,
    CustomEdit,
    CustomCheckBox,
    RadioButton,
    DateTimePicker,
    BaseVirtualControl,
    MenuItem,
    PopupMenu,
    CustomListBox,
    CheckListBox,
    CustomCombo,
    ShellComboBox,
    CustomTreeView,
    TreeNode,
    RichTreeView,
    RichTreeNode,
    CustomListView,
    ListItem,
    ShellListView,
    CustomTabControl,
    PageControl,
    TabSheet,
    FlatPageControl,
    FlatTabSheet,
    TBXPageControl,
    TabSet,
    TBXImageTabSet,
    StatusBar,
    TBXStatusBar,
    Count,
};
inline constexpr std::size_t FacetCount = static_cast<std::size_t>(TFacetId::Count);
inline constexpr std::string_view FacetNames[FacetCount] = {
    "TApplication",    "TComponent",       "TControl",       "TWinControl",       "TCustomForm",
    "TCustomEdit",     "TCustomCheckBox",  "TRadioButton",   "TDateTimePicker",   "TBaseVirtualControl",
    "TMenuItem",       "TPopupMenu",       "TCustomListBox", "TCheckListBox",     "TCustomCombo",
    "TShellComboBox",  "TCustomTreeView",  "TTreeNode",      "TRichTreeView",     "TRichTreeNode",
    "TCustomListView", "TListItem",        "TShellListView", "TCustomTabControl", "TPageControl",
    "TTabSheet",       "TFlatPageControl", "TFlatTabSheet",  "TTBXPageControl",   "TTabSet",
    "TTBXImageTabSet", "TStatusBar",       "TTBXStatusBar",
};

/// A class of the live application: a name over a parent. The C++ type behind it is never asked.
class TClass {
 public:
    TClass(std::string name, const TClass* parent, std::uint32_t index, std::bitset<FacetCount> facets)
        : FName(std::move(name)), FParent(parent), FIndex(index), FFacets(facets) {}
    const std::string& Name() const { return FName; }
    /// nil for the root.
    const TClass* Parent() const { return FParent; }
    /// Dense from 0 within one toolkit: a place in side tables.
    std::uint32_t Index() const { return FIndex; }
    /// True when this class or an ancestor bears the facet's name.
    bool Is(TFacetId facet) const { return FFacets[static_cast<std::size_t>(facet)]; }
    const std::bitset<FacetCount>& Facets() const { return FFacets; }

 private:
    std::string FName;
    const TClass* FParent;
    std::uint32_t FIndex;
    std::bitset<FacetCount> FFacets;
};

/// The classes that are known by name, of the application and of the engine's own virtual controls.
class TClassTable {
 public:
    virtual ~TClassTable() = default;
    /// The class of that name (compared without case) over that parent, made on first use. Two classes of one
    /// name over different parents are two classes. User-interface thread.
    virtual const TClass& Define(std::string_view name, const TClass* parent) = 0;
    /// The first class defined under that name; nil if there is none.
    virtual const TClass* Find(std::string_view name) const = 0;
};

class TObject;

enum class TTypeKind : std::uint8_t {
    Unknown,
    Integer,
    Char,
    WChar,
    Enumeration,
    Float,
    String,
    WString,
    Set,
    Class,
    Method,
    Int64,
    Variant,
};

/// The value of one published property.
struct TPropValue {
    TTypeKind Kind = TTypeKind::Unknown;
    /// Integer, Char, WChar, Int64, ordinal of an Enumeration.
    std::int64_t Ordinal = 0;
    double Real = 0;
    /// String, WString and Variant as text; element name of an Enumeration; elements of a Set joined by
    /// commas, without brackets; name of a Method.
    std::string Text;
    /// Class: the object, or nil.
    TObject* Object = nullptr;
};

/// A live object. All its operations are for the user-interface thread.
class TObject {
 public:
    virtual ~TObject() = default;
    virtual const TClass& ClassType() const = 0;
    /// The object's operations of that class; nil when it has none, and for an object that has been freed.
    virtual void* Facet(TFacetId id) = 0;
    /// The number by which the platform tells its objects apart; never 0.
    virtual std::uint64_t RefNumber() const = 0;
    /// Reads a published property; False when there is none of that name. `value` is overwritten.
    virtual bool GetProp(TName name, TPropValue& value) = 0;
};

/// The class test by name; nil is of no class.
template <class T>
bool Is(const TObject* object) {
    return object && object->ClassType().Is(T::Id);
}

/// The one way from a live object to its operations. A nil object, a freed one, one of another class and one
/// that bears the name but has another shape raise EAccessViolation.
template <class T>
T& Cast(TObject* object) {
    void* facet = Is<T>(object) ? object->Facet(T::Id) : nullptr;
    if (!facet) RaiseNilAccess();
    return *static_cast<T*>(facet);
}

/// The lines of a control, as long as the control lives. Indexes outside raise EStringListError "List index
/// out of bounds (<index>)".
class TStrings {
 public:
    virtual int Count() = 0;
    virtual std::string Get(int index) = 0;
    /// The first line that equals the text by the locale's rules, case aside; -1 for none.
    virtual int IndexOf(const std::string& text) = 0;

 protected:
    ~TStrings() = default;
};

/// A component: an object with a name that a form file gives it.
class TComponent {
 public:
    static constexpr TFacetId Id = TFacetId::Component;
    virtual std::string Name() = 0;
    /// nil for none.
    virtual TObject* Owner() = 0;

 protected:
    ~TComponent() = default;
};

}  // namespace rux
