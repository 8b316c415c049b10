#include "windows/toolkit/FakeApplication.h"

#include <windows.h>

#include <memory>

namespace {

std::unique_ptr<TFakeApplication> App;

RUXValue Number(std::int64_t ordinal, double real = 0) {
    RUXValue value{};
    value.Ordinal = ordinal;
    value.Real = real;
    return value;
}

const char* const ClassNames[] = {"",
                                  "TObject",
                                  "TPersistent",
                                  "TComponent",
                                  "TControl",
                                  "TWinControl",
                                  "TCustomForm",
                                  "TCustomEdit",
                                  "TCustomCheckBox",
                                  "TRadioButton",
                                  "TButton",
                                  "TDateTimePicker",
                                  "TPopupMenu"};

/// The first ones stand in a row, the controls at its end.
int ParentOf(int type) {
    if (type == fcMenu) return fcComponent;
    return type > fcWinControl ? fcWinControl : type - 1;
}

TFakeObject* Find(RUXRef ref) {
    const auto found = App->Objects.find(ref);
    return found == App->Objects.end() ? nullptr : &found->second;
}

RUXStatus Tell(const RUXReply* reply, const std::string& text) {
    // In two pieces, as a unit with a small buffer would.
    const auto half = static_cast<std::uint32_t>(text.size() / 2);
    reply->Text(reply->Context, text.data(), half);
    reply->Text(reply->Context, text.data() + half, static_cast<std::uint32_t>(text.size()) - half);
    return RUX_OK;
}

void RUX_CALL Application(RUXApplicationState* state) {
    *state = App->State;
}

std::int32_t RUX_CALL Alive(RUXRef object, std::uint32_t* life, RUXClass* type) {
    const TFakeObject* found = Find(object);
    if (!found) return 0;
    *life = found->Life;
    *type = found->Class;
    return 1;
}

RUXStatus RUX_CALL ClassInfo(RUXClass type, RUXClass* parent, const RUXReply* reply) {
    *parent = static_cast<RUXClass>(ParentOf(static_cast<int>(type)));
    return Tell(reply, ClassNames[type]);
}

RUXStatus RUX_CALL Relation(RUXRef object, std::int32_t relation, RUXRef* result, const RUXReply*) {
    if (object == 0) {
        *result = relation == RUX_MAIN_FORM || relation == RUX_ACTIVE_FORM ? FormRef : 0;
        return RUX_OK;
    }
    const TFakeObject* found = Find(object);
    if (!found) return RUX_GONE;
    if (relation == RUX_POPUP_MENU) *result = object == EditRef ? MenuRef : 0;
    if (relation == RUX_PARENT) *result = found->Parent;
    if (relation == RUX_OWNER) *result = found->Parent ? found->Parent : AppRef;
    return RUX_OK;
}

RUXStatus RUX_CALL Count(RUXRef object, std::int32_t row, std::int32_t* count, const RUXReply*) {
    const TFakeObject* found = Find(object);
    if (object != 0 && !found) return RUX_GONE;
    if (row == RUX_MDI_CHILDREN) return RUX_NONE;
    *count = row == RUX_FORMS ? 1 : static_cast<std::int32_t>(found->Children.size());
    return RUX_OK;
}

RUXStatus RUX_CALL Child(RUXRef object, std::int32_t row, std::int32_t index, RUXRef* child,
                         const RUXReply* reply) {
    std::int32_t count = 0;
    const RUXStatus status = Count(object, row, &count, reply);
    if (status != RUX_OK) return status;
    if (index < 0 || index >= count) return RUX_NONE;
    *child = row == RUX_FORMS ? FormRef : Find(object)->Children[static_cast<std::size_t>(index)];
    return RUX_OK;
}

RUXStatus RUX_CALL Bounds(RUXRef object, std::int32_t which, RUXBox* box, const RUXReply*) {
    const auto at = static_cast<std::int32_t>(object);
    *box = {at, which, at + 10, which + 10};
    return RUX_OK;
}

RUXStatus RUX_CALL Window(RUXRef object, std::uint32_t* handle, const RUXReply*) {
    *handle = object + 0x80000001u;
    return RUX_OK;
}

RUXStatus RUX_CALL GetValue(RUXRef object, std::int32_t what, RUXValue* value, const RUXReply* reply) {
    const TFakeObject* found = Find(object);
    if (!found) return RUX_GONE;
    if (const auto text = found->Texts.find(what); text != found->Texts.end())
        return Tell(reply, text->second);
    const auto number = found->Values.find(what);
    if (number == found->Values.end()) return RUX_NONE;
    *value = number->second;
    return RUX_OK;
}

RUXStatus RUX_CALL SetValue(RUXRef object, std::int32_t what, const RUXValue* value, const RUXReply*) {
    TFakeObject* found = Find(object);
    if (!found) return RUX_GONE;
    if (value->Kind == RUX_KIND_STRING)
        found->Texts[what].assign(value->Text, value->TextLength);
    else
        found->Values[what] = *value;
    return RUX_OK;
}

/// Any object has "Kind<n>", of that kind, as long as its class is told to publish it.
RUXStatus RUX_CALL GetProperty(RUXRef object, const char* name, RUXValue* value, const RUXReply* reply) {
    if (std::string(name, 4) != "Kind") return RUX_NONE;
    *value = Number(-7, 1.5);
    value->Kind = std::atoi(name + 4);
    value->Object = FormRef;
    return Find(object) ? Tell(reply, "told") : RUX_GONE;
}

RUXStatus RUX_CALL Invoke(RUXRef object, std::int32_t verb, const RUXReply* reply) {
    App->Log.push_back(std::to_string(object) + ":" + std::to_string(verb));
    if (!App->Fails) return RUX_OK;
    const auto& [name, message] = App->Failure;
    if (!name.empty()) reply->Error(reply->Context, name.c_str(), message.c_str());
    return RUX_FAILED;
}

RUXStatus RUX_CALL ListProperties(RUXRef, const RUXReply* reply) {
    std::string names = "Kind99";
    for (int i = 0; i < RUX_KIND_COUNT; ++i) names += ",Kind" + std::to_string(i);
    return Tell(reply, names);
}

RUXStatus RUX_CALL ReportError(const char* className, const char* message) {
    App->Log.push_back(std::string(className) + "|" + message);
    return RUX_OK;
}

}  // namespace

extern "C" __declspec(dllexport) const RUXTable* RUX_CALL RUXToolkitTable() {
    return App ? App->Exported : nullptr;
}

TFakeApplication& NewApplication() {
    App = std::make_unique<TFakeApplication>();
    App->State = {AppRef, 0x1234, ::GetCurrentThreadId(), 0};
    App->Table = {
        sizeof(RUXTable), RUX_TABLE_VERSION, &Application, &Alive,    &ClassInfo, &Relation,    &Count,
        &Child,           &Bounds,           &Window,      &GetValue, &SetValue,  &GetProperty, &Invoke,
        &ListProperties,  &ReportError,      nullptr,      nullptr,   nullptr};
    App->Exported = &App->Table;
    const auto add = [](RUXRef ref, TFakeClass type) -> TFakeObject& {
        TFakeObject& made = App->Objects[ref];
        made.Class = type;
        made.Life = ref;
        made.Parent = ref == FormRef || ref == MenuRef ? 0 : FormRef;
        if (made.Parent) App->Objects[FormRef].Children.push_back(ref);
        return made;
    };
    const auto yes = Number(1);
    add(FormRef, fcForm).Values = {{RUX_FORM_STYLE, Number(2)}, {RUX_MODAL, yes}, {RUX_ACTIVE, yes}};
    add(EditRef, fcEdit).Values = {{RUX_READ_ONLY, yes}, {RUX_VISIBLE, yes}, {RUX_ENABLED, Number(0)}};
    App->Objects[EditRef].Texts = {{RUX_NAME, "Edit1"}, {RUX_TEXT, "\xD6\xD0 text"}};
    add(CheckRef, fcCheck).Values = {{RUX_CHECKED, Number(0)}, {RUX_HANDLE_ALLOCATED, yes}};
    add(ButtonRef, fcButton);
    add(DateRef, fcDate).Values = {{RUX_DATE_TIME, Number(0, 39512.75)}};
    add(RadioRef, fcRadio).Values = {{RUX_CHECKED, yes}};
    add(MenuRef, fcMenu);
    return *App;
}
