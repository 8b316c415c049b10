// The fast search against the plain one, on forms and locators that nobody thought of.
#include <random>

#include "LocatorTestSupport.h"
#include "PlainLocator.h"

namespace rux::test {

namespace {

class TAgainstPlain : public TLocatorTest {
 protected:
    int Pick(int from, int to) { return std::uniform_int_distribution<int>(from, to)(FRandom); }
    template <std::size_t N>
    std::string Pick(const char* const (&from)[N]) {
        return from[static_cast<std::size_t>(Pick(0, static_cast<int>(N) - 1))];
    }

    /// A tree of controls in few places and sizes, so that covering, touching and ties are frequent.
    void MakeForms(unsigned seed, int controls) {
        FRandom.seed(seed);
        for (int f = 0; f < 2; ++f) {
            auto form = Kit().MakeAs<HCustomForm>("TForm");
            form->SetName("F" + std::to_string(f));
            form->SetBounds({Pick(0, 300), Pick(0, 300), Pick(500, 900), Pick(500, 900)});
            if (Pick(0, 1)) form->SetText("Form " + std::to_string(f));
            auto& kept = static_cast<HCustomForm&>(Kit().App().Own(std::move(form)));
            std::vector<HWinControl*> parents{&kept};
            for (int i = 0; i < controls; ++i) AddControl(kept, parents, i);
            kept.Show();
        }
    }

    void AddControl(HCustomForm& form, std::vector<HWinControl*>& parents, int number) {
        static const char* const classes[] = {"TLabel", "TEdit", "TButton", "TPanel", "TPanel", "TCheckBox"};
        static const char* const captions[] = {"a", "b", "ab", "A B", "  ", "", "a#b", "a_b", "a\\b"};
        auto control = Kit().MakeAs<HControl>(Pick(classes));
        control->SetName(form.PlainName() + "C" + std::to_string(number));
        control->SetText(Pick(captions));
        if (Pick(0, 3) == 0) control->SetProp(InternName("Hint"), HStringValue(Pick(captions)));
        HWinControl* parent =
            parents[static_cast<std::size_t>(Pick(0, static_cast<int>(parents.size()) - 1))];
        const int left = Pick(-2, 6) * 20, top = Pick(-2, 6) * 20 + Pick(0, 6);
        control->SetBounds({left, top, left + Pick(0, 4) * 20, top + Pick(0, 4) * 20});
        if (Pick(0, 20) == 0) control->SetBounds({0, 0, parent->Width(), parent->Height()});
        control->SetVisible(Pick(0, 9) > 0);
        auto& kept = static_cast<HControl&>(form.Own(std::move(control)));
        kept.SetParent(parent);
        if (auto* panel = dynamic_cast<HWinControl*>(&kept); panel && Pick(0, 2)) parents.push_back(panel);
    }

    std::string MakeLocator() {
        static const char* const texts[] = {"a",    "b",   "ab",    "A B",   "C1", "F0",
                                            "Form", "\\#", "a\\_b", "a\\\\", " "};
        static const char* const words[] = {"TEdit", "Button", "Label", "tpanel", "Edit", "#", ""};
        static const char* const indexes[] = {"1", "2", "3", "$", "0", "$2", "x", "9"};
        static const char* const moves[] = {">", "<", "^", "_"};
        std::string locator;
        for (int steps = Pick(0, 4); steps > 0; --steps) {
            const int kind = Pick(0, 9);
            locator += kind < 2    ? std::string("/")
                       : kind == 2 ? "#" + Pick(indexes)
                       : kind < 6  ? "?" + Pick(words)
                       : kind < 8  ? Pick(moves)
                                   : Pick(texts);
        }
        return locator;
    }

 private:
    std::mt19937 FRandom;
};

}  // namespace

TEST_F(TAgainstPlain, GeneratedLocatorsOnGeneratedForms) {
    int found = 0, failed = 0;
    for (unsigned seed = 1; seed <= 20; ++seed) {
        MakeForms(seed, seed % 5 == 0 ? 150 : 25);
        for (int i = 0; i < 150; ++i) {
            const std::string locator = MakeLocator();
            const bool part = i % 2 == 0;
            const std::string expected = PlainLocate(Kit(), locator, part);
            ASSERT_EQ(Locate(locator, part), expected)
                << "seed " << seed << " locator " << locator << " part " << part;
            found += !expected.empty();
            failed += expected.starts_with("E");
        }
        while (!Kit().Forms().empty()) Kit().Forms().front()->Free();
        Desktop.Desktop().EmptyGraveyard();
    }
    // The generator must not wear out: most locators find something, some fail.
    EXPECT_GT(found, 1000);
    EXPECT_GT(failed, 100);
}

}  // namespace rux::test
