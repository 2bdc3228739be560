#include "tests/fakes/fake_parameters.h"

#include <algorithm>

void TFakeParameters::PutNumber(std::uint32_t action, std::uint32_t number) {
    std::vector<std::uint8_t> bytes;
    for (int shift = 0; shift < 32; shift += 8) bytes.push_back(static_cast<std::uint8_t>(number >> shift));
    Put(action, std::move(bytes));
}

void TFakeParameters::Pair(std::uint32_t setAction, std::uint32_t getAction, TCarrier carrier) {
    FPairs[setAction] = {getAction, carrier};
}

bool TFakeParameters::Get(std::uint32_t action, std::uint32_t /*param*/,
                          std::span<std::uint8_t> buffer) const {
    const auto value = FValues.find(action);
    if (value == FValues.end()) return false;
    std::copy_n(value->second.begin(), std::min(value->second.size(), buffer.size()), buffer.begin());
    return true;
}

bool TFakeParameters::Set(std::uint32_t action, std::uint32_t param, const TSpiData& data,
                          std::uint32_t winIni) {
    const bool done = FSetsToFailure != 1 && std::ranges::find(FRefused, action) == FRefused.end();
    if (FSetsToFailure > 0) --FSetsToFailure;
    FLog.push_back({action, param, data, winIni, done});
    const auto pair = FPairs.find(action);
    if (!done || pair == FPairs.end()) return done;
    const auto* number = std::get_if<std::uint32_t>(&data);
    if (pair->second.Carrier == TCarrier::Param)
        PutNumber(pair->second.GetAction, param);
    else if (number != nullptr)
        PutNumber(pair->second.GetAction, *number);
    else
        Put(pair->second.GetAction, std::get<std::vector<std::uint8_t>>(data));
    return true;
}
