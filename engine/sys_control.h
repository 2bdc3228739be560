// The list of pending changes, in the order in which their names were first recorded.
#pragma once

#include <span>
#include <string_view>

#include "engine/reg_recor.h"
#include "engine/restart.h"
#include "platform/system.h"

/// What Apply does with a Windows service.
struct TServiceSwitch {
    std::wstring Service;  ///< its key name
    int Order = 0;         ///< services are switched in this order, whichever was recorded first
    bool On = false;       ///< enables and starts it; otherwise stops and disables it
    std::wstring Setting;  ///< the name of the control that recorded it
};

/// What a pass of writes has done.
struct TWritten {
    TRestart RestartNeeded = TRestart::None;  ///< what was written, for the first time, waits for that
    bool AssociationsChanged = false;         ///< something was written below HKEY_CLASSES_ROOT
};

class TSysControl {
  public:
    /// `system` outlives the object.
    explicit TSysControl(TSystem& system) : FSystem(system) {}

    /// Records a change. When its name is known already, only the value (for a system parameter: the Spi
    /// fields) of the known entry changes: it keeps its place, address, type and action. A recorder that means
    /// a different operation for the same control therefore uses a name of its own. The mark of a restart, once set,
    /// stays.
    void Add(const TRegRecor& record);

    /// Records what becomes of a service, in place of what was recorded for it before.
    void Switch(const TServiceSwitch& service);

    /// Takes everything back.
    void Clear();

    /// Takes the changes of that name back.
    void Remove(std::wstring_view name);

    /// Takes back what the control of that name has recorded.
    void RemoveSetting(std::wstring_view setting);

    /// Reads the stored value that `record` addresses into it: ReadResult and, when found, DataType and Value
    /// (Value stays as it was for types other than text, DWORD and binary). Never looks at the pending changes.
    void ReadCurrent(TRegRecor& record) const;

    /// Like ReadCurrent, but the last pending change of the same place answers first: a write with its value,
    /// a deletion of the value or of exactly this key with "missing".
    void ReadPending(TRegRecor& record) const;

    /// Whether the key and, if `ValueName` is not empty, the value can be opened, in the process's own view of
    /// the registry.
    [[nodiscard]] TReadStatus CheckExists(const TRegRecor& record) const;

    /// Carries out every change in order and empties the list. Keys that cannot be opened are skipped; a write
    /// that the registry refuses ends the pass and keeps the whole list for the next one. The answer tells of what was
    /// written until then; a failure is not reported.
    TWritten WriteAll();

    /// Switches the services, each once, and waits for each. A service that is recorded while another one is waited for
    /// is switched too if its turn is still to come; all others are left for the next pass. Failures are not reported.
    void SwitchServices();

    /// The changes not yet written.
    [[nodiscard]] std::span<const TRegRecor> Pending() const { return FPending; }
    /// The services not yet switched, in the order in which they will be.
    [[nodiscard]] std::span<const TServiceSwitch> Services() const { return FServices; }
    [[nodiscard]] bool IsEmpty() const { return FPending.empty() && FServices.empty(); }

  private:
    [[nodiscard]] TWriteStatus Write(const TRegRecor& record);

    TSystem& FSystem;
    std::vector<TRegRecor> FPending;
    std::vector<TServiceSwitch> FServices;
};
