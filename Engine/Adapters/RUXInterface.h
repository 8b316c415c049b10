// The interfaces that scripts call by method name, one for each family of controls, all below IControl.
//
// In C++ each declares its own methods only and none inherits from another: the parent stands in the table,
// and an adapter implements the whole row of interfaces from IControl down to the one that it offers. Names
// of methods and parameters are part of what controllers see. The tables are in RUXInterface.cpp.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "Engine/Core/RUXInterfaceTable.h"

namespace rux {

using TIntegerDynArray = std::vector<std::int32_t>;

/// What every control has.
class IControl {
 public:
    static const TInterfaceInfo Info;
    virtual bool Enabled() = 0;
    virtual void RightClick() = 0;
    /// True: there is no adapter for a control that was not found.
    virtual bool Find() = 0;
    virtual void DbClick() = 0;
    virtual void Active() = 0;
    virtual void SendKey(const std::string& AKey, const std::string& ACAKey) = 0;

 protected:
    ~IControl() = default;
};

/// The method behind the name ReadOnly on every interface that has it. No interface of its own: all adapters
/// share one implementation, which the rows point at.
class IReadOnlyMethod {
 public:
    virtual bool ReadOnly() = 0;

 protected:
    ~IReadOnlyMethod() = default;
};

// ------------------------------------------------------------------------------------------- plain controls

/// Offers ReadOnly too.
class IEdit {
 public:
    static const TInterfaceInfo Info;
    virtual std::string GetText() = 0;
    virtual void SetText(const std::string& S) = 0;

 protected:
    ~IEdit() = default;
};

class IButton {
 public:
    static const TInterfaceInfo Info;
    virtual void Click() = 0;

 protected:
    ~IButton() = default;
};

class IMenu {
 public:
    static const TInterfaceInfo Info;
    virtual bool Checked() = 0;

 protected:
    ~IMenu() = default;
};

struct IPopupMenu {
    static const TInterfaceInfo Info;
};

class ILabel {
 public:
    static const TInterfaceInfo Info;
    virtual std::string GetText() = 0;

 protected:
    ~ILabel() = default;
};

class ICheckBox {
 public:
    static const TInterfaceInfo Info;
    virtual void SetChecked(bool AValue) = 0;
    /// Leaves the button down, for a following step of the script.
    virtual void MouseDown() = 0;
    virtual bool Checked() = 0;

 protected:
    ~ICheckBox() = default;
};

class IRadioButton {
 public:
    static const TInterfaceInfo Info;
    virtual bool Checked() = 0;

 protected:
    ~IRadioButton() = default;
};

class IForm {
 public:
    static const TInterfaceInfo Info;
    /// The form is still open when it returns.
    virtual void Close() = 0;
    virtual std::string GetInfo() = 0;

 protected:
    ~IForm() = default;
};

class IToolBar {
 public:
    static const TInterfaceInfo Info;
    virtual void Select(const std::string& ANameArr) = 0;
    virtual void Popup(const std::string& ANameArr) = 0;

 protected:
    ~IToolBar() = default;
};

class IStatusBar {
 public:
    static const TInterfaceInfo Info;
    virtual std::string GetText() = 0;

 protected:
    ~IStatusBar() = default;
};

// ------------------------------------------------------------------------------------------- trees

/// Nodes are named by paths of captions. Below IEdit, whose SetText takes one parameter less.
class ITreeView {
 public:
    static const TInterfaceInfo Info;
    virtual std::string Selected() = 0;
    virtual void DblClick(const std::string& ANameArr) = 0;
    virtual void Click(const std::string& ANameArr) = 0;
    virtual void SaveTreeData(const std::string& AFileName) = 0;
    virtual void SelectNodes(const std::string& AFileName) = 0;
    virtual void Select(const std::string& ANameArr) = 0;
    virtual void SetText(const std::string& ANameArr, const std::string& AValue) = 0;
    virtual void SetChecked(const std::string& ANameArr, bool AValue) = 0;
    virtual void SetExpand(const std::string& ANameArr) = 0;
    virtual std::int32_t GetCount() = 0;
    virtual std::int32_t GetLevel(const std::string& ANameArr) = 0;
    virtual bool GetExpanded(const std::string& ANameArr) = 0;
    virtual bool FindTreeNode(const std::string& ANameArr) = 0;
    virtual std::string GetTextByIndex(std::int32_t AIndex) = 0;
    virtual void SelectbyIndex(std::int32_t AIndex) = 0;
    virtual void SetCheckedbyIndex(std::int32_t AIndex, bool AValue) = 0;
    virtual bool IsLeaf(const std::string& ANameArr) = 0;

 protected:
    ~ITreeView() = default;
};

// ------------------------------------------------------------------------------------------- lists

/// Root of the list family.
class IList {
 public:
    static const TInterfaceInfo Info;
    virtual void Select(const std::string& AName) = 0;
    virtual void SelectByIndex(std::int32_t AIdx) = 0;
    virtual std::string Selected() = 0;
    virtual std::int32_t GetCount() = 0;

 protected:
    ~IList() = default;
};

struct IOutlookBar {
    static const TInterfaceInfo Info;
};

struct IPageControl {
    static const TInterfaceInfo Info;
};

class IListBox {
 public:
    static const TInterfaceInfo Info;
    virtual void Click(const std::string& AName) = 0;
    virtual void DblClick(const std::string& AName) = 0;

 protected:
    ~IListBox() = default;
};

class ICheckListBox {
 public:
    static const TInterfaceInfo Info;
    virtual void SetChecked(const std::string& AName, bool AValue) = 0;

 protected:
    ~ICheckListBox() = default;
};

class IListView {
 public:
    static const TInterfaceInfo Info;
    virtual void DblClick(const std::string& AName) = 0;
    virtual std::string Checked() = 0;
    virtual void SetChecked(const std::string& ANameArr, bool AValue) = 0;

 protected:
    ~IListView() = default;
};

/// Offers ReadOnly too.
class IComboControl {
 public:
    static const TInterfaceInfo Info;
    virtual std::string GetText() = 0;
    virtual void SetText(const std::string& S) = 0;

 protected:
    ~IComboControl() = default;
};

struct IComboBox {
    static const TInterfaceInfo Info;
};

// ------------------------------------------------------------------------------------------- grids

/// Root of the grid family. Columns and rows are texts, since a script may name them by caption, by number or
/// by an expression.
class IMatrix {
 public:
    static const TInterfaceInfo Info;
    virtual std::int32_t GetColCount() = 0;
    virtual std::int32_t GetRowCount() = 0;
    virtual void SelectRows(const std::string& AStartRow, const std::string& AEndRow,
                            const std::string& ANewFlag) = 0;
    virtual void SelectRow(const std::string& ARow) = 0;
    virtual void DblClickRow(const std::string& ARow) = 0;
    virtual void ClickButton(const std::string& ACol, const std::string& ARow) = 0;
    virtual void SelectCell(const std::string& ACol, const std::string& ARow) = 0;
    virtual void ClickCell(const std::string& ACol, const std::string& ARow) = 0;
    virtual void DbClickCell(const std::string& ACol, const std::string& ARow) = 0;
    virtual std::string GetCellValue(const std::string& ACol, const std::string& ARow) = 0;
    virtual bool GetCellReadOnly(const std::string& ACol, const std::string& ARow) = 0;
    virtual std::string GetCellValues(const std::string& AStartCol, const std::string& AEndCol,
                                      const std::string& AStartRow, const std::string& AEndRow) = 0;
    virtual std::string GetCellAllValue() = 0;
    virtual void SetCellValue(const std::string& ACol, const std::string& ARow,
                              const std::string& AValue) = 0;
    virtual std::int32_t GetCurRow() = 0;
    virtual std::int32_t GetCurCol() = 0;
    virtual std::string GetCellDropdownList(const std::string& ACol, const std::string& ARow) = 0;
    virtual TIntegerDynArray GetRows(const std::string& AExpr) = 0;
    virtual std::int32_t GetRowByNo(const std::string& ANo) = 0;
    virtual std::string FindCell(const std::string& ACell) = 0;
    virtual bool ExistCell(const std::string& ACol, const std::string& ARow) = 0;

 protected:
    ~IMatrix() = default;
};

class IGrid {
 public:
    static const TInterfaceInfo Info;
    virtual void SetRowExpand(const std::string& ARow, bool AValue) = 0;
    virtual std::int32_t GetRowLevel(const std::string& ARow) = 0;
    virtual bool GetRowExpand(const std::string& ARow) = 0;
    virtual void SendCellText(const std::string& ACol, const std::string& ARow,
                              const std::string& AValue) = 0;
    virtual void SetRowValue(const std::string& ARow, const std::string& AValues) = 0;

 protected:
    ~IGrid() = default;
};

// ------------------------------------------------------------------------------------------- the tool kit

/// What a script asks of the application and its machine rather than of one control.
class IToolKit {
 public:
    static const TInterfaceInfo Info;
    virtual void SetMousePos(std::int32_t X, std::int32_t Y) = 0;
    virtual void KillProcess(const std::string& AName) = 0;
    virtual void CloseWindow(const std::string& ACaption) = 0;
    virtual void DeleteFolder(const std::string& ADir) = 0;
    virtual void CreateFolder(const std::string& ADir) = 0;
    virtual void ChDir(const std::string& ADir) = 0;
    virtual std::string GetVersion() = 0;
    virtual std::string GetExePath() = 0;
    virtual void ClosePopupMenu() = 0;
    virtual std::string CanUseControlInfos() = 0;
    virtual void RefreshActionList() = 0;
    virtual void ShortCutKey(const std::string& AKey, const std::string& AACKey) = 0;
    virtual void SetMainFormFront() = 0;
    virtual void ExecuteCmd(const std::string& ACmdLine) = 0;

 protected:
    ~IToolKit() = default;
};

}  // namespace rux
