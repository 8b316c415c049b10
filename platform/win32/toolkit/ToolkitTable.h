// How a toolkit that lives in the application attaches: a table of plain functions.
//
// The application's executable (not one of its libraries) exports a function without arguments under the
// undecorated name "RUXToolkitTable". It answers the address of a RUXTable that is filled in once and
// stays as it is until the process ends, or nil to attach nothing. It is called once, when the agent is
// loaded, by whichever thread loads it: it may not touch live objects.
//
// All of it is 32-bit code, and every function, also the two sinks that the agent passes, is stdcall.
// Structures have the natural alignment of their fields and no packing.
//
// Threads. Every function but Application is called on the thread that owns the application's windows, and
// may be called again while a call of Invoke, SetValue or ReportError has not come back yet: such a call may
// run a modal loop.
//
// Objects. An object is its address as a number, 0 is nil. Numbers come back at any later time, also when
// the object is gone or its address belongs to another one: no function but Alive may follow a number that
// it has not looked up among the living first. For one that is gone every function answers RUX_GONE.
//
// Errors. Nothing may leave a function by raising. What the toolkit or the application raises inside is
// caught there, told to RUXReply.Error, and the answer is RUX_FAILED. Nor does a sink ever raise.
//
// Texts are bytes in the system's ANSI code page. Those of the agent end with a #0 and are valid during the
// call.
//
// Numbers that a function does not know (the agent may be the younger of the two) are answered by RUX_NONE.
#ifndef RUX_TOOLKIT_TABLE_H
#define RUX_TOOLKIT_TABLE_H

#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

#define RUX_CALL __stdcall
#define RUX_TABLE_EXPORT "RUXToolkitTable"
/// Changes when a table of before can no longer be used. A longer table of the same version can be.
#define RUX_TABLE_VERSION 1

typedef uint32_t RUXRef;
/// A class reference as a number; it means the same class until the process ends. 0 is none.
typedef uint32_t RUXClass;
/// One of the answers below.
typedef int32_t RUXStatus;

enum {
    RUX_OK = 0,
    /// The object is gone; or what was to be called is nil.
    RUX_GONE = 1,
    /// There is nothing of the kind: no such property, no child at that index, nothing behind that number
    /// for an object of this class. What the call would have filled in is not looked at.
    RUX_NONE = 2,
    /// An error was told to RUXReply.Error.
    RUX_FAILED = 3
};

/// Where a call's texts and errors go. Valid during the call.
typedef struct RUXReply {
    void* Context;
    /// `length` bytes of the text that the call answers; later calls append to it. Not called: empty.
    void(RUX_CALL* Text)(void* context, const char* bytes, uint32_t length);
    /// Name of the error's class and its message, each ended by a #0. The last one told counts.
    void(RUX_CALL* Error)(void* context, const char* className, const char* message);
} RUXReply;

/// Kinds of values, numbered as the run-time type information of the toolkit's classes names them.
enum {
    RUX_KIND_UNKNOWN,
    RUX_KIND_INTEGER,
    RUX_KIND_CHAR,
    RUX_KIND_WCHAR,
    RUX_KIND_ENUMERATION,
    RUX_KIND_FLOAT,
    RUX_KIND_STRING,
    RUX_KIND_WSTRING,
    RUX_KIND_SET,
    RUX_KIND_CLASS,
    RUX_KIND_METHOD,
    RUX_KIND_INT64,
    RUX_KIND_VARIANT,
    RUX_KIND_COUNT
};

/// One value. Zeroed before it is handed to a function that fills it in.
typedef struct RUXValue {
    int32_t Kind;
    /// CLASS.
    RUXRef Object;
    /// INTEGER, CHAR, WCHAR, INT64, and the ordinal of an ENUMERATION.
    int64_t Ordinal;
    /// FLOAT.
    double Real;
    /// Of a value that is handed in. A value that comes out has its text in RUXReply.Text: STRING, WSTRING
    /// and VARIANT as text, the element's name of an ENUMERATION, the elements of a SET joined by commas
    /// without brackets, the name of a METHOD.
    const char* Text;
    uint32_t TextLength;
} RUXValue;

/// What GetValue and SetValue are about, published or not. In brackets the class and the value's kind;
/// a Boolean is the ordinal 0 or 1.
enum {
    RUX_NAME = 1,              ///< TComponent (STRING)
    RUX_TEXT = 2,              ///< TControl: caption or text; TCustomEdit: set as its property Text (STRING)
    RUX_VISIBLE = 3,           ///< TControl: its own flag, whatever its parents are (ENUMERATION)
    RUX_ENABLED = 4,           ///< TControl, likewise
    RUX_HANDLE_ALLOCATED = 5,  ///< TWinControl (ENUMERATION)
    RUX_FORM_STYLE = 6,        ///< TCustomForm: 0 normal, 1 MDI child, 2 MDI form, 3 on top (ENUMERATION)
    RUX_MODAL = 7,             ///< TCustomForm: fsModal is in FormState (ENUMERATION)
    RUX_ACTIVE = 8,            ///< TCustomForm (ENUMERATION)
    RUX_READ_ONLY = 9,         ///< TCustomEdit (ENUMERATION)
    RUX_CHECKED = 10,          ///< TCustomCheckBox: also set, OnClick fires on a change; TRadioButton: read
    RUX_DATE_TIME = 11,        ///< TDateTimePicker: date and time; also set, nothing fires (FLOAT)
    // RUX_TEXT, RUX_VISIBLE, RUX_ENABLED and RUX_CHECKED of a TMenuItem, RUX_TEXT of a TTreeNode, RUX_TEXT
    // and RUX_CHECKED (also set) of a TListItem are its Caption or Text, Visible, Enabled and Checked.
    // RUX_TEXT of a TCustomCombo can be set.
    /// ItemIndex of TCustomListBox and TCustomCombo, TabIndex of TCustomTabControl, TTabSet, TTBXImageTabSet:
    /// also set, as code sets them. Read alone: TabIndex of TTabSheet, MenuIndex of TMenuItem, index of the
    /// selected item of TShellListView (INTEGER)
    RUX_INDEX = 12,
    RUX_SELECTED_FLAG = 13,  ///< TTreeNode, TListItem: Selected; set alone (ENUMERATION)
    RUX_EXPANDED = 14,       ///< TTreeNode; also set (ENUMERATION)
    RUX_HAS_CHILDREN = 15,   ///< TTreeNode (ENUMERATION)
    RUX_LEVEL = 16,          ///< TTreeNode (INTEGER)
    RUX_ITEM_ID = 17,        ///< TTreeNode: the handle of its item (INT64)
    RUX_CHECK_STATE = 18,    ///< TRichTreeNode: its field; also set, nothing fires (INTEGER)
    RUX_CHECKED_BY_TREE =
        19,                ///< TTreeNode: set by the TRichTreeView's own method, events fire (ENUMERATION)
    RUX_EDITED_TEXT = 20,  ///< TTreeNode: set as if a label edit ended with it: TCustomTreeView.Edit (STRING)
    RUX_SELECTED_NODE = 21,    ///< TCustomTreeView: its Selected; set alone (CLASS)
    RUX_SAVED_FILE = 22,       ///< TCustomTreeView: set saves the tree to the file of that name (STRING)
    RUX_VIEW_STYLE = 23,       ///< TCustomListView: 0 icons, 1 small icons, 2 list, 3 report (ENUMERATION)
    RUX_CAN_CHANGE = 24,       ///< TCustomTabControl: calls CanChange, OnChanging fires (ENUMERATION)
    RUX_ACTIVE_PAGE_SET = 25,  ///< TPageControl, TFlatPageControl: ActivePage; set alone (CLASS)
    RUX_TAB_VISIBLE = 26,      ///< TTabSheet, TFlatTabSheet (ENUMERATION)
    RUX_TAB_FLAG = 27,         ///< TTBXPageControl: 1 for tabs that are shown (INTEGER)
    RUX_PATH = 28              ///< TShellComboBox: Path; also set (STRING)
};

enum {
    RUX_OWNER = 1,        ///< of a TComponent
    RUX_PARENT = 2,       ///< of a TControl
    RUX_POPUP_MENU = 3,   ///< of a TControl
    RUX_MAIN_FORM = 4,    ///< of the application; the object is 0
    RUX_ACTIVE_FORM = 5,  ///< of the screen; the object is 0
    /// The control of this process behind a window: the object is the window's handle. Not asked yet.
    RUX_CONTROL_OF_WINDOW = 6,
    RUX_ROOT_ITEM = 7,      ///< Items of a TPopupMenu
    RUX_SELECTED = 8,       ///< of a TCustomTreeView, a TCustomListView
    RUX_FIRST_NODE = 9,     ///< of a TCustomTreeView
    RUX_NODE_PARENT = 10,   ///< of a TTreeNode
    RUX_NEXT_SIBLING = 11,  ///< of a TTreeNode
    RUX_FIRST_CHILD = 12,   ///< of a TTreeNode
    RUX_ACTIVE_PAGE = 13,   ///< of a TPageControl, a TFlatPageControl
    RUX_PAGE_CONTROL = 14   ///< of a TTabSheet, a TFlatTabSheet
};

/// Rows of objects, and of entries that are none: those are counted, too, and asked for by GetEntry.
enum {
    RUX_CONTROLS = 1,      ///< of a TWinControl: graphic ones, then windowed ones, each from bottom to top
    RUX_FORMS = 2,         ///< of the screen in its order; the object is 0
    RUX_MDI_CHILDREN = 3,  ///< of a TCustomForm
    RUX_COMPONENTS = 4,    ///< that a TComponent owns. Not asked yet.
    RUX_MENU_ITEMS = 5,    ///< of a TMenuItem
    RUX_NODES = 6,         ///< of a TCustomTreeView, all of them in depth-first order
    RUX_LIST_ITEMS = 7,    ///< of a TCustomListView
    RUX_PAGES = 8,         ///< of a TPageControl, a TFlatPageControl
    /// Items of TCustomListBox and TCustomCombo, Tabs of TCustomTabControl and TTabSet, captions of the tabs
    /// of TTBXImageTabSet, texts of the panels of TStatusBar and TTBXStatusBar, SubItems of TListItem
    /// (STRING)
    RUX_LINES = 9,
    RUX_COLUMNS = 10,         ///< captions of the columns of a TCustomListView (STRING)
    RUX_FOLDERS = 11,         ///< display names of the entries of a TShellListView (STRING)
    RUX_SELECTED_LINES = 12,  ///< TCustomListBox.Selected (ENUMERATION)
    RUX_CHECKED_LINES = 13    ///< TCheckListBox.Checked; also set, nothing fires (ENUMERATION)
};

enum {
    RUX_BOUNDS = 1,         ///< in the parent's client coordinates, a form's on the screen
    RUX_CLIENT = 2,         ///< left and top are 0 as a rule
    RUX_CLIENT_ORIGIN = 3,  ///< left and top: the client area's position on the screen
    RUX_NODE = 4,           ///< DisplayRect of a TTreeNode
    RUX_NODE_TEXT = 5,      ///< the same of its text only
    RUX_ITEM = 6,           ///< DisplayRect of a TListItem: drBounds; then drIcon, drLabel, drSelectBounds
    RUX_ENTRY = 10          ///< EntryBounds: ItemRect or TabRect in client coordinates
};

/// Right and Bottom lie just outside.
typedef struct RUXBox {
    int32_t Left, Top, Right, Bottom;
} RUXBox;

/// What Invoke does.
enum {
    RUX_CLICK = 1,              ///< the TControl's dynamic method Click, enabled or not
    RUX_CALL_ON_CLICK = 2,      ///< the handler in its OnClick with itself as sender; none: RUX_GONE
    RUX_SET_FOCUS = 3,          ///< of a TWinControl; it raises as always when it cannot have the focus
    RUX_BRING_TO_FRONT = 4,     ///< of a TControl
    RUX_UPDATE_ACTIONS = 5,     ///< of a TCustomForm
    RUX_PROCESS_MESSAGES = 6,   ///< of the application: dispatches until none is left; the object is 0
    RUX_FIRE_ON_DBL_CLICK = 7,  ///< the handler in the OnDblClick of a TControl, if there is one
    RUX_FIRE_ON_CLICK = 8,      ///< the handler in its OnClick, if there is one
    RUX_CHANGE = 9,             ///< the dynamic method Change of a TCustomTabControl
    RUX_MAKE_VISIBLE = 10       ///< of a TTreeNode, a TListItem (also partly)
};

/// The application at a glance.
typedef struct RUXApplicationState {
    /// The application object; the same at all times.
    RUXRef Object;
    /// Handle of the hidden window that belongs to the application itself.
    uint32_t Window;
    /// The thread that the toolkit's windows live on.
    uint32_t Thread;
    /// Other than 0 once the application is ending.
    int32_t Terminated;
} RUXApplicationState;

/// Functions without a note are required: with one of them nil the whole table is refused.
typedef struct RUXTable {
    /// sizeof(RUXTable) as the unit was compiled.
    uint32_t Size;
    /// RUX_TABLE_VERSION.
    uint32_t Version;

    /// ANY THREAD, at any time, also while the user-interface thread stands still: reads plain fields and
    /// takes no lock.
    void(RUX_CALL* Application)(RUXApplicationState* state);

    /// 1 for an object that lives, 0 for any other number, which may be anything: the value of a window's
    /// property, too. `life` tells objects apart that had the same address one after the other: a number
    /// counted up for each object that the unit sees for the first time (a free notification tells it of the
    /// end). A unit that cannot tell answers 0 for all of them. `type`: the object's class. Runs no code of
    /// the application.
    int32_t(RUX_CALL* Alive)(RUXRef object, uint32_t* life, RUXClass* type);
    /// The name of a class as text, and its parent, 0 for the root. Asked once for each class.
    RUXStatus(RUX_CALL* ClassInfo)(RUXClass type, RUXClass* parent, const RUXReply* reply);

    /// nil is RUX_OK with 0.
    RUXStatus(RUX_CALL* Relation)(RUXRef object, int32_t relation, RUXRef* result, const RUXReply* reply);
    RUXStatus(RUX_CALL* Count)(RUXRef object, int32_t row, int32_t* count, const RUXReply* reply);
    /// From 0; RUX_NONE for an index outside.
    RUXStatus(RUX_CALL* Child)(RUXRef object, int32_t row, int32_t index, RUXRef* child,
                               const RUXReply* reply);
    RUXStatus(RUX_CALL* Bounds)(RUXRef object, int32_t which, RUXBox* box, const RUXReply* reply);
    /// Handle of a TWinControl, which is made if it does not exist yet.
    RUXStatus(RUX_CALL* Window)(RUXRef object, uint32_t* handle, const RUXReply* reply);

    RUXStatus(RUX_CALL* GetValue)(RUXRef object, int32_t what, RUXValue* value, const RUXReply* reply);
    RUXStatus(RUX_CALL* SetValue)(RUXRef object, int32_t what, const RUXValue* value, const RUXReply* reply);
    /// A published property, its name without regard to case.
    RUXStatus(RUX_CALL* GetProperty)(RUXRef object, const char* name, RUXValue* value, const RUXReply* reply);
    RUXStatus(RUX_CALL* Invoke)(RUXRef object, int32_t verb, const RUXReply* reply);

    /// May be nil. Names of all published properties of the object's class as one text, joined by commas.
    /// Asked once for each class, of the first object of it that is met. Without it a property is found only
    /// if the agent knows its name by itself.
    RUXStatus(RUX_CALL* ListProperties)(RUXRef object, const RUXReply* reply);
    /// May be nil: the agent then shows a message box. Reports an error as the application reports those of
    /// its own event handlers; comes back when the user has seen it. The silent exception is not passed.
    RUXStatus(RUX_CALL* ReportError)(const char* className, const char* message);

    /// These are not called yet and may be nil: a published property is set by its name; the text of a
    /// grid's cell is read and set.
    RUXStatus(RUX_CALL* SetProperty)(RUXRef object, const char* name, const RUXValue* value,
                                     const RUXReply* reply);
    RUXStatus(RUX_CALL* GetCell)(RUXRef object, int32_t row, int32_t column, const RUXReply* reply);
    RUXStatus(RUX_CALL* SetCell)(RUXRef object, int32_t row, int32_t column, const char* text,
                                 uint32_t length, const RUXReply* reply);

    /// Entries of a row, from 0; RUX_NONE for an index outside.
    RUXStatus(RUX_CALL* GetEntry)(RUXRef object, int32_t row, int32_t index, RUXValue* value,
                                  const RUXReply* reply);
    RUXStatus(RUX_CALL* SetEntry)(RUXRef object, int32_t row, int32_t index, const RUXValue* value,
                                  const RUXReply* reply);
    RUXStatus(RUX_CALL* EntryBounds)(RUXRef object, int32_t which, int32_t index, RUXBox* box,
                                     const RUXReply* reply);
} RUXTable;

/// The exported function's type.
typedef const RUXTable*(RUX_CALL* RUXTableExport)(void);

#ifdef __cplusplus
}
#endif

#endif
