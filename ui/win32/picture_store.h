// The program's pictures, decoded once each at the size that fits the screen.
#pragma once

#include <windows.h>

#include <map>
#include <memory>
#include <optional>
#include <string>
#include <utility>

#include "ui/pixels.h"

/// A decoded picture: 32-bit pixels with premultiplied alpha, top row first.
class TPicture {
  public:
    explicit TPicture(TPixels pixels) : FPixels(std::move(pixels)) {}

    [[nodiscard]] int Width() const { return FPixels.Width; }
    [[nodiscard]] int Height() const { return FPixels.Height; }

    /// Draws the picture with its top left corner at the given point, over what is there.
    void Draw(HDC target, int left, int top, unsigned opacity = kOpaque) const;

  private:
    TPixels FPixels;
};

class TPictureStore {
  public:
    explicit TPictureStore(HINSTANCE instance) : FInstance(instance) {}

    /// The picture of that base name, `size` pixels high, from the program's PNG resources ("name_16", "name_20",
    /// …): the resource of exactly that size, else the next larger one scaled down, else the largest. Null when
    /// there is none. The picture lives as long as the store.
    [[nodiscard]] const TPicture* Find(const std::wstring& name, int size);

  private:
    [[nodiscard]] std::optional<TPixels> Load(const std::wstring& name, int size) const;
    [[nodiscard]] std::optional<TPixels> Decode(const std::wstring& resource) const;

    HINSTANCE FInstance;
    std::map<std::pair<std::wstring, int>, std::unique_ptr<TPicture>> FPictures;
};
