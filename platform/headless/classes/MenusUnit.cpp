#include "platform/headless/classes/HClassTables.h"
#include "platform/headless/toolkit/HActions.h"
#include "platform/headless/toolkit/HMenus.h"

namespace rux {

void RegisterMenusUnit(HClasses& classes) {
    classes.Add("TMenuItem", "TComponent", HMake<HMenuItem>,
                {HProp<&HMenuItem::Caption, &HMenuItem::SetCaption>("Caption"),
                 HProp<&HMenuItem::Enabled, &HMenuItem::SetEnabled>("Enabled"),
                 HProp<&HMenuItem::Visible, &HMenuItem::SetVisible>("Visible"),
                 HProp<&HMenuItem::Checked, &HMenuItem::SetChecked>("Checked"),
                 HProp<&HMenuItem::AutoCheck, &HMenuItem::SetAutoCheck>("AutoCheck"),
                 HProp<&HMenuItem::ActionObject, &HMenuItem::SetAction>("Action"), KeptText("Hint"),
                 KeptInt("ImageIndex", -1), KeptInt("ShortCut")});
    classes.Add("TMenu", "TComponent", HMake<HMenu>, {HReadOnly<&HMenu::ItemsObject>("Items")});
    classes.Add("TMainMenu", "TMenu");
    classes.Add("TPopupMenu", "TMenu", HMake<HPopupMenu>);
    classes.Add("TBasicAction", "TComponent", HMake<HCustomAction>);
    classes.Add("TContainedAction", "TBasicAction");
    classes.Add("TCustomAction", "TContainedAction");
    classes.Add("TAction", "TCustomAction", nullptr,
                {HProp<&HCustomAction::Caption, &HCustomAction::SetCaption>("Caption"),
                 HProp<&HCustomAction::Hint, &HCustomAction::SetHint>("Hint"),
                 HProp<&HCustomAction::Enabled, &HCustomAction::SetEnabled>("Enabled"),
                 HProp<&HCustomAction::Visible, &HCustomAction::SetVisible>("Visible"),
                 HProp<&HCustomAction::Checked, &HCustomAction::SetChecked>("Checked"),
                 HProp<&HCustomAction::AutoCheck, &HCustomAction::SetAutoCheck>("AutoCheck")});
    classes.Add("TCustomActionList", "TComponent");
    classes.Add("TActionList", "TCustomActionList");
}

}  // namespace rux
