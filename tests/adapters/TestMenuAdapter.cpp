// Menu items, driven by their own code.
#include "AdapterTestSupport.h"

namespace rux::test {

namespace {

class MenuAdapter : public TAdapterTest {
 protected:
    MenuAdapter()
        : TAdapterTest({R"(object F: TForm Visible = True
            object Pop: TPopupMenu OnPopup = X
              object Plain: TMenuItem OnClick = X end
              object Off: TMenuItem Enabled = False AutoCheck = True OnClick = X end
              object Tick: TMenuItem AutoCheck = True OnClick = X end
              object Left: TMenuItem RadioItem = True GroupIndex = 1 Checked = True AutoCheck = True end
              object Right: TMenuItem RadioItem = True GroupIndex = 1 AutoCheck = True end
              object Doomed: TMenuItem OnClick = Die end
              object Linked: TMenuItem Action = Act end
            end
            object Act: TAction AutoCheck = True Enabled = False OnExecute = X end
          end)"}) {}
};

}  // namespace

TEST_F(MenuAdapter, ClicksChecksAndRefuses) {
    const TRow rows[] = {
        // Nothing comes up and nothing is focused.
        {"Plain.Click; Plain.Checked; Plain.Find", "; False; True", "event F.Plain OnClick X"},
        // A disabled item answers the click itself, by doing nothing: no failure.
        {"Off.Click; Off.Checked; Off.Enabled; Plain.Enabled", "; False; False; True", ""},
        {"Tick.Click; Tick.Checked; Tick.Click; Tick.Checked", "; True; ; False",
         "event F.Tick OnClick X; event F.Tick OnClick X"},
        {"Right.Click; Right.Checked; Left.Checked", "; True; False", ""},
        {"Linked.Enabled; Linked.Click; Linked.Checked", "False; ; False", ""},
        {"Doomed.Click; Doomed.Click", "; no adapter", "event F.Doomed OnClick Die"},
        {"Plain.Active; Plain.DbClick; Plain.RightClick",
         "EAdapterException: 当前控件不支持Active方法.; EAdapterException: 当前控件不支持鼠标双击方法.; "
         "EAdapterException: 当前控件不支持鼠标右键方法.",
         ""},
    };
    for (const auto& row : rows) Play(row);
}

}  // namespace rux::test
