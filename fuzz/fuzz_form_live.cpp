// Any form file brought to life: shown, described, read by every name, clicked on and freed again.
#include <cstdint>

#include "fuzz/FuzzEngine.h"
#include "platform/headless/loader/HDump.h"

namespace rux::fuzz {

void ReadEverything(HComponent& component) {
    TPropValue value;
    if (const auto& props = component.Def().Props)
        for (const HPropDef* prop : props->All()) Demand(component.GetProp(prop->Name, value));
    for (const auto& [name, stored] : component.StoredProps()) Demand(component.GetProp(name, value));
}

/// What its code raises while it is used is the form's affair, not a fault.
template <class Code>
void Tolerate(Code code) {
    try {
        code();
    } catch (const Exception&) {
    }
}

void Click(HControl& control) {
    auto* window = dynamic_cast<HWinControl*>(&control);
    if (!window || !window->HandleAllocated()) return;
    HDesktop& desktop = FuzzEngine().Desktop.Desktop();
    desktop.PostMessageA(window->Handle(), WM_LBUTTONDOWN, 1, 0);
    desktop.PostMessageA(window->Handle(), WM_LBUTTONUP, 0, 0);
}

void Use(const HFormLoader& loader, const std::vector<HComponent*>& roots) {
    HToolkit& kit = FuzzEngine().Desktop.Toolkit();
    Tolerate([&] { ShowLoadedForms(roots); });
    if (auto* form = dynamic_cast<HCustomForm*>(roots.front())) Tolerate([&] { form->Show(); });
    DumpComponents(roots, [&](const HComponent& c) { return loader.LacksAncestor(c); });
    ReadEverything(*roots.front());
    for (const std::unique_ptr<HComponent>& component : roots.front()->Components()) {
        ReadEverything(*component);
        if (auto* control = dynamic_cast<HControl*>(component.get())) Click(*control);
    }
    Tolerate([&] { kit.App().ProcessMessages(); });
}

}  // namespace rux::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace rux;
    HToolkit& kit = fuzz::FuzzEngine().Desktop.Toolkit();
    const HClassParents parents;
    HFormLoader loader(kit, parents);
    std::vector<HComponent*> roots;
    try {
        roots = loader.Load({ParseFormFile("fuzz.dfm", {reinterpret_cast<const char*>(data), size})});
    } catch (const Exception&) {
        return 0;
    }
    if (roots.empty()) return 0;
    fuzz::Use(loader, roots);
    const std::uint64_t root = roots.front()->RefNumber();
    if (kit.Find(root)) roots.front()->Free();
    kit.App().ProcessMessages();
    fuzz::Demand(!kit.Find(root));
    return 0;
}
