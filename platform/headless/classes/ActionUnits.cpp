// Actions and the standard ones: ActnList, StdActns, ExtActns, ListActns, DBActns.
#include "platform/headless/classes/HClassTables.h"
#include "platform/headless/toolkit/HActions.h"

namespace rux {

namespace {

/// What the standard actions publish that are no children of TAction.
HRows ActionRows() {
    return Join(
        {{HProp<&HCustomAction::Caption, &HCustomAction::SetCaption>("Caption"),
          HProp<&HCustomAction::Hint, &HCustomAction::SetHint>("Hint"),
          HProp<&HCustomAction::Enabled, &HCustomAction::SetEnabled>("Enabled"),
          HProp<&HCustomAction::Visible, &HCustomAction::SetVisible>("Visible"), KeptInt("ImageIndex", -1),
          KeptEnum("HelpType", "THelpType", "htContext"), KeptPart("SecondaryShortCuts", "TShortCutList")},
         Ints({"HelpContext", "ShortCut"}),
         Texts({"HelpKeyword"})});
}

HRows CheckedActionRows() {
    return Join({ActionRows(),
                 Ints({"GroupIndex"}),
                 {HProp<&HCustomAction::Checked, &HCustomAction::SetChecked>("Checked"),
                  HProp<&HCustomAction::AutoCheck, &HCustomAction::SetAutoCheck>("AutoCheck")}});
}

void RegisterStandardActions(HClasses& classes) {
    classes.Add("TEditAction", "TAction");
    AddChildren(classes, "TEditAction",
                {"TEditCut", "TEditCopy", "TEditPaste", "TEditSelectAll", "TEditUndo", "TEditDelete"});
    classes.Add("TWindowAction", "TAction");
    AddChildren(classes, "TWindowAction",
                {"TWindowClose", "TWindowCascade", "TWindowTileHorizontal", "TWindowTileVertical",
                 "TWindowMinimizeAll", "TWindowArrange"});
    classes.Add("THelpAction", "TAction");
    AddChildren(classes, "THelpAction",
                {"THelpContents", "THelpTopicSearch", "THelpOnHelp", "THelpContextAction"});
    classes.Add("THintAction", "TCustomAction");
    classes.Add("TFileExit", "TCustomAction", nullptr, ActionRows());
    classes.Add("TFileRun", "TCustomAction", nullptr,
                Join({ActionRows(), Texts({"Directory", "FileName", "Operation", "Parameters"}),
                      Bools({"Browse"}), Objects({"BrowseDlg"}), Objects({"ParentControl"})}));
    classes.Add("TCommonDialogAction", "TCustomAction", nullptr, ActionRows());
    classes.Add("TFileAction", "TCommonDialogAction");
    classes.Add("TFileOpen", "TFileAction", nullptr,
                Join({Bools({"UseDefaultApp"}), {KeptPart("Dialog", "TOpenDialog")}}));
    classes.Add("TFileOpenWith", "TFileOpen");
    classes.Add("TFileSaveAs", "TFileAction", nullptr, {KeptPart("Dialog", "TSaveDialog")});
    AddChildren(classes, "TCommonDialogAction",
                {"TFilePrintSetup", "TFilePageSetup", "TPrintDlg", "TFontEdit", "TColorSelect",
                 "TSearchAction", "TOpenPicture", "TSavePicture"});
    classes.Add("TSearchFind", "TSearchAction", nullptr, {KeptPart("Dialog", "TFindDialog")});
    classes.Add("TSearchFindFirst", "TSearchFind");
    classes.Add("TSearchReplace", "TSearchAction", nullptr, {KeptPart("Dialog", "TReplaceDialog")});
    classes.Add("TSearchFindNext", "TCustomAction", nullptr, Join({ActionRows(), Objects({"SearchFind"})}));
}

void RegisterExtendedActions(HClasses& classes) {
    classes.Add("TRichEditAction", "TEditAction");
    AddChildren(classes, "TRichEditAction",
                {"TRichEditBold", "TRichEditItalic", "TRichEditUnderline", "TRichEditStrikeOut",
                 "TRichEditBullets", "TRichEditAlignLeft", "TRichEditAlignRight", "TRichEditAlignCenter"});
    classes.Add("TTabAction", "TCustomAction", nullptr,
                Join({ActionRows(), Objects({"TabControl"}), Bools({"SkipHiddenTabs", "Wrap"})}));
    classes.Add("TPreviousTab", "TTabAction");
    classes.Add("TNextTab", "TTabAction", nullptr, Texts({"LastTabCaption"}));
    classes.Add("TURLAction", "TCustomAction", nullptr, Join({ActionRows(), Texts({"URL"})}));
    AddChildren(classes, "TURLAction", {"TBrowseURL", "TDownLoadURL"});
    classes.Add("TSendMail", "TCustomAction", nullptr, ActionRows());
    classes.Add("TBrowseForFolder", "TCustomAction", nullptr,
                Join({ActionRows(), Texts({"DialogCaption", "Folder"})}));
    classes.Add("TListControlAction", "TCustomAction", nullptr,
                Join({ActionRows(), Objects({"ListControl"})}));
    AddChildren(classes, "TListControlAction",
                {"TListControlSelectAll", "TListControlClearSelection", "TListControlDeleteSelection",
                 "TListControlCopySelection", "TListControlMoveSelection"});
    classes.Add(
        "TCustomListAction", "TCustomAction", nullptr,
        Join(
            {CheckedActionRows(), Objects({"Images"}), Bools({"Active"}, true), {KeptInt("ItemIndex", -1)}}));
    AddChildren(classes, "TCustomListAction", {"TCustomVirtualListAction", "TCustomStaticListAction"});
    classes.Add("TVirtualListAction", "TCustomVirtualListAction");
    classes.Add("TStaticListAction", "TCustomStaticListAction");
    classes.Add("TDataSetAction", "TAction", nullptr, Objects({"DataSource"}));
    AddChildren(classes, "TDataSetAction",
                {"TDataSetFirst", "TDataSetPrior", "TDataSetNext", "TDataSetLast", "TDataSetInsert",
                 "TDataSetDelete", "TDataSetEdit", "TDataSetPost", "TDataSetCancel", "TDataSetRefresh"});
}

}  // namespace

void RegisterActionUnits(HClasses& classes) {
    classes.Add("TBasicAction", "TComponent", HMake<HCustomAction>);
    classes.Add("TContainedAction", "TBasicAction", nullptr, {KeptText("Category")});
    classes.Add("TCustomAction", "TContainedAction");
    classes.Add("TAction", "TCustomAction", nullptr, CheckedActionRows());
    classes.Add("TCustomActionList", "TComponent");
    classes.Add("TActionList", "TCustomActionList", nullptr,
                {KeptObject("Images"), KeptEnum("State", "TActionListState")});
    RegisterStandardActions(classes);
    RegisterExtendedActions(classes);
}

}  // namespace rux
