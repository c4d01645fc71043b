#include "driver/scene.h"

#include <windows.h>

#include <cstring>
#include <filesystem>
#include <fstream>

#include "base/file_calls.h"
#include "base/run_time_error.h"
#include "driver/wait.h"
#include "win32/strings.h"

namespace varno::gui {

namespace fs = std::filesystem;
using win32::narrow;
using win32::wide;

namespace {

fs::path pathOf(const std::string& utf8) {
    return fs::path(wide(utf8));
}

std::string own(const fs::path& path) {
    return narrow(path.wstring());
}

void copyFile(const std::string& from, const std::string& to) {
    if (!CopyFileW(wide(from).c_str(), wide(to).c_str(), FALSE)) {
        throw GuiError(from + " cannot be copied to " + to);
    }
}

} // namespace

std::string programsFolder() {
    wchar_t text[MAX_PATH] = L"";
    if (GetEnvironmentVariableW(L"VARNO_TEST_PROGRAMS", text, MAX_PATH) != 0) return narrow(text);
    GetModuleFileNameW(nullptr, text, MAX_PATH);
    return own(fs::path(text).parent_path().parent_path().parent_path());
}

std::string samplesFolder() {
    return own(pathOf(programsFolder()).parent_path().parent_path() / L"samples");
}

Bytes readFile(const std::string& path) {
    // In nobody's way: what the C++ library opens cannot be renamed over meanwhile, and fails where somebody renames.
    try {
        return systemFileCalls().readAll(path);
    } catch (const RunTimeError&) {
        throw GuiError("there is no " + path);
    }
}

void writeFile(const std::string& path, const Bytes& bytes) {
    std::ofstream file(pathOf(path), std::ios::binary);
    file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    file.close();
    if (!file) throw GuiError(path + " cannot be written");
}

bool fileExists(const std::string& path) {
    return GetFileAttributesW(wide(path).c_str()) != INVALID_FILE_ATTRIBUTES;
}

Scene::Scene(const std::string& name) {
    static int count = 0;
    const std::string unique =
        "varno-gui-" + std::to_string(GetCurrentProcessId()) + "-" + std::to_string(++count);
    root_ = own(fs::temp_directory_path() / wide(unique));
    folder_ = root_ + "\\" + name;
    // Process numbers come again; one that was ended by force has left its folder.
    fs::remove_all(pathOf(root_));
    fs::create_directories(pathOf(folder_));
    for (const char* sample : {"BOSTAD.IND", "KONTOR.IND", "TIOFACK.IND", "varno.def"}) {
        copyFile(samplesFolder() + "\\" + sample, path(sample));
    }
    copyEngineTo(folder_);
    writeIni("\"" + folder_ + "\"");
    writeVersion(7.1f);
}

Scene::~Scene() {
    std::error_code ignored;
    fs::remove_all(pathOf(root_), ignored);
}

std::string Scene::beside(const std::string& name) const {
    const std::string folder = root_ + "\\" + name;
    fs::create_directories(pathOf(folder));
    return folder;
}

void Scene::remove(const std::string& name) const {
    if (!DeleteFileW(wide(path(name)).c_str())) throw GuiError(path(name) + " cannot be deleted");
}

void Scene::makeFolder(const std::string& name) const {
    fs::create_directories(pathOf(path(name)));
}

void Scene::writeIni(const std::string& line) const {
    write("varno.ini", encodeWindows1252(line) + "\r\n");
}

void Scene::writeVersion(float version) const {
    Bytes bytes(sizeof version, '\0');
    std::memcpy(bytes.data(), &version, sizeof version);
    write("varno.ver", bytes);
}

void Scene::copyEngineTo(const std::string& folder) const {
    copyFile(programsFolder() + "\\engine\\varnowb.exe", folder + "\\varnowb.exe");
}

std::vector<Bytes> linesOf(const Bytes& text) {
    std::vector<Bytes> lines;
    std::size_t begin = 0;
    for (auto end = text.find("\r\n"); end != Bytes::npos; end = text.find("\r\n", begin)) {
        lines.push_back(text.substr(begin, end - begin));
        begin = end + 2;
    }
    if (begin < text.size()) lines.push_back(text.substr(begin));
    return lines;
}

Bytes withLine(const Bytes& text, std::size_t number, const Bytes& line) {
    auto lines = linesOf(text);
    lines.at(number - 1) = line;
    Bytes all;
    for (const Bytes& one : lines)
        all += one + "\r\n";
    return all;
}

} // namespace varno::gui
