// The locator language: reads a locator and evaluates it step by step.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <unordered_map>

#include "Engine/Core/RUXFindAdapter.h"

namespace rux {

class TObject;

/// Made for one locator, on the user-interface thread.
class TSolviLocatorParser {
 public:
    /// Asserts that there is a root and a finder for it.
    TSolviLocatorParser(TObject* root, bool partMatch);

    /// Flattens everything below the root into a list and evaluates the locator on it. The result may be
    /// empty. A failure of the evaluation is logged with the report of what was searched, and goes on
    /// unchanged.
    TIntf<ICommonLocator> Locate(std::string_view locator);
    /// What the search went over: one line for each entry of the starting list, its class name, ":" and its
    /// caption or, when that is blank, its content. Made when somebody asks: a search that succeeds needs
    /// none.
    std::string RootReport();

    /// A fresh search by a part of the locator that is being evaluated. A position step evaluates its
    /// remainder for itself; the remainders of one locator are each searched once.
    TIntf<ICommonLocator> Search(std::string_view remainder);

 private:
    TIntf<ICommonLocator> Flatten();
    TIntf<ICommonLocator> CopyOf(ICommonLocator& list);
    TIntf<ICommonLocator> Evaluate(TIntf<ICommonLocator> list, std::string_view rest);

    TIntf<IFindAdapter> FRoot;
    bool FPartMatch;
    TIntf<ICommonLocator> FStart;
    /// By the length of the remainder: all of them are ends of one text.
    std::unordered_map<std::size_t, TIntf<ICommonLocator>> FSearches;
};

}  // namespace rux
