// Drives the running program from a command line, for scripts:
//   drive [--form CLASS] VERB [NAME] [ARGUMENT]
// With --form it is the dialog of that window class that is driven, not the main window.
// Exit status 0, or 1 with the reason on the standard error output.
#include <cstdio>
#include <cstring>

#include "tools/automation.h"

namespace {

void Print(const std::wstring& line) { std::printf("%s\n", Utf8(line).c_str()); }

std::wstring Place(const RECT& rectangle) {
    return std::to_wstring(rectangle.left) + L" " + std::to_wstring(rectangle.top) + L" " +
           std::to_wstring(rectangle.right - rectangle.left) + L" " +
           std::to_wstring(rectangle.bottom - rectangle.top);
}

void List(const TMainWindow& window) {
    for (const TNamedControl& control : window.Controls()) {
        RECT rectangle{};
        GetWindowRect(control.Window, &rectangle);
        Print(control.Name + L"\t" + ClassOf(control.Window) + L"\t" +
              (IsWindowVisible(control.Window) ? L"visible" : L"hidden") + L"\t" + Place(rectangle) + L"\t" +
              TextOf(control.Window));
    }
}

/// What a verb does with the window, the name and the argument.
struct TVerb {
    const char* Word;
    int Operands;
    const char* Help;
    void (*Do)(const TMainWindow& window, const std::wstring& name, const std::wstring& argument);
};

constexpr TVerb kVerbs[] = {
    {"wait-ready", 0, "waits until the window is ready for use",
     [](const TMainWindow& window, const std::wstring&, const std::wstring&) { window.WaitReady(); }},
    {"click", 1, "clicks a button, box or category item",
     [](const TMainWindow& window, const std::wstring& name, const std::wstring&) { window.Click(name); }},
    {"sheet", 1, "chooses the tab of that sheet",
     [](const TMainWindow& window, const std::wstring& name, const std::wstring&) {
         window.ChooseSheet(name);
     }},
    {"choose", 2, "chooses an item of a drop-down list by its number from 0",
     [](const TMainWindow& window, const std::wstring& name, const std::wstring& item) {
         window.ChooseItem(name, static_cast<int>(std::wcstol(item.c_str(), nullptr, 10)));
     }},
    {"rows", 1, "prints the rows of a list",
     [](const TMainWindow& window, const std::wstring& name, const std::wstring&) {
         for (const auto& row : window.Rows(name)) {
             std::wstring line;
             for (const std::wstring& cell : row) line += (line.empty() ? L"" : L"\t") + cell;
             Print(line);
         }
     }},
    {"select", 2, "selects a row of a list by its number from 0",
     [](const TMainWindow& window, const std::wstring& name, const std::wstring& row) {
         window.SelectRow(name, static_cast<int>(std::wcstol(row.c_str(), nullptr, 10)));
     }},
    {"type", 2, "types a text into an edit, in place of what stands there",
     [](const TMainWindow& window, const std::wstring& name, const std::wstring& text) {
         window.Type(name, text);
     }},
    {"focus", 1, "gives a control the focus",
     [](const TMainWindow& window, const std::wstring& name, const std::wstring&) { window.SetFocus(name); }},
    {"focused", 0, "prints the name of the control with the focus",
     [](const TMainWindow& window, const std::wstring&, const std::wstring&) {
         Print(window.FocusedControl());
     }},
    {"key", 1, "presses a key as on the keyboard: F6, shift+F6, ctrl+PgDn, alt+Space, ...",
     [](const TMainWindow& window, const std::wstring& name, const std::wstring&) { window.Strike(name); }},
    {"state", 1, "prints checked or clear, the chosen item, or the text",
     [](const TMainWindow& window, const std::wstring& name, const std::wstring&) {
         Print(window.State(name));
     }},
    {"text", 1, "prints the text of a control",
     [](const TMainWindow& window, const std::wstring& name, const std::wstring&) {
         Print(window.Text(name));
     }},
    {"list", 0, "prints name, class, visibility, place and text of every control",
     [](const TMainWindow& window, const std::wstring&, const std::wstring&) { List(window); }},
    {"rect", 0, "prints left, top, width and height of the window",
     [](const TMainWindow& window, const std::wstring&, const std::wstring&) {
         Print(Place(window.Rectangle()));
     }},
    {"close", 0, "closes the window and waits until it is gone",
     [](const TMainWindow& window, const std::wstring&, const std::wstring&) {
         window.Close();
         if (!WaitUntil([&] { return !IsWindow(window.Handle()); }))
             throw TAutomationError(L"it does not close");
     }},
};

/// Names are plain ASCII.
std::wstring Operand(int count, char** arguments, int index) {
    if (index >= count) return {};
    const std::string text = arguments[index];
    return {text.begin(), text.end()};
}

}  // namespace

int main(int count, char** arguments) {
    std::wstring form = TMainWindow::kClass;
    if (count > 2 && std::strcmp(arguments[1], "--form") == 0) {
        form = Operand(count, arguments, 2);
        count -= 2;
        arguments += 2;
    }
    for (const TVerb& verb : kVerbs) {
        if (count != verb.Operands + 2 || std::strcmp(arguments[1], verb.Word) != 0) continue;
        try {
            verb.Do(TMainWindow::WaitFor(0, form.c_str()), Operand(count, arguments, 2),
                    Operand(count, arguments, 3));
            return 0;
        } catch (const TAutomationError& error) {
            std::fprintf(stderr, "drive: %s\n", error.what());
            return 1;
        }
    }
    std::fprintf(stderr, "drive [--form CLASS] VERB [NAME] [ARGUMENT]\n");
    for (const TVerb& verb : kVerbs) std::fprintf(stderr, "  %-10s  %s\n", verb.Word, verb.Help);
    return 1;
}
