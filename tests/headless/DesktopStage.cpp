#include "tests/headless/DesktopStage.h"

#include <gtest/gtest.h>

#include "platform/headless/forms/FormParser.h"
#include "platform/headless/toolkit/HClasses.h"
#include "platform/posix/CodePages.h"
#include "rtl/CodePage.h"
#include "rtl/Numbers.h"
#include "rtl/Text.h"
#include "tests/support/PropertyText.h"

namespace rux::test {

namespace {

std::vector<std::string> Split(std::string_view text, char separator) {
    std::vector<std::string> parts;
    while (!text.empty()) {
        const std::size_t end = std::min(text.find(separator), text.size());
        if (const auto part = Trim(text.substr(0, end)); !part.empty()) parts.emplace_back(part);
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    return parts;
}

std::string Word(std::string_view& text) {
    const std::string word(text.substr(0, text.find(' ')));
    text = Trim(text.substr(word.size()));
    return word;
}

std::string Expand(std::string_view text) {
    static constexpr const char* names[] = {" Left = ", " Top = ", " Width = ", " Height = "};
    std::string result;
    for (const std::string& part : Split(text, ' ')) {
        const std::size_t place = part.find('@'), colon = part.find(":T");
        const std::string head = part.substr(0, place);
        if (part.front() == '~')
            result += "On" + part.substr(1) + " = X";
        else if (colon == part.npos)
            result += part;
        else
            result += "object " + head.substr(0, colon) + ": " + head.substr(colon + 1);
        if (colon != part.npos && place != part.npos)
            for (std::size_t i = 0; const std::string& number : Split(part.substr(place + 1), ','))
                result += names[i++] + number;
        result += ' ';
    }
    return result;
}

std::string TextOf(const TPropValue& value) {
    const bool isObject = value.Kind == TTypeKind::Class;
    const auto* component = isObject ? dynamic_cast<HComponent*>(value.Object) : nullptr;
    return component ? component->Path() : PropertyText(value);
}

std::string Short(const HDesktop& desktop, HWnd window) {
    const HWindow* found = desktop.Find(window);
    const std::string name = found ? found->Target->JournalName() : "-";
    return name.starts_with("F.") ? name.substr(2) : name;
}

}  // namespace

TStage::TStage(std::string_view forms, std::string_view methods, std::string_view classes) {
    SetAnsiCodePage(LoadCodePage(936));
    Kit.App().SetTitle("App");
    Desktop.Journal().SetSink(static_cast<unsigned>(HEntry::Event) | static_cast<unsigned>(HEntry::Box),
                              [this](HEntry kind, std::string_view line) { Hear(kind, line); });
    for (const std::string& method : Split(methods, '|')) {
        const std::size_t colon = method.find(':');
        const auto code = [this, actions = method.substr(colon + 1)](HObject&, HEventArgs& args) {
            Do(actions, &args);
        };
        Kit.App().DefineMethod(method.substr(0, colon), code);
    }
    Parents.Load("classes.txt", ReplaceAll(classes, "|", "\n"));
    std::vector<TFormFile> files;
    for (std::string text : Split(Expand(forms), '|')) {
        const bool whole = !files.empty() || text.starts_with("object F:") || text.starts_with("inherited");
        if (!whole) text = "object F: TForm ClientWidth = 400 ClientHeight = 300 " + text + " end";
        files.push_back(ParseFormFile("test.dfm", text));
    }
    Roots = Loader.Load(files);
    Kit.App().SetMainForm(&dynamic_cast<HCustomForm&>(*Roots.front()));
}

void TStage::Record(std::string_view line) {
    if (!FEnded) FJournal.emplace_back(line);
}

void TStage::Hear(HEntry kind, std::string_view line) {
    if (kind != HEntry::Event) return Record(line);
    // "event F.OK OnClick Go" becomes "OK.Click".
    Word(line);
    const std::string path = Word(line);
    Record(path.substr(path.starts_with("F.") ? 2 : 0) + "." + Word(line).substr(2));
}

std::string TStage::Journal() {
    std::string text;
    for (const std::string& line : std::exchange(FJournal, {})) text += (text.empty() ? "" : "; ") + line;
    return text;
}

std::string TStage::Play(std::string_view actions) {
    for (const std::string& action : Split(actions, ';')) FActions.push_back(action);
    FActions.push_back("terminate");
    Schedule();
    Kit.App().Run();
    return Journal();
}

void TStage::Schedule() {
    if (FActions.empty()) return;
    const auto timer = std::make_shared<unsigned>(0);
    *timer = Desktop.SetTimer(0, [this, timer] {
        Desktop.KillTimer(*timer);
        Step();
    });
}

void TStage::Step() {
    const std::string action = FActions.front();
    FActions.pop_front();
    // The next one's turn comes in whatever loop this one runs, but behind timers of the time that passes.
    const bool passes = action.starts_with("wait");
    if (!passes) Schedule();
    try {
        Act(action, nullptr);
    } catch (const Exception& error) {
        Record(std::string(error.ClassName()) + ": " + error.Message());
    }
    if (passes) Schedule();
}

HComponent* TStage::Find(std::string_view path) {
    std::vector<std::string> names = Split(path, '.');
    HComponent* scope = Kit.App().FindComponent(names.front());
    if (scope)
        names.erase(names.begin());
    else
        scope = Kit.App().FindComponent("F");
    for (const std::string& name : names) scope = scope ? scope->FindComponent(name) : nullptr;
    return scope;
}

std::string TStage::Read(std::string_view path) {
    // The longest part that names an object, then properties.
    HObject* object = nullptr;
    std::size_t dot = path.rfind('.');
    for (; dot != path.npos && !(object = Find(path.substr(0, dot)));)
        dot = dot ? path.rfind('.', dot - 1) : path.npos;
    if (!object) return "no object";
    TPropValue value{.Text = {}, .Object = object};
    for (const std::string& name : Split(path.substr(dot), '.')) {
        object = dynamic_cast<HObject*>(value.Object);
        if (!object || !object->GetProp(FindName(name), value)) return "?";
    }
    return TextOf(value);
}

void TStage::SetProperty(const std::string& path, const std::string& text) {
    HComponent& object = *Find(path.substr(0, path.rfind('.')));
    const TName name = InternName(path.substr(path.rfind('.') + 1));
    const HPropDef* def = object.Def().Props->Find(name);
    const TTypeKind kind = def ? def->Kind : TTypeKind::String;
    object.SetProp(name, kind == TTypeKind::Integer       ? HIntegerValue(StrToIntDef(text, 0))
                         : kind == TTypeKind::Enumeration ? HEnumValue(*def->Enum, def->Enum->OrdinalOf(text))
                         : kind == TTypeKind::Class       ? HObjectValue(Find(text))
                                                          : HStringValue(text));
}

bool TStage::ActOnControl(std::string_view verb, HControl& control, std::string_view rest) {
    static constexpr std::pair<std::string_view, unsigned> rows[] = {
        {"down", WM_LBUTTONDOWN}, {"rclick", WM_RBUTTONDOWN}, {"click", WM_LBUTTONDOWN},
        {"up", WM_LBUTTONUP},     {"dbl", WM_LBUTTONDBLCLK},  {"move", WM_MOUSEMOVE},
        {"rup", WM_RBUTTONUP}};
    const auto row =
        std::find_if(std::begin(rows), std::end(rows), [&](const auto& r) { return r.first == verb; });
    if (row == std::end(rows)) return false;
    const std::vector<std::string> point = Split(rest.empty() ? "2,2" : rest, ',');
    // As the window system does: a control without a window gets it through its parent's.
    const HRef<HControl> alive(&control);
    const auto send = [&](unsigned message) {
        const bool own = control.IsWindowed();
        HWinControl& window = own ? dynamic_cast<HWinControl&>(control) : *control.ParentControl();
        const TPoint p{StrToInt(point[0]) + (own ? 0 : control.Left()),
                       StrToInt(point[1]) + (own ? 0 : control.Top())};
        Desktop.SendMessageA(window.Handle(), message, 0, MakePointParam(p));
    };
    send(row->second);
    if (alive && verb.ends_with("click")) send(row->second + WM_LBUTTONUP - WM_LBUTTONDOWN);
    return true;
}

void TStage::ActOnForm(std::string_view verb, HCustomForm& form) {
    const std::string name = form.Name();
    if (verb == "show") form.Show();
    if (verb == "hide") form.Hide();
    if (verb == "release") form.Release();
    if (verb == "close") Desktop.SendMessageA(form.Handle(), WM_CLOSE, 0, 0);
    if (verb == "modal") {
        const int result = form.ShowModal();
        Record("modal " + name + "=" + IntToStr(result));
    }
}

bool TStage::ActOnDesktop(std::string_view verb, const std::string& rest, HEventArgs* args) {
    const auto key = static_cast<std::uint8_t>(StrToIntDef(rest, 0));
    if (verb == "key" || verb == "keydown") Desktop.keybd_event(key, 0, 0, 0);
    if (verb == "key" || verb == "keyup") Desktop.keybd_event(key, 0, 2, 0);
    if (verb == "say") Record(rest);
    if (verb == "raise") throw Exception(rest);
    if (verb == "abort") throw EAbort("Operation aborted");
    if (verb == "box") Kit.App().MessageBox(rest, "Box");
    if (verb == "pump") Kit.App().ProcessMessages();
    if (verb == "wait") Clock.Advance(key);
    if (verb == "refuse") args->Allow = false;
    if (verb == "answer") args->Value = key;
    if (verb == "type")
        for (const char c : rest)
            Desktop.PostMessageA(Desktop.GetFocus(), WM_CHAR, static_cast<WParam>(c), 0);
    if (verb == "terminate") {
        FEnded = true;
        Kit.App().Terminate();
    }
    if (verb == "where") {
        const std::string focus = Short(Desktop, Desktop.GetFocus()),
                          capture = Short(Desktop, Desktop.GetCapture());
        Record("focus " + focus + (capture == "-" ? "" : " capture " + capture) +
               (focus == "-" ? " active " + Short(Desktop, Desktop.GetActiveWindow()) : ""));
    }
    return std::string_view(
               " key keydown keyup say raise abort box pump wait refuse answer type terminate where ")
               .find(" " + std::string(verb) + " ") != std::string_view::npos;
}

void TStage::Do(std::string_view actions, HEventArgs* args) {
    for (const std::string& action : Split(actions, ';')) Act(action, args);
}

void TStage::Act(std::string_view action, HEventArgs* args) {
    const std::string verb = Word(action);
    if (ActOnDesktop(verb, std::string(action), args)) return;
    const std::string path = Word(action);
    if (verb == "set") return SetProperty(path, std::string(action));
    if (verb == "get") return Record(path + "=" + Read(path));
    HComponent* object = Find(path);
    if (!object) return Record("no " + path);
    auto* control = dynamic_cast<HControl*>(object);
    if (control && ActOnControl(verb, *control, action)) return;
    if (verb == "free") return object->Free();
    if (verb == "focus") return dynamic_cast<HWinControl&>(*control).SetFocus();
    if (verb == "destroy") return Desktop.DestroyWindow(Window(path));
    if (verb != "rect") return ActOnForm(verb, dynamic_cast<HCustomForm&>(*object));
    const TRect r = control->ScreenRect();
    Record(IntToStr(r.Left) + "," + IntToStr(r.Top) + "-" + IntToStr(r.Right) + "," + IntToStr(r.Bottom));
}

void PlayAll(std::string_view scenes) {
    SetAnsiCodePage(LoadCodePage(936));
    std::string form;
    for (std::string_view line : Split(Ansi(ReplaceAll(scenes, "\n    ", " ")), '\n')) {
        if (line.starts_with('#')) continue;
        if (line.starts_with("form ")) {
            form = line.substr(5);
            continue;
        }
        const std::string whole(line);
        const std::size_t code = line.find(" >> ");
        const std::string_view methods = code == line.npos ? std::string_view() : line.substr(0, code);
        if (code != line.npos) line.remove_prefix(code + 4);
        const std::size_t arrow = line.find("=>");
        ASSERT_NE(arrow, line.npos) << whole;
        EXPECT_EQ(TStage(form, methods).Play(line.substr(0, arrow)), Trim(line.substr(arrow + 2)))
            << form << "\n"
            << whole;
    }
}

}  // namespace rux::test
