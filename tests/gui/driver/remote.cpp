#include "driver/remote.h"

#include <windows.h>

#include <tlhelp32.h>

#include <algorithm>
#include <map>
#include <vector>

#include "driver/wait.h"
#include "win32/strings.h"
#include "win32/unique.h"

static_assert(sizeof(void*) == 4, "the stub below is 32-bit code for a 32-bit program");

namespace varno::gui {

namespace {

constexpr std::size_t mostArguments = 6;

// What the stub finds at its one argument.
struct Call {
    DWORD function;
    DWORD count;
    DWORD arguments[mostArguments];
    DWORD result;
};
static_assert(sizeof(Call) == 36);

// DWORD WINAPI stub(Call*): pushes the arguments, last first, calls, stores the result.
constexpr unsigned char stub[] = {
    0x55,                   //       push ebp
    0x89, 0xE5,             //       mov  ebp, esp
    0x53,                   //       push ebx
    0x8B, 0x5D, 0x08,       //       mov  ebx, [ebp+8]
    0x8B, 0x4B, 0x04,       //       mov  ecx, [ebx+4]
    0x85, 0xC9,             // next: test ecx, ecx
    0x74, 0x07,             //       jz   go
    0xFF, 0x74, 0x8B, 0x04, //       push dword [ebx+ecx*4+4]
    0x49,                   //       dec  ecx
    0xEB, 0xF5,             //       jmp  next
    0xFF, 0x13,             // go:   call [ebx]
    0x89, 0x43, 0x20,       //       mov  [ebx+32], eax
    0x31, 0xC0,             //       xor  eax, eax
    0x8D, 0x65, 0xFC,       //       lea  esp, [ebp-4]
    0x5B,                   //       pop  ebx
    0x5D,                   //       pop  ebp
    0xC2, 0x04, 0x00,       //       ret  4
};

// Where the module lies in the process.
DWORD baseIn(HANDLE process, const wchar_t* module) {
    const win32::UniqueHandle modules(CreateToolhelp32Snapshot(TH32CS_SNAPMODULE, GetProcessId(process)));
    MODULEENTRY32W entry{};
    entry.dwSize = sizeof entry;
    for (BOOL more = Module32FirstW(modules.get(), &entry); more; more = Module32NextW(modules.get(), &entry)) {
        if (CompareStringOrdinal(entry.szModule, -1, module, -1, TRUE) == CSTR_EQUAL) {
            return reinterpret_cast<DWORD>(entry.modBaseAddr);
        }
    }
    throw GuiError("the program has not loaded " + win32::narrow(module));
}

DWORD findFunction(HANDLE process, const wchar_t* module, const char* function) {
    const HMODULE own = LoadLibraryW(module);
    const auto address = reinterpret_cast<DWORD>(reinterpret_cast<void*>(GetProcAddress(own, function)));
    if (address == 0) throw GuiError(std::string("there is no function ") + function);
    // A forwarded function lies in another module than it is asked of.
    HMODULE holder = nullptr;
    GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                       reinterpret_cast<LPCWSTR>(address), &holder);
    wchar_t path[MAX_PATH] = L"";
    GetModuleFileNameW(holder, path, MAX_PATH);
    const std::wstring name = path;
    return baseIn(process, name.substr(name.rfind(L'\\') + 1).c_str()) +
           (address - reinterpret_cast<DWORD>(holder));
}

// Found once a process: going through its modules takes its time.
DWORD functionIn(HANDLE process, const wchar_t* module, const char* function) {
    static DWORD lastProcess = 0;
    static std::map<std::string, DWORD> known;
    const DWORD id = GetProcessId(process);
    if (id != lastProcess) known.clear();
    lastProcess = id;
    DWORD& address = known[function];
    if (address == 0) address = findFunction(process, module, function);
    return address;
}

} // namespace

RemoteMemory::RemoteMemory(HANDLE process, std::size_t size, DWORD protection)
    : process_(process), size_(size),
      place_(VirtualAllocEx(process, nullptr, size, MEM_COMMIT | MEM_RESERVE, protection)) {
    if (place_ == nullptr) throw GuiError("no memory in the program");
}

RemoteMemory::~RemoteMemory() {
    VirtualFreeEx(process_, place_, 0, MEM_RELEASE);
}

void RemoteMemory::write(const void* from, std::size_t size) {
    if (!WriteProcessMemory(process_, place_, from, size, nullptr)) throw GuiError("cannot write to the program");
}

void RemoteMemory::read(void* to, std::size_t size) const {
    if (!ReadProcessMemory(process_, place_, to, size, nullptr)) throw GuiError("cannot read from the program");
}

std::string RemoteMemory::text() const {
    std::vector<wchar_t> letters(size_ / sizeof(wchar_t));
    read(letters.data(), letters.size() * sizeof(wchar_t));
    return win32::narrow({letters.begin(), std::find(letters.begin(), letters.end(), L'\0')});
}

DWORD callIn(HANDLE process, const wchar_t* module, const char* function,
             std::initializer_list<DWORD> arguments) {
    Call call{};
    call.function = functionIn(process, module, function);
    call.count = static_cast<DWORD>(arguments.size());
    std::copy(arguments.begin(), arguments.end(), call.arguments);

    RemoteMemory record(process, sizeof call);
    record.write(&call, sizeof call);
    RemoteMemory code(process, sizeof stub, PAGE_EXECUTE_READWRITE);
    code.write(stub, sizeof stub);
    const win32::UniqueHandle thread(
        CreateRemoteThread(process, nullptr, 0, reinterpret_cast<LPTHREAD_START_ROUTINE>(code.address()),
                           reinterpret_cast<void*>(record.address()), 0, nullptr));
    if (!thread || WaitForSingleObject(thread.get(), patience) != WAIT_OBJECT_0) {
        throw GuiError(std::string("the program does not run ") + function);
    }
    return record.as<Call>().result;
}

} // namespace varno::gui
