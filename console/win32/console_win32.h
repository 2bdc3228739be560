// The console, or the files and pipes in its place.
#pragma once

#include "base/win32/handle.h"
#include "console/command.h"

/// Characters on a console, UTF-8 everywhere else. What cannot be written is lost.
class TWin32Console : public TConsole {
  public:
    void Print(std::wstring_view line) override { Write(FOutput, line); }
    void Complain(std::wstring_view line) override { Write(FErrors, line); }

  private:
    static void Write(HANDLE stream, std::wstring_view line);

    HANDLE FOutput = GetStdHandle(STD_OUTPUT_HANDLE);
    HANDLE FErrors = GetStdHandle(STD_ERROR_HANDLE);
};
