// System parameters in memory.
#pragma once

#include <map>

#include "platform/system_parameters.h"

/// A call of TSystemParameters::Set with its answer.
struct TParameterLogEntry {
    std::uint32_t Action = 0;
    std::uint32_t Param = 0;
    TSpiData Data;
    std::uint32_t WinIni = 0;
    bool Result = true;
};

class TFakeParameters : public TSystemParameters {
  public:
    /// Which argument of a setting call carries what its asking counterpart answers.
    enum class TCarrier { Param, Data };

    /// What Get answers for an action; actions never put fail.
    void Put(std::uint32_t action, std::vector<std::uint8_t> bytes) { FValues[action] = std::move(bytes); }
    /// Put for a parameter of four bytes (BOOL, UINT).
    void PutNumber(std::uint32_t action, std::uint32_t number);
    /// From now on what `setAction` sets is what `getAction` answers. The codes are not systematic in Windows, so a
    /// test names the pairs it needs; other settings are only logged.
    void Pair(std::uint32_t setAction, std::uint32_t getAction, TCarrier carrier);

    [[nodiscard]] const std::vector<TParameterLogEntry>& Log() const { return FLog; }
    /// The n-th Set from now fails; 1 is the next one.
    void FailSet(int n) { FSetsToFailure = n; }
    /// Every Set of this action fails.
    void RefuseAction(std::uint32_t action) { FRefused.push_back(action); }

    [[nodiscard]] bool Get(std::uint32_t action, std::uint32_t param,
                           std::span<std::uint8_t> buffer) const override;
    [[nodiscard]] bool Set(std::uint32_t action, std::uint32_t param, const TSpiData& data,
                           std::uint32_t winIni) override;

  private:
    struct TPair {
        std::uint32_t GetAction = 0;
        TCarrier Carrier = TCarrier::Param;
    };

    std::map<std::uint32_t, std::vector<std::uint8_t>> FValues;  ///< by asking action
    std::map<std::uint32_t, TPair> FPairs;                       ///< by setting action
    std::vector<TParameterLogEntry> FLog;
    std::vector<std::uint32_t> FRefused;
    int FSetsToFailure = 0;  ///< 0 = none will fail
};
