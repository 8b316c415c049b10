#include "Engine/Start/RUXRegistration.h"

#include "Engine/Adapters/RUXInterface.h"
#include "Engine/Adapters/RUXTestAdapters.h"
#include "Engine/Locator/RUXFinderRegistration.h"
#include "Engine/Registry/RUXGroupClassFile.h"
#include "Engine/Registry/RUXIntfDefine.h"
#include "Engine/Registry/RUXTypeRegistry.h"
#include "platform/KernelService.h"
#include "rtl/Text.h"

namespace rux {

namespace {

/// In this order; ILabel stands twice, and a search finds the first.
constexpr const TInterfaceInfo* CompiledInterfaces[] = {
    &IToolBar::Info,  &IEdit::Info,      &IButton::Info,    &IMenu::Info,         &ILabel::Info,
    &IForm::Info,     &ITreeView::Info,  &IList::Info,      &IOutlookBar::Info,   &IPageControl::Info,
    &IComboBox::Info, &IGrid::Info,      &IMatrix::Info,    &ICheckBox::Info,     &IRadioButton::Info,
    &IListBox::Info,  &IListView::Info,  &IPopupMenu::Info, &ICheckListBox::Info, &IToolKit::Info,
    &ILabel::Info,    &IStatusBar::Info,
};

}  // namespace

void RegisterEverything(TEngineState& state) {
    for (const TInterfaceInfo* info : CompiledInterfaces) state.IntfDefines->AddInterface(*info);
    // What a file defines over again is never found.
    state.IntfDefines->LoadFromFile(ChangeFileExt(Platform().Kernel.GetLibraryName(), ".idf"));
    RegisterParserFinders(*state.Registry);
    RegisterTestAdapters(*state.Registry);
    RegisterFinders(*state.Registry);
    // Reads the file beside the library, or makes it.
    IniClassGroup();
}

}  // namespace rux
