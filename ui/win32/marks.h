// The marks of a form's controls: a dot that the container of the control draws, a word for screen readers, and the window
// property "ControlChanged" for other programs.
#pragma once

#include <unordered_map>

#include "ui/win32/accessible_description.h"
#include "ui/win32/window_peer.h"

inline constexpr const wchar_t* kChangedProperty = L"ControlChanged";

// At 96 dots per inch.
inline constexpr int kDotSize = 5;
inline constexpr int kDotGap = 2;  ///< between a dot and the control behind it

/// Draws a dot that fills the area.
void DrawDot(HDC target, const RECT& area, COLORREF color);

class TMarks {
  public:
    void Add(TWindowPeer& peer, const std::wstring& text);
    void Remove(TWindowPeer& peer);
    /// Lets the dots in a container follow the controls, which may have been moved, shown or hidden.
    void Follow(HWND container);
    /// Draws the dots in a container.
    void Draw(HWND container, HDC target) const;

  private:
    std::unordered_map<TWindowPeer*, RECT> FDots;  ///< and where they are in their containers
    TAccessibleDescriptions FDescriptions;
};
