#include "tools/automation.h"

#include <commctrl.h>

namespace {

constexpr DWORD kPause = 10;

LRESULT Ask(HWND window, UINT message, WPARAM wParam = 0, LPARAM lParam = 0) {
    DWORD_PTR answer = 0;
    if (SendMessageTimeoutW(window, message, wParam, lParam, SMTO_NORMAL, kPatience, &answer) == 0 &&
        IsWindow(window))
        throw TAutomationError(L"a window does not answer: " + ClassOf(window));
    return static_cast<LRESULT>(answer);
}

/// The name that the window carries; empty when it has none.
std::wstring NameOf(HWND window) {
    const auto atom = static_cast<ATOM>(reinterpret_cast<ULONG_PTR>(GetPropW(window, L"ControlName")));
    if (atom == 0) return {};
    wchar_t name[256];
    return {name, GlobalGetAtomNameW(atom, name, 256)};
}

std::vector<HWND> InnerWindows(HWND window) {
    std::vector<HWND> inner;
    EnumChildWindows(
        window,
        [](HWND child, LPARAM list) -> BOOL {
            reinterpret_cast<std::vector<HWND>*>(list)->push_back(child);
            return TRUE;
        },
        reinterpret_cast<LPARAM>(&inner));
    return inner;
}

bool IsBox(HWND button) {
    switch (GetWindowLongW(button, GWL_STYLE) & BS_TYPEMASK) {
        case BS_CHECKBOX:
        case BS_AUTOCHECKBOX:
        case BS_3STATE:
        case BS_AUTO3STATE:
        case BS_RADIOBUTTON:
        case BS_AUTORADIOBUTTON:
            return true;
        default:
            return false;
    }
}

std::wstring ChosenItem(HWND list) {
    const LRESULT index = Ask(list, CB_GETCURSEL);
    if (index == CB_ERR) return {};
    std::wstring text(static_cast<std::size_t>(Ask(list, CB_GETLBTEXTLEN, static_cast<WPARAM>(index))) + 1,
                      L'\0');
    text.resize(static_cast<std::size_t>(
        Ask(list, CB_GETLBTEXT, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(text.data()))));
    return text;
}

/// LVITEMW as a process of 32 bits has it.
struct TListItem32 {
    UINT Mask;
    int Item;
    int SubItem;
    UINT State;
    UINT StateMask;
    std::uint32_t Text;
    int TextMax;
    std::uint32_t Rest[8];
};

/// An item of a list view, for messages that name it by its address: it lies in the process of the list.
class TListItem {
  public:
    explicit TListItem(HWND list) : FList(list) {
        DWORD process = 0;
        GetWindowThreadProcessId(list, &process);
        FProcess =
            OpenProcess(PROCESS_VM_OPERATION | PROCESS_VM_READ | PROCESS_VM_WRITE | PROCESS_QUERY_INFORMATION,
                        FALSE, process);
        IsWow64Process(FProcess, &FIs32Bit);
        FItem = static_cast<char*>(
            VirtualAllocEx(FProcess, nullptr, kTextOffset + sizeof FText, MEM_COMMIT, PAGE_READWRITE));
        if (FItem == nullptr) throw TAutomationError(L"no memory in the other process");
    }
    ~TListItem() {
        VirtualFreeEx(FProcess, FItem, 0, MEM_RELEASE);
        CloseHandle(FProcess);
    }
    TListItem(const TListItem&) = delete;
    TListItem& operator=(const TListItem&) = delete;

    LRESULT Send(UINT message, int row, const LVITEMW& item) {
        const auto text = static_cast<std::uint32_t>(reinterpret_cast<std::uintptr_t>(item.pszText));
        const TListItem32 narrow{item.mask,      item.iItem, item.iSubItem,   item.state,
                                 item.stateMask, text,       item.cchTextMax, {}};
        if (FIs32Bit)
            WriteProcessMemory(FProcess, FItem, &narrow, sizeof narrow, nullptr);
        else
            WriteProcessMemory(FProcess, FItem, &item, sizeof item, nullptr);
        return Ask(FList, message, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(FItem));
    }
    std::wstring Text(int row, int column) {
        LVITEMW item{};
        item.iSubItem = column;
        item.pszText = reinterpret_cast<wchar_t*>(FItem + kTextOffset);
        item.cchTextMax = kLongestText;
        const auto length = static_cast<std::size_t>(Send(LVM_GETITEMTEXTW, row, item));
        ReadProcessMemory(FProcess, FItem + kTextOffset, FText, sizeof FText, nullptr);
        return {FText, length};
    }

  private:
    static constexpr int kLongestText = 1024;
    static constexpr std::size_t kTextOffset = 256;  // behind an item of either kind

    HWND FList;
    HANDLE FProcess = nullptr;
    BOOL FIs32Bit = FALSE;
    char* FItem = nullptr;  // of that process; the text follows
    wchar_t FText[kLongestText]{};
};

}  // namespace

TAutomationError::TAutomationError(const std::wstring& message) : std::runtime_error(Utf8(message)) {}

bool WaitUntil(const std::function<bool()>& condition, DWORD patience) {
    const DWORD start = GetTickCount();
    while (!condition()) {
        if (GetTickCount() - start > patience) return false;
        Sleep(kPause);
    }
    return true;
}

std::string Utf8(const std::wstring& text) {
    const int length = static_cast<int>(text.size());
    std::string bytes(static_cast<std::size_t>(length) * 3, '\0');
    bytes.resize(static_cast<std::size_t>(WideCharToMultiByte(
        CP_UTF8, 0, text.data(), length, bytes.data(), static_cast<int>(bytes.size()), nullptr, nullptr)));
    return bytes;
}

std::wstring TextOf(HWND window) {
    // A message and not GetWindowText, which does not read the edits of other processes.
    std::wstring text(static_cast<std::size_t>(Ask(window, WM_GETTEXTLENGTH)) + 1, L'\0');
    text.resize(static_cast<std::size_t>(
        Ask(window, WM_GETTEXT, text.size(), reinterpret_cast<LPARAM>(text.data()))));
    return text;
}

std::wstring ClassOf(HWND window) {
    wchar_t name[256];
    return {name, static_cast<std::size_t>(GetClassNameW(window, name, 256))};
}

std::vector<HWND> TopWindows(const wchar_t* windowClass, DWORD process) {
    std::vector<HWND> found;
    HWND window = nullptr;
    while ((window = FindWindowExW(nullptr, window, windowClass, nullptr)) != nullptr) {
        DWORD owner = 0;
        GetWindowThreadProcessId(window, &owner);
        if (process == 0 || owner == process) found.push_back(window);
    }
    return found;
}

std::wstring TMessageBox::Text() const {
    for (const HWND inner : InnerWindows(FWindow)) {
        if (lstrcmpiW(ClassOf(inner).c_str(), L"Static") != 0) continue;
        // The icon is a static too, without a text.
        if (std::wstring text = TextOf(inner); !text.empty()) return text;
    }
    return {};
}

void TMessageBox::Answer(int answer) const {
    const HWND button = GetDlgItem(FWindow, answer);
    if (button == nullptr) throw TAutomationError(L"no such button in the message: " + Text());
    PostMessageW(button, BM_CLICK, 0, 0);
    if (!WaitUntil([this] { return !IsWindow(FWindow); }))
        throw TAutomationError(L"a message does not close");
}

TMainWindow TMainWindow::WaitFor(DWORD process, const wchar_t* windowClass) {
    std::vector<HWND> windows;
    const bool found = WaitUntil([&] {
        windows = TopWindows(windowClass, process);
        return !windows.empty() && IsWindowVisible(windows.front());
    });
    if (!found) throw TAutomationError(L"no window " + std::wstring(windowClass));
    return TMainWindow(windows.front());
}

void TMainWindow::WaitReady() const {
    const HWND panel = Find(L"Panel_Loading");
    const HWND last = Find(L"Button_Cancel");  // to be enabled
    if (!WaitUntil([=] { return !IsWindowVisible(panel) && IsWindowEnabled(last); }))
        throw TAutomationError(L"the window does not become ready");
}

DWORD TMainWindow::Process() const {
    DWORD process = 0;
    GetWindowThreadProcessId(FWindow, &process);
    return process;
}

RECT TMainWindow::Rectangle() const {
    RECT rectangle{};
    GetWindowRect(FWindow, &rectangle);
    return rectangle;
}

std::vector<TNamedControl> TMainWindow::Controls() const {
    std::vector<TNamedControl> controls;
    for (const HWND window : InnerWindows(FWindow)) {
        if (std::wstring name = NameOf(window); !name.empty()) controls.push_back({window, std::move(name)});
    }
    return controls;
}

HWND TMainWindow::Find(const std::wstring& name) const {
    HWND& found = FFound[name];
    const bool done = WaitUntil([&] {
        if (found != nullptr && NameOf(found) == name) return true;
        if (!IsWindow(FWindow)) throw TAutomationError(L"the window is closed; looked for " + name);
        for (const TNamedControl& control : Controls()) FFound[control.Name] = control.Window;
        return found != nullptr;
    });
    if (!done) throw TAutomationError(L"no control " + name);
    return found;
}

bool TMainWindow::Checked(const std::wstring& name) const {
    return Ask(Find(name), BM_GETCHECK) == BST_CHECKED;
}

std::wstring TMainWindow::State(const std::wstring& name) const {
    const HWND control = Find(name);
    const std::wstring windowClass = ClassOf(control);
    if (lstrcmpiW(windowClass.c_str(), L"Button") == 0 && IsBox(control))
        return Checked(name) ? L"checked" : L"clear";
    if (lstrcmpiW(windowClass.c_str(), L"ComboBox") == 0) return ChosenItem(control);
    return TextOf(control);
}

HWND TMainWindow::FindUsable(const std::wstring& name) const {
    const HWND control = Find(name);
    const bool usable = WaitUntil([=, this] {
        return IsWindowVisible(control) && IsWindowEnabled(control) && IsWindowEnabled(FWindow);
    });
    if (!usable) throw TAutomationError(L"hidden or disabled: " + name);
    return control;
}

void TMainWindow::Deliver(HWND control, UINT message, WPARAM wParam, LPARAM lParam) const {
    SendNotifyMessageW(control, message, wParam, lParam);
    // Sent messages arrive in their order: this one is answered after the first is handled, or by the loop of the
    // question that it has put up. A window that it has closed does not answer, which is as good.
    SendMessageTimeoutW(FWindow, WM_NULL, 0, 0, SMTO_NORMAL, kPatience, nullptr);
}

void TMainWindow::Click(const std::wstring& name) const { Deliver(FindUsable(name), BM_CLICK, 0, 0); }

void TMainWindow::ChooseSheet(const std::wstring& sheet) const {
    const HWND window = Find(sheet);
    const HWND tabs = FindWindowExW(GetParent(window), nullptr, WC_TABCONTROLW, nullptr);
    if (tabs == nullptr) throw TAutomationError(L"no tabs beside " + sheet);
    // Which tab is whose does not show from outside; the sheet shows whether its tab is chosen.
    const auto chosen = [window] { return (GetWindowLongW(window, GWL_STYLE) & WS_VISIBLE) != 0; };
    const LRESULT count = Ask(tabs, TCM_GETITEMCOUNT);
    for (LRESULT i = 0; i < count && !chosen(); ++i)
        Deliver(tabs, TCM_SETCURFOCUS, static_cast<WPARAM>(i), 0);
    if (!chosen()) throw TAutomationError(L"no tab shows " + sheet);
}

void TMainWindow::ChooseItem(const std::wstring& name, int index) const {
    const HWND list = FindUsable(name);
    Ask(list, CB_SETCURSEL, static_cast<WPARAM>(index));
    Deliver(GetParent(list), WM_COMMAND, MAKEWPARAM(GetDlgCtrlID(list), CBN_SELCHANGE),
            reinterpret_cast<LPARAM>(list));
}

std::vector<std::vector<std::wstring>> TMainWindow::Rows(const std::wstring& name) const {
    const HWND list = Find(name);
    TListItem item(list);
    const auto columns =
        static_cast<int>(Ask(reinterpret_cast<HWND>(Ask(list, LVM_GETHEADER)), HDM_GETITEMCOUNT));
    std::vector<std::vector<std::wstring>> rows(static_cast<std::size_t>(Ask(list, LVM_GETITEMCOUNT)));
    for (std::size_t row = 0; row < rows.size(); ++row)
        for (int column = 0; column < columns; ++column)
            rows[row].push_back(item.Text(static_cast<int>(row), column));
    return rows;
}

void TMainWindow::SelectRow(const std::wstring& name, int row) const {
    LVITEMW item{};
    item.stateMask = LVIS_SELECTED | LVIS_FOCUSED;
    TListItem remote(FindUsable(name));
    remote.Send(LVM_SETITEMSTATE, -1, item);
    item.state = item.stateMask;
    remote.Send(LVM_SETITEMSTATE, row, item);
}

void TMainWindow::Type(const std::wstring& name, const std::wstring& text) const {
    const HWND edit = FindUsable(name);
    Deliver(edit, WM_LBUTTONDOWN, MK_LBUTTON, 0);
    Deliver(edit, WM_LBUTTONUP, 0, 0);
    if (Focus() != edit) throw TAutomationError(L"takes no focus: " + name);
    Ask(edit, EM_SETSEL, 0, -1);
    for (const wchar_t character : text) {
        constexpr int kKeyCode = 0xFF;
        Deliver(edit, WM_CHAR, character, 1);
        Deliver(edit, WM_KEYUP, static_cast<WPARAM>(VkKeyScanW(character) & kKeyCode),
                static_cast<LPARAM>(0xC0000001));
    }
}

HWND TMainWindow::Focus() const {
    GUITHREADINFO info{};
    info.cbSize = sizeof info;
    GetGUIThreadInfo(GetWindowThreadProcessId(FWindow, nullptr), &info);
    return info.hwndFocus;
}

void TMainWindow::SetFocus(const std::wstring& name) const {
    const HWND window = FindUsable(name);
    PostMessageW(FWindow, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(window), TRUE);
    if (!WaitUntil([&] { return Focus() == window; })) throw TAutomationError(L"takes no focus: " + name);
}

void TMainWindow::Strike(const std::wstring& key) const {
    static const std::map<std::wstring, BYTE> kKeys{
        {L"shift", VK_SHIFT}, {L"ctrl", VK_CONTROL}, {L"alt", VK_MENU},   {L"F1", VK_F1},
        {L"F6", VK_F6},       {L"Tab", VK_TAB},      {L"Up", VK_UP},      {L"Down", VK_DOWN},
        {L"Left", VK_LEFT},   {L"Right", VK_RIGHT},  {L"Home", VK_HOME},  {L"End", VK_END},
        {L"PgUp", VK_PRIOR},  {L"PgDn", VK_NEXT},    {L"Esc", VK_ESCAPE}, {L"Enter", VK_RETURN},
        {L"Space", VK_SPACE}, {L"Delete", VK_DELETE}};
    std::vector<BYTE> codes;
    for (std::size_t start = 0; start <= key.size();) {
        const std::size_t end = std::min(key.find(L'+', start), key.size());
        const std::wstring word = key.substr(start, end - start);
        const auto known = kKeys.find(word);
        if (known == kKeys.end() && word.size() != 1) throw TAutomationError(L"no such key: " + word);
        codes.push_back(known == kKeys.end() ? static_cast<BYTE>(VkKeyScanW(word[0])) : known->second);
        start = end + 1;
    }
    for (const BYTE code : codes) keybd_event(code, 0, 0, 0);
    for (auto code = codes.rbegin(); code != codes.rend(); ++code) keybd_event(*code, 0, KEYEVENTF_KEYUP, 0);
}

std::wstring TMainWindow::FocusedControl() const {
    const HWND focus = Focus();
    return focus == nullptr ? std::wstring() : NameOf(focus);
}

void TMainWindow::Press(WORD key, HWND control) const {
    if (control == nullptr) control = Focus();
    if (control == nullptr) control = FWindow;
    PostMessageW(control, WM_KEYDOWN, key, 1);
    PostMessageW(control, WM_KEYUP, key, static_cast<LPARAM>(0xC0000001));
}

void TMainWindow::Close() const { PostMessageW(FWindow, WM_CLOSE, 0, 0); }

std::optional<TMessageBox> TMainWindow::Question() const {
    for (const HWND window : TopWindows(L"#32770", Process())) {
        if (IsWindowVisible(window)) return TMessageBox(window);
    }
    return std::nullopt;
}

TMessageBox TMainWindow::WaitForQuestion() const {
    std::optional<TMessageBox> box;
    if (!WaitUntil([&] { return (box = Question()).has_value(); }))
        throw TAutomationError(L"no question appears");
    return *box;
}
