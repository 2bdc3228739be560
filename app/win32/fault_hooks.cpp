#include "app/win32/fault_hooks.h"

#include <cstdlib>

#include "base/decimal.h"
#include "base/win32/late_bound.h"

namespace {

/// Windows and the C++ library call the hooks without a context.
TFaultHooks* Installed = nullptr;

/// As long as a sound disk may take. A fault while the heap is locked would otherwise never end.
constexpr DWORD kLongestWrite = 10'000;

struct THardwareFault {
    DWORD Code;
    const wchar_t* Type;
    const wchar_t* What;
};

constexpr THardwareFault kHardwareFaults[] = {
    {EXCEPTION_ACCESS_VIOLATION, L"EAccessViolation", L"Access violation"},
    {EXCEPTION_IN_PAGE_ERROR, L"EInPageError", L"Page that cannot be loaded"},
    {EXCEPTION_DATATYPE_MISALIGNMENT, L"EMisalignment", L"Misaligned access"},
    {EXCEPTION_STACK_OVERFLOW, L"EStackOverflow", L"Stack overflow"},
    {EXCEPTION_PRIV_INSTRUCTION, L"EPrivilege", L"Privileged instruction"},
    {EXCEPTION_ILLEGAL_INSTRUCTION, L"EIllegalInstruction", L"Illegal instruction"},
    {EXCEPTION_INT_DIVIDE_BY_ZERO, L"EDivByZero", L"Division by zero"},
    {EXCEPTION_INT_OVERFLOW, L"EIntOverflow", L"Integer overflow"},
    {EXCEPTION_ARRAY_BOUNDS_EXCEEDED, L"ERangeError", L"Range check error"},
    {EXCEPTION_FLT_DIVIDE_BY_ZERO, L"EZeroDivide", L"Floating-point division by zero"},
    {EXCEPTION_FLT_OVERFLOW, L"EOverflow", L"Floating-point overflow"},
    {EXCEPTION_FLT_UNDERFLOW, L"EUnderflow", L"Floating-point underflow"},
    {EXCEPTION_FLT_INVALID_OPERATION, L"EInvalidOp", L"Invalid floating-point operation"},
};

std::wstring AddressText(ULONG_PTR address) { return HexText(address, 2 * sizeof(address)); }

const THardwareFault* Find(DWORD code) {
    for (const THardwareFault& fault : kHardwareFaults)
        if (fault.Code == code) return &fault;
    return nullptr;
}

std::wstring TypeOf(const EXCEPTION_RECORD& fault) {
    const THardwareFault* known = Find(fault.ExceptionCode);
    return known != nullptr ? known->Type : L"EExternalException";
}

std::wstring MessageOf(const EXCEPTION_RECORD& fault) {
    const THardwareFault* known = Find(fault.ExceptionCode);
    std::wstring text =
        known != nullptr ? known->What : L"External exception " + HexText(fault.ExceptionCode, 8);
    text += L" at address " + AddressText(reinterpret_cast<ULONG_PTR>(fault.ExceptionAddress)) + L'.';
    if (fault.ExceptionCode == EXCEPTION_ACCESS_VIOLATION && fault.NumberParameters >= 2) {
        const ULONG_PTR access = fault.ExceptionInformation[0];
        text += access == 0 ? L" Read of" : access == 1 ? L" Write of" : L" Execution of";
        text += L" address " + AddressText(fault.ExceptionInformation[1]) + L'.';
    }
    return text;
}

/// How GCC throws a C++ exception; the runtime library's own filter goes on to std::terminate.
bool IsException(DWORD code) { return (code & 0x20FFFFFF) == 0x20474343; }

/// Whether an address lies in the program file.
bool IsOwnCode(const void* address) {
    MEMORY_BASIC_INFORMATION region{};
    return VirtualQuery(address, &region, sizeof region) != 0 &&
           region.AllocationBase == GetModuleHandleW(nullptr);
}

}  // namespace

/// What the C++ library does with an uncaught exception as long as it is not told otherwise. Its own function writes to a
/// console that is not there, and would bring in 60 KB to name the exception.
void __gnu_cxx::__verbose_terminate_handler() { std::_Exit(3); }

TFaultHooks::TFaultHooks(TFaultLog& log)
    : FLog(log),
      FAsked(CreateEventW(nullptr, FALSE, FALSE, nullptr)),
      FWritten(CreateEventW(nullptr, TRUE, FALSE, nullptr)) {
    Installed = this;
    // A thread of its own writes: after a stack overflow the faulting one has no room left to do it.
    FWriter = TWaitableHandle(CreateThread(nullptr, 0, RunWriter, nullptr, 0, nullptr));
    SetErrorMode(SetErrorMode(0) | SEM_NOGPFAULTERRORBOX);
    FOldFilter = SetUnhandledExceptionFilter(Filter);
    FFirstHandler = AddFirstHandler(SeeFirst);
    FOldTerminate = std::set_terminate(Terminate);
}

TFaultHooks::~TFaultHooks() {
    std::set_terminate(FOldTerminate);
    RemoveFirstHandler(FFirstHandler);
    SetUnhandledExceptionFilter(FOldFilter);
    FEnding = true;
    SetEvent(FAsked.Get());
    WaitForSingleObject(FWriter.Get(), INFINITE);
    Installed = nullptr;
}

LONG WINAPI TFaultHooks::Filter(EXCEPTION_POINTERS* fault) {
    const EXCEPTION_RECORD& record = *fault->ExceptionRecord;
    if (IsException(record.ExceptionCode))
        return Installed->FOldFilter != nullptr ? Installed->FOldFilter(fault) : EXCEPTION_CONTINUE_EXECUTION;
    Installed->Log(record);
    TerminateProcess(GetCurrentProcess(), record.ExceptionCode);
    return EXCEPTION_EXECUTE_HANDLER;
}

/// Windows hides a fault in a window procedure that it calls for another process from the filter, and goes on. The
/// program handles no fault of its own code, so there is nothing to wait for; those of libraries may be handled there.
LONG WINAPI TFaultHooks::SeeFirst(EXCEPTION_POINTERS* fault) {
    const EXCEPTION_RECORD& record = *fault->ExceptionRecord;
    return Find(record.ExceptionCode) != nullptr && IsOwnCode(record.ExceptionAddress)
               ? Filter(fault)
               : EXCEPTION_CONTINUE_SEARCH;
}

/// Logs what was thrown where nothing catches it.
void TFaultHooks::Terminate() {
    if (const std::exception_ptr fault = std::current_exception()) Installed->FLog.Add(fault);
    std::_Exit(3);  // abort() would show a dialog
}

DWORD WINAPI TFaultHooks::RunWriter(void* /*unused*/) {
    Installed->Write();
    return 0;
}

void TFaultHooks::Log(const EXCEPTION_RECORD& fault) {
    // Of a second fault, in the writer or elsewhere, no more is heard; the process is about to end.
    if (InterlockedIncrement(&FFaults) != 1) return;
    FFault = fault;
    SetEvent(FAsked.Get());
    WaitForSingleObject(FWritten.Get(), kLongestWrite);
}

void TFaultHooks::Write() {
    WaitForSingleObject(FAsked.Get(), INFINITE);
    if (FEnding) return;
    FLog.Add(TypeOf(FFault), MessageOf(FFault));
    SetEvent(FWritten.Get());
}
