#include "win32/control_kinds.h"

#include <commctrl.h>

#include <algorithm>

#include "win32/strings.h"
#include "win32/window.h"

namespace varno::win32 {

namespace {

struct KindStyle {
    ControlKind kind;
    const wchar_t* className;
    DWORD style;
    DWORD exStyle = 0;
};

constexpr DWORD stop = WS_TABSTOP;
constexpr DWORD readOnly = ES_AUTOHSCROLL | ES_READONLY;
constexpr DWORD list = stop | LBS_NOTIFY | LBS_NOINTEGRALHEIGHT | WS_VSCROLL | WS_GROUP;
constexpr DWORD sunken = WS_EX_CLIENTEDGE;
constexpr DWORD folders = list | LBS_OWNERDRAWFIXED | LBS_HASSTRINGS;

constexpr KindStyle styles[]{
    {ControlKind::label, L"STATIC", SS_LEFT | SS_NOPREFIX},
    {ControlKind::paragraph, L"STATIC", SS_OWNERDRAW | SS_NOPREFIX},
    {ControlKind::symbolLabel, L"STATIC", SS_OWNERDRAW | SS_NOPREFIX},
    {ControlKind::edit, L"EDIT", stop | ES_AUTOHSCROLL, sunken},
    {ControlKind::numberEdit, L"EDIT", stop | ES_AUTOHSCROLL | ES_RIGHT, sunken},
    {ControlKind::readOnlyEdit, L"EDIT", readOnly},
    {ControlKind::memo, L"EDIT",
     stop | readOnly | ES_MULTILINE | ES_AUTOVSCROLL | ES_NOHIDESEL | WS_VSCROLL | WS_HSCROLL, sunken},
    {ControlKind::button, L"BUTTON", stop | BS_PUSHBUTTON},
    {ControlKind::defaultButton, L"BUTTON", stop | BS_DEFPUSHBUTTON},
    {ControlKind::group, L"BUTTON", BS_GROUPBOX | WS_GROUP},
    {ControlKind::radio, L"BUTTON", BS_AUTORADIOBUTTON},
    {ControlKind::firstRadio, L"BUTTON", stop | BS_AUTORADIOBUTTON | WS_GROUP},
    {ControlKind::check, L"BUTTON", stop | BS_AUTOCHECKBOX | WS_GROUP},
    {ControlKind::dropDown, L"COMBOBOX", stop | CBS_DROPDOWNLIST | WS_VSCROLL | WS_GROUP},
    {ControlKind::listBox, L"LISTBOX", list, sunken},
    {ControlKind::multiListBox, L"LISTBOX", list | LBS_MULTIPLESEL, sunken},
    {ControlKind::folderList, L"LISTBOX", folders, sunken},
    {ControlKind::spin, UPDOWN_CLASSW, UDS_ARROWKEYS},
    {ControlKind::picture, L"STATIC", SS_OWNERDRAW},
};

// A label of one line has its text in the middle of its height, as the box beside it has.
DWORD placeOfText(const ControlSpec& spec) {
    constexpr int oneLine = raster(18);
    return spec.kind == ControlKind::label && spec.height <= oneLine ? SS_CENTERIMAGE : 0;
}

} // namespace

HWND createControl(HWND parent, const ControlSpec& spec) {
    const KindStyle& kind = *std::ranges::find(styles, spec.kind, &KindStyle::kind);
    return createControl(parent, spec.id, kind.className, spec.text,
                         WS_VISIBLE | kind.style | placeOfText(spec), kind.exStyle);
}

bool isPushButton(HWND control) {
    if (classOf(control) != "Button") return false;
    const LONG_PTR type = GetWindowLongPtrW(control, GWL_STYLE) & BS_TYPEMASK;
    return type == BS_PUSHBUTTON || type == BS_DEFPUSHBUTTON;
}

bool isLineEdit(ControlKind kind) {
    return kind == ControlKind::edit || kind == ControlKind::numberEdit || kind == ControlKind::readOnlyEdit;
}

bool keepsNoWheel(ControlKind kind) {
    return kind == ControlKind::dropDown || kind == ControlKind::spin || isLineEdit(kind);
}

} // namespace varno::win32
