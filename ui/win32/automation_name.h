// How other processes find a control: the window property "ControlName" holds a global atom with its name.
#pragma once

#include <windows.h>

#include <string>

void SetAutomationName(HWND window, const std::wstring& name);
void RemoveAutomationName(HWND window);

/// The property of a colour swatch: kColorMark plus its colour as 0x00BBGGRR.
inline constexpr const wchar_t* kColorProperty = L"ControlColor";
inline constexpr std::uint32_t kColorMark = 0x01000000;
