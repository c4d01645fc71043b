#include "win32/crash_guard.h"

#include <windows.h>

#include <atomic>
#include <exception>
#include <utility>

namespace varno::win32 {

namespace {

std::function<void()> guarded;
std::atomic_flag fallen;
std::terminate_handler terminateBefore = nullptr;
LPTOP_LEVEL_EXCEPTION_FILTER filterBefore = nullptr;

void fall() {
    // A fault in the action itself comes here again and ends the program.
    if (!fallen.test_and_set() && guarded) guarded();
}

LONG WINAPI onFault(EXCEPTION_POINTERS* fault) {
    fall();
    // Windows' own report of the fault follows.
    return filterBefore != nullptr ? filterBefore(fault) : EXCEPTION_CONTINUE_SEARCH;
}

void onTerminate() {
    fall();
    terminateBefore();
}

} // namespace

CrashGuard::CrashGuard(std::function<void()> action) {
    guarded = std::move(action);
    fallen.clear();
    // A stack overflow leaves too little of the stack to write a file.
    ULONG reserve = 64 * 1024;
    SetThreadStackGuarantee(&reserve);
    terminateBefore = std::set_terminate(onTerminate);
    filterBefore = SetUnhandledExceptionFilter(onFault);
}

CrashGuard::~CrashGuard() {
    SetUnhandledExceptionFilter(filterBefore);
    std::set_terminate(terminateBefore);
    guarded = nullptr;
}

} // namespace varno::win32
