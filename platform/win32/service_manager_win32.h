// The service control manager of Windows.
#pragma once

#include "platform/service_manager.h"

class TWin32ServiceManager : public TServiceManager {
  public:
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
};
