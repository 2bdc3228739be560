// The registry of Windows.
#pragma once

#include "platform/registry.h"

/// A 32-bit process on 64-bit Windows works on the 64-bit view.
class TWin32Registry : public TRegistry {
  public:
    TWin32Registry();

    [[nodiscard]] TReadStatus Check(const TRegistryPlace& place, TRegistryView view) const override;
    [[nodiscard]] TReadStatus Read(const TRegistryPlace& place, TRegistryData& data) const override;
    [[nodiscard]] TReadStatus ReadRaw(const TRegistryPlace& place, TRawValue& value) const override;
    [[nodiscard]] TWriteStatus Write(const TRegistryPlace& place, const TRegistryData& data) override;
    [[nodiscard]] TWriteStatus WriteRaw(const TRegistryPlace& place, const TRawValue& value) override;
    [[nodiscard]] TWriteStatus DeleteValue(const TRegistryPlace& place) override;
    [[nodiscard]] TWriteStatus DeleteKey(TRootKey root, const std::wstring& key) override;
    [[nodiscard]] std::vector<std::wstring> SubKeys(TRootKey root, const std::wstring& key) const override;
    [[nodiscard]] std::vector<std::wstring> ValueNames(TRootKey root, const std::wstring& key) const override;

  private:
    std::uint32_t
        FNativeView;  ///< the access right that selects the native view; 0 where there is one view only
};
