// The registry keys of the settings, each once. To Windows the spellings of a key are one and the same; those that a page has
// always written with another spelling keep it, and say so in their names.
#pragma once

// The user's desktop, input and shell

inline constexpr wchar_t kColors[] = L"\\Control Panel\\Colors\\";
inline constexpr wchar_t kDesktop[] = L"\\Control Panel\\Desktop\\";
inline constexpr wchar_t kKeyboard[] = L"\\Control Panel\\Keyboard\\";
/// In HKEY_USERS: the keyboard of the logon screen.
inline constexpr wchar_t kLogonKeyboard[] = L"\\.DEFAULT\\Control Panel\\Keyboard\\";
inline constexpr wchar_t kMouse[] = L"\\Control Panel\\Mouse\\";
inline constexpr wchar_t kShell[] = L"\\Software\\Microsoft\\Windows\\Shell\\";
inline constexpr wchar_t kShellNoRoam[] = L"\\Software\\Microsoft\\Windows\\ShellNoRoam\\";
/// Where Windows 8 keeps the views of all folders.
inline constexpr wchar_t kShellOfUser[] =
    L"\\Software\\Classes\\Local Settings\\Software\\Microsoft\\Windows\\Shell\\";

// Windows Explorer

inline constexpr wchar_t kExplorer[] = L"\\Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\";
inline constexpr wchar_t kExplorerUpper[] = L"\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Explorer\\";
/// The user's own choices, as Explorer's dialogs keep them.
inline constexpr wchar_t kExplorerAdvanced[] =
    L"\\Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\Advanced\\";
inline constexpr wchar_t kExplorerAdvancedUpper[] =
    L"\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Explorer\\Advanced\\";
/// Group policies. Most of them are a DWORD that takes something away when it is 1.
inline constexpr wchar_t kExplorerPolicies[] =
    L"\\Software\\Microsoft\\Windows\\CurrentVersion\\Policies\\Explorer\\";
inline constexpr wchar_t kExplorerPoliciesUpper[] =
    L"\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\policies\\Explorer\\";
inline constexpr wchar_t kExplorerAutoComplete[] =
    L"\\Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\AutoComplete\\";
/// What later Windows' policies of the shell are.
inline constexpr wchar_t kUserShellPolicies[] = L"\\Software\\Policies\\Microsoft\\Windows\\Explorer\\";
inline constexpr wchar_t kShellPolicies[] = L"\\SOFTWARE\\Policies\\Microsoft\\Windows\\Explorer\\";
inline constexpr wchar_t kAccountPolicies[] =
    L"\\Software\\Policies\\Microsoft\\Windows\\CurrentVersion\\AccountNotifications\\";
inline constexpr wchar_t kStart[] = L"\\Software\\Microsoft\\Windows\\CurrentVersion\\Start\\";
inline constexpr wchar_t kContentDelivery[] =
    L"\\Software\\Microsoft\\Windows\\CurrentVersion\\ContentDeliveryManager\\";
inline constexpr wchar_t kShortMenuHandler[] =
    L"\\Software\\Classes\\CLSID\\{86ca1aa0-34aa-4e8b-a509-50c905bae2a2}\\InprocServer32";
inline constexpr wchar_t kGalleryFolder[] =
    L"\\Software\\Classes\\CLSID\\{e88865ea-0e1c-4e20-9aa6-edcd0212c87c}\\";
inline constexpr wchar_t kHomeFolder[] =
    L"\\Software\\Classes\\CLSID\\{f874310e-b6b7-47dc-bc84-b9e6b38f5903}\\";
inline constexpr wchar_t kOneDriveFolder[] =
    L"\\Software\\Classes\\CLSID\\{018D5C66-4533-4307-9B53-224DE2ED1FE6}\\";
inline constexpr wchar_t kTaskbarDeveloper[] =
    L"\\Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\Advanced\\TaskbarDeveloperSettings\\";
inline constexpr wchar_t kSearch[] = L"\\Software\\Microsoft\\Windows\\CurrentVersion\\Search\\";
inline constexpr wchar_t kSearchPolicies[] = L"\\SOFTWARE\\Policies\\Microsoft\\Windows\\Windows Search\\";
inline constexpr wchar_t kWidgetPolicies[] = L"\\SOFTWARE\\Policies\\Microsoft\\Dsh\\";
inline constexpr wchar_t kFeedPolicies[] = L"\\SOFTWARE\\Policies\\Microsoft\\Windows\\Windows Feeds\\";
inline constexpr wchar_t kChatPolicies[] = L"\\SOFTWARE\\Policies\\Microsoft\\Windows\\Windows Chat\\";
inline constexpr wchar_t kCabinetState[] =
    L"\\Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\CabinetState\\";
inline constexpr wchar_t kCommonDialogPolicies[] =
    L"\\Software\\Microsoft\\Windows\\CurrentVersion\\Policies\\comdlg32\\";
inline constexpr wchar_t kFolderVerbs[] = L"\\Folder\\shell\\";
inline constexpr wchar_t kExploreVerb[] = L"\\Folder\\shell\\explore\\";
inline constexpr wchar_t kExploreCommand[] = L"\\Folder\\shell\\explore\\Command";

// The icons that the desktop hides, for each of the two Start menus; Windows' own dialog writes both.
inline constexpr wchar_t kNewStartPanel[] =
    L"\\Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\HideDesktopIcons\\NewStartPanel\\";
inline constexpr wchar_t kClassicStartMenu[] =
    L"\\Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\HideDesktopIcons\\ClassicStartMenu\\";
inline constexpr wchar_t kHideMyComputerIcons[] =
    L"\\Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\HideMyComputerIcons\\";
inline constexpr wchar_t kRemoteTasks[] =
    L"\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Explorer\\RemoteComputer\\NameSpace\\"
    L"{D6277990-4C6A-11CF-8D87-00AA0060F5BF}";
inline constexpr wchar_t kRemotePrinters[] =
    L"\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Explorer\\RemoteComputer\\NameSpace\\"
    L"{2227A280-3AEA-1069-A2DE-08002B30309D}";

// Colors and windows, from Windows 8 on

inline constexpr wchar_t kThemeColors[] =
    L"\\Software\\Microsoft\\Windows\\CurrentVersion\\Themes\\Personalize\\";
inline constexpr wchar_t kWindowManager[] = L"\\Software\\Microsoft\\Windows\\DWM\\";

// Network and security, from Windows 8 on

inline constexpr wchar_t kSmb1Driver[] = L"\\SYSTEM\\CurrentControlSet\\Services\\mrxsmb10\\";
inline constexpr wchar_t kWorkstationPolicies[] =
    L"\\SOFTWARE\\Policies\\Microsoft\\Windows\\LanmanWorkstation\\";
inline constexpr wchar_t kNamePolicies[] = L"\\SOFTWARE\\Policies\\Microsoft\\Windows NT\\DNSClient\\";
inline constexpr wchar_t kTransitionPolicies[] =
    L"\\SOFTWARE\\Policies\\Microsoft\\Windows\\TCPIP\\v6Transition\\";
inline constexpr wchar_t kNoNetworkQuestion[] =
    L"\\SYSTEM\\CurrentControlSet\\Control\\Network\\NewNetworkWindowOff\\";
inline constexpr wchar_t kAppHost[] = L"\\Software\\Microsoft\\Windows\\CurrentVersion\\AppHost\\";
inline constexpr wchar_t kSmartScreenPolicies[] =
    L"\\SOFTWARE\\Policies\\Microsoft\\Windows Defender\\SmartScreen\\";
inline constexpr wchar_t kScriptHost[] = L"\\SOFTWARE\\Microsoft\\Windows Script Host\\Settings\\";
inline constexpr wchar_t kAuthority[] = L"\\SYSTEM\\CurrentControlSet\\Control\\Lsa\\";
inline constexpr wchar_t kRemoteAssistance[] = L"\\SYSTEM\\CurrentControlSet\\Control\\Remote Assistance\\";
inline constexpr wchar_t kTerminalServer[] = L"\\SYSTEM\\CurrentControlSet\\Control\\Terminal Server\\";
inline constexpr wchar_t kRemoteDesktop[] =
    L"\\SYSTEM\\CurrentControlSet\\Control\\Terminal Server\\WinStations\\RDP-Tcp\\";
inline constexpr wchar_t kAutoPlayHandlers[] =
    L"\\Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\AutoplayHandlers\\";
inline constexpr wchar_t kLockScreenPolicies[] =
    L"\\SOFTWARE\\Policies\\Microsoft\\Windows\\Personalization\\";

// Input, from Windows 8 on

inline constexpr wchar_t kInputSettings[] = L"\\Software\\Microsoft\\input\\Settings\\";
inline constexpr wchar_t kTouchKeyboard[] = L"\\Software\\Microsoft\\TabletTip\\1.7\\";

// Start, updates and maintenance, from Windows 8 on

inline constexpr wchar_t kSessionPower[] = L"\\SYSTEM\\CurrentControlSet\\Control\\Session Manager\\Power\\";
inline constexpr wchar_t kStartupSound[] =
    L"\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Authentication\\LogonUI\\BootAnimation\\";
inline constexpr wchar_t kEditionOverrides[] =
    L"\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\EditionOverrides\\";
inline constexpr wchar_t kUserWinlogon[] = L"\\Software\\Microsoft\\Windows NT\\CurrentVersion\\Winlogon\\";
inline constexpr wchar_t kExplorerSerialize[] =
    L"\\Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\Serialize\\";
inline constexpr wchar_t kErrorReporting[] = L"\\Software\\Microsoft\\Windows\\Windows Error Reporting\\";
inline constexpr wchar_t kUpdatePolicies[] = L"\\SOFTWARE\\Policies\\Microsoft\\Windows\\WindowsUpdate\\";
/// Where Windows' Settings keep theirs.
inline constexpr wchar_t kUpdateSettings[] = L"\\SOFTWARE\\Microsoft\\WindowsUpdate\\UX\\Settings\\";
inline constexpr wchar_t kStorePolicies[] = L"\\SOFTWARE\\Policies\\Microsoft\\WindowsStore\\";
inline constexpr wchar_t kDeliveryPolicies[] =
    L"\\SOFTWARE\\Policies\\Microsoft\\Windows\\DeliveryOptimization\\";
inline constexpr wchar_t kStorageSense[] =
    L"\\Software\\Microsoft\\Windows\\CurrentVersion\\StorageSense\\Parameters\\StoragePolicy\\";
inline constexpr wchar_t kStoragePolicies[] = L"\\SOFTWARE\\Policies\\Microsoft\\Windows\\StorageSense\\";

// Privacy, from Windows 8 on

inline constexpr wchar_t kInputPersonalization[] = L"\\Software\\Microsoft\\InputPersonalization\\";
inline constexpr wchar_t kTypingData[] = L"\\Software\\Microsoft\\Input\\TIPC\\";
inline constexpr wchar_t kTrainedData[] = L"\\Software\\Microsoft\\InputPersonalization\\TrainedDataStore\\";
inline constexpr wchar_t kPersonalization[] = L"\\Software\\Microsoft\\Personalization\\Settings\\";
inline constexpr wchar_t kAdvertisingPolicies[] =
    L"\\SOFTWARE\\Policies\\Microsoft\\Windows\\AdvertisingInfo\\";
inline constexpr wchar_t kCloudContent[] = L"\\Software\\Policies\\Microsoft\\Windows\\CloudContent\\";
inline constexpr wchar_t kUserProfile[] = L"\\Control Panel\\International\\User Profile\\";
inline constexpr wchar_t kDataCollection[] = L"\\SOFTWARE\\Policies\\Microsoft\\Windows\\DataCollection\\";
inline constexpr wchar_t kWindowsPolicies[] = L"\\SOFTWARE\\Policies\\Microsoft\\Windows\\System\\";
inline constexpr wchar_t kSettingSync[] = L"\\SOFTWARE\\Policies\\Microsoft\\Windows\\SettingSync\\";
inline constexpr wchar_t kFeedbackRules[] = L"\\Software\\Microsoft\\Siuf\\Rules\\";
inline constexpr wchar_t kOnlineSpeech[] =
    L"\\Software\\Microsoft\\Speech_OneCore\\Settings\\OnlineSpeechPrivacy\\";
inline constexpr wchar_t kAppPrivacy[] = L"\\SOFTWARE\\Policies\\Microsoft\\Windows\\AppPrivacy\\";
inline constexpr wchar_t kRecordingPolicies[] = L"\\SOFTWARE\\Policies\\Microsoft\\Windows\\GameDVR\\";
inline constexpr wchar_t kLocationPolicies[] =
    L"\\SOFTWARE\\Policies\\Microsoft\\Windows\\LocationAndSensors\\";
inline constexpr wchar_t kProfileEngagement[] =
    L"\\Software\\Microsoft\\Windows\\CurrentVersion\\UserProfileEngagement\\";
inline constexpr wchar_t kCopilotPolicies[] = L"\\Software\\Policies\\Microsoft\\Windows\\WindowsCopilot\\";
inline constexpr wchar_t kAiPolicies[] = L"\\Software\\Policies\\Microsoft\\Windows\\WindowsAI\\";

// Internet Explorer and other programs

inline constexpr wchar_t kInternetExplorerMain[] = L"\\Software\\Microsoft\\Internet Explorer\\Main\\";
inline constexpr wchar_t kNewWindows[] = L"\\Software\\Microsoft\\Internet Explorer\\New Windows\\";
inline constexpr wchar_t kTabbedBrowsing[] = L"\\Software\\Microsoft\\Internet Explorer\\TabbedBrowsing\\";
inline constexpr wchar_t kMaxConnections[] =
    L"\\Software\\Microsoft\\Internet Explorer\\MAIN\\FeatureControl\\FEATURE_MAXCONNECTIONSPERSERVER\\";
inline constexpr wchar_t kMaxConnections10[] =
    L"\\Software\\Microsoft\\Internet Explorer\\MAIN\\FeatureControl\\FEATURE_MAXCONNECTIONSPER1_0SERVER\\";
inline constexpr wchar_t kTypedUrls[] = L"\\Software\\Microsoft\\Internet Explorer\\TypedURLs\\";
inline constexpr wchar_t kInternetSettings[] =
    L"\\Software\\Microsoft\\Windows\\CurrentVersion\\Internet Settings\\";
inline constexpr wchar_t kInternetCache[] =
    L"\\Software\\Microsoft\\Windows\\CurrentVersion\\Internet Settings\\Cache\\";
inline constexpr wchar_t kUrlHistory[] =
    L"\\Software\\Microsoft\\Windows\\CurrentVersion\\Internet Settings\\Url History\\";
inline constexpr wchar_t kWebcheck[] = L"\\Software\\Microsoft\\Windows\\CurrentVersion\\Webcheck\\";
inline constexpr wchar_t kOutlookExpress[] = L"\\SOFTWARE\\Microsoft\\Outlook Express\\";
inline constexpr wchar_t kMessengerClient[] = L"\\SOFTWARE\\Policies\\Microsoft\\Messenger\\Client\\";
inline constexpr wchar_t kCommandProcessor[] = L"\\Software\\Microsoft\\Command Processor\\";

// Windows, its start and its logon

inline constexpr wchar_t kWindowsNt[] = L"\\SOFTWARE\\Microsoft\\Windows NT\\CurrentVersion\\";
inline constexpr wchar_t kSetupUser[] = L"\\Software\\Microsoft\\MS Setup (ACME)\\User Info\\";
inline constexpr wchar_t kWinlogon[] = L"\\SOFTWARE\\Microsoft\\Windows NT\\CurrentVersion\\Winlogon\\";
inline constexpr wchar_t kSystemPolicies[] =
    L"\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\policies\\system\\";
inline constexpr wchar_t kNetworkPolicies[] =
    L"\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\policies\\Network\\";
inline constexpr wchar_t kPacketScheduler[] = L"\\SOFTWARE\\Policies\\Microsoft\\Windows\\PSched\\";
inline constexpr wchar_t kSecurityCenter[] = L"\\SOFTWARE\\Microsoft\\Security Center\\";
inline constexpr wchar_t kAutoUpdate[] =
    L"\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\WindowsUpdate\\Auto Update\\";
/// Group policies of updates.
inline constexpr wchar_t kAutoUpdatePolicies[] =
    L"\\SOFTWARE\\Policies\\Microsoft\\Windows\\WindowsUpdate\\AU\\";
inline constexpr wchar_t kBootOptimize[] = L"\\SOFTWARE\\Microsoft\\Dfrg\\BootOptimizeFunction\\";
inline constexpr wchar_t kSystemControl[] = L"\\SYSTEM\\CurrentControlSet\\Control\\";
inline constexpr wchar_t kCrashControl[] = L"\\SYSTEM\\CurrentControlSet\\Control\\CrashControl\\";
inline constexpr wchar_t kFileSystem[] = L"\\SYSTEM\\CurrentControlSet\\Control\\FileSystem\\";
/// The class of the controllers of hard disks; the first of them.
inline constexpr wchar_t kIdeController[] =
    L"\\SYSTEM\\CurrentControlSet\\Control\\Class\\{4D36E96A-E325-11CE-BFC1-08002BE10318}\\0000\\";
inline constexpr wchar_t kSessionManager[] = L"\\SYSTEM\\CurrentControlSet\\Control\\Session Manager\\";
inline constexpr wchar_t kMemoryManagement[] =
    L"\\SYSTEM\\CurrentControlSet\\Control\\Session Manager\\Memory Management\\";

// Services

inline constexpr wchar_t kCdromService[] = L"\\SYSTEM\\CurrentControlSet\\Services\\Cdrom\\";
inline constexpr wchar_t kIndexService[] = L"\\SYSTEM\\CurrentControlSet\\Services\\CiSvc\\";
inline constexpr wchar_t kServer[] = L"\\SYSTEM\\CurrentControlSet\\Services\\lanmanserver\\parameters\\";
inline constexpr wchar_t kWorkstation[] =
    L"\\SYSTEM\\CurrentControlSet\\Services\\lanmanworkstation\\parameters\\";
inline constexpr wchar_t kDiscoveryService[] = L"\\SYSTEM\\CurrentControlSet\\Services\\SSDPSRV\\";
inline constexpr wchar_t kDeviceHostService[] = L"\\SYSTEM\\CurrentControlSet\\Services\\upnphost\\";
inline constexpr wchar_t kFirewallProfile[] =
    L"\\SYSTEM\\CurrentControlSet\\Services\\SharedAccess\\Parameters\\FirewallPolicy\\StandardProfile\\";
inline constexpr wchar_t kFirewallPublicProfile[] =
    L"\\SYSTEM\\CurrentControlSet\\Services\\SharedAccess\\Parameters\\FirewallPolicy\\PublicProfile\\";
inline constexpr wchar_t kFirewallDomainProfile[] =
    L"\\SYSTEM\\CurrentControlSet\\Services\\SharedAccess\\Parameters\\FirewallPolicy\\DomainProfile\\";
