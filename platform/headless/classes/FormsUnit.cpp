#include "platform/headless/classes/HClassTables.h"
#include "platform/headless/toolkit/HApplication.h"
#include "platform/headless/toolkit/HForm.h"

namespace rux {

void RegisterFormsUnit(HClasses& classes) {
    classes.Add("TApplication", "TComponent", nullptr);
    classes.Add("TCustomForm", "TScrollingWinControl", HMake<HCustomForm>);
    classes.Add(
        "TForm", "TCustomForm", nullptr,
        {HProp<&HControl::TextRef, &HControl::SetText>("Caption"),
         HProp<&HCustomForm::ShowOnLoad, &HCustomForm::SetShowOnLoad>("Visible"),
         HProp<&HControl::IsEnabled, &HControl::SetEnabled>("Enabled"),
         HProp<&HControl::Align, &HControl::SetAlign>("Align"),
         HProp<&HControl::PopupMenuObject, &HControl::SetPopupMenu>("PopupMenu"),
         HProp<&HCustomForm::FormStyleValue, &HCustomForm::SetFormStyle>("FormStyle"),
         HProp<&HCustomForm::BorderStyle, &HCustomForm::SetBorderStyle>("BorderStyle"),
         HProp<&HCustomForm::Position, &HCustomForm::SetPosition>("Position"),
         HProp<&HCustomForm::WindowState, &HCustomForm::SetWindowState>("WindowState"),
         HProp<&HCustomForm::ClientWidth, &HCustomForm::SetClientWidth>("ClientWidth"),
         HProp<&HCustomForm::ClientHeight, &HCustomForm::SetClientHeight>("ClientHeight"),
         HProp<&HCustomForm::Menu, &HCustomForm::SetMenu>("Menu"),
         HProp<&HCustomForm::ActiveControlObject, &HCustomForm::SetActiveControlObject>("ActiveControl"),
         HProp<&HCustomForm::ModalResult, &HCustomForm::SetModalResult>("ModalResult"),
         HProp<&HCustomForm::KeyPreview, &HCustomForm::SetKeyPreview>("KeyPreview"),
         KeptPart("Font", "TFont"), KeptBool("ShowHint"), KeptInt("Color", -16777201)});
    classes.Add("TCustomFrame", "TScrollingWinControl", HMake<HCustomFrame>);
    classes.Add(
        "TFrame", "TCustomFrame", nullptr,
        {HProp<&HControl::IsVisible, &HControl::SetVisible>("Visible"),
         HProp<&HControl::IsEnabled, &HControl::SetEnabled>("Enabled"),
         HProp<&HControl::Align, &HControl::SetAlign>("Align"),
         HProp<&HWinControl::TabOrder, &HWinControl::SetTabOrder>("TabOrder"),
         HProp<&HWinControl::TabStop, &HWinControl::SetTabStop>("TabStop"),
         HProp<&HControl::PopupMenuObject, &HControl::SetPopupMenu>("PopupMenu"), KeptPart("Font", "TFont")});
    classes.Add("TDataModule", "TComponent", HMake<HDataModule>);
}

}  // namespace rux
