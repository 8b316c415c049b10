#include "Engine/Registry/RUXUsableControls.h"

#include "Engine/Core/RUXEngineState.h"
#include "Engine/Registry/RUXGroupClassFile.h"
#include "Engine/Registry/RUXIntfDefine.h"
#include "rtl/Text.h"

namespace rux {

namespace {

void AppendInDetail(std::string& text, const TRUXMethodDefine& method) {
    text += "\r\n  " + LowerCase(method.Name) + ": ";
    for (const TRUXParamDefine& param : method.Items())
        text += "\r\n  - - " + param.Name + "\r\n    - " + param.Kind;
    text += "\r\n  - " + method.ReturnType;
}

}  // namespace

std::string GetUsableControlsText(bool detail) {
    const TRUXIntfDefineList& defines = *Engine().IntfDefines;
    std::string text = "---\r\n";
    for (const std::string& group : IniClassGroup().GetGroups()) {
        text += LowerCase(group) + ": ";
        if (const TRUXIntfDefine* define = defines.FindDefine("I" + group)) {
            for (const TRUXMethodDefine& method : define->Items()) {
                if (detail)
                    AppendInDetail(text, method);
                else
                    text += "\r\n- " + LowerCase(method.Name);
            }
        }
        text += "\r\n";
    }
    return text;
}

}  // namespace rux
