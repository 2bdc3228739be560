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

    /// Creates the windows of what has been built.
    void Show() {
        TFormWindow::Attach(Form, GetModuleHandleW(nullptr), [this](const std::exception_ptr&) {
            ++Faults;
        }).Show(SW_SHOWNOACTIVATE);
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
    bool IsShown(const wchar_t* name) const { return IsWindowVisible(Window(name)); }
    TNames TakeFired() { return std::exchange(Fired, {}); }

    TForm Form;
    TNames Fired;
    int Faults = 0;
};
