// Handles of Windows that close themselves.
#pragma once

#include <windows.h>

#include <utility>

/// Owns a handle of one kind. `TTraits` names its Type, the Invalid() handle and how to Close a valid one.
template <typename TTraits>
class THandle {
  public:
    using TValue = typename TTraits::Type;

    THandle() = default;
    explicit THandle(TValue value) : FValue(value) {}
    THandle(THandle&& other) noexcept : FValue(std::exchange(other.FValue, TTraits::Invalid())) {}
    THandle& operator=(THandle&& other) noexcept {
        std::swap(FValue, other.FValue);
        return *this;
    }
    THandle(const THandle&) = delete;
    THandle& operator=(const THandle&) = delete;
    ~THandle() { Close(); }

    [[nodiscard]] TValue Get() const { return FValue; }
    [[nodiscard]] bool IsValid() const { return FValue != TTraits::Invalid(); }

    void Close() {
        if (IsValid()) TTraits::Close(std::exchange(FValue, TTraits::Invalid()));
    }

  private:
    TValue FValue = TTraits::Invalid();
};

struct TKeyTraits {
    using Type = HKEY;
    static Type Invalid() { return nullptr; }
    static void Close(Type key) { RegCloseKey(key); }
};
using TKeyHandle = THandle<TKeyTraits>;

/// CreateFileW answers failure in a way of its own.
struct TFileTraits {
    using Type = HANDLE;
    static Type Invalid() { return INVALID_HANDLE_VALUE; }
    static void Close(Type file) { CloseHandle(file); }
};
using TFileHandle = THandle<TFileTraits>;

struct TSearchTraits {
    using Type = HANDLE;
    static Type Invalid() { return INVALID_HANDLE_VALUE; }
    static void Close(Type search) { FindClose(search); }
};
using TSearchHandle = THandle<TSearchTraits>;

struct TTokenTraits {
    using Type = HANDLE;
    static Type Invalid() { return nullptr; }
    static void Close(Type token) { CloseHandle(token); }
};
using TTokenHandle = THandle<TTokenTraits>;

/// A thread, an event or whatever else can be waited for.
struct TWaitableTraits {
    using Type = HANDLE;
    static Type Invalid() { return nullptr; }
    static void Close(Type object) { CloseHandle(object); }
};
using TWaitableHandle = THandle<TWaitableTraits>;

struct TLibraryTraits {
    using Type = HMODULE;
    static Type Invalid() { return nullptr; }
    static void Close(Type library) { FreeLibrary(library); }
};
using TLibraryHandle = THandle<TLibraryTraits>;
