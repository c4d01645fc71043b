// run.cmd, which builds and starts the program on Windows itself. What it builds with stands aside here: its work folder
// is made of what is built already.
#include <windows.h>

#include <gtest/gtest.h>

#include <filesystem>

#include "driver/process.h"
#include "driver/program.h"
#include "driver/wait.h"
#include "soon.h"
#include "win32/strings.h"

namespace varno::gui {
namespace {

namespace fs = std::filesystem;
using win32::wide;

class RunCmd : public ::testing::Test {
  protected:
    RunCmd() {
        const fs::path built = wide(programsFolder());
        const fs::path builtHere = tree / L"build" / L"windows";
        fs::create_directories(builtHere / L"engine");
        fs::create_directories(tools);
        fs::copy(wide(samplesFolder()), tree / L"samples");
        fs::copy(built.parent_path().parent_path() / L"run.cmd", tree);
        fs::copy(built / L"varno.exe", builtHere);
        fs::copy(built / L"engine" / L"varnowb.exe", builtHere / L"engine");
        fs::copy(built / L"help", builtHere / L"help", fs::copy_options::recursive);
        fs::copy(built / L"tests" / L"gui" / L"varno_bad_engine.exe", tools / L"cmake.exe");
        wchar_t paths[32767] = L"";
        GetEnvironmentVariableW(L"PATH", paths, ARRAYSIZE(paths));
        pathsBefore = paths;
        SetEnvironmentVariableW(L"PATH", (tools.wstring() + L";" + paths).c_str());
    }
    ~RunCmd() override { SetEnvironmentVariableW(L"PATH", pathsBefore.c_str()); }

    // It waits for what it started as long as that holds the console, so its end is not waited for.
    win32::UniqueHandle start() const {
        std::wstring line = L"cmd.exe /c \"" + (tree / L"run.cmd").wstring() + L"\"";
        STARTUPINFOW info{};
        info.cb = sizeof info;
        PROCESS_INFORMATION started{};
        if (!CreateProcessW(nullptr, line.data(), nullptr, nullptr, FALSE, CREATE_NO_WINDOW, nullptr, nullptr,
                            &info, &started))
            throw GuiError("run.cmd cannot be started");
        CloseHandle(started.hThread);
        return win32::UniqueHandle(started.hProcess);
    }
    std::string inWork(const std::string& name) const { return work + "\\" + name; }

    Scene scene;
    const std::string folder = scene.beside("Hus, å");
    const fs::path tree = wide(folder);
    const fs::path tools = wide(scene.beside("verktyg"));
    const std::string work = folder + "\\build\\work";
    std::wstring pathsBefore;
};

TEST_F(RunCmd, MakesTheWorkFolderAndStartsTheProgramInIt) {
    const win32::UniqueHandle script = start();
    Program started(processOf(inWork("varno.exe")));
    started.passStartUp();
    EXPECT_EQ(linesOf(readFile(folder + "\\anrop.txt")),
              (std::vector<Bytes>{"--preset windows-host", "--build --preset windows-host"}));
    for (const char* file : {"varnowb.exe", "varno.def", "BOSTAD.IND", "Varno.HLP", "help\\index.html"})
        EXPECT_TRUE(fileExists(inWork(file))) << file;
    started.open("BOSTAD.IND");
    started.calculate();
    started.command(idExit);
    EXPECT_EQ(started.exitCode(), 0u);
    EXPECT_TRUE(fileExists(inWork("BOSTAD.res"))) << "varno.ini names the work folder";
}

TEST_F(RunCmd, LeavesTheUsersCasesAsTheyAre) {
    fs::create_directories(wide(work));
    for (const char* file : {"BOSTAD.IND", "varno.def"})
        writeFile(inWork(file), scene.read("KONTOR.IND"));
    const win32::UniqueHandle script = start();
    Program started(processOf(inWork("varno.exe")));
    started.passStartUp();
    for (const char* file : {"BOSTAD.IND", "varno.def"})
        EXPECT_EQ(readFile(inWork(file)), scene.read("KONTOR.IND")) << file;
    started.command(idExit);
    EXPECT_EQ(started.exitCode(), 0u);
}

TEST_F(RunCmd, StopsWhereTheBuildFails) {
    writeFile(folder + "\\motor.txt", "inget");
    const win32::UniqueHandle script = start();
    ASSERT_EQ(WaitForSingleObject(script.get(), patience), WAIT_OBJECT_0);
    DWORD code = 0;
    GetExitCodeProcess(script.get(), &code);
    EXPECT_EQ(code, 1u);
    EXPECT_FALSE(fileExists(work));
}

} // namespace
} // namespace varno::gui
