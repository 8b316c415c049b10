// Finders and lists of finders, as the locator sees them.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "platform/Types.h"
#include "rtl/Intf.h"

namespace rux {

class ICommonLocator;
class TTextMatcher;
class TObject;

/// What the locator knows of one findable thing. User-interface thread; lives for one search.
class IFindAdapter : public IInterface {
 public:
    /// Two finders of equal number are one thing to the locator.
    virtual std::uint64_t GetID() = 0;
    virtual std::string GetCaption() = 0;
    /// On the screen; four times 2147483647 for a thing without a place.
    virtual TRect GetBounds() = 0;
    /// The class name that locators see. The text outlives the finder.
    virtual const std::string& GetClassName() = 0;
    /// Whether the text names the thing.
    virtual bool IsMatch(const TTextMatcher& text) = 0;
    /// Lists are joined by `|`.
    virtual std::string GetContent() = 0;
    virtual bool IsVisible() = 0;
    virtual bool IsEnabled() = 0;
    /// The thing that the adapter will drive; nil is possible.
    virtual TObject* GetObject() = 0;
    /// Adds what lies below; answers the list's count afterwards.
    virtual int FindChildren(ICommonLocator& list) = 0;
    virtual std::string GetPropValue(std::string_view name) = 0;
};

/// A list of finders on which the steps of a locator work. Every step answers a new list.
class ICommonLocator : public IInterface {
 public:
    /// The position step: for each entry the nearest thing in that direction among what `remainder` finds.
    virtual TIntf<ICommonLocator> FindNear(char direction, std::string_view remainder) = 0;
    virtual TIntf<ICommonLocator> FindChildrenOf() = 0;
    virtual TIntf<ICommonLocator> FilterByText(std::string_view text, bool partMatch) = 0;
    virtual TIntf<ICommonLocator> FilterByClass(std::string_view classText) = 0;
    /// Sorts this list into reading order and answers the chosen entry. Raises ERUX_NotFoundError beyond the
    /// list, EConvertError for a text that is no number, and fails the index assertion below 1.
    virtual TIntf<ICommonLocator> SelectIndex(std::string_view indexText) = 0;
    /// Place of the new entry; -1 for nil and for a thing that is there already.
    virtual int AddUnique(const TIntf<IFindAdapter>& item) = 0;
    /// True once for each thing: what was walked into this list before has nothing new to give.
    virtual bool EnterOnce(IFindAdapter& item) = 0;
    virtual int GetCount() = 0;
    /// Asserts that the index lies within the list.
    virtual TIntf<IFindAdapter> GetItem(int index) = 0;
};

}  // namespace rux
