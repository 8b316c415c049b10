#include "AdapterTestSupport.h"

#include <span>

#include "Engine/Request/RUXConversion.h"
#include "Engine/Request/RUXInvoker.h"
#include "platform/headless/forms/FormParser.h"
#include "platform/headless/loader/HFormLoader.h"
#include "platform/headless/toolkit/HButtons.h"
#include "platform/posix/CodePages.h"
#include "rtl/CodePage.h"

namespace rux::test {

namespace {

/// Every event is assigned that shows what an adapter did; X is a method without code, Die ends its sender.
/// The middle of Far lies beyond the right edge of the screen.
constexpr std::string_view FormTexts[] = {
    R"(object Frame: TForm FormStyle = fsMDIForm Visible = True end)",
    R"(object Child: TForm FormStyle = fsMDIChild Visible = True OnActivate = X end)",
    R"(object Second: TForm FormStyle = fsMDIChild Visible = True OnActivate = X end)",
    R"(object Spare: TForm Visible = True OnActivate = X ActiveControl = Kept
         object Kept: TButton Enabled = False OnEnter = X OnClick = X end
       end)",
    R"(object F: TForm Left = 900 Top = 100 Width = 600 Height = 400 Visible = True ActiveControl = Other
         Caption = 'One form' OnClose = X
         object Label1: TLabel Caption = 'A label' OnClick = X end
         object Bare: TLabel end
         object Speed: TSpeedButton OnClick = X end
         object Item: TMenuItem end
         object Other: TEdit Text = 'first' end
         object Edit1: TEdit Left = 10 Top = 20 Width = 100 Height = 24 Text = 'old'
           OnEnter = X OnChange = X OnDblClick = X OnMouseDown = X OnMouseUp = X OnContextPopup = X end
         object Fixed: TEdit Text = 'stays' ReadOnly = True OnEnter = X OnChange = X end
         object Off: TEdit Text = 'off' ReadOnly = True Enabled = False OnEnter = X OnChange = X end
         object Memo: TMemo OnChange = X end
         object Box: TPanel Caption = 'Box'
           object Button1: TButton Caption = '&Do it' OnEnter = X OnClick = X end
         end
         object Doomed: TButton OnEnter = Die OnClick = X end
         object Static1: TStaticText Caption = 'Standing' end
         object Check1: TCheckBox Left = 10 Top = 60 Width = 80 Height = 17 OnEnter = X OnClick = X end
         object Tick: TCheckBox Checked = True OnEnter = X OnClick = X end
         object Near: TRadioButton Checked = True OnEnter = X OnClick = X end
         object Far: TRadioButton Left = 300 Top = 80 Width = 200 Height = 17 OnEnter = X OnClick = X end
         object Date1: TDateTimePicker OnEnter = X OnChange = X end
       end)"};

std::vector<std::string_view> Split(std::string_view text, std::string_view separator) {
    std::vector<std::string_view> parts;
    for (std::size_t end = 0; end != text.npos; text.remove_prefix(end + separator.size())) {
        end = text.find(separator);
        parts.push_back(text.substr(0, end));
        if (end == text.npos) break;
    }
    return parts;
}

std::string Joined(const std::vector<std::string>& parts) {
    std::string all;
    for (const std::string& part : parts) all += (&part == parts.data() ? "" : "; ") + part;
    return all;
}

}  // namespace

TWatchedKernel::TWatchedKernel(TWaitClock& clock) : TPosixKernel(clock, {.ThreadStackSize = 1 << 20}) {}

TAdapterTest::TAdapterTest(std::initializer_list<std::string_view> forms) {
    [[maybe_unused]] static const bool once = (SetAnsiCodePage(LoadCodePage(936)), true);
    RegisterTestAdapters(*Engine.Registry);
    HToolkit& kit = Desktop.Toolkit();
    if (!kit.ClassDefs().FindDef("TSpeedButton"))
        kit.ClassDefs().Add("TSpeedButton", "TGraphicControl", HMake<HSpeedButton>);
    const HClassParents parents;
    HFormLoader loader(kit, parents);
    loader.SetRootHook([&](HComponent& root) {
        root.DefineMethod("Die",
                          [](HObject& sender, HEventArgs&) { static_cast<HComponent&>(sender).Free(); });
        if (!kit.App().MainFormObject()) kit.App().SetMainForm(dynamic_cast<HCustomForm*>(&root));
    });
    std::vector<TFormFile> files;
    const std::span<const std::string_view> usual(FormTexts), given(forms);
    for (const std::string_view text : given.empty() ? usual : given)
        files.push_back(ParseFormFile("test.dfm", Utf8ToAnsi(text)));
    ShowLoadedForms(loader.Load(files));
    const auto note = [this](const std::string& line) { FLines.push_back(line); };
    Kernel.OnSleep = [note](std::uint32_t time) { note("sleep " + std::to_string(time)); };
    Desktop.Desktop().Journal().SetSink(HAllEntries,
                                        [note](HEntry, std::string_view line) { note(AnsiToUtf8(line)); });
}

TAdapterTest::~TAdapterTest() {
    Desktop.Desktop().Journal().SetSink(0, nullptr);
}

HComponent* TAdapterTest::Find(std::string_view name) {
    HComponent* form = Desktop.Toolkit().App().FindComponent(name);
    return form ? form : Desktop.Toolkit().App().FindComponent("F")->FindComponent(name);
}

TIntf<IRUXAdapter> TAdapterTest::AdapterOf(std::string_view name) {
    HComponent* control = Find(name);
    const TAdapterEntry* entry = control ? Engine.Registry->FindAdapterClass(&control->ClassType()) : nullptr;
    return entry ? entry->Make(control) : nullptr;
}

std::string TAdapterTest::Call(std::string_view call) {
    if (call == "pump") {
        Desktop.Toolkit().App().ProcessMessages();
        return {};
    }
    const std::size_t dot = call.find('.'), open = call.find('(');
    const std::string_view name = call.substr(dot + 1, open == call.npos ? open : open - dot - 1);
    std::vector<std::string> args;
    if (open != call.npos)
        for (const std::string_view arg : Split(call.substr(open + 1, call.size() - open - 2), ","))
            args.emplace_back(arg);
    const TIntf<IRUXAdapter> adapter = AdapterOf(call.substr(0, dot));
    if (!adapter) return "no adapter";
    const TIntfMethEntry* method = FindMethod(GetIntfMetaData(adapter->InterfaceInfo()), name, args.size());
    if (!method) return "no method";
    const auto context = method->MakeContext();
    ConvertArguments(*method, *context, args);
    const std::string error = ErrorOf([&] { method->Invoke(*adapter, *context); });
    if (error != "nothing") return error;
    if (!method->ResultType) return {};
    return AnsiToUtf8(ValueToText(*method->ResultType, context->GetResultPointer()));
}

std::string TAdapterTest::Run(std::string_view script) {
    std::vector<std::string> answers;
    for (const std::string_view call : Split(script, "; ")) answers.push_back(Call(call));
    return Joined(answers);
}

std::string TAdapterTest::Journal() {
    return Joined(std::exchange(FLines, {}));
}

}  // namespace rux::test
