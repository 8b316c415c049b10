#include "host/app/HostForms.h"

#include <memory>

#include "host/InputFile.h"
#include "host/sample/Orders.h"
#include "host/sample/OrdersForms.h"
#include "platform/headless/forms/FormParser.h"
#include "platform/headless/loader/HDump.h"
#include "platform/headless/toolkit/HForm.h"
#include "rtl/CodePage.h"
#include "rtl/Text.h"

namespace rux {

std::vector<TFormFile> ReadForms(const THostOptions& options) {
    std::vector<TFormFile> files;
    if (!options.Sample.empty())
        for (const TEmbeddedForm& form : OrdersForms())
            files.push_back(ParseFormFile(std::string(form.FileName), form.Bytes));
    for (const std::string& name : options.FormFiles)
        files.push_back(ParseFormFile(name, ReadInputFile(name)));
    return files;
}

THostForms::THostForms(HToolkit& kit, const THostOptions& options, const std::vector<TFormFile>& files)
    : FKit(kit), FLoader(kit, FParents) {
    if (!options.ClassFile.empty()) FParents.Load(options.ClassFile, ReadInputFile(options.ClassFile));
    if (!options.Sample.empty()) FLoader.SetRootHook(AttachOrdersCode);
    FRoots = FLoader.Load(files);
    for (HComponent* root : FRoots)
        if (auto* form = dynamic_cast<HCustomForm*>(root); form && !kit.App().MainFormObject())
            kit.App().SetMainForm(form);
    for (const std::string& name : options.Show) FShow.push_back(&FormNamed(name));
    for (const std::string& name : options.Modal) FModal.push_back(&FormNamed(name));
}

HCustomForm& THostForms::FormNamed(const std::string& name) const {
    std::string known;
    for (HComponent* root : FRoots) {
        auto* form = dynamic_cast<HCustomForm*>(root);
        if (form && SameText(form->PlainName(), Utf8ToAnsi(name))) return *form;
        if (form) known += (known.empty() ? "" : ", ") + AnsiToUtf8(form->PlainName());
    }
    throw THostUsageError("found \"" + name + "\" behind --show or --modal, expected a loaded form (" +
                          known + ")");
}

void THostForms::Show() {
    if (HCustomForm* main = FKit.App().MainFormObject()) main->Show();
    ShowLoadedForms(FRoots);
    for (HCustomForm* form : FShow) form->Show();
}

void THostForms::QueueModal() {
    for (HCustomForm* form : FModal) {
        const auto timer = std::make_shared<unsigned>(0);
        *timer = FKit.Desktop().SetTimer(0, [this, form, timer] {
            FKit.Desktop().KillTimer(*timer);
            try {
                form->ShowModal();
            } catch (const std::exception& error) {
                FKit.App().HandleException(error);
            }
        });
    }
}

std::string THostForms::Dump() const {
    return AnsiToUtf8(
        DumpComponents(FRoots, [this](const HComponent& c) { return FLoader.LacksAncestor(c); }));
}

}  // namespace rux
