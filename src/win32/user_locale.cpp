#include "win32/user_locale.h"

#include <windows.h>

#include "win32/strings.h"

namespace varno::win32 {

namespace {

std::string setting(LCTYPE type, const char* fallback) {
    wchar_t text[16] = L"";
    if (GetLocaleInfoEx(LOCALE_NAME_USER_DEFAULT, type, text, 16) <= 1) return fallback;
    return narrow(text);
}

} // namespace

NumberLocale userNumberLocale() {
    return {setting(LOCALE_SDECIMAL, "."), setting(LOCALE_STHOUSAND, " ")};
}

} // namespace varno::win32
