// The system-wide parameters of Windows (visual effects, input, sounds).
#pragma once

#include <cstdint>
#include <span>
#include <variant>
#include <vector>

/// The pvParam of a SystemParametersInfoW call that sets something: a number passed as the pointer itself (for
/// example the font smoothing type), or the bytes of a structure, which the holder of the value owns.
using TSpiData = std::variant<std::uint32_t, std::vector<std::uint8_t>>;

// Codes to ask for what SystemParametersInfoW sets but does not tell.

/// Plus an SM_… index: what GetSystemMetrics answers.
inline constexpr std::uint32_t kSystemMetric = 0x80000000;
/// What GetDoubleClickTime answers.
inline constexpr std::uint32_t kDoubleClickTime = 0x80010000;

/// SystemParametersInfoW. Actions are the documented SPI_… codes.
class TSystemParameters {
  public:
    virtual ~TSystemParameters() = default;

    /// Asks for a parameter, by its SPI_GET… code or one of those above. `buffer` is pvParam: it is cleared or filled in (cbSize) by the caller and keeps
    /// what it held when the call fails.
    [[nodiscard]] virtual bool Get(std::uint32_t action, std::uint32_t param,
                                   std::span<std::uint8_t> buffer) const = 0;

    /// Sets a parameter. `winIni` is fWinIni, for example 1 = SPIF_UPDATEINIFILE.
    [[nodiscard]] virtual bool Set(std::uint32_t action, std::uint32_t param, const TSpiData& data,
                                   std::uint32_t winIni) = 0;
};
