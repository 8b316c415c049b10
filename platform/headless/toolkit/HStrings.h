// Lists of strings and collections that controls publish.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "platform/headless/toolkit/HObject.h"

namespace rux {

/// A list of lines. Changes are told to whoever shows them.
class HStrings : public HObject, public TStrings {
 public:
    using HObject::HObject;
    virtual std::vector<std::string> Lines() const { return FLines; }
    virtual void SetLines(std::vector<std::string> lines);

    // TStrings
    int Count() override { return static_cast<int>(FLines.size()); }
    std::string Get(int index) override;
    int IndexOf(const std::string& text) override;

    /// Every line with CR LF behind it.
    std::string Text() const;
    void SetText(std::string_view text);
    void SetOnChange(std::function<void()> handler) { FOnChange = std::move(handler); }

 private:
    std::vector<std::string> FLines;
    std::function<void()> FOnChange;
};

/// The lines of a multi-line text that somebody else keeps: there is one truth about it.
class HTextLines : public HStrings {
 public:
    using HStrings::HStrings;
    void Attach(std::function<std::string()> get, std::function<void(std::string)> set);
    std::vector<std::string> Lines() const override;
    void SetLines(std::vector<std::string> lines) override;
    int Count() override { return static_cast<int>(Lines().size()); }
    std::string Get(int index) override;
    int IndexOf(const std::string& text) override;

 private:
    std::function<std::string()> FGet;
    std::function<void(std::string)> FSet;
};

/// A part with properties of its own: a font, a constraint, an item of a collection.
class HPersistent : public HObject {
 public:
    using HObject::HObject;
};

class HCollection : public HObject {
 public:
    using HObject::HObject;
    HObject& Add(std::unique_ptr<HObject> item);
    const std::vector<HObject*>& Items() const { return FItems; }
    int Count() const { return static_cast<int>(FItems.size()); }
    /// The items stay alive as long as the collection: somebody may still hold one.
    void Clear() { FItems.clear(); }

 private:
    std::vector<HObject*> FItems;
};

}  // namespace rux
