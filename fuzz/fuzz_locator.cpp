// The locator language: any text over one form, held against the plain version of the search where that one
// can follow.
#include <algorithm>
#include <cstdint>

#include "Engine/Core/RUXClasses.h"
#include "Engine/Locator/RUXTestLocatorParser.h"
#include "fuzz/FuzzEngine.h"
#include "tests/locator/PlainLocator.h"

namespace rux::fuzz {

constexpr const char* FormText = R"(object F: TForm Caption = 'Main' Width = 400 Height = 300
  object a: TLabel Left = 10 Top = 10 Width = 50 Height = 13 Caption = 'name' end
  object b: TEdit Left = 70 Top = 8 Width = 100 Height = 20 Text = 'a#b' end
  object c: TEdit Left = 70 Top = 38 Width = 100 Height = 20 Hint = 'O K' end
  object p: TPanel Left = 10 Top = 70 Width = 200 Height = 100 Caption = ' '
    object d: TButton Left = 10 Top = 10 Width = 75 Height = 25 Caption = 'ok' end
    object e: TButton Left = 10 Top = 40 Width = 75 Height = 25 Caption = 'OK\' end
    object q: TPanel Left = 100 Top = 0 Width = 100 Height = 100
      object f: TLabel Left = 10 Top = 12 Width = 50 Height = 13 Caption = 'name' end
    end
  end
end)";

void LoadForm() {
    static HClassParents parents;
    static HFormLoader loader(FuzzEngine().Desktop.Toolkit(), parents);
    static const std::vector<HComponent*> roots = loader.Load({ParseFormFile("form", FormText)});
    dynamic_cast<HCustomForm&>(*roots.at(0)).Show();
}

std::string Locate(std::string_view locator, bool part) {
    TSolviLocatorParser parser(&FuzzEngine().Desktop.Toolkit().Application(), part);
    try {
        std::string names;
        const TIntf<ICommonLocator> list = parser.Locate(locator);
        for (int i = 0; i < list->GetCount(); ++i)
            names += Cast<TComponent>(list->GetItem(i)->GetObject()).Name() + " ";
        return names;
    } catch (const EAssertionFailed& error) {
        return std::string(error.ClassName());
    } catch (const Exception& error) {
        return std::string(error.ClassName()) + ": " + error.Message();
    }
}

/// The plain version goes by bytes, keeps code 1 and takes twice as long with each position step.
bool PlainCanFollow(std::string_view text) {
    const auto positions = std::count_if(text.begin(), text.end(),
                                         [](char c) { return c == '<' || c == '>' || c == '^' || c == '_'; });
    return positions <= 4 && text.size() < 200 &&
           std::all_of(text.begin(), text.end(), [](char c) { return c >= ' ' && c < 127; });
}

}  // namespace rux::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace rux::fuzz;
    FuzzEngine();
    LoadForm();
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    for (const bool part : {true, false}) {
        const std::string found = Locate(text, part);
        if (PlainCanFollow(text))
            Demand(found == rux::test::PlainLocate(FuzzEngine().Desktop.Toolkit(), text, part));
    }
    return 0;
}
