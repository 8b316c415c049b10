// Components of the application itself and of the system: AppEvnts, XPMan, ScktComp, OleCtnrs, MPlayer.
#include "platform/headless/classes/HClassTables.h"
#include "platform/headless/toolkit/HLists.h"

namespace rux {

void RegisterSystemUnits(HClasses& classes) {
    AddChain(classes, "TComponent", {"TCustomApplicationEvents", "TApplicationEvents"});
    AddChildren(classes, "TComponent",
                {"TXPManifest", "TAbstractSocket", "TDdeClientConv", "TDdeClientItem", "TDdeServerConv",
                 "TDdeServerItem", "TOleServer"});
    AddChildren(classes, "TAbstractSocket", {"TCustomSocket", "TCustomServerSocket"});
    classes.Add("TClientSocket", "TCustomSocket", nullptr,
                Join({Texts({"Address", "Host", "Service"}), Ints({"Port"}), Bools({"Active"})}));
    classes.Add("TServerSocket", "TCustomServerSocket", nullptr,
                Join({Texts({"Service"}), Ints({"Port", "ThreadCacheSize"}), Bools({"Active"})}));
    classes.Add("TOleContainer", "TCustomControl", HMake<HInputControl>,
                Join({Windowed(), Aligned(), Coloured(), ThreeD(), Bools({"Iconic"}),
                      Bools({"AutoVerbMenu"}, true)}));
    classes.Add("TMediaPlayer", "TCustomControl", HMake<HInputControl>,
                Join({Shown(), Anchored(), Tabbed(), Texts({"FileName"}), Bools({"AutoOpen", "Shareable"}),
                      Bools({"AutoEnable", "AutoRewind"}, true)}));
    classes.Add("TWebBrowser", "TOleControl", HMake<HInputControl>, Join({Windowed(), Aligned()}));
}

}  // namespace rux
