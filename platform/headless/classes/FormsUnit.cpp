#include "platform/headless/classes/HClassTables.h"
#include "platform/headless/toolkit/HApplication.h"
#include "platform/headless/toolkit/HForm.h"
#include "platform/headless/toolkit/HLists.h"

namespace rux {

namespace {

HRows ScrollBars() {
    return {KeptPart("HorzScrollBar", "TControlScrollBar"), KeptPart("VertScrollBar", "TControlScrollBar")};
}

TName BorderIconsName() {
    static const TName name = InternName("BorderIcons");
    return name;
}

/// The minimize box counts when an MDI child closes.
HPropDef BorderIconsRow() {
    HPropDef row = KeptSet("BorderIcons", "TBorderIcon", "biSystemMenu,biMinimize,biMaximize");
    row.Get = [](HObject& object, TPropValue& value) { object.GetKept(BorderIconsName(), value); };
    row.Set = [](HObject& object, const TPropValue& value) {
        object.Store(BorderIconsName(), value);
        static_cast<HCustomForm&>(object).SetMinimizeBox(value.Text.find("biMinimize") != std::string::npos);
    };
    return row;
}

HRows FormRows() {
    return {HProp<&HCustomForm::FormStyleValue, &HCustomForm::SetFormStyle>("FormStyle"),
            HProp<&HCustomForm::BorderStyle, &HCustomForm::SetBorderStyle>("BorderStyle"),
            HProp<&HCustomForm::Position, &HCustomForm::SetPosition>("Position"),
            HProp<&HCustomForm::WindowState, &HCustomForm::SetWindowState>("WindowState"),
            HProp<&HCustomForm::ClientWidth, &HCustomForm::SetClientWidth>("ClientWidth"),
            HProp<&HCustomForm::ClientHeight, &HCustomForm::SetClientHeight>("ClientHeight"),
            HProp<&HCustomForm::Menu, &HCustomForm::SetMenu>("Menu"),
            HProp<&HCustomForm::ActiveControlObject, &HCustomForm::SetActiveControlObject>("ActiveControl"),
            HProp<&HCustomForm::ModalResult, &HCustomForm::SetModalResult>("ModalResult"),
            HProp<&HCustomForm::KeyPreview, &HCustomForm::SetKeyPreview>("KeyPreview"),
            BorderIconsRow(),
            KeptPart("Icon", "TIcon"),
            KeptInt("AlphaBlendValue", 255),
            KeptInt("PixelsPerInch", 96),
            KeptInt("BorderWidth"),
            KeptInt("SnapBuffer", 10),
            KeptInt("TransparentColorValue"),
            KeptText("HelpFile"),
            KeptEnum("DefaultMonitor", "TDefaultMonitor", "dmActiveForm"),
            KeptEnum("PrintScale", "TPrintScale", "poProportional"),
            KeptEnum("PopupMode", "TPopupMode"),
            KeptPart("Padding", "TPadding")};
}

}  // namespace

void RegisterFormsUnit(HClasses& classes) {
    classes.Add("TApplication", "TComponent", nullptr);
    classes.Add("TControlScrollBar", "TPersistent", nullptr,
                Join({Ints({"ButtonSize", "Margin", "Position", "Range", "Size", "ThumbSize"}),
                      Bools({"Smooth", "Tracking"}),
                      Bools({"ParentColor", "Visible"}, true),
                      {KeptInt("Increment", 8), KeptInt("Color", HSystemColor(20)),
                       KeptEnum("Style", "TScrollBarStyle")}}));
    classes.Add("TScrollingWinControl", "TWinControl");
    classes.Add("TCustomForm", "TScrollingWinControl", HMake<HCustomForm>);
    HRows shown = Basic();
    // A form's Visible takes effect once everything is loaded.
    shown.push_back(HProp<&HCustomForm::ShowOnLoad, &HCustomForm::SetShowOnLoad>("Visible"));
    classes.Add(
        "TForm", "TCustomForm", nullptr,
        Join({shown, Captioned(), Aligned(), Acting(), Lettered(), Coloured(HButtonColor), ThreeD(), Docked(),
              FormRows(), ScrollBars(), Objects({"ObjectMenuItem", "PopupParent", "WindowMenu"}),
              Bools({"AlphaBlend", "AutoSize", "OldCreateOrder", "ParentFont", "ScreenSnap",
                     "TransparentColor", "UseDockManager"}),
              Bools({"AutoScroll", "Scaled"}, true)}));
    classes.Add("TCustomFrame", "TScrollingWinControl", HMake<HCustomFrame>);
    classes.Add("TFrame", "TCustomFrame", nullptr,
                Join({Windowed(), Aligned(), Coloured(HButtonColor, true), ThreeD(), Docked(), ScrollBars(),
                      Bools({"AutoScroll", "AutoSize"}), Bools({"ParentBackground"}, true)}));
    classes.Add(
        "TScrollBox", "TScrollingWinControl", HMake<HBorderedControl>,
        Join({Windowed(),
              Aligned(),
              Coloured(HButtonColor, true),
              ThreeD(),
              Docked(),
              Bevelled(),
              ScrollBars(),
              Bools({"AutoSize"}),
              Bools({"AutoScroll"}, true),
              {KeptEnum("BorderStyle", "TBorderStyle", "bsSingle"), KeptPart("Padding", "TPadding")}}));
    classes.Add("TDataModule", "TComponent", HMake<HDataModule>,
                Join({Bools({"OldCreateOrder"}), Ints({"Height", "Width"})}));
}

}  // namespace rux
