// Drawing without flicker: a part of a window is drawn in memory and copied to the screen in one go.
#pragma once

#include <windows.h>

#include <cstdint>
#include <functional>
#include <span>

/// Fills an area with one colour.
void FillArea(HDC target, const RECT& area, COLORREF color);

/// Handles WM_PAINT or WM_PRINTCLIENT of a window by `draw`, which is not called where nothing is to be drawn.
void PaintWindow(HWND window, UINT message, WPARAM wParam, const std::function<void(HDC)>& draw);

class TPaintBuffer {
  public:
    /// Stands for `area` of `target`; what is drawn has the same coordinates in both. Undefined until drawn over.
    TPaintBuffer(HDC target, const RECT& area);
    /// Copies the area to the target.
    ~TPaintBuffer();
    TPaintBuffer(const TPaintBuffer&) = delete;
    TPaintBuffer& operator=(const TPaintBuffer&) = delete;

    /// Where to draw. The target itself when memory is short.
    [[nodiscard]] HDC Handle() const { return FBitmap == nullptr ? FTarget : FMemory; }

    /// Starts from what the target shows at present.
    void CopyTarget();

    /// The pixels as 0x00RRGGBB, row by row from the top; empty when memory is short.
    [[nodiscard]] std::span<std::uint32_t> Pixels() const;

  private:
    HDC FTarget;
    RECT FArea;
    HDC FMemory = nullptr;
    HBITMAP FBitmap = nullptr;
    HGDIOBJ FPreviousBitmap = nullptr;
    std::uint32_t* FBits = nullptr;  ///< lie in the bitmap
};
