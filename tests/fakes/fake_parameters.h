// System parameters in memory.
#pragma once

#include <algorithm>
#include <map>
#include <set>

#include "platform/system_parameters.h"

class TFakeParameters : public TSystemParameters {
  public:
    /// Which argument of a setting call carries what its asking counterpart answers.
    enum class TCarrier { Param, Data };

    /// What Get answers for an action; actions never put fail.
    void Put(std::uint32_t action, std::vector<std::uint8_t> bytes) { FValues[action] = std::move(bytes); }
    /// Put for a parameter of four bytes (BOOL, UINT).
    void PutNumber(std::uint32_t action, std::uint32_t number) {
        FValues[action].clear();
        for (int shift = 0; shift < 32; shift += 8)
            FValues[action].push_back(static_cast<std::uint8_t>(number >> shift));
    }
    /// From now on what `setAction` sets is what `getAction` answers. The codes are not systematic in Windows, so a
    /// test names the pairs it needs; other settings are only logged.
    void Pair(std::uint32_t setAction, std::uint32_t getAction, TCarrier carrier) {
        FPairs[setAction] = {getAction, carrier};
    }
    /// Every Set of this action fails.
    void RefuseAction(std::uint32_t action) { FRefused.insert(action); }
    /// What was passed to Set as data, with or without success.
    [[nodiscard]] const std::vector<TSpiData>& Log() const { return FLog; }

    [[nodiscard]] bool Get(std::uint32_t action, std::uint32_t /*param*/,
                           std::span<std::uint8_t> buffer) const override {
        const auto value = FValues.find(action);
        if (value == FValues.end()) return false;
        std::copy_n(value->second.begin(), std::min(value->second.size(), buffer.size()), buffer.begin());
        return true;
    }
    [[nodiscard]] bool Set(std::uint32_t action, std::uint32_t param, const TSpiData& data,
                           std::uint32_t /*winIni*/) override {
        FLog.push_back(data);
        if (FRefused.contains(action)) return false;
        const auto pair = FPairs.find(action);
        if (pair == FPairs.end()) return true;
        const auto& [getAction, carrier] = pair->second;
        if (const auto* bytes = std::get_if<std::vector<std::uint8_t>>(&data))
            Put(getAction, *bytes);
        else
            PutNumber(getAction, carrier == TCarrier::Param ? param : std::get<std::uint32_t>(data));
        return true;
    }

  private:
    std::map<std::uint32_t, std::vector<std::uint8_t>> FValues;          ///< by asking action
    std::map<std::uint32_t, std::pair<std::uint32_t, TCarrier>> FPairs;  ///< by setting action
    std::set<std::uint32_t> FRefused;
    std::vector<TSpiData> FLog;
};
