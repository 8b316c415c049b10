// An application that attaches its toolkit: a few objects of no substance behind the exported table.
#pragma once

#include <map>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "platform/win32/toolkit/ToolkitTable.h"

namespace rux::fake {

constexpr RUXRef AppRef = 0x10, FormRef = 0x20, EditRef = 0x30, CheckRef = 0x40, ButtonRef = 0x50,
                 DateRef = 0x60, MenuRef = 0x70, RadioRef = 0x80, TreeRef = 0x90, NodeRef = 0xA0,
                 OtherRef = 0xB0;

// Name and parent of each class; its reference is its place.
// clang-format off
constexpr std::pair<const char*, RUXClass> Classes[] = {
    {"", 0}, {"TObject", 0}, {"TPersistent", 1}, {"TComponent", 2}, {"TControl", 3}, {"TWinControl", 4},
    {"TCustomForm", 5}, {"TCustomEdit", 5}, {"TCustomCheckBox", 5}, {"TRadioButton", 5}, {"TButton", 5},
    {"TDateTimePicker", 5}, {"TPopupMenu", 3}, {"TCustomTreeView", 5}, {"TRichTreeView", 13}, {"TTreeNode", 2},
    {"TRichTreeNode", 15}, {"TCustomListBox", 5}, {"TCheckListBox", 17}, {"TCustomCombo", 5}, {"TShellComboBox", 19},
    {"TCustomListView", 5}, {"TShellListView", 21}, {"TListItem", 2}, {"TMenuItem", 3}, {"TCustomTabControl", 5},
    {"TPageControl", 25}, {"TTBXPageControl", 26}, {"TTabSheet", 5}, {"TFlatTabSheet", 5}, {"TFlatPageControl", 5},
    {"TTabSet", 5}, {"TTBXImageTabSet", 5}, {"TStatusBar", 5}, {"TTBXStatusBar", 5}};
enum : RUXClass { fcForm = 6, fcEdit, fcCheck, fcRadio, fcButton, fcDate, fcMenu, fcRichTree = 14, fcRichNode = 16 };
// clang-format on

struct TValue {
    std::int64_t Ordinal = 0;
    double Real = 0;
    std::string Text = {};
};

struct TFakeObject {
    RUXClass Class = 0;
    std::uint32_t Life = 0;
    RUXRef Parent = 0;
    std::map<int, TValue> Values = {};
};

struct TFakeApplication {
    std::map<RUXRef, TFakeObject> Objects;
    RUXApplicationState State{};
    /// Verbs and settings as they came.
    std::vector<std::string> Log;
    /// Class and message of the error that the next Invoke fails with; an empty class tells none.
    std::pair<std::string, std::string> Failure;
    bool Fails = false;
    RUXTable Table{};
    /// What the export answers.
    const RUXTable* Exported = &Table;
};
inline std::unique_ptr<TFakeApplication> App;

inline TFakeObject* Find(RUXRef ref) {
    const auto found = App->Objects.find(ref);
    return found == App->Objects.end() ? nullptr : &found->second;
}

inline RUXStatus Tell(const RUXReply* reply, const std::string& text) {
    // In two pieces, as a unit with a small buffer would.
    const auto half = static_cast<std::uint32_t>(text.size() / 2);
    reply->Text(reply->Context, text.data(), half);
    reply->Text(reply->Context, text.data() + half, static_cast<std::uint32_t>(text.size()) - half);
    return RUX_OK;
}

inline void RUX_CALL Application(RUXApplicationState* state) {
    *state = App->State;
}

inline std::int32_t RUX_CALL Alive(RUXRef object, std::uint32_t* life, RUXClass* type) {
    const TFakeObject* found = Find(object);
    if (found) *life = found->Life, *type = found->Class;
    return found != nullptr;
}

inline RUXStatus RUX_CALL ClassInfo(RUXClass type, RUXClass* parent, const RUXReply* reply) {
    *parent = Classes[type].second;
    return Tell(reply, Classes[type].first);
}

/// What the families' relations and rows lead to is a node or the other one.
inline RUXStatus RUX_CALL Relation(RUXRef object, std::int32_t relation, RUXRef* result, const RUXReply*) {
    const TFakeObject* found = Find(object);
    if (!found) return *result = object == 0 ? FormRef : 0, object == 0 ? RUX_OK : RUX_GONE;
    if (relation >= RUX_ROOT_ITEM) *result = relation == RUX_SELECTED ? 0 : NodeRef;
    if (relation == RUX_POPUP_MENU) *result = object == EditRef ? MenuRef : 0;
    if (relation == RUX_PARENT) *result = found->Parent;
    if (relation == RUX_OWNER) *result = found->Parent ? found->Parent : AppRef;
    return RUX_OK;
}

inline std::vector<RUXRef> Row(RUXRef object, std::int32_t row) {
    if (row == RUX_FORMS) return {FormRef};
    if (row >= RUX_MENU_ITEMS) return {NodeRef, OtherRef};
    std::vector<RUXRef> children;
    for (const auto& [ref, child] : App->Objects)
        if (child.Parent == object) children.push_back(ref);
    return children;
}

inline RUXStatus RUX_CALL Count(RUXRef object, std::int32_t row, std::int32_t* count, const RUXReply*) {
    if (object != 0 && !Find(object)) return RUX_GONE;
    if (row == RUX_MDI_CHILDREN) return RUX_NONE;
    *count = static_cast<std::int32_t>(Row(object, row).size());
    return RUX_OK;
}

inline RUXStatus RUX_CALL Child(RUXRef object, std::int32_t row, std::int32_t index, RUXRef* child,
                                const RUXReply*) {
    const std::vector<RUXRef> all = Row(object, row);
    if (object != 0 && !Find(object)) return RUX_GONE;
    if (index < 0 || index >= static_cast<std::int32_t>(all.size())) return RUX_NONE;
    *child = all[static_cast<std::size_t>(index)];
    return RUX_OK;
}

inline RUXStatus RUX_CALL Bounds(RUXRef object, std::int32_t which, RUXBox* box, const RUXReply*) {
    const auto at = static_cast<std::int32_t>(object);
    *box = {at, which, at + 10, which + 10};
    return RUX_OK;
}

inline RUXStatus RUX_CALL Window(RUXRef object, std::uint32_t* handle, const RUXReply*) {
    *handle = object + 0x80000001u;
    return RUX_OK;
}

inline RUXStatus RUX_CALL GetValue(RUXRef object, std::int32_t what, RUXValue* value, const RUXReply* reply) {
    TFakeObject* found = Find(object);
    if (!found || !found->Values.contains(what)) return found ? RUX_NONE : RUX_GONE;
    const TValue& known = found->Values[what];
    value->Ordinal = known.Ordinal, value->Real = known.Real;
    return Tell(reply, known.Text);
}

inline RUXStatus RUX_CALL SetValue(RUXRef object, std::int32_t what, const RUXValue* value, const RUXReply*) {
    TFakeObject* found = Find(object);
    if (!found) return RUX_GONE;
    found->Values[what] = {value->Ordinal, value->Real};
    if (value->Kind == RUX_KIND_STRING) found->Values[what].Text.assign(value->Text, value->TextLength);
    return RUX_OK;
}

/// Two entries in each row, told by row and index; flags hold for the second.
inline RUXStatus RUX_CALL GetEntry(RUXRef, std::int32_t row, std::int32_t index, RUXValue* value,
                                   const RUXReply* reply) {
    if (index < 0 || index > 1) return RUX_NONE;
    value->Ordinal = index;
    return Tell(reply, std::to_string(row) + "." + std::to_string(index));
}

inline RUXStatus RUX_CALL SetEntry(RUXRef object, std::int32_t row, std::int32_t index, const RUXValue* value,
                                   const RUXReply*) {
    App->Log.push_back(std::to_string(object) + ":" + std::to_string(row) + "." + std::to_string(index) +
                       "=" + std::to_string(value->Ordinal));
    return RUX_OK;
}

inline RUXStatus RUX_CALL EntryBounds(RUXRef, std::int32_t which, std::int32_t index, RUXBox* box,
                                      const RUXReply*) {
    *box = {which, index, which + 1, index + 1};
    return index < 2 ? RUX_OK : RUX_NONE;
}

/// Any object has "Kind<n>", of that kind, as long as its class is told to publish it.
inline RUXStatus RUX_CALL GetProperty(RUXRef object, const char* name, RUXValue* value,
                                      const RUXReply* reply) {
    if (std::string(name, 4) != "Kind") return RUX_NONE;
    *value = {std::atoi(name + 4), FormRef, -7, 1.5, nullptr, 0};
    return Find(object) ? Tell(reply, "told") : RUX_GONE;
}

inline RUXStatus RUX_CALL Invoke(RUXRef object, std::int32_t verb, const RUXReply* reply) {
    App->Log.push_back(std::to_string(object) + ":" + std::to_string(verb));
    if (!App->Fails) return RUX_OK;
    const auto& [name, message] = App->Failure;
    if (!name.empty()) reply->Error(reply->Context, name.c_str(), message.c_str());
    return RUX_FAILED;
}

inline RUXStatus RUX_CALL ListProperties(RUXRef, const RUXReply* reply) {
    std::string names = "Kind99";
    for (int i = 0; i < RUX_KIND_COUNT; ++i) names += ",Kind" + std::to_string(i);
    return Tell(reply, names);
}

inline RUXStatus RUX_CALL ReportError(const char* className, const char* message) {
    App->Log.push_back(std::string(className) + "|" + message);
    return RUX_OK;
}

/// A new one, that lives on that thread; the export answers for it from now on.
inline TFakeApplication& NewApplication(std::uint32_t thread) {
    App = std::make_unique<TFakeApplication>();
    App->State = {AppRef, 0x1234, thread, 0};
    const TValue yes{1};
    // clang-format off
    App->Table = {sizeof(RUXTable), RUX_TABLE_VERSION, &Application, &Alive, &ClassInfo, &Relation, &Count,
                  &Child, &Bounds, &Window, &GetValue, &SetValue, &GetProperty, &Invoke, &ListProperties,
                  &ReportError, nullptr, nullptr, nullptr, &GetEntry, &SetEntry, &EntryBounds};
    App->Objects = {
        {FormRef, {fcForm, 1, 0, {{RUX_FORM_STYLE, {2}}, {RUX_MODAL, yes}, {RUX_ACTIVE, yes}}}},
        {EditRef, {fcEdit, 2, FormRef, {{RUX_NAME, {0, 0, "Edit1"}}, {RUX_TEXT, {0, 0, "\xD6\xD0 text"}},
                                        {RUX_READ_ONLY, yes}, {RUX_VISIBLE, yes}, {RUX_ENABLED, {}}}}},
        {CheckRef, {fcCheck, 3, FormRef, {{RUX_CHECKED, {}}, {RUX_HANDLE_ALLOCATED, yes}}}},
        {DateRef, {fcDate, 5, FormRef, {{RUX_DATE_TIME, {0, 39512.75}}}}}, {MenuRef, {fcMenu, 7, 0}},
        {TreeRef, {fcRichTree, 8}},
        {NodeRef, {fcRichNode, 9, 0, {{RUX_TEXT, {0, 0, "root"}}, {RUX_LEVEL, {2}}}}}, {OtherRef, {fcRichNode, 10}},
        {RadioRef, {fcRadio, 6, FormRef, {{RUX_CHECKED, yes}}}}, {ButtonRef, {fcButton, 4, FormRef}}};
    // clang-format on
    return *App;
}

}  // namespace rux::fake
