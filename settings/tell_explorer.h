// When the shell takes over what the pages write.
#pragma once

#include "platform/shell.h"
#include "settings/levels.h"

/// Tells Explorer that its settings changed: policies, folder options, those of the Start menu and the taskbar, and since
/// Windows 8 the colors of Windows, which programs read again too.
inline void TellExplorer(TShell& shell, const TRelease& release) {
    for (const wchar_t* area : {L"Policy", L"ShellState", L"TraySettings"})
        shell.BroadcastSettingChange(area);
    if (release.Level() > 7) shell.BroadcastSettingChange(L"ImmersiveColorSet");
}

/// What each Apply tells the shell.
inline void NotifyShell(TShell& shell, const TRelease& release, bool associationsChanged) {
    shell.NotifyChange(kAllEvents, kFlush);
    if (associationsChanged) shell.NotifyChange(kAssociationsChanged, kIdList);
    TellExplorer(shell, release);
}
