// When the shell takes over what the pages write.
#pragma once

#include "platform/shell.h"

/// Tells Explorer that its settings changed: policies, folder options, and those of the Start menu and the taskbar.
inline void TellExplorer(TShell& shell) {
    for (const wchar_t* area : {L"Policy", L"ShellState", L"TraySettings"})
        shell.BroadcastSettingChange(area);
}

/// What each Apply tells the shell.
inline void NotifyShell(TShell& shell, bool associationsChanged) {
    shell.NotifyChange(kAllEvents, kFlush);
    if (associationsChanged) shell.NotifyChange(kAssociationsChanged, kIdList);
    TellExplorer(shell);
}
