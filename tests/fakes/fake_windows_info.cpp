#include "tests/fakes/fake_windows_info.h"

namespace {

template <typename T>
std::optional<T> Find(const std::map<std::wstring, T>& entries, const std::wstring& path) {
    const auto entry = entries.find(path);
    return entry == entries.end() ? std::nullopt : std::optional<T>(entry->second);
}

class TLoadedResource : public TVersionResource {
  public:
    explicit TLoadedResource(TFakeVersionResource resource) : FResource(std::move(resource)) {}

    [[nodiscard]] std::optional<std::wstring> Text(const std::wstring& path) const override {
        return Find(FResource.Texts, path);
    }
    [[nodiscard]] std::optional<std::vector<std::uint8_t>> Block(const std::wstring& path) const override {
        return Find(FResource.Blocks, path);
    }

  private:
    TFakeVersionResource FResource;
};

}  // namespace

std::unique_ptr<TVersionResource> TFakeWindowsInfo::OpenVersionResource(const std::wstring& file) const {
    const auto resource = FResources.find(file);
    return resource == FResources.end() ? nullptr : std::make_unique<TLoadedResource>(resource->second);
}
