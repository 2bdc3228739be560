// The system as it may be asked without touching it: files can be read only, no message is handled, and a dialog is
// answered by what was said beforehand. What a page records on it goes nowhere.
#pragma once

#include "platform/system.h"

/// Answers a chooser with what it holds, and every question with No. Nothing is to be saved.
class TScratchDialogs : public TDialogs {
  public:
    std::optional<TColor> Color;       ///< the answer of the colour dialog; nothing = cancelled
    std::optional<std::wstring> File;  ///< and of the open-file dialog
    std::optional<TColor> AskedColor;  ///< what the colour dialog began with
    bool AskedFile = false;
    bool AskedQuestion = false;

    TMessageAnswer Message(const TForm& asker, const std::wstring& text, TMessageButtons buttons,
                           TMessageIcon icon) override;
    [[nodiscard]] std::optional<std::wstring> OpenFile(const TForm& asker,
                                                       const std::wstring& filter) override;
    [[nodiscard]] std::optional<std::wstring> SaveFile(const TForm& /*asker*/, const std::wstring& /*filter*/,
                                                       const std::wstring& /*suggestedName*/) override {
        return std::nullopt;
    }
    [[nodiscard]] std::optional<TColor> PickColor(const TForm& asker, TColor initial) override;
};

/// Reads what is there and writes nothing.
class TReadOnlyFiles : public TFiles {
  public:
    explicit TReadOnlyFiles(const TFiles& files) : FFiles(files) {}

    [[nodiscard]] bool Exists(const std::wstring& path) const override { return FFiles.Exists(path); }
    [[nodiscard]] std::optional<std::vector<std::uint8_t>> Read(const std::wstring& path) const override {
        return FFiles.Read(path);
    }
    [[nodiscard]] std::optional<std::uint64_t> Size(const std::wstring& path) const override {
        return FFiles.Size(path);
    }
    [[nodiscard]] std::optional<std::vector<std::uint8_t>> ReadPart(const std::wstring& path,
                                                                    std::uint64_t offset,
                                                                    std::size_t count) const override {
        return FFiles.ReadPart(path, offset, count);
    }
    [[nodiscard]] bool Append(const std::wstring& /*path*/,
                              const std::vector<std::uint8_t>& /*bytes*/) override {
        return false;
    }
    [[nodiscard]] bool Replace(const std::wstring& /*path*/,
                               const std::vector<std::uint8_t>& /*bytes*/) override {
        return false;
    }
    [[nodiscard]] bool CreateNew(const std::wstring& /*path*/,
                                 const std::vector<std::uint8_t>& /*bytes*/) override {
        return false;
    }
    [[nodiscard]] bool Delete(const std::wstring& /*path*/) override { return false; }
    [[nodiscard]] bool CreateFolder(const std::wstring& /*path*/) override { return false; }
    [[nodiscard]] std::vector<std::wstring> List(const std::wstring& folder,
                                                 const std::wstring& pattern) const override {
        return FFiles.List(folder, pattern);
    }
    [[nodiscard]] std::wstring ProfileString(const std::wstring& path, const std::wstring& section,
                                             const std::wstring& key,
                                             const std::wstring& fallback) const override {
        return FFiles.ProfileString(path, section, key, fallback);
    }
    [[nodiscard]] std::vector<TDrive> Drives() const override { return FFiles.Drives(); }

  private:
    const TFiles& FFiles;
};

/// Lets no message through, so that nobody acts while a page is asked.
class TStillClock : public TClock {
  public:
    explicit TStillClock(TClock& clock) : FClock(clock) {}

    [[nodiscard]] TLocalTime LocalTime() const override { return FClock.LocalTime(); }
    [[nodiscard]] std::wstring DateTimeText() const override { return FClock.DateTimeText(); }
    void Sleep(std::uint32_t milliseconds) override { FClock.Sleep(milliseconds); }
    void ProcessMessages() override {}

  private:
    TClock& FClock;
};

/// What those who work on it may do beyond asking.
enum class TScratchUse : std::uint8_t {
    Ask,
    Change,  ///< files can be written
};

/// `system` outlives it.
struct TScratchSystem {
    TScratchDialogs Dialogs;
    TReadOnlyFiles Files;
    TStillClock Clock;
    TSystem System;

    explicit TScratchSystem(TSystem& system, TScratchUse use = TScratchUse::Ask)
        : Files(system.Files),
          Clock(system.Clock),
          System{system.Registry,
                 system.Parameters,
                 system.Services,
                 system.Shell,
                 use == TScratchUse::Change ? system.Files : Files,
                 system.Windows,
                 Dialogs,
                 Clock} {}
    TScratchSystem(const TScratchSystem&) = delete;  // System refers to the members
    TScratchSystem& operator=(const TScratchSystem&) = delete;
};
