// Pages and tabs, values, dates, keys.
#include "platform/headless/classes/HClassTables.h"
#include "platform/headless/toolkit/HEdits.h"
#include "platform/headless/toolkit/HFields.h"
#include "platform/headless/toolkit/HLists.h"
#include "platform/headless/toolkit/HPageControl.h"

namespace rux {

namespace {

HRows TabRows() {
    return Join({Windowed(),
                 Aligned(),
                 Docked(),
                 Objects({"Images"}),
                 Ints({"TabHeight", "TabWidth"}),
                 Bools({"HotTrack", "MultiLine", "OwnerDraw", "RaggedRight", "ScrollOpposite"}),
                 {KeptEnum("Style", "TTabStyle"), KeptEnum("TabPosition", "TTabPosition")}});
}

void RegisterPages(HClasses& classes) {
    classes.Add("TCustomTabControl", "TWinControl", HMake<HCustomTabControl>);
    classes.Add(
        "TPageControl", "TCustomTabControl", HMake<HPageControl>,
        Join({TabRows(),
              {HProp<&HPageControl::ActivePageObject, &HPageControl::SetActivePageObject>("ActivePage"),
               HProp<&HPageControl::TabIndex, &HPageControl::SetTabIndex>("TabIndex")}}));
    classes.Add("TTabSheet", "TWinControl", HMake<HTabSheet>,
                Join({Shown(),
                      Captioned(),
                      Lettered(),
                      Bools({"Highlighted"}),
                      Ints({"BorderWidth", "ImageIndex"}),
                      {HProp<&HTabSheet::TabVisible, &HTabSheet::SetTabVisible>("TabVisible"),
                       HReadOnly<&HTabSheet::PageIndex>("PageIndex"),
                       KeptPart("Constraints", "TSizeConstraints"), KeptEnum("DragMode", "TDragMode")}}));
    classes.Add("TTabControl", "TCustomTabControl", HMake<HTabsControl>,
                Join({TabRows(),
                      Bools({"MultiSelect"}),
                      {HReadOnly<&HCustomTabControl::TabsObject>("Tabs"),
                       HProp<&HCustomTabControl::TabIndex, &HCustomTabControl::SetTabIndex>("TabIndex")}}));
}

void RegisterValues(HClasses& classes) {
    const HRows bar = Join(
        {Shown(), Dragging(), Anchored(), Tabbed(), Aligned(), Ints({"BorderWidth", "Min", "Position"})});
    classes.Add("TTrackBar", "TWinControl", HMake<HInputControl>,
                Join({bar,
                      ThreeD(),
                      Ints({"Frequency", "LineSize"}, 1),
                      Ints({"SelEnd", "SelStart"}),
                      Bools({"SliderVisible"}, true),
                      {KeptInt("Max", 10), KeptInt("PageSize", 2), KeptInt("ThumbLength", 20),
                       KeptEnum("Orientation", "TTrackBarOrientation"),
                       KeptEnum("PositionToolTip", "TPositionToolTip"), KeptEnum("TickMarks", "TTickMark"),
                       KeptEnum("TickStyle", "TTickStyle", "tsAuto")}}));
    classes.Add(
        "TProgressBar", "TWinControl", nullptr,
        Join({bar,
              Bools({"Smooth"}),
              {KeptInt("Max", 100), KeptInt("Step", 10), KeptInt("MarqueeInterval", 10),
               KeptEnum("Orientation", "TProgressBarOrientation"), KeptEnum("Style", "TProgressBarStyle")}}));
    classes.Add("TCustomUpDown", "TWinControl", HMake<HUpDown>);
    classes.Add(
        "TUpDown", "TCustomUpDown", nullptr,
        Join({Shown(),
              Anchored(),
              Tabbed(),
              Bools({"ArrowKeys", "Thousands"}, true),
              Bools({"Wrap"}),
              {HProp<&HUpDown::Associate, &HUpDown::SetAssociate>("Associate"),
               HProp<&HUpDown::Min, &HUpDown::SetMin>("Min"), HProp<&HUpDown::Max, &HUpDown::SetMax>("Max"),
               HProp<&HUpDown::Position, &HUpDown::SetPosition>("Position"), KeptInt("Increment", 1),
               KeptEnum("AlignButton", "TUDAlignButton", "udRight"),
               KeptEnum("Orientation", "TUDOrientation", "udVertical")}}));
    classes.Add("TCustomHotKey", "TWinControl", HMake<HInputControl>);
    // Alt+A: 32768 for Alt, 65 for the key.
    classes.Add("THotKey", "TCustomHotKey", nullptr,
                Join({Windowed(),
                      Bools({"AutoSize"}, true),
                      {KeptInt("HotKey", 32833), KeptSet("InvalidKeys", "THKInvalidKey", "hcNone,hcShift"),
                       KeptSet("Modifiers", "THKModifier", "hkAlt")}}));
    classes.Add("TAnimate", "TWinControl", nullptr,
                Join({Shown(),
                      Anchored(),
                      Aligned(),
                      Coloured(HButtonColor, true),
                      Bools({"Active", "Timers"}),
                      Bools({"AutoSize", "Center", "Transparent"}, true),
                      Ints({"BorderWidth", "Repetitions", "StopFrame"}),
                      Texts({"FileName"}),
                      {KeptEnum("CommonAVI", "TCommonAVI"), KeptInt("StartFrame", 1)}}));
}

void RegisterDates(HClasses& classes) {
    classes.Add("TMonthCalColors", "TPersistent", nullptr,
                {KeptInt("BackColor", HWindowColor), KeptInt("MonthBackColor", 0xFFFFFF),
                 KeptInt("TextColor", HTextColor), KeptInt("TitleBackColor", HSystemColor(2)),
                 KeptInt("TitleTextColor", 0xFFFFFF), KeptInt("TrailingTextColor", HSystemColor(19))});
    const HRows calendar =
        Join({Windowed(),
              Typing(),
              {KeptPart("CalColors", "TMonthCalColors"), KeptFloat("MinDate"), KeptFloat("MaxDate")}});
    classes.Add("TCommonCalendar", "TWinControl", HMake<HInputControl>);
    classes.Add("TDateTimePicker", "TCommonCalendar", HMake<HDateTimePicker>,
                Join({calendar,
                      Bevelled(),
                      Coloured(),
                      Texts({"Format"}),
                      Bools({"ParseInput", "ShowCheckbox"}),
                      Bools({"Checked"}, true),
                      {HProp<&HDateTimePicker::DateValue, &HDateTimePicker::SetDateValue>("Date"),
                       HProp<&HDateTimePicker::DateValue, &HDateTimePicker::SetTimeValue>("Time"),
                       KeptEnum("CalAlignment", "TDTCalAlignment"), KeptEnum("DateFormat", "TDTDateFormat"),
                       KeptEnum("DateMode", "TDTDateMode"), KeptEnum("Kind", "TDateTimeKind")}}));
    classes.Add("TMonthCalendar", "TCommonCalendar", nullptr,
                Join({calendar,
                      Aligned(),
                      Bools({"AutoSize", "MultiSelect", "WeekNumbers"}),
                      Bools({"ShowToday", "ShowTodayCircle"}, true),
                      Ints({"BorderWidth"}),
                      {KeptFloat("Date"), KeptFloat("EndDate"), KeptInt("MaxSelectRange", 31),
                       KeptEnum("FirstDayOfWeek", "TCalDayOfWeek", "dowLocaleDefault")}}));
}

}  // namespace

void RegisterComCtrlsUnit(HClasses& classes) {
    RegisterPages(classes);
    RegisterValues(classes);
    RegisterDates(classes);
}

}  // namespace rux
