// The installer: put there silently, used as a user finds it, and removed.
#include <windows.h>

#include <gtest/gtest.h>
#include <shellapi.h>
#include <shlobj.h>

#include <filesystem>

#include "driver/process.h"
#include "driver/program.h"
#include "driver/wait.h"
#include "soon.h"
#include "win32/strings.h"

namespace varno::gui {
namespace {

using win32::narrow;
using win32::wide;

constexpr const char* ownKey = "Software\\Kalvora\\Varno";
constexpr const char* productKey = "Software\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\Varno";
constexpr const char* caseKey = "Software\\Classes\\.IND";

std::string registered(const std::string& key, const std::string& name = {}) {
    wchar_t text[1024] = L"";
    DWORD size = sizeof text;
    if (RegGetValueW(HKEY_CURRENT_USER, wide(key).c_str(), wide(name).c_str(), RRF_RT_REG_SZ, nullptr, text,
                     &size) != ERROR_SUCCESS)
        return {};
    return narrow(text);
}

class Installer : public ::testing::Test {
  protected:
    Installer() { std::filesystem::remove_all(wide(programFolder)); }
    void TearDown() override {
        if (fileExists(uninstaller)) uninstall();
    }

    static DWORD ran(const std::string& program, const std::string& arguments) {
        std::wstring line = wide("\"" + program + "\" " + arguments);
        STARTUPINFOW start{};
        start.cb = sizeof start;
        PROCESS_INFORMATION started{};
        if (!CreateProcessW(nullptr, line.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &start,
                            &started))
            throw GuiError(program + " cannot be started");
        const win32::UniqueHandle thread(started.hThread);
        const win32::UniqueHandle process(started.hProcess);
        if (WaitForSingleObject(process.get(), patience) != WAIT_OBJECT_0)
            throw GuiError(program + " does not end");
        DWORD code = 0;
        GetExitCodeProcess(process.get(), &code);
        return code;
    }
    DWORD install() const {
        return ran(programsFolder() + "\\varno-setup.exe", "/S /WORK=\"" + work + "\" /D=" + programFolder);
    }
    // It goes on in a copy of itself, which can remove it.
    void uninstall() const {
        ran(uninstaller, "/S");
        if (!waitUntil([&] { return !fileExists(uninstaller) && registered(ownKey, "Work").empty(); }))
            throw GuiError("the uninstaller does not come to its end");
    }
    // As a double click does.
    static void open(const std::string& path) {
        SHELLEXECUTEINFOW shell{};
        shell.cbSize = sizeof shell;
        shell.fMask = SEE_MASK_NOASYNC | SEE_MASK_FLAG_NO_UI;
        const std::wstring file = wide(path);
        shell.lpFile = file.c_str();
        const std::wstring folder = std::filesystem::path(file).parent_path();
        shell.lpDirectory = folder.c_str();
        shell.nShow = SW_SHOWNORMAL;
        if (!ShellExecuteExW(&shell)) throw GuiError(path + " cannot be opened");
    }
    // The same of a case, step by step from its ending: an older Wine looks at the machine's file types only.
    static void openCase(const std::string& path) {
        const std::string type = registered(caseKey);
        std::string command = registered("Software\\Classes\\" + type + "\\shell\\open\\command");
        const auto place = command.find("%1");
        if (place == std::string::npos) throw GuiError("no program opens a case");
        command.replace(place, 2, path);
        std::wstring line = wide(command);
        const std::wstring folder = std::filesystem::path(wide(path)).parent_path();
        STARTUPINFOW start{};
        start.cb = sizeof start;
        PROCESS_INFORMATION started{};
        if (!CreateProcessW(nullptr, line.data(), nullptr, nullptr, FALSE, 0, nullptr, folder.c_str(), &start,
                            &started))
            throw GuiError(command + " cannot be started");
        CloseHandle(started.hThread);
        CloseHandle(started.hProcess);
    }
    static std::string shortcut() {
        wchar_t folder[MAX_PATH] = L"";
        SHGetFolderPathW(nullptr, CSIDL_PROGRAMS, nullptr, 0, folder);
        return narrow(folder) + "\\Kalvora Tessaplan.lnk";
    }
    std::string inWork(const std::string& name) const { return work + "\\" + name; }

    Scene scene;
    const std::string programFolder = scene.beside("Program å");
    const std::string program = programFolder + "\\varno.exe";
    const std::string uninstaller = programFolder + "\\uninstall.exe";
    const std::string work = scene.beside("Arbete, å");
};

TEST_F(Installer, IsStartedFromItsShortcutUsedAndRemoved) {
    ASSERT_EQ(install(), 0u);
    for (const char* file :
         {"varno.exe", "varnotool.exe", "Varno.HLP", "Varno.cnt", "help\\index.html", "uninstall.exe"})
        EXPECT_TRUE(fileExists(programFolder + "\\" + file)) << file;
    for (const char* file : {"varno.ini", "varno.def", "varnowb.exe", "BOSTAD.IND"})
        EXPECT_TRUE(fileExists(inWork(file))) << file;
    EXPECT_EQ(registered(productKey, "DisplayName"), "Kalvora Tessaplan");
    EXPECT_EQ(ran(programFolder + "\\varnotool.exe", "check \"" + inWork("BOSTAD.IND") + "\""), 0u);

    open(shortcut());
    {
        Program started(processOf(program));
        started.passStartUp();
        expectCaption(started, "NAMNLÖS.IND");
        started.open("BOSTAD.IND");
        started.typeInto({Field::rubrik}, "Installerat");
        started.saveAs("EGET");
        started.calculate();
        started.command(idExit);
        EXPECT_EQ(started.exitCode(), 0u);
    }
    EXPECT_TRUE(fileExists(inWork("EGET.res")));

    uninstall();
    EXPECT_FALSE(fileExists(programFolder)) << "nothing of the program stays";
    EXPECT_FALSE(fileExists(shortcut()));
    EXPECT_FALSE(fileExists(inWork("varnowb.exe"))) << "the sample";
    for (const char* file : {"EGET.IND", "EGET.res", "BOSTAD.IND", "varno.def", "varno.ini"})
        EXPECT_TRUE(fileExists(inWork(file))) << file << " is the user's";
    EXPECT_EQ(registered(productKey, "DisplayName"), "");
    EXPECT_EQ(registered(caseKey), "");
}

TEST_F(Installer, ACaseIsOpenedByADoubleClickWhereverItLies) {
    ASSERT_EQ(install(), 0u);
    const std::string folder = scene.beside("Projekt å");
    writeFile(folder + "\\HUS 1.IND", withLine(scene.read("KONTOR.IND"), 1, "HUS 1"));
    openCase(folder + "\\HUS 1.IND");
    Program started(processOf(program));
    started.passStartUp();
    expectCaption(started, "HUS 1.IND");
    started.command(idExit);
    EXPECT_EQ(started.exitCode(), 0u);
}

TEST_F(Installer, WhatLiesInTheWorkFolderStays) {
    const std::vector<std::string> users{"BOSTAD.IND", "varno.def", "varno.ini", "varnowb.exe"};
    for (const std::string& file : users)
        writeFile(inWork(file), "min egen " + file);
    ASSERT_EQ(install(), 0u);
    EXPECT_TRUE(fileExists(inWork("KONTOR.IND")));
    ASSERT_EQ(install(), 0u) << "over itself";
    uninstall();
    for (const std::string& file : users)
        EXPECT_EQ(readFile(inWork(file)), "min egen " + file);
}

TEST_F(Installer, AnotherProgramsCasesAreGivenBack) {
    RegSetKeyValueW(HKEY_CURRENT_USER, wide(caseKey).c_str(), nullptr, REG_SZ, L"Annat.Fall",
                    sizeof L"Annat.Fall");
    ASSERT_EQ(install(), 0u);
    EXPECT_EQ(registered(caseKey), "Varno.Case");
    ASSERT_EQ(install(), 0u) << "over itself";
    uninstall();
    EXPECT_EQ(registered(caseKey), "Annat.Fall");
    RegDeleteTreeW(HKEY_CURRENT_USER, wide(caseKey).c_str());
}

TEST_F(Installer, ARunningProgramIsNotReplaced) {
    ASSERT_EQ(install(), 0u);
    open(shortcut());
    Program started(processOf(program));
    started.passStartUp();
    EXPECT_EQ(install(), 2u);
    EXPECT_TRUE(started.running());
    EXPECT_TRUE(fileExists(program));
    started.command(idExit);
    EXPECT_EQ(started.exitCode(), 0u);
}

} // namespace
} // namespace varno::gui
