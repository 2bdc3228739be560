// Faults that reach no handler of the program: those of the processor, and exceptions outside the message loop. They are
// written to the fault log; then the process ends, without a dialog.
#pragma once

#include "app/fault_log.h"
#include "base/win32/handle.h"

class TFaultHooks {
  public:
    /// Installs the hooks; one object at a time does. `log` outlives it.
    explicit TFaultHooks(TFaultLog& log);
    ~TFaultHooks();
    TFaultHooks(const TFaultHooks&) = delete;
    TFaultHooks& operator=(const TFaultHooks&) = delete;

  private:
    static LONG WINAPI Filter(EXCEPTION_POINTERS* fault);
    static LONG WINAPI SeeFirst(EXCEPTION_POINTERS* fault);
    static void Terminate();
    static DWORD WINAPI RunWriter(void* unused);

    void Log(const EXCEPTION_RECORD& fault);
    void Write();

    TFaultLog& FLog;
    EXCEPTION_RECORD FFault{};
    LONG FFaults = 0;  ///< how many have occurred; the first is written
    bool FEnding = false;
    TWaitableHandle FAsked;    ///< there is something to do for the writer
    TWaitableHandle FWritten;  ///< the fault is written
    TWaitableHandle FWriter;
    LPTOP_LEVEL_EXCEPTION_FILTER FOldFilter;
    PVOID FFirstHandler;
    std::terminate_handler FOldTerminate;
};
