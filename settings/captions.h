// The texts of the program that are no caption of a form's control, or are on some Windows levels only, each looked up
// once in the language file.
#pragma once

#include <array>
#include <cstdint>
#include <string>

class TLanguage;

/// In the order in which they are looked up. The spellings of the language keys ("D_SystemInfomation") are older
/// than these names and fixed.
enum class TCaption : std::uint8_t {
    General,
    GeneralSettings,
    Menu,
    MenuFile,
    MenuFolder,
    MenuStartMenu,
    MenuTaskbar,
    Browser,
    BrowserIE,
    BrowserFF,
    System,
    SystemInfomation,
    SystemInput,
    SystemNetwork,
    SystemDriver,
    SystemMandC,
    Security,
    SecurityUserLogon,
    SecurityCenter,
    SecurityPrivacy,
    Others,
    OthersAnimations,
    OthersStartAndM,
    Desktop,
    Drivers,
    Loading,
    ClearIEHistory,
    OpenExplorer,
    OpenCmd,
    ExeFile,
    AllFile,
    Favorites,
    RestartWindows,
    RestartExplorer,
    RestartFirefox,
    // Captions of controls on some Windows levels; see TLevelCaption.
    MyComputer,
    DesktopMyComputer,
    NetworkPlaces,
    StartMenuDragDrop,
    StartMenuMyComputer,
    StartMenuMyDocuments,
    StartMenuMyPictures,
    StartMenuMyMusic,
    StartMenuClassicMyDocuments,
    StartMenuPrinters,
    StartMenuDevices,
    StartMenuDefaultPrograms,
    // Changes, and what is stored.
    NoChange,
    OneChange,
    ManyChanges,
    Changed,
    Selected,
    DetailsStored,
    DetailsPending,
    DetailsNotChanged,
    DetailsRestart,
    DetailsExplorer,
    DetailsShow,
    AfterRestart,
    AfterExplorer,
    Overwritten,
    ChangedSince,
    DefaultValue,
    ValueMissing,
    KeyMissing,
    KeyThere,
    Unknown,
    SystemParameter,
    Service,
    ServiceMissing,
    ServiceRuns,
    ServiceStopped,
    ServiceAutomatic,
    ServiceManual,
    ServiceDisabled,
    ServiceOther,
    Unreadable,
    RegFiles,
    RegFileRefused,
    RegFileNoHeader,
    RegFileBadKey,
    RegFileNoKey,
    RegFileBadName,
    RegFileBadData,
    RegFileBadLine,
    RegFileBadNote,
    RegFileUnreadable,
    RegFileNotRead,
    RegFileNotWritten,
    FindSetting,
    // What the pages are for, in the order of the category bar.
    AboutGeneral,
    AboutFileTypes,
    AboutFolderTypes,
    AboutStartMenu,
    AboutTaskbar,
    AboutInternetExplorer,
    AboutFirefox,
    AboutInformation,
    AboutInput,
    AboutNetwork,
    AboutDriver,
    AboutMemory,
    AboutUserLogon,
    AboutSecurityCenter,
    AboutPrivacy,
    AboutAnimations,
    AboutStartAndM,
    // Why a setting has no effect.
    OnlyWhileChecked,
    OnlyWhileChosen,
    NotWhileChecked,
    NotWhileChosen,
    NoFirefox,
    NoFirefoxProfile,
    NoSecurityCenter,
    NoSmb1,
    // Drives without a label.
    DriveFixed,
    DriveRemovable,
    DriveNetwork,
    DriveDisc,
    // What only administrators may change.
    NoRights,
    MarkedNeedRights,
    DetailsRights,
    FoundSettings,
    NothingFound,
    About,
    NoSuiteFolder,
    kCount,
};

struct TCaptionKey {
    const wchar_t* Key;      ///< in the language section kCaptionSection
    const wchar_t* English;  ///< what shows when the language file lacks the key
};

inline constexpr const wchar_t* kCaptionSection = L"Quilltune_M";
inline constexpr std::size_t kCaptionCount = static_cast<std::size_t>(TCaption::kCount);
extern const std::array<TCaptionKey, kCaptionCount> kCaptionKeys;

class TCaptions {
  public:
    /// Holds the English texts until Load.
    TCaptions();

    void Load(const TLanguage& language);

    [[nodiscard]] const std::wstring& operator[](TCaption caption) const {
        return FTexts[static_cast<std::size_t>(caption)];
    }

  private:
    std::array<std::wstring, kCaptionCount> FTexts;
};
