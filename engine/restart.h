// What must be started again before a change takes effect.
#pragma once

/// In order: who waits for a restart of Windows needs no other.
enum class TRestart : unsigned char { None, Explorer, Windows };
