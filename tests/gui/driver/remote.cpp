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
static_assert(sizeof(Call) == 36, "the stub counts on it");

// DWORD WINAPI stub(Call*): makes one call after the other until one has no function. Pushes the arguments,
// last first, calls, stores the result.
constexpr unsigned char stub[] = {
    0x55,                   //       push ebp
    0x89, 0xE5,             //       mov  ebp, esp
    0x53,                   //       push ebx
    0x8B, 0x5D, 0x08,       //       mov  ebx, [ebp+8]
    0x83, 0x3B, 0x00,       // each: cmp  dword [ebx], 0
    0x74, 0x18,             //       jz   done
    0x8B, 0x4B, 0x04,       //       mov  ecx, [ebx+4]
    0x85, 0xC9,             // next: test ecx, ecx
    0x74, 0x07,             //       jz   go
    0xFF, 0x74, 0x8B, 0x04, //       push dword [ebx+ecx*4+4]
    0x49,                   //       dec  ecx
    0xEB, 0xF5,             //       jmp  next
    0xFF, 0x13,             // go:   call [ebx]
    0x89, 0x43, 0x20,       //       mov  [ebx+32], eax
    0x83, 0xC3, 0x24,       //       add  ebx, 36
    0xEB, 0xE3,             //       jmp  each
    0x31, 0xC0,             // done: xor  eax, eax
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
    for (BOOL more = Module32FirstW(modules.get(), &entry); more;
         more = Module32NextW(modules.get(), &entry)) {
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

// The calls as the stub wants them; the last one, all zeros, ends them.
std::vector<Call> recordsOf(HANDLE process, const std::vector<RemoteCall>& calls) {
    std::vector<Call> records(calls.size() + 1);
    for (std::size_t i = 0; i < calls.size(); ++i) {
        const auto& arguments = calls[i].arguments;
        if (arguments.size() > mostArguments) throw GuiError("too many arguments");
        records[i].function = functionIn(process, calls[i].module, calls[i].function);
        records[i].count = static_cast<DWORD>(arguments.size());
        std::copy(arguments.begin(), arguments.end(), records[i].arguments);
    }
    return records;
}

// A thread of the process that makes the calls, with the memory it needs.
struct Caller {
    Caller(HANDLE process, const std::vector<Call>& records)
        : memory(process, records.size() * sizeof(Call)), code(process, sizeof stub, PAGE_EXECUTE_READWRITE) {
        memory.write(records.data(), records.size() * sizeof(Call));
        code.write(stub, sizeof stub);
        thread.reset(CreateRemoteThread(process, nullptr, 0,
                                        reinterpret_cast<LPTHREAD_START_ROUTINE>(code.address()),
                                        reinterpret_cast<void*>(memory.address()), 0, nullptr));
    }

    RemoteMemory memory;
    RemoteMemory code;
    win32::UniqueHandle thread;
};

} // namespace

RemoteMemory::RemoteMemory(HANDLE process, std::size_t size, DWORD protection)
    : process_(process), size_(size),
      place_(VirtualAllocEx(process, nullptr, size, MEM_COMMIT | MEM_RESERVE, protection)) {
    if (place_ == nullptr) throw GuiError("no memory in the program");
}

RemoteMemory::~RemoteMemory() {
    if (place_ != nullptr) VirtualFreeEx(process_, place_, 0, MEM_RELEASE);
}

void RemoteMemory::write(const void* from, std::size_t size) {
    if (!WriteProcessMemory(process_, place_, from, size, nullptr))
        throw GuiError("cannot write to the program");
}

void RemoteMemory::read(void* to, std::size_t size) const {
    if (!ReadProcessMemory(process_, place_, to, size, nullptr))
        throw GuiError("cannot read from the program");
}

std::string RemoteMemory::text() const {
    std::vector<wchar_t> letters(size_ / sizeof(wchar_t));
    read(letters.data(), letters.size() * sizeof(wchar_t));
    return win32::narrow({letters.begin(), std::find(letters.begin(), letters.end(), L'\0')});
}

std::vector<DWORD> callIn(HANDLE process, const std::vector<RemoteCall>& calls) {
    std::vector<Call> records = recordsOf(process, calls);
    const Caller caller(process, records);
    if (!caller.thread || WaitForSingleObject(caller.thread.get(), patience) != WAIT_OBJECT_0) {
        throw GuiError("the program does not run what it is asked for");
    }
    caller.memory.read(records.data(), records.size() * sizeof(Call));
    std::vector<DWORD> results;
    for (std::size_t i = 0; i < calls.size(); ++i)
        results.push_back(records[i].result);
    return results;
}

void prepareForCalls(HANDLE process) {
    constexpr DWORD itself = 0xFFFFFFFF; // the handle by which a process means itself
    Caller waiting(process,
                   recordsOf(process, {{L"kernel32.dll", "WaitForSingleObject", {itself, INFINITE}}}));
    waiting.memory.leave();
    waiting.code.leave();
}

DWORD callIn(HANDLE process, const wchar_t* module, const char* function,
             const std::vector<DWORD>& arguments) {
    return callIn(process, {RemoteCall{module, function, arguments}}).front();
}

} // namespace varno::gui
