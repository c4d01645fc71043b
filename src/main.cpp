#include <windows.h>

#include <commctrl.h>

#include "shell/application.h"
#include "win32/given_files.h"
#include "win32/strings.h"

int WINAPI wWinMain(HINSTANCE, HINSTANCE, PWSTR arguments, int) {
    INITCOMMONCONTROLSEX controls{};
    controls.dwSize = sizeof controls;
    controls.dwICC = ICC_STANDARD_CLASSES | ICC_BAR_CLASSES | ICC_UPDOWN_CLASS;
    InitCommonControlsEx(&controls);
    const varno::win32::CommandLine line = varno::win32::commandLine(arguments);
    // As the "start in" of a shortcut would. A folder that is not there shows as settings that are not.
    if (!line.folder.empty()) SetCurrentDirectoryW(varno::win32::wide(line.folder).c_str());
    varno::Application application;
    return application.run(line.files);
}
