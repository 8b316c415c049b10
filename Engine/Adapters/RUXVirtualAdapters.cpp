#include "Engine/Adapters/RUXVirtualAdapters.h"

#include "Engine/Input/RUXInput.h"
#include "Engine/Virtual/RUXVirtualStdCtrls.h"
#include "Engine/Virtual/RUXVirtualTreeView.h"
#include "rtl/CodePage.h"

namespace rux {

namespace {

/// Fails the assertion with that text (UTF-8) in the name of the method that calls it.
[[noreturn]] void NotAvailable(std::string_view text = "Assertion failure",
                               const char* file = __builtin_FILE(), int line = __builtin_LINE()) {
    Assert(false, Ansi(text), file, line);
    __builtin_unreachable();
}

constexpr std::string_view NoMethod = "方法没实现";
constexpr std::string_view NotMade = "没有实现";

}  // namespace

void TVirtualButtonAdapter::Click() {
    VirtualCast<TVirtualButton>(FControl).Click();
}

std::string TVirtualEditAdapter::GetText() {
    return VirtualCast<TVirtualEdit>(FControl).GetText();
}

void TVirtualEditAdapter::SetText(const std::string& S) {
    VirtualCast<TVirtualEdit>(FControl).SetText(S);
}

std::string TVirtualStaticAdapter::GetText() {
    return VirtualCast<TVirtualStatic>(FControl).GetText();
}

void TVirtualStaticAdapter::Click() {
    NotAvailable(NoMethod);
}

// ------------------------------------------------------------------------------------------ combo boxes

std::string TVirtualComboboxAdapter::GetText() {
    return VirtualCast<TVirtualCombobox>(FControl).GetText();
}

void TVirtualComboboxAdapter::SetText(const std::string&) {
    NotAvailable(NotMade);
}

bool TVirtualComboboxAdapter::ReadOnly() {
    NotAvailable(NotMade);
}

void TVirtualComboboxAdapter::Select(const std::string&) {
    NotAvailable(NotMade);
}

void TVirtualComboboxAdapter::SelectByIndex(std::int32_t) {
    NotAvailable(NotMade);
}

std::string TVirtualComboboxAdapter::Selected() {
    NotAvailable(NotMade);
}

std::int32_t TVirtualComboboxAdapter::GetCount() {
    NotAvailable(NotMade);
}

// ------------------------------------------------------------------------------------------ trees

void TVirtualTreeViewAdapter::Click(const std::string& ANameArr) {
    const auto& tree = VirtualCast<TVirtualTreeView>(FControl);
    // Posted: a native tree waits within the button-down for the button to come up, so that a down that is
    // sent would not come back.
    PostClickRect(tree.Handle(), tree.PlaceOfNode(ANameArr));
}

void TVirtualTreeViewAdapter::Select(const std::string& ANameArr) {
    VirtualCast<TVirtualTreeView>(FControl).SelectNode(ANameArr);
}

void TVirtualTreeViewAdapter::SetExpand(const std::string& ANameArr) {
    VirtualCast<TVirtualTreeView>(FControl).Expand(ANameArr);
}

void TVirtualTreeViewAdapter::SetText(const std::string& ANameArr, const std::string& AValue) {
    VirtualCast<TVirtualTreeView>(FControl).SetNodeText(ANameArr, AValue);
}

std::int32_t TVirtualTreeViewAdapter::GetCount() {
    return VirtualCast<TVirtualTreeView>(FControl).GetCount();
}

std::string TVirtualTreeViewAdapter::GetText() {
    return Selected();
}

std::string TVirtualTreeViewAdapter::Selected() {
    return VirtualCast<TVirtualTreeView>(FControl).SelectedText();
}

void TVirtualTreeViewAdapter::SetText(const std::string&) {
    NotAvailable();
}

void TVirtualTreeViewAdapter::DblClick(const std::string&) {
    NotAvailable();
}

void TVirtualTreeViewAdapter::SaveTreeData(const std::string&) {
    NotAvailable();
}

void TVirtualTreeViewAdapter::SelectNodes(const std::string&) {
    NotAvailable();
}

void TVirtualTreeViewAdapter::SetChecked(const std::string&, bool) {
    NotAvailable();
}

std::int32_t TVirtualTreeViewAdapter::GetLevel(const std::string&) {
    NotAvailable();
}

bool TVirtualTreeViewAdapter::GetExpanded(const std::string&) {
    NotAvailable();
}

bool TVirtualTreeViewAdapter::FindTreeNode(const std::string&) {
    NotAvailable();
}

std::string TVirtualTreeViewAdapter::GetTextByIndex(std::int32_t) {
    NotAvailable();
}

void TVirtualTreeViewAdapter::SelectbyIndex(std::int32_t) {
    NotAvailable();
}

void TVirtualTreeViewAdapter::SetCheckedbyIndex(std::int32_t, bool) {
    NotAvailable();
}

bool TVirtualTreeViewAdapter::IsLeaf(const std::string&) {
    NotAvailable();
}

}  // namespace rux
