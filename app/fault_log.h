// The fault log: faults are written to "Error_Log.txt" beside the program instead of being shown.
#pragma once

#include <exception>

#include "platform/system.h"

class TFaultLog {
  public:
    /// `system` outlives the log.
    explicit TFaultLog(TSystem& system) : FSystem(system) {}

    /// Appends the block of a C++ exception: its class name and its message, which is taken as UTF-8. What is no
    /// std::exception is of the type "unknown" and has no message.
    void Add(const std::exception_ptr& fault) noexcept;

    /// Appends the block of a fault that is described already.
    ///
    /// The log keeps what it holds, to the byte, and is continued in its own encoding and with its own line ends; a new
    /// one is in UTF-8 with a byte-order mark and ends its lines with CR LF. A block is written whole or not at all.
    /// When the log cannot be read or written the fault is given up, and so is a fault that occurs while a block is
    /// being written.
    void Add(std::wstring_view type, std::wstring_view message) noexcept;

  private:
    [[nodiscard]] std::vector<std::wstring> LinesOf(std::wstring_view type, std::wstring_view message) const;
    void Append(const std::vector<std::wstring>& block) const;

    TSystem& FSystem;
    bool FWriting = false;
};
