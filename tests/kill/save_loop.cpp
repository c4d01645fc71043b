// Saves a case again and again, as "Spara" does, until it is ended from outside: varno_save_loop FILE.
#include <windows.h>

#include "base/file.h"
#include "base/run_time_error.h"
#include "save_loop.h"
#include "win32/unique.h"

namespace {

void save(const std::string& path, bool second) {
    varno::File file(varno::systemFileCalls(), path, varno::FileMode::output, 0, 1);
    for (int line = 1; line <= varno::kill::caseLineCount; ++line)
        file.printLine(varno::kill::lineOf(second, line));
    file.close();
}

} // namespace

int main(int count, char** arguments) {
    if (count != 2) return 2;
    const std::string path = arguments[1];
    const varno::win32::UniqueHandle ready(
        CreateEventW(nullptr, TRUE, FALSE, varno::kill::readyEvent(GetCurrentProcessId()).c_str()));
    for (bool second = false;; second = !second) {
        try {
            save(path, second);
        } catch (const varno::RunTimeError& error) {
            return error.number();
        }
        SetEvent(ready.get());
    }
}
