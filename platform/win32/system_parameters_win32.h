// The system parameters of Windows.
#pragma once

#include "platform/system_parameters.h"

class TWin32SystemParameters : public TSystemParameters {
  public:
    [[nodiscard]] bool Get(std::uint32_t action, std::uint32_t param,
                           std::span<std::uint8_t> buffer) const override;
    [[nodiscard]] bool Set(std::uint32_t action, std::uint32_t param, const TSpiData& data,
                           std::uint32_t winIni) override;
};
