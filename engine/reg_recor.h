// One pending change: a registry operation or a system-parameter call that Apply will carry out.
#pragma once

#include "engine/restart.h"
#include "platform/registry.h"
#include "platform/system_parameters.h"

/// What a registry entry does to its place.
enum class TRegAction : std::uint32_t { Write = 0, DeleteKey = 1, DeleteValue = 2 };

/// One intended write, also the request and answer of a read.
struct TRegRecor {
    std::wstring Name;  ///< change name, the key of the list: a control's name or a fixed name
    TRootKey RootKey = TRootKey::CurrentUser;
    std::wstring Key;        ///< begins with a backslash, may end with one
    std::wstring ValueName;  ///< empty = the key's default value
    TRegDataType DataType = TRegDataType::Unknown;
    TRegValue Value;
    TReadStatus ReadResult = TReadStatus::Found;  ///< set by reads only
    TRegAction Action = TRegAction::Write;
    bool IsSystemParameter = false;  ///< the entry is a SystemParametersInfoW call of the Spi fields
    bool SpiInParam = false;         ///< the number that is set is SpiParam; otherwise it is SpiData
    std::uint32_t SpiGet = 0;     ///< the SPI_GET… code that tells what SpiAction sets; 0 = there is none
    std::uint32_t SpiAction = 0;  ///< uiAction
    std::uint32_t SpiParam = 0;   ///< uiParam
    TSpiData SpiData;             ///< pvParam
    std::uint32_t SpiWinIni = 0;  ///< fWinIni; recorders set 1 = SPIF_UPDATEINIFILE
    std::wstring Setting;         ///< the name of the control that recorded the change
    TRestart RestartNeeded = TRestart::None;  ///< before the change takes effect
};
