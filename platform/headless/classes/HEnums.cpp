#include "platform/headless/classes/HEnums.h"

#include "rtl/Exceptions.h"

namespace rux {

namespace {

using TRows = std::vector<HEnumInfo>;

TRows CommonEnums() {
    return {
        {"TAlignment", {"taLeftJustify", "taRightJustify", "taCenter"}},
        {"TVerticalAlignment", {"taAlignTop", "taAlignBottom", "taVerticalCenter"}},
        {"TAnchorKind", {"akLeft", "akTop", "akRight", "akBottom"}},
        {"TBevelCut", {"bvNone", "bvLowered", "bvRaised", "bvSpace"}},
        {"TBevelEdge", {"beLeft", "beTop", "beRight", "beBottom"}},
        {"TBevelKind", {"bkNone", "bkTile", "bkSoft", "bkFlat"}},
        {"TBiDiMode", {"bdLeftToRight", "bdRightToLeft", "bdRightToLeftNoAlign", "bdRightToLeftReadingOnly"}},
        {"TBorderStyle", {"bsNone", "bsSingle"}},
        {"TDragKind", {"dkDrag", "dkDock"}},
        {"TDragMode", {"dmManual", "dmAutomatic"}},
        {"THelpType", {"htKeyword", "htContext"}},
        {"TImeMode",
         {"imDisable", "imClose", "imOpen", "imDontCare", "imSAlpha", "imAlpha", "imHira", "imSKata",
          "imKata", "imChinese", "imSHanguel", "imHanguel"}},
        {"TFontPitch", {"fpDefault", "fpVariable", "fpFixed"}},
        {"TFontStyle", {"fsBold", "fsItalic", "fsUnderline", "fsStrikeOut"}},
        {"TPenStyle",
         {"psSolid", "psDash", "psDot", "psDashDot", "psDashDotDot", "psClear", "psInsideFrame"}},
        {"TPenMode",
         {"pmBlack", "pmWhite", "pmNop", "pmNot", "pmCopy", "pmNotCopy", "pmMergePenNot", "pmMaskPenNot",
          "pmMergeNotPen", "pmMaskNotPen", "pmMerge", "pmNotMerge", "pmMask", "pmNotMask", "pmXor",
          "pmNotXor"}},
        {"TBrushStyle",
         {"bsSolid", "bsClear", "bsHorizontal", "bsVertical", "bsFDiagonal", "bsBDiagonal", "bsCross",
          "bsDiagCross"}},
        {"TScrollBarStyle", {"ssRegular", "ssFlat", "ssHotTrack"}},
        {"TScrollBarKind", {"sbHorizontal", "sbVertical"}},
        {"TScrollStyle", {"ssNone", "ssHorizontal", "ssVertical", "ssBoth"}},
        {"TBorderIcon", {"biSystemMenu", "biMinimize", "biMaximize", "biHelp"}},
        {"TDefaultMonitor", {"dmDesktop", "dmPrimary", "dmMainForm", "dmActiveForm"}},
        {"TPrintScale", {"poNone", "poProportional", "poPrintToFit"}},
        {"TPopupMode", {"pmNone", "pmAuto", "pmExplicit"}},
    };
}

TRows StandardEnums() {
    return {
        {"TTextLayout", {"tlTop", "tlCenter", "tlBottom"}},
        {"TEllipsisPosition", {"epNone", "epPathEllipsis", "epEndEllipsis", "epWordEllipsis"}},
        {"TEditCharCase", {"ecNormal", "ecUpperCase", "ecLowerCase"}},
        {"TListBoxStyle",
         {"lbStandard", "lbOwnerDrawFixed", "lbOwnerDrawVariable", "lbVirtual", "lbVirtualOwnerDraw"}},
        {"TStaticBorderStyle", {"sbsNone", "sbsSingle", "sbsSunken"}},
        {"TButtonLayout", {"blGlyphLeft", "blGlyphRight", "blGlyphTop", "blGlyphBottom"}},
        {"TButtonStyle", {"bsAutoDetect", "bsWin31", "bsNew"}},
        {"TShapeType", {"stRectangle", "stSquare", "stRoundRect", "stRoundSquare", "stEllipse", "stCircle"}},
        {"TBevelShape",
         {"bsBox", "bsFrame", "bsTopLine", "bsBottomLine", "bsLeftLine", "bsRightLine", "bsSpacer"}},
        {"TBevelStyle", {"bsLowered", "bsRaised"}},
        {"TResizeStyle", {"rsNone", "rsLine", "rsUpdate", "rsPattern"}},
        {"TBandDrawingStyle", {"dsNormal", "dsGradient"}},
        {"TGradientDirection", {"gdHorizontal", "gdVertical"}},
        {"TColorBoxStyles",
         {"cbStandardColors", "cbExtendedColors", "cbSystemColors", "cbIncludeNone", "cbIncludeDefault",
          "cbCustomColor", "cbPrettyNames", "cbCustomColors"}},
        {"TFlowStyle",
         {"fsLeftRightTopBottom", "fsRightLeftTopBottom", "fsLeftRightBottomTop", "fsRightLeftBottomTop",
          "fsTopBottomLeftRight", "fsBottomTopLeftRight", "fsTopBottomRightLeft", "fsBottomTopRightLeft"}},
        {"TSizeStyle", {"ssAbsolute", "ssPercent", "ssAuto"}},
        {"TExpandStyle", {"emAddRows", "emAddColumns", "emFixedSize"}},
        {"TBalloonFlags", {"bfNone", "bfInfo", "bfWarning", "bfError"}},
        {"TMenuBreak", {"mbNone", "mbBreak", "mbBarBreak"}},
        {"TMenuItemAutoFlag", {"maAutomatic", "maManual", "maParent"}},
        {"TPopupAlignment", {"paLeft", "paRight", "paCenter"}},
        {"TTrackButton", {"tbRightButton", "tbLeftButton"}},
        {"TMenuAnimations", {"maLeftToRight", "maRightToLeft", "maTopToBottom", "maBottomToTop", "maNone"}},
        {"TActionListState", {"asNormal", "asSuspended", "asSuspendedEnabled"}},
        {"TGrpButtonOption", {"gboAllowReorder", "gboFullSize", "gboGroupStyle", "gboShowCaptions"}},
        {"TCatButtonOption",
         {"boAllowReorder", "boAllowCopyingButtons", "boFullSize", "boGradientFill", "boShowCaptions",
          "boVerticalCategoryCaptions", "boBoldCaptions", "boUsePlusMinus", "boCaptionOnlyBorder"}},
        {"TCatButtonFlow", {"cbfVertical", "cbfHorizontal"}},
    };
}

TRows CommonControlEnums() {
    return {
        {"TTabPosition", {"tpTop", "tpBottom", "tpLeft", "tpRight"}},
        {"TTabStyle", {"tsTabs", "tsButtons", "tsFlatButtons"}},
        {"TStatusPanelStyle", {"psText", "psOwnerDraw"}},
        {"TStatusPanelBevel", {"pbNone", "pbLowered", "pbRaised"}},
        {"THeaderSectionStyle", {"hsText", "hsOwnerDraw"}},
        {"THeaderStyle", {"hsButtons", "hsFlat"}},
        {"TMultiSelectStyles", {"msControlSelect", "msShiftSelect", "msVisibleOnly", "msSiblingOnly"}},
        {"TSortType", {"stNone", "stData", "stText", "stBoth"}},
        {"TViewStyle", {"vsIcon", "vsSmallIcon", "vsList", "vsReport"}},
        {"TIconArrangement", {"iaTop", "iaLeft"}},
        {"TListHotTrackStyle", {"htHandPoint", "htUnderlineCold", "htUnderlineHot"}},
        {"TTrackBarOrientation", {"trHorizontal", "trVertical"}},
        {"TTickMark", {"tmBottomRight", "tmTopLeft", "tmBoth"}},
        {"TTickStyle", {"tsNone", "tsAuto", "tsManual"}},
        {"TPositionToolTip", {"ptNone", "ptTop", "ptLeft", "ptBottom", "ptRight"}},
        {"TProgressBarOrientation", {"pbHorizontal", "pbVertical"}},
        {"TProgressBarStyle", {"pbstNormal", "pbstMarquee"}},
        {"TUDAlignButton", {"udLeft", "udRight"}},
        {"TUDOrientation", {"udHorizontal", "udVertical"}},
        {"THKModifier", {"hkShift", "hkCtrl", "hkAlt", "hkExt"}},
        {"THKInvalidKey",
         {"hcNone", "hcShift", "hcCtrl", "hcAlt", "hcShiftCtrl", "hcShiftAlt", "hcCtrlAlt",
          "hcShiftCtrlAlt"}},
        {"TCommonAVI",
         {"aviNone", "aviFindFolder", "aviFindFile", "aviFindComputer", "aviCopyFiles", "aviCopyFile",
          "aviRecycleFile", "aviEmptyRecycle", "aviDeleteFile"}},
        {"TDTCalAlignment", {"dtaLeft", "dtaRight"}},
        {"TDTDateFormat", {"dfShort", "dfLong"}},
        {"TDTDateMode", {"dmComboBox", "dmUpDown"}},
        {"TDateTimeKind", {"dtkDate", "dtkTime"}},
        {"TCalDayOfWeek",
         {"dowMonday", "dowTuesday", "dowWednesday", "dowThursday", "dowFriday", "dowSaturday", "dowSunday",
          "dowLocaleDefault"}},
        {"TEdgeBorder", {"ebLeft", "ebTop", "ebRight", "ebBottom"}},
        {"TEdgeStyle", {"esNone", "esRaised", "esLowered"}},
        {"TCoolBandMaximize", {"bmNone", "bmClick", "bmDblClick"}},
        {"TPageScrollerOrientation", {"soHorizontal", "soVertical"}},
        {"TComboBoxExStyle", {"csExDropDown", "csExSimple", "csExDropDownList"}},
        {"TComboBoxExStyleEx",
         {"csExCaseSensitive", "csExNoEditImage", "csExNoEditImageIndent", "csExNoSizeLimit",
          "csExPathWordBreak"}},
        {"TAutoCompleteOption",
         {"acoAutoSuggest", "acoAutoAppend", "acoSearch", "acoFilterPrefixes", "acoUseTab",
          "acoUpDownKeyDropsList", "acoRtlReading"}},
        {"TDrawingStyle", {"dsFocus", "dsSelected", "dsNormal", "dsTransparent"}},
        {"TImageType", {"itImage", "itMask"}},
    };
}

TRows DialogEnums() {
    return {
        {"TOpenOption",
         {"ofReadOnly",         "ofOverwritePrompt",    "ofHideReadOnly",        "ofNoChangeDir",
          "ofShowHelp",         "ofNoValidate",         "ofAllowMultiSelect",    "ofExtensionDifferent",
          "ofPathMustExist",    "ofFileMustExist",      "ofCreatePrompt",        "ofShareAware",
          "ofNoReadOnlyReturn", "ofNoTestFileCreate",   "ofNoNetworkButton",     "ofNoLongNames",
          "ofOldStyleDialog",   "ofNoDereferenceLinks", "ofEnableIncludeNotify", "ofEnableSizing",
          "ofDontAddToRecent",  "ofForceShowHidden"}},
        {"TOpenOptionEx", {"ofExNoPlacesBar"}},
        {"TFontDialogDevice", {"fdScreen", "fdPrinter", "fdBoth"}},
        {"TFontDialogOption",
         {"fdAnsiOnly", "fdTrueTypeOnly", "fdEffects", "fdFixedPitchOnly", "fdForceFontExist", "fdNoFaceSel",
          "fdNoOEMFonts", "fdNoSimulations", "fdNoSizeSel", "fdNoStyleSel", "fdNoVectorFonts", "fdShowHelp",
          "fdWysiwyg", "fdLimitSize", "fdScalableOnly", "fdApplyButton"}},
        {"TColorDialogOption",
         {"cdFullOpen", "cdPreventFullOpen", "cdShowHelp", "cdSolidColor", "cdAnyColor"}},
        {"TFindOption",
         {"frDown", "frFindNext", "frHideMatchCase", "frHideWholeWord", "frHideUpDown", "frMatchCase",
          "frDisableMatchCase", "frDisableUpDown", "frDisableWholeWord", "frReplace", "frReplaceAll",
          "frWholeWord", "frShowHelp"}},
        {"TPrintRange", {"prAllPages", "prSelection", "prPageNums"}},
        {"TPrintDialogOption",
         {"poPrintToFile", "poPageNums", "poSelection", "poWarning", "poHelp", "poDisablePrintToFile"}},
        {"TPageMeasureUnits", {"pmDefault", "pmMillimeters", "pmInches"}},
        {"TPageSetupDialogOption",
         {"psoDefaultMinMargins", "psoDisableMargins", "psoDisableOrientation", "psoDisablePagePainting",
          "psoDisablePaper", "psoDisablePrinter", "psoMargins", "psoMinMargins", "psoShowHelp", "psoWarning",
          "psoNoNetworkButton"}},
        {"TFileDialogOption",
         {"fdoOverWritePrompt",    "fdoStrictFileTypes",    "fdoNoChangeDir",     "fdoPickFolders",
          "fdoForceFileSystem",    "fdoAllNonStorageItems", "fdoNoValidate",      "fdoAllowMultiSelect",
          "fdoPathMustExist",      "fdoFileMustExist",      "fdoCreatePrompt",    "fdoShareAware",
          "fdoNoReadOnlyReturn",   "fdoNoTestFileCreate",   "fdoHideMRUPlaces",   "fdoHidePinnedPlaces",
          "fdoNoDereferenceLinks", "fdoDontAddToRecent",    "fdoForceShowHidden", "fdoDefaultNoMiniMode",
          "fdoForcePreviewPaneOn"}},
    };
}

TRows FurtherEnums() {
    return {
        {"TGridOption",
         {"goFixedVertLine", "goFixedHorzLine", "goVertLine", "goHorzLine", "goRangeSelect",
          "goDrawFocusSelected", "goRowSizing", "goColSizing", "goRowMoving", "goColMoving", "goEditing",
          "goTabs", "goRowSelect", "goAlwaysShowEditor", "goThumbTracking"}},
        {"TDisplayOption", {"doColumnTitles", "doAutoColResize", "doKeyColFixed"}},
        {"TKeyOption", {"keyEdit", "keyAdd", "keyDelete", "keyUnique"}},
        {"TDBGridOption",
         {"dgEditing", "dgAlwaysShowEditor", "dgTitles", "dgIndicator", "dgColumnResize", "dgColLines",
          "dgRowLines", "dgTabs", "dgRowSelect", "dgAlwaysShowSelection", "dgConfirmDelete", "dgCancelOnExit",
          "dgMultiSelect"}},
        {"TColumnButtonStyle", {"cbsAuto", "cbsEllipsis", "cbsNone"}},
        {"TNavigateBtn",
         {"nbFirst", "nbPrior", "nbNext", "nbLast", "nbInsert", "nbDelete", "nbEdit", "nbPost", "nbCancel",
          "nbRefresh"}},
        {"TTabSetStyle",
         {"tsStandard", "tsOwnerDraw", "tsSoftTabs", "tsModernTabs", "tsModernPopout", "tsIDETabs"}},
        {"TFileType",
         {"ftReadOnly", "ftHidden", "ftSystem", "ftVolumeID", "ftDirectory", "ftArchive", "ftNormal"}},
        {"TTextCase", {"tcLowerCase", "tcUpperCase"}},
        {"TGaugeKind", {"gkText", "gkHorizontalBar", "gkVerticalBar", "gkPie", "gkNeedle"}},
    };
}

struct HEnumTable {
    HEnumTable() {
        for (const auto& rows :
             {CommonEnums(), StandardEnums(), CommonControlEnums(), DialogEnums(), FurtherEnums()})
            Rows.insert(Rows.end(), rows.begin(), rows.end());
        for (const HEnumInfo& row : Rows) ByName.emplace(row.Name, &row);
    }
    TRows Rows;
    std::unordered_map<std::string_view, const HEnumInfo*> ByName;
};

}  // namespace

const HEnumInfo& EnumNamed(std::string_view type) {
    static const HEnumTable table;
    const auto found = table.ByName.find(type);
    if (found == table.ByName.end()) Assert(false, "No enumeration is called " + std::string(type));
    return *found->second;
}

}  // namespace rux
