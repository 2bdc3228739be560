// The keys that head the sections of a registry file.
#pragma once

#include <optional>

#include "platform/registry.h"

struct TRegKey {
    TRootKey Root = TRootKey::CurrentUser;
    std::wstring
        Path;  ///< below the root, without backslashes at its ends and with single ones between names
    bool IsDeleted = false;
};

/// The key in brackets; nothing when it is none that a file can mean, which is any but a root that is to be deleted.
[[nodiscard]] std::optional<TRegKey> ParseRegKey(std::wstring_view text);

/// The other way round, with the root's long name.
[[nodiscard]] std::wstring RegKeyText(const TRegKey& key);
