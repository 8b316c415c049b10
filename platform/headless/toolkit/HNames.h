// Names that the toolkit's own code asks for again and again, interned once.
#pragma once

#include "rtl/Names.h"

namespace rux {

struct HNames {
    TName Caption = InternName("Caption"), Hint = InternName("Hint"), Checked = InternName("Checked"),
          ImageIndex = InternName("ImageIndex"), ShortCut = InternName("ShortCut"),
          HelpContext = InternName("HelpContext"), OnClick = InternName("OnClick"),
          OnDblClick = InternName("OnDblClick"), OnMouseDown = InternName("OnMouseDown"),
          OnMouseUp = InternName("OnMouseUp"), OnMouseMove = InternName("OnMouseMove"),
          OnEnter = InternName("OnEnter"), OnExit = InternName("OnExit"), OnKeyDown = InternName("OnKeyDown"),
          OnKeyUp = InternName("OnKeyUp"), OnKeyPress = InternName("OnKeyPress"),
          OnChange = InternName("OnChange"), OnCreate = InternName("OnCreate"),
          OnDestroy = InternName("OnDestroy"), OnShow = InternName("OnShow"), OnHide = InternName("OnHide"),
          OnClose = InternName("OnClose"), OnCloseQuery = InternName("OnCloseQuery"),
          OnActivate = InternName("OnActivate"), OnDeactivate = InternName("OnDeactivate"),
          OnExecute = InternName("OnExecute"), OnUpdate = InternName("OnUpdate"),
          OnPopup = InternName("OnPopup"), OnTimer = InternName("OnTimer"),
          OnContextPopup = InternName("OnContextPopup"), OnChanging = InternName("OnChanging"),
          OnExpanding = InternName("OnExpanding"), OnExpanded = InternName("OnExpanded"),
          OnCollapsing = InternName("OnCollapsing"), OnCollapsed = InternName("OnCollapsed"),
          OnEditing = InternName("OnEditing"), OnEdited = InternName("OnEdited"),
          OnSelectItem = InternName("OnSelectItem"), OnColumnClick = InternName("OnColumnClick"),
          OnDropDown = InternName("OnDropDown"), OnCloseUp = InternName("OnCloseUp"),
          OnSelect = InternName("OnSelect"), OnClickCheck = InternName("OnClickCheck");
};

}  // namespace rux
