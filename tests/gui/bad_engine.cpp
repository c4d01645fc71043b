// An engine that fails in the way that "motor.txt" in the current directory says: it stands for any engine that the
// users have.
#include <windows.h>

#include <fstream>
#include <string>

namespace {

std::string firstLineOf(const char* path) {
    std::ifstream in(path, std::ios::binary);
    std::string line;
    std::getline(in, line);
    if (line.ends_with('\r')) line.pop_back();
    return line;
}

// As a processor fault ends it, but without the system's own window.
[[noreturn]] void crash() {
    TerminateProcess(GetCurrentProcess(), 0xC0000005);
    std::abort();
}

// Appended to "anrop.txt", one line a call.
void noteCall(int count, char** arguments) {
    std::ofstream out("anrop.txt", std::ios::binary | std::ios::app);
    for (int i = 1; i < count; ++i)
        out << (i == 1 ? "" : " ") << arguments[i];
    out << "\r\n";
}

} // namespace

int main(int count, char** arguments) {
    if (count > 1) noteCall(count, arguments);
    const std::string how = firstLineOf("motor.txt");
    const std::string result = firstLineOf("~indata~.tmp") + ".res";
    if (how == "kraschar") crash();
    if (how == "halvt") {
        std::ofstream(result, std::ios::binary) << "Resultat\r\nMoment i f\x84lt: 1";
        std::ofstream("momk.dat", std::ios::binary) << "3\r\n6.0,1,2";
        crash();
    }
    if (how == "tomt") {
        std::ofstream(result, std::ios::binary).flush();
        std::ofstream("momk.dat", std::ios::binary).flush();
    }
    return how == "inget" ? 1 : 0;
}
