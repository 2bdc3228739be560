// A form in a real window, and what its controls fired.
#pragma once

#include <windows.h>

#include <utility>

#include <gtest/gtest.h>

#include "ui/controls.h"
#include "ui/design.h"
#include "ui/win32/form_window.h"

class TPeerBench : public testing::Test {
  protected:
    using TNames = std::vector<std::wstring>;

    TPeerBench() : Form(L"Form", L"TPeerBenchForm") {}
    ~TPeerBench() override { EXPECT_EQ(Faults, 0); }
    TPeerBench(const TPeerBench&) = delete;
    TPeerBench& operator=(const TPeerBench&) = delete;

    /// Creates the windows of what has been built.
    void Show() {
        TFormWindow::Attach(Form, GetModuleHandleW(nullptr), [this](const std::exception_ptr&) {
            ++Faults;
        }).Show(SW_SHOW);
    }
    static void HandleMessages() {
        MSG message;
        while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) DispatchMessageW(&message);
    }

    template <typename T>
    T& Get(const wchar_t* name) {
        return *Form.Find<T>(name);
    }
    HWND Window(const wchar_t* name) const {
        return dynamic_cast<TWindowPeer*>(Form.Find(name)->Peer())->Handle();
    }
    std::wstring TextOf(const wchar_t* name) const {
        wchar_t text[200]{};
        GetWindowTextW(Window(name), text, 200);
        return text;
    }
    LRESULT Send(const wchar_t* name, UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const {
        return SendMessageW(Window(name), message, wParam, lParam);
    }
    RECT Place(const wchar_t* name) const {
        RECT place{};
        GetWindowRect(Window(name), &place);
        return place;
    }
    bool TabStops(const wchar_t* name) const {
        return (GetWindowLongW(Window(name), GWL_STYLE) & WS_TABSTOP) != 0;
    }
    bool IsShown(const wchar_t* name) const { return IsWindowVisible(Window(name)); }
    TNames TakeFired() { return std::exchange(Fired, {}); }

    TForm Form;
    TNames Fired;
    const TNotifyEvent Note = [this](TComponent& sender) { Fired.push_back(sender.Name()); };
    int Faults = 0;
};
