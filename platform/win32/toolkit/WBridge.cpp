#include "platform/win32/toolkit/WBridge.h"

#include <algorithm>

#include "platform/win32/Headers.h"
#include "platform/win32/toolkit/WBridgeObject.h"
#include "platform/win32/toolkit/WBridgeReply.h"
#include "rtl/Names.h"
#include "rtl/Numbers.h"
#include "rtl/Text.h"

namespace rux {

static_assert(RUX_KIND_COUNT == static_cast<int>(TTypeKind::Variant) + 1 &&
              RUX_KIND_CLASS == static_cast<int>(TTypeKind::Class) &&
              RUX_KIND_FLOAT == static_cast<int>(TTypeKind::Float));
static_assert(sizeof(RUXValue) == 32 && sizeof(RUXReply) == 12);

namespace {

/// Fewer proxies are not worth a look at each of them.
constexpr std::size_t FewProxies = 1024;

/// One call through the table. False for RUX_NONE.
template <class Function, class... Arguments>
bool Ask(Function function, Arguments... arguments) {
    WReply reply;
    return reply.Check(function(arguments..., reply.Sinks()));
}

/// The same, where nothing of the kind means that the object is of another shape.
template <class Function, class... Arguments>
void Demand(Function function, Arguments... arguments) {
    if (!Ask(function, arguments...)) RaiseNilAccess();
}

[[noreturn]] void RaiseNoEntry(int index) {
    throw EStringListError(Format("List index out of bounds (%d)", {index}));
}

RUXApplicationState StateOf(const RUXTable& table) {
    RUXApplicationState state{};
    table.Application(&state);
    return state;
}

}  // namespace

WBridge::WBridge(const RUXTable& table, TClassTable& classes, const TClass& applicationClass)
    : FTable(table),
      FClasses(classes),
      FApplication(std::make_unique<WBridgeApplication>(
          *this, WIdentity{StateOf(table).Object, 0, &applicationClass})),
      FForgetFrom(FewProxies) {}

WBridge::~WBridge() = default;

TObject& WBridge::Application() {
    return *FApplication;
}

RUXApplicationState WBridge::State() const {
    return StateOf(FTable);
}

bool WBridge::ReportError(const std::exception& error) {
    if (!FTable.ReportError || ::GetCurrentThreadId() != State().Thread) return false;
    if (dynamic_cast<const EAbort*>(&error)) return true;
    const auto* ours = dynamic_cast<const Exception*>(&error);
    const std::string name(ours ? ours->ClassName() : "Exception");
    return FTable.ReportError(name.c_str(), error.what()) == RUX_OK;
}

// ------------------------------------------------------------------------------------------ classes

const TClass& WBridge::ClassOf(RUXClass type, RUXRef object) {
    const auto known = FClassOf.find(type);
    if (known != FClassOf.end()) return *known->second;
    const TClass& made = DefineClass(type);
    InternProperties(object);
    FClassOf.emplace(type, &made);
    return made;
}

const TClass& WBridge::DefineClass(RUXClass type) {
    constexpr std::size_t maxDepth = 100;
    std::vector<std::string> chain;
    while (type != 0) {
        Assert(chain.size() < maxDepth, "A class among its own ancestors");
        WReply reply;
        RUXClass parent = 0;
        if (!reply.Check(FTable.ClassInfo(type, &parent, reply.Sinks()))) RaiseNilAccess();
        chain.push_back(std::move(reply.Text()));
        type = parent;
    }
    const TClass* made = nullptr;
    for (auto name = chain.rbegin(); name != chain.rend(); ++name) made = &FClasses.Define(*name, made);
    Assert(made != nullptr, "An object without a class");
    return *made;
}

/// A client's property is looked up among the known names only.
void WBridge::InternProperties(RUXRef object) {
    if (!FTable.ListProperties) return;
    WReply reply;
    if (!reply.Check(FTable.ListProperties(object, reply.Sinks()))) return;
    std::string_view rest = reply.Text();
    while (!rest.empty()) {
        const std::size_t comma = std::min(rest.find(','), rest.size());
        InternName(Trim(rest.substr(0, comma)));
        rest.remove_prefix(std::min(comma + 1, rest.size()));
    }
}

// ------------------------------------------------------------------------------------------ proxies

WIdentity WBridge::IdentityOf(RUXRef ref) {
    std::uint32_t life = 0;
    RUXClass type = 0;
    if (ref == 0 || !FTable.Alive(ref, &life, &type)) return {};
    return {ref, life, &ClassOf(type, ref)};
}

TObject* WBridge::ObjectOf(RUXRef ref) {
    if (ref == 0) return nullptr;
    if (ref == FApplication->Identity().Ref) return FApplication.get();
    const WIdentity identity = IdentityOf(ref);
    if (!identity.Class) return nullptr;
    auto& proxy = FProxies[ref];
    if (proxy && proxy->Identity() == identity) return proxy.get();
    auto made = std::make_unique<WBridgeObject>(*this, identity);
    if (proxy) FRetired.push_back(std::move(proxy));
    proxy = std::move(made);
    return proxy.get();
}

std::size_t WBridge::ForgetDead() {
    FRetired.clear();
    if (FProxies.size() < FForgetFrom) return FProxies.size();
    std::erase_if(FProxies, [](const auto& row) { return !row.second || !row.second->Lives(); });
    // Each look at all of them is paid for by as many that are new.
    FForgetFrom = std::max(FewProxies, FProxies.size() * 2);
    return FProxies.size();
}

// ------------------------------------------------------------------------------------------ calls

TObject* WBridge::Relation(RUXRef ref, std::int32_t relation) {
    RUXRef other = 0;
    return Ask(FTable.Relation, ref, relation, &other) ? ObjectOf(other) : nullptr;
}

int WBridge::Count(RUXRef ref, std::int32_t row) {
    std::int32_t count = 0;
    return Ask(FTable.Count, ref, row, &count) ? count : 0;
}

TObject* WBridge::Child(RUXRef ref, std::int32_t row, int index) {
    RUXRef child = 0;
    if (!Ask(FTable.Child, ref, row, static_cast<std::int32_t>(index), &child))
        throw EListError(Format("List index out of bounds (%d)", {index}));
    return ObjectOf(child);
}

TRect WBridge::Bounds(RUXRef ref, std::int32_t which) {
    RUXBox box{};
    Demand(FTable.Bounds, ref, which, &box);
    return {box.Left, box.Top, box.Right, box.Bottom};
}

HWnd WBridge::Window(RUXRef ref) {
    std::uint32_t handle = 0;
    Demand(FTable.Window, ref, &handle);
    return handle;
}

RUXValue WBridge::ValueOf(RUXRef ref, std::int32_t what) {
    RUXValue value{};
    Demand(FTable.GetValue, ref, what, &value);
    return value;
}

std::string WBridge::TextOf(RUXRef ref, std::int32_t what) {
    RUXValue value{};
    WReply reply;
    if (!reply.Check(FTable.GetValue(ref, what, &value, reply.Sinks()))) RaiseNilAccess();
    return std::move(reply.Text());
}

void WBridge::SetValue(RUXRef ref, std::int32_t what, const RUXValue& value) {
    Demand(FTable.SetValue, ref, what, &value);
}

bool WBridge::GetProperty(RUXRef ref, TName name, TPropValue& value) {
    RUXValue read{};
    WReply reply;
    if (!reply.Check(FTable.GetProperty(ref, NameText(name).c_str(), &read, reply.Sinks()))) return false;
    const bool known = read.Kind >= 0 && read.Kind < RUX_KIND_COUNT;
    value.Kind = known ? static_cast<TTypeKind>(read.Kind) : TTypeKind::Unknown;
    value.Ordinal = read.Ordinal;
    value.Real = read.Real;
    value.Text = std::move(reply.Text());
    value.Object = value.Kind == TTypeKind::Class ? ObjectOf(read.Object) : nullptr;
    return true;
}

void WBridge::Invoke(RUXRef ref, std::int32_t verb) {
    Demand(FTable.Invoke, ref, verb);
}

RUXValue WBridge::EntryOf(RUXRef ref, std::int32_t row, int index) {
    RUXValue value{};
    if (!Ask(FTable.GetEntry, ref, row, static_cast<std::int32_t>(index), &value)) RaiseNoEntry(index);
    return value;
}

std::string WBridge::EntryText(RUXRef ref, std::int32_t row, int index) {
    RUXValue value{};
    WReply reply;
    if (!reply.Check(FTable.GetEntry(ref, row, index, &value, reply.Sinks()))) RaiseNoEntry(index);
    return std::move(reply.Text());
}

void WBridge::SetEntry(RUXRef ref, std::int32_t row, int index, const RUXValue& value) {
    if (!Ask(FTable.SetEntry, ref, row, static_cast<std::int32_t>(index), &value)) RaiseNoEntry(index);
}

TRect WBridge::EntryBounds(RUXRef ref, int index) {
    RUXBox box{};
    if (!Ask(FTable.EntryBounds, ref, RUX_ENTRY, static_cast<std::int32_t>(index), &box)) return {};
    return {box.Left, box.Top, box.Right, box.Bottom};
}

}  // namespace rux
