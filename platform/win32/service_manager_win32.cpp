#include "platform/win32/service_manager_win32.h"

#include <windows.h>

#include <algorithm>
#include <bit>

namespace {

SC_HANDLE NativeHandle(TServiceHandle handle) { return std::bit_cast<SC_HANDLE>(handle); }

}  // namespace

TWin32ServiceManager::~TWin32ServiceManager() {
    for (const auto& [access, manager] : FManagers) CloseServiceHandle(NativeHandle(manager));
}

TServiceHandle TWin32ServiceManager::OpenManager(std::uint32_t access) {
    if (const auto open = FManagers.find(access); open != FManagers.end()) return open->second;
    const auto manager = std::bit_cast<TServiceHandle>(OpenSCManagerW(nullptr, nullptr, access));
    if (manager != TServiceHandle::None) FManagers.emplace(access, manager);
    return manager;
}

TServiceHandle TWin32ServiceManager::OpenNamedService(TServiceHandle manager, const std::wstring& name,
                                                      std::uint32_t access) {
    return std::bit_cast<TServiceHandle>(OpenServiceW(NativeHandle(manager), name.c_str(), access));
}

void TWin32ServiceManager::Close(TServiceHandle handle) {
    const auto isHandle = [handle](const auto& open) { return open.second == handle; };
    if (handle != TServiceHandle::None && std::ranges::none_of(FManagers, isHandle))
        CloseServiceHandle(NativeHandle(handle));
}

bool TWin32ServiceManager::QueryState(TServiceHandle service, TServiceState& state) {
    SERVICE_STATUS status{};
    if (!QueryServiceStatus(NativeHandle(service), &status)) return false;
    state = TServiceState{static_cast<std::uint32_t>(status.dwCurrentState)};
    return true;
}

bool TWin32ServiceManager::Control(TServiceHandle service, TServiceControl control, TServiceState& state) {
    SERVICE_STATUS status{};
    if (!ControlService(NativeHandle(service), static_cast<DWORD>(control), &status)) return false;
    state = TServiceState{static_cast<std::uint32_t>(status.dwCurrentState)};
    return true;
}

bool TWin32ServiceManager::Start(TServiceHandle service) {
    return StartServiceW(NativeHandle(service), 0, nullptr);
}

bool TWin32ServiceManager::QueryStartType(TServiceHandle service, TServiceStartType& startType) {
    alignas(QUERY_SERVICE_CONFIGW) BYTE buffer[8192];  // the most that Windows ever needs
    auto* config = reinterpret_cast<QUERY_SERVICE_CONFIGW*>(buffer);
    DWORD needed = 0;
    if (!QueryServiceConfigW(NativeHandle(service), config, sizeof buffer, &needed)) return false;
    startType = TServiceStartType{static_cast<std::uint32_t>(config->dwStartType)};
    return true;
}

bool TWin32ServiceManager::ChangeStartType(TServiceHandle service, TServiceStartType startType) {
    return ChangeServiceConfigW(NativeHandle(service), SERVICE_NO_CHANGE, static_cast<DWORD>(startType),
                                SERVICE_NO_CHANGE, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr,
                                nullptr);
}
