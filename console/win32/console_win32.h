// The console, or the files and pipes in its place.
#pragma once

#include "base/win32/handle.h"
#include "console/command.h"

/// Characters on a console, UTF-8 everywhere else. What cannot be written is lost.
class TWin32Console : public TConsole {
  public:
    void Print(std::wstring_view line) override { FOutput.Write(line); }
    void Complain(std::wstring_view line) override { FErrors.Write(line); }

  private:
    class TStream {
      public:
        /// `standard` is one of STD_…_HANDLE.
        explicit TStream(DWORD standard);
        void Write(std::wstring_view line) const;

      private:
        void WriteCharacters(const std::wstring& text) const;

        HANDLE FHandle;
        bool FIsConsole;
    };

    TStream FOutput{STD_OUTPUT_HANDLE};
    TStream FErrors{STD_ERROR_HANDLE};
};
