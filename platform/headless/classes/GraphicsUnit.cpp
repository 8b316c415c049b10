#include "platform/headless/classes/HClassTables.h"
#include "platform/headless/toolkit/HFont.h"

namespace rux {

void RegisterGraphicsUnit(HClasses& classes) {
    classes.Add("TGraphicsObject", "TPersistent");
    classes.Add(
        "TFont", "TGraphicsObject", HMake<HFont>,
        {HProp<&HFont::Height, &HFont::SetHeight>("Height"), HProp<&HFont::Size, &HFont::SetSize>("Size"),
         KeptInt("Charset", 1), KeptInt("Color", HTextColor), KeptText("Name", "MS Sans Serif"),
         KeptEnum("Pitch", "TFontPitch"), KeptSet("Style", "TFontStyle")});
    classes.Add("TPen", "TGraphicsObject", nullptr,
                {KeptInt("Color"), KeptEnum("Mode", "TPenMode", "pmCopy"), KeptEnum("Style", "TPenStyle"),
                 KeptInt("Width", 1)});
    classes.Add("TBrush", "TGraphicsObject", nullptr,
                {KeptInt("Color", 0xFFFFFF), KeptEnum("Style", "TBrushStyle")});
    classes.Add("TInterfacedPersistent", "TPersistent");
    AddChildren(classes, "TInterfacedPersistent", {"TGraphic", "TPicture"});
    AddChildren(classes, "TGraphic", {"TBitmap", "TIcon", "TMetafile"});
}

}  // namespace rux
