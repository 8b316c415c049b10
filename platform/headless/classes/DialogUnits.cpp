// Dialogs: Dialogs and ExtDlgs. They are components that open nothing here.
#include "platform/headless/classes/HClassTables.h"

namespace rux {

namespace {

void RegisterFileDialogs(HClasses& classes) {
    classes.Add(
        "TOpenDialog", "TCommonDialog", nullptr,
        Join({Texts({"DefaultExt", "FileName", "Filter", "InitialDir", "Title"}),
              {KeptInt("FilterIndex", 1), KeptSet("Options", "TOpenOption", "ofHideReadOnly,ofEnableSizing"),
               KeptSet("OptionsEx", "TOpenOptionEx")}}));
    AddChildren(classes, "TOpenDialog", {"TSaveDialog", "TOpenPictureDialog"});
    classes.Add("TSavePictureDialog", "TOpenPictureDialog");
    classes.Add("TOpenTextFileDialog", "TOpenDialog", nullptr,
                {KeptPart("Encodings", "TStringList"), KeptInt("EncodingIndex")});
    classes.Add("TSaveTextFileDialog", "TOpenTextFileDialog");

    classes.Add("TFavoriteLinkItem", "TCollectionItem", nullptr, Texts({"Location"}));
    classes.AddCollection("TFavoriteLinkItems", "TFavoriteLinkItem");
    classes.Add("TFileTypeItem", "TCollectionItem", nullptr, Texts({"DisplayName", "FileMask"}));
    classes.AddCollection("TFileTypeItems", "TFileTypeItem");
    classes.Add(
        "TCustomFileDialog", "TComponent", nullptr,
        Join({Texts({"ClientGuid", "DefaultExtension", "DefaultFolder", "FileName", "FileNameLabel",
                     "OkButtonLabel", "Title"}),
              {KeptPart("FavoriteLinks", "TFavoriteLinkItems"), KeptPart("FileTypes", "TFileTypeItems"),
               KeptInt("FileTypeIndex", 1), KeptSet("Options", "TFileDialogOption")}}));
    AddChildren(classes, "TCustomFileDialog", {"TCustomFileOpenDialog", "TCustomFileSaveDialog"});
    classes.Add("TFileOpenDialog", "TCustomFileOpenDialog");
    classes.Add("TFileSaveDialog", "TCustomFileSaveDialog");
}

void RegisterTaskDialog(HClasses& classes) {
    classes.Add(
        "TTaskDialogBaseButtonItem", "TCollectionItem", nullptr,
        Join({Texts({"Caption"}), Bools({"Default"}), Ints({"ModalResult"}), Bools({"Enabled"}, true)}));
    AddChildren(classes, "TTaskDialogBaseButtonItem",
                {"TTaskDialogButtonItem", "TTaskDialogRadioButtonItem"});
    classes.AddCollection("TTaskDialogButtons", "TTaskDialogBaseButtonItem");
    classes.Add("TCustomTaskDialog", "TComponent");
    classes.Add("TTaskDialog", "TCustomTaskDialog", nullptr,
                Join({Texts({"Caption", "ExpandButtonCaption", "ExpandedText", "FooterText", "Text", "Title",
                             "VerificationText"}),
                      {KeptPart("Buttons", "TTaskDialogButtons"),
                       KeptPart("RadioButtons", "TTaskDialogButtons"), KeptInt("HelpContext")}}));
}

}  // namespace

void RegisterDialogUnits(HClasses& classes) {
    classes.Add("TCommonDialog", "TComponent", nullptr, {KeptBool("Ctl3D", true), KeptInt("HelpContext")});
    RegisterFileDialogs(classes);
    classes.Add("TFontDialog", "TCommonDialog", nullptr,
                Join({Ints({"MaxFontSize", "MinFontSize"}),
                      {KeptEnum("Device", "TFontDialogDevice"), KeptPart("Font", "TFont"),
                       KeptSet("Options", "TFontDialogOption", "fdEffects")}}));
    classes.Add("TColorDialog", "TCommonDialog", nullptr,
                {KeptInt("Color"), KeptPart("CustomColors", "TStringList"),
                 KeptSet("Options", "TColorDialogOption")});
    classes.Add("TPrinterSetupDialog", "TCommonDialog");
    classes.Add("TPrintDialog", "TCommonDialog", nullptr,
                Join({Ints({"Copies", "FromPage", "MaxPage", "MinPage", "ToPage"}),
                      Bools({"Collate", "PrintToFile"}),
                      {KeptSet("Options", "TPrintDialogOption"), KeptEnum("PrintRange", "TPrintRange")}}));
    classes.Add("TPageSetupDialog", "TCommonDialog", nullptr,
                Join({Ints({"MarginBottom", "MarginLeft", "MarginRight", "MarginTop", "MinMarginBottom",
                            "MinMarginLeft", "MinMarginRight", "MinMarginTop", "PageHeight", "PageWidth"}),
                      {KeptSet("Options", "TPageSetupDialogOption", "psoDefaultMinMargins"),
                       KeptEnum("Units", "TPageMeasureUnits")}}));
    classes.Add("TFindDialog", "TCommonDialog", nullptr,
                {KeptText("FindText"), KeptSet("Options", "TFindOption", "frDown")});
    classes.Add("TReplaceDialog", "TFindDialog", nullptr, Texts({"ReplaceText"}));
    RegisterTaskDialog(classes);
}

}  // namespace rux
