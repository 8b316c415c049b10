// Report designers' classes. None has a window at run time; the chains keep them from being taken for
// something else by the places that their form files store.
#include "platform/headless/classes/HClassTables.h"

namespace rux {

void RegisterReportUnits(HClasses& classes) {
    AddChain(classes, "TCustomControl", {"TQRPrintable", "TQRCustomLabel", "TQRLabel"});
    AddChildren(classes, "TQRCustomLabel", {"TQRDBText", "TQRExpr", "TQRSysData", "TQRMemo"});
    AddChildren(classes, "TQRPrintable", {"TQRShape", "TQRImage", "TQRDBImage", "TQRCustomRichText"});
    AddChildren(classes, "TQRCustomRichText", {"TQRRichText", "TQRDBRichText"});
    AddChain(classes, "TCustomControl", {"TQRBasePanel", "TQRCustomBand", "TQRBand"});
    AddChildren(classes, "TQRCustomBand", {"TQRSubDetail", "TQRGroup", "TQRChildBand"});
    AddChain(classes, "TQRBasePanel", {"TCustomQuickRep", "TQuickRep"});

    AddChain(classes, "TComponent", {"TppRelative", "TppCommunicator"});
    AddChildren(classes, "TppCommunicator", {"TppField", "TppDataPipeline", "TppPrintable", "TppProducer"});
    AddChain(classes, "TppDataPipeline", {"TppCustomDataPipeline", "TppDBPipeline"});
    AddChain(classes, "TppPrintable", {"TppComponent", "TppCustomText", "TppLabel"});
    AddChain(classes, "TppCustomText", {"TppDBText"});
    AddChain(classes, "TppComponent", {"TppLine"});

    AddChain(classes, "TComponent",
             {"TfrxComponent", "TfrxReportComponent", "TfrxView", "TfrxStretcheable", "TfrxCustomMemoView",
              "TfrxMemoView"});
    AddChain(classes, "TCustomControl", {"TRLCustomControl", "TRLCustomLabel", "TRLLabel"});
}

}  // namespace rux
