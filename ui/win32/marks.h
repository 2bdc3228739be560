// The marks of a form's controls: a dot that the container of the control draws, and the window property "ControlChanged" for
// other programs. And the frame around a control that is to catch the eye.
#pragma once

#include <unordered_map>

#include "ui/win32/window_peer.h"

inline constexpr const wchar_t* kChangedProperty = L"ControlChanged";

// At 96 dots per inch.
inline constexpr int kDotSize = 5;
inline constexpr int kDotGap = 2;  ///< between a dot and the control behind it

/// Draws a dot that fills the area.
void DrawDot(HDC target, const RECT& area, COLORREF color);

class TMarks {
  public:
    void Add(TWindowPeer& peer);
    void Remove(TWindowPeer& peer);
    /// Lets the dots in a container follow the controls, which may have been moved, shown or hidden.
    void Follow(HWND container);
    /// Frames the control instead of the one that was framed; null frames none.
    void Frame(const TWindowPeer* peer);
    /// Takes the frame from the control if it has it.
    void Unframe(const TWindowPeer& peer) {
        if (FFramed == &peer) Frame(nullptr);
    }
    /// Draws the dots in a container, and the frame.
    void Draw(HWND container, HDC target) const;

  private:
    std::unordered_map<TWindowPeer*, RECT> FDots;  ///< and where they are in their containers
    const TWindowPeer* FFramed = nullptr;
    RECT FFrame{};  ///< in its container
};
