// What a user wants to know of a setting beyond its caption.
#pragma once

#include <span>

/// What the setting that a control stands for does, for whom it is worth changing and what to watch for: one to three English
/// sentences. Both are UTF-8, which takes half the room.
struct TExplanation {
    const char* Control;
    const char* Text;
};

using TExplanations = std::span<const TExplanation>;

// Of the pages' settings and presets, a unit for each page beside the page's own.
[[nodiscard]] TExplanations DesktopIconsExplanations();
[[nodiscard]] TExplanations DisplayExplanations();
[[nodiscard]] TExplanations DrivesExplanations();
[[nodiscard]] TExplanations FileTypesExplanations();
[[nodiscard]] TExplanations FirefoxExplanations();
[[nodiscard]] TExplanations FolderExplanations();
[[nodiscard]] TExplanations InputExplanations();
[[nodiscard]] TExplanations InternetExplorerExplanations();
[[nodiscard]] TExplanations MailExplanations();
[[nodiscard]] TExplanations MemoryExplanations();
[[nodiscard]] TExplanations NetworkExplanations();
[[nodiscard]] TExplanations PrivacyExplanations();
[[nodiscard]] TExplanations SecurityExplanations();
[[nodiscard]] TExplanations StartMenuExplanations();
[[nodiscard]] TExplanations StartupExplanations();
[[nodiscard]] TExplanations SystemExplanations();
[[nodiscard]] TExplanations TaskbarExplanations();
[[nodiscard]] TExplanations UserLogonExplanations();
