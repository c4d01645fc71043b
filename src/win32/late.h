#pragma once

#include <windows.h>

#include "base/run_time_error.h"

namespace varno::win32 {

/// A function of a library of Windows that is loaded when the first of these is made: every library that the program
/// imports is loaded before its first window, and most runs need few of them.
///
///     const Late<decltype(&PrintDlgW)> printDialog(L"comdlg32.dll", "PrintDlgW");
template <typename Function>
class Late;

template <typename Result, typename... Parameters>
class Late<Result(WINAPI*)(Parameters...)> {
  public:
    /// \throws RunTimeError when this Windows lacks it.
    Late(const wchar_t* library, const char* name)
        : function_(reinterpret_cast<Result(WINAPI*)(Parameters...)>(
              reinterpret_cast<void*>(GetProcAddress(LoadLibraryW(library), name)))) {
        if (function_ == nullptr) throw RunTimeError(errFileNotFound);
    }
    Result operator()(Parameters... parameters) const { return function_(parameters...); }

  private:
    Result(WINAPI* function_)(Parameters...);
};

} // namespace varno::win32
