// Action managers and the bars that show their actions: ActnMan, ActnCtrls, ActnMenus, BandActn.
#include "platform/headless/classes/HClassTables.h"
#include "platform/headless/toolkit/HLists.h"

namespace rux {

namespace {

void RegisterClients(HClasses& classes) {
    classes.Add("TActionClient", "TCollectionItem", nullptr,
                Join({Objects({"ActionBar", "ContextItems"}),
                      Bools({"AutoSize", "Visible"}, true),
                      {KeptInt("Color", HButtonColor)}}));
    classes.Add("TActionClientItem", "TActionClient", nullptr,
                Join({Objects({"Action"}),
                      Texts({"Caption"}),
                      Ints({"HelpContext", "ShortCut", "MergeIndex"}),
                      Bools({"Default", "NewRow", "NewCol"}),
                      Bools({"ShowCaption", "ShowGlyph", "ShowShortCut"}, true),
                      {KeptInt("ImageIndex", -1), KeptInt("LastSession"), KeptInt("UsageCount")}}));
    classes.AddCollection("TActionClients", "TActionClientItem");
    classes.Add("TActionBarItem", "TActionClient", nullptr, {KeptPart("Items", "TActionClients")});
    classes.AddCollection("TActionBars", "TActionBarItem");
}

}  // namespace

void RegisterActionBarUnits(HClasses& classes) {
    RegisterClients(classes);
    classes.Add("TCustomActionManager", "TCustomActionList");
    classes.Add("TActionManager", "TCustomActionManager", nullptr,
                Join({Objects({"DisabledImages", "Images", "LargeImages", "LargeDisabledImages"}),
                      Texts({"FileName", "StyleName"}),
                      {KeptPart("ActionBars", "TActionBars"), KeptPart("LinkedActionLists", "TCollection"),
                       KeptPart("PrioritySchedule", "TStringList"), KeptEnum("State", "TActionListState")}}));
    classes.Add("TCustomizeActionBars", "TCustomAction");
    classes.Add("TCustomizeDlg", "TComponent", nullptr,
                Join({Objects({"ActionManager"}), Bools({"StayOnTop"})}));

    classes.Add("TCustomActionBar", "TCustomControl");
    classes.Add("TCustomActionDockBar", "TCustomActionBar");
    classes.Add("TCustomActionToolBar", "TCustomActionDockBar");
    const HRows bar = Join({Basic(),
                            Aligned(),
                            Captioned(),
                            Lettered(),
                            Coloured(HButtonColor, true),
                            Objects({"ActionManager"}),
                            Bools({"AllowHiding", "AllowResize", "AutoSizing"}, true),
                            Ints({"Spacing"}),
                            {KeptInt("EdgeInner"), KeptInt("EdgeOuter")}});
    classes.Add("TActionToolBar", "TCustomActionToolBar", HMakeAligned<HWinControl, HAlign::alTop>, bar);
    classes.Add("TCustomActionMenuBar", "TCustomActionDockBar");
    classes.Add("TCustomActionMainMenuBar", "TCustomActionMenuBar");
    classes.Add("TActionMainMenuBar", "TCustomActionMainMenuBar", HMakeAligned<HWinControl, HAlign::alTop>,
                Join({bar, Bools({"UseSystemFont"}, true)}));
    classes.Add("TPopupActionBar", "TPopupMenu");
}

}  // namespace rux
