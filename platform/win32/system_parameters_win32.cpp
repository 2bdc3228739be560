#include "platform/win32/system_parameters_win32.h"

#include <windows.h>

#include <algorithm>
#include <bit>
#include <cstring>

namespace {

bool CopyNumber(std::uint32_t number, std::span<std::uint8_t> buffer) {
    if (buffer.size() != sizeof number) return false;
    std::memcpy(buffer.data(), &number, sizeof number);
    return true;
}

}  // namespace

bool TWin32SystemParameters::Get(std::uint32_t action, std::uint32_t param,
                                 std::span<std::uint8_t> buffer) const {
    if (action == kDoubleClickTime) return CopyNumber(GetDoubleClickTime(), buffer);
    if ((action & kSystemMetric) != 0)
        return CopyNumber(
            static_cast<std::uint32_t>(GetSystemMetrics(static_cast<int>(action & ~kSystemMetric))), buffer);
    // On a copy: a failing call may have written half of it, and a structure must be aligned.
    std::vector<std::uint8_t> answer(buffer.begin(), buffer.end());
    if (!SystemParametersInfoW(action, param, answer.data(), 0)) return false;
    std::ranges::copy(answer, buffer.begin());
    return true;
}

bool TWin32SystemParameters::Set(std::uint32_t action, std::uint32_t param, const TSpiData& data,
                                 std::uint32_t winIni) {
    if (const auto* number = std::get_if<std::uint32_t>(&data))
        return SystemParametersInfoW(action, param, std::bit_cast<void*>(std::uintptr_t{*number}), winIni);
    // On a copy, because Windows takes a pointer that it might write through.
    auto block = std::get<std::vector<std::uint8_t>>(data);
    return SystemParametersInfoW(action, param, block.data(), winIni);
}
