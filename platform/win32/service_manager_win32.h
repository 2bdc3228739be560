// The service control manager of Windows.
#pragma once

#include <map>

#include "platform/service_manager.h"

/// Opening the manager takes many times as long as asking a service, so that what is opened once stays open.
class TWin32ServiceManager : public TServiceManager {
  public:
    TWin32ServiceManager() = default;
    ~TWin32ServiceManager() override;
    TWin32ServiceManager(const TWin32ServiceManager&) = delete;
    TWin32ServiceManager& operator=(const TWin32ServiceManager&) = delete;

    [[nodiscard]] TServiceHandle OpenManager(std::uint32_t access) override;
    [[nodiscard]] TServiceHandle OpenNamedService(TServiceHandle manager, const std::wstring& name,
                                                  std::uint32_t access) override;
    void Close(TServiceHandle handle) override;
    [[nodiscard]] bool QueryState(TServiceHandle service, TServiceState& state) override;
    [[nodiscard]] bool Control(TServiceHandle service, TServiceControl control,
                               TServiceState& state) override;
    [[nodiscard]] bool Start(TServiceHandle service) override;
    [[nodiscard]] bool QueryStartType(TServiceHandle service, TServiceStartType& startType) override;
    [[nodiscard]] bool ChangeStartType(TServiceHandle service, TServiceStartType startType) override;

  private:
    std::map<std::uint32_t, TServiceHandle> FManagers;  ///< by the access that they give
};
