// Classes of libraries beyond the toolkit: flat page controls, the TBX family.
#include "platform/headless/classes/HClassTables.h"
#include "platform/headless/toolkit/HFlatPages.h"
#include "platform/headless/toolkit/HStatusBars.h"

namespace rux {

namespace {

void RegisterFlatPages(HClasses& classes) {
    classes.Add(
        "TFlatPageControl", "TCustomControl", HMake<HFlatPageControl>,
        Join({Windowed(),
              Aligned(),
              Coloured(HButtonColor, true),
              Objects({"Images"}),
              {HProp<&HPageControl::ActivePageObject, &HPageControl::SetActivePageObject>("ActivePage")}}));
    classes.Add("TFlatTabSheet", "TCustomControl", HMake<HFlatTabSheet>,
                Join({Shown(),
                      Captioned(),
                      Lettered(),
                      {HProp<&HTabSheet::TabVisible, &HTabSheet::SetTabVisible>("TabVisible"),
                       HReadOnly<&HTabSheet::PageIndex>("PageIndex"), KeptInt("ImageIndex", -1)}}));
}

void RegisterTBXPages(HClasses& classes) {
    classes.Add("TTBXPageControl", "TPageControl", HMake<HTBXPageControl>,
                {HProp<&HTBXPageControl::TabFlag, &HTBXPageControl::SetTabFlag>("ShowTabs")});
    classes.Add("TTBXTabItem", "TCollectionItem", HMake<HTBXTabItem>,
                {HProp<&HTBXTabItem::Caption, &HTBXTabItem::SetCaption>("Caption"), KeptInt("ImageIndex", -1),
                 KeptText("Hint")});
    classes.AddCollection("TTBXTabItems", "TTBXTabItem");
    classes.Add("TTBXImageTabSet", "TCustomControl", HMake<HTBXImageTabSet>,
                Join({Windowed(),
                      Aligned(),
                      Objects({"Images"}),
                      {HReadOnly<&HTBXImageTabSet::ItemsObject>("TabItems"),
                       HProp<&HTBXImageTabSet::TabIndex, &HTBXImageTabSet::SetTabIndex>("TabIndex")}}));
}

void RegisterTBXStatusBar(HClasses& classes) {
    classes.Add("TTBXStatusPanel", "TCollectionItem", nullptr,
                {KeptText("Caption"), KeptText("Text"), KeptText("Hint"), KeptInt("ImageIndex", -1),
                 KeptInt("Size", 50), KeptInt("Tag"), KeptEnum("Alignment", "TAlignment")});
    classes.AddCollection("TTBXStatusPanels", "TTBXStatusPanel");
    classes.Add("TTBXStatusBar", "TCustomControl", HMake<HTBXStatusBar>,
                Join({Basic(),
                      Aligned(),
                      Acting(),
                      Lettered(),
                      Objects({"Images"}),
                      Bools({"SimplePanel"}),
                      Bools({"SizeGrip", "UseSystemFont"}, true),
                      Texts({"SimpleText"}),
                      {KeptPart("Panels", "TTBXStatusPanels")}}));
}

}  // namespace

void RegisterExtraClasses(HClasses& classes) {
    RegisterFlatPages(classes);
    RegisterTBXPages(classes);
    RegisterTBXStatusBar(classes);
}

}  // namespace rux
