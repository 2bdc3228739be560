// The registry keys of the settings, each once. To Windows the spellings of a key are one and the same; those that a page has
// always written with another spelling keep it, and say so in their names.
#pragma once

// The user's desktop, input and shell

inline constexpr const wchar_t* kColors = L"\\Control Panel\\Colors\\";
inline constexpr const wchar_t* kDesktop = L"\\Control Panel\\Desktop\\";
inline constexpr const wchar_t* kKeyboard = L"\\Control Panel\\Keyboard\\";
/// In HKEY_USERS: the keyboard of the logon screen.
inline constexpr const wchar_t* kLogonKeyboard = L"\\.DEFAULT\\Control Panel\\Keyboard\\";
inline constexpr const wchar_t* kMouse = L"\\Control Panel\\Mouse\\";
inline constexpr const wchar_t* kShell = L"\\Software\\Microsoft\\Windows\\Shell\\";
inline constexpr const wchar_t* kShellNoRoam = L"\\Software\\Microsoft\\Windows\\ShellNoRoam\\";
/// Where Windows 8 keeps the views of all folders.
inline constexpr const wchar_t* kShellOfUser =
    L"\\Software\\Classes\\Local Settings\\Software\\Microsoft\\Windows\\Shell\\";

// Windows Explorer

inline constexpr const wchar_t* kExplorer = L"\\Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\";
inline constexpr const wchar_t* kExplorerUpper =
    L"\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Explorer\\";
/// The user's own choices, as Explorer's dialogs keep them.
inline constexpr const wchar_t* kExplorerAdvanced =
    L"\\Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\Advanced\\";
inline constexpr const wchar_t* kExplorerAdvancedUpper =
    L"\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Explorer\\Advanced\\";
/// Group policies. Most of them are a DWORD that takes something away when it is 1.
inline constexpr const wchar_t* kExplorerPolicies =
    L"\\Software\\Microsoft\\Windows\\CurrentVersion\\Policies\\Explorer\\";
inline constexpr const wchar_t* kExplorerPoliciesUpper =
    L"\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\policies\\Explorer\\";
inline constexpr const wchar_t* kExplorerAutoComplete =
    L"\\Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\AutoComplete\\";
/// What later Windows' policies of the shell are.
inline constexpr const wchar_t* kUserShellPolicies = L"\\Software\\Policies\\Microsoft\\Windows\\Explorer\\";
inline constexpr const wchar_t* kShellPolicies = L"\\SOFTWARE\\Policies\\Microsoft\\Windows\\Explorer\\";
inline constexpr const wchar_t* kAccountPolicies =
    L"\\Software\\Policies\\Microsoft\\Windows\\CurrentVersion\\AccountNotifications\\";
inline constexpr const wchar_t* kStart = L"\\Software\\Microsoft\\Windows\\CurrentVersion\\Start\\";
inline constexpr const wchar_t* kContentDelivery =
    L"\\Software\\Microsoft\\Windows\\CurrentVersion\\ContentDeliveryManager\\";
inline constexpr const wchar_t* kShortMenuHandler =
    L"\\Software\\Classes\\CLSID\\{86ca1aa0-34aa-4e8b-a509-50c905bae2a2}\\InprocServer32";
inline constexpr const wchar_t* kGalleryFolder =
    L"\\Software\\Classes\\CLSID\\{e88865ea-0e1c-4e20-9aa6-edcd0212c87c}\\";
inline constexpr const wchar_t* kHomeFolder =
    L"\\Software\\Classes\\CLSID\\{f874310e-b6b7-47dc-bc84-b9e6b38f5903}\\";
inline constexpr const wchar_t* kOneDriveFolder =
    L"\\Software\\Classes\\CLSID\\{018D5C66-4533-4307-9B53-224DE2ED1FE6}\\";
inline constexpr const wchar_t* kTaskbarDeveloper =
    L"\\Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\Advanced\\TaskbarDeveloperSettings\\";
inline constexpr const wchar_t* kSearch = L"\\Software\\Microsoft\\Windows\\CurrentVersion\\Search\\";
inline constexpr const wchar_t* kSearchPolicies =
    L"\\SOFTWARE\\Policies\\Microsoft\\Windows\\Windows Search\\";
inline constexpr const wchar_t* kWidgetPolicies = L"\\SOFTWARE\\Policies\\Microsoft\\Dsh\\";
inline constexpr const wchar_t* kFeedPolicies = L"\\SOFTWARE\\Policies\\Microsoft\\Windows\\Windows Feeds\\";
inline constexpr const wchar_t* kChatPolicies = L"\\SOFTWARE\\Policies\\Microsoft\\Windows\\Windows Chat\\";
inline constexpr const wchar_t* kCabinetState =
    L"\\Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\CabinetState\\";
inline constexpr const wchar_t* kCommonDialogPolicies =
    L"\\Software\\Microsoft\\Windows\\CurrentVersion\\Policies\\comdlg32\\";
inline constexpr const wchar_t* kFolderVerbs = L"\\Folder\\shell\\";
inline constexpr const wchar_t* kExploreVerb = L"\\Folder\\shell\\explore\\";
inline constexpr const wchar_t* kExploreCommand = L"\\Folder\\shell\\explore\\Command";

// The icons that the desktop hides, for each of the two Start menus; Windows' own dialog writes both.
inline constexpr const wchar_t* kNewStartPanel =
    L"\\Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\HideDesktopIcons\\NewStartPanel\\";
inline constexpr const wchar_t* kClassicStartMenu =
    L"\\Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\HideDesktopIcons\\ClassicStartMenu\\";
inline constexpr const wchar_t* kHideMyComputerIcons =
    L"\\Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\HideMyComputerIcons\\";
inline constexpr const wchar_t* kRemoteTasks =
    L"\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Explorer\\RemoteComputer\\NameSpace\\"
    L"{D6277990-4C6A-11CF-8D87-00AA0060F5BF}";
inline constexpr const wchar_t* kRemotePrinters =
    L"\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Explorer\\RemoteComputer\\NameSpace\\"
    L"{2227A280-3AEA-1069-A2DE-08002B30309D}";

// Colors and windows, from Windows 8 on

inline constexpr const wchar_t* kThemeColors =
    L"\\Software\\Microsoft\\Windows\\CurrentVersion\\Themes\\Personalize\\";
inline constexpr const wchar_t* kWindowManager = L"\\Software\\Microsoft\\Windows\\DWM\\";

// Network and security, from Windows 8 on

inline constexpr const wchar_t* kSmb1Driver = L"\\SYSTEM\\CurrentControlSet\\Services\\mrxsmb10\\";
inline constexpr const wchar_t* kWorkstationPolicies =
    L"\\SOFTWARE\\Policies\\Microsoft\\Windows\\LanmanWorkstation\\";
inline constexpr const wchar_t* kNamePolicies = L"\\SOFTWARE\\Policies\\Microsoft\\Windows NT\\DNSClient\\";
inline constexpr const wchar_t* kTransitionPolicies =
    L"\\SOFTWARE\\Policies\\Microsoft\\Windows\\TCPIP\\v6Transition\\";
inline constexpr const wchar_t* kNoNetworkQuestion =
    L"\\SYSTEM\\CurrentControlSet\\Control\\Network\\NewNetworkWindowOff\\";
inline constexpr const wchar_t* kAppHost = L"\\Software\\Microsoft\\Windows\\CurrentVersion\\AppHost\\";
inline constexpr const wchar_t* kSmartScreenPolicies =
    L"\\SOFTWARE\\Policies\\Microsoft\\Windows Defender\\SmartScreen\\";
inline constexpr const wchar_t* kScriptHost = L"\\SOFTWARE\\Microsoft\\Windows Script Host\\Settings\\";
inline constexpr const wchar_t* kAuthority = L"\\SYSTEM\\CurrentControlSet\\Control\\Lsa\\";
inline constexpr const wchar_t* kRemoteAssistance =
    L"\\SYSTEM\\CurrentControlSet\\Control\\Remote Assistance\\";
inline constexpr const wchar_t* kTerminalServer = L"\\SYSTEM\\CurrentControlSet\\Control\\Terminal Server\\";
inline constexpr const wchar_t* kRemoteDesktop =
    L"\\SYSTEM\\CurrentControlSet\\Control\\Terminal Server\\WinStations\\RDP-Tcp\\";
inline constexpr const wchar_t* kAutoPlayHandlers =
    L"\\Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\AutoplayHandlers\\";
inline constexpr const wchar_t* kLockScreenPolicies =
    L"\\SOFTWARE\\Policies\\Microsoft\\Windows\\Personalization\\";

// Input, from Windows 8 on

inline constexpr const wchar_t* kInputSettings = L"\\Software\\Microsoft\\input\\Settings\\";
inline constexpr const wchar_t* kTouchKeyboard = L"\\Software\\Microsoft\\TabletTip\\1.7\\";

// Start, updates and maintenance, from Windows 8 on

inline constexpr const wchar_t* kSessionPower =
    L"\\SYSTEM\\CurrentControlSet\\Control\\Session Manager\\Power\\";
inline constexpr const wchar_t* kStartupSound =
    L"\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Authentication\\LogonUI\\BootAnimation\\";
inline constexpr const wchar_t* kEditionOverrides =
    L"\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\EditionOverrides\\";
inline constexpr const wchar_t* kUserWinlogon =
    L"\\Software\\Microsoft\\Windows NT\\CurrentVersion\\Winlogon\\";
inline constexpr const wchar_t* kExplorerSerialize =
    L"\\Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\Serialize\\";
inline constexpr const wchar_t* kErrorReporting =
    L"\\Software\\Microsoft\\Windows\\Windows Error Reporting\\";
inline constexpr const wchar_t* kUpdatePolicies =
    L"\\SOFTWARE\\Policies\\Microsoft\\Windows\\WindowsUpdate\\";
/// Where Windows' Settings keep theirs.
inline constexpr const wchar_t* kUpdateSettings = L"\\SOFTWARE\\Microsoft\\WindowsUpdate\\UX\\Settings\\";
inline constexpr const wchar_t* kStorePolicies = L"\\SOFTWARE\\Policies\\Microsoft\\WindowsStore\\";
inline constexpr const wchar_t* kDeliveryPolicies =
    L"\\SOFTWARE\\Policies\\Microsoft\\Windows\\DeliveryOptimization\\";
inline constexpr const wchar_t* kStorageSense =
    L"\\Software\\Microsoft\\Windows\\CurrentVersion\\StorageSense\\Parameters\\StoragePolicy\\";
inline constexpr const wchar_t* kStoragePolicies =
    L"\\SOFTWARE\\Policies\\Microsoft\\Windows\\StorageSense\\";

// Privacy, from Windows 8 on

inline constexpr const wchar_t* kInputPersonalization = L"\\Software\\Microsoft\\InputPersonalization\\";
inline constexpr const wchar_t* kTypingData = L"\\Software\\Microsoft\\Input\\TIPC\\";
inline constexpr const wchar_t* kTrainedData =
    L"\\Software\\Microsoft\\InputPersonalization\\TrainedDataStore\\";
inline constexpr const wchar_t* kPersonalization = L"\\Software\\Microsoft\\Personalization\\Settings\\";
inline constexpr const wchar_t* kAdvertisingPolicies =
    L"\\SOFTWARE\\Policies\\Microsoft\\Windows\\AdvertisingInfo\\";
inline constexpr const wchar_t* kCloudContent = L"\\Software\\Policies\\Microsoft\\Windows\\CloudContent\\";
inline constexpr const wchar_t* kUserProfile = L"\\Control Panel\\International\\User Profile\\";
inline constexpr const wchar_t* kDataCollection =
    L"\\SOFTWARE\\Policies\\Microsoft\\Windows\\DataCollection\\";
inline constexpr const wchar_t* kWindowsPolicies = L"\\SOFTWARE\\Policies\\Microsoft\\Windows\\System\\";
inline constexpr const wchar_t* kSettingSync = L"\\SOFTWARE\\Policies\\Microsoft\\Windows\\SettingSync\\";
inline constexpr const wchar_t* kFeedbackRules = L"\\Software\\Microsoft\\Siuf\\Rules\\";
inline constexpr const wchar_t* kOnlineSpeech =
    L"\\Software\\Microsoft\\Speech_OneCore\\Settings\\OnlineSpeechPrivacy\\";
inline constexpr const wchar_t* kAppPrivacy = L"\\SOFTWARE\\Policies\\Microsoft\\Windows\\AppPrivacy\\";
inline constexpr const wchar_t* kRecordingPolicies = L"\\SOFTWARE\\Policies\\Microsoft\\Windows\\GameDVR\\";
inline constexpr const wchar_t* kLocationPolicies =
    L"\\SOFTWARE\\Policies\\Microsoft\\Windows\\LocationAndSensors\\";
inline constexpr const wchar_t* kProfileEngagement =
    L"\\Software\\Microsoft\\Windows\\CurrentVersion\\UserProfileEngagement\\";
inline constexpr const wchar_t* kCopilotPolicies =
    L"\\Software\\Policies\\Microsoft\\Windows\\WindowsCopilot\\";
inline constexpr const wchar_t* kAiPolicies = L"\\Software\\Policies\\Microsoft\\Windows\\WindowsAI\\";

// Internet Explorer and other programs

inline constexpr const wchar_t* kInternetExplorerMain = L"\\Software\\Microsoft\\Internet Explorer\\Main\\";
inline constexpr const wchar_t* kNewWindows = L"\\Software\\Microsoft\\Internet Explorer\\New Windows\\";
inline constexpr const wchar_t* kTabbedBrowsing =
    L"\\Software\\Microsoft\\Internet Explorer\\TabbedBrowsing\\";
inline constexpr const wchar_t* kMaxConnections =
    L"\\Software\\Microsoft\\Internet Explorer\\MAIN\\FeatureControl\\FEATURE_MAXCONNECTIONSPERSERVER\\";
inline constexpr const wchar_t* kMaxConnections10 =
    L"\\Software\\Microsoft\\Internet Explorer\\MAIN\\FeatureControl\\FEATURE_MAXCONNECTIONSPER1_0SERVER\\";
inline constexpr const wchar_t* kTypedUrls = L"\\Software\\Microsoft\\Internet Explorer\\TypedURLs\\";
inline constexpr const wchar_t* kInternetSettings =
    L"\\Software\\Microsoft\\Windows\\CurrentVersion\\Internet Settings\\";
inline constexpr const wchar_t* kInternetCache =
    L"\\Software\\Microsoft\\Windows\\CurrentVersion\\Internet Settings\\Cache\\";
inline constexpr const wchar_t* kUrlHistory =
    L"\\Software\\Microsoft\\Windows\\CurrentVersion\\Internet Settings\\Url History\\";
inline constexpr const wchar_t* kWebcheck = L"\\Software\\Microsoft\\Windows\\CurrentVersion\\Webcheck\\";
inline constexpr const wchar_t* kOutlookExpress = L"\\SOFTWARE\\Microsoft\\Outlook Express\\";
inline constexpr const wchar_t* kMessengerClient = L"\\SOFTWARE\\Policies\\Microsoft\\Messenger\\Client\\";
inline constexpr const wchar_t* kCommandProcessor = L"\\Software\\Microsoft\\Command Processor\\";

// Windows, its start and its logon

inline constexpr const wchar_t* kWindowsNt = L"\\SOFTWARE\\Microsoft\\Windows NT\\CurrentVersion\\";
inline constexpr const wchar_t* kSetupUser = L"\\Software\\Microsoft\\MS Setup (ACME)\\User Info\\";
inline constexpr const wchar_t* kWinlogon = L"\\SOFTWARE\\Microsoft\\Windows NT\\CurrentVersion\\Winlogon\\";
inline constexpr const wchar_t* kSystemPolicies =
    L"\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\policies\\system\\";
inline constexpr const wchar_t* kNetworkPolicies =
    L"\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\policies\\Network\\";
inline constexpr const wchar_t* kPacketScheduler = L"\\SOFTWARE\\Policies\\Microsoft\\Windows\\PSched\\";
inline constexpr const wchar_t* kSecurityCenter = L"\\SOFTWARE\\Microsoft\\Security Center\\";
inline constexpr const wchar_t* kAutoUpdate =
    L"\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\WindowsUpdate\\Auto Update\\";
/// Group policies of updates.
inline constexpr const wchar_t* kAutoUpdatePolicies =
    L"\\SOFTWARE\\Policies\\Microsoft\\Windows\\WindowsUpdate\\AU\\";
inline constexpr const wchar_t* kBootOptimize = L"\\SOFTWARE\\Microsoft\\Dfrg\\BootOptimizeFunction\\";
inline constexpr const wchar_t* kSystemControl = L"\\SYSTEM\\CurrentControlSet\\Control\\";
inline constexpr const wchar_t* kCrashControl = L"\\SYSTEM\\CurrentControlSet\\Control\\CrashControl\\";
inline constexpr const wchar_t* kFileSystem = L"\\SYSTEM\\CurrentControlSet\\Control\\FileSystem\\";
/// The class of the controllers of hard disks; the first of them.
inline constexpr const wchar_t* kIdeController =
    L"\\SYSTEM\\CurrentControlSet\\Control\\Class\\{4D36E96A-E325-11CE-BFC1-08002BE10318}\\0000\\";
inline constexpr const wchar_t* kSessionManager = L"\\SYSTEM\\CurrentControlSet\\Control\\Session Manager\\";
inline constexpr const wchar_t* kMemoryManagement =
    L"\\SYSTEM\\CurrentControlSet\\Control\\Session Manager\\Memory Management\\";

// Services

inline constexpr const wchar_t* kCdromService = L"\\SYSTEM\\CurrentControlSet\\Services\\Cdrom\\";
inline constexpr const wchar_t* kIndexService = L"\\SYSTEM\\CurrentControlSet\\Services\\CiSvc\\";
inline constexpr const wchar_t* kServer =
    L"\\SYSTEM\\CurrentControlSet\\Services\\lanmanserver\\parameters\\";
inline constexpr const wchar_t* kWorkstation =
    L"\\SYSTEM\\CurrentControlSet\\Services\\lanmanworkstation\\parameters\\";
inline constexpr const wchar_t* kDiscoveryService = L"\\SYSTEM\\CurrentControlSet\\Services\\SSDPSRV\\";
inline constexpr const wchar_t* kDeviceHostService = L"\\SYSTEM\\CurrentControlSet\\Services\\upnphost\\";
inline constexpr const wchar_t* kFirewallProfile =
    L"\\SYSTEM\\CurrentControlSet\\Services\\SharedAccess\\Parameters\\FirewallPolicy\\StandardProfile\\";
inline constexpr const wchar_t* kFirewallPublicProfile =
    L"\\SYSTEM\\CurrentControlSet\\Services\\SharedAccess\\Parameters\\FirewallPolicy\\PublicProfile\\";
inline constexpr const wchar_t* kFirewallDomainProfile =
    L"\\SYSTEM\\CurrentControlSet\\Services\\SharedAccess\\Parameters\\FirewallPolicy\\DomainProfile\\";
