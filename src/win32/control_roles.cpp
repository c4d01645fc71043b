#include "win32/control_roles.h"

#include <windows.h>

#include <oleacc.h>

namespace varno::win32 {

long roleOf(ControlKind kind) {
    switch (kind) {
    case ControlKind::label:
    case ControlKind::paragraph:
    case ControlKind::symbolLabel:
        return ROLE_SYSTEM_STATICTEXT;
    case ControlKind::edit:
    case ControlKind::numberEdit:
    case ControlKind::readOnlyEdit:
    case ControlKind::memo:
        return ROLE_SYSTEM_TEXT;
    case ControlKind::button:
    case ControlKind::defaultButton:
        return ROLE_SYSTEM_PUSHBUTTON;
    case ControlKind::group:
        return ROLE_SYSTEM_GROUPING;
    case ControlKind::radio:
    case ControlKind::firstRadio:
        return ROLE_SYSTEM_RADIOBUTTON;
    case ControlKind::check:
        return ROLE_SYSTEM_CHECKBUTTON;
    case ControlKind::dropDown:
        return ROLE_SYSTEM_COMBOBOX;
    case ControlKind::listBox:
    case ControlKind::multiListBox:
    case ControlKind::folderList:
        return ROLE_SYSTEM_LIST;
    case ControlKind::spin:
        return ROLE_SYSTEM_SPINBUTTON;
    case ControlKind::picture:
        return ROLE_SYSTEM_GRAPHIC;
    }
    return 0;
}

bool takesLabel(ControlKind kind) {
    switch (roleOf(kind)) {
    case ROLE_SYSTEM_TEXT:
    case ROLE_SYSTEM_COMBOBOX:
    case ROLE_SYSTEM_LIST:
    case ROLE_SYSTEM_SPINBUTTON:
        return true;
    default:
        return false;
    }
}

} // namespace varno::win32
