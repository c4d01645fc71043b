#include <windows.h>

#include <commctrl.h>

#include "shell/application.h"
#include "win32/given_files.h"

int WINAPI wWinMain(HINSTANCE, HINSTANCE, PWSTR, int) {
    INITCOMMONCONTROLSEX controls{};
    controls.dwSize = sizeof controls;
    controls.dwICC = ICC_STANDARD_CLASSES | ICC_BAR_CLASSES | ICC_UPDOWN_CLASS;
    InitCommonControlsEx(&controls);
    varno::Application application;
    return application.run(varno::win32::filesOnCommandLine());
}
