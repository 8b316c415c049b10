#include "platform/headless/classes/HClassTables.h"
#include "platform/headless/toolkit/HMenus.h"

namespace rux {

namespace {

HRows MenuRows() {
    return Join({Objects({"Images"}),
                 Bools({"OwnerDraw"}),
                 Bools({"ParentBiDiMode"}, true),
                 {KeptEnum("AutoHotkeys", "TMenuItemAutoFlag"),
                  KeptEnum("AutoLineReduction", "TMenuItemAutoFlag"), KeptEnum("BiDiMode", "TBiDiMode")}});
}

}  // namespace

void RegisterMenusUnit(HClasses& classes) {
    classes.Add(
        "TMenuItem", "TComponent", HMake<HMenuItem>,
        Join({{HProp<&HMenuItem::Caption, &HMenuItem::SetCaption>("Caption"),
               HProp<&HMenuItem::Enabled, &HMenuItem::SetEnabled>("Enabled"),
               HProp<&HMenuItem::Visible, &HMenuItem::SetVisible>("Visible"),
               HProp<&HMenuItem::Checked, &HMenuItem::SetChecked>("Checked"),
               HProp<&HMenuItem::AutoCheck, &HMenuItem::SetAutoCheck>("AutoCheck"),
               HProp<&HMenuItem::RadioItem, &HMenuItem::SetRadioItem>("RadioItem"),
               HProp<&HMenuItem::GroupIndex, &HMenuItem::SetGroupIndex>("GroupIndex"),
               HProp<&HMenuItem::ShortCut, &HMenuItem::SetShortCut>("ShortCut"),
               HProp<&HMenuItem::ActionObject, &HMenuItem::SetAction>("Action")},
              {KeptEnum("AutoHotkeys", "TMenuItemAutoFlag", "maParent"),
               KeptEnum("AutoLineReduction", "TMenuItemAutoFlag", "maParent"), KeptPart("Bitmap", "TBitmap"),
               KeptEnum("Break", "TMenuBreak"), KeptText("Hint"), KeptInt("ImageIndex", -1)},
              Objects({"SubMenuImages"}),
              Bools({"Default"}),
              Ints({"HelpContext"})}));
    classes.Add("TMenu", "TComponent", HMake<HMenu>, {HReadOnly<&HMenu::ItemsObject>("Items")});
    classes.Add("TMainMenu", "TMenu", nullptr, Join({MenuRows(), Bools({"AutoMerge"})}));
    classes.Add("TPopupMenu", "TMenu", HMake<HPopupMenu>,
                Join({MenuRows(),
                      {HProp<&HPopupMenu::AutoPopup, &HPopupMenu::SetAutoPopup>("AutoPopup")},
                      Ints({"HelpContext"}),
                      {KeptEnum("Alignment", "TPopupAlignment"), KeptSet("MenuAnimation", "TMenuAnimations"),
                       KeptEnum("TrackButton", "TTrackButton")}}));
}

}  // namespace rux
