// A part of the registry to the byte, as a judge of the program sees it.
#pragma once

#include <map>

#include "tests/program/program.h"

/// Values by root, key and name, an unnamed one as "(Default)"; and keys, with a backslash at the end and no bytes.
using TSnapshot = std::map<std::wstring, TStoredValue>;

/// Settings, services and classes of the machine and of the user. Not among it are what Wine and the
/// services' manager keep for the session, devices, interfaces and the registry of 32-bit programs.
[[nodiscard]] TSnapshot RegistrySnapshot();

/// Puts things back as they were at one, but for services: their manager would not know.
void Restore(const TSnapshot& snapshot);

/// Stores a value at such a place, or deletes it or the key.
void Store(const std::wstring& place, const std::optional<TStoredValue>& value);

/// The places at which two differ.
[[nodiscard]] std::vector<std::wstring> Differences(const TSnapshot& one, const TSnapshot& other);
